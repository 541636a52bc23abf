#pragma once
// What differs between operating systems, as one interface. platform/ implements it, once for each system; the
// program installs the implementation at its start, tests may install one of their own.

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/fault.h"

namespace ecr {

/// A running process as the system lists it.
struct ProcessEntry {
  std::uint64_t id = 0;
  std::string executable;  ///< file name of its executable, without folders, as the system writes it
};

/// A dynamically loaded library; unloaded when this object goes away.
class Library {
 public:
  Library() = default;
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;
  virtual ~Library() = default;

  /// The address of an exported function, nullptr if the library has none of this name.
  [[nodiscard]] virtual void* symbol(const char* name) const = 0;
};

/// A new file that is to take the place of another one, or of none. Both texts are for the steps that follow, in the
/// form in which the system layer keeps paths.
struct FreshFile {
  std::string path;    ///< where it lies now, beside `target`
  std::string target;  ///< whose name it is to get; no link
};

class System {
 public:
  System() = default;
  System(const System&) = delete;
  System& operator=(const System&) = delete;
  virtual ~System() = default;

  /// Makes the file `path`, a path of the host, hold exactly `bytes`, by the three steps below: whoever pulls the plug
  /// finds the old file or the new one, and after the return the new one. On a fault the old file stands untouched;
  /// only where the last step failed the new one stands already, and nobody knows whether it would outlive a power cut.
  [[nodiscard]] virtual Fault replace_file(const std::string& path, std::string_view bytes);

  /// Writes `bytes` to a new file beside `path`, under a name that is_unfinished_save knows, and flushes it to the
  /// disk. A link is written through; a file that may not be written is left alone. On a fault no new file is left.
  [[nodiscard]] virtual Fault write_beside(const std::string& path, std::string_view bytes, FreshFile& fresh) = 0;

  /// Gives the new file the name of the old one, in one step. On a fault the new file is removed; file_not_found says
  /// that somebody else had removed it.
  [[nodiscard]] virtual Fault rename_over(const FreshFile& fresh) = 0;

  /// Sees to it that the rename to `target` is on the disk, with the folder that holds the file.
  [[nodiscard]] virtual Fault flush_folder_of(const std::string& target) = 0;

  /// Whether paths of the host, as 8-bit text, are UTF-8; otherwise they are of the fixed code page.
  [[nodiscard]] virtual bool paths_are_utf8() const { return true; }

  /// Appends `bytes` to the file, creating it. Faults: permission_denied while another process holds the file for
  /// itself, others as the system says.
  [[nodiscard]] virtual Fault append_file(const std::string& path, std::string_view bytes) = 0;

  /// All processes that run now and that this user may see, in the system's order.
  [[nodiscard]] virtual std::vector<ProcessEntry> processes() = 0;

  /// Ends a process at once. Answers whether the system did so.
  virtual bool end_process(std::uint64_t id) = 0;

  /// Starts a program, a path of the host, with a minimised window where there are windows, and does not wait for it.
  [[nodiscard]] virtual Fault start_minimised(const std::string& program,
                                              const std::vector<std::string>& arguments) = 0;

  /// Whether the driver tools that come with the installation can run on this system at all.
  [[nodiscard]] virtual bool driver_tools_apply() const = 0;

  /// The captions of the system's devices, serial ports in the form "NAME (COMn)", in the system's order. Nothing when
  /// the system cannot be asked.
  [[nodiscard]] virtual std::optional<std::vector<std::string>> device_captions() = 0;

  /// The system's version with its decimal sign as the system writes it ("6,01"), and its build number.
  [[nodiscard]] virtual std::string version_text() const = 0;
  [[nodiscard]] virtual int build_number() const = 0;

  /// The file name that the link library has on this system.
  [[nodiscard]] virtual std::string_view link_library_name() const = 0;

  /// Loads a library. On a failure nullptr comes back and `why` says why in the system's words.
  [[nodiscard]] virtual std::unique_ptr<Library> load_library(const std::string& path, std::string& why) = 0;
};

/// The System in use; the program ends with a message on the standard error output if none was installed.
[[nodiscard]] System& system_layer() noexcept;

/// Installs a System; it must outlive its use. Returns the one that stood before, which may be nullptr.
System* install_system(System* system) noexcept;

}  // namespace ecr

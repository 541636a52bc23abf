#pragma once
// What every target stands on: an application folder in memory, a shell that answers at once, a system without devices
// and processes, and a link library that the target scripts.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/clock.h"
#include "core/shell.h"
#include "core/system.h"
#include "link/library.h"

/// The head of a target: FUZZ_TARGET(image) { ... return 0; } takes the input as `data` and `size`. Where all targets are
/// parts of one program each has a name of its own.
#ifdef FUZZ_REPLAY
#define FUZZ_TARGET(name) extern "C" int fuzz_##name(const std::uint8_t* data, std::size_t size)
#else
#define FUZZ_TARGET(name) extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
#endif

namespace ecr::fuzz {

/// Ends the run with what was broken, so that the input is kept.
void require(bool holds, const char* what);

/// Thrown where the program would end at once: an end on purpose is no crash. Not a std::exception, so that no routine
/// takes it for a fault.
struct ProgramEnded {};

/// Runs `body` and answers whether it ended the program.
template <typename Body>
bool ends_program(Body&& body) {
  try {
    body();
  } catch (const ProgramEnded&) {
    return true;
  }
  return false;
}

/// Counts the boxes; its clock is moved by waiting alone.
class QuietShell final : public Shell {
 public:
  int boxes = 0;
  Moment moment{20, 11, 2026, 12 * 3600.0};

  Answer box(BoxKind kind, BoxButtons buttons, std::string_view text, std::string_view title) override;
  void let_screens_work() override;
  void pointer(Pointer) override {}
  void run_beside(const WorkInHand& what, Waiting waiting, const std::function<void()>& job) override;
  void wait_until(const WorkInHand& what, double seconds, const std::function<bool()>& done) override;
  [[noreturn]] void end_program() override { throw ProgramEnded{}; }
};

/// Files are the host's; there are no processes, no devices but those that the target names, and nothing is started.
class QuietSystem final : public System {
 public:
  std::optional<std::vector<std::string>> captions;

  Fault write_beside(const std::string& path, std::string_view bytes, FreshFile& fresh) override;
  Fault rename_over(const FreshFile& fresh) override;
  Fault flush_folder_of(const std::string& target) override;
  Fault append_file(const std::string& path, std::string_view bytes) override;
  std::vector<ProcessEntry> processes() override { return {}; }
  bool end_process(std::uint64_t) override { return false; }
  Fault start_minimised(const std::string& program, const std::vector<std::string>& arguments) override;
  [[nodiscard]] bool driver_tools_apply() const override { return false; }
  std::optional<std::vector<std::string>> device_captions() override { return captions; }
  [[nodiscard]] std::string version_text() const override { return "6.1"; }
  [[nodiscard]] int build_number() const override { return 0; }
  [[nodiscard]] std::string_view link_library_name() const override { return "none"; }
  std::unique_ptr<Library> load_library(const std::string& path, std::string& why) override;
};

/// A link library that hands each call by file number and port to the target, which answers the result code.
class ScriptedLink final : public LinkLibrary {
 public:
  using Script = std::function<std::int32_t(std::uint8_t file, std::uint8_t port)>;
  explicit ScriptedLink(Script script) : script_{std::move(script)} {}

  std::int32_t send_cmd(std::string& folder, std::uint8_t direction, std::uint8_t fileNumber, std::int32_t& resultCode,
                        std::int32_t timeout, std::uint8_t port) override;
  std::int32_t range_report(std::string& folder, std::uint8_t fileNumber, std::int32_t& resultCode,
                            std::int32_t timeout, std::int32_t rangeFrom, std::int32_t rangeTo,
                            std::uint8_t port) override;
  std::int32_t send_logo(std::string& source, const std::string& target1, const std::string& target2,
                         std::int32_t& resultCode, std::int32_t timeout) override;

 private:
  Script script_;
};

/// One application folder for the life of the process, removed at its end. Paths are relative to it, with '/'.
class Installation {
 public:
  Installation();
  Installation(const Installation&) = delete;
  Installation& operator=(const Installation&) = delete;
  ~Installation();

  /// Everything that the program keeps in memory as before its start, with the folders named; an empty log.
  void reset();

  [[nodiscard]] std::string host(std::string_view path) const { return folder_ + "/" + std::string{path}; }
  void write(std::string_view path, std::string_view bytes) const;
  [[nodiscard]] std::string bytes(std::string_view path) const;
  [[nodiscard]] bool exists(std::string_view path) const;
  void remove(std::string_view path) const;
  /// A folder where a file is looked for.
  void put_folder(std::string_view path) const;

  [[nodiscard]] std::size_t lines_in_log() const;

  /// Puts a link library in place until the next reset.
  static void link(ScriptedLink::Script script);

  QuietShell shell;
  QuietSystem system;

 private:
  std::string folder_;
};

/// The input as the bytes of a file.
[[nodiscard]] inline std::string file_of(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

}  // namespace ecr::fuzz

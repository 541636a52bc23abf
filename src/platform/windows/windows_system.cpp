#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"
#include "platform/windows/windows_devices.h"
#include "platform/windows/windows_files.h"
#include "platform/windows/windows_library.h"
#include "platform/windows/windows_processes.h"
#include "platform/windows/windows_version.h"

namespace ecr {
namespace {

class WindowsSystem final : public System {
 public:
  Fault write_beside(const std::string& path, std::string_view bytes, FreshFile& fresh) override {
    return windows_write_beside(path, bytes, fresh);
  }
  Fault rename_over(const FreshFile& fresh) override { return windows_rename_over(fresh); }
  // The rename has done it.
  Fault flush_folder_of(const std::string&) override { return {}; }
  [[nodiscard]] bool paths_are_utf8() const override { return false; }
  Fault append_file(const std::string& path, std::string_view bytes) override {
    return windows_append_file(path, bytes);
  }

  std::vector<ProcessEntry> processes() override { return windows_processes(); }
  bool end_process(std::uint64_t id) override { return windows_end_process(id); }
  Fault start_minimised(const std::string& program, const std::vector<std::string>& arguments) override {
    return windows_start_minimised(program, arguments);
  }

  [[nodiscard]] bool driver_tools_apply() const override { return true; }
  std::optional<std::vector<std::string>> device_captions() override { return windows_device_captions(); }

  [[nodiscard]] std::string version_text() const override {
    return windows_version_text(windows_version(), windows_decimal_sign());
  }
  [[nodiscard]] int build_number() const override { return windows_version().build; }

  [[nodiscard]] std::string_view link_library_name() const override { return "tilbridge2.dll"; }
  std::unique_ptr<Library> load_library(const std::string& path, std::string& why) override {
    return windows_load_library(path, why);
  }
};

}  // namespace

System& host_system() {
  static WindowsSystem system;
  return system;
}

}  // namespace ecr

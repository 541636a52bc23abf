#pragma once
// A system layer for tests: processes, devices and driver tools are those that the test says; files and libraries are
// the host's own unless the test takes them over.

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/system.h"
#include "platform/platform.h"

namespace ecr::test {

class FakeSystem final : public System {
 public:
  FakeSystem() : before_{install_system(this)} {}
  ~FakeSystem() override { install_system(before_); }

  /// What runs, in the system's order. Ending a process takes it off, unless the system refuses.
  std::vector<ProcessEntry> running;
  bool refuses_to_end = false;
  std::vector<std::uint64_t> ended;
  /// Called each time the processes are looked at, before they are listed.
  std::function<void()> on_look;

  /// Each start: the program and its arguments, with a bar between them.
  std::vector<std::string> started;
  Fault start_fault;
  /// Called at each start.
  std::function<void()> on_start;

  bool tools_apply = true;
  std::optional<std::vector<std::string>> captions = std::vector<std::string>{};
  std::string version = "6,01";
  int build = 7601;

  std::function<Fault(const std::string&, std::string_view)> on_append;
  std::function<Fault(const std::string&, std::string_view)> on_replace;
  std::function<std::unique_ptr<Library>(const std::string&, std::string&)> on_load;

  Fault replace_file(const std::string& path, std::string_view bytes) override {
    return on_replace ? on_replace(path, bytes) : host_system().replace_file(path, bytes);
  }
  Fault append_file(const std::string& path, std::string_view bytes) override {
    return on_append ? on_append(path, bytes) : host_system().append_file(path, bytes);
  }
  std::vector<ProcessEntry> processes() override {
    if (on_look) on_look();
    return running;
  }
  bool end_process(std::uint64_t id) override {
    ended.push_back(id);
    if (refuses_to_end) return false;
    std::erase_if(running, [id](const ProcessEntry& process) { return process.id == id; });
    return true;
  }
  Fault start_minimised(const std::string& program, const std::vector<std::string>& arguments) override {
    std::string line = program;
    for (const std::string& argument : arguments) line += "|" + argument;
    started.push_back(line);
    if (on_start) on_start();
    return start_fault;
  }
  [[nodiscard]] bool driver_tools_apply() const override { return tools_apply; }
  std::optional<std::vector<std::string>> device_captions() override { return captions; }
  [[nodiscard]] std::string version_text() const override { return version; }
  [[nodiscard]] int build_number() const override { return build; }
  [[nodiscard]] std::string_view link_library_name() const override { return host_system().link_library_name(); }
  std::unique_ptr<Library> load_library(const std::string& path, std::string& why) override {
    return on_load ? on_load(path, why) : host_system().load_library(path, why);
  }

 private:
  System* before_;
};

}  // namespace ecr::test

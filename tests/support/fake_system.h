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
  /// The steps of each save that reaches the host, in order: "write", "rename" or "flush folder" and the file's name.
  std::vector<std::string> save_steps;
  /// Called before each such step is made, with its words; a fault that it answers stands for the step.
  std::function<Fault(const std::string&, const FreshFile&)> on_save_step;
  std::function<std::unique_ptr<Library>(const std::string&, std::string&)> on_load;

  Fault replace_file(const std::string& path, std::string_view bytes) override {
    return on_replace ? on_replace(path, bytes) : System::replace_file(path, bytes);
  }
  Fault write_beside(const std::string& path, std::string_view bytes, FreshFile& fresh) override {
    const Fault fault = begin_step("write ", path, fresh);
    return fault.stands() ? fault : host_system().write_beside(path, bytes, fresh);
  }
  Fault rename_over(const FreshFile& fresh) override {
    const Fault fault = begin_step("rename ", fresh.target, fresh);
    return fault.stands() ? fault : host_system().rename_over(fresh);
  }
  Fault flush_folder_of(const std::string& target) override {
    const Fault fault = begin_step("flush folder ", target, {});
    return fault.stands() ? fault : host_system().flush_folder_of(target);
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
  Fault begin_step(const std::string& words, const std::string& path, const FreshFile& fresh) {
    save_steps.push_back(words + path.substr(path.rfind('/') + 1));
    return on_save_step ? on_save_step(save_steps.back(), fresh) : Fault{};
  }

  System* before_;
};

}  // namespace ecr::test

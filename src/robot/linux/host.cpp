#include "robot/runner/host.h"

#include <algorithm>
#include <charconv>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <limits>
#include <string_view>
#include <sys/types.h>
#include <system_error>

namespace ecr::robot {

std::vector<HostProcess> running_processes() {
  namespace fs = std::filesystem;
  std::vector<HostProcess> processes;
  std::error_code error;
  for (const fs::directory_entry& entry : fs::directory_iterator{"/proc", error}) {
    const std::string name = entry.path().filename().string();
    std::int64_t id = 0;
    const auto [end, fault] = std::from_chars(name.data(), name.data() + name.size(), id);
    if (fault != std::errc{} || end != name.data() + name.size()) continue;
    std::error_code gone;
    std::string executable = fs::read_symlink(entry.path() / "exe", gone).string();
    if (gone) continue;
    // A program goes on running when its file is replaced or removed.
    constexpr std::string_view removed = " (deleted)";
    if (executable.ends_with(removed)) executable.resize(executable.size() - removed.size());
    processes.push_back({id, executable});
  }
  return processes;
}

void end_process(std::int64_t id) {
  // 0 and below would name whole groups of processes.
  if (id <= 0 || id > std::numeric_limits<pid_t>::max()) return;
  ::kill(static_cast<pid_t>(id), SIGKILL);
}

bool paths_ignore_case() {
  return false;
}

std::string executable_suffix() {
  return {};
}

std::string crash_text(int code) {
  const char* description = ::strsignal(code);
  return "signal " + std::to_string(code) +
         (description != nullptr ? std::string{" ("} + description + ")" : std::string{});
}

}  // namespace ecr::robot

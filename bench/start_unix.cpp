// Starts the program and a bare window in turn, each up to its first paint, and prints the medians: the time until the
// window is on the screen, the processor time, the most memory that was in use. The program starts twice in each fresh
// installation, whose emulated register answers at once: the very first start also makes folders and files and waits
// for the disk.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include "installation.h"

extern char** environ;

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

struct Start {
  double wall_ms = 0;
  double processor_ms = 0;
  double memory_mib = 0;
};

/// A folder of this user's own, which the toolkit asks for.
class RuntimeFolder {
 public:
  RuntimeFolder() : path_{(fs::temp_directory_path() / "vermanto-runtime-XXXXXX").string()} {
    if (::mkdtemp(path_.data()) == nullptr) throw std::runtime_error{"no folder for the measurement could be made"};
    ::setenv("XDG_RUNTIME_DIR", path_.c_str(), 1);
  }
  RuntimeFolder(const RuntimeFolder&) = delete;
  RuntimeFolder& operator=(const RuntimeFolder&) = delete;
  ~RuntimeFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }

 private:
  std::string path_;
};

double ms(const timeval& time) {
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

/// Runs the program until it has ended, and looks whether the window that it painted is the one meant.
Start start(const std::string& program, std::string_view title) {
  int ends[2];
  if (::pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error{"no pipe"};
  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  ::posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
  std::string name = program;
  char* const arguments[] = {name.data(), nullptr};

  const Clock::time_point begin = Clock::now();
  pid_t child = 0;
  const int error = ::posix_spawn(&child, program.c_str(), &actions, nullptr, arguments, environ);
  ::posix_spawn_file_actions_destroy(&actions);
  ::close(ends[1]);
  if (error != 0) throw std::runtime_error{"not started: " + program};

  // The line comes when the window is painted.
  std::string said;
  Clock::time_point painted = begin;
  char buffer[512];
  for (ssize_t length = 0; (length = ::read(ends[0], buffer, sizeof buffer)) > 0;) {
    if (said.empty()) painted = Clock::now();
    said.append(buffer, static_cast<std::size_t>(length));
  }
  ::close(ends[0]);
  int status = 0;
  rusage used{};
  ::wait4(child, &status, 0, &used);
  if (status != 0 || !said.starts_with(title)) throw std::runtime_error{program + " painted another window: " + said};
  return {std::chrono::duration<double, std::milli>(painted - begin).count(), ms(used.ru_utime) + ms(used.ru_stime),
          static_cast<double>(used.ru_maxrss) / 1024};
}

/// The very first start in a fresh installation, and the next one.
std::pair<Start, Start> start_program_twice() {
  const ecr::bench::InstallationCopy installation;
  const fs::path program = fs::path{installation.folder()} / "bench_start_program";
  fs::copy_file(START_PROGRAM, program);
  constexpr std::string_view title = "Vermanto ECR Programming Utility";
  const Start very_first = start(program.string(), title);
  return {very_first, start(program.string(), title)};
}

Start start_bare_window() {
  return start(BARE_WINDOW, "A bare window");
}

double median(const std::vector<Start>& starts, double Start::*figure) {
  std::vector<double> values;
  for (const Start& one : starts) values.push_back(one.*figure);
  std::sort(values.begin(), values.end());
  return (values[(values.size() - 1) / 2] + values[values.size() / 2]) / 2;
}

}  // namespace

int main(int argc, char** argv) try {
  const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 25;
  ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
  // What the toolkit warns of is that this display shows nothing.
  ::setenv("QT_LOGGING_RULES", "default.warning=false", 0);
  const RuntimeFolder runtime;

  // The first round only brings the files into memory.
  start_program_twice();
  start_bare_window();
  std::vector<Start> very_first;
  std::vector<Start> later;
  std::vector<Start> windows;
  for (int round = 0; round < rounds; ++round) {
    const auto [first, next] = start_program_twice();
    very_first.push_back(first);
    later.push_back(next);
    windows.push_back(start_bare_window());
  }

  std::printf("medians of %d rounds    very first  ratio     later  ratio   bare window\n", rounds);
  const auto line = [&](const char* what, double Start::*figure) {
    const double first = median(very_first, figure);
    const double next = median(later, figure);
    const double window = median(windows, figure);
    std::printf("%-20s %12.1f %6.2f %9.1f %6.2f %13.1f\n", what, first, first / window, next, next / window, window);
  };
  line("first paint, ms", &Start::wall_ms);
  line("processor time, ms", &Start::processor_ms);
  line("peak memory, MiB", &Start::memory_mib);
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}

#pragma once
// What the robot needs of the system and the standard library does not have: the processes that run on it.
// Implemented in linux/ and windows/.

#include <cstdint>
#include <string>
#include <vector>

namespace ecr::robot {

struct HostProcess {
  std::int64_t id = 0;
  std::string executable;  ///< full path, UTF-8
};

/// All processes whose executable this user may know. One that has ended and only waits to be reaped is none.
[[nodiscard]] std::vector<HostProcess> running_processes();

/// Ends it at once. Nothing happens if it is gone already.
void end_process(std::int64_t id);

/// Whether two paths that differ in case alone name the same file here.
[[nodiscard]] bool paths_ignore_case();

/// What is put behind the name of an executable: ".exe" or nothing.
[[nodiscard]] std::string executable_suffix();

/// How the system calls the end of a crashed process: "signal 11".
[[nodiscard]] std::string crash_text(int code);

}  // namespace ecr::robot

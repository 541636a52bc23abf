#pragma once
// Listing, ending and starting processes.

#include <cstdint>
#include <string>
#include <vector>

#include "core/fault.h"
#include "core/system.h"

namespace ecr {

/// See System::processes. Empty when the system gives no snapshot.
[[nodiscard]] std::vector<ProcessEntry> windows_processes();

/// See System::end_process. The process ends with the exit code 0.
bool windows_end_process(std::uint64_t id);

/// See System::start_minimised. The program's first window is minimised and does not take the focus. A program that
/// asks for an administrator's rights is permission_denied.
[[nodiscard]] Fault windows_start_minimised(const std::string& program, const std::vector<std::string>& arguments);

}  // namespace ecr

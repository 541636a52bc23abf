#pragma once
// The run log: one file, PathLog + "memo_log.txt", a line for each event, "dd-mm-yy hh:mm:ss text". It is only ever
// appended to, never rotated or cut.

#include <string_view>

#include "core/fault.h"

namespace ecr {

/// Appends one stamped line. Never fails towards the caller. While another process holds the log for itself the call
/// waits, without a limit.
void memo_log(std::string_view text);

/// The line that a routine leaves when it ends with a fault: its prefix and the fault's description.
void log_fault(std::string_view prefix, const Fault& fault);

/// The low-level append of one line. A fault other than a file that is held or barred is itself logged, once.
void scrivi_file(std::string_view file_name, std::string_view line);

/// Runs `body`; a fault that it raises is logged behind `prefix`. Answers whether it went through.
template <typename Body>
bool guarded(std::string_view prefix, Body&& body) {
  try {
    body();
    return true;
  } catch (const FaultError& error) {
    log_fault(prefix, error.fault());
    return false;
  }
}

}  // namespace ecr

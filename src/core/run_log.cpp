#include "core/run_log.h"

#include <chrono>
#include <string>
#include <thread>

#include "core/clock.h"
#include "core/files.h"
#include "core/global.h"
#include "core/system.h"

namespace ecr {
namespace {

#ifdef _WIN32
constexpr std::string_view line_end = "\r\n";
#else
constexpr std::string_view line_end = "\n";
#endif

bool held_or_barred(const Fault& fault) {
  return fault.code == FaultCode::permission_denied || fault.code == FaultCode::path_access;
}

// A log that cannot be written must not go on forever telling itself so.
bool telling_a_failure = false;

}  // namespace

void memo_log(std::string_view text) {
  const Moment moment = now();
  std::string line = date_text(moment);
  line.append(" ").append(time_text(moment)).append(" ").append(text);
  scrivi_file(Global::PathLog + "memo_log" + ".txt", line);
}

void log_fault(std::string_view prefix, const Fault& fault) {
  std::string line{prefix};
  line += fault.description();
  memo_log(line);
}

void scrivi_file(std::string_view file_name, std::string_view line) {
  std::string bytes{line};
  bytes += line_end;
  Fault fault = system_layer().append_file(host_path(file_name), bytes);
  while (held_or_barred(fault)) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    fault = system_layer().append_file(host_path(file_name), bytes);
  }
  if (fault.stands() && !telling_a_failure) {
    telling_a_failure = true;
    std::string failure = "NELLA SCRITTURA FILE:--->  " + std::to_string(fault.number()) + " ";
    failure += fault.description();
    memo_log(failure);
    telling_a_failure = false;
  }
}

}  // namespace ecr

#include "link/process.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "core/clock.h"
#include "core/global.h"
#include "core/run_log.h"
#include "core/shell.h"
#include "core/system.h"
#include "core/text.h"

namespace ecr {
namespace {

std::optional<ProcessEntry> first_process(std::string_view name) {
  const std::vector<ProcessEntry> processes = system_layer().processes();
  const std::string wanted = lower_ascii(name);
  const auto found = std::find_if(processes.begin(), processes.end(), [&wanted](const ProcessEntry& process) {
    return lower_ascii(process.executable).ends_with(wanted);
  });
  return found == processes.end() ? std::nullopt : std::optional{*found};
}

}  // namespace

bool Process_Exists(std::string_view name) {
  return first_process(name).has_value();
}

bool Process_Kill(std::string_view name) {
  const std::optional<ProcessEntry> process = first_process(name);
  return process && system_layer().end_process(process->id);
}

void Process_Wait(std::string_view name) {
  while (Process_Exists(name)) {
    shell().let_screens_work();
    if (Global::DebugMode) memo_log("attesa");
  }
}

void Aspetta(double seconds, Work what) {
  const double start = now().second_of_day;
  shell().wait_until({what}, seconds, [start, seconds] {
    const double elapsed = now().second_of_day - start;
    return elapsed < 0 || elapsed >= seconds;
  });
}

}  // namespace ecr

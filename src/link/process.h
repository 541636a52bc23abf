#pragma once
// Waiting, and the processes of the exchange tool.
//
// A process is named by the end of its executable's file name, whatever its case: "regwire.exe" also names a process
// of "myRegWire.exe".

#include <string_view>

#include "core/work.h"

namespace ecr {

/// The executable of the exchange tool, which a timed-out call leaves running.
inline constexpr std::string_view exchange_tool = "regwire.exe";

[[nodiscard]] bool Process_Exists(std::string_view name);

/// Ends the first process of that name. Answers whether one was ended.
bool Process_Kill(std::string_view name);

/// Returns when no such process runs, however long that takes; the screens work meanwhile.
void Process_Wait(std::string_view name);

/// Lets `seconds` pass while the screens stay alive; midnight ends the wait. `what` tells the person what is waited
/// for.
void Aspetta(double seconds, Work what = Work::unnamed);

}  // namespace ecr

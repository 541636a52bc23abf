#pragma once
// Fetching one report file from the register into PathDati.

#include <cstdint>
#include <string>

namespace ecr {

/// The lower limit of report 21, as the report screen's field has it; digits, empty counts as 0.
extern std::string Txt_MPS_Min;

/// Fetches report `number`, 3 to 22; its file is named by ReportName. A report of that name that lies in PathDati goes
/// to PathReportDati first, over the one there. Answers whether the register delivered; a failure reaches the log only,
/// and with `skipLog` not even that.
bool Receive_ReportEcr(std::uint8_t number, bool skipLog = false);

}  // namespace ecr

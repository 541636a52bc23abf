#pragma once
// Fetching one report file from the register into PathDati.

#include <cstdint>

namespace ecr {

/// Fetches the report of a row of link/report_rows.h. A report of that name that lies in PathDati goes to
/// PathReportDati first, over the one there. `first_record` is where the range of a report begins whose first record is
/// typed. Returns whether the register delivered; a failure reaches the log only, and with `skipLog` not even that. Does
/// nothing for a number that is no report's.
bool Receive_ReportEcr(std::uint8_t number, std::int32_t first_record = 0, bool skipLog = false);

}  // namespace ecr

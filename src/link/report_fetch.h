#pragma once
// Fetching one report file from the register into PathDati.

#include <cstdint>

namespace ecr {

/// What differs between two fetches of one report.
struct ReportFetch {
  std::int32_t first_record = 0;  ///< where the range begins of a report whose first record is typed
  bool skip_log = false;          ///< a failure stays out of the log
};

/// Fetches the report of a row of link/report_rows.h. A report of that name that lies in PathDati goes to
/// PathReportDati first, over the one there. Returns whether the register delivered; a failure reaches the log only.
/// Does nothing for a number that is no report's.
bool Receive_ReportEcr(std::uint8_t number, const ReportFetch& fetch = {});

}  // namespace ecr

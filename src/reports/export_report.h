#pragma once
// From a report file of the register to a text file for a spreadsheet.

#include <cstdint>
#include <span>
#include <string>

#include "core/fault.h"
#include "reports/layout.h"

namespace ecr {

/// What has become of the CSV file of a report.
struct CsvOutcome {
  std::string file;  ///< its name in PathReport; empty where there was no report
  Fault fault;       ///< why it could not be written, or not to its end
};

/// Reads the first file in PathDati whose name begins with that of the report and appends a header and one line for
/// each record to the file of the same name in PathReport, with "csv" for its last three characters. Lines end with CR
/// LF, columns are parted by ';' and never quoted, texts are in the fixed code page.
///
/// No matching file: a line in the log, and no file is made. A file that is shorter than its layout reads as if zeros
/// followed. The release, which has no layout, and report 8 leave an empty file. At the first fault in writing the CSV
/// file it stays as it is. Nothing is shown and nothing thrown.
[[nodiscard]] CsvOutcome export_ReportEcr(std::uint8_t number);

/// Appends one record of a report as a line of its CSV file, with its end. `record` has the layout's record size.
void append_report_line(std::string& out, const ReportLayout& layout, std::span<const std::uint8_t> record);

}  // namespace ecr

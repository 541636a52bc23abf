#pragma once
// From a report file of the register to a text file for a spreadsheet.

#include <cstdint>
#include <span>
#include <string>

#include "reports/layout.h"

namespace ecr {

/// Reads the first file in PathDati whose name begins with that of the report and appends a header and one line for
/// each record to the file of the same name in PathReport, with "csv" for its last three characters. Lines end with CR
/// LF, columns are parted by ';' and never quoted, texts are in the fixed code page.
///
/// No matching file: a line in the log, and no file is made. A file that is shorter than its layout reads as if zeros
/// followed. The release, which has no layout, and report 8 leave an empty file. Nothing is shown and nothing thrown.
void export_ReportEcr(std::uint8_t number);

/// Appends one record of a report as a line of its CSV file, with its end. `record` has the layout's record size.
void append_report_line(std::string& out, const ReportLayout& layout, std::span<const std::uint8_t> record);

}  // namespace ecr

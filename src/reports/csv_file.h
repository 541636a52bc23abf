#pragma once
// The CSV files of PathReport, as they are read again to be looked at.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ecr {

/// One export: a header and the lines behind it, cut into their cells.
struct CsvExport {
  std::vector<std::string> heading;
  std::vector<std::vector<std::string>> rows;
};

/// The exports of a file in its order. A line that reads as the first one begins another export; cells are what stands
/// between separators, nothing is quoted. `whole_lines` keeps each line as one cell, for texts with separators inside.
[[nodiscard]] std::vector<CsvExport> read_csv(std::string_view bytes, bool whole_lines);

/// The report that a file of PathReport holds, by its name: the one with the longest report name in front; 0 for none.
[[nodiscard]] std::uint8_t report_of_file(std::string_view file_name);

}  // namespace ecr

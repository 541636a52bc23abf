#include "reports/csv_file.h"

#include "core/text.h"
#include "link/report_rows.h"

namespace ecr {
namespace {

std::vector<std::string> cells_of(std::string_view line, bool whole_line) {
  std::vector<std::string> cells;
  if (whole_line) {
    cells.emplace_back(line);
    return cells;
  }
  for (std::size_t place = 0; place <= line.size();) {
    const std::size_t end = std::min(line.find(';', place), line.size());
    cells.emplace_back(line.substr(place, end - place));
    place = end + 1;
  }
  return cells;
}

}  // namespace

std::vector<CsvExport> read_csv(std::string_view bytes, bool whole_lines) {
  // A line ends with CR LF and nothing else: a text may hold either of them alone.
  constexpr std::string_view line_end = "\r\n";
  std::vector<CsvExport> exports;
  std::string_view first;
  for (std::size_t place = 0; place < bytes.size();) {
    const std::size_t end = std::min(bytes.find(line_end, place), bytes.size());
    const std::string_view line = bytes.substr(place, end - place);
    if (place == 0) first = line;
    if (line == first) {
      exports.push_back({cells_of(line, whole_lines), {}});
    } else {
      exports.back().rows.push_back(cells_of(line, whole_lines));
    }
    place = end + line_end.size();
  }
  return exports;
}

std::uint8_t report_of_file(std::string_view file_name) {
  const std::string name = lower_ascii(file_name);
  const Report* found = nullptr;
  for (const Report& report : exported_reports) {
    if (!name.starts_with(lower_ascii(report.name))) continue;
    if (found == nullptr || report.name.size() > found->name.size()) found = &report;
  }
  return found == nullptr ? std::uint8_t{0} : found->number;
}

}  // namespace ecr

// Every report layout on any bytes: the first byte chooses the report, the second the decimals, the others are the
// file.

#include <algorithm>
#include <string>

#include "core/amount_text.h"
#include "core/files.h"
#include "core/global.h"
#include "link/report_rows.h"
#include "reports/export_report.h"
#include "support/installation.h"

namespace ecr::fuzz::reports_target {
namespace {

std::size_t count_of(std::string_view text, char c) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), c));
}

/// How many lines stand behind the header: each is ended by CR LF, and only texts can hold either of them inside.
void check_lines(const ReportLayout& layout, const std::string& csv) {
  const bool has_text = std::any_of(layout.columns.begin(), layout.columns.end(),
                                    [](const ReportColumn& column) { return column.kind >= ColumnKind::text; });
  if (has_text) return;
  const std::size_t lines = count_of(csv, '\n');
  require(lines == layout.records + 1, "a fixed number of lines, whatever the file holds");
  require(count_of(csv.substr(0, csv.find('\n')), ';') == count_of(report_header(layout), ';'), "the header's columns");
  require(count_of(csv, ';') == count_of(report_header(layout), ';') + layout.records * (layout.columns.size() - 1),
          "a value for each column of each line");
}

}  // namespace

FUZZ_TARGET(reports) {
  static Installation installation;
  if (size < 2) return 0;
  installation.reset();
  const std::uint8_t number = static_cast<std::uint8_t>(data[0] % 26);
  // Decimals from 29 on are all alike: no amount has so many.
  Global::DecimalPoint = static_cast<std::uint8_t>(data[1] % 30);
  const std::string file = file_of(data + 2, size - 2);
  const Report* report = report_numbered(number);
  const std::string name{report != nullptr ? report->name : std::string_view{"OTHER"}};
  installation.write("Dati/" + name + ".bin", file);
  static_cast<void>(export_ReportEcr(number));
  const std::string csv_name = "Report/" + name + ".csv";
  const ReportLayout* layout = report_layout(number);
  require(installation.exists(csv_name) == (report != nullptr), "a file that matched leaves one");
  if (report != nullptr) {
    const std::string csv = installation.bytes(csv_name);
    if (layout == nullptr || layout->columns.empty()) {
      require(csv.empty(), "a report without a layout leaves an empty file");
    } else {
      require(csv.starts_with(report_header(*layout) + "\r\n") && csv.ends_with("\r\n"), "a header and whole lines");
      check_lines(*layout, csv);
    }
    static_cast<void>(export_ReportEcr(number));
    require(installation.bytes(csv_name) == csv + csv, "a second export appends the same");
    installation.remove(csv_name);
  }
  require(installation.bytes("Dati/" + name + ".bin") == file, "the report file stays");
  installation.remove("Dati/" + name + ".bin");
  return 0;
}

}  // namespace ecr::fuzz::reports_target

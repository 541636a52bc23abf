// A CSV file of the report folder holds any bytes: the first byte chooses the report that its name promises.

#include <algorithm>
#include <cmath>

#include "link/report_rows.h"
#include "reports/charts.h"
#include "reports/csv_file.h"
#include "reports/receipts.h"
#include "reports/report_table.h"
#include "support/installation.h"

namespace ecr::fuzz::report_csv_target {
namespace {

void look_at_table(const ReportTable& table) {
  for (const auto& row : table.rows) require(row.size() == table.columns.size(), "a cell for every column");
  for (std::size_t column = 0; column < table.columns.size(); ++column) {
    for (const bool descending : {false, true}) {
      const auto rows = wished_rows(table, {"1", true, static_cast<int>(column), descending});
      require(std::all_of(rows.begin(), rows.end(), [&](std::size_t row) { return row < table.rows.size(); }),
              "rows of the table");
      static_cast<void>(column_sum(table, column, rows));
    }
  }
}

void look_at_receipts(const CsvExport& journal) {
  std::size_t behind = 0;
  for (const Receipt& receipt : receipts_of(journal)) {
    require(receipt.first >= behind && receipt.first < receipt.end && receipt.end <= journal.rows.size(),
            "receipts follow one another");
    behind = receipt.end;
  }
  require(receipts_with(journal, "").size() == receipts_of(journal).size(), "an empty text stands everywhere");
}

}  // namespace

FUZZ_TARGET(report_csv) {
  static Installation installation;
  if (size < 1) return 0;
  installation.reset();
  const auto number = static_cast<std::uint8_t>(data[0] % 23);
  const std::string file = file_of(data + 1, size - 1);
  for (const CsvExport& one : read_csv(file, is_journal(number))) {
    require(!one.heading.empty(), "a heading");
    look_at_table(report_table(number, one));
    for (const Chart& chart : report_charts(number, one)) {
      require(
          std::all_of(chart.points.begin(), chart.points.end(), [](const auto& p) { return std::isfinite(p.value); }),
          "numbers that can be drawn");
    }
    if (is_journal(number)) look_at_receipts(one);
  }
  require(installation.lines_in_log() == 0, "nothing is logged");
  return 0;
}

}  // namespace ecr::fuzz::report_csv_target

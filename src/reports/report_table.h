#pragma once
// One export as a person looks at it: a table that can be sorted, filtered and added up.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "reports/csv_file.h"

namespace ecr {

struct ReportTable {
  struct Column {
    std::string heading;
    bool is_number = false;  ///< stands at the right and is sorted by its worth
    bool is_summed = false;
    bool is_figure = false;  ///< a row with nothing but zeros in such columns says nothing
  };
  std::vector<Column> columns;
  std::vector<std::vector<std::string>> rows;  ///< each with a cell for every column
};

/// The table of an export of report `number`, 0 for an unknown one. Numbers get their names beside them where the
/// programming has some, hours their time. Records of totals stand upright, a line for each total and a column for each
/// record: nobody reads eighty columns.
[[nodiscard]] ReportTable report_table(std::uint8_t number, const CsvExport& exported);

/// Below zero where `left` is worth less than `right`, above where it is worth more. A text that is no number is worth
/// less than any.
[[nodiscard]] int compare_numbers(std::string_view left, std::string_view right);

/// Whether a text is a number that is not zero.
[[nodiscard]] bool is_some_number(std::string_view text);

/// The rows that are to be seen, in their order.
struct TableWishes {
  std::string filter;              ///< in any cell, whatever its case
  bool only_with_figures = false;  ///< rows that say nothing are left out
  int sorted_by = -1;              ///< a column; -1 leaves the order of the file
  bool descending = false;
};
[[nodiscard]] std::vector<std::size_t> wished_rows(const ReportTable& table, const TableWishes& wishes);

/// The sum of a column over these rows, with as many decimals as its cells have at the most. Cells that are no numbers
/// count as nothing; a sum beyond all digits reads "?".
[[nodiscard]] std::string column_sum(const ReportTable& table, std::size_t column,
                                     const std::vector<std::size_t>& rows);

}  // namespace ecr

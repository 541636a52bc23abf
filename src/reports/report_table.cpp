#include "reports/report_table.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <numeric>

#include "core/decimal.h"
#include "core/fault.h"
#include "core/text.h"
#include "lang/own_texts.h"
#include "link/report_rows.h"
#include "reports/layout.h"
#include "reports/report_names.h"

namespace ecr {
namespace {

// From so many columns on a record stands upright.
constexpr std::size_t upright_from = 20;

/// The separators of a name stand in the file as they are: what is too much belongs to the name, behind the code.
void join_name(std::vector<std::string>& row, std::size_t columns) {
  constexpr std::size_t name = 1;
  if (row.size() <= columns) return;
  const std::size_t too_much = row.size() - columns;
  for (std::size_t i = 1; i <= too_much; ++i) row[name] += ";" + row[name + i];
  const auto behind_name = row.begin() + name + 1;
  row.erase(behind_name, behind_name + static_cast<std::ptrdiff_t>(too_much));
}

/// Whether the file is what the report's name promises.
const ReportLayout* layout_of(std::uint8_t number, const CsvExport& exported) {
  const ReportLayout* layout = report_layout(number);
  if (layout == nullptr) return nullptr;
  std::string header;
  for (const std::string& name : exported.heading) header += (header.empty() ? "" : ";") + name;
  return header == report_header(*layout) ? layout : nullptr;
}

/// With as many decimals as the numbers have at the most; what is no number counts as nothing.
class Sum {
 public:
  void add(const std::string& text) {
    const std::optional<Decimal> number = Decimal::parse(text);
    if (!number) return;
    if (const std::size_t point = text.find('.'); point != std::string::npos) {
      decimals_ = std::max(decimals_, text.size() - point - 1);
    }
    if (!number->is_zero()) sum_ = sum_ + *number;
  }
  [[nodiscard]] std::string text() const { return sum_.text(static_cast<int>(decimals_)); }

 private:
  Decimal sum_;
  std::size_t decimals_ = 0;
};

constexpr const char* beyond_all_digits = "?";

std::string sum_of(const std::vector<std::vector<std::string>>& rows, std::size_t column) {
  try {
    Sum sum;
    for (const auto& row : rows) {
      if (column < row.size()) sum.add(row[column]);
    }
    return sum.text();
  } catch (const FaultError&) {
    return beyond_all_digits;
  }
}

ReportTable upright(std::uint8_t number, const CsvExport& exported) {
  const std::size_t first = report_kind(number) == ReportKind::clerks ? 1 : 0;
  ReportTable table;
  const bool has_sum = exported.rows.size() > 1;
  table.columns.push_back({own_bytes(OwnText::total)});
  if (has_sum) table.columns.push_back({own_bytes(OwnText::sum), true, false, true});
  for (std::size_t i = 0; i < exported.rows.size(); ++i) {
    const std::string& head = exported.rows[i][0];
    table.columns.push_back({first == 1                  ? own_bytes(OwnText::clerk_number, head)
                             : exported.rows.size() == 1 ? own_bytes(OwnText::value)
                                                         : std::to_string(i + 1),
                             true, false, true});
  }
  for (std::size_t i = first; i < exported.heading.size(); ++i) {
    std::vector<std::string> row{exported.heading[i]};
    if (has_sum) row.push_back(sum_of(exported.rows, i));
    for (const auto& record : exported.rows) row.push_back(i < record.size() ? record[i] : std::string{});
    table.rows.push_back(std::move(row));
  }
  return table;
}

/// Puts a column of looked-up texts behind `place` columns.
template <typename TextOf>
void insert_column(ReportTable& table, std::size_t place, OwnText heading, const TextOf& text_of) {
  const auto at = [place](auto& list) { return list.begin() + static_cast<std::ptrdiff_t>(place); };
  table.columns.insert(at(table.columns), {own_bytes(heading)});
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    table.rows[i].insert(at(table.rows[i]), text_of(i, table.rows[i]));
  }
}

std::string hour_text(std::size_t hour) {
  return (hour < 10 ? "0" : "") + std::to_string(hour) + ":00";
}

struct NumberParts {
  bool valid = false;
  bool negative = false;
  std::string_view whole;     ///< without zeros in front
  std::string_view fraction;  ///< without zeros at the end
};

NumberParts parts_of(std::string_view text) {
  NumberParts parts;
  if (!text.empty() && text.front() == '-') {
    parts.negative = true;
    text.remove_prefix(1);
  }
  const std::size_t point = std::min(text.find('.'), text.size());
  parts.whole = text.substr(0, point);
  if (point < text.size()) parts.fraction = text.substr(point + 1);
  const auto digits = [](std::string_view part) {
    return std::all_of(part.begin(), part.end(), [](char c) { return c >= '0' && c <= '9'; });
  };
  parts.valid = !parts.whole.empty() && digits(parts.whole) && digits(parts.fraction);
  parts.whole.remove_prefix(std::min(parts.whole.find_first_not_of('0'), parts.whole.size()));
  parts.fraction = parts.fraction.substr(0, parts.fraction.find_last_not_of('0') + 1);
  if (parts.whole.empty() && parts.fraction.empty()) parts.negative = false;
  return parts;
}

int sign_of(int comparison) {
  return comparison < 0 ? -1 : comparison > 0 ? 1 : 0;
}

}  // namespace

ReportTable report_table(std::uint8_t number, const CsvExport& exported) {
  const ReportLayout* layout = layout_of(number, exported);
  const ReportKind kind = report_kind(number);
  const bool is_stock = kind == ReportKind::stock;
  if (layout != nullptr && layout->columns.size() >= upright_from) return upright(number, exported);
  ReportTable table;
  for (std::size_t i = 0; i < exported.heading.size(); ++i) {
    ReportTable::Column column{exported.heading[i]};
    if (layout != nullptr && i < layout->columns.size()) {
      const ColumnKind form = layout->columns[i].kind;
      column.is_number = form < ColumnKind::text;
      column.is_summed = form == ColumnKind::value || form == ColumnKind::int32 ||
                         (form == ColumnKind::count && layout->columns[i].width < 8);
      // An item without stock is worth seeing, a row without an item is not.
      column.is_figure = is_stock ? form == ColumnKind::count : column.is_summed;
    }
    table.columns.push_back(std::move(column));
  }
  table.rows = exported.rows;
  for (auto& row : table.rows) {
    if (layout != nullptr && is_stock) join_name(row, table.columns.size());
    row.resize(table.columns.size());
  }
  if (layout == nullptr) return table;
  if (kind == ReportKind::departments || kind == ReportKind::department_group) {
    insert_column(table, 2, OwnText::department, [](std::size_t, const auto& row) {
      return department_name(static_cast<int>(leading_number(row[1])));
    });
  } else if (kind == ReportKind::items) {
    const auto names = item_names();
    insert_column(table, 1, OwnText::item, [&names](std::size_t, const auto& row) {
      const auto found = names.find(row[0]);
      return found == names.end() ? std::string{} : found->second;
    });
  } else if (kind == ReportKind::hours) {
    insert_column(table, 0, OwnText::hour, [](std::size_t i, const auto&) { return hour_text(i); });
  }
  return table;
}

int compare_numbers(std::string_view left, std::string_view right) {
  const NumberParts l = parts_of(left);
  const NumberParts r = parts_of(right);
  if (!l.valid || !r.valid) return l.valid ? 1 : r.valid ? -1 : sign_of(left.compare(right));
  if (l.negative != r.negative) return l.negative ? -1 : 1;
  int larger =
      l.whole.size() != r.whole.size() ? (l.whole.size() < r.whole.size() ? -1 : 1) : sign_of(l.whole.compare(r.whole));
  if (larger == 0) larger = sign_of(l.fraction.compare(r.fraction));
  return l.negative ? -larger : larger;
}

bool is_some_number(std::string_view text) {
  const NumberParts parts = parts_of(text);
  return parts.valid && !(parts.whole.empty() && parts.fraction.empty());
}

std::vector<std::size_t> wished_rows(const ReportTable& table, const TableWishes& wishes) {
  const std::string wanted = lower_ascii(wishes.filter);
  const auto has_text = [&](const std::vector<std::string>& row) {
    return wanted.empty() || std::any_of(row.begin(), row.end(), [&](const std::string& cell) {
             return lower_ascii(cell).find(wanted) != std::string::npos;
           });
  };
  const auto has_figures = [&](const std::vector<std::string>& row) {
    if (!wishes.only_with_figures) return true;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
      if (table.columns[i].is_figure && is_some_number(row[i])) return true;
    }
    return std::none_of(table.columns.begin(), table.columns.end(),
                        [](const auto& column) { return column.is_figure; });
  };
  std::vector<std::size_t> rows;
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    if (has_text(table.rows[i]) && has_figures(table.rows[i])) rows.push_back(i);
  }
  if (wishes.sorted_by < 0 || static_cast<std::size_t>(wishes.sorted_by) >= table.columns.size()) return rows;
  const auto column = static_cast<std::size_t>(wishes.sorted_by);
  const bool by_worth = table.columns[column].is_number;
  std::stable_sort(rows.begin(), rows.end(), [&](std::size_t left, std::size_t right) {
    const std::string& l = table.rows[wishes.descending ? right : left][column];
    const std::string& r = table.rows[wishes.descending ? left : right][column];
    return by_worth ? compare_numbers(l, r) < 0 : lower_ascii(l) < lower_ascii(r);
  });
  return rows;
}

std::string column_sum(const ReportTable& table, std::size_t column, const std::vector<std::size_t>& rows) {
  try {
    Sum sum;
    for (const std::size_t row : rows) sum.add(table.rows[row][column]);
    return sum.text();
  } catch (const FaultError&) {
    return beyond_all_digits;
  }
}

}  // namespace ecr

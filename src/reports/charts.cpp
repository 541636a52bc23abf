#include "reports/charts.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "core/decimal.h"
#include "core/fault.h"
#include "reports/report_names.h"
#include "reports/report_table.h"

namespace ecr {
namespace {

struct Named {
  const char* column;
  const char* name;
};

// clang-format off
constexpr Named media[] = {
    {"CashTotal", "Cash"}, {"CheckTotal", "Check"}, {"ChargeTotal", "Charge"}, {"Credit1Total", "Credit 1"},
    {"Credit2Total", "Credit 2"}, {"Credit3Total", "Credit 3"}, {"Credit4Total", "Credit 4"},
    {"Credit5Total", "Credit 5"}, {"Credit6Total", "Credit 6"}};
constexpr Named rates[] = {
    {"Tax1Amount", "VAT 1"}, {"Tax2Amount", "VAT 2"}, {"Tax3Amount", "VAT 3"}, {"Tax4Amount", "VAT 4"}};
constexpr Named drawer[] = {
    {"CashInDrawerTotal", "Cash"}, {"CheckInDrawerTotal", "Check"}, {"ChergeInDrawerTotal", "Charge"},
    {"Credit1InDrawerTotal", "Credit 1"}, {"Credit2InDrawerTotal", "Credit 2"}};
// clang-format on

double worth(const std::string& text) {
  // A file may say anything; only plain numbers are drawn.
  double value = 0;
  if (!is_some_number(text)) return value;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return value;
}

Chart::Point point(std::string name, const std::string& text) {
  return {std::move(name), worth(text), text};
}

/// The cell under a heading; "0" where there is none.
std::string cell(const CsvExport& exported, const std::vector<std::string>& row, std::string_view heading) {
  const auto found = std::find(exported.heading.begin(), exported.heading.end(), heading);
  const auto place = static_cast<std::size_t>(found - exported.heading.begin());
  return place < row.size() ? row[place] : "0";
}

template <std::size_t N>
Chart totals(const char* title, const Named (&names)[N], const CsvExport& exported) {
  Chart chart{title, Chart::Kind::bars, {}};
  for (const Named& named : names) {
    const std::string text = cell(exported, exported.rows.front(), named.column);
    if (is_some_number(text)) chart.points.push_back(point(named.name, text));
  }
  return chart;
}

void sort_by_value(Chart& chart) {
  std::stable_sort(chart.points.begin(), chart.points.end(),
                   [](const auto& left, const auto& right) { return left.value > right.value; });
}

Chart hours(const char* title, Chart::Kind kind, const CsvExport& exported, std::string_view heading) {
  Chart chart{title, kind, {}};
  for (std::size_t i = 0; i < exported.rows.size(); ++i) {
    chart.points.push_back(point(std::to_string(i), cell(exported, exported.rows[i], heading)));
  }
  return chart;
}

Chart departments(const CsvExport& exported) {
  Chart chart{"Sales by department", Chart::Kind::bars, {}};
  for (const auto& row : exported.rows) {
    const std::string total = cell(exported, row, "RegSalesTotal");
    if (!is_some_number(total)) continue;
    const std::string number = cell(exported, row, "DeptNumber");
    const std::string name = department_name(static_cast<int>(leading_number(number)));
    chart.points.push_back(point(name.empty() ? "Department " + number : name, total));
  }
  sort_by_value(chart);
  if (chart.points.size() > most_bars) chart.points.resize(most_bars);
  return chart;
}

Chart clerks(const CsvExport& exported) {
  Chart chart{"Net sales by clerk", Chart::Kind::bars, {}};
  for (const auto& row : exported.rows) {
    const std::string total = cell(exported, row, "NetSalesTotal");
    if (is_some_number(total)) chart.points.push_back(point("Clerk " + row.front(), total));
  }
  return chart;
}

std::string sum_text(const std::string& left, const std::string& right) {
  const auto decimals = [](const std::string& text) {
    const std::size_t place = text.find('.');
    return place == std::string::npos ? 0 : static_cast<int>(text.size() - place - 1);
  };
  try {
    const auto l = Decimal::parse(left);
    const auto r = Decimal::parse(right);
    if (!l || !r) return l ? left : right;
    return (*l + *r).text(std::max(decimals(left), decimals(right)));
  } catch (const FaultError&) {
    return {};
  }
}

std::vector<Chart> sellers(const CsvExport& exported) {
  const auto names = item_names();
  Chart all{"", Chart::Kind::bars, {}};
  for (const auto& row : exported.rows) {
    const std::string total = sum_text(cell(exported, row, "Price1Total"), cell(exported, row, "Price2Total"));
    if (!is_some_number(total)) continue;
    const auto found = names.find(row.front());
    all.points.push_back(point(found == names.end() || found->second.empty() ? row.front() : found->second, total));
  }
  sort_by_value(all);
  if (all.points.empty()) return {};
  Chart best = all;
  best.title = "Best sellers";
  best.points.resize(std::min(best.points.size(), sellers_shown));
  // Of the items that were sold at all; the least first.
  Chart worst = std::move(all);
  worst.title = "Worst sellers";
  std::reverse(worst.points.begin(), worst.points.end());
  worst.points.resize(std::min(worst.points.size(), sellers_shown));
  return {std::move(best), std::move(worst)};
}

}  // namespace

std::vector<Chart> report_charts(std::uint8_t number, const CsvExport& exported) {
  if (exported.rows.empty() || exported.heading.empty()) return {};
  std::vector<Chart> charts;
  switch (number) {
    case 3:
      charts = {totals("In the drawer", drawer, exported)};
      break;
    case 4:
    case 13:
    case 14:
      charts = {totals("Sales by payment medium", media, exported), totals("VAT by rate", rates, exported)};
      break;
    case 5:
    case 6:
      charts = {departments(exported)};
      break;
    case 7:
      charts = sellers(exported);
      break;
    case 9:
    case 10:
    case 11:
      charts = {clerks(exported)};
      break;
    case 12:
      charts = {hours("Sales by hour", Chart::Kind::columns, exported, "SalesTotal"),
                hours("Receipts by hour", Chart::Kind::line, exported, "SalesCount")};
      break;
    default:
      break;
  }
  std::erase_if(charts, [](const Chart& chart) {
    return std::none_of(chart.points.begin(), chart.points.end(), [](const auto& p) { return is_some_number(p.text); });
  });
  return charts;
}

}  // namespace ecr

#include "reports/charts.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "core/decimal.h"
#include "core/fault.h"
#include "lang/own_texts.h"
#include "link/report_rows.h"
#include "reports/report_names.h"
#include "reports/report_table.h"

namespace ecr {
namespace {

struct Named {
  const char* column;
  OwnText name;
  const char* number = "";
};

// clang-format off
constexpr Named media[] = {
    {"CashTotal", OwnText::cash}, {"CheckTotal", OwnText::check}, {"ChargeTotal", OwnText::charge},
    {"Credit1Total", OwnText::credit_number, "1"}, {"Credit2Total", OwnText::credit_number, "2"},
    {"Credit3Total", OwnText::credit_number, "3"}, {"Credit4Total", OwnText::credit_number, "4"},
    {"Credit5Total", OwnText::credit_number, "5"}, {"Credit6Total", OwnText::credit_number, "6"}};
constexpr Named rates[] = {
    {"Tax1Amount", OwnText::vat_number, "1"}, {"Tax2Amount", OwnText::vat_number, "2"},
    {"Tax3Amount", OwnText::vat_number, "3"}, {"Tax4Amount", OwnText::vat_number, "4"}};
constexpr Named drawer[] = {
    {"CashInDrawerTotal", OwnText::cash}, {"CheckInDrawerTotal", OwnText::check},
    {"ChergeInDrawerTotal", OwnText::charge}, {"Credit1InDrawerTotal", OwnText::credit_number, "1"},
    {"Credit2InDrawerTotal", OwnText::credit_number, "2"}};
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
Chart totals(OwnText title, const Named (&names)[N], const CsvExport& exported) {
  Chart chart{own_bytes(title), Chart::Kind::bars, {}};
  for (const Named& named : names) {
    const std::string text = cell(exported, exported.rows.front(), named.column);
    if (is_some_number(text)) chart.points.push_back(point(own_bytes(named.name, named.number), text));
  }
  return chart;
}

void sort_by_value(Chart& chart) {
  std::stable_sort(chart.points.begin(), chart.points.end(),
                   [](const auto& left, const auto& right) { return left.value > right.value; });
}

Chart hours(OwnText title, Chart::Kind kind, const CsvExport& exported, std::string_view heading) {
  Chart chart{own_bytes(title), kind, {}};
  for (std::size_t i = 0; i < exported.rows.size(); ++i) {
    chart.points.push_back(point(std::to_string(i), cell(exported, exported.rows[i], heading)));
  }
  return chart;
}

Chart departments(const CsvExport& exported) {
  Chart chart{own_bytes(OwnText::sales_by_department), Chart::Kind::bars, {}};
  for (const auto& row : exported.rows) {
    const std::string total = cell(exported, row, "RegSalesTotal");
    if (!is_some_number(total)) continue;
    const std::string number = cell(exported, row, "DeptNumber");
    const std::string name = department_name(static_cast<int>(leading_number(number)));
    chart.points.push_back(point(name.empty() ? own_bytes(OwnText::department_number, number) : name, total));
  }
  sort_by_value(chart);
  if (chart.points.size() > most_bars) chart.points.resize(most_bars);
  return chart;
}

Chart clerks(const CsvExport& exported) {
  Chart chart{own_bytes(OwnText::net_sales_by_clerk), Chart::Kind::bars, {}};
  for (const auto& row : exported.rows) {
    const std::string total = cell(exported, row, "NetSalesTotal");
    if (is_some_number(total)) chart.points.push_back(point(own_bytes(OwnText::clerk_number, row.front()), total));
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
  best.title = own_bytes(OwnText::best_sellers);
  best.points.resize(std::min(best.points.size(), sellers_shown));
  // Of the items that were sold at all; the least first.
  Chart worst = std::move(all);
  worst.title = own_bytes(OwnText::worst_sellers);
  std::reverse(worst.points.begin(), worst.points.end());
  worst.points.resize(std::min(worst.points.size(), sellers_shown));
  return {std::move(best), std::move(worst)};
}

}  // namespace

std::vector<Chart> report_charts(std::uint8_t number, const CsvExport& exported) {
  if (exported.rows.empty() || exported.heading.empty()) return {};
  std::vector<Chart> charts;
  switch (report_kind(number)) {
    case ReportKind::drawer:
      charts = {totals(OwnText::in_the_drawer, drawer, exported)};
      break;
    case ReportKind::financial:
      charts = {totals(OwnText::sales_by_medium, media, exported), totals(OwnText::vat_by_rate, rates, exported)};
      break;
    case ReportKind::departments:
      charts = {departments(exported)};
      break;
    case ReportKind::items:
      charts = sellers(exported);
      break;
    case ReportKind::clerks:
      charts = {clerks(exported)};
      break;
    case ReportKind::hours:
      charts = {hours(OwnText::sales_by_hour, Chart::Kind::columns, exported, "SalesTotal"),
                hours(OwnText::receipts_by_hour, Chart::Kind::line, exported, "SalesCount")};
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

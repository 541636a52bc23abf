#include "reports/layout.h"

#include <algorithm>
#include <iterator>

#include "image/prg_plu.h"
#include "link/tilbridge2.h"

namespace ecr {
namespace {

using ColumnKind::count;
using ColumnKind::value;

constexpr std::size_t drawer_size = 40;
constexpr std::size_t department_size = 16;
constexpr std::size_t plu_size = 36;
constexpr std::size_t time_size = 10;
constexpr std::size_t table_size = 5;
constexpr std::size_t stock_size = 30;
constexpr std::size_t plu_records = plu_records_max;

// clang-format off
// The third heading is spelt so here and nowhere else.
constexpr std::array<ReportColumn, 5> drawer_columns = {{
    {"CashInDrawerTotal", 0, 8, value},
    {"CheckInDrawerTotal", 8, 8, value},
    {"ChergeInDrawerTotal", 16, 8, value},
    {"Credit1InDrawerTotal", 24, 8, value},
    {"Credit2InDrawerTotal", 32, 8, value},
}};

constexpr std::array<ReportColumn, 4> department_columns = {{
    {"DeptGroupNumber", 0, 1, ColumnKind::byte},
    {"DeptNumber", 1, 1, ColumnKind::byte},
    {"DeptItemCounter", 2, 6, value},
    {"RegSalesTotal", 8, 8, value},
}};

constexpr std::array<ReportColumn, 5> plu_columns = {{
    {"FreeCode", 0, 8, count},
    {"Price1Cnt", 8, 6, value},
    {"Price1Total", 14, 8, value},
    {"Price2Cnt", 22, 6, value},
    {"Price2Total", 28, 8, value},
}};

constexpr std::array<ReportColumn, 2> time_columns = {{
    {"SalesCount", 0, 2, count},
    {"SalesTotal", 2, 8, value},
}};

constexpr std::array<ReportColumn, 2> table_columns = {{
    {"TableNumber", 0, 1, ColumnKind::byte},
    {"TotalSales", 1, 4, ColumnKind::int32},
}};

constexpr std::array<ReportColumn, 3> stock_columns = {{
    {"FreeCode", 0, 8, count},
    {"Name", 8, 16, ColumnKind::text},
    {"StockCounter", 24, 6, value},
}};

// The full journal and the three others part with their marks in different ways.
constexpr std::array<ReportColumn, 1> full_journal_columns = {{{"LineFromEj", 0, journal_line_width, ColumnKind::line}}};
constexpr std::array<ReportColumn, 1> journal_columns = {{{"LineFromEj", 0, journal_line_width, ColumnKind::marked}}};
// clang-format on

static_assert(columns_fit(drawer_columns, drawer_size));
static_assert(columns_fit(department_columns, department_size));
static_assert(columns_fit(plu_columns, plu_size));
static_assert(columns_fit(time_columns, time_size));
static_assert(columns_fit(table_columns, table_size));
static_assert(columns_fit(stock_columns, stock_size));
static_assert(columns_fit(full_journal_columns, journal_record_size));
static_assert(columns_fit(journal_columns, journal_record_size));

constexpr ReportLayout fixed(std::size_t records, std::size_t size, std::span<const ReportColumn> columns,
                             const char* other_header = nullptr) {
  return {size, RecordCount::fixed, records, columns, other_header};
}

constexpr ReportLayout journal(std::span<const ReportColumn> columns) {
  return {journal_record_size, RecordCount::journal, 0, columns};
}

struct LayoutRow {
  std::uint8_t number;
  ReportLayout layout;
};

constinit const LayoutRow layouts[] = {
    {TILBRIDGE_FILE_CASH_IN_DRAWER, fixed(1, drawer_size, drawer_columns)},
    {TILBRIDGE_FILE_FINANCIAL, fixed(1, financial_size, financial_columns)},
    {TILBRIDGE_FILE_DEPARTMENTS, fixed(99, department_size, department_columns)},
    {TILBRIDGE_FILE_DEPARTMENT_GROUP, fixed(1, department_size, department_columns)},
    {TILBRIDGE_FILE_ALL_PLU, fixed(plu_records, plu_size, plu_columns)},
    {TILBRIDGE_FILE_PLU_RANGE, fixed(1, plu_size, {})},  // its file stays empty
    {TILBRIDGE_FILE_CLERKS, fixed(15, clerk_size, clerk_columns)},
    {TILBRIDGE_FILE_TRAINING_CLERKS, fixed(15, clerk_size, clerk_columns)},
    {TILBRIDGE_FILE_BOTH_CLERKS, fixed(1, double_clerk_size, double_clerk_columns, double_clerk_header)},
    {TILBRIDGE_FILE_TIME, fixed(24, time_size, time_columns)},
    {TILBRIDGE_FILE_TRAINING, fixed(1, short_financial_size, short_financial_columns)},
    {TILBRIDGE_FILE_FINANCIAL2, fixed(1, short_financial_size, short_financial_columns)},
    {TILBRIDGE_FILE_OPEN_TABLES, fixed(70, table_size, table_columns)},
    {TILBRIDGE_FILE_FULL_JOURNAL, journal(full_journal_columns)},
    {TILBRIDGE_FILE_OLDEST_JOURNAL, journal(journal_columns)},
    {TILBRIDGE_FILE_LATEST_JOURNAL, journal(journal_columns)},
    {TILBRIDGE_FILE_DAILY_JOURNAL, journal(journal_columns)},
    {TILBRIDGE_FILE_ALL_STOCK, fixed(plu_records, stock_size, stock_columns)},
    {TILBRIDGE_FILE_STOCK_RANGE, {stock_size, RecordCount::by_size, 0, stock_columns}},
};

}  // namespace

const ReportLayout* report_layout(std::uint8_t number) {
  const auto* row = std::find_if(std::begin(layouts), std::end(layouts),
                                 [number](const LayoutRow& each) { return each.number == number; });
  return row == std::end(layouts) ? nullptr : &row->layout;
}

std::string report_header(const ReportLayout& layout) {
  if (layout.other_header != nullptr) return layout.other_header;
  std::string header;
  for (const ReportColumn& column : layout.columns) {
    if (!header.empty()) header += ';';
    header += column.heading;
  }
  return header;
}

}  // namespace ecr

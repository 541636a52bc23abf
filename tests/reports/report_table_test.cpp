#include "reports/report_table.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <iterator>

#include "image/prg_mode.h"
#include "image/prg_plu.h"
#include "lang/language.h"
#include "report_test.h"
#include "support/random.h"

namespace ecr::test {
namespace {

using Cells = std::vector<std::string>;
using Rows = std::vector<std::size_t>;

class ReportTableTest : public ReportTest {
 protected:
  ReportTableTest() {
    reset_prg_plu();
    PrgMode.Dept[4].Name.set("BREAD");
    PrgPlu.PluCount = 2;
    name_item(0, "42", "COFFEE");
    name_item(1, "0", "NOTHING");
  }

  static void name_item(std::size_t row, std::string_view code, std::string_view name) {
    const std::string bytes = packed(code, 8);
    std::memcpy(PrgPlu.Row[row].Code.bytes.data(), bytes.data(), bytes.size());
    PrgPlu.Row[row].Name.set(name);
  }

  ReportTable table_of(std::uint8_t number, std::string_view file) {
    return report_table(number, read_csv(exported(number, file), is_journal(number)).at(0));
  }

  static Cells headings(const ReportTable& table) {
    Cells names;
    for (const auto& column : table.columns) names.push_back(column.heading);
    return names;
  }

  static Rows wished(const ReportTable& table, const std::string& filter, bool figures = false, int by = -1,
                     bool descending = false) {
    return wished_rows(table, {filter, figures, by, descending});
  }
};

std::string department(int number, std::string_view quantity, std::string_view total) {
  return std::string(1, '\1') + static_cast<char>(number) + packed(quantity, 6) + packed(total, 8);
}

TEST_F(ReportTableTest, DepartmentsAndItemsHaveTheirNamesBesideThem) {
  const ReportTable departments = table_of(5, department(5, "15000", "1250"));
  EXPECT_EQ(headings(departments),
            (Cells{"DeptGroupNumber", "DeptNumber", "Department", "DeptItemCounter", "RegSalesTotal"}));
  EXPECT_EQ(departments.rows[0], (Cells{"1", "5", "BREAD", "1.5", "12.50"}));
  EXPECT_EQ(departments.rows[1], (Cells{"0", "0", "", "0", "0.00"}));
  const ReportTable items = table_of(7, packed("42", 8) + packed("10000", 6) + packed("250", 8));
  EXPECT_EQ(headings(items), (Cells{"FreeCode", "Item", "Price1Cnt", "Price1Total", "Price2Cnt", "Price2Total"}));
  EXPECT_EQ(items.rows[0], (Cells{"42", "COFFEE", "1", "2.50", "0", "0.00"}));
  EXPECT_EQ(items.rows[1][1], "") << "no item has the code 0";
}

TEST_F(ReportTableTest, HoursHaveTheirTime) {
  const ReportTable table = table_of(12, packed("3", 2) + packed("450", 8));
  EXPECT_EQ(table.rows[0], (Cells{"00:00", "3", "4.50"}));
  EXPECT_EQ(table.rows[23], (Cells{"23:00", "0", "0.00"}));
}

TEST_F(ReportTableTest, ItsOwnHeadingsAreInTheChosenLanguageAndThoseOfTheFileAreNot) {
  LanguageNumber = 3;
  EXPECT_EQ(headings(table_of(5, department(5, "15000", "1250"))),
            (Cells{"DeptGroupNumber", "DeptNumber", "Warengruppe", "DeptItemCounter", "RegSalesTotal"}));
  EXPECT_EQ(headings(table_of(12, std::string(240, '\0'))).front(), "Stunde");
}

TEST_F(ReportTableTest, RecordsOfTotalsStandUpright) {
  const ReportTable financial = table_of(4, packed("12345", 8));
  EXPECT_EQ(headings(financial), (Cells{"Total", "Value"}));
  EXPECT_EQ(financial.rows.size(), 89U);
  EXPECT_EQ(financial.rows[0], (Cells{"AllDepartmentSalesTotal", "123.45"}));
  std::string clerks(std::size_t{2} * 545, '\0');
  clerks[0] = '\1';
  clerks[545] = '\2';
  clerks.replace(1, 8, packed("100", 8));
  clerks.replace(546, 8, packed("1000000000000025", 8));
  const ReportTable clerk = table_of(9, clerks);
  EXPECT_EQ(clerk.columns.size(), 17U);
  EXPECT_EQ(clerk.columns[2].heading, "Clerk 1");
  EXPECT_EQ(clerk.rows.size(), 80U);
  EXPECT_EQ(Cells(clerk.rows[0].begin(), clerk.rows[0].begin() + 4),
            (Cells{"AllDepartmentSalesTotal", "0.75", "1.00", "-0.25"}));
}

TEST_F(ReportTableTest, TheDoubleClerkReportHasNamesWithoutValues) {
  const ReportTable table = table_of(11, std::string(1089, '\0'));
  EXPECT_EQ(table.rows.size(), 72U);
  EXPECT_EQ(table.rows[62], (Cells{"InvoiceCounterInvoiceCounter", "0"}));
  EXPECT_EQ(table.rows[71], (Cells{"ProfotmaReceiptTotal", ""}));
}

TEST_F(ReportTableTest, AFileThatIsNotWhatItsNameSaysIsShownAsItStands) {
  const ReportTable table = report_table(5, {{"A", "B"}, {{"1"}, {"2", "3", "4"}}});
  EXPECT_EQ(headings(table), (Cells{"A", "B"}));
  EXPECT_EQ(table.rows, (std::vector<Cells>{{"1", ""}, {"2", "3"}}));
  EXPECT_FALSE(table.columns[0].is_number);
  EXPECT_TRUE(report_table(0, {{"A"}, {}}).rows.empty());
}

TEST_F(ReportTableTest, NumbersAreComparedByTheirWorth) {
  const Cells rising = {"", "x", "-10", "-9.5", "-0.05", "0", "0.5", "2", "10", "10.01", "9999999999999999"};
  for (std::size_t i = 0; i < rising.size(); ++i) {
    for (std::size_t j = 0; j < rising.size(); ++j) {
      const int expected = i < j ? -1 : i > j ? 1 : 0;
      EXPECT_EQ(compare_numbers(rising[i], rising[j]), expected) << rising[i] << " and " << rising[j];
    }
  }
  EXPECT_EQ(compare_numbers("-0.00", "0"), 0);
  EXPECT_EQ(compare_numbers("007.10", "7.1"), 0);
}

TEST_F(ReportTableTest, RowsAreFilteredAndSorted) {
  ReportTable table{{{"Name"}, {"Total", true, true, true}},
                    {{"beer", "2.00"}, {"Ale", "10.00"}, {"cider", "0.00"}, {"Beef", "-3.00"}}};
  EXPECT_EQ(wished(table, ""), (Rows{0, 1, 2, 3}));
  EXPECT_EQ(wished(table, "BE"), (Rows{0, 3}));
  EXPECT_EQ(wished(table, "10."), (Rows{1}));
  EXPECT_EQ(wished(table, "", true), (Rows{0, 1, 3}));
  EXPECT_EQ(wished(table, "", false, 1), (Rows{3, 2, 0, 1}));
  EXPECT_EQ(wished(table, "", false, 1, true), (Rows{1, 0, 2, 3}));
  EXPECT_EQ(wished(table, "", false, 0), (Rows{1, 3, 0, 2}));
  EXPECT_EQ(wished(table, "", false, 7), (Rows{0, 1, 2, 3}));
}

TEST_F(ReportTableTest, AnItemWithoutStockIsWorthSeeing) {
  const ReportTable table = table_of(20, packed("42", 8) + std::string(16, 'A') + packed("0", 6));
  EXPECT_EQ(wished(table, "", true), (Rows{0}));
  EXPECT_EQ(wished(table_of(12, packed("0", 2) + packed("5", 8)), "", true), (Rows{0}));
  EXPECT_EQ(wished(table_of(4, packed("5", 8)), "", true), (Rows{0}));
}

TEST_F(ReportTableTest, ANameWithSeparatorsStaysOneCell) {
  const ReportTable table = table_of(21, packed("42", 8) + "A;B;;          ;" + packed("15000", 6));
  ASSERT_EQ(table.rows.size(), 1U);
  EXPECT_EQ(table.rows[0], (Cells{"42", "A;B;;          ;", "1.5"}));
}

TEST_F(ReportTableTest, ATableWithoutNumbersHasNoEmptyRows) {
  const ReportTable table{{{"Name"}}, {{"a"}, {""}}};
  EXPECT_EQ(wished(table, "", true), (Rows{0, 1}));
}

TEST_F(ReportTableTest, SumsKeepTheDecimalsOfTheirColumn) {
  const ReportTable table{{{"Total", true, true}}, {{"2.50"}, {"-0.25"}, {"x"}, {""}, {"1000000000000000.00"}, {"7"}}};
  EXPECT_EQ(column_sum(table, 0, {0, 1, 2, 3}), "2.25");
  EXPECT_EQ(column_sum(table, 0, {0, 4}), "1000000000000002.50");
  EXPECT_EQ(column_sum(table, 0, {5}), "7");
  EXPECT_EQ(column_sum(table, 0, {}), "0");
  const ReportTable large{{{"Total", true, true}}, {{std::string(28, '9')}, {"1"}}};
  EXPECT_EQ(column_sum(large, 0, {0, 1}), "?");
}

TEST_F(ReportTableTest, WhatIsWorthAddingUpIsAddedUp) {
  const ReportTable items = table_of(7, "");
  EXPECT_FALSE(items.columns[0].is_summed) << "codes are no quantities";
  EXPECT_TRUE(items.columns[2].is_summed);
  const ReportTable hours = table_of(12, "");
  EXPECT_TRUE(hours.columns[1].is_summed);
  const ReportTable tables = table_of(15, "");
  EXPECT_FALSE(tables.columns[0].is_summed);
  EXPECT_TRUE(tables.columns[1].is_summed);
}

TEST_F(ReportTableTest, AnyFileBecomesATable) {
  Random random{5};
  for (int i = 0; i < 400; ++i) {
    const auto number = static_cast<std::uint8_t>(random.below(24));
    const ReportLayout* layout = report_layout(number);
    std::string bytes = layout != nullptr && random.coin() ? report_header(*layout) + "\r\n" : std::string{};
    bytes += random.text(random.below(300), "12;.-\r\nA");
    for (const CsvExport& one : read_csv(bytes, is_journal(number))) {
      const ReportTable table = report_table(number, one);
      for (const auto& row : table.rows) ASSERT_EQ(row.size(), table.columns.size());
      for (std::size_t column = 0; column < table.columns.size(); ++column) {
        const Rows rows = wished(table, "1", random.coin(), static_cast<int>(column), random.coin());
        EXPECT_LE(rows.size(), table.rows.size());
        EXPECT_FALSE(column_sum(table, column, rows).empty());
      }
    }
  }
}

}  // namespace
}  // namespace ecr::test

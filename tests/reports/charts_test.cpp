#include "reports/charts.h"

#include <gtest/gtest.h>

#include "image/prg_mode.h"
#include "image/prg_plu.h"
#include "lang/language.h"
#include "report_test.h"

namespace ecr::test {
namespace {

class Charts : public ReportTest {
 protected:
  Charts() { reset_prg_plu(); }

  std::vector<Chart> charts_of(std::uint8_t number, std::string_view file) {
    return report_charts(number, read_csv(exported(number, file), is_journal(number)).at(0));
  }

  static std::string points(const Chart& chart) {
    std::string text;
    for (const Chart::Point& point : chart.points) text += point.name + "=" + point.text + " ";
    return text;
  }
};

TEST_F(Charts, SalesAndReceiptsByHour) {
  std::string file(240, '\0');
  file.replace(90, 10, packed("4", 2) + packed("1250", 8));
  const auto charts = charts_of(12, file);
  ASSERT_EQ(charts.size(), 2U);
  EXPECT_EQ(charts[0].title, "Sales by hour");
  EXPECT_EQ(charts[0].kind, Chart::Kind::columns);
  ASSERT_EQ(charts[0].points.size(), 24U);
  EXPECT_EQ(charts[0].points[9].name, "9");
  EXPECT_EQ(charts[0].points[9].value, 12.5);
  EXPECT_EQ(charts[1].kind, Chart::Kind::line);
  EXPECT_EQ(charts[1].points[9].value, 4);
}

TEST_F(Charts, SpeakTheChosenLanguage) {
  std::string totals(568, '\0');
  totals.replace(254, 8, packed("5000", 8));
  totals.replace(334, 8, packed("250", 8));
  const std::string department = std::string(1, '\0') + '\3' + std::string(6, '\0') + packed("900", 8);
  LanguageNumber = 5;
  const auto financial = charts_of(4, totals);
  EXPECT_EQ(financial.at(0).title, "Vendas por meio de pagamento");
  EXPECT_EQ(points(financial.at(0)), "Numer\xE1rio=50.00 Cart\xE3o 6=2.50 ") << "bytes of the code page";
  const auto departments = charts_of(5, department);
  EXPECT_EQ(departments.at(0).title, "Vendas por sec\xE7\xE3o");
  EXPECT_EQ(points(departments.at(0)), "Sec\xE7\xE3o 3=9.00 ");
}

TEST_F(Charts, DepartmentsByTheirNamesTheLargestFirst) {
  PrgMode.Dept[1].Name.set("BREAD");
  PrgMode.Dept[2].Name.set("");
  const auto record = [](char number, std::string_view total) {
    return std::string(1, '\0') + number + std::string(6, '\0') + packed(total, 8);
  };
  const auto charts = charts_of(5, record(2, "100") + record(3, "900") + record(4, "0"));
  ASSERT_EQ(charts.size(), 1U);
  EXPECT_EQ(points(charts[0]), "Department 3=9.00 BREAD=1.00 ");
}

TEST_F(Charts, PaymentMediaAndVatByRate) {
  std::string file(568, '\0');
  file.replace(254, 8, packed("5000", 8));
  file.replace(334, 8, packed("250", 8));
  file.replace(40, 8, packed("75", 8));
  const auto charts = charts_of(4, file);
  ASSERT_EQ(charts.size(), 2U);
  EXPECT_EQ(points(charts[0]), "Cash=50.00 Credit 6=2.50 ");
  EXPECT_EQ(charts[1].title, "VAT by rate");
  EXPECT_EQ(points(charts[1]), "VAT 2=0.75 ");
}

TEST_F(Charts, TheBestAndTheWorstSellers) {
  std::string file;
  for (int i = 1; i <= 15; ++i) {
    file += packed(std::to_string(i), 8) + packed("0", 6) + packed(std::to_string(i * 100), 8) + packed("0", 6) +
            packed(i == 1 ? "5" : "0", 8);
  }
  const std::string code = packed("15", 8);
  PrgPlu.PluCount = 1;
  std::copy(code.begin(), code.end(), PrgPlu.Row[0].Code.bytes.begin());
  PrgPlu.Row[0].Name.set("COFFEE");
  const auto charts = charts_of(7, file);
  ASSERT_EQ(charts.size(), 2U);
  EXPECT_EQ(charts[0].title, "Best sellers");
  EXPECT_EQ(charts[0].points.size(), sellers_shown);
  EXPECT_EQ(charts[0].points[0].name, "COFFEE");
  EXPECT_EQ(charts[0].points[0].text, "15.00");
  EXPECT_EQ(charts[1].title, "Worst sellers");
  EXPECT_EQ(charts[1].points[0].name, "1");
  EXPECT_EQ(charts[1].points[0].text, "1.05") << "both prices together";
}

TEST_F(Charts, ClerksAndTheDrawer) {
  std::string clerks(std::size_t{15} * 545, '\0');
  clerks[545] = '\7';
  clerks.replace(545 + 229, 8, packed("1000000000000100", 8));
  EXPECT_EQ(points(charts_of(9, clerks).at(0)), "Clerk 7=-1.00 ");
  EXPECT_EQ(points(charts_of(3, packed("100", 8)).at(0)), "Cash=1.00 ");
}

TEST_F(Charts, WhereNothingWasSoldThereIsNoPicture) {
  for (const int number : {3, 4, 5, 7, 9, 12, 13, 14})
    EXPECT_TRUE(charts_of(static_cast<std::uint8_t>(number), "").empty()) << number;
  EXPECT_TRUE(charts_of(20, "").empty());
  EXPECT_TRUE(charts_of(16, std::string(26, 'A')).empty());
}

TEST_F(Charts, AFileThatSaysAnythingHasPlainNumbersOnly) {
  const CsvExport odd{{"SalesCount", "SalesTotal"}, {{"nan", "inf"}, {"2", "1e400"}, {"3"}}};
  const auto charts = report_charts(12, odd);
  ASSERT_EQ(charts.size(), 1U) << "no sale is a number";
  EXPECT_EQ(charts[0].points[0].value, 0);
  EXPECT_EQ(charts[0].points[1].value, 2);
  EXPECT_TRUE(report_charts(7, {{"x"}, {{std::string(40, '9')}}}).empty());
  EXPECT_TRUE(report_charts(5, {}).empty());
}

}  // namespace
}  // namespace ecr::test

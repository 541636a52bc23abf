// The reports of a traded day agree with each other.

#include <gtest/gtest.h>
#include <numeric>

#include "core/codecs.h"
#include "emulator/trading_test.h"
#include "reports/export_report.h"
#include "reports/layout.h"

namespace ecr::test {
namespace {

constexpr const char* net = "NetSalesTotal";
constexpr const char* all_departments = "AllDepartmentSalesTotal";

class TradedDay : public EachShop {
 protected:
  TradedDay() { trade(); }
};

INSTANTIATE_TEST_SUITE_P(Trading, TradedDay, ::testing::Values("Z300", "Z320"), model_in_name);

TEST_P(TradedDay, SoldSomethingWithEveryMeansThatAShopHas) {
  const auto financial = line(4);
  EXPECT_GT(units(financial.at(net)), 50000);
  EXPECT_GT(std::stoi(financial.at("CashPaymentCounter")), 10);
  EXPECT_GT(std::stoi(financial.at("Credit1PaymentCounter")), 5);
  EXPECT_GT(std::stoi(financial.at("NoSaleCounter")), 0);
  EXPECT_GT(units(financial.at("AllTaxAmount")), 0);
  EXPECT_GT(std::stoi(financial.at("DrawerOpenCounter")), 10);
  EXPECT_EQ(financial.at("OpeningPettyCash"), "100.00");
}

TEST_P(TradedDay, HasDepartmentsThatSumToTheFinancialTotal) {
  const ReportTable departments = table(5);
  ASSERT_EQ(departments.size(), 99U);
  EXPECT_EQ(sum_of(departments, "RegSalesTotal"), units(line(4).at(all_departments)));
  EXPECT_NE(sum_of(departments, "RegSalesTotal"), 0);
}

TEST_P(TradedDay, NumbersItsDepartmentsAndNamesTheirGroups) {
  const ReportTable departments = table(5);
  const PrgModeImage programmed = image();
  for (std::size_t i = 0; i < departments.size(); ++i) {
    EXPECT_EQ(departments[i].at("DeptNumber"), std::to_string(i + 1));
    const int group = programmed.Dept.at(i).Group;
    EXPECT_EQ(departments[i].at("DeptGroupNumber"), std::to_string(group == 16 ? 10 : group));
  }
}

TEST_P(TradedDay, HasItemsThatSumToTheirDepartments) {
  const ReportTable departments = table(5);
  const ReportTable sold = table(7);
  const std::vector<PluRecord> held = items();
  ASSERT_EQ(sold.size(), 3000U);
  std::map<std::size_t, std::pair<std::int64_t, std::int64_t>> by_department;
  for (std::size_t row = 0; row < held.size(); ++row) {
    EXPECT_EQ(sold[row].at("FreeCode"), bcds_to_number(held[row].Code));
    auto& [quantity, total] = by_department[static_cast<std::size_t>(bcd_to_number(held[row].LinkDept))];
    quantity += ten_thousandths(sold[row].at("Price1Cnt")) + ten_thousandths(sold[row].at("Price2Cnt"));
    total += units(sold[row].at("Price1Total")) + units(sold[row].at("Price2Total"));
  }
  ASSERT_GT(by_department.size(), 5U);
  for (const auto& [number, sums] : by_department) {
    const auto& department = departments.at(number - 1);
    EXPECT_EQ(ten_thousandths(department.at("DeptItemCounter")), sums.first) << number;
    EXPECT_EQ(units(department.at("RegSalesTotal")), sums.second) << number;
  }
  // What else was sold went over the key of a department with a price of its own and no items.
  const PrgModeImage programmed = image();
  for (std::size_t i = 0; i < departments.size(); ++i) {
    if (by_department.contains(i + 1) || departments[i].at("RegSalesTotal") == "0.00") continue;
    EXPECT_NE(bcds_to_number(programmed.Dept.at(i).Price), "0") << i + 1;
    EXPECT_EQ(units(departments[i].at("RegSalesTotal")) < 0, (programmed.Dept.at(i).Status1 & 1) != 0) << i + 1;
  }
  for (std::size_t row = held.size(); row < sold.size(); ++row) EXPECT_EQ(sold[row].at("FreeCode"), "0");
}

TEST_P(TradedDay, HasGroupsThatSumTheirDepartments) {
  const ReportTable departments = table(5);
  const std::string groups = fetched(6, 1, 10);
  ASSERT_EQ(groups.size(), 160U);
  for (int group = 1; group <= 10; ++group) {
    std::int64_t total = 0;
    std::int64_t quantity = 0;
    for (const auto& department : departments) {
      if (department.at("DeptGroupNumber") != std::to_string(group)) continue;
      total += units(department.at("RegSalesTotal"));
      quantity += ten_thousandths(department.at("DeptItemCounter"));
    }
    const std::string record = groups.substr(static_cast<std::size_t>(group - 1) * 16, 16);
    EXPECT_EQ(record[0], static_cast<char>(group));
    EXPECT_EQ(signed_number(record.substr(2, 6)), quantity) << group;
    EXPECT_EQ(signed_number(record.substr(8, 8)), total) << group;
  }
  EXPECT_EQ(fetched(6), groups.substr(0, 16)) << "without a range, the first group";
}

TEST_P(TradedDay, HasHoursThatSumToTheDay) {
  const ReportTable hours = table(12);
  ASSERT_EQ(hours.size(), 24U);
  const auto financial = line(4);
  EXPECT_EQ(sum_of(hours, "SalesTotal"), units(financial.at(net)));
  EXPECT_GT(count_of(hours, "SalesCount"), 50);
  EXPECT_EQ(hours[3].at("SalesTotal"), "0.00") << "closed at night";
}

TEST_P(TradedDay, HasNetSalesOfItsDepartmentsAndWhatWasTakenOffThem) {
  const std::string financial = fetched(4);
  std::int64_t modifiers = 0;
  for (std::size_t offset = 136; offset < 200; offset += 8) modifiers += signed_number(financial.substr(offset, 8));
  EXPECT_NE(modifiers, 0);
  const auto decoded = line(4);
  EXPECT_EQ(units(decoded.at(all_departments)) + modifiers, units(decoded.at(net)));
  EXPECT_EQ(units(decoded.at(net)) + units(decoded.at("RefoundTotal")), units(decoded.at("GrossSalesTotal")));
}

TEST_P(TradedDay, HasTaxesThatSumToItsNetSales) {
  const auto financial = line(4);
  const std::int64_t receipts = count_of(table(12), "SalesCount");
  std::int64_t amounts = 0;
  std::int64_t with = 0;
  for (std::size_t tax = 1; tax <= 4; ++tax) {
    const std::string name = "Tax" + std::to_string(tax);
    const std::int64_t amount = units(financial.at(name + "Amount"));
    const std::int64_t taxed = units(financial.at(name + "SalesWithTax"));
    EXPECT_EQ(units(financial.at(name + "SalesWithoutTax")) + amount, taxed) << tax;
    const double rate = std::stod(bcds_to_number(image().VatRate.at(tax - 1)));
    // Each receipt rounds once.
    EXPECT_NEAR(static_cast<double>(amount), static_cast<double>(taxed) * rate / (100000 + rate),
                static_cast<double>(receipts))
        << tax;
    amounts += amount;
    with += taxed;
  }
  EXPECT_EQ(units(financial.at("AllTaxAmount")), amounts);
  EXPECT_EQ(units(financial.at("AllTaxSalesWithTax")), with);
  EXPECT_EQ(units(financial.at("AllTaxSalesWithoutTax")), with - amounts);
  EXPECT_EQ(units(financial.at("Tax0TotalSales")) + with, units(financial.at(net)));
}

constexpr std::array<const char*, 9> media = {"Cash",    "Check",   "Charge",  "Credit1", "Credit2",
                                              "Credit3", "Credit4", "Credit5", "Credit6"};

TEST_P(TradedDay, HasMediaThatSumToItsNetSalesAndLieInTheDrawer) {
  const auto financial = line(4);
  std::int64_t paid = 0;
  for (const std::string medium : media) {
    const std::int64_t total = units(financial.at(medium + "Total"));
    paid += total;
    std::int64_t expected = total;
    if (medium == "Cash") {
      expected +=
          units(financial.at("OpeningPettyCash")) + units(financial.at("RaTotal")) - units(financial.at("PoTotal"));
    }
    EXPECT_EQ(units(financial.at(medium + "InDrawerTotal")), expected) << medium;
    EXPECT_EQ(std::stoi(financial.at(medium + "PaymentCounter")) > 0, total > 0) << medium;
  }
  EXPECT_EQ(paid, units(financial.at(net)));
}

TEST_P(TradedDay, HasTheDrawerOfItsFinancialReport) {
  const auto drawer = line(3);
  const auto financial = line(4);
  EXPECT_EQ(drawer.at("CashInDrawerTotal"), financial.at("CashInDrawerTotal"));
  EXPECT_EQ(drawer.at("CheckInDrawerTotal"), financial.at("CheckInDrawerTotal"));
  EXPECT_EQ(drawer.at("ChergeInDrawerTotal"), financial.at("ChargeInDrawerTotal"));
  EXPECT_EQ(drawer.at("Credit1InDrawerTotal"), financial.at("Credit1InDrawerTotal"));
  EXPECT_EQ(drawer.at("Credit2InDrawerTotal"), financial.at("Credit2InDrawerTotal"));
}

/// The sums of a clerk report, laid out as the financial report has them.
void expect_clerks_sum_to(const std::string& clerks, const std::string& total) {
  ASSERT_EQ(clerks.size(), 15 * clerk_size);
  for (const ReportColumn& column : clerk_columns) {
    if (column.kind == ColumnKind::byte) continue;
    std::int64_t sum = 0;
    for (std::size_t clerk = 0; clerk < 15; ++clerk) {
      sum += signed_number(clerks.substr(clerk * clerk_size + column.offset, column.width));
    }
    EXPECT_EQ(sum, signed_number(total.substr(column.offset - 1, column.width))) << column.heading;
  }
}

TEST_P(TradedDay, HasClerksThatSumToTheFinancialReport) {
  expect_clerks_sum_to(fetched(9), fetched(4));
  const ReportTable clerks = table(9);
  ASSERT_EQ(clerks.size(), 15U);
  int working = 0;
  for (std::size_t i = 0; i < clerks.size(); ++i) {
    EXPECT_EQ(clerks[i].at("ClerkNumber"), std::to_string(i + 1));
    const bool works = clerks[i].at(net) != "0.00";
    working += works ? 1 : 0;
    const ClerkRecord programmed = image().Clerk.at(i);
    if (works) {
      EXPECT_NE(bcds_to_number(programmed.Password), "0") << i + 1;
      EXPECT_FALSE(byte_bit_tst(programmed.Rights, 7)) << i + 1;
    }
    if (byte_bit_tst(programmed.Rights, 1)) {
      EXPECT_EQ(clerks[i].at("RefoundCounter"), "0") << i + 1;
    }
    if (byte_bit_tst(programmed.Rights, 0)) {
      EXPECT_EQ(clerks[i].at("VoidTotal"), "0.00") << i + 1;
    }
    if (byte_bit_tst(programmed.Rights, 3)) {
      EXPECT_EQ(clerks[i].at("PoCounter"), "0") << i + 1;
    }
  }
  EXPECT_GE(working, 4);
}

TEST_P(TradedDay, KeepsTrainingApart) {
  expect_clerks_sum_to(fetched(10), fetched(13));
  const auto training = line(13);
  const auto financial = line(4);
  EXPECT_GT(units(training.at(net)), 0);
  EXPECT_EQ(financial.at("TrainingSalesTotale"), training.at(net));
  EXPECT_EQ(financial.at("TrainingReceiptCounter"), training.at("TrainingReceiptCounter"));
  EXPECT_EQ(training.at("GrandTotal"), "0.00");
}

TEST_P(TradedDay, HasADoubleClerkRecordOfAllNormalAndAllTrainingSales) {
  const std::string both = fetched(11);
  EXPECT_EQ(both, '\0' + fetched(4).substr(0, 544) + fetched(13).substr(0, 544));
  EXPECT_EQ(line(11).at(net), line(4).at(net));
}

TEST_P(TradedDay, HasTheSameDayInItsPeriodicReport) {
  EXPECT_EQ(fetched(14), fetched(4).substr(0, 552));
  EXPECT_EQ(line(14).at("GrandTotal"), line(4).at("GrandTotal"));
}

TEST_P(TradedDay, HasOpenTablesThatSumToTheFinancialReport) {
  const auto financial = line(4);
  const ReportTable tables = table(15);
  ASSERT_EQ(tables.size(), 70U);
  std::int64_t total = 0;
  int open = 0;
  for (std::size_t i = 0; i < tables.size(); ++i) {
    EXPECT_EQ(tables[i].at("TableNumber"), std::to_string(i + 1));
    total += std::stoll(tables[i].at("TotalSales"));
    open += tables[i].at("TotalSales") == "0" ? 0 : 1;
  }
  EXPECT_EQ(total, units(financial.at("OpenTableTotal")));
  EXPECT_EQ(std::to_string(open), financial.at("OpenTableCounter"));
  EXPECT_EQ(open > 0, std::string{GetParam()} == "Z320") << "a Z300 has no tables";
  EXPECT_EQ(units(financial.at("NewBalanceTotal")), units(financial.at("CloseBalanceTotal")) + total);
  EXPECT_EQ(std::stoi(financial.at("NewBalanceCounter")), std::stoi(financial.at("CloseBalanceCounter")) + open);
  EXPECT_EQ(std::stoi(financial.at("GuestCounter")) > 0, open > 0);
}

TEST_P(TradedDay, AgreesWithItselfOnEveryDayOfAMonth) {
  for (int day = 0; day < 30; ++day) {
    trade();
    const auto financial = line(4);
    EXPECT_EQ(sum_of(table(5), "RegSalesTotal"), units(financial.at(all_departments))) << day;
    EXPECT_EQ(sum_of(table(12), "SalesTotal"), units(financial.at(net))) << day;
    expect_clerks_sum_to(fetched(9), fetched(4));
    std::int64_t paid = 0;
    for (const std::string medium : media) paid += units(financial.at(medium + "Total"));
    EXPECT_EQ(paid, units(financial.at(net))) << day;
    EXPECT_EQ(units(financial.at("Tax0TotalSales")) + units(financial.at("AllTaxSalesWithTax")), paid) << day;
  }
}

}  // namespace
}  // namespace ecr::test

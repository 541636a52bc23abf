#include "reports/export_report.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "report_test.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;
using ExportReport = ReportTest;

const std::string zeros(8, '\0');

// Small records, written down by hand

TEST_F(ExportReport, TheDrawerReportIsOneLineOfFiveAmounts) {
  const std::string file =
      hex("56 34 12 00 00 00 00 00  05 00 00 00 00 00 00 00  00 00 00 00 00 00 00 00"
          "45 23 01 00 00 00 00 10  99 99 99 99 99 99 99 09");
  EXPECT_EQ(exported(3, file),
            "CashInDrawerTotal;CheckInDrawerTotal;ChergeInDrawerTotal;Credit1InDrawerTotal;Credit2InDrawerTotal\r\n"
            "1234.56;0.05;0.00;-123.45;9999999999999.99\r\n");
}

TEST_F(ExportReport, TheDepartmentReportHas99Lines) {
  std::string file = hex("01 0C 00 50 01 00 00 00  50 12 00 00 00 00 00 00");
  file += hex("FF 63 00 05 00 00 00 10  01 00 00 00 00 00 00 10");
  const Lines text = lines(5, file);
  ASSERT_EQ(text.size(), 100U);
  EXPECT_EQ(text[0], "DeptGroupNumber;DeptNumber;DeptItemCounter;RegSalesTotal");
  EXPECT_EQ(text[1], "1;12;1.5;12.50");
  EXPECT_EQ(text[2], "255;99;-0.05;-0.01");
  EXPECT_EQ(text[3], "0;0;0;0.00");
  EXPECT_EQ(text[99], "0;0;0;0.00");
}

TEST_F(ExportReport, TheDepartmentGroupReportIsOneLine) {
  EXPECT_EQ(exported(6, hex("02 00 00 00 03 00 00 00  00 01 00 00 00 00 00 00") + std::string(160, '\x11')),
            "DeptGroupNumber;DeptNumber;DeptItemCounter;RegSalesTotal\r\n2;0;3;1.00\r\n");
}

TEST_F(ExportReport, TheItemReportShowsCodeCountsAndTotals) {
  const std::string file = packed("4006381333931", 8) + packed("20000", 6) + packed("598", 8) + packed("12500", 6) +
                           packed("1000000000000299", 8);
  const Lines text = lines(7, file);
  ASSERT_EQ(text.size(), 3001U);
  EXPECT_EQ(text[0], "FreeCode;Price1Cnt;Price1Total;Price2Cnt;Price2Total");
  EXPECT_EQ(text[1], "4006381333931;2;5.98;1.25;-2.99");
  EXPECT_EQ(text[3000], "0;0;0.00;0;0.00");
}

TEST_F(ExportReport, ACodeOfSixteenDigitsKeepsThemAll) {
  EXPECT_EQ(lines(7, packed("9876543210123456", 8))[1], "9876543210123456;0;0.00;0;0.00");
}

TEST_F(ExportReport, TheItemRangeReportLeavesAnEmptyFile) {
  EXPECT_EQ(exported(8, std::string(36, '\x11')), "");
  EXPECT_TRUE(exists("Report/RANGE PLU.csv"));
}

TEST_F(ExportReport, TheTimeReportHas24Lines) {
  const Lines text = lines(12, packed("42", 2) + packed("123456", 8) + packed("9999", 2) + packed("1", 8));
  ASSERT_EQ(text.size(), 25U);
  EXPECT_EQ(text[0], "SalesCount;SalesTotal");
  EXPECT_EQ(text[1], "42;1234.56");
  EXPECT_EQ(text[2], "9999;0.01");
  EXPECT_EQ(text[24], "0;0.00");
}

TEST_F(ExportReport, TheTableReportShowsWholeNumbersWithoutScaling) {
  const Lines text = lines(15, hex("07 39 30 00 00  FF FF FF FF FF  80 00 00 00 80  01 FF FF FF 7F"));
  ASSERT_EQ(text.size(), 71U);
  EXPECT_EQ(text[0], "TableNumber;TotalSales");
  EXPECT_EQ(text[1], "7;12345");
  EXPECT_EQ(text[2], "255;-1");
  EXPECT_EQ(text[3], "128;-2147483648");
  EXPECT_EQ(text[4], "1;2147483647");
  EXPECT_EQ(text[70], "0;0");
}

TEST_F(ExportReport, TheStockReportShowsTheNameInFull) {
  const std::string file = packed("12", 8) + "COFFEE          " + packed("15000", 6) + packed("13", 8) +
                           hex("94 D8 3B 41 20 20 20 20 20 20 20 20 20 20 20 20") + packed("100000020000", 6);
  const Lines text = lines(20, file);
  ASSERT_EQ(text.size(), 3001U);
  EXPECT_EQ(text[0], "FreeCode;Name;StockCounter");
  EXPECT_EQ(text[1], "12;COFFEE          ;1.5");
  // A separator inside a name is not escaped.
  EXPECT_EQ(text[2], "13;\xFC\xC4;A            ;-2");
  EXPECT_EQ(text[3000], "0;" + std::string(16, '\0') + ";0");
}

// Amounts, quantities and counters

TEST_F(ExportReport, TheFirstDigitOfAnAmountIsItsSign) {
  const std::string field = packed("1000000000012345", 8);
  EXPECT_EQ(lines(3, field)[1], "-123.45;0.00;0.00;0.00;0.00");
  Global::DecimalPoint = 0;
  EXPECT_EQ(lines(3, field)[1], "-000000000012345;0;0;0;0");
}

TEST_F(ExportReport, TenToTheFifteenthIsPositive) {
  const std::string file = packed("1000000000000000", 8) + packed("1000000000000001", 8);
  EXPECT_EQ(lines(3, file)[1], "10000000000000.00;-0.01;0.00;0.00;0.00");
  Global::DecimalPoint = 0;
  EXPECT_EQ(lines(3, file)[1], "1000000000000000;-000000000000001;0;0;0");
}

TEST_F(ExportReport, AnyFirstDigitIsASign) {
  EXPECT_EQ(lines(3, packed("9000000000000100", 8) + packed("2000000000000000", 8))[1], "-1.00;-0.00;0.00;0.00;0.00");
  EXPECT_EQ(lines(5, hex("00 00") + packed("200000000000", 6))[1], "0;0;-0;0.00");
}

TEST_F(ExportReport, AmountsFollowTheDecimalsQuantitiesDoNot) {
  const std::string file = hex("00 00") + packed("15000", 6) + packed("1234", 8);
  const std::pair<std::uint8_t, const char*> rows[] = {{0, "1234"}, {1, "123.4"}, {2, "12.34"}, {3, "1.234"}};
  for (const auto& [decimals, amount] : rows) {
    Global::DecimalPoint = decimals;
    EXPECT_EQ(lines(6, file)[1], std::string{"0;0;1.5;"} + amount);
  }
}

TEST_F(ExportReport, ADigitThatIsNoneEndsItsFieldAndIsLogged) {
  const Lines text = lines(12, hex("3A 12  34 12 A0 00 00 00 00 00") + hex("12 A3  00 00 00 00 00 00 00 00"));
  EXPECT_EQ(text[1], ";12.34");
  EXPECT_EQ(text[2], "12;0.00");
  EXPECT_EQ(log().size(), 3U);
}

// Totals

TEST_F(ExportReport, TheFinancialReportRepeatsOneTotalAndLeavesOneOut) {
  std::string file(568, '\0');
  const auto put = [&file](std::size_t offset, std::string_view digits) { file.replace(offset, 8, packed(digits, 8)); };
  put(136, "1361"), put(144, "1441"), put(152, "1521"), put(160, "1601"), put(168, "1681");
  put(176, "1761"), put(184, "1841"), put(192, "1921");
  const Lines text = lines(4, file);
  ASSERT_EQ(text.size(), 2U);
  EXPECT_NE(text[1].find(";13.61;14.41;16.81;16.01;18.41;17.61;18.41;19.21;0;"), std::string::npos) << text[1];
  EXPECT_EQ(text[1].find("15.21"), std::string::npos);
  EXPECT_EQ(std::count(text[0].begin(), text[0].end(), ';'), 88);
  EXPECT_EQ(std::count(text[1].begin(), text[1].end(), ';'), 88);
  EXPECT_TRUE(text[0].ends_with(";GrandTotal;GTGross;GTReturn"));
}

TEST_F(ExportReport, TheShortFinancialReportsEndWithTheGrandTotal) {
  for (const std::uint8_t number : {std::uint8_t{13}, std::uint8_t{14}}) {
    const Lines text = lines(number, std::string(544, '\0') + packed("777", 8) + std::string(16, '\x11'));
    ASSERT_EQ(text.size(), 2U);
    EXPECT_TRUE(text[0].ends_with(";ProfotmaReceiptTotal;GrandTotal"));
    EXPECT_TRUE(text[1].ends_with(";0.00;7.77"));
    EXPECT_EQ(std::count(text[1].begin(), text[1].end(), ';'), 86);
  }
}

TEST_F(ExportReport, TheClerkReportsHave15Lines) {
  for (const std::uint8_t number : {std::uint8_t{9}, std::uint8_t{10}}) {
    std::string file(std::size_t{3} * 545, '\0');
    file[545] = '\x0F';
    file.replace(545 + 537, 8, packed("123", 8));
    const Lines text = lines(number, file);
    ASSERT_EQ(text.size(), 16U);
    EXPECT_TRUE(text[0].starts_with("ClerkNumber;AllDepartmentSalesTotal;"));
    EXPECT_TRUE(text[2].starts_with("15;0.00;"));
    EXPECT_TRUE(text[2].ends_with(";0;1.23"));
    EXPECT_EQ(std::count(text[2].begin(), text[2].end(), ';'), 80);
  }
}

TEST_F(ExportReport, TheDoubleClerkReportHas64ValuesUnder73Names) {
  std::string file(1089, '\x22');
  file[0] = '\x03';
  file.replace(1, 8, packed("100", 8));
  file.replace(295, 8, packed("429", 8));
  file.replace(303, 2, packed("303", 2));
  file.replace(343, 2, packed("343", 2));
  file.replace(501, 2, packed("501", 2));
  const Lines text = lines(11, file);
  ASSERT_EQ(text.size(), 2U);
  EXPECT_EQ(std::count(text[0].begin(), text[0].end(), ';'), 72);
  EXPECT_EQ(std::count(text[1].begin(), text[1].end(), ';'), 63);
  EXPECT_TRUE(text[1].starts_with("3;1.00;"));
  EXPECT_NE(text[1].find(";4.29;343;"), std::string::npos) << text[1];
  EXPECT_TRUE(text[1].ends_with(";501"));
}

// Files

TEST_F(ExportReport, AMissingReportIsLoggedAndMakesNoFile) {
  for (int number = 3; number <= 22; ++number) static_cast<void>(export_ReportEcr(static_cast<std::uint8_t>(number)));
  const Lines said = log();
  ASSERT_EQ(said.size(), 20U);
  EXPECT_EQ(said[0], "export_ReportEcr. file per report 3 non trovato");
  EXPECT_EQ(said[19], "export_ReportEcr. file per report 22 non trovato");
  EXPECT_TRUE(files_matching(Global::PathReport, "*").empty());
}

TEST_F(ExportReport, ANumberBeyondTheTableFindsNoFile) {
  write("Dati/ANY.bin", "x");
  static_cast<void>(export_ReportEcr(25));
  static_cast<void>(export_ReportEcr(255));
  EXPECT_EQ(log(), (Lines{"export_ReportEcr. file per report 25 non trovato",
                          "export_ReportEcr. file per report 255 non trovato"}));
  EXPECT_TRUE(files_matching(Global::PathReport, "*").empty());
}

TEST_F(ExportReport, TheReleaseFileLeavesAnEmptyFileWhateverTheCaseOfItsName) {
  write("Dati/RELEASE.BIN", "banner");
  static_cast<void>(export_ReportEcr(22));
  EXPECT_TRUE(exists("Report/RELEASE.csv"));
  EXPECT_EQ(bytes("Report/RELEASE.csv"), "");
  EXPECT_TRUE(log().empty());
}

TEST_F(ExportReport, TheOlderReleaseFileDoesNotMatch) {
  write("Dati/RELEA.BIN", "banner");
  static_cast<void>(export_ReportEcr(22));
  EXPECT_EQ(log(), Lines{"export_ReportEcr. file per report 22 non trovato"});
}

TEST_F(ExportReport, TheNameIsMatchedByItsBeginning) {
  write("Dati/FINANCIAL123.bin", "");
  static_cast<void>(export_ReportEcr(4));
  EXPECT_TRUE(exists("Report/FINANCIAL123.csv"));
  remove("Dati/FINANCIAL123.bin");
  // So the second financial report answers for the first one where that is missing.
  write("Dati/FINANCIAL2.bin", "");
  static_cast<void>(export_ReportEcr(4));
  EXPECT_TRUE(exists("Report/FINANCIAL2.csv"));
}

TEST_F(ExportReport, TheFirstFileByNameIsTaken) {
  write("Dati/FINANCIAL.bin", packed("100", 8));
  write("Dati/FINANCIAL2.bin", packed("200", 8));
  static_cast<void>(export_ReportEcr(4));
  EXPECT_TRUE(exists("Report/FINANCIAL.csv"));
  EXPECT_FALSE(exists("Report/FINANCIAL2.csv"));
}

TEST_F(ExportReport, ASecondExportAppends) {
  write("Dati/TIME.bin", std::string(240, '\0'));
  static_cast<void>(export_ReportEcr(12));
  const std::string once = bytes("Report/TIME.csv");
  static_cast<void>(export_ReportEcr(12));
  EXPECT_EQ(bytes("Report/TIME.csv"), once + once);
}

TEST_F(ExportReport, TheReportFileStaysAsItIs) {
  const std::string file = packed("42", 2) + zeros;
  write("Dati/TIME.bin", file);
  static_cast<void>(export_ReportEcr(12));
  EXPECT_EQ(bytes("Dati/TIME.bin"), file);
}

TEST_F(ExportReport, AShortReportReadsAsIfZerosFollowed) {
  EXPECT_EQ(lines(3, "").at(1), "0.00;0.00;0.00;0.00;0.00");
  EXPECT_EQ(lines(3, hex("00 00 00 00 12")).at(1), "12000000.00;0.00;0.00;0.00;0.00");
  EXPECT_EQ(lines(12, "").size(), 25U);
  EXPECT_EQ(lines(7, "").size(), 3001U);
  EXPECT_TRUE(log().empty());
}

TEST_F(ExportReport, ALongReportIsReadNoFurtherThanItsLayout) {
  EXPECT_EQ(lines(12, std::string(5000, '\x11')).size(), 25U);
  EXPECT_EQ(lines(20, std::string(200000, '\0')).size(), 3001U);
}

TEST_F(ExportReport, AnOutputThatCannotBeWrittenIsAnsweredWithItsFault) {
  make_folder("Report/TIME.csv");
  write("Dati/TIME.bin", "");
  const CsvOutcome outcome = export_ReportEcr(12);
  EXPECT_EQ(outcome.file, "TIME.csv");
  EXPECT_EQ(outcome.fault.code, FaultCode::path_access);
  EXPECT_TRUE(log().empty());
}

TEST_F(ExportReport, WhatIsWrittenIsAnsweredWithoutAFault) {
  write("Dati/TIME.bin", "");
  write("Dati/RELEASE.BIN", "banner");
  EXPECT_EQ(export_ReportEcr(12).file, "TIME.csv");
  EXPECT_FALSE(export_ReportEcr(12).fault.stands());
  EXPECT_EQ(export_ReportEcr(22).file, "RELEASE.csv");
  EXPECT_FALSE(export_ReportEcr(22).fault.stands());
  EXPECT_EQ(export_ReportEcr(3).file, "") << "there is no such report";
  EXPECT_FALSE(export_ReportEcr(3).fault.stands());
}

TEST_F(ExportReport, TheStockOfFewItemsHasAsManyLinesAsItsSizeSays) {
  const std::string record = packed("1", 8) + "TEA             " + packed("10000", 6);
  const auto count = [&](std::size_t size) {
    std::string file;
    while (file.size() < size) file += record;
    return lines(21, file.substr(0, size)).size() - 1;
  };
  // Halves go to the even number.
  for (const auto& [size, expected] : {std::pair<std::size_t, std::size_t>{0, 0},
                                       {14, 0},
                                       {15, 0},
                                       {16, 1},
                                       {30, 1},
                                       {44, 1},
                                       {45, 2},
                                       {46, 2},
                                       {75, 2},
                                       {76, 3},
                                       {90, 3},
                                       {105, 4}}) {
    EXPECT_EQ(count(size), expected) << size;
  }
}

TEST_F(ExportReport, MoreStockThanTheItemsOfARegisterIsWrittenToo) {
  std::string file;
  for (int i = 0; i < 5000; ++i) file += packed(std::to_string(i), 8) + std::string(22, '\0');
  const Lines text = lines(21, file);
  ASSERT_EQ(text.size(), 5001U);
  EXPECT_EQ(text[5000].substr(0, 5), "4999;");
}

}  // namespace
}  // namespace ecr::test

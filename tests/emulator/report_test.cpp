#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <initializer_list>
#include <map>
#include <string>

#include "emulator/emulator_test.h"
#include "link/report_rows.h"

namespace ecr::test {
namespace {

using Bytes = std::initializer_list<std::uint8_t>;

using ReportTest = EmulatorTest;

// Reports

TEST_F(ReportTest, ARegisterThatNeverTradedHasReportsOfFullLengthWithZeroTotals) {
  write("register/PRG_MODE.BIN", std::string(5656, '\0'));
  write("register/PRG_PLU.BIN", std::string(802, '\0'));
  const std::map<std::uint8_t, std::size_t> lengths = {{3, 40},   {4, 568},  {5, 1584},  {6, 16},    {7, 108000},
                                                       {8, 36},   {9, 8175}, {10, 8175}, {11, 1089}, {12, 240},
                                                       {13, 552}, {14, 552}, {15, 350},  {20, 90000}};
  for (const auto& [file, length] : lengths) {
    EXPECT_EQ(changing_nothing([this, file = file] { return send_cmd(upload, file); }), done) << int{file};
    const std::string report = bytes("Dati/" + std::string{report_name(file)} + ".bin");
    EXPECT_EQ(report.size(), length) << int{file};
    // Numbers of departments, groups, clerks and tables are there, and the blank names of the items without one.
    const bool numbered = file == 5 || file == 6 || file == 9 || file == 10 || file == 15 || file == 20;
    if (!numbered) {
      EXPECT_EQ(report, std::string(length, '\0')) << int{file};
    }
  }
  for (const std::uint8_t file : Bytes{16, 17, 18, 19, 21}) {
    EXPECT_EQ(changing_nothing([this, file] { return send_cmd(upload, file); }), done) << int{file};
    EXPECT_EQ(bytes("Dati/" + std::string{report_name(file)} + ".bin"), "") << int{file};
  }
}

TEST_F(ReportTest, ARegisterThatHoldsNothingAnswersItsReportsTheSame) {
  remove("register/PRG_MODE.BIN");
  remove("register/PRG_PLU.BIN");
  for (std::uint8_t file = 3; file <= 21; ++file) {
    EXPECT_EQ(send_cmd(upload, file), done) << int{file};
    EXPECT_EQ(range_report(file), done) << int{file};
  }
  EXPECT_EQ(bytes("Dati/FINANCIAL.bin"), std::string(568, '\0'));
  EXPECT_EQ(bytes("Dati/ASK.bin").size(), 90000U);
}

TEST_F(ReportTest, AReportIsAnsweredWithTheBytesOfItsFile) {
  for (std::uint8_t file = 3; file <= 21; ++file) {
    const std::string sent = random_bytes(file, 100 + std::size_t{file});
    write("register/reports/" + std::to_string(file) + ".bin", sent);
    const std::string target = "Dati/" + std::string{report_name(file)} + ".bin";
    EXPECT_EQ(changing_nothing([this, file] { return send_cmd(upload, file); }), done) << int{file};
    EXPECT_EQ(bytes(target), sent) << int{file};
    remove(target);
    EXPECT_EQ(changing_nothing([this, file] { return range_report(file); }), done) << int{file};
    EXPECT_EQ(bytes(target), sent) << int{file};
  }
}

TEST_F(ReportTest, AReportMayBeEmpty) {
  write("register/reports/4.bin", "");
  EXPECT_EQ(send_cmd(upload, 4), done);
  EXPECT_TRUE(exists("Dati/FINANCIAL.bin"));
  EXPECT_EQ(bytes("Dati/FINANCIAL.bin"), "");
}

TEST_F(ReportTest, AFolderInPlaceOfAReportsFileCannotBeOpened) {
  make_folder("register/reports/12.bin");
  EXPECT_EQ(send_cmd(upload, 12), ends_with(2049));
}

TEST_F(ReportTest, ARangeMustNotRunBackwards) {
  write("register/reports/5.bin", "report");
  EXPECT_EQ(range_report(5, 2, 1), ends_with(515));
  EXPECT_EQ(range_report(5, 2147483647, -2147483647 - 1), ends_with(515));
  EXPECT_FALSE(exists("Dati/RANGE DEPT.bin"));
  EXPECT_EQ(range_report(5, 1, 1), done);
  EXPECT_EQ(range_report(5, 0, 9999), done);
  EXPECT_EQ(bytes("Dati/RANGE DEPT.bin"), "report");
}

TEST_F(ReportTest, WhatIsNoReportHasNoRange) {
  for (const std::uint8_t file : Bytes{0, 1, 2, 22}) EXPECT_EQ(range_report(file), ends_with(517)) << int{file};
}

// The firmware's release

TEST_F(ReportTest, TheReleaseComesAsThirtySixCharacters) {
  EXPECT_EQ(changing_nothing([this] { return send_cmd(upload, 22); }), done);
  EXPECT_EQ(bytes("Dati/RELEASE.BIN"), "ECRZ300/ECRZ320F    FW rel.1.04     ");
  EXPECT_FALSE(exists("Dati/RELEA.BIN"));
}

TEST_F(ReportTest, TheReleaseComesInTheOtherFileFromAnOlderFirmware) {
  set("release = RELEA.BIN\nbanner = ECRZ300/ECRZ320F    FW rel.0.80");
  EXPECT_EQ(send_cmd(upload, 22), done);
  EXPECT_EQ(bytes("Dati/RELEA.BIN"), "ECRZ300/ECRZ320F    FW rel.0.80     ");
  EXPECT_FALSE(exists("Dati/RELEASE.BIN"));
}

TEST_F(ReportTest, AVeryOldFirmwareRefusesItsReleaseButAnswersTheLinkTest) {
  set("release = none");
  EXPECT_EQ(changing_nothing([this] { return send_cmd(upload, 22); }), ends_with(4098));
  EXPECT_FALSE(exists("Dati/RELEASE.BIN"));
  EXPECT_FALSE(exists("Dati/RELEA.BIN"));
  EXPECT_EQ(send_cmd(upload, 12), done);
}

}  // namespace
}  // namespace ecr::test

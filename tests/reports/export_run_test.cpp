#include "reports/export_run.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "report_test.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

class ExportRun : public ReportTest {
 protected:
  ExportRun() { Global::ComPort = 4; }

  void run(const std::vector<std::uint8_t>& numbers, std::int32_t lowest_quantity = 0) {
    unwritten =
        export_reports(numbers, lowest_quantity, [this](std::uint8_t number) { begun.push_back(number); });
  }

  std::vector<int> begun;
  std::vector<CsvOutcome> unwritten;
};

TEST_F(ExportRun, FetchesAndDecodesEachAndEndsWithTheRelease) {
  link().deliveries[3] = {"C-I-D.bin", ""};
  link().deliveries[12] = {"TIME.bin", ""};
  link().deliveries[22] = {"RELEASE.BIN", "banner"};
  run({3, 12});
  EXPECT_EQ(link().calls, (Lines{"send_cmd folder=. direction=0 file=3 timeout=60 port=4",
                                 "send_cmd folder=. direction=0 file=12 timeout=2 port=4",
                                 "send_cmd folder=. direction=0 file=22 timeout=60 port=4"}));
  EXPECT_EQ(begun, (std::vector<int>{3, 12, 22}));
  EXPECT_TRUE(exists("Report/C-I-D.csv"));
  EXPECT_TRUE(exists("Report/TIME.csv"));
  EXPECT_EQ(bytes("Report/RELEASE.csv"), "");
}

TEST_F(ExportRun, TellsTheLogHowLongEachTook) {
  link().deliveries[3] = {"C-I-D.bin", ""};
  link().deliveries[22] = {"RELEASE.BIN", ""};
  link().after_call = [this] { shell.moment.second_of_day += 1.25; };
  run({3});
  EXPECT_EQ(log(), (Lines{"Time for download report 3 is:1.25", "Time for download report 22 is:1.25"}));
}

TEST_F(ExportRun, CountsOverMidnight) {
  link().deliveries[22] = {"RELEASE.BIN", ""};
  shell.moment.second_of_day = 86399.5;
  link().after_call = [this] { shell.moment.second_of_day = 0.5; };
  run({});
  EXPECT_EQ(log(), Lines{"Time for download report 22 is:1"});
}

TEST_F(ExportRun, PassesOverWhatIsRefusedAndDecodesNothingOld) {
  write("Dati/C-I-D.bin", "old");
  link().answers[3] = {1, 4097};
  link().deliveries[12] = {"TIME.bin", ""};
  link().answers[22] = {0, 0};
  run({3, 12});
  EXPECT_FALSE(exists("Report/C-I-D.csv"));
  EXPECT_FALSE(exists("Dati/C-I-D.bin"));
  EXPECT_TRUE(exists("Report/TIME.csv"));
  const Lines said = log();
  ASSERT_EQ(said.size(), 3U);
  EXPECT_TRUE(said[0].starts_with("Receive_ReportEcr error. File 3 Code: 1001 Desc: "));
  EXPECT_EQ(said[1], "Time for download report 12 is:0");
  EXPECT_EQ(said[2], "Receive_ReportEcr error using regwire");
}

TEST_F(ExportRun, AsksForTheStockFromTheLowestQuantityOn) {
  link();
  run({20, 21, 5}, 125);
  EXPECT_EQ(link().calls, (Lines{"send_cmd folder=. direction=0 file=20 timeout=60 port=4",
                                 "range_report folder=. file=21 timeout=120 from=125 to=9999 port=4",
                                 "range_report folder=. file=5 timeout=120 from=1 to=99 port=4",
                                 "send_cmd folder=. direction=0 file=22 timeout=60 port=4"}));
}

TEST(LowestQuantity, IsTheNumberInFrontOfWhatWasTyped) {
  const std::vector<std::pair<std::string, std::int32_t>> rows = {{"0", 0},
                                                                  {"", 0},
                                                                  {"17", 17},
                                                                  {"0017", 17},
                                                                  {"9999", 9999},
                                                                  {"123456", 123456},
                                                                  {"12x", 12},
                                                                  {"-5", 0},
                                                                  {"2147483647", 2147483647},
                                                                  {"99999999999999999999", 2147483647}};
  for (const auto& [typed, quantity] : rows) EXPECT_EQ(lowest_quantity_of(typed), quantity) << typed;
}

TEST_F(ExportRun, LogsAReportThatWasDeliveredUnderAnotherName) {
  link().deliveries[22] = {"RELEA.BIN", "banner"};
  run({});
  EXPECT_EQ(log(), (Lines{"export_ReportEcr. file per report 22 non trovato", "Time for download report 22 is:0"}));
}

TEST_F(ExportRun, AFileThatCannotBeWrittenIsLoggedAtTheEndAndAnswered) {
  link().deliveries[3] = {"C-I-D.bin", ""};
  link().deliveries[12] = {"TIME.bin", ""};
  link().deliveries[22] = {"RELEASE.BIN", "banner"};
  make_folder("Report/C-I-D.csv");
  run({3, 12});
  EXPECT_TRUE(exists("Report/TIME.csv")) << "the others are written";
  EXPECT_EQ(log(),
            (Lines{"Time for download report 3 is:0", "Time for download report 12 is:0",
                   "Time for download report 22 is:0", "C_Export_click err: 75 Desc: Path or file access error"}));
  ASSERT_EQ(unwritten.size(), 1U);
  EXPECT_EQ(unwritten[0].file, "C-I-D.csv");
  EXPECT_EQ(unwritten[0].fault.number(), 75);
}

TEST_F(ExportRun, OfSeveralFaultsTheLastOneIsLogged) {
  link().deliveries[3] = {"C-I-D.bin", ""};
  link().deliveries[12] = {"TIME.bin", ""};
  link().deliveries[22] = {"RELEASE.BIN", "banner"};
  make_folder("Report/C-I-D.csv");
  make_folder("Report/TIME.csv");
  run({3, 12});
  const Lines said = log();
  EXPECT_EQ(
      std::count_if(said.begin(), said.end(), [](const std::string& line) { return line.starts_with("C_Export"); }), 1);
  EXPECT_EQ(said.back(), "C_Export_click err: 75 Desc: Path or file access error");
  ASSERT_EQ(unwritten.size(), 2U);
  EXPECT_EQ(unwritten[0].file, "C-I-D.csv");
  EXPECT_EQ(unwritten[1].file, "TIME.csv");
}

TEST_F(ExportRun, ARunInWhichAllIsWrittenLogsNoFault) {
  link().deliveries[3] = {"C-I-D.bin", ""};
  link().deliveries[22] = {"RELEASE.BIN", "banner"};
  run({3});
  EXPECT_TRUE(unwritten.empty());
  EXPECT_EQ(log(), (Lines{"Time for download report 3 is:0", "Time for download report 22 is:0"}));
}

}  // namespace
}  // namespace ecr::test

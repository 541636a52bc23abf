#include "link/report_fetch.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

#include "core/global.h"
#include "link/report_rows.h"
#include "support/fake_system.h"
#include "support/installation.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

class ReportFetch : public InstallationTest {
 protected:
  ReportFetch() {
    Global::ComPort = 4;
    system.running = {{51, "regwire.exe"}};
  }

  static std::string fetch_call(int report, int timeout) {
    return "send_cmd folder=. direction=0 file=" + std::to_string(report) + " timeout=" + std::to_string(timeout) +
           " port=4";
  }

  FakeSystem system;
};

TEST_F(ReportFetch, EveryReportHasItsTimeout) {
  const std::vector<std::pair<int, std::vector<int>>> timeouts = {
      {60, {3, 4, 6, 8, 9, 10, 11, 13, 14, 15, 18, 20, 22}}, {180, {7}}, {2, {12}}, {360, {16, 17, 19}}};
  for (const auto& [timeout, reports] : timeouts) {
    for (const int report : reports) {
      link().calls.clear();
      EXPECT_TRUE(Receive_ReportEcr(static_cast<std::uint8_t>(report)));
      EXPECT_EQ(link().calls, Lines{fetch_call(report, timeout)});
    }
  }
  EXPECT_TRUE(log().empty());
}

TEST_F(ReportFetch, Report5AsksForItsWholeRange) {
  EXPECT_TRUE((link(), Receive_ReportEcr(5)));
  EXPECT_EQ(link().calls, Lines{"range_report folder=. file=5 timeout=120 from=1 to=99 port=4"});
}

TEST_F(ReportFetch, Report21AsksFromTheRecordThatItIsGiven) {
  for (const std::int32_t first : {0, 17, 9999, 123456, std::numeric_limits<std::int32_t>::max()}) {
    link().calls.clear();
    EXPECT_TRUE(Receive_ReportEcr(21, {.first_record = first}));
    EXPECT_EQ(link().calls,
              Lines{"range_report folder=. file=21 timeout=120 from=" + std::to_string(first) + " to=9999 port=4"});
  }
  link().calls.clear();
  EXPECT_TRUE(Receive_ReportEcr(21));
  EXPECT_EQ(link().calls, Lines{"range_report folder=. file=21 timeout=120 from=0 to=9999 port=4"});
}

TEST_F(ReportFetch, NoOtherReportTakesTheRecordThatItIsGiven) {
  link();
  EXPECT_TRUE(Receive_ReportEcr(5, {.first_record = 17}));
  EXPECT_TRUE(Receive_ReportEcr(20, {.first_record = 17}));
  EXPECT_EQ(link().calls, (Lines{"range_report folder=. file=5 timeout=120 from=1 to=99 port=4", fetch_call(20, 60)}));
}

TEST_F(ReportFetch, ANumberThatIsNoReportsMovesAndAsksNothing) {
  write("Dati/TIME.bin", "kept");
  link();
  for (const int number : {0, 1, 2, 23, 24, 255}) EXPECT_FALSE(Receive_ReportEcr(static_cast<std::uint8_t>(number)));
  EXPECT_TRUE(link().calls.empty());
  EXPECT_EQ(bytes("Dati/TIME.bin"), "kept");
}

TEST_F(ReportFetch, AnOlderReportIsMovedAwayBeforeTheNewOneArrives) {
  FakeLink& fake = link();
  fake.deliveries[12] = {"TIME.bin", "new"};
  write("Dati/TIME.bin", "old");
  bool moved = false;
  fake.after_call = [&] { moved = bytes("Dati/Report/TIME.bin") == "old"; };
  EXPECT_TRUE(Receive_ReportEcr(12));
  EXPECT_TRUE(moved);
  EXPECT_EQ(bytes("Dati/TIME.bin"), "new");
}

TEST_F(ReportFetch, ASecondFetchReplacesTheReportThatWasDisplacedBefore) {
  FakeLink& fake = link();
  for (const char* content : {"first", "the second one", "3"}) {
    fake.deliveries[12] = {"TIME.bin", content};
    EXPECT_TRUE(Receive_ReportEcr(12));
  }
  EXPECT_EQ(bytes("Dati/TIME.bin"), "3");
  EXPECT_EQ(bytes("Dati/Report/TIME.bin"), "the second one");
}

TEST_F(ReportFetch, AFailedFetchLeavesNoReportOfThatNumber) {
  write("Dati/TIME.bin", "old");
  link().answers[12] = {1, 4097};
  EXPECT_FALSE(Receive_ReportEcr(12));
  EXPECT_FALSE(exists("Dati/TIME.bin"));
  EXPECT_EQ(bytes("Dati/Report/TIME.bin"), "old");
}

TEST_F(ReportFetch, TheFirstFileByNameIsMovedWhateverItsCaseAndOnlyThatOne) {
  write("Dati/TIME 2.BIN", "second");
  write("Dati/TIME 1.bin", "first");
  write("Dati/time 0.bin", "third by name, for small letters come last");
  write("Dati/TIME.txt", "no report");
  link();
  EXPECT_TRUE(Receive_ReportEcr(12));
  EXPECT_FALSE(exists("Dati/TIME 1.bin"));
  EXPECT_EQ(bytes("Dati/Report/TIME 1.bin"), "first");
  EXPECT_TRUE(exists("Dati/TIME 2.BIN") && exists("Dati/time 0.bin") && exists("Dati/TIME.txt"));
  EXPECT_TRUE(Receive_ReportEcr(12));
  EXPECT_EQ(bytes("Dati/Report/TIME 2.BIN"), "second") << "the name keeps its case";
  EXPECT_TRUE(Receive_ReportEcr(12));
  EXPECT_FALSE(exists("Dati/time 0.bin"));
}

TEST_F(ReportFetch, ANameThatBeginsLikeAnotherIsMovedWithIt) {
  // The names of two reports begin alike; that a fetch of the shorter one takes the longer one's file is so.
  write("Dati/FINANCIAL2.bin", "of report 14");
  link();
  EXPECT_TRUE(Receive_ReportEcr(4));
  EXPECT_EQ(bytes("Dati/Report/FINANCIAL2.bin"), "of report 14");
  write("Dati/FINANCIAL2.bin", "of report 14");
  write("Dati/FINANCIAL.bin", "of report 4");
  EXPECT_TRUE(Receive_ReportEcr(4));
  EXPECT_EQ(bytes("Dati/Report/FINANCIAL.bin"), "of report 4");
  EXPECT_TRUE(exists("Dati/FINANCIAL2.bin"));
}

TEST_F(ReportFetch, EveryReportDisplacesTheFileOfItsOwnName) {
  link();
  for (std::uint8_t report = 3; report <= 22; ++report) {
    const std::string name = std::string{report_name(report)} + " 01.bin";
    SCOPED_TRACE(name);
    write("Dati/" + name, "old " + name);
    EXPECT_TRUE(Receive_ReportEcr(report));
    EXPECT_FALSE(exists("Dati/" + name));
    EXPECT_EQ(bytes("Dati/Report/" + name), "old " + name);
  }
}

TEST_F(ReportFetch, ACallThatCouldNotBeMadeIsLogged) {
  for (const int report : {4, 5, 12, 21}) {
    for (const std::int32_t returned : {0, 2, -1}) {
      remove("Log/memo_log.txt");
      link().answer = {returned, 0};
      EXPECT_FALSE(Receive_ReportEcr(static_cast<std::uint8_t>(report)));
      EXPECT_EQ(log(), Lines{"Receive_ReportEcr error using regwire"});
      EXPECT_TRUE(system.ended.empty());
    }
  }
}

TEST_F(ReportFetch, ARefusalIsLoggedWithItsNumberItsCodeInHexadecimalAndItsText) {
  struct Row {
    int report;
    std::int32_t code;
    const char* line;
  };
  const Row rows[] = {
      {12, 1025, "Receive_ReportEcr error. File 12 Code: 401 Desc: The USB-COM port cannot be opened."},
      {4, 4098, "Receive_ReportEcr error. File 4 Code: 1002 Desc: The error was returned from the ECR side."},
      {5, 515, "Receive_ReportEcr error. File 5 Code: 203 Desc: The RANGE1 parameter is larger than RANGE2."},
      {21, 171, "Receive_ReportEcr error. File 21 Code: AB Desc: No description"},
      {16, 9999, "Receive_ReportEcr error. File 16 Code: 270F Desc: Timeout Error"},
      {7, -2, "Receive_ReportEcr error. File 7 Code: FFFFFFFE Desc: No description"},
  };
  for (const Row& row : rows) {
    remove("Log/memo_log.txt");
    link().answer = {1, row.code};
    EXPECT_FALSE(Receive_ReportEcr(static_cast<std::uint8_t>(row.report)));
    EXPECT_EQ(log(), Lines{row.line});
  }
}

TEST_F(ReportFetch, ATimeoutEndsTheToolExceptBehindARangeReport) {
  link().answer = {1, 9999};
  for (std::uint8_t report = 3; report <= 22; ++report) {
    system.ended.clear();
    system.running = {{51, "regwire.exe"}};
    EXPECT_FALSE(Receive_ReportEcr(report));
    EXPECT_EQ(system.ended.size(), report == 5 || report == 21 ? 0U : 1U) << static_cast<int>(report);
  }
  system.ended.clear();
  link().answer = {1, 4098};
  EXPECT_FALSE(Receive_ReportEcr(4));
  EXPECT_TRUE(system.ended.empty()) << "no other code does";
}

TEST_F(ReportFetch, AFileThatCannotBeMovedIsToldBehindTheFetch) {
  write("Dati/TIME.bin", "old");
  remove("Dati/Report");
  link();
  EXPECT_TRUE(Receive_ReportEcr(12)) << "the fetch itself went well";
  EXPECT_EQ(log(), Lines{"Receive_ReportEcr 12: Path not found"});
  EXPECT_FALSE(exists("Dati/TIME.bin")) << "it is deleted all the same";
}

TEST_F(ReportFetch, AFileThatCannotBeMovedIsToldBehindTheLineOfAFailedFetch) {
  write("Dati/MSK.bin", "old");
  make_folder("Dati/Report/MSK.bin");
  link().answer = {1, 1025};
  EXPECT_FALSE(Receive_ReportEcr(21));
  EXPECT_EQ(log(), (Lines{"Receive_ReportEcr error. File 21 Code: 401 Desc: The USB-COM port cannot be opened.",
                          "Receive_ReportEcr 21: Path or file access error"}));
}

TEST_F(ReportFetch, AFolderOfTheReportsNameIsNoOldReport) {
  make_folder("Dati/TIME.bin");
  link();
  EXPECT_TRUE(Receive_ReportEcr(12));
  EXPECT_TRUE(exists("Dati/TIME.bin"));
  EXPECT_TRUE(log().empty());
}

TEST_F(ReportFetch, WithoutADataFolderTheFetchIsStillMade) {
  remove("Dati");
  link();
  EXPECT_TRUE(Receive_ReportEcr(12));
  EXPECT_EQ(link().calls, Lines{fetch_call(12, 2)});
}

TEST_F(ReportFetch, AFetchThatSkipsTheLogTellsOfNothingThatWentWrong) {
  write("Dati/TIME.bin", "older");
  remove("Dati/Report");
  write("Dati/Report", "a file in place of the folder");
  for (const LinkAnswer& answer : {LinkAnswer{1, 0}, {1, 1025}, {1, 9999}, {0, 0}}) {
    write("Dati/TIME.bin", "older");
    link().answer = answer;
    system.ended.clear();
    EXPECT_EQ(Receive_ReportEcr(12, {.skip_log = true}), answer.returned == 1 && answer.result_code == 0);
    EXPECT_EQ(system.ended.size(), answer.result_code == 9999 ? 1U : 0U) << "the hanging tool is ended as ever";
    system.running = {{51, "regwire.exe"}};
  }
  EXPECT_TRUE(log().empty());
  EXPECT_FALSE(Receive_ReportEcr(12));
  EXPECT_EQ(log().front(), "Receive_ReportEcr error using regwire");
}

}  // namespace
}  // namespace ecr::test

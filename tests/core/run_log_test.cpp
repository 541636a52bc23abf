#include "core/run_log.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/global.h"
#include "support/fake_system.h"
#include "support/installation.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

class RunLog : public InstallationTest {};

#ifdef _WIN32
constexpr const char* line_end = "\r\n";
#else
constexpr const char* line_end = "\n";
#endif

TEST_F(RunLog, ALineHoldsTheDateTheTimeAndTheText) {
  shell.moment = {5, 3, 2027, 9 * 3600 + 7 * 60 + 3.75};
  memo_log("End Programm");
  EXPECT_EQ(bytes("Log/memo_log.txt"), std::string{"05-03-27 09:07:03 End Programm"} + line_end);
}

TEST_F(RunLog, TwoCallsInTheSameSecondGiveTwoLines) {
  memo_log("same");
  memo_log("same");
  EXPECT_EQ(bytes("Log/memo_log.txt"),
            std::string{"20-11-26 12:00:00 same"} + line_end + "20-11-26 12:00:00 same" + line_end);
}

TEST_F(RunLog, TheFileIsOnlyEverAppendedTo) {
  write("Log/memo_log.txt", "from another day, without a line end");
  memo_log("new");
  EXPECT_EQ(bytes("Log/memo_log.txt"),
            std::string{"from another day, without a line end20-11-26 12:00:00 new"} + line_end);
  shell.moment.day = 21;
  memo_log("next day");
  EXPECT_TRUE(bytes("Log/memo_log.txt").ends_with(std::string{"21-11-26 12:00:00 next day"} + line_end))
      << "one file, whatever the date";
}

TEST_F(RunLog, AnEmptyTextIsALineToo) {
  memo_log("");
  EXPECT_EQ(bytes("Log/memo_log.txt"), std::string{"20-11-26 12:00:00 "} + line_end);
}

TEST_F(RunLog, AnyBytesAreWrittenAsTheyAre) {
  memo_log("caf\xE9 \x80\x01");
  EXPECT_EQ(bytes("Log/memo_log.txt"), std::string{"20-11-26 12:00:00 caf\xE9 \x80\x01"} + line_end);
}

TEST_F(RunLog, AHeldLogIsTriedAgainUntilItIsFree) {
  FakeSystem system;
  int attempts = 0;
  system.on_append = [&attempts](const std::string& path, std::string_view line) {
    // Held by another process, then barred, then free.
    ++attempts;
    if (attempts <= 3) return Fault{FaultCode::permission_denied};
    if (attempts <= 6) return Fault{FaultCode::path_access};
    return host_system().append_file(path, line);
  };
  memo_log("at last");
  EXPECT_EQ(attempts, 7);
  EXPECT_EQ(log(), Lines{"at last"});
}

TEST_F(RunLog, AnotherFailureIsItselfLoggedWithItsNumberAndDescription) {
  FakeSystem system;
  int attempts = 0;
  system.on_append = [&attempts](const std::string& path, std::string_view line) {
    return ++attempts == 1 ? Fault{FaultCode::disk_full} : host_system().append_file(path, line);
  };
  memo_log("lost");
  EXPECT_EQ(log(), Lines{"NELLA SCRITTURA FILE:--->  61 Disk full"});
}

TEST_F(RunLog, AFailureThatLastsIsToldOnceAndEnds) {
  FakeSystem system;
  Lines attempts;
  system.on_append = [&attempts](const std::string&, std::string_view line) {
    attempts.emplace_back(line);
    return Fault{FaultCode::disk_full};
  };
  memo_log("lost");
  memo_log("lost too");
  ASSERT_EQ(attempts.size(), 4U);
  EXPECT_TRUE(attempts[0].find(" lost") != std::string::npos) << attempts[0];
  EXPECT_TRUE(attempts[1].find(" NELLA SCRITTURA FILE:--->  61 Disk full") != std::string::npos) << attempts[1];
  EXPECT_TRUE(attempts[3].find(" NELLA SCRITTURA FILE:--->  61 Disk full") != std::string::npos)
      << "the next failure is told again";
}

TEST_F(RunLog, AMissingLogFolderLosesTheLineAndNothingElse) {
  remove("Log");
  memo_log("lost");
  EXPECT_FALSE(exists("Log"));
}

TEST_F(RunLog, AFileInPlaceOfTheLogFolderLosesTheLineAndNothingElse) {
  remove("Log");
  write("Log", "a file");
  memo_log("lost");
  EXPECT_EQ(bytes("Log"), "a file");
}

TEST_F(RunLog, WithoutFoldersALineGoesNowhere) {
  // The first line of a start that failed before the folders were known must not land in the current folder.
  Global::PathLog = Global::PathApp + "nowhere\\";
  memo_log("lost");
  EXPECT_FALSE(exists("nowhere"));
}

TEST_F(RunLog, ALowLevelLineHasNoStamp) {
  scrivi_file(Global::PathLog + "other.txt", "bare");
  scrivi_file(Global::PathLog + "other.txt", "lines");
  EXPECT_EQ(bytes("Log/other.txt"), std::string{"bare"} + line_end + "lines" + line_end);
}

TEST_F(RunLog, AFaultIsLoggedBehindItsPrefix) {
  log_fault("number_to_bcd : ", {FaultCode::overflow});
  EXPECT_EQ(log(), Lines{"number_to_bcd : Overflow"});
}

TEST_F(RunLog, AGuardedBodyThatGoesThroughLogsNothing) {
  bool ran = false;
  EXPECT_TRUE(guarded("Routine: ", [&ran] { ran = true; }));
  EXPECT_TRUE(ran);
  EXPECT_TRUE(log().empty());
}

TEST_F(RunLog, AGuardedBodyEndsAtItsFaultAndLogsIt) {
  bool went_on = false;
  EXPECT_FALSE(guarded("Routine: ", [&went_on] {
    throw FaultError{FaultCode::type_mismatch};
    went_on = true;
  }));
  EXPECT_FALSE(went_on);
  EXPECT_EQ(log(), Lines{"Routine: Type mismatch"});
}

TEST_F(RunLog, TheEndOfTheProgramPassesThroughAGuardedBody) {
  EXPECT_TRUE(ends_program([] { guarded("Routine: ", [] { ecr::shell().end_program(); }); }));
  EXPECT_TRUE(log().empty());
}

}  // namespace
}  // namespace ecr::test

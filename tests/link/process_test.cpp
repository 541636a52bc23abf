#include "link/process.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/global.h"
#include "support/fake_system.h"
#include "support/installation.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;
using Ids = std::vector<std::uint64_t>;

class Processes : public InstallationTest {
 protected:
  FakeSystem system;
};

TEST_F(Processes, AreNamedByTheEndOfTheirExecutableWhateverItsCase) {
  struct Row {
    const char* executable;
    const char* name;
    bool exists;
  };
  const Row rows[] = {
      {"regwire.exe", "regwire.exe", true},
      {"RegWire.EXE", "regwire.exe", true},
      {"regwire.exe", "REGWIRE.exe", true},
      {"myRegWire.exe", "regwire.exe", true},
      {"regwire.exe.bak", "regwire.exe", false},
      {"wire.exe", "regwire.exe", false},
      {"", "regwire.exe", false},
      {"regwire", "regwire.exe", false},
  };
  for (const Row& row : rows) {
    system.running = {{1, "init"}, {2, row.executable}};
    EXPECT_EQ(Process_Exists(row.name), row.exists) << row.executable << " as " << row.name;
  }
  system.running.clear();
  EXPECT_FALSE(Process_Exists("regwire.exe"));
}

TEST_F(Processes, TheFirstOfTheNameIsEnded) {
  system.running = {{10, "shell"}, {11, "OldRegWire.exe"}, {12, "regwire.exe"}, {13, "regwire.exe"}};
  EXPECT_TRUE(Process_Kill("regwire.exe"));
  EXPECT_EQ(system.ended, Ids{11}) << "a longer name with this end counts, and the first counts";
  EXPECT_TRUE(Process_Kill("RegWire.exe"));
  EXPECT_TRUE(Process_Kill("regwire.exe"));
  EXPECT_EQ(system.ended, (Ids{11, 12, 13}));
  EXPECT_FALSE(Process_Kill("regwire.exe"));
  EXPECT_EQ(system.ended.size(), 3U);
}

TEST_F(Processes, AKillThatTheSystemRefusesIsNoKill) {
  system.running = {{11, "regwire.exe"}, {12, "regwire.exe"}};
  system.refuses_to_end = true;
  EXPECT_FALSE(Process_Kill("regwire.exe"));
  EXPECT_EQ(system.ended, Ids{11}) << "the next one is not tried";
}

TEST_F(Processes, TheExchangeToolIsRegwire) {
  EXPECT_EQ(exchange_tool, "regwire.exe");
}

TEST_F(Processes, AWaitEndsWhenNoProcessOfTheNameRuns) {
  system.running = {{1, "tool.exe"}};
  int turns = 0;
  shell.on_screens_work = [&] {
    if (++turns == 5) system.running.clear();
  };
  Process_Wait("tool.exe");
  EXPECT_EQ(turns, 5);
  EXPECT_TRUE(log().empty());
}

TEST_F(Processes, AWaitForNothingDoesNotLetTheScreensWork) {
  int turns = 0;
  shell.on_screens_work = [&turns] { ++turns; };
  Process_Wait("tool.exe");
  EXPECT_EQ(turns, 0);
}

TEST_F(Processes, AWaitIsLoggedAtEachTurnInDebugMode) {
  Global::DebugMode = true;
  system.running = {{1, "tool.exe"}};
  int turns = 0;
  shell.on_screens_work = [&] {
    if (++turns == 3) system.running.clear();
  };
  Process_Wait("tool.exe");
  EXPECT_EQ(log(), (Lines{"attesa", "attesa", "attesa"}));
}

// A wait by the clock

TEST_F(Processes, ATimedWaitLastsItsSeconds) {
  const double start = shell.moment.second_of_day;
  Aspetta(2.5, Work::taking_in_items);
  EXPECT_GE(shell.moment.second_of_day - start, 2.5);
  EXPECT_LT(shell.moment.second_of_day - start, 2.6);
  EXPECT_EQ(shell.waits, std::vector<WorkInHand>{{Work::taking_in_items}});
  EXPECT_EQ(shell.seconds_waited, std::vector<double>{2.5});
}

TEST_F(Processes, ATimedWaitOfNothingIsOverAtOnce) {
  int turns = 0;
  shell.on_screens_work = [&turns] { ++turns; };
  Aspetta(0);
  Aspetta(-1);
  EXPECT_EQ(turns, 0);
}

TEST_F(Processes, MidnightEndsATimedWait) {
  shell.moment.second_of_day = 86399.9;
  int turns = 0;
  shell.on_screens_work = [&turns] {
    if (++turns == 100) throw ProgramEnded{};
  };
  EXPECT_FALSE(ends_program([] { Aspetta(3600); })) << "it went on behind midnight";
  EXPECT_LT(shell.moment.second_of_day, 1);
  EXPECT_LE(turns, 3) << "the first turn behind midnight ends it";
}

TEST_F(Processes, ATimedWaitInFrontOfMidnightIsNotCutShort) {
  shell.moment.second_of_day = 86000;
  Aspetta(300);
  EXPECT_GE(shell.moment.second_of_day, 86300);
}

}  // namespace
}  // namespace ecr::test

#include "app/entry.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "core/catalogue.h"
#include "core/files.h"
#include "lang/language.h"
#include "screens/start_screen.h"

namespace ecr::test {
namespace {

class EntryTest : public StartScreenTest {
 protected:
  EntryTest() {
    write("Setup/FrmDescEng.txt", "FRM_PRES_C_EXIT=Quit\nFRM_ALL_PROGRAM_KO_MSG=Not sent\n");
    write("Setup/UK.gif", "");
  }

  void start_with(const char* command_line) {
    Main(stage, QString::fromStdString(host("")).chopped(1), QString::fromLatin1(command_line));
    start = dynamic_cast<FrmPres*>(stage.top());
  }
};

using Lines = std::vector<std::string>;

TEST_F(EntryTest, BuildsTheFoldersReadsTheLanguageAndShowsTheStartScreen) {
  for (const char* folder : {"Log", "Dati", "Setup/none", "Report"}) remove(folder);
  start_with("");
  EXPECT_EQ(top(), QStringLiteral("FrmPres"));
  EXPECT_TRUE(start->isVisible());
  EXPECT_EQ(host_path(Global::PathApp), host(""));
  for (const char* folder : {"Log", "Dati", "Dati/Report", "Report"}) EXPECT_TRUE(exists(folder)) << folder;
  EXPECT_EQ(bytes("Setup/Language.ini"), std::string(1, '\0'));
  EXPECT_EQ(caption("C_Exit"), QStringLiteral("Quit"));
  EXPECT_EQ(MsgProgramKo, "Not sent");
  EXPECT_FALSE(Global::DebugMode);
}

TEST_F(EntryTest, TakesTheLanguageThatWasChosenLast) {
  write("Setup/Language.ini", "\x03");
  write("Setup/FrmDescGer.txt", "FRM_PRES_C_EXIT=Ende\n");
  write("Setup/Germany.gif", "");
  start_with("");
  EXPECT_EQ(caption("C_Exit"), QStringLiteral("Ende"));
  EXPECT_EQ(Global::PathHelp, Global::PathApp + "help\\ge\\");
}

TEST_F(EntryTest, AMissingLanguageFileIsToldAndEnglishFollows) {
  write("Setup/Language.ini", "\x02");
  expect_box(BoxKind::information, "The file of the languagge specificated doesn't exist. The program work in english");
  start_with("");
  EXPECT_EQ(LanguageNumber, 0);
  EXPECT_EQ(caption("C_Exit"), QStringLiteral("Quit"));
}

TEST_F(EntryTest, ALanguageNumberOutsideTheTableEndsInEnglishToo) {
  write("Setup/Language.ini", "\xC8");
  expect_box(BoxKind::information, "The file of the languagge specificated doesn't exist. The program work in english");
  start_with("");
  EXPECT_EQ(LanguageNumber, 0);
}

TEST_F(EntryTest, OnlyTheWordDebugAloneWidensTheLog) {
  const std::pair<const char*, bool> words[] = {{"DEBUG", true},    {"debug", true},    {"Debug", true},
                                                {"DEBUG x", false}, {"x DEBUG", false}, {"", false}};
  for (const auto& [word, widens] : words) {
    start_with(word);
    EXPECT_EQ(Global::DebugMode, widens) << word;
  }
}

TEST_F(EntryTest, TheStartScreenIsPaintedBeforeTheFirstDiscovery) {
  system.captions = {"USB Serial Port (COM4)"};
  bool painted = false;
  bool painted_at_first_call = false;
  class Watcher : public QObject {
   public:
    explicit Watcher(bool& flag) : painted_{flag} {}

   protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
      if (event->type() == QEvent::Paint && watched->objectName() == QStringLiteral("E_ComPort")) painted_ = true;
      return QObject::eventFilter(watched, event);
    }

   private:
    bool& painted_;
  } watcher{painted};
  QCoreApplication::instance()->installEventFilter(&watcher);
  watched.on_run_beside = [&](Waiting) { painted_at_first_call = painted; };
  start_with("");
  EXPECT_EQ(link().calls, Lines{}) << "the entry routine itself asks nothing of the link";
  work_until([this] { return !link().calls.empty(); });
  EXPECT_TRUE(painted_at_first_call);
  EXPECT_EQ(port(), QStringLiteral("4"));
}

TEST_F(EntryTest, TheFirstDiscoveryRunsOnce) {
  system.captions = {"USB Serial Port (COM4)"};
  start_with("");
  work_until([this] { return !link().calls.empty(); });
  stage.resize(1000, 690);
  start->repaint();
  let_screens_settle();
  EXPECT_EQ(link().calls.size(), 1U);
}

TEST_F(EntryTest, WhatASaveThatWasCutOffHasLeftIsGoneBehindTheStart) {
  system.captions = {"USB Serial Port (COM4)"};
  write("Dati/PRG_MODE.BIN.K4W4Se", "half");
  write("Dati/PRG_MODE.BIN.backup", "the owner's");
  start_with("");
  work_until([this] { return !link().calls.empty(); });
  EXPECT_FALSE(exists("Dati/PRG_MODE.BIN.K4W4Se"));
  EXPECT_TRUE(exists("Dati/PRG_MODE.BIN.backup"));
  EXPECT_EQ(log_behind_start(), Lines{"Removed what a save that was cut off had left: PRG_MODE.BIN.K4W4Se"});
}

TEST_F(EntryTest, StopClearsAwayWhatASaveHasLeftToo) {
  write("port.ini.K4W4Se", "half");
  stage.hide();
  expect_program_ends([&] { start_with("STOP"); });
  EXPECT_FALSE(exists("port.ini.K4W4Se"));
}

TEST_F(EntryTest, StopDoesThePortAndDriverStepsAndEnds) {
  for (const char* word : {"STOP", "stop"}) {
    remove("Log/memo_log.txt");
    system.tools_apply = true;
    stage.hide();
    write("Driver/FTDI_Setup.exe", "tool");
    expect_program_ends([&] {
      bool was_shown = false;
      watched.on_run_beside = [&](Waiting) { was_shown = was_shown || stage.isVisible(); };
      system.captions = {"Modem (COM3)"};
      link().register_port = 9;
      start_with(word);
    });
    const Lines lines = log();
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_TRUE(lines[0].starts_with("Start Programm "));
    EXPECT_TRUE(lines[1].starts_with("Receive_ReportEcr error. File 12 "));
    EXPECT_EQ(lines[2], "FTDI_Setup.exe started");
    EXPECT_EQ(lines[3], "End Programm");
  }
}

TEST_F(EntryTest, StopShowsNothing) {
  stage.hide();
  system.captions = {"USB Serial Port (COM4)"};
  expect_program_ends([&] {
    watched.on_run_beside = [&](Waiting) { EXPECT_FALSE(stage.isVisible()); };
    start_with("STOP");
  });
}

TEST_F(EntryTest, StopWithASecondWordIsAnOrdinaryStart) {
  start_with("STOP now");
  EXPECT_EQ(top(), QStringLiteral("FrmPres"));
}

}  // namespace
}  // namespace ecr::test

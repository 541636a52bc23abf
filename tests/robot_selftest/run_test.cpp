// What goes well, and what stands around the scripts: installations, logs, pictures, limits, sums.

#include <filesystem>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QProcess>

#include "robot/runner/host.h"
#include "robot_run.h"

namespace ecr::test {
namespace {

QString read(const QString& path) {
  QFile file{path};
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString{};
}

class AScript : public RobotRun, public ::testing::WithParamInterface<const char*> {};

TEST_P(AScript, Passes) {
  // As much patience as a user's scripts have.
  set_environment("VERMANTO_ROBOT_PATIENCE", QStringLiteral("2"));
  const QString name =
      QStringLiteral(SCRIPTS) + QLatin1Char('/') + QLatin1String(GetParam()) + QStringLiteral(".robot");
  const Outcome outcome = run({name});
  EXPECT_EQ(outcome.status, 0) << outcome.text().toStdString();
  EXPECT_EQ(outcome.lines.last(), QStringLiteral("1 passed, 0 failed"));
  EXPECT_EQ(leftovers(), QStringList{});
}

INSTANTIATE_TEST_SUITE_P(Practice, AScript,
                         ::testing::Values("starting", "boxes", "resting", "fields", "lists", "choosers", "files",
                                           "register", "traces"),
                         [](const auto& script) { return std::string{script.param}; });

class ARun : public RobotRun {};

TEST_F(ARun, SumsUpAllScriptsAndEndsWithTheWorst) {
  const QString good = script(QStringLiteral("expect-file Setup folder\n"), QStringLiteral("good.robot"));
  const QString unmet =
      script(QStringLiteral("expect-file Setup missing\nexpect-lines no 1\n"), QStringLiteral("unmet.robot"));
  const QString fault = script(QStringLiteral("clik\n"), QStringLiteral("fault.robot"));
  Outcome outcome = run({good, good});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.lines.last(), QStringLiteral("2 passed, 0 failed"));
  outcome = run({unmet, good});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.lines.last(), QStringLiteral("1 passed, 1 failed"));
  outcome = run({unmet, fault, good});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.lines.last(), QStringLiteral("1 passed, 2 failed"));
  // Of each script the first line that goes wrong is told, and no other.
  EXPECT_TRUE(outcome.lines.contains(QStringLiteral("unmet.robot:1: expect-file Setup missing")));
  EXPECT_TRUE(outcome.lines.contains(QStringLiteral("fault.robot:1: clik")));
  EXPECT_FALSE(outcome.text().contains(QStringLiteral("unmet.robot:2")));
}

TEST_F(ARun, TakesScriptsWithAnyLineEndsBlanksAndAMarkInFront) {
  const QString text =
      QStringLiteral("\uFEFF# first\r\n\r\n   expect-file\tSetup   folder  \r\n\t# last\r\nexpect-file no missing");
  const Outcome outcome = run({script(text)});
  EXPECT_EQ(outcome.status, 0) << outcome.text().toStdString();
}

TEST_F(ARun, ReadsTheLinesOfAnIncludedScriptAsIfTheyStoodThere) {
  script(QStringLiteral("# remarks do not count\nmake-folder one\ninclude deeper/two.robot\nexpect-file two folder\n"),
         QStringLiteral("shared/one.robot"));
  script(QStringLiteral("make-folder two\nwrite script/beside.txt x"), QStringLiteral("shared/deeper/two.robot"));
  script(QString{}, QStringLiteral("shared/nothing.robot"));
  const Outcome outcome =
      run({script(QStringLiteral("expect-file one missing\ninclude shared/one.robot\n"
                                 "expect-file one folder\ninclude shared/nothing.robot\n"
                                 "include \"shared/../shared/deeper/two.robot\"\n"))});
  EXPECT_EQ(outcome.status, 0) << outcome.text().toStdString();
  EXPECT_TRUE(outcome.lines.first().startsWith(QStringLiteral("case.robot: passed, 8 lines in ")))
      << outcome.text().toStdString();
  EXPECT_EQ(read(path(QStringLiteral("beside.txt"))), QStringLiteral("x"))
      << "the folder of the script is that of the one that was given to the robot";
}

TEST_F(ARun, TellsOfALineInAnIncludedScriptWhereItStandsAndWhatBroughtItIn) {
  script(QStringLiteral("start\ninclude deeper/two.robot"), QStringLiteral("shared/one.robot"));
  script(QStringLiteral("\nexpect-title Other"), QStringLiteral("shared/deeper/two.robot"));
  const Outcome outcome = run({QStringLiteral("--log"), QStringLiteral("logs/all.log"),
                               script(QStringLiteral("# first\ninclude shared/one.robot\nclose\n"))});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.lines,
            (QStringList{QStringLiteral("shared/deeper/two.robot:2: expect-title Other"),
                         QStringLiteral("    expected: the title \"Other\""),
                         QStringLiteral("    found:    \"Practice \u00e9\""),
                         QStringLiteral("    included: shared/one.robot:2: include deeper/two.robot"),
                         QStringLiteral("    included: case.robot:2: include shared/one.robot"),
                         QStringLiteral("    picture:  ") + path(QStringLiteral("logs/all-case-two-line-2.png")),
                         QStringLiteral("0 passed, 1 failed")}));
  EXPECT_TRUE(read(path(QStringLiteral("logs/all.log"))).contains(QStringLiteral("shared/one.robot:1: start")));
}

TEST_F(ARun, NamesAnIncludedScriptAsTheUserNamedTheFirst) {
  script(QStringLiteral("expect-file Setup missing"), QStringLiteral("a/shared.robot"));
  const QString name = script(QStringLiteral("include ../a/shared.robot"), QStringLiteral("b/case.robot"));
  EXPECT_EQ(run({name}).lines.value(0), QStringLiteral("a/shared.robot:1: expect-file Setup missing"));
  EXPECT_EQ(run({path(name)}).lines.value(0), path(QStringLiteral("a/shared.robot:1: expect-file Setup missing")));
}

TEST_F(ARun, FailsAtTheEndOfTheScriptAlsoWhereThatIsIncluded) {
  script(QStringLiteral("\n\n\nstart\ncheck Chk_CrashOnClose on"), QStringLiteral("shared.robot"));
  const Outcome outcome = run({script(QStringLiteral("# first\ninclude shared.robot"))});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.lines.value(0), QStringLiteral("case.robot:3: (the end of the script)"));
}

TEST_F(ARun, GivesEachScriptAFreshInstallation) {
  const QString text =
      QStringLiteral("expect-file Setup/mine.txt missing\nwrite Setup/mine.txt x\npoke Setup/words.txt 0 00\n");
  EXPECT_EQ(run({script(text), script(text)}).status, 0);
  EXPECT_EQ(read(QStringLiteral(PRACTICE_APP "/Setup/words.txt")), QStringLiteral("one\r\ntwo\r\nthree"));
}

TEST_F(ARun, ChangesNoPageOfTheUntouchedManual) {
  const QString text = QStringLiteral(
      "expect-text help/eng/contents.html \"<p>Contents</p>\\n\"\npoke help/eng/contents.html 3 78\n"
      "expect-text help/eng/contents.html \"<p>xontents</p>\\n\"\ndelete help/eng/second.html\n");
  const Outcome outcome = run({script(text), script(text)});
  EXPECT_EQ(outcome.status, 0) << outcome.text().toStdString();
  EXPECT_EQ(read(QStringLiteral(PRACTICE_APP "/help/eng/contents.html")), QStringLiteral("<p>Contents</p>\n"));
  EXPECT_EQ(read(QStringLiteral(PRACTICE_APP "/help/eng/second.html")), QStringLiteral("<p>Second</p>\n"));
}

TEST_F(ARun, RemovesTheInstallationAlsoWhenTheScriptFails) {
  EXPECT_EQ(run({script(QStringLiteral("start\nexpect-ended"))}).status, 1);
  EXPECT_EQ(leftovers(), QStringList{});
}

TEST_F(ARun, KeepsTheInstallationWhenAsked) {
  const Outcome outcome = run({QStringLiteral("--keep"), script(QStringLiteral("start\nwrite Setup/mine.txt x"))});
  EXPECT_EQ(outcome.status, 0);
  const QString words = QStringLiteral("case.robot: kept in ");
  ASSERT_TRUE(outcome.lines.first().startsWith(words)) << outcome.text().toStdString();
  const QString kept = outcome.lines.first().mid(words.size());
  EXPECT_EQ(read(kept + QStringLiteral("/Setup/mine.txt")), QStringLiteral("x"));
  // Whoever works with it changes nothing elsewhere.
  for (const char* file : {"/vermanto" EXECUTABLE_SUFFIX, "/help/eng/contents.html"}) {
    EXPECT_EQ(std::filesystem::hard_link_count((kept + QLatin1String(file)).toStdString()), 1U) << file;
  }
}

TEST_F(ARun, MakesTheNamedInstallationWhereThereIsNoneAndUsesItAsItStands) {
  const QStringList use = {QStringLiteral("--app"), QStringLiteral("used/app")};
  EXPECT_EQ(run(use + QStringList{script(QStringLiteral("start\nclick C_Log\nwrite Setup/mine.txt x"))}).status, 0);
  EXPECT_EQ(run(use + QStringList{script(QStringLiteral("expect-text Setup/mine.txt x\nexpect-log \"café one\"\nstart\n"
                                                        "expect-no-log \"café one\"\nclick C_Ask\nbox any * No"))})
                .status,
            0);
  EXPECT_EQ(read(path(QStringLiteral("used/app/register/devices.txt"))),
            QStringLiteral("only\nUSB Serial Port (COM4)\n"));
  EXPECT_FALSE(QFile::exists(path(QStringLiteral("used/app/register/calls.txt"))));
  // What a user keeps must not change when the program is built anew.
  EXPECT_EQ(std::filesystem::hard_link_count(path(QStringLiteral("used/app/vermanto" EXECUTABLE_SUFFIX)).toStdString()),
            1U);
}

TEST_F(ARun, WritesALogWithEveryLineAndAPictureOfTheFailureBesideIt) {
  const QStringList log = {QStringLiteral("--log"), QStringLiteral("logs/all.log")};
  const Outcome outcome = run(log + QStringList{script(QStringLiteral("start\nclick C_Fields\nexpect E_Name Berta"))});
  EXPECT_EQ(outcome.status, 1);
  const QString text = read(path(QStringLiteral("logs/all.log")));
  EXPECT_TRUE(text.contains(QStringLiteral("case.robot:2: click C_Fields"))) << text.toStdString();
  EXPECT_TRUE(text.contains(QStringLiteral("case.robot:3: expect E_Name Berta"))) << text.toStdString();
  const QString picture = path(QStringLiteral("logs/all-case-line-3.png"));
  EXPECT_TRUE(outcome.lines.contains(QStringLiteral("    picture:  ") + picture)) << outcome.text().toStdString();
  EXPECT_GT(QImage{picture}.width(), 200);
}

TEST_F(ARun, ShowsWhatTheProgramWroteWhenItCrashes) {
  const Outcome outcome = run({script(QStringLiteral("start\nclick C_Crash"))});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_TRUE(outcome.text().contains(QStringLiteral("the last words"))) << outcome.text().toStdString();
}

TEST_F(ARun, FailsWhenTheProgramCrashesAtTheEndOfTheScript) {
  const Outcome outcome = run({script(QStringLiteral("start\ncheck Chk_CrashOnClose on"))});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.lines.value(0), QStringLiteral("case.robot:3: (the end of the script)"));
  EXPECT_TRUE(outcome.lines.value(2).startsWith(QLatin1String("    found:    it crashed, ")));
  EXPECT_EQ(outcome.lines.last(), QStringLiteral("0 passed, 1 failed"));
}

TEST_F(ARun, WaitsNoLongerThanTheLimit) {
  set_environment("VERMANTO_ROBOT_LIMIT", QStringLiteral("1"));
  struct Case {
    const char* text;
    int line;
    const char* found;
  };
  for (const Case& row :
       {Case{"start\nclick C_Forever\nclick C_Ask", 2, "    found:    screen FrmPracticeStart, the pointer is busy"},
        Case{"start\nclick C_Stuck", 2, "    found:    the program does not answer"},
        Case{"start\ncheck Chk_Refuse on", 3, "    found:    screen FrmPracticeStart"}}) {
    QElapsedTimer taken;
    taken.start();
    const Outcome outcome = run({script(QString::fromLatin1(row.text))});
    EXPECT_EQ(outcome.status, 1) << row.text;
    EXPECT_TRUE(outcome.lines.value(0).startsWith(QStringLiteral("case.robot:%1: ").arg(row.line)))
        << outcome.text().toStdString();
    EXPECT_EQ(outcome.lines.value(1), QStringLiteral("    expected: the program comes to rest within 1 seconds"));
    EXPECT_TRUE(outcome.lines.value(2).startsWith(QLatin1String(row.found))) << outcome.text().toStdString();
    EXPECT_GE(taken.elapsed(), 1000);
    EXPECT_EQ(leftovers(), QStringList{});
  }
}

TEST_F(ARun, DoesNotCountAWaitAgainstTheLimit) {
  set_environment("VERMANTO_ROBOT_LIMIT", QStringLiteral("1"));
  EXPECT_EQ(run({script(QStringLiteral("start\nwait 1.5\nnobox"))}).status, 0);
}

TEST_F(ARun, EndsTheProcessesThatAScriptLeavesBehind) {
  const Outcome outcome =
      run({QStringLiteral("--keep"), script(QStringLiteral("start\nclick C_Process\nexpect-process regwire.exe yes"))});
  ASSERT_EQ(outcome.status, 0) << outcome.text().toStdString();
  const QString kept = outcome.lines.first().mid(QStringLiteral("case.robot: kept in ").size());
  ASSERT_TRUE(QFileInfo::exists(kept));
  for (const robot::HostProcess& process : robot::running_processes()) {
    const QString executable = QDir::fromNativeSeparators(QString::fromStdString(process.executable));
    EXPECT_FALSE(executable.startsWith(kept)) << process.executable;
  }
}

TEST_F(ARun, EndsNoProcessFromElsewhereEvenIfTheInstallationVanishes) {
  QProcess bystander;
  bystander.start(QStringLiteral(PRACTICE_APP "/regwire.exe"), QStringList{});
  ASSERT_TRUE(bystander.waitForStarted());
  EXPECT_EQ(run({script(QStringLiteral("start\nclick C_Process\nexpect-process regwire.exe yes"))}).status, 0);
  const QString vanishing = QStringLiteral("start\nclick C_Vanish\nexpect-file Setup missing\nwait 0.1");
  EXPECT_EQ(run({script(vanishing)}).status, 0);
  EXPECT_EQ(run({QStringLiteral("--app"), QStringLiteral("used"), script(vanishing)}).status, 0);
  EXPECT_FALSE(bystander.waitForFinished(0));
  EXPECT_EQ(bystander.state(), QProcess::Running);
  bystander.kill();
  bystander.waitForFinished();
}

TEST_F(ARun, DrawsTheBoxIntoThePictureAtItsPlace) {
  const Outcome outcome =
      run({script(QStringLiteral("start\npicture script/plain.png\nclick C_Box(3)\npicture script/box.png"))});
  ASSERT_EQ(outcome.status, 0) << outcome.text().toStdString();
  const QImage plain{path(QStringLiteral("plain.png"))};
  const QImage box{path(QStringLiteral("box.png"))};
  ASSERT_EQ(plain.size(), box.size());
  // The box stands in the middle of its window and leaves the corners as they are.
  EXPECT_EQ(plain.copy(0, 0, 50, 50), box.copy(0, 0, 50, 50));
  const QRect middle{plain.width() / 2 - 20, plain.height() / 2 - 20, 40, 40};
  EXPECT_NE(plain.copy(middle), box.copy(middle));
}

}  // namespace
}  // namespace ecr::test

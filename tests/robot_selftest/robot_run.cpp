#include "robot_run.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>

namespace ecr::test {

void RobotRun::SetUpTestSuite() {
  static int count = 1;
  static char name[] = "robot_selftest";
  static char* arguments[] = {name, nullptr};
  static const QCoreApplication application{count, arguments};
}

void RobotRun::SetUp() {
  ASSERT_TRUE(folder_.isValid());
  ASSERT_TRUE(QDir{}.mkpath(path(QStringLiteral("temporary"))));
  set_environment("VERMANTO_ROBOT_FROM", QStringLiteral(PRACTICE_APP));
  set_environment("TMPDIR", path(QStringLiteral("temporary")));
  set_environment("TEMP", path(QStringLiteral("temporary")));
  set_environment("QT_QPA_PLATFORM", QStringLiteral("offscreen"));
  // Expectations that must fail need not be waited for.
  set_environment("VERMANTO_ROBOT_PATIENCE", QStringLiteral("0.1"));
}

QString RobotRun::script(const QString& text, const QString& name) {
  QFile file{path(name)};
  EXPECT_TRUE(QDir{}.mkpath(QFileInfo{file}.absolutePath()));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(text.toUtf8());
  return name;
}

void RobotRun::set_environment(const char* name, const QString& value) {
  environment_.insert(QLatin1String(name), value);
}

Outcome RobotRun::run(const QStringList& arguments) {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (auto entry = environment_.cbegin(); entry != environment_.cend(); ++entry) {
    environment.insert(entry.key(), entry.value());
  }
  process.setProcessEnvironment(environment);
  process.setWorkingDirectory(folder_.path());
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(QStringLiteral(ROBOT_EXECUTABLE),
                QStringList{QStringLiteral("--log"), QStringLiteral("robot.log")} + arguments);
  constexpr int long_enough = 100'000;  // milliseconds
  if (!process.waitForFinished(long_enough) || process.exitStatus() != QProcess::NormalExit) {
    process.kill();
    process.waitForFinished();
    return {-1, {process.errorString()}};
  }
  QStringList lines = QString::fromUtf8(process.readAll()).split(QLatin1Char('\n'));
  if (lines.last().isEmpty()) lines.removeLast();
  return {process.exitCode(), lines};
}

QStringList RobotRun::leftovers() const {
  return QDir{path(QStringLiteral("temporary"))}.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

void WrongScript::check(int status) {
  const QString text = QString::fromUtf8(GetParam().script);
  const QStringList source = text.split(QLatin1Char('\n'));
  const Outcome outcome = run({script(text)});
  ASSERT_GE(outcome.lines.size(), 4) << outcome.text().toStdString();
  EXPECT_EQ(outcome.status, status) << outcome.text().toStdString();
  const QString head = QStringLiteral("case.robot:%1: %2").arg(source.size()).arg(source.last());
  EXPECT_EQ(outcome.lines[0].toStdString(), head.toStdString());
  EXPECT_EQ(outcome.lines[1].toStdString(), std::string{"    expected: "} + GetParam().expected);
  QString found = QStringLiteral("    found:    ") + QString::fromUtf8(GetParam().found);
  if (found.endsWith(QLatin1Char('*'))) {
    found.chop(1);
    EXPECT_EQ(outcome.lines[2].left(found.size()).toStdString(), found.toStdString());
  } else {
    EXPECT_EQ(outcome.lines[2].toStdString(), found.toStdString());
  }
  EXPECT_EQ(outcome.lines.last(), QStringLiteral("0 passed, 1 failed"));
  EXPECT_EQ(leftovers(), QStringList{});
}

}  // namespace ecr::test

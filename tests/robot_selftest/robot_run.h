#pragma once
// Runs the robot as a user does: its program, scripts in files, a folder for everything that it makes.

#include <gtest/gtest.h>
#include <ostream>
#include <string>

#include <QHash>
#include <QStringList>
#include <QTemporaryDir>

namespace ecr::test {

struct Outcome {
  int status = -1;
  QStringList lines;  ///< what it printed
  [[nodiscard]] QString text() const { return lines.join(QLatin1Char('\n')); }
};

class RobotRun : public ::testing::Test {
 public:
  static void SetUpTestSuite();

 protected:
  void SetUp() override;

  /// A file in the test's own folder.
  [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }

  /// Writes a script, in a folder of its own where its name has one, and answers its name as it is given to the robot.
  QString script(const QString& text, const QString& name = QStringLiteral("case.robot"));

  void set_environment(const char* name, const QString& value);

  /// Runs the robot in the test's own folder.
  [[nodiscard]] Outcome run(const QStringList& arguments);

  /// Folders of installations that no robot has removed.
  [[nodiscard]] QStringList leftovers() const;

 private:
  QTemporaryDir folder_;
  QHash<QString, QString> environment_;
};

/// A script whose last line goes wrong, and what must be said about it.
struct Wrong {
  const char* name;      ///< of the test
  const char* script;    ///< all lines
  const char* expected;  ///< as the robot must print them
  const char* found;     ///< the same; with a star at its end only what stands before that
};

/// What the test framework shows of it.
inline void PrintTo(const Wrong& wrong, std::ostream* stream) {
  *stream << wrong.name;
}

class WrongScript : public RobotRun, public ::testing::WithParamInterface<Wrong> {
 protected:
  /// Runs the script and checks the exit status, the message and the sum.
  void check(int status);
};

[[nodiscard]] inline std::string name_of(const ::testing::TestParamInfo<Wrong>& info) {
  return info.param.name;
}

}  // namespace ecr::test

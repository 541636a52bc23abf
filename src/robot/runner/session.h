#pragma once
// One script at work: the installation, the program in it, and what later lines ask about earlier ones.

#include <QDeadlineTimer>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include "robot/runner/failure.h"
#include "robot/runner/installation.h"
#include "robot/runner/program.h"
#include "robot/runner/register_folder.h"
#include "robot/runner/traces.h"

namespace ecr::robot {

/// How long a line may wait, and an expectation is tried again. The environment variables VERMANTO_ROBOT_LIMIT and
/// VERMANTO_ROBOT_PATIENCE, in seconds, change them for the robot's own tests.
struct Patience {
  int line = 60'000;        ///< milliseconds
  int expectation = 2'000;  ///< milliseconds
  [[nodiscard]] static Patience from_environment();
};

class Session {
 public:
  Session(const QString& used_folder, const QString& script_folder, Patience patience);

  Installation installation;
  Program program;
  RunLog log;
  Calls calls;
  RegisterFolder emulated;
  bool devices_set = false;  ///< the script has said which devices are shown

  /// Begins the time of a line.
  void begin_line();
  [[nodiscard]] QDeadlineTimer line_deadline() const { return line_deadline_; }
  [[nodiscard]] Patience patience() const { return patience_; }

  /// Starts the program and waits for the first screen, a box, or the end.
  void start_program(const QString& word);

  /// Closes one thing after another until the program has ended. Throws Unmet if it does not, or ends wrongly.
  void close_program();

  /// Asks the agent. Throws Unmet or ScriptFault where it refuses, and Unmet if the program has ended.
  [[nodiscard]] QJsonValue ask(const QString& what, QJsonObject request = {});
  [[nodiscard]] QJsonValue ask_of(const QString& what, const QString& control);

  /// Lets the agent act and waits until the program is at rest or has ended.
  void act(const QString& what, QJsonObject request = {});

  /// Throws Unmet if the program has ended otherwise than by itself with exit code 0.
  void check_health();

  /// Saves a picture of what is on show. Answers whether that worked.
  bool save_picture(const QString& path);

 private:
  [[nodiscard]] QJsonObject reply(const QString& what, QJsonObject request);
  [[noreturn]] void too_late();

  Patience patience_;
  QDeadlineTimer line_deadline_;
};

}  // namespace ecr::robot

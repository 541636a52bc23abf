#include "robot/runner/session.h"

#include <QProcessEnvironment>

#include "robot/protocol.h"

namespace ecr::robot {
namespace {

constexpr int second = 1000;

int milliseconds_from(const char* variable, int otherwise) {
  bool good = false;
  const double seconds = qEnvironmentVariable(variable).toDouble(&good);
  return good ? static_cast<int>(seconds * second) : otherwise;
}

QProcessEnvironment environment_in(const Installation& installation) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QLatin1String(switch_variable), QStringLiteral("1"));
  if (!environment.contains(QStringLiteral("QT_QPA_PLATFORM"))) {
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
  }
  environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), installation.private_folder("runtime"));
  // What the toolkit remembers of earlier file choosers.
  environment.insert(QStringLiteral("XDG_CONFIG_HOME"), installation.private_folder("settings"));
  return environment;
}

}  // namespace

Patience Patience::from_environment() {
  Patience patience;
  patience.line = milliseconds_from("VERMANTO_ROBOT_LIMIT", patience.line);
  patience.expectation = milliseconds_from("VERMANTO_ROBOT_PATIENCE", patience.expectation);
  return patience;
}

Session::Session(const QString& used_folder, const QString& script_folder, Patience patience)
    : installation{used_folder, script_folder},
      log{installation.folder() + QStringLiteral("/Log/memo_log.txt")},
      calls{installation},
      emulated{installation.folder() + QStringLiteral("/register")},
      patience_{patience} {}

void Session::begin_line() {
  line_deadline_ = QDeadlineTimer{patience_.line};
}

void Session::start_program(const QString& word) {
  const QString executable = installation.executable("vermanto");
  const QStringList arguments = word.isEmpty() ? QStringList{} : QStringList{word};
  if (!program.start(executable, arguments, installation.folder(), environment_in(installation))) {
    throw ScriptFault{QStringLiteral("the program %1").arg(executable), QStringLiteral("it cannot be started")};
  }
  act(QStringLiteral("start"));
}

void Session::close_program() {
  while (program.runs()) act(QStringLiteral("close-one"));
  check_health();
}

QJsonValue Session::ask(const QString& what, QJsonObject request) {
  const QJsonObject answer = reply(what, std::move(request));
  if (answer.isEmpty()) {
    throw Unmet{QStringLiteral("a program that runs"), QStringLiteral("it has ended"), true};
  }
  return answer.value(QLatin1String("value"));
}

QJsonValue Session::ask_of(const QString& what, const QString& control) {
  return ask(what, {{QStringLiteral("control"), control}});
}

void Session::act(const QString& what, QJsonObject request) {
  if (program.was_started() && !program.runs()) {
    check_health();
    throw Unmet{QStringLiteral("a program that runs"), QStringLiteral("it has ended"), true};
  }
  static_cast<void>(reply(what, std::move(request)));
}

QJsonObject Session::reply(const QString& what, QJsonObject request) {
  if (!program.was_started()) {
    throw ScriptFault{QStringLiteral("a program that runs"), QStringLiteral("no `start` before this line")};
  }
  request.insert(QStringLiteral("do"), what);
  const auto [reply, answer] = program.ask(request, line_deadline_);
  if (reply == Program::Reply::too_late) too_late();
  if (reply == Program::Reply::ended) {
    check_health();
    return {};
  }
  const QString is = answer.value(QLatin1String("is")).toString();
  const QString expected = answer.value(QLatin1String("expected")).toString();
  const QString found = answer.value(QLatin1String("found")).toString();
  if (is == QLatin1String("failed")) throw Unmet{expected, found};
  if (is == QLatin1String("fault")) throw ScriptFault{expected, found, true};
  return answer;
}

void Session::too_late() {
  const auto [reply, answer] = program.ask({{QStringLiteral("do"), QStringLiteral("state")}}, QDeadlineTimer{second});
  const QString state = reply == Program::Reply::answered ? answer.value(QLatin1String("value")).toString()
                                                          : QStringLiteral("the program does not answer");
  throw Unmet{QStringLiteral("the program comes to rest within %1 seconds").arg(patience_.line / double{second}), state,
              true};
}

void Session::check_health() {
  if (!program.was_started() || program.runs()) return;
  if (const auto wrong = program.wrong_end()) {
    throw Unmet{QStringLiteral("the program runs on, or ends by itself with exit code 0"), *wrong, true};
  }
}

bool Session::save_picture(const QString& path) {
  if (!program.runs()) return false;
  const auto [reply, answer] = program.ask(
      {{QStringLiteral("do"), QStringLiteral("picture")}, {QStringLiteral("path"), path}}, QDeadlineTimer{second});
  return reply == Program::Reply::answered && answer.value(QLatin1String("is")) == QLatin1String("value");
}

}  // namespace ecr::robot

#include <cstdio>
#include <optional>

#include <QCoreApplication>
#include <QStringList>

#include "robot/runner/runner.h"

namespace ecr::robot {
namespace {

constexpr int wrong_use = 2;

struct Call {
  Settings settings;
  QStringList scripts;
};

/// What the user asks for; nothing if it cannot be understood.
std::optional<Call> call_of(const QStringList& arguments) {
  Call call;
  for (qsizetype i = 1; i < arguments.size(); ++i) {
    const QString& argument = arguments[i];
    const bool with_value = argument == QLatin1String("--app") || argument == QLatin1String("--log");
    if (with_value && i + 1 == arguments.size()) return std::nullopt;
    if (argument == QLatin1String("--app")) {
      call.settings.used_folder = arguments[++i];
    } else if (argument == QLatin1String("--log")) {
      call.settings.log_file = arguments[++i];
    } else if (argument == QLatin1String("--keep")) {
      call.settings.keep = true;
    } else if (argument.startsWith(QLatin1String("--"))) {
      return std::nullopt;
    } else {
      call.scripts.append(argument);
    }
  }
  if (call.scripts.isEmpty()) return std::nullopt;
  call.settings.patience = Patience::from_environment();
  return call;
}

}  // namespace
}  // namespace ecr::robot

int main(int count, char** arguments) {
  const QCoreApplication application{count, arguments};
  const auto call = ecr::robot::call_of(QCoreApplication::arguments());
  if (!call) {
    static_cast<void>(std::fputs("usage: robot [--app DIR] [--keep] [--log FILE] SCRIPT...\n", stderr));
    return ecr::robot::wrong_use;
  }
  ecr::robot::Runner runner{call->settings};
  for (const QString& script : call->scripts) runner.run(script);
  return runner.finish();
}

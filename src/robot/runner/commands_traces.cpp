#include <algorithm>
#include <array>

#include "robot/runner/command.h"
#include "robot/runner/session.h"
#include "robot/runner/text.h"

namespace ecr::robot {
namespace {

/// The last lines of the log, for a message.
QString tail_of(const QStringList& texts) {
  constexpr qsizetype shown = 8;
  if (texts.isEmpty()) return QStringLiteral("no line since the mark");
  QStringList lines;
  for (const QString& text : texts.mid(std::max<qsizetype>(0, texts.size() - shown))) lines.append(quoted(text));
  return (texts.size() > shown ? QStringLiteral("..., ") : QString{}) + lines.join(QLatin1String(", "));
}

void expect_log(Session& session, const Arguments& arguments) {
  const QStringList texts = session.log.texts();
  for (const QString& text : texts) {
    if (reads_same(text, arguments.text(0))) return;
  }
  throw Unmet{QStringLiteral("a log line %1").arg(quoted(arguments.text(0))), tail_of(texts)};
}

void expect_log_like(Session& session, const Arguments& arguments) {
  const QStringList texts = session.log.texts();
  for (const QString& text : texts) {
    if (reads_like(text, arguments.text(0))) return;
  }
  throw Unmet{QStringLiteral("a log line like %1").arg(quoted(arguments.text(0))), tail_of(texts)};
}

void expect_no_log(Session& session, const Arguments& arguments) {
  for (const QString& text : session.log.texts()) {
    if (!reads_same(text, arguments.text(0))) continue;
    throw Unmet{QStringLiteral("no log line %1").arg(quoted(arguments.text(0))), QStringLiteral("one")};
  }
}

void mark_log(Session& session, const Arguments&) {
  session.log.mark();
}

void expect_process(Session& session, const Arguments& arguments) {
  const bool runs = session.installation.runs_process(arguments.text(0));
  if (runs == arguments.is(1, "yes")) return;
  throw Unmet{QStringLiteral("a process %1: %2").arg(arguments.text(0), arguments.text(1)),
              runs ? QStringLiteral("it runs") : QStringLiteral("none runs")};
}

QString listed_calls(const QStringList& calls) {
  return calls.isEmpty() ? QString{} : QStringLiteral(": ") + calls.join(QLatin1String("; "));
}

void expect_calls(Session& session, const Arguments& arguments) {
  const QStringList calls = session.calls.new_calls();
  if (calls.size() != arguments.number(0)) {
    throw Unmet{QStringLiteral("%1 calls").arg(arguments.text(0)), QString::number(calls.size()) + listed_calls(calls)};
  }
  session.calls.take(calls);
}

void forget_calls(Session& session, const Arguments&) {
  session.calls.forget();
}

void expect_call(Session& session, const Arguments& arguments) {
  const QStringList& calls = session.calls.counted();
  const qsizetype number = arguments.number(0);
  const QString wish = QStringLiteral("call %1 %2").arg(number).arg(quoted(arguments.text(1)));
  if (number < 1 || number > calls.size()) {
    throw Unmet{wish, QStringLiteral("%1 calls were counted").arg(calls.size()) + listed_calls(calls), true};
  }
  const QString& found = calls[number - 1];
  if (found != arguments.text(1)) throw Unmet{wish, quoted(found), true};
}

constexpr auto trace_table = std::to_array<Command>({
    {"expect-log", "TEXT", Trying::again, expect_log},
    {"expect-log-like", "TEXT", Trying::again, expect_log_like},
    {"expect-no-log", "TEXT", Trying::once, expect_no_log},
    {"mark-log", "", Trying::once, mark_log},
    {"expect-process", "TEXT yes|no", Trying::again, expect_process},
    {"expect-calls", "N", Trying::again, expect_calls},
    {"forget-calls", "", Trying::once, forget_calls},
    {"expect-call", "N TEXT", Trying::once, expect_call},
});

}  // namespace

std::span<const Command> trace_commands() {
  return trace_table;
}

}  // namespace ecr::robot

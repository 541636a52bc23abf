#include <array>

#include "robot/runner/command.h"
#include "robot/runner/session.h"

namespace ecr::robot {
namespace {

QString word_of(const Arguments& arguments) {
  return arguments.has(0) ? arguments.text(0) : QString{};
}

/// What is counted from a start on.
void begin_traces(Session& session) {
  session.log.mark();
  session.calls.begin();
}

void start(Session& session, const Arguments& arguments) {
  if (session.program.runs()) {
    throw ScriptFault{QStringLiteral("a program that does not run"), QStringLiteral("it runs already")};
  }
  session.check_health();
  begin_traces(session);
  session.start_program(word_of(arguments));
}

void expect_ended(Session& session, const Arguments&) {
  if (!session.program.was_started()) {
    throw ScriptFault{QStringLiteral("a program that was started"), QStringLiteral("no `start` before this line")};
  }
  if (!session.program.runs()) return;  // how it ended is looked at behind every line
  QString state;
  try {
    state = session.ask(QStringLiteral("state")).toString();
  } catch (const Unmet&) {
    if (!session.program.runs()) return;
    throw;
  }
  throw Unmet{QStringLiteral("the program has ended"), QStringLiteral("it runs: ") + state};
}

void restart(Session& session, const Arguments& arguments) {
  const bool first = !session.program.was_started();
  session.close_program();
  if (first) begin_traces(session);
  session.start_program(word_of(arguments));
}

constexpr auto starting_table = std::to_array<Command>({
    {"include", "SCRIPT", Trying::once, nullptr},
    {"start", "[WORD]", Trying::once, start},
    {"expect-ended", "", Trying::again, expect_ended},
    {"restart", "[WORD]", Trying::once, restart},
});

}  // namespace

std::span<const Command> starting_commands() {
  return starting_table;
}

}  // namespace ecr::robot

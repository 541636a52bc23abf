#include <array>

#include <QJsonArray>

#include "robot/runner/command.h"
#include "robot/runner/session.h"
#include "robot/runner/text.h"

namespace ecr::robot {
namespace {

/// Throws Unmet if two texts that a person reads differ.
void require_text(const QString& subject, const QString& wanted, const QString& found) {
  if (reads_same(found, wanted)) return;
  throw Unmet{QStringLiteral("%1 %2").arg(subject, quoted(wanted)), quoted(found)};
}

void require_like(const QString& subject, const QString& pattern, const QString& found) {
  if (reads_like(found, pattern)) return;
  throw Unmet{QStringLiteral("%1 like %2").arg(subject, quoted(pattern)), quoted(found)};
}

void require_number(const QString& subject, qsizetype wanted, qsizetype found) {
  if (found == wanted) return;
  throw Unmet{QStringLiteral("%1 %2").arg(subject).arg(wanted), QString::number(found)};
}

void require_state(const QString& subject, bool wanted, bool found, const char* yes, const char* no) {
  if (found == wanted) return;
  throw Unmet{QStringLiteral("%1 %2").arg(subject, QLatin1String(wanted ? yes : no)), QLatin1String(found ? yes : no)};
}

QString of(const Arguments& arguments, const char* what) {
  return QStringLiteral("%1 of %2").arg(QLatin1String(what), arguments.text(0));
}

void screen(Session& session, const Arguments& arguments) {
  const QJsonObject found = session.ask(QStringLiteral("screen")).toObject();
  const bool box = found.value(QLatin1String("box")).toBool();
  if (!box && found.value(QLatin1String("name")).toString() == arguments.text(0)) return;
  throw Unmet{QStringLiteral("screen %1 and no message box").arg(arguments.text(0)),
              found.value(QLatin1String("up")).toString()};
}

void nobox(Session& session, const Arguments&) {
  const QJsonObject found = session.ask(QStringLiteral("screen")).toObject();
  if (!found.value(QLatin1String("box")).toBool()) return;
  throw Unmet{QStringLiteral("no message box"), found.value(QLatin1String("up")).toString()};
}

void expect(Session& session, const Arguments& arguments) {
  const QString text = session.ask_of(QStringLiteral("text"), arguments.text(0)).toString();
  require_text(of(arguments, "the text"), arguments.text(1), text);
}

void expect_like(Session& session, const Arguments& arguments) {
  const QString text = session.ask_of(QStringLiteral("text"), arguments.text(0)).toString();
  require_like(of(arguments, "the text"), arguments.text(1), text);
}

void expect_title(Session& session, const Arguments& arguments) {
  require_text(QStringLiteral("the title"), arguments.text(0), session.ask(QStringLiteral("title")).toString());
}

void expect_title_like(Session& session, const Arguments& arguments) {
  require_like(QStringLiteral("the title"), arguments.text(0), session.ask(QStringLiteral("title")).toString());
}

QString listed(const QStringList& texts) {
  QStringList shown;
  for (const QString& text : texts) shown.append(quoted(text));
  return shown.isEmpty() ? QStringLiteral("nothing") : shown.join(QLatin1Char(' '));
}

void expect_items(Session& session, const Arguments& arguments) {
  QStringList wanted;
  for (std::size_t i = 1; i < arguments.count(); ++i) wanted.append(arguments.text(i));
  QStringList found;
  for (const auto item : session.ask_of(QStringLiteral("items"), arguments.text(0)).toArray()) {
    found.append(item.toString());
  }
  if (found == wanted) return;
  throw Unmet{QStringLiteral("%1 %2").arg(of(arguments, "the entries"), listed(wanted)), listed(found)};
}

void expect_count(Session& session, const Arguments& arguments) {
  const int count = session.ask_of(QStringLiteral("count"), arguments.text(0)).toInt();
  require_number(of(arguments, "the count"), arguments.number(1), count);
}

void expect_cell(Session& session, const Arguments& arguments) {
  const QString text = session
                           .ask(QStringLiteral("cell"), {{QStringLiteral("control"), arguments.text(0)},
                                                         {QStringLiteral("row"), arguments.small_number(1)},
                                                         {QStringLiteral("column"), arguments.small_number(2)}})
                           .toString();
  const QString subject =
      QStringLiteral("row %1, column %2 of %3").arg(arguments.text(1), arguments.text(2), arguments.text(0));
  require_text(subject, arguments.text(3), text);
}

void expect_tab(Session& session, const Arguments& arguments) {
  const QJsonObject tabs = session.ask_of(QStringLiteral("tabs"), arguments.text(0)).toObject();
  const int wanted = arguments.small_number(1);
  if (!arguments.has(2)) {
    require_number(of(arguments, "the front tab"), wanted, tabs.value(QLatin1String("front")).toInt());
    return;
  }
  const QJsonArray captions = tabs.value(QLatin1String("captions")).toArray();
  if (wanted >= captions.size()) {
    throw Unmet{QStringLiteral("a tab %1 of %2").arg(wanted).arg(arguments.text(0)),
                QStringLiteral("it has %1 tabs").arg(captions.size())};
  }
  require_text(QStringLiteral("tab %1 of %2").arg(wanted).arg(arguments.text(0)), arguments.text(2),
               captions.at(wanted).toString());
}

void expect_checked(Session& session, const Arguments& arguments) {
  const bool found = session.ask_of(QStringLiteral("checked"), arguments.text(0)).toBool();
  require_state(of(arguments, "the state"), arguments.is(1, "on"), found, "on", "off");
}

void expect_visible(Session& session, const Arguments& arguments) {
  const bool found = session.ask_of(QStringLiteral("visible"), arguments.text(0)).toBool();
  require_state(arguments.text(0), arguments.is(1, "yes"), found, "visible", "not visible");
}

void expect_enabled(Session& session, const Arguments& arguments) {
  const bool found = session.ask_of(QStringLiteral("enabled"), arguments.text(0)).toBool();
  require_state(arguments.text(0), arguments.is(1, "yes"), found, "enabled", "disabled");
}

void expect_focus(Session& session, const Arguments& arguments) {
  const QJsonObject focus = session.ask_of(QStringLiteral("has-focus"), arguments.text(0)).toObject();
  if (focus.value(QLatin1String("its")).toBool()) return;
  const QString owner = focus.value(QLatin1String("name")).toString();
  throw Unmet{QStringLiteral("the focus on %1").arg(arguments.text(0)),
              owner.isEmpty() ? QStringLiteral("on no control with a name") : QStringLiteral("on %1").arg(owner)};
}

void expect_cursor(Session& session, const Arguments& arguments) {
  const int cursor = session.ask_of(QStringLiteral("cursor"), arguments.text(0)).toInt();
  require_number(of(arguments, "the cursor"), arguments.number(1), cursor);
}

void expect_colour(Session& session, const Arguments& arguments) {
  const QString colour = session.ask_of(QStringLiteral("colour"), arguments.text(0)).toString();
  if (colour == arguments.text(1)) return;
  throw Unmet{QStringLiteral("%1 %2").arg(of(arguments, "the text's colour"), arguments.text(1)), colour};
}

void expect_max_length(Session& session, const Arguments& arguments) {
  const int length = session.ask_of(QStringLiteral("max-length"), arguments.text(0)).toInt();
  require_number(of(arguments, "the maximum length"), arguments.number(1), length);
}

void expect_box_title(Session& session, const Arguments& arguments) {
  const QJsonValue box = session.ask(QStringLiteral("box"));
  const QString subject = QStringLiteral("a message box with the title");
  if (!box.isObject()) {
    throw Unmet{QStringLiteral("%1 %2").arg(subject, quoted(arguments.text(0))),
                session.ask(QStringLiteral("screen")).toObject().value(QLatin1String("up")).toString()};
  }
  require_text(subject, arguments.text(0), box.toObject().value(QLatin1String("title")).toString());
}

void picture(Session& session, const Arguments& arguments) {
  static_cast<void>(
      session.ask(QStringLiteral("picture"), {{QStringLiteral("path"), session.installation.path(arguments.text(0))}}));
}

constexpr auto screen_table = std::to_array<Command>({
    {"screen", "CONTROL", Trying::again, screen},
    {"nobox", "", Trying::again, nobox},
    {"expect", "CONTROL TEXT", Trying::again, expect},
    {"expect-like", "CONTROL TEXT", Trying::again, expect_like},
    {"expect-title", "TEXT", Trying::again, expect_title},
    {"expect-title-like", "TEXT", Trying::again, expect_title_like},
    {"expect-items", "CONTROL TEXT...", Trying::again, expect_items},
    {"expect-count", "CONTROL N", Trying::again, expect_count},
    {"expect-cell", "CONTROL ROW COLUMN TEXT", Trying::again, expect_cell},
    {"expect-tab", "CONTROL N [TEXT]", Trying::again, expect_tab},
    {"expect-checked", "CONTROL on|off", Trying::again, expect_checked},
    {"expect-visible", "CONTROL yes|no", Trying::again, expect_visible},
    {"expect-enabled", "CONTROL yes|no", Trying::again, expect_enabled},
    {"expect-focus", "CONTROL", Trying::again, expect_focus},
    {"expect-cursor", "CONTROL N", Trying::again, expect_cursor},
    {"expect-colour", "CONTROL black|red|green", Trying::again, expect_colour},
    {"expect-maxlength", "CONTROL N", Trying::again, expect_max_length},
    {"expect-box-title", "TEXT", Trying::again, expect_box_title},
    {"picture", "PATH", Trying::once, picture},
});

}  // namespace

std::span<const Command> screen_commands() {
  return screen_table;
}

}  // namespace ecr::robot

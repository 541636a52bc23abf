#include <array>

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QThread>

#include "robot/runner/command.h"
#include "robot/runner/keys.h"
#include "robot/runner/session.h"
#include "robot/runner/text.h"

namespace ecr::robot {
namespace {

QJsonObject on_control(const Arguments& arguments) {
  return {{QStringLiteral("control"), arguments.text(0)}};
}

void click(Session& session, const Arguments& arguments) {
  session.act(QStringLiteral("click"), on_control(arguments));
}

void double_click(Session& session, const Arguments& arguments) {
  session.act(QStringLiteral("doubleclick"), on_control(arguments));
}

void focus(Session& session, const Arguments& arguments) {
  session.act(QStringLiteral("focus"), on_control(arguments));
}

void type(Session& session, const Arguments& arguments) {
  QJsonObject request = on_control(arguments);
  request.insert(QStringLiteral("strokes"), strokes_of(arguments.text(1)));
  session.act(QStringLiteral("type"), request);
}

void keys(Session& session, const Arguments& arguments) {
  session.act(QStringLiteral("keys"), {{QStringLiteral("strokes"), strokes_of(arguments.text(0))}});
}

void key(Session& session, const Arguments& arguments) {
  QJsonArray strokes;
  const qsizetype times = arguments.has(1) ? arguments.number(1) : 1;
  for (qsizetype i = 0; i < times; ++i) strokes.append(*stroke_named(arguments.text(0)));
  session.act(QStringLiteral("keys"), {{QStringLiteral("strokes"), strokes}});
}

void paste(Session& session, const Arguments& arguments) {
  QJsonObject request = on_control(arguments);
  request.insert(QStringLiteral("text"), arguments.text(1));
  session.act(QStringLiteral("paste"), request);
}

void choose(Session& session, const Arguments& arguments) {
  QJsonObject request = on_control(arguments);
  const Word& entry = arguments.word(1);
  bool is_position = false;
  const int position = QStringView{entry.text}.mid(1).toInt(&is_position);
  if (!entry.in_quotes && entry.text.startsWith(QLatin1Char('#')) && is_position && position >= 0) {
    request.insert(QStringLiteral("position"), position);
  } else {
    request.insert(QStringLiteral("text"), entry.text);
  }
  session.act(QStringLiteral("choose"), request);
}

void row(Session& session, const Arguments& arguments) {
  QJsonObject request = on_control(arguments);
  request.insert(QStringLiteral("n"), arguments.small_number(1));
  session.act(QStringLiteral("row"), request);
}

void tab(Session& session, const Arguments& arguments) {
  QJsonObject request = on_control(arguments);
  request.insert(QStringLiteral("n"), arguments.small_number(1));
  session.act(QStringLiteral("tab"), request);
}

void check(Session& session, const Arguments& arguments) {
  QJsonObject request = on_control(arguments);
  request.insert(QStringLiteral("n"), arguments.is(1, "on") ? 1 : 0);
  session.act(QStringLiteral("check"), request);
}

QJsonObject box_that_is_up(Session& session, const QString& wish) {
  const QJsonValue box = session.ask(QStringLiteral("box"));
  if (box.isObject()) return box.toObject();
  throw Unmet{wish, session.ask(QStringLiteral("screen")).toObject().value(QLatin1String("up")).toString() +
                        QStringLiteral(", no message box")};
}

void box(Session& session, const Arguments& arguments) {
  const QString& kind = arguments.text(0);
  const QString& text = arguments.text(1);
  const QString& button = arguments.text(2);
  const bool any_text = text == QLatin1String("*");
  const QString wish = QStringLiteral("a box %1 %2 with a button %3").arg(kind, any_text ? text : quoted(text), button);
  const QJsonObject found = box_that_is_up(session, wish);
  const QString found_kind = found.value(QLatin1String("kind")).toString();
  const QString found_text = found.value(QLatin1String("text")).toString();
  const QJsonArray buttons = found.value(QLatin1String("buttons")).toArray();
  const bool right = (arguments.is(0, "any") || kind == found_kind) && (any_text || reads_same(text, found_text)) &&
                     buttons.contains(button);
  if (!right) {
    QStringList names;
    for (const auto& name : buttons) names.append(name.toString());
    throw Unmet{wish, QStringLiteral("a box %1 %2 with the buttons %3")
                          .arg(found_kind, quoted(found_text), names.join(QLatin1String(", ")))};
  }
  session.act(QStringLiteral("press"), {{QStringLiteral("text"), button}});
}

void answer_chooser(Session& session, const Arguments& arguments) {
  const QJsonValue chooser = session.ask(QStringLiteral("chooser"));
  if (!chooser.isObject()) {
    throw Unmet{QStringLiteral("a file chooser"),
                session.ask(QStringLiteral("screen")).toObject().value(QLatin1String("up")).toString()};
  }
  QString path;
  const Word& word = arguments.word(0);
  if (word.in_quotes || word.text != QLatin1String("cancel")) {
    path = session.installation.path(word.text);
    if (chooser.toObject().value(QLatin1String("existing")).toBool() && !QFileInfo::exists(path)) {
      throw ScriptFault{QStringLiteral("a file %1").arg(path), QStringLiteral("no such file")};
    }
  }
  session.act(QStringLiteral("answer"), {{QStringLiteral("text"), QDir::toNativeSeparators(path)}});
}

/// A filter's name and its patterns.
struct Filter {
  QString name;
  QStringList patterns;

  friend bool operator==(const Filter&, const Filter&) = default;
};

/// The toolkit's form, "File (*.txt)": the name is the whole text.
Filter shown_filter(const QString& text) {
  const qsizetype open = text.lastIndexOf(QLatin1Char('('));
  const qsizetype shut = text.lastIndexOf(QLatin1Char(')'));
  const QString inside = open >= 0 && shut > open ? text.mid(open + 1, shut - open - 1) : text;
  return {text, inside.split(QLatin1Char(' '), Qt::SkipEmptyParts)};
}

/// The filters of a filter text, "File (*.txt)|*.txt|All|*.*", in which a name may show its patterns itself. A text
/// without "|" is taken as the toolkit's form.
QList<Filter> wanted_filters(const QString& text) {
  QList<Filter> filters;
  const QStringList parts = text.split(QLatin1Char('|'));
  if (parts.size() % 2 != 0) {
    for (const QString& part : text.split(QStringLiteral(";;"))) filters.append(shown_filter(part));
    return filters;
  }
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QStringList patterns = parts[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts);
    const bool shows_them = shown_filter(parts[i]).patterns == patterns;
    filters.append(
        {shows_them ? parts[i] : QStringLiteral("%1 (%2)").arg(parts[i], patterns.join(QLatin1Char(' '))), patterns});
  }
  return filters;
}

void expect_chooser(Session& session, const Arguments& arguments) {
  const QString wish = QStringLiteral("a file chooser %1 %2").arg(quoted(arguments.text(0)), quoted(arguments.text(1)));
  const QJsonValue value = session.ask(QStringLiteral("chooser"));
  if (!value.isObject()) {
    throw Unmet{wish, session.ask(QStringLiteral("screen")).toObject().value(QLatin1String("up")).toString()};
  }
  const QJsonObject chooser = value.toObject();
  const QString title = chooser.value(QLatin1String("title")).toString();
  QStringList shown;
  for (const auto filter : chooser.value(QLatin1String("filters")).toArray()) shown.append(filter.toString());
  const QList<Filter> wanted = wanted_filters(arguments.text(1));
  bool right = title == arguments.text(0) && wanted.size() == shown.size();
  for (qsizetype i = 0; right && i < shown.size(); ++i) right = wanted[i] == shown_filter(shown[i]);
  if (!right) {
    throw Unmet{wish,
                QStringLiteral("a file chooser %1 %2").arg(quoted(title), quoted(shown.join(QLatin1String(";;"))))};
  }
}

void close(Session& session, const Arguments&) {
  session.act(QStringLiteral("close"));
}

void wait(Session& session, const Arguments& arguments) {
  constexpr double second = 1000;
  const QDeadlineTimer end{static_cast<qint64>(arguments.seconds(0) * second)};
  session.program.run_for(end);
  session.check_health();
  QThread::msleep(static_cast<unsigned long>(end.remainingTime()));
}

constexpr auto acting_table = std::to_array<Command>({
    {"click", "CONTROL", Trying::once, click},
    {"doubleclick", "CONTROL", Trying::once, double_click},
    {"focus", "CONTROL", Trying::once, focus},
    {"type", "CONTROL TEXT", Trying::once, type},
    {"keys", "TEXT", Trying::once, keys},
    {"key", "KEY [N]", Trying::once, key},
    {"paste", "CONTROL TEXT", Trying::once, paste},
    {"choose", "CONTROL TEXT", Trying::once, choose},
    {"row", "CONTROL ROW", Trying::once, row},
    {"tab", "CONTROL N", Trying::once, tab},
    {"check", "CONTROL on|off", Trying::once, check},
    {"box", "plain|information|question|warning|critical|any TEXT Ok|Yes|No|Cancel", Trying::again, box},
    {"file", "PATH", Trying::again, answer_chooser},
    {"expect-chooser", "TEXT TEXT", Trying::again, expect_chooser},
    {"close", "", Trying::once, close},
    {"wait", "SECONDS", Trying::once, wait, true},
});

}  // namespace

std::span<const Command> acting_commands() {
  return acting_table;
}

}  // namespace ecr::robot

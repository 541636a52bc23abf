#include "robot/runner/keys.h"

#include <array>

#include "robot/runner/text.h"

namespace ecr::robot {
namespace {

struct NamedKey {
  const char* name;
  Qt::Key key;
  const char* text;
};

constexpr auto named_keys = std::to_array<NamedKey>({
    {"Enter", Qt::Key_Return, "\r"},
    {"Tab", Qt::Key_Tab, "\t"},
    {"Backspace", Qt::Key_Backspace, "\b"},
    {"Delete", Qt::Key_Delete, "\x7f"},
    {"Escape", Qt::Key_Escape, "\x1b"},
    {"Home", Qt::Key_Home, ""},
    {"End", Qt::Key_End, ""},
    {"Left", Qt::Key_Left, ""},
    {"Right", Qt::Key_Right, ""},
    {"Up", Qt::Key_Up, ""},
    {"Down", Qt::Key_Down, ""},
    {"PageUp", Qt::Key_PageUp, ""},
    {"PageDown", Qt::Key_PageDown, ""},
    {"Insert", Qt::Key_Insert, ""},
    {"Space", Qt::Key_Space, " "},
    {"F1", Qt::Key_F1, ""},
    {"F2", Qt::Key_F2, ""},
    {"F3", Qt::Key_F3, ""},
    {"F4", Qt::Key_F4, ""},
    {"F5", Qt::Key_F5, ""},
    {"F6", Qt::Key_F6, ""},
    {"F7", Qt::Key_F7, ""},
    {"F8", Qt::Key_F8, ""},
    {"F9", Qt::Key_F9, ""},
    {"F10", Qt::Key_F10, ""},
    {"F11", Qt::Key_F11, ""},
    {"F12", Qt::Key_F12, ""},
});

struct NamedModifier {
  const char* prefix;
  Qt::KeyboardModifier flag;
};
constexpr auto named_modifiers = std::to_array<NamedModifier>(
    {{"Ctrl+", Qt::ControlModifier}, {"Alt+", Qt::AltModifier}, {"Shift+", Qt::ShiftModifier}});

QJsonObject stroke(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  return {{QStringLiteral("key"), key},
          {QStringLiteral("modifiers"), static_cast<int>(modifiers.toInt())},
          {QStringLiteral("text"), text}};
}

QJsonObject named_stroke(const NamedKey& key, Qt::KeyboardModifiers modifiers = {}) {
  if (key.key == Qt::Key_Tab && modifiers.testFlag(Qt::ShiftModifier)) return stroke(Qt::Key_Backtab, modifiers, {});
  return stroke(key.key, modifiers, QString::fromLatin1(key.text));
}

QJsonObject character_stroke(QChar character, Qt::KeyboardModifiers modifiers = {}) {
  for (const NamedKey& key : named_keys) {
    if (key.text[0] != 0 && character == QLatin1Char(key.text[0])) return named_stroke(key, modifiers);
  }
  if (character.isUpper()) modifiers |= Qt::ShiftModifier;
  QString text{character};
  // With the control key held a letter gives the control character of its place in the alphabet.
  const char16_t upper = character.toUpper().unicode();
  if (modifiers.testFlag(Qt::ControlModifier) && upper >= u'A' && upper <= u'Z') text = QChar{upper - u'A' + 1};
  return stroke(upper, modifiers, text);
}

}  // namespace

std::optional<QJsonObject> stroke_named(const QString& name) {
  QString rest = name;
  Qt::KeyboardModifiers modifiers;
  for (bool more = true; more;) {
    more = false;
    for (const NamedModifier& modifier : named_modifiers) {
      if (!rest.startsWith(QLatin1String(modifier.prefix)) || modifiers.testFlag(modifier.flag)) continue;
      modifiers |= modifier.flag;
      rest.remove(0, QLatin1String(modifier.prefix).size());
      more = true;
    }
  }
  for (const NamedKey& key : named_keys) {
    if (rest == QLatin1String(key.name)) return named_stroke(key, modifiers);
  }
  if (rest.size() != 1) return std::nullopt;
  // Ctrl+A and Ctrl+a are the same keys.
  const QChar letter = modifiers.testFlag(Qt::ShiftModifier) ? rest[0].toUpper() : rest[0].toLower();
  return modifiers != Qt::NoModifier ? character_stroke(letter, modifiers) : character_stroke(rest[0]);
}

QJsonArray strokes_of(const QString& text) {
  QJsonArray strokes;
  for (const QChar character : with_plain_breaks(text)) {
    strokes.append(character == QLatin1Char('\n') ? named_stroke(named_keys[0]) : character_stroke(character));
  }
  return strokes;
}

}  // namespace ecr::robot

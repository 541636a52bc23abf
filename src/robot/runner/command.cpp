#include "robot/runner/command.h"

#include <algorithm>
#include <array>

#include "robot/runner/keys.h"
#include "robot/runner/text.h"

namespace ecr::robot {
namespace {

std::array<std::span<const Command>, 6> all_commands() {
  return {starting_commands(), acting_commands(), screen_commands(),
          file_commands(),     trace_commands(),  register_commands()};
}

bool all_of_kind(const QString& text, bool (*kind)(QChar)) {
  return !text.isEmpty() && std::all_of(text.begin(), text.end(), kind);
}

bool is_digit(QChar character) {
  return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

/// Nine digits are enough for every number a script has use for, and safe in every calculation.
bool is_number(const QString& text) {
  return all_of_kind(text, is_digit) && text.size() <= 9;
}

bool is_seconds(const QString& text) {
  return all_of_kind(text, [](QChar character) { return is_digit(character) || character == QLatin1Char('.'); }) &&
         text.count(QLatin1Char('.')) <= 1 && text != QLatin1String(".") && text.size() <= 9;
}

/// Whether a word is what this part of a form asks for.
bool fits(const QString& part, const Word& word) {
  static const QStringList numbers = {QStringLiteral("N"),    QStringLiteral("ROW"),  QStringLiteral("COLUMN"),
                                      QStringLiteral("SIZE"), QStringLiteral("FILE"), QStringLiteral("OFFSET"),
                                      QStringLiteral("CODE"), QStringLiteral("PORT")};
  if (numbers.contains(part)) return is_number(word.text);
  if (part == QLatin1String("SECONDS")) return is_seconds(word.text);
  if (part == QLatin1String("BYTE")) return all_of_kind(word.text, is_hex_digit) && word.text.size() == 2;
  if (part == QLatin1String("HEX")) return all_of_kind(word.text, is_hex_digit) && word.text.size() % 2 == 0;
  if (part == QLatin1String("KEY")) return stroke_named(word.text).has_value();
  if (part == QLatin1String("PATH") || part == QLatin1String("CONTROL")) return !word.text.isEmpty();
  if (part.contains(QLatin1Char('|')) || part[0].isLower()) return part.split(QLatin1Char('|')).contains(word.text);
  return true;
}

ScriptFault wrong_form(const Command& command, const QString& found) {
  return {QStringLiteral("%1 %2").arg(QLatin1String(command.name), QLatin1String(command.form)).trimmed(), found};
}

bool fits_form(const QString& form, const std::vector<Word>& words, QString& found) {
  std::size_t next = 0;
  QString last;
  bool repeated = false;
  for (QString part : form.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
    repeated = part.endsWith(QLatin1String("..."));
    if (repeated) part.chop(3);
    const bool optional = part.startsWith(QLatin1Char('['));
    if (optional) part = part.mid(1, part.size() - 2);
    last = part;
    if (repeated) break;
    if (next == words.size()) {
      if (optional) return true;
      found = QStringLiteral("no %1").arg(part);
      return false;
    }
    if (!fits(part, words[next])) {
      found = QStringLiteral("%1 for %2").arg(quoted(words[next].text), part);
      return false;
    }
    ++next;
  }
  for (; next < words.size(); ++next) {
    if (!repeated) {
      found = QStringLiteral("%1 too much").arg(quoted(words[next].text));
      return false;
    }
    if (!fits(last, words[next])) {
      found = QStringLiteral("%1 for %2").arg(quoted(words[next].text), last);
      return false;
    }
  }
  return true;
}

}  // namespace

const Command* find_command(std::vector<Word>& words) {
  const QString first = words[0].text;
  const QString both = words.size() > 1 ? first + QLatin1Char(' ') + words[1].text : first;
  for (const auto& commands : all_commands()) {
    for (const Command& command : commands) {
      const bool two = both == QLatin1String(command.name) && words.size() > 1;
      if (!two && first != QLatin1String(command.name)) continue;
      words.erase(words.begin(), words.begin() + (two ? 2 : 1));
      return &command;
    }
  }
  throw ScriptFault{QStringLiteral("a command"),
                    QStringLiteral("unknown word %1").arg(quoted(first == QLatin1String("register") ? both : first))};
}

void check_words(const Command& command, const std::vector<Word>& words) {
  // Forms that are divided by " / " are alternatives.
  QString found;
  for (const QString& form : QString::fromLatin1(command.form).split(QStringLiteral(" / "))) {
    if (fits_form(form, words, found)) return;
  }
  throw wrong_form(command, found);
}

}  // namespace ecr::robot

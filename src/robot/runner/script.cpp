#include "robot/runner/script.h"

#include <optional>

#include <QStringDecoder>

#include "robot/runner/command.h"
#include "robot/runner/text.h"

namespace ecr::robot {
namespace {

bool is_blank(QChar character) {
  return character == QLatin1Char(' ') || character == QLatin1Char('\t');
}

/// Reads what stands behind a backslash inside quotes; `at` is left on its last character.
QChar escaped(const QString& line, qsizetype& at) {
  const QChar kind = at < line.size() ? line[at] : QChar{};
  switch (kind.unicode()) {
    case u'"':
    case u'\\':
      return kind;
    case u'n':
      return QLatin1Char('\n');
    case u'r':
      return QLatin1Char('\r');
    case u't':
      return QLatin1Char('\t');
    case u'x':
      if (at + 2 < line.size() && is_hex_digit(line[at + 1]) && is_hex_digit(line[at + 2])) {
        const uint byte = line.mid(at + 1, 2).toUInt(nullptr, 16);
        at += 2;
        return character_of(static_cast<unsigned char>(byte));
      }
      break;
    default:
      break;
  }
  throw ScriptFault{QStringLiteral("\\\", \\\\, \\n, \\r, \\t or \\x with two hexadecimal digits"),
                    QStringLiteral("\\%1").arg(line.mid(at, kind == QLatin1Char('x') ? 3 : 1))};
}

/// Reads a text in quotes; `at` stands on the opening quote and is left behind the closing one.
Word quoted_word(const QString& line, qsizetype& at) {
  Word word{{}, true};
  for (++at; at < line.size(); ++at) {
    if (line[at] == QLatin1Char('"')) {
      ++at;
      if (at < line.size() && !is_blank(line[at])) {
        throw ScriptFault{QStringLiteral("a blank behind a text in quotes"), QString{line[at]}};
      }
      return word;
    }
    if (line[at] == QLatin1Char('\\')) {
      ++at;
      word.text.append(escaped(line, at));
    } else {
      word.text.append(line[at]);
    }
  }
  throw ScriptFault{QStringLiteral("a text that ends with a double quote"), QStringLiteral("the end of the line")};
}

ScriptLine read_line(int number, const QString& source) {
  ScriptLine line{number, source, words_of(source), nullptr};
  line.command = find_command(line.words);
  check_words(*line.command, line.words);
  return line;
}

}  // namespace

std::vector<Word> words_of(const QString& line) {
  std::vector<Word> words;
  for (qsizetype at = 0; at < line.size();) {
    if (is_blank(line[at])) {
      ++at;
    } else if (line[at] == QLatin1Char('"')) {
      words.push_back(quoted_word(line, at));
    } else {
      Word word;
      while (at < line.size() && !is_blank(line[at])) word.text.append(line[at++]);
      words.push_back(word);
    }
  }
  return words;
}

std::vector<ScriptLine> read_script(const QByteArray& bytes) {
  QStringDecoder decoder{QStringDecoder::Utf8};
  const QString text = decoder.decode(bytes);
  if (decoder.hasError()) throw LineFault{1, {}, {QStringLiteral("a script in UTF-8"), QStringLiteral("other bytes")}};
  std::vector<ScriptLine> lines;
  int number = 0;
  for (const QString& raw : with_plain_breaks(text).split(QLatin1Char('\n'))) {
    ++number;
    const QString source = raw.trimmed();
    if (source.isEmpty() || source.startsWith(QLatin1Char('#'))) continue;
    try {
      lines.push_back(read_line(number, source));
    } catch (const ScriptFault& fault) {
      throw LineFault{number, source, fault};
    }
  }
  return lines;
}

}  // namespace ecr::robot

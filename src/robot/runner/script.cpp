#include "robot/runner/script.h"

#include <optional>
#include <utility>

#include <QByteArray>
#include <QDir>
#include <QFileInfo>
#include <QStringDecoder>

#include "robot/runner/command.h"
#include "robot/runner/files.h"
#include "robot/runner/host.h"
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

/// Reads a script and the scripts that it includes, line after line.
class Reader {
 public:
  /// Appends the lines of a file; `by` are the places of the `include` lines that led to it.
  void read(const QString& file, const Places& by) {
    const std::optional<QByteArray> bytes = read_bytes(file);
    if (!bytes && by.empty()) {
      throw LineFault{at(file, 0, {}, by), {QStringLiteral("a script"), QStringLiteral("no such file")}};
    }
    if (!bytes) throw LineFault{by, {QStringLiteral("a script %1").arg(file), QStringLiteral("no such file")}};
    QStringDecoder decoder{QStringDecoder::Utf8};
    const QString text = decoder.decode(*bytes);
    if (decoder.hasError()) {
      throw LineFault{at(file, 1, {}, by), {QStringLiteral("a script in UTF-8"), QStringLiteral("other bytes")}};
    }
    open_.append(file_on_disk(file));
    int number = 0;
    for (const QString& raw : with_plain_breaks(text).split(QLatin1Char('\n'))) {
      ++number;
      const QString source = raw.trimmed();
      if (!source.isEmpty() && !source.startsWith(QLatin1Char('#'))) read_line(at(file, number, source, by));
    }
    open_.removeLast();
  }

  std::vector<ScriptLine> lines;

 private:
  /// The same text for the same file, however it is named.
  static QString file_on_disk(const QString& file) {
    const QString path = QFileInfo{file}.canonicalFilePath();
    return paths_ignore_case() ? path.toCaseFolded() : path;
  }

  static Places at(const QString& file, int number, const QString& source, const Places& by) {
    Places places{{file, number, source}};
    places.insert(places.end(), by.begin(), by.end());
    return places;
  }

  void read_line(const Places& places) {
    try {
      ScriptLine line{places, words_of(places.front().source), nullptr};
      line.command = find_command(line.words);
      check_words(*line.command, line.words);
      if (line.command->run != nullptr) {
        lines.push_back(std::move(line));
      } else {
        include(line.words.front().text, places);
      }
    } catch (const ScriptFault& fault) {
      throw LineFault{places, fault};
    }
  }

  void include(const QString& name, const Places& places) {
    const QString file = QDir::cleanPath(QFileInfo{places.front().file}.dir().filePath(name));
    if (open_.contains(file_on_disk(file))) {
      throw ScriptFault{QStringLiteral("a script that is not being read already"), file};
    }
    read(file, places);
  }

  QStringList open_;  ///< the files that are being read, each included by the one before
};

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

std::vector<ScriptLine> read_script(const QString& file) {
  Reader reader;
  reader.read(file, {});
  return std::move(reader.lines);
}

}  // namespace ecr::robot

#include "robot/runner/text.h"

#include <array>

namespace ecr::robot {
namespace {

/// Bytes 128 to 159; all others stand for the character of the same number.
constexpr std::array<char16_t, 32> high_block = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
constexpr unsigned char high_block_begin = 128;
constexpr unsigned char high_block_end = high_block_begin + high_block.size();

std::optional<char> byte_of(QChar character) {
  for (std::size_t i = 0; i < high_block.size(); ++i) {
    if (high_block[i] == character.unicode()) return static_cast<char>(high_block_begin + i);
  }
  const char16_t code = character.unicode();
  if (code > 255 || (code >= high_block_begin && code < high_block_end)) return std::nullopt;
  return static_cast<char>(code);
}

bool matches(QStringView text, QStringView pattern) {
  // Where the last star stood, and from where on in the text what follows it is being tried.
  qsizetype star = -1;
  qsizetype tried = 0;
  qsizetype t = 0;
  qsizetype p = 0;
  while (t < text.size()) {
    if (p < pattern.size() && pattern[p] == QLatin1Char('*')) {
      star = p++;
      tried = t;
    } else if (p < pattern.size() && pattern[p] == text[t]) {
      ++p;
      ++t;
    } else if (star >= 0) {
      p = star + 1;
      t = ++tried;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == QLatin1Char('*')) ++p;
  return p == pattern.size();
}

}  // namespace

bool is_hex_digit(QChar character) {
  const char16_t code = character.unicode();
  return (code >= u'0' && code <= u'9') || (code >= u'a' && code <= u'f') || (code >= u'A' && code <= u'F');
}

QChar character_of(unsigned char byte) {
  if (byte >= high_block_begin && byte < high_block_end) return high_block[byte - high_block_begin];
  return QChar{static_cast<char16_t>(byte)};
}

QString text_of_bytes(const QByteArray& bytes) {
  QString text;
  text.reserve(bytes.size());
  for (const char byte : bytes) text.append(character_of(static_cast<unsigned char>(byte)));
  return text;
}

std::optional<QByteArray> bytes_of_text(const QString& text) {
  QByteArray bytes;
  bytes.reserve(text.size());
  for (const QChar character : text) {
    const std::optional<char> byte = byte_of(character);
    if (!byte) return std::nullopt;
    bytes.append(*byte);
  }
  return bytes;
}

QString with_plain_breaks(QString text) {
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return text;
}

bool reads_same(const QString& a, const QString& b) {
  return with_plain_breaks(a) == with_plain_breaks(b);
}

bool reads_like(const QString& text, const QString& pattern) {
  return matches(with_plain_breaks(text), with_plain_breaks(pattern));
}

QString quoted(const QString& text) {
  QString shown = text;
  shown.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
  shown.replace(QLatin1Char('"'), QLatin1String("\\\""));
  shown.replace(QLatin1Char('\n'), QLatin1String("\\n"));
  shown.replace(QLatin1Char('\r'), QLatin1String("\\r"));
  shown.replace(QLatin1Char('\t'), QLatin1String("\\t"));
  return QLatin1Char('"') + shown + QLatin1Char('"');
}

QString hex_of(const QByteArray& bytes, qsizetype limit) {
  QString hex = QString::fromLatin1(bytes.left(limit).toHex()).toUpper();
  if (bytes.size() > limit) hex.append(QLatin1String("..."));
  return hex;
}

}  // namespace ecr::robot

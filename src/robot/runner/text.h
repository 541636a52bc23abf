#pragma once
// Texts: the 8-bit code page of files, line breaks, patterns, and how texts are shown in messages.

#include <optional>

#include <QByteArray>
#include <QString>

namespace ecr::robot {

[[nodiscard]] bool is_hex_digit(QChar character);

/// The character that a byte of the code page (Windows-1252) stands for. The five bytes that the page leaves undefined
/// stand for the control characters of the same number.
[[nodiscard]] QChar character_of(unsigned char byte);

[[nodiscard]] QString text_of_bytes(const QByteArray& bytes);

/// Nothing if the page lacks one of the characters.
[[nodiscard]] std::optional<QByteArray> bytes_of_text(const QString& text);

/// Carriage return, line feed, and the two behind one another are the same line break.
[[nodiscard]] QString with_plain_breaks(QString text);

/// Whether the texts are equal but for the kind of their line breaks.
[[nodiscard]] bool reads_same(const QString& a, const QString& b);

/// The same, where each "*" in the pattern stands for any characters, also none.
[[nodiscard]] bool reads_like(const QString& text, const QString& pattern);

/// The text in double quotes, as a script would write it.
[[nodiscard]] QString quoted(const QString& text);

/// "00200200"; at most `limit` bytes, then dots.
[[nodiscard]] QString hex_of(const QByteArray& bytes, qsizetype limit = 64);

}  // namespace ecr::robot

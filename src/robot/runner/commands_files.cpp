#include <algorithm>
#include <array>
#include <optional>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "robot/runner/command.h"
#include "robot/runner/files.h"
#include "robot/runner/session.h"
#include "robot/runner/text.h"

namespace ecr::robot {
namespace {

/// No file that a script writes needs more; a slip of the pen must not fill the disk.
constexpr qsizetype largest_file = qsizetype{256} * 1024 * 1024;

/// The bytes of a TEXT. Throws a ScriptFault if the code page lacks one of its characters.
QByteArray page_bytes(const QString& text) {
  if (const auto bytes = bytes_of_text(text)) return *bytes;
  throw ScriptFault{QStringLiteral("a text in the 8-bit code page"), quoted(text)};
}

/// The bytes of a file that an expectation is about.
QByteArray expected_file(Session& session, const QString& path) {
  if (const auto bytes = read_bytes(session.installation.path(path))) return *bytes;
  throw Unmet{QStringLiteral("a file %1").arg(path), QStringLiteral("no such file")};
}

/// The file of a command that needs it to be there.
QString present(const QString& full, const QString& path) {
  if (QFileInfo::exists(full)) return full;
  throw ScriptFault{QStringLiteral("a file %1").arg(path), QStringLiteral("no such file")};
}

QString what_is_at(const QFileInfo& info) {
  if (info.isDir()) return QStringLiteral("a folder");
  if (info.exists()) return QStringLiteral("a file of %1 bytes").arg(info.size());
  return QStringLiteral("nothing there");
}

void expect_file(Session& session, const Arguments& arguments) {
  const QFileInfo info{session.installation.path(arguments.text(0))};
  const bool holds = arguments.is(1, "exists")    ? info.exists()
                     : arguments.is(1, "missing") ? !info.exists()
                     : arguments.is(1, "folder")  ? info.isDir()
                                                  : info.isFile() && info.size() == arguments.number(2);
  if (holds) return;
  QString wish = QStringLiteral("%1 %2").arg(arguments.text(0), arguments.text(1));
  if (arguments.has(2)) wish += QLatin1Char(' ') + arguments.text(2);
  throw Unmet{wish, what_is_at(info)};
}

void expect_bytes(Session& session, const Arguments& arguments) {
  const QByteArray wanted = arguments.bytes(2);
  const QByteArray file = expected_file(session, arguments.text(0));
  const QByteArray found = file.mid(arguments.number(1), wanted.size());
  if (found == wanted) return;
  throw Unmet{QStringLiteral("%1 from byte %2 on").arg(hex_of(wanted), arguments.text(1)),
              QStringLiteral("%1, the file has %2 bytes").arg(hex_of(found)).arg(file.size())};
}

/// Where two files begin to differ; nothing if they are equal.
std::optional<qsizetype> first_difference(const QByteArray& a, const QByteArray& b) {
  const auto [in_a, in_b] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
  if (in_a == a.end() && in_b == b.end()) return std::nullopt;
  return in_a - a.begin();
}

void expect_same(Session& session, const Arguments& arguments) {
  const QByteArray a = expected_file(session, arguments.text(0));
  const QByteArray b = expected_file(session, arguments.text(1));
  const auto difference = first_difference(a, b);
  if (!difference) return;
  throw Unmet{QStringLiteral("%1 and %2 are equal").arg(arguments.text(0), arguments.text(1)),
              QStringLiteral("%1 and %2 bytes that differ from byte %3 on: %4, %5")
                  .arg(a.size())
                  .arg(b.size())
                  .arg(*difference)
                  .arg(hex_of(a.mid(*difference), 8), hex_of(b.mid(*difference), 8))};
}

void expect_different(Session& session, const Arguments& arguments) {
  const QByteArray a = expected_file(session, arguments.text(0));
  if (a != expected_file(session, arguments.text(1))) return;
  throw Unmet{QStringLiteral("%1 and %2 differ").arg(arguments.text(0), arguments.text(1)),
              QStringLiteral("%1 equal bytes").arg(a.size())};
}

void expect_text(Session& session, const Arguments& arguments) {
  const QByteArray wanted = page_bytes(arguments.text(1));
  const QByteArray found = expected_file(session, arguments.text(0));
  if (found == wanted) return;
  throw Unmet{QStringLiteral("%1 is %2").arg(arguments.text(0), quoted(arguments.text(1))),
              quoted(text_of_bytes(found.left(2000)))};
}

void expect_line(Session& session, const Arguments& arguments) {
  const QByteArray wanted = page_bytes(arguments.text(2));
  const QList<QByteArray> lines = lines_of(expected_file(session, arguments.text(0)));
  const qsizetype number = arguments.number(1);
  const QString wish = QStringLiteral("line %1 of %2 %3").arg(number).arg(arguments.text(0), quoted(arguments.text(2)));
  if (number < 1 || number > lines.size()) throw Unmet{wish, QStringLiteral("it has %1 lines").arg(lines.size())};
  const QByteArray& found = lines[number - 1];
  if (found != wanted) throw Unmet{wish, quoted(text_of_bytes(found))};
}

void expect_lines(Session& session, const Arguments& arguments) {
  const qsizetype found = lines_of(expected_file(session, arguments.text(0))).size();
  if (found == arguments.number(1)) return;
  throw Unmet{QStringLiteral("%1 has %2 lines").arg(arguments.text(0), arguments.text(1)), QString::number(found)};
}

void copy(Session& session, const Arguments& arguments) {
  const QString from = present(session.installation.path(arguments.text(0)), arguments.text(0));
  copy_all(from, session.installation.path_to_change(arguments.text(1)));
}

void remove(Session& session, const Arguments& arguments) {
  const QString path = present(session.installation.path_to_change(arguments.text(0)), arguments.text(0));
  const bool removed = QFileInfo{path}.isDir() ? QDir{path}.removeRecursively() : QFile::remove(path);
  if (!removed) throw ScriptFault{QStringLiteral("%1 is deleted").arg(path), QStringLiteral("it cannot be")};
}

void make_folder(Session& session, const Arguments& arguments) {
  const QString path = session.installation.path_to_change(arguments.text(0));
  if (!QDir{}.mkpath(path))
    throw ScriptFault{QStringLiteral("a folder %1").arg(path), QStringLiteral("it cannot be made")};
}

void write(Session& session, const Arguments& arguments) {
  write_bytes(session.installation.path_to_change(arguments.text(0)), page_bytes(arguments.text(1)));
}

/// Puts bytes over those from `offset` on; a gap before them is filled with zeros.
void overwrite(Session& session, const QString& words, qsizetype offset, const QByteArray& bytes) {
  const QString path = session.installation.path_to_change(words);
  if (offset + bytes.size() > largest_file) {
    throw ScriptFault{QStringLiteral("a file of at most %1 bytes").arg(largest_file),
                      QStringLiteral("%1 bytes").arg(offset + bytes.size())};
  }
  QByteArray file = read_bytes(path).value_or(QByteArray{});
  const qsizetype end = offset + bytes.size();
  if (file.size() < end) file.append(end - file.size(), '\0');
  file.replace(offset, bytes.size(), bytes);
  write_bytes(path, file);
}

void poke(Session& session, const Arguments& arguments) {
  overwrite(session, arguments.text(0), arguments.number(1), arguments.bytes(2));
}

void fill(Session& session, const Arguments& arguments) {
  const auto count = std::min<qsizetype>(arguments.number(2), largest_file + 1);
  overwrite(session, arguments.text(0), arguments.number(1), QByteArray{count, arguments.bytes(3).at(0)});
}

void truncate(Session& session, const Arguments& arguments) {
  const QString path = present(session.installation.path_to_change(arguments.text(0)), arguments.text(0));
  const auto size = std::min<qsizetype>(arguments.number(1), largest_file);
  QByteArray file = read_bytes(path).value_or(QByteArray{});
  if (file.size() < size) file.append(size - file.size(), '\0');
  file.truncate(size);
  write_bytes(path, file);
}

constexpr auto file_table = std::to_array<Command>({
    {"expect-file", "PATH exists|missing|folder / PATH size N", Trying::again, expect_file},
    {"expect-bytes", "PATH OFFSET HEX", Trying::again, expect_bytes},
    {"expect-same", "PATH PATH", Trying::again, expect_same},
    {"expect-different", "PATH PATH", Trying::again, expect_different},
    {"expect-text", "PATH TEXT", Trying::again, expect_text},
    {"expect-line", "PATH N TEXT", Trying::again, expect_line},
    {"expect-lines", "PATH N", Trying::again, expect_lines},
    {"copy", "PATH PATH", Trying::once, copy},
    {"delete", "PATH", Trying::once, remove},
    {"make-folder", "PATH", Trying::once, make_folder},
    {"write", "PATH TEXT", Trying::once, write},
    {"poke", "PATH OFFSET HEX", Trying::once, poke},
    {"fill", "PATH OFFSET N BYTE", Trying::once, fill},
    {"truncate", "PATH SIZE", Trying::once, truncate},
});

}  // namespace

std::span<const Command> file_commands() {
  return file_table;
}

}  // namespace ecr::robot

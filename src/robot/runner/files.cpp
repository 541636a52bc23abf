#include "robot/runner/files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "robot/runner/failure.h"

namespace ecr::robot {

std::optional<QByteArray> read_bytes(const QString& path) {
  QFile file{path};
  if (!QFileInfo{path}.isFile() || !file.open(QIODevice::ReadOnly)) return std::nullopt;
  return file.readAll();
}

void write_bytes(const QString& path, const QByteArray& bytes) {
  QSaveFile file{path};
  const bool written = QDir{}.mkpath(QFileInfo{path}.absolutePath()) && file.open(QIODevice::WriteOnly) &&
                       file.write(bytes) == bytes.size() && file.commit();
  if (!written) throw ScriptFault{QStringLiteral("%1 is written").arg(path), file.errorString()};
}

void copy_all(const QString& from, const QString& to) {
  const QFileInfo source{from};
  if (source.isDir()) {
    if (!QDir{}.mkpath(to))
      throw ScriptFault{QStringLiteral("a folder %1").arg(to), QStringLiteral("it cannot be made")};
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    for (const QFileInfo& entry : QDir{from}.entryInfoList(all)) {
      copy_all(entry.filePath(), to + QLatin1Char('/') + entry.fileName());
    }
    return;
  }
  const std::optional<QByteArray> bytes = read_bytes(from);
  if (!bytes) throw ScriptFault{QStringLiteral("a file %1").arg(from), QStringLiteral("no such file")};
  write_bytes(to, *bytes);
  QFile::setPermissions(to, source.permissions() | QFile::WriteOwner);
}

QList<QByteArray> lines_of(const QByteArray& bytes) {
  if (bytes.isEmpty()) return {};
  QList<QByteArray> lines = bytes.split('\n');
  if (lines.last().isEmpty()) lines.removeLast();
  for (QByteArray& line : lines) {
    if (line.endsWith('\r')) line.chop(1);
  }
  return lines;
}

}  // namespace ecr::robot

#include "robot/runner/register_folder.h"

#include <QDir>
#include <QFileInfo>

#include "robot/runner/failure.h"
#include "robot/runner/files.h"

namespace ecr::robot {
namespace {

/// The key of a "key = value" line; empty for a comment or a line that is none.
QByteArray key_of(const QByteArray& line) {
  const qsizetype equals = line.indexOf('=');
  const QByteArray key = line.left(equals < 0 ? 0 : equals).trimmed();
  return key.startsWith('#') ? QByteArray{} : key;
}

}  // namespace

void RegisterFolder::set(const QByteArray& key, const QByteArray& value) const {
  QList<QByteArray> lines = lines_of(read_bytes(file("register.txt")).value_or(QByteArray{}));
  const QByteArray line = key + " = " + value;
  bool found = false;
  for (QByteArray& other : lines) {
    if (key_of(other) != key) continue;
    other = line;
    found = true;
  }
  if (!found) lines.append(line);
  write_bytes(file("register.txt"), lines.join('\n') + '\n');
}

void RegisterFolder::clear_numbered(const QByteArray& key) const {
  QList<QByteArray> lines = lines_of(read_bytes(file("register.txt")).value_or(QByteArray{}));
  lines.removeIf([&](const QByteArray& line) { return key_of(line).startsWith(key + '.'); });
  write_bytes(file("register.txt"), lines.join('\n') + '\n');
}

void RegisterFolder::show_devices(const QList<QByteArray>& captions) const {
  write_bytes(file("devices.txt"), (QList<QByteArray>{"only"} + captions).join('\n') + '\n');
}

QByteArray RegisterFolder::port_caption(const QByteArray& number) {
  return "USB Serial Port (COM" + number + ")";
}

void RegisterFolder::hold_samples_of(const QString& model) const {
  const QString samples = folder_ + QStringLiteral("/samples/") + model;
  if (!QFileInfo{samples}.isDir()) {
    throw ScriptFault{QStringLiteral("sample programming in %1").arg(samples), QStringLiteral("no such folder")};
  }
  copy_all(samples, folder_);
}

void RegisterFolder::answer_report(int number, const QByteArray& bytes) const {
  write_bytes(folder_ + QStringLiteral("/reports/%1.bin").arg(number), bytes);
}

}  // namespace ecr::robot

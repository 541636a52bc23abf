#include "practice/program.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>

namespace ecr::practice {
namespace {

void append(const QString& path, const QByteArray& bytes) {
  QFile file{path};
  if (file.open(QIODevice::WriteOnly | QIODevice::Append)) file.write(bytes);
}

}  // namespace

QString app_folder() {
  return QCoreApplication::applicationDirPath();
}

void log(const QString& text) {
  QDir{}.mkpath(app_folder() + QStringLiteral("/Log"));
  const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("dd-MM-yy hh:mm:ss "));
  append(app_folder() + QStringLiteral("/Log/memo_log.txt"), (stamp + text).toLatin1() + '\n');
}

void note_call(const QString& line) {
  append(app_folder() + QStringLiteral("/register/calls.txt"), line.toLatin1() + '\n');
}

}  // namespace ecr::practice

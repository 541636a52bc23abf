#include "robot/runner/traces.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringDecoder>

#include "robot/runner/files.h"
#include "robot/runner/installation.h"
#include "robot/runner/text.h"

namespace ecr::robot {

void RunLog::mark() {
  begin_ = read_bytes(file_).value_or(QByteArray{}).size();
}

QStringList RunLog::texts() const {
  static const QRegularExpression stamp{QStringLiteral("^\\d\\d-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d ")};
  const QByteArray bytes = read_bytes(file_).value_or(QByteArray{});
  // A log that has been removed or cut since then is a new one.
  const QByteArray fresh = bytes.mid(bytes.size() < begin_ ? 0 : begin_);
  QStringList texts;
  for (const QByteArray& line : lines_of(fresh)) {
    QString text = text_of_bytes(line);
    const QRegularExpressionMatch match = stamp.match(text);
    if (match.hasMatch()) {
      texts.append(text.mid(match.capturedLength()));
    } else if (texts.isEmpty()) {
      texts.append(text);
    } else {
      texts.last().append(QLatin1Char('\n') + text);
    }
  }
  return texts;
}

QString Calls::file() const {
  return installation_.folder() + QStringLiteral("/register/calls.txt");
}

void Calls::begin() {
  if (!QFile::exists(file())) asked_for_ = true;
  write_bytes(file(), {});
  seen_ = 0;
  counted_.clear();
}

void Calls::end() const {
  if (asked_for_) QFile::remove(file());
}

void Calls::forget() {
  seen_ = lines_of(read_bytes(file()).value_or(QByteArray{})).size();
}

QStringList Calls::new_calls() const {
  QStringList calls;
  for (const QByteArray& line : lines_of(read_bytes(file()).value_or(QByteArray{})).mid(seen_)) {
    calls.append(as_written(line));
  }
  return calls;
}

void Calls::take(const QStringList& calls) {
  counted_ = calls;
  seen_ += calls.size();
}

QString Calls::as_written(const QByteArray& line) const {
  // Folders may hold blanks, and so the words that follow them say where they end.
  static const QRegularExpression folder{
      QStringLiteral("\\b(folder|source|target1)=(.*?)(?= (?:direction|file|timeout|target1|target2)=|$)")};
  QStringDecoder decoder{QStringDecoder::Utf8};
  QString text = decoder.decode(line);
  if (decoder.hasError()) text = text_of_bytes(line);
  QString written;
  qsizetype behind = 0;
  for (auto match = folder.globalMatch(text); match.hasNext();) {
    const QRegularExpressionMatch found = match.next();
    written += text.mid(behind, found.capturedStart(2) - behind) + installation_.relative(found.captured(2));
    behind = found.capturedEnd(2);
  }
  return written + text.mid(behind);
}

}  // namespace ecr::robot

#include "robot/runner/program.h"

#include <algorithm>

#include <QJsonDocument>

#include "robot/runner/host.h"

namespace ecr::robot {
namespace {

constexpr int look_every = 20;  // milliseconds

int time_left(QDeadlineTimer deadline) {
  return static_cast<int>(std::clamp<qint64>(deadline.remainingTime(), 0, look_every));
}

}  // namespace

Program::~Program() {
  kill();
}

bool Program::start(const QString& executable, const QStringList& arguments, const QString& folder,
                    const QProcessEnvironment& environment) {
  process_ = std::make_unique<QProcess>();
  unread_.clear();
  answers_.clear();
  killed_ = false;
  process_->setProgram(executable);
  process_->setArguments(arguments);
  process_->setWorkingDirectory(folder);
  process_->setProcessEnvironment(environment);
  process_->start();
  if (process_->waitForStarted(-1)) return true;
  process_.reset();
  return false;
}

bool Program::runs() {
  if (!process_) return false;
  read();
  return process_->state() != QProcess::NotRunning;
}

std::optional<QString> Program::wrong_end() const {
  if (!process_ || killed_) return std::nullopt;
  if (process_->exitStatus() == QProcess::CrashExit) {
    return QStringLiteral("it crashed, %1").arg(QString::fromStdString(crash_text(process_->exitCode())));
  }
  if (process_->exitCode() != 0) return QStringLiteral("it ended with exit code %1").arg(process_->exitCode());
  return std::nullopt;
}

std::pair<Program::Reply, QJsonObject> Program::ask(QJsonObject request, QDeadlineTimer deadline) {
  const int id = ++last_id_;
  request.insert(QStringLiteral("id"), id);
  process_->write(QJsonDocument{request}.toJson(QJsonDocument::Compact) + '\n');
  for (;;) {
    const bool running = runs();
    if (answers_.contains(id)) return {Reply::answered, answers_.take(id)};
    if (!running) return {Reply::ended, {}};
    if (deadline.hasExpired()) return {Reply::too_late, {}};
    process_->waitForReadyRead(time_left(deadline));
  }
}

void Program::run_for(QDeadlineTimer deadline) {
  while (!deadline.hasExpired() && runs()) process_->waitForFinished(time_left(deadline));
}

void Program::kill() {
  if (!process_ || process_->state() == QProcess::NotRunning) return;
  killed_ = true;
  process_->kill();
  process_->waitForFinished(-1);
  read();
}

QByteArray Program::take_errors() {
  if (process_) read();
  return std::exchange(errors_, {});
}

void Program::read() {
  // Nothing arrives between two waits, and the end is not noticed either.
  if (process_->state() != QProcess::NotRunning) process_->waitForReadyRead(0);
  unread_ += process_->readAllStandardOutput();
  errors_ += process_->readAllStandardError();
  for (qsizetype end = unread_.indexOf('\n'); end >= 0; end = unread_.indexOf('\n')) {
    const QJsonObject answer = QJsonDocument::fromJson(unread_.left(end)).object();
    unread_.remove(0, end + 1);
    const int id = answer.value(QLatin1String("id")).toInt();
    if (id != 0) answers_.insert(id, answer);
  }
}

}  // namespace ecr::robot

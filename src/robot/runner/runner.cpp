#include "robot/runner/runner.h"

#include <algorithm>
#include <cstdio>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>
#include <QTime>

#include "robot/runner/command.h"

namespace ecr::robot {
namespace {

void print(const QString& text) {
  const QByteArray bytes = text.toUtf8() + '\n';
  static_cast<void>(std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout));
  static_cast<void>(std::fflush(stdout));
}

/// Where logs and pictures go when nobody names a place: beside the robot, or where temporary files go if that folder
/// takes none.
QString usual_log_folder() {
  for (const QString& folder : {QCoreApplication::applicationDirPath(), QDir::tempPath()}) {
    QString logs = folder + QStringLiteral("/robot-log");
    if (QDir{}.mkpath(logs) && QFileInfo{logs}.isWritable()) return logs;
  }
  return QDir::tempPath();
}

/// "vat.robot:11: click C_Salva", or the file alone.
QString text_of(const Place& place) {
  if (place.number == 0) return place.file + QLatin1Char(':');
  return place.file + QLatin1Char(':') + QString::number(place.number) + QLatin1String(": ") + place.source;
}

/// Runs the command of a line until it holds or the patience with it is at an end.
void try_line(Session& session, const ScriptLine& line) {
  constexpr int pause = 20;  // milliseconds between two attempts
  session.begin_line();
  QElapsedTimer tried;
  tried.start();
  for (;;) {
    const bool again = tried.elapsed() < session.patience().expectation;
    try {
      line.command->run(session, Arguments{line.words});
      session.check_health();
      return;
    } catch (const Unmet& unmet) {
      if (!again || unmet.for_good || line.command->trying == Trying::once) throw;
    } catch (const ScriptFault& fault) {
      if (!again || !fault.may_pass) throw;
    }
    session.check_health();
    session.program.run_for(QDeadlineTimer{pause});
    if (!session.program.runs()) QThread::msleep(pause);
  }
}

}  // namespace

void Runner::run(const QString& script) {
  script_ = script;
  trouble_ = {};
  last_errors_.clear();
  open_log();
  QElapsedTimer taken;
  taken.start();
  const QFileInfo file{script};
  std::vector<ScriptLine> lines;
  try {
    lines = read_script(script);
    Session session{settings_.used_folder, file.absolutePath(), settings_.patience};
    run_lines(session, lines);
    if (!settings_.used_folder.isEmpty()) session.calls.end();
    if (settings_.keep) {
      if (const auto kept = session.installation.keep()) print(QStringLiteral("%1: kept in %2").arg(script, *kept));
    }
  } catch (const LineFault& fault) {
    trouble_ = {Status::fault, fault.places, fault.fault.expected, fault.fault.found};
    tell(trouble_, {});
  } catch (const ScriptFault& fault) {
    trouble_ = {Status::fault, {{script, 0, {}}}, fault.expected, fault.found};
    tell(trouble_, {});
  }
  worst_ = std::max(worst_, trouble_.status);
  if (trouble_.status != Status::passed) {
    ++failed_;
    return;
  }
  ++passed_;
  const QString outcome = QStringLiteral("%1: passed, %2 lines in %3 s")
                              .arg(script)
                              .arg(lines.size())
                              .arg(static_cast<double>(taken.elapsed()) / 1000, 0, 'f', 1);
  log(outcome);
  print(outcome);
}

int Runner::finish() {
  print(QStringLiteral("%1 passed, %2 failed").arg(passed_).arg(failed_));
  return static_cast<int>(worst_);
}

void Runner::open_log() {
  if (!settings_.log_file.isEmpty() && log_.isOpen()) return;
  log_.close();
  const QString file = settings_.log_file.isEmpty() ? usual_log_folder() + QLatin1Char('/') +
                                                          QFileInfo{script_}.completeBaseName() + QStringLiteral(".log")
                                                    : settings_.log_file;
  QDir{}.mkpath(QFileInfo{file}.absolutePath());
  log_.setFileName(file);
  if (!log_.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
    print(QStringLiteral("the log %1 cannot be written: %2").arg(file, log_.errorString()));
  }
}

void Runner::log(const QString& text) {
  if (!log_.isOpen()) return;
  log_.write(QTime::currentTime().toString(QStringLiteral("hh:mm:ss.zzz ")).toUtf8() + text.toUtf8() + '\n');
  log_.flush();
}

void Runner::log_errors(Session& session) {
  constexpr qsizetype kept = 4000;
  QByteArray errors = session.program.take_errors();
  // What the toolkit has to say about every window where there is no display.
  errors.replace("This plugin does not support propagateSizeHints()\n", "");
  if (errors.isEmpty()) return;
  log(QStringLiteral("the program writes:\n") + QString::fromUtf8(errors).trimmed());
  last_errors_ = (last_errors_ + errors).right(kept);
}

void Runner::run_lines(Session& session, const std::vector<ScriptLine>& lines) {
  log(QStringLiteral("%1 in %2").arg(script_, session.installation.folder()));
  for (const ScriptLine& line : lines) {
    run_line(session, line);
    log_errors(session);
    if (trouble_.status != Status::passed) break;
  }
  if (trouble_.status != Status::passed) tell(trouble_, picture_of_failure(session, trouble_));
  end(session, lines.empty() ? ScriptLine{} : lines.back());
}

void Runner::run_line(Session& session, const ScriptLine& line) {
  QElapsedTimer taken;
  taken.start();
  try {
    try_line(session, line);
    log(text_of(line.places.front()) + QStringLiteral("  [%1 ms]").arg(taken.elapsed()));
  } catch (const Unmet& unmet) {
    trouble_ = trouble_of(line, unmet);
  } catch (const ScriptFault& fault) {
    trouble_ = {Status::fault, line.places, fault.expected, fault.found};
  }
}

void Runner::end(Session& session, const ScriptLine& last) {
  // What has failed already is not asked for manners too.
  if (trouble_.status != Status::passed) {
    session.program.kill();
    return;
  }
  try {
    session.begin_line();
    session.close_program();
    log_errors(session);
  } catch (const Unmet& unmet) {
    log_errors(session);
    const int last_number = last.places.empty() ? 0 : last.places.back().number;
    trouble_ =
        trouble_of({{{script_, last_number + 1, QStringLiteral("(the end of the script)")}}, {}, nullptr}, unmet);
    tell(trouble_, picture_of_failure(session, trouble_));
    session.program.kill();
  }
}

Runner::Trouble Runner::trouble_of(const ScriptLine& line, const Unmet& unmet) {
  return {Status::unmet, line.places, unmet.expected, unmet.found};
}

QString Runner::picture_of_failure(Session& session, const Trouble& trouble) const {
  const QFileInfo log_file{log_};
  QString name = log_file.completeBaseName();
  const QString script = QFileInfo{script_}.completeBaseName();
  if (name != script) name += QLatin1Char('-') + script;
  const Place& place = trouble.places.front();
  if (trouble.places.size() > 1) name += QLatin1Char('-') + QFileInfo{place.file}.completeBaseName();
  const QString path =
      QStringLiteral("%1/%2-line-%3.png").arg(log_file.absolutePath(), name, QString::number(place.number));
  return session.save_picture(path) ? path : QString{};
}

void Runner::tell(const Trouble& trouble, const QString& picture) {
  QString text = text_of(trouble.places.front());
  text += QStringLiteral("\n    expected: ") + trouble.expected + QStringLiteral("\n    found:    ") + trouble.found;
  for (std::size_t i = 1; i < trouble.places.size(); ++i) {
    text += QStringLiteral("\n    included: ") + text_of(trouble.places[i]);
  }
  if (!picture.isEmpty()) text += QStringLiteral("\n    picture:  ") + picture;
  const QString errors = QString::fromUtf8(last_errors_).trimmed();
  if (!errors.isEmpty()) {
    text += QStringLiteral("\n    the program wrote:\n        ") +
            QString{errors}.replace(QLatin1Char('\n'), QLatin1String("\n        "));
  }
  log(text);
  print(text);
}

}  // namespace ecr::robot

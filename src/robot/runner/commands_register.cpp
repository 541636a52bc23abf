#include <array>

#include <QFileInfo>
#include <QProcess>

#include "robot/runner/command.h"
#include "robot/runner/files.h"
#include "robot/runner/session.h"
#include "robot/runner/text.h"

namespace ecr::robot {
namespace {

/// The bytes of a TEXT that fills one line of a file.
QByteArray line_bytes(const QString& text) {
  const auto bytes = bytes_of_text(text);
  if (bytes && !bytes->contains('\n') && !bytes->contains('\r')) return *bytes;
  throw ScriptFault{QStringLiteral("one line in the 8-bit code page"), quoted(text)};
}

/// "answer", or "answer.12" where the script names a file number.
QByteArray key_for_file(const char* key, const Arguments& arguments, std::size_t index) {
  return arguments.has(index) ? QByteArray{key} + '.' + QByteArray::number(arguments.number(index)) : QByteArray{key};
}

void on(Session& session, const Arguments& arguments) {
  const QByteArray port = QByteArray::number(arguments.has(0) ? arguments.number(0) : 4);
  session.emulated.set("port", port);
  if (!session.devices_set) session.emulated.show_devices({RegisterFolder::port_caption(port)});
}

void off(Session& session, const Arguments&) {
  session.emulated.set("port", "0");
}

void ports(Session& session, const Arguments& arguments) {
  QList<QByteArray> captions;
  for (std::size_t i = 0; i < arguments.count(); ++i) {
    captions.append(RegisterFolder::port_caption(QByteArray::number(arguments.number(i))));
  }
  session.emulated.show_devices(captions);
  session.devices_set = true;
}

void devices(Session& session, const Arguments& arguments) {
  QList<QByteArray> captions;
  for (std::size_t i = 0; i < arguments.count(); ++i) captions.append(line_bytes(arguments.text(i)));
  session.emulated.show_devices(captions);
  session.devices_set = true;
}

void model(Session& session, const Arguments& arguments) {
  session.emulated.hold_samples_of(arguments.text(0));
  session.emulated.set("model", arguments.text(0).toLatin1());
}

void banner(Session& session, const Arguments& arguments) {
  constexpr qsizetype banner_length = 36;
  const QByteArray bytes = line_bytes(arguments.text(0));
  if (bytes.size() > banner_length) {
    throw ScriptFault{QStringLiteral("a banner of at most 36 characters"),
                      QStringLiteral("%1 characters").arg(bytes.size())};
  }
  session.emulated.set("banner", bytes.leftJustified(banner_length));
}

void release(Session& session, const Arguments& arguments) {
  session.emulated.set("release", arguments.text(0).toLatin1());
}

void answer(Session& session, const Arguments& arguments) {
  if (arguments.number(0) == 0 && !arguments.has(1)) session.emulated.clear_numbered("answer");
  session.emulated.set(key_for_file("answer", arguments, 1), QByteArray::number(arguments.number(0)));
}

void logo(Session& session, const Arguments& arguments) {
  session.emulated.set("logo", arguments.text(0).toLatin1());
}

void fails(Session& session, const Arguments& arguments) {
  session.emulated.set(key_for_file("fails", arguments, 0), "yes");
}

void works(Session& session, const Arguments&) {
  session.emulated.clear_numbered("fails");
  session.emulated.set("fails", "no");
}

void delay(Session& session, const Arguments& arguments) {
  session.emulated.set("delay", arguments.text(0).toLatin1());
}

void report(Session& session, const Arguments& arguments) {
  constexpr qsizetype first_report = 3;
  constexpr qsizetype last_report = 21;
  if (arguments.number(0) < first_report || arguments.number(0) > last_report) {
    throw ScriptFault{QStringLiteral("a report from 3 to 21"), arguments.text(0)};
  }
  const auto bytes = read_bytes(session.installation.path(arguments.text(1)));
  if (!bytes) throw ScriptFault{QStringLiteral("a file %1").arg(arguments.text(1)), QStringLiteral("no such file")};
  session.emulated.answer_report(arguments.small_number(0), *bytes);
}

void trade(Session& session, const Arguments&) {
  const QString trader = session.installation.executable("regtrade");
  if (!QFileInfo::exists(trader)) {
    throw ScriptFault{QStringLiteral("a register that can trade"), QStringLiteral("there is no %1").arg(trader)};
  }
  QProcess process;
  process.setWorkingDirectory(session.installation.folder());
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(trader, {session.installation.folder()});
  const bool ended = process.waitForFinished(static_cast<int>(session.line_deadline().remainingTime()));
  if (ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0) return;
  const QString found = ended ? QStringLiteral("it ended with %1: %2")
                                    .arg(process.exitCode())
                                    .arg(QString::fromUtf8(process.readAll()).trimmed())
                              : process.errorString();
  process.kill();
  process.waitForFinished(-1);
  throw Unmet{QStringLiteral("the register trades one more day"), found};
}

void hang(Session& session, const Arguments& arguments) {
  session.emulated.set("hang", arguments.has(0) ? QByteArray::number(arguments.number(0)) : QByteArray{"next"});
}

constexpr auto register_table = std::to_array<Command>({
    {"register on", "[PORT]", Trying::once, on},
    {"register off", "", Trying::once, off},
    {"register ports", "N...", Trying::once, ports},
    {"register devices", "TEXT...", Trying::once, devices},
    {"register model", "Z300|Z320", Trying::once, model},
    {"register banner", "TEXT", Trying::once, banner},
    {"register release", "RELEASE.BIN|RELEA.BIN|none", Trying::once, release},
    {"register answer", "CODE [FILE]", Trying::once, answer},
    {"register logo", "normal / CODE", Trying::once, logo},
    {"register fails", "[FILE]", Trying::once, fails},
    {"register works", "", Trying::once, works},
    {"register delay", "SECONDS", Trying::once, delay},
    {"register report", "N PATH", Trying::once, report},
    {"register trade", "", Trying::once, trade},
    {"register hang", "[FILE]", Trying::once, hang},
});

}  // namespace

std::span<const Command> register_commands() {
  return register_table;
}

}  // namespace ecr::robot

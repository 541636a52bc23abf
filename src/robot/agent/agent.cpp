#include "robot/agent/agent.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <utility>

#include <QApplication>
#include <QCursor>
#include <QFile>
#include <QJsonDocument>
#include <QTimerEvent>

#include "robot/agent.h"
#include "robot/agent/asking.h"
#include "robot/agent/refusal.h"
#include "robot/agent/screens.h"
#include "robot/protocol.h"

namespace ecr::robot {
namespace {

// A program that is seen at rest so often, with all posted events and all due timers handled in between, is at rest.
constexpr int looks_until_calm = 2;
constexpr int pause_between_looks = 2;  // milliseconds

QEvent::Type look_event() {
  static const int type = QEvent::registerEventType();
  return static_cast<QEvent::Type>(type);
}

void answer(int id, const char* is, QJsonObject object = {}) {
  object.insert(QStringLiteral("id"), id);
  object.insert(QStringLiteral("is"), QLatin1String(is));
  const QByteArray line = QJsonDocument{object}.toJson(QJsonDocument::Compact) + '\n';
  static_cast<void>(std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stdout));
  static_cast<void>(std::fflush(stdout));
}

void answer(int id, const Refusal& refusal) {
  answer(id, refusal.script_fault ? "fault" : "failed",
         {{QStringLiteral("expected"), refusal.expected}, {QStringLiteral("found"), refusal.found}});
}

/// Set when the toolkit is taken down: no more events then.
std::atomic<bool> over{false};

void read_requests(Agent* agent) {
  // By its number and not by C's stream: a read that is under way at the program's end must hold nobody's lock.
  QFile input;
  if (!input.open(0, QIODevice::ReadOnly | QIODevice::Unbuffered)) return;
  for (;;) {
    const QByteArray line = input.readLine();
    if (line.isEmpty()) std::_Exit(EXIT_FAILURE);
    if (over) return;
    QMetaObject::invokeMethod(
        agent, [agent, line] { agent->take(line); }, Qt::QueuedConnection);
  }
}

}  // namespace

void Agent::take(const QByteArray& bytes) {
  const QJsonObject request = QJsonDocument::fromJson(bytes).object();
  const int id = request.value(QLatin1String("id")).toInt();
  const QString what = request.value(QLatin1String("do")).toString();
  try {
    if (what == QLatin1String("state")) {
      answer(id, "value", {{QStringLiteral("value"), state()}});
    } else if (what == QLatin1String("start")) {
      begin({id, {}, true});
    } else if (const std::optional<QJsonValue> value = value_of(request)) {
      answer(id, "value", {{QStringLiteral("value"), *value}});
    } else {
      begin({id, steps_of(request), false});
    }
  } catch (const Refusal& refusal) {
    answer(id, refusal);
  }
}

void Agent::begin(Line line) {
  line_ = std::move(line);
  calm_looks_ = 0;
  pulse(0);
}

void Agent::pulse(int milliseconds) {
  pulse_.start(milliseconds, this);
}

void Agent::timerEvent(QTimerEvent* event) {
  if (event->timerId() != pulse_.timerId()) return;
  pulse_.stop();
  // Behind all that has been posted so far. A posted event also arrives inside an event loop that a step is held in,
  // where the timer that started the step would not fire.
  QCoreApplication::removePostedEvents(this, look_event());
  QCoreApplication::postEvent(this, new QEvent{look_event()}, Qt::LowEventPriority);
}

bool Agent::event(QEvent* event) {
  if (event->type() != look_event()) return QObject::event(event);
  look();
  return true;
}

void Agent::look() {
  if (!line_) return;
  if (!at_rest()) {
    calm_looks_ = 0;
    pulse(pause_between_looks);
    return;
  }
  if (++calm_looks_ < looks_until_calm) {
    pulse(0);
    return;
  }
  calm_looks_ = 0;
  if (!line_->steps.empty()) {
    run_step();
    return;
  }
  const int id = line_->id;
  line_.reset();
  answer(id, "done");
}

void Agent::run_step() {
  const int id = line_->id;
  const Step step = std::move(line_->steps.front());
  line_->steps.pop_front();
  pulse(pause_between_looks);
  unfinished_.push_back({QApplication::activeModalWidget()});
  std::optional<Refusal> refused;
  try {
    step();
  } catch (const Refusal& refusal) {
    refused = refusal;
  }
  // From here on the line may be over, and another one under way.
  unfinished_.pop_back();
  if (refused && line_ && line_->id == id) {
    line_.reset();
    answer(id, *refused);
  }
  if (line_) pulse(0);
}

bool Agent::at_rest() const {
  QWidget* modal = QApplication::activeModalWidget();
  if (line_->start) return message_box() != nullptr || file_chooser() != nullptr || active_screen() != nullptr;
  if (message_box() != nullptr || file_chooser() != nullptr) return true;
  if (QGuiApplication::overrideCursor() != nullptr || keeps_person_waiting()) return false;
  if (QApplication::activePopupWidget() != nullptr) return true;
  // Any other modal window tells the person to wait.
  if (modal != nullptr && !shows_screen(modal)) return false;
  // A handler that shows a screen until it is closed does not come back before that.
  return unfinished_.empty() || (modal != nullptr && modal != unfinished_.back().modal_before);
}

QString Agent::state() const {
  QStringList parts;
  parts.append(what_is_up());
  if (QGuiApplication::overrideCursor() != nullptr) parts.append(QStringLiteral("the pointer is busy"));
  if (QWidget* modal = QApplication::activeModalWidget();
      modal != nullptr && !shows_screen(modal) && message_box() == nullptr) {
    parts.append(QStringLiteral("a window \"%1\" keeps the person waiting").arg(modal->windowTitle()));
  }
  if (keeps_person_waiting()) parts.append(QStringLiteral("it takes no input"));
  if (!unfinished_.empty()) parts.append(QStringLiteral("what the line set going has not come back"));
  return parts.join(QStringLiteral(", "));
}

void attach() {
  if (!qEnvironmentVariableIsSet(switch_variable)) return;
  // It lives as long as the process, since the thread that reads cannot be called back.
  static auto* const agent = new Agent;
  watch_windows();
  // Pictures must come out the same each time.
  QApplication::setCursorFlashTime(0);
  QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
  QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
  qAddPostRoutine([] { over = true; });
  std::thread{read_requests, agent}.detach();
}

}  // namespace ecr::robot

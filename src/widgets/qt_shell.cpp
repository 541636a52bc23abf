#include "widgets/qt_shell.h"

#include <atomic>
#include <cstdlib>
#include <memory>
#include <thread>
#include <utility>

#include <QAbstractButton>
#include <QApplication>
#include <QEventLoop>
#include <QMessageBox>
#include <QTimer>

#include "core/catalogue.h"
#include "widgets/screen_text.h"
#include "widgets/wait_panel.h"

namespace ecr {
namespace {

constexpr int turn_ms = 10;
constexpr std::string_view program_name = "Vermanto ECR Programming Utility";

QMessageBox::Icon icon_of(BoxKind kind) {
  switch (kind) {
    case BoxKind::plain:
      return QMessageBox::NoIcon;
    case BoxKind::information:
      return QMessageBox::Information;
    case BoxKind::question:
      return QMessageBox::Question;
    case BoxKind::warning:
      return QMessageBox::Warning;
    case BoxKind::critical:
      return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons buttons_of(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::ok:
      return QMessageBox::Ok;
    case BoxButtons::yes_no:
      return QMessageBox::Yes | QMessageBox::No;
    case BoxButtons::yes_no_cancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
  }
  return QMessageBox::Ok;
}

}  // namespace

QtShell::QtShell(QWidget& window) : window_{window} {}
QtShell::~QtShell() = default;

Answer QtShell::box(BoxKind kind, BoxButtons buttons, std::string_view text, std::string_view title) {
  // The pointer is the person's own while there is something to answer.
  const int busy = busy_;
  for (int i = 0; i < busy; ++i) pointer(Pointer::normal);
  QWidget* over = QApplication::activeModalWidget();
  QMessageBox box{over != nullptr ? over : window_.isVisible() ? &window_ : nullptr};
  box.setIcon(icon_of(kind));
  box.setTextFormat(Qt::PlainText);
  box.setText(screen_text(text));
  box.setWindowTitle(screen_text(title.empty() ? program_name : title));
  box.setStandardButtons(buttons_of(buttons));
  // The questions explain their answers by these words.
  for (const auto& [button, key] :
       {std::pair{QMessageBox::Yes, Key::FRM_ALL_YES}, std::pair{QMessageBox::No, Key::FRM_ALL_NO}}) {
    if (QAbstractButton* shown = box.button(button); shown != nullptr && !message(key).empty()) {
      shown->setText(screen_text(message(key)));
    }
  }
  // A box without a Cancel button is not closed without an answer, except by the one that does nothing.
  if (buttons != BoxButtons::ok) {
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(buttons == BoxButtons::yes_no ? QMessageBox::No : QMessageBox::Cancel);
  }
  const int answer = box.exec();
  for (int i = 0; i < busy; ++i) pointer(Pointer::busy);
  switch (answer) {
    case QMessageBox::Yes:
      return Answer::yes;
    case QMessageBox::No:
      return Answer::no;
    case QMessageBox::Cancel:
      return Answer::cancel;
    default:
      return Answer::ok;
  }
}

void QtShell::let_screens_work() {
  QEventLoop loop;
  QTimer::singleShot(turn_ms, &loop, &QEventLoop::quit);
  loop.exec();
}

void QtShell::pointer(Pointer pointer) {
  if (pointer == Pointer::busy) {
    if (busy_++ == 0) QApplication::setOverrideCursor(Qt::WaitCursor);
  } else if (busy_ > 0 && --busy_ == 0) {
    QApplication::restoreOverrideCursor();
  }
}

void QtShell::run_beside(const WorkInHand& what, Waiting waiting, const std::function<void()>& job) {
  std::unique_ptr<WaitPanel> panel;
  if (waiting == Waiting::modal) panel = std::make_unique<WaitPanel>(window_, screen_text(own_bytes_of_work(what)), 0);
  QEventLoop loop;
  std::atomic<bool> done = false;
  std::thread worker{[&] {
    job();
    done = true;
    QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
  }};
  // A loop that is told to quit before it runs would not hear it; the flag stands all the same.
  while (!done) loop.exec();
  worker.join();
}

void QtShell::wait_until(const WorkInHand& what, double seconds, const std::function<bool()>& done) {
  QCoreApplication::processEvents();
  if (done()) return;
  const WaitPanel panel{window_, screen_text(own_bytes_of_work(what)), seconds};
  QEventLoop loop;
  QTimer turn;
  QObject::connect(&turn, &QTimer::timeout, &loop, [&] {
    if (done()) loop.quit();
  });
  turn.start(turn_ms);
  loop.exec();
}

void QtShell::end_program() {
  std::_Exit(EXIT_SUCCESS);
}

}  // namespace ecr

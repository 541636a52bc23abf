#pragma once
// Tests with the Shell of the program itself in place of the scripted one.

#include <functional>

#include <QMessageBox>
#include <QTimer>

#include "support_qt/screen_test.h"
#include "widgets/qt_shell.h"

namespace ecr::test {

class RealShellTest : public ScreenTest {
 protected:
  RealShellTest() : before_{install_shell(&real)} { install_clock({}); }
  ~RealShellTest() override { install_shell(before_); }

  /// When the next box is up, `person` does something with it.
  void when_a_box_is_up(std::function<void(QMessageBox&)> person) {
    person_ = std::move(person);
    QObject::connect(&look_, &QTimer::timeout, &look_, [this] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr || !box->isActiveWindow()) return;
      look_.stop();
      look_.disconnect();
      person_(*box);
    });
    look_.start(1);
  }

  QtShell real{stage};

 private:
  std::function<void(QMessageBox&)> person_;
  QTimer look_;
  Shell* before_;
};

}  // namespace ecr::test

#pragma once
// Tests of the start screen: the devices are those that the test says, the link answers as it says.

#include <utility>

#include <QTimer>
#include <QTimerEvent>

#include "core/global.h"
#include "link/ports.h"
#include "screens/frm_pres.h"
#include "support/fake_system.h"
#include "support_qt/screen_test.h"

namespace ecr::test {

class StartScreenTest : public ScreenTest {
 protected:
  StartScreenTest() {
    system.tools_apply = false;
    link().be_a_register();
  }

  /// What the log holds behind the line of the start.
  [[nodiscard]] std::vector<std::string> log_behind_start() const {
    std::vector<std::string> lines = log();
    if (!lines.empty()) lines.erase(lines.begin());
    return lines;
  }

  void open_start() {
    start = new FrmPres;
    open(start);
  }

  [[nodiscard]] QTimer& timer() const {
    auto* found = start->findChild<QTimer*>(QString{}, Qt::FindDirectChildrenOnly);
    if (found == nullptr) throw std::runtime_error{"the start screen has no timer"};
    return *found;
  }

  /// What the timer does when its time is over, without the three seconds.
  void let_time_pass() const {
    ASSERT_TRUE(timer().isActive());
    QTimerEvent over{timer().timerId()};
    QCoreApplication::sendEvent(&timer(), &over);
  }

  /// Does something while the next link call is on its way.
  void during_the_first_test(std::function<void()> person) {
    link().after_call = [person = std::move(person), done = false]() mutable {
      if (!std::exchange(done, true)) person();
    };
  }

  [[nodiscard]] QString port() const { return start->findChild<Field*>(QStringLiteral("E_ComPort"))->text(); }
  [[nodiscard]] QColor port_colour() const {
    return start->findChild<Field*>(QStringLiteral("E_ComPort"))->palette().color(QPalette::Text);
  }

  FakeSystem system;
  FrmPres* start = nullptr;
};

}  // namespace ecr::test

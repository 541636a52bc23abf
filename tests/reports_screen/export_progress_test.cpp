// The export with the program's own Shell: calls run beside the screen thread, and the screen stays alive.

#include <atomic>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>

#include "core/global.h"
#include "widgets/real_shell.h"

namespace ecr::test {
namespace {

TEST_F(RealShellTest, AnExportTellsWhichReportItIsAndHowFarItHasCome) {
  start_session(Global::model_z320);
  make_folder("Report");
  open("FrmReportExport");
  click("Chk_Report(3)");
  click("Chk_Report(12)");
  QStringList seen;
  std::atomic<int> panels = 0;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &look, [&] {
    const auto* panel = stage.findChild<QWidget*>(QStringLiteral("WaitPanel"));
    if (panel == nullptr || !panel->isVisible()) return;
    const auto* bar = panel->findChild<QProgressBar*>(QStringLiteral("WaitBar"));
    const QString now = panel->findChild<QLabel*>(QStringLiteral("WaitWhat"))->text() + u'|' +
                        panel->findChild<QLabel*>(QStringLiteral("WaitRest"))->text() + u'|' +
                        QString::number(bar->value()) + u'/' + QString::number(bar->maximum());
    if (seen.contains(now)) return;
    seen << now;
    ++panels;
  });
  look.start(1);
  // Each call goes on until its panel was seen, at the latest for as long as the test's own limit.
  int calls = 0;
  link().after_call = [&] {
    ++calls;
    const auto give_up = std::chrono::steady_clock::now() + std::chrono::seconds{20};
    while (panels < calls && std::chrono::steady_clock::now() < give_up) std::this_thread::yield();
  };
  click("C_Export");
  EXPECT_EQ(seen,
            (QStringList{QStringLiteral("Cash In Drawer Report|1 of 3|0/3"), QStringLiteral("Time Report|2 of 3|1/3"),
                         QStringLiteral("Asking the register for its release|3 of 3|2/3")}));
  EXPECT_EQ(stage.findChild<QWidget*>(QStringLiteral("WaitPanel")), nullptr);
  EXPECT_EQ(top(), QStringLiteral("FrmReportExport"));
}

}  // namespace
}  // namespace ecr::test

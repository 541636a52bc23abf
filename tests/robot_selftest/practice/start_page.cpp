// The first page: what boxes, choosers, slow and broken handlers do to whoever drives the program.

#include <cstdio>
#include <cstdlib>

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QMessageBox>
#include <QProcess>
#include <QThread>
#include <QTimer>

#include "practice/build.h"
#include "practice/controls.h"
#include "practice/program.h"
#include "practice/screens.h"

namespace ecr::practice {
namespace {

constexpr int slow = 300;  // milliseconds

int box(QMessageBox::Icon icon, const char* text, QMessageBox::StandardButtons buttons, QWidget* page) {
  QMessageBox shown{icon, QStringLiteral("Box title"), QString::fromUtf8(text), buttons, page->window()};
  shown.setTextFormat(Qt::PlainText);
  return shown.exec();
}

void boxes(QWidget* page, QGridLayout* grid) {
  struct Kind {
    const char* name;
    QMessageBox::Icon icon;
  };
  int column = 0;
  for (const Kind& kind : {Kind{"C_Box(0)", QMessageBox::NoIcon}, Kind{"C_Box(1)", QMessageBox::Information},
                           Kind{"C_Box(2)", QMessageBox::Warning}, Kind{"C_Box(3)", QMessageBox::Critical}}) {
    grid->addWidget(button(page, kind.name, kind.name, [=] { box(kind.icon, "One\rTwo", QMessageBox::Ok, page); }), 0,
                    column++);
  }
  grid->addWidget(button(page, "C_Ask", "Ask",
                         [=] {
                           const auto all = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
                           const int answer = box(QMessageBox::Question, "Sure?", all, page);
                           log(answer == QMessageBox::Yes  ? QStringLiteral("Yes")
                               : answer == QMessageBox::No ? QStringLiteral("No")
                                                           : QStringLiteral("Cancel"));
                         }),
                  0, column++);
  grid->addWidget(button(page, "C_Two", "Two boxes",
                         [=] {
                           box(QMessageBox::Information, "First", QMessageBox::Ok, page);
                           QThread::msleep(slow);
                           box(QMessageBox::Critical, "Second", QMessageBox::Ok, page);
                           log(QStringLiteral("Both answered"));
                         }),
                  0, column);
}

void choosers(QWidget* page, QGridLayout* grid) {
  const auto chosen = [](const QString& file) { log(QStringLiteral("chosen ") + QFileInfo{file}.fileName()); };
  grid->addWidget(button(page, "C_Open", "Open",
                         [=] {
                           chosen(QFileDialog::getOpenFileName(page, QStringLiteral("Open a text"), app_folder(),
                                                               QStringLiteral("File (*.txt);;All (*.*)"), nullptr,
                                                               QFileDialog::DontUseNativeDialog));
                         }),
                  1, 0);
  grid->addWidget(button(page, "C_SaveAs", "Save as",
                         [=] {
                           chosen(QFileDialog::getSaveFileName(page, QStringLiteral("Save a text"), app_folder(),
                                                               QStringLiteral("File (*.txt)"), nullptr,
                                                               QFileDialog::DontUseNativeDialog));
                         }),
                  1, 1);
}

void slow_ones(QWidget* page, QGridLayout* grid) {
  QLabel* done = label(page, "L_Done", "");
  grid->addWidget(done, 2, 5);
  grid->addWidget(button(page, "C_Busy", "Busy",
                         [=] {
                           // Comes back at once; the pointer says that it is not over.
                           QApplication::setOverrideCursor(Qt::WaitCursor);
                           QTimer::singleShot(slow, page, [=] {
                             QApplication::restoreOverrideCursor();
                             done->setText(QStringLiteral("busy"));
                           });
                         }),
                  2, 0);
  grid->addWidget(button(page, "C_Loop", "Loop",
                         [=] {
                           QElapsedTimer timer;
                           timer.start();
                           while (timer.elapsed() < slow) QApplication::processEvents(QEventLoop::AllEvents, 10);
                           done->setText(QStringLiteral("loop"));
                         }),
                  2, 1);
  grid->addWidget(button(page, "C_Block", "Block",
                         [=] {
                           QThread::msleep(slow);
                           done->setText(QStringLiteral("block"));
                         }),
                  2, 2);
  grid->addWidget(button(page, "C_Panel", "Panel",
                         [=] {
                           QDialog panel{page->window()};
                           panel.setWindowTitle(QStringLiteral("Please wait"));
                           QTimer::singleShot(slow, &panel, &QDialog::accept);
                           panel.exec();
                           done->setText(QStringLiteral("panel"));
                         }),
                  2, 3);
  grid->addWidget(button(page, "C_Posted", "Posted",
                         [=] {
                           QTimer::singleShot(0, page, [=] {
                             QTimer::singleShot(0, page, [=] { done->setText(QStringLiteral("posted")); });
                           });
                         }),
                  2, 4);
  grid->addWidget(button(page, "C_Deaf", "Deaf soon",
                         [=] {
                           // Nothing that the click does itself: the program is at rest, and then it is not.
                           QTimer::singleShot(100, page, [=] {
                             auto* stop = new InputStop{page->window()};
                             done->setText(QStringLiteral("deaf"));
                             QTimer::singleShot(slow, stop, &QObject::deleteLater);
                           });
                         }),
                  3, 3);
  grid->addWidget(button(page, "C_Later", "Later",
                         [=] { QTimer::singleShot(slow, page, [=] { done->setText(QStringLiteral("later")); }); }),
                  3, 0);
  grid->addWidget(button(page, "C_Forever", "Forever", [] { QApplication::setOverrideCursor(Qt::WaitCursor); }), 3, 1);
  grid->addWidget(button(page, "C_Stuck", "Stuck", [] { QThread::sleep(3600); }), 3, 2);
}

void ends(QWidget* page, Window* window, QGridLayout* grid) {
  grid->addWidget(button(page, "C_HardExit", "Hard exit", [] { std::_Exit(0); }), 4, 0);
  grid->addWidget(button(page, "C_ExitCode", "Exit code", [] { std::_Exit(3); }), 4, 1);
  grid->addWidget(button(page, "C_Crash", "Crash",
                         [] {
                           std::fputs("the last words\n", stderr);
                           std::abort();
                         }),
                  4, 2);
  grid->addWidget(
      button(page, "C_CrashSoon", "Crash soon", [page] { QTimer::singleShot(100, page, [] { std::abort(); }); }), 4, 3);
  auto* crash = named(new QCheckBox{QStringLiteral("Crash on close"), page}, "Chk_CrashOnClose");
  QObject::connect(crash, &QCheckBox::toggled, window, [window](bool on) { window->manners.crash_on_close = on; });
  grid->addWidget(crash, 4, 4);
  auto* refuse = named(new QCheckBox{QStringLiteral("Refuse to close"), page}, "Chk_Refuse");
  QObject::connect(refuse, &QCheckBox::toggled, window, [window](bool on) { window->manners.refuse_to_close = on; });
  grid->addWidget(refuse, 4, 5);
}

void traces(QWidget* page, QGridLayout* grid) {
  grid->addWidget(button(page, "C_Log", "Log",
                         [] {
                           log(QStringLiteral("caf\xE9 one"));
                           log(QStringLiteral("a line\nand its second half"));
                         }),
                  5, 0);
  grid->addWidget(
      button(
          page, "C_Calls", "Calls",
          [] {
            const QString app = app_folder();
            note_call(QStringLiteral("send_cmd folder=%1/ direction=1 file=0 timeout=120 port=4").arg(app));
            note_call(QStringLiteral("range_report folder=%1\\Dati\\ file=5 timeout=120 from=1 to=99 port=4").arg(app));
            note_call(QStringLiteral("send_logo source=%1 target1=%1/My pictures target2=a b.bmp timeout=60").arg(app));
          }),
      5, 1);
  grid->addWidget(button(page, "C_Process", "Process",
                         [] { QProcess::startDetached(app_folder() + QStringLiteral("/regwire.exe"), {}); }),
                  5, 2);
  grid->addWidget(button(page, "C_Vanish", "Vanish", [] { QDir{app_folder()}.removeRecursively(); }), 5, 3);
}

}  // namespace

void build_start_page(QWidget* page, Window* window) {
  auto* grid = new QGridLayout{page};
  boxes(page, grid);
  choosers(page, grid);
  slow_ones(page, grid);
  ends(page, window, grid);
  traces(page, grid);
  grid->addWidget(button(page, "C_Fields", "Fields", [=] { window->show_page(window->pages->widget(1)); }), 6, 0);
  grid->addWidget(button(page, "C_Lists", "Lists", [=] { window->show_page(window->pages->widget(2)); }), 6, 1);
  grid->addWidget(button(page, "C_Other", "Other window",
                         [=] {
                           (new OtherWindow{window})->show();
                           window->hide();
                         }),
                  6, 2);
  grid->addWidget(button(page, "C_Dialog", "Dialog",
                         [=] {
                           run_dialog(page);
                           // A handler goes on behind the screen that it has shown.
                           QThread::msleep(slow);
                           log(QStringLiteral("Dialog left"));
                         }),
                  6, 3);
}

}  // namespace ecr::practice

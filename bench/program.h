#pragma once
// The whole program in one process, on a display that shows nothing, worked by its buttons.

#include <benchmark/benchmark.h>
#include <cstdio>

#include <QApplication>
#include <QEventLoop>
#include <QMouseEvent>

#include "app/entry.h"
#include "core/global.h"
#include "core/system.h"
#include "image/prg_mode.h"
#include "image/prg_plu.h"
#include "installation.h"
#include "link/library.h"
#include "link/transfer.h"
#include "platform/platform.h"
#include "screens/frm_setup.h"
#include "screens/screen_factory.h"
#include "widgets/controls.h"
#include "widgets/look.h"
#include "widgets/qt_shell.h"
#include "widgets/screen.h"

namespace ecr::bench {

/// Tells when a widget is painted.
class PaintWatch final : public QObject {
 public:
  explicit PaintWatch(QWidget& widget) : widget_{widget} { widget.installEventFilter(this); }
  ~PaintWatch() override { widget_.removeEventFilter(this); }

  /// Lets the screens work until it was painted and nothing is left to do.
  void wait() {
    if (!painted_) loop_.exec();
    QCoreApplication::processEvents();
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint && !painted_) {
      painted_ = true;
      QMetaObject::invokeMethod(&loop_, &QEventLoop::quit, Qt::QueuedConnection);
    }
    return false;
  }

 private:
  QWidget& widget_;
  QEventLoop loop_;
  bool painted_ = false;
};

inline void click(QWidget& control) {
  const QPointF place = control.rect().center();
  const QPointF global = control.mapToGlobal(place);
  QMouseEvent press{QEvent::MouseButtonPress, place, global, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier};
  QApplication::sendEvent(&control, &press);
  QMouseEvent release{QEvent::MouseButtonRelease, place, global, Qt::LeftButton, Qt::NoButton, Qt::NoModifier};
  QApplication::sendEvent(&control, &release);
}

/// What has been closed goes away, and the screen below is on show again.
inline void settle() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

/// The program as its entry sets it up, on its start screen, with the emulated register found.
class Program {
 public:
  Program() {
    install_shell(&shell_);
    // The ports of this machine are nobody's business.
    installation_.write("register/devices.txt", "only\r\nUSB Serial Port (COM4)\r\n");
    Main(stage, QString::fromStdString(installation_.folder()), {});
    while (Global::ComPort == 0 || link_call_in_flight()) QCoreApplication::processEvents();
    settle();
  }
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program() {
    install_link_library(nullptr);
    install_shell(nullptr);
  }

  /// The default programming of the model, as a new session has it.
  static void load(std::uint8_t model) {
    Global::choose_model(model);
    copia_def_file();
    Read_PrgMode();
    Read_PrgPlu();
    Global::DecimalPoint = PrgMode.SysOpt0;
  }

  /// Puts one menu over the start screen, or leaves that alone for an empty name.
  void stand_on(const QString& menu) {
    while (stage.top()->objectName() != QStringLiteral("FrmPres")) {
      stage.top()->unload();
      settle();
    }
    if (menu.isEmpty()) return;
    stage.open(menu == QStringLiteral("FrmSetup") ? new FrmSetup : make_screen(menu));
    settle();
  }

  [[nodiscard]] CommandButton& button(const QString& name) const {
    auto* found = stage.top()->findChild<CommandButton*>(name);
    if (found == nullptr) qFatal("there is no button %s", qPrintable(name));
    return *found;
  }

  Stage stage;

 private:
  InstallationCopy installation_;
  QtShell shell_{stage};
};

/// Clicks on a button and waits until the screen that it opens is painted.
inline void open_by(Program& program, CommandButton& button) {
  const Screen* below = program.stage.top();
  click(button);
  if (program.stage.top() == below) qFatal("%s opens no screen", qPrintable(button.objectName()));
  PaintWatch{*program.stage.top()}.wait();
}

/// What the toolkit says of a display that shows nothing is of no interest here.
inline void say(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (!text.startsWith(QStringLiteral("This plugin does not support"))) std::fprintf(stderr, "%s\n", qPrintable(text));
}

/// A benchmark program's main part: `measure_all` names what is to be measured in the program it is given.
template <typename MeasureAll>
int run(int argc, char** argv, MeasureAll measure_all) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(say);
  benchmark::Initialize(&argc, argv);
  QApplication application{argc, argv};
  QApplication::setApplicationDisplayName({});
  install_system(&host_system());
  apply_look(application, wanted_scheme());
  Program program;
  Program::load(Global::model_z320);
  measure_all(program);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}

}  // namespace ecr::bench

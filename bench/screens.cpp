// Screens from the click that opens them until they are painted, and a save with its grid refreshed. Time is what
// passes, CPU is the processor time of the whole process.

#include <benchmark/benchmark.h>
#include <cstdio>
#include <functional>
#include <vector>

#include <QAbstractScrollArea>
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

namespace {

using namespace ecr;

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

void click(QWidget& control) {
  const QPointF place = control.rect().center();
  const QPointF global = control.mapToGlobal(place);
  QMouseEvent press{QEvent::MouseButtonPress, place, global, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier};
  QApplication::sendEvent(&control, &press);
  QMouseEvent release{QEvent::MouseButtonRelease, place, global, Qt::LeftButton, Qt::NoButton, Qt::NoModifier};
  QApplication::sendEvent(&control, &release);
}

/// What has been closed goes away, and the screen below is on show again.
void settle() {
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
  bench::InstallationCopy installation_;
  QtShell shell_{stage};
};

/// Clicks on a button and waits until the screen that it opens is painted.
void open_by(Program& program, CommandButton& button) {
  const Screen* below = program.stage.top();
  click(button);
  if (program.stage.top() == below) qFatal("%s opens no screen", qPrintable(button.objectName()));
  PaintWatch{*program.stage.top()}.wait();
}

void open_screen(benchmark::State& state, Program& program, const QString& menu, const QString& button) {
  Program::load(Global::model_z320);
  program.stand_on(menu);
  CommandButton& opener = program.button(button);
  for (auto _ : state) {
    open_by(program, opener);
    state.PauseTiming();
    program.stage.top()->unload();
    settle();
    state.ResumeTiming();
  }
}

void open_language_choice(benchmark::State& state, Program& program) {
  program.stand_on({});
  CommandButton& opener = program.button(QStringLiteral("C_LinguaSel"));
  for (auto _ : state) {
    click(opener);
    QWidget* dialog = QApplication::activeModalWidget();
    PaintWatch{*dialog}.wait();
    state.PauseTiming();
    dialog->close();
    settle();
    state.ResumeTiming();
  }
}

/// The save goes on to the next department each time, from the first.
void save_department(benchmark::State& state, Program& program) {
  Program::load(Global::model_z320);
  program.stand_on(QStringLiteral("FrmProgramMode"));
  open_by(program, program.button(QStringLiteral("C_DepartmentProgram")));
  CommandButton& save = program.button(QStringLiteral("C_Salva"));
  auto* grid = program.stage.top()->findChild<QAbstractScrollArea*>(QStringLiteral("Fg_Department"));
  for (auto _ : state) {
    PaintWatch painted{*grid->viewport()};
    click(save);
    painted.wait();
  }
  if (PrgMode.Dept[0].Status1 == 0) state.SkipWithError("nothing was saved");
}

/// Saves one screen again and again; a table of records goes on to its next one each time.
void save_screen(benchmark::State& state, Program& program, const QString& menu, const QString& button) {
  Program::load(Global::model_z320);
  program.stand_on(menu);
  open_by(program, program.button(button));
  auto* save = program.stage.top()->findChild<CommandButton*>(QStringLiteral("C_Salva"));
  if (save == nullptr) {
    state.SkipWithError("nothing can be saved here");
    return;
  }
  for (auto _ : state) {
    click(*save);
    QCoreApplication::processEvents();
  }
}

/// A call that moves nothing, beside the screens.
void link_call_beside(benchmark::State& state, Program& program) {
  program.stand_on({});
  const BackgroundCalls background;
  std::int32_t resultCode = 0;
  for (auto _ : state) util_send_cmd_to_ecr(Global::PathApp, Direction::upload, 12, resultCode, 2, Global::ComPort);
  if (resultCode != 0) state.SkipWithError("the emulated register did not answer");
}

/// A button of each screen that the menu opens.
std::vector<QString> openers(Program& program, const QString& menu) {
  program.stand_on(menu);
  std::vector<QString> names;
  for (const CommandButton* button : program.stage.top()->findChildren<CommandButton*>()) {
    const QString name = button->objectName();
    const bool opens = button->isEnabled() && button->isVisible() && button->property("tile").toBool();
    // This one asks a question and then sends.
    if (opens && name != QStringLiteral("C_Reset")) names.push_back(name);
  }
  return names;
}

void measure(const QString& name, const std::function<void(benchmark::State&)>& function) {
  benchmark::RegisterBenchmark(name.toLatin1().constData(), function)
      ->MeasureProcessCPUTime()
      ->UseRealTime()
      ->Unit(benchmark::kMillisecond);
}

void measure_all(Program& program) {
  measure(QStringLiteral("save a department"), [&](benchmark::State& state) { save_department(state, program); });
  measure(QStringLiteral("open FrmLanguage"), [&](benchmark::State& state) { open_language_choice(state, program); });
  measure(QStringLiteral("open FrmPrincipale (asks the register)"),
          [&](benchmark::State& state) { open_screen(state, program, {}, QStringLiteral("C_Z320")); });
  for (const char* menu : {"FrmSetup", "FrmProgramMode", "FrmSettingMode"}) {
    const QString menu_name = QString::fromLatin1(menu);
    for (const QString& button : openers(program, menu_name)) {
      measure(
          QStringLiteral("open by %1 of %2").arg(button, menu_name),
          [&program, menu_name, button](benchmark::State& state) { open_screen(state, program, menu_name, button); });
      if (menu_name == QStringLiteral("FrmSetup")) continue;
      measure(
          QStringLiteral("save behind %1 of %2").arg(button, menu_name),
          [&program, menu_name, button](benchmark::State& state) { save_screen(state, program, menu_name, button); });
    }
  }
  measure(QStringLiteral("link call"), [&](benchmark::State& state) { link_call_beside(state, program); });
}

/// What the toolkit says of a display that shows nothing is of no interest here.
void say(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (!text.startsWith(QStringLiteral("This plugin does not support"))) std::fprintf(stderr, "%s\n", qPrintable(text));
}

}  // namespace

int main(int argc, char** argv) {
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
}

// Screens from the click that opens them until they are painted, and a save with its grid refreshed. Time is what
// passes, CPU is the processor time of the whole process.

#include <benchmark/benchmark.h>
#include <functional>
#include <vector>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include "core/global.h"
#include "image/prg_mode.h"
#include "link/library.h"
#include "program.h"

namespace {

using namespace ecr;
using bench::click;
using bench::open_by;
using bench::PaintWatch;
using bench::Program;
using bench::settle;

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

/// A key typed into a line of the receipt's header, until the paper beside it is painted; a Backspace takes it back.
void type_into_header(benchmark::State& state, Program& program) {
  Program::load(Global::model_z320);
  program.stand_on(QStringLiteral("FrmSetup"));
  open_by(program, program.button(QStringLiteral("C_MessageSetup")));
  auto* line = program.stage.top()->findChild<QLineEdit*>(QStringLiteral("E_ReceiptHeader(1)"));
  auto* paper = program.stage.top()->findChild<QWidget*>(QStringLiteral("T_Hraw2"));
  line->setFocus(Qt::OtherFocusReason);
  line->clear();
  settle();
  QKeyEvent letter{QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x")};
  QKeyEvent back{QEvent::KeyPress, Qt::Key_Backspace, Qt::NoModifier, QStringLiteral("\b")};
  for (auto _ : state) {
    PaintWatch painted{*paper};
    QApplication::sendEvent(line, line->text().isEmpty() ? &letter : &back);
    painted.wait();
  }
  if (!paper->property("text").toString().startsWith(line->text())) state.SkipWithError("the paper did not follow");
}

/// A call that moves nothing, beside the screens.
void link_call_beside(benchmark::State& state, Program& program) {
  program.stand_on({});
  const BackgroundCalls background;
  std::int32_t resultCode = 0;
  for (auto _ : state) util_send_cmd_to_ecr(Global::PathApp, TILBRIDGE_UPLOAD, 12, resultCode, 2, Global::ComPort);
  if (resultCode != 0) state.SkipWithError("the emulated register did not answer");
}

/// A button of each screen that the menu opens.
std::vector<QString> openers(Program& program, const QString& menu) {
  program.stand_on(menu);
  std::vector<QString> names;
  for (const CommandButton* button : program.stage.top()->findChildren<CommandButton*>()) {
    const QString name = button->objectName();
    const bool opens = button->isEnabled() && button->isVisible() && button->property("tile").toBool();
    // One asks a question and then sends, the other asks for a file.
    const bool asks = name == QStringLiteral("C_Reset") || name == QStringLiteral("C_Custom_Import");
    if (opens && !asks) names.push_back(name);
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
  measure(QStringLiteral("type into a receipt header"),
          [&](benchmark::State& state) { type_into_header(state, program); });
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

}  // namespace

int main(int argc, char** argv) {
  return bench::run(argc, argv, measure_all);
}

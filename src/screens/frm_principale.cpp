#include "screens/frm_principale.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "core/decimal.h"
#include "core/files.h"
#include "core/global.h"
#include "core/model.h"
#include "core/run_log.h"
#include "core/shell.h"
#include "image/prg_mode.h"
#include "image/prg_plu.h"
#include "link/firmware.h"
#include "link/ports.h"
#include "link/process.h"
#include "link/transfer.h"
#include "screens/frm_setup.h"
#include "screens/screen_factory.h"
#include "widgets/field.h"
#include "widgets/look.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

std::string_view communication_error() {
  return message_or(Key::FRM_PRINCIPALE_COMUNICATION_ERROR_MSG, "Comunicatione error: ");
}

Answer ask(BoxButtons buttons, std::string_view question) {
  return shell().box(BoxKind::plain, buttons, question, {});
}

/// A missing file of PathDati is copied from below the model's folder.
void supply_missing(std::string_view name, std::string_view folder) {
  const std::string file = Global::PathDati + std::string{name};
  if (file_exists(file)) return;
  const std::string source =
      Global::PathModel + std::string{folder} + std::string{Global::model_prefix()} + std::string{name};
  const Fault fault = copy_file(source, file);
  // The reads behind this decide what becomes of a file that could not be supplied.
  if (fault.stands()) log_fault("FrmPrincipale C_ModificaProgrammazione: ", fault);
}

CommandButton* tile(const QString& name, QWidget* parent) {
  auto* button = new CommandButton{name, parent};
  button->setProperty("tile", true);
  return button;
}

}  // namespace

FrmPrincipale::FrmPrincipale(const QString& port_text)
    : Screen{QStringLiteral("FrmPrincipale")},
      frame_{*this, ScreenFrame::Corner::picture},
      C_NuovaProgrammazione{tile(QStringLiteral("C_NuovaProgrammazione"), this)},
      C_ModificaProgrammazione{tile(QStringLiteral("C_ModificaProgrammazione"), this)},
      C_Logo{tile(QStringLiteral("C_Logo"), this)},
      C_Back{new CommandButton{QStringLiteral("C_Back"), this}},
      L_Release_Fw{make_label(QStringLiteral("L_Release_Fw"), this)},
      port_text_{port_text} {
  captions_.add(*this, Key::FRM_PRINCIPALE_TITLE, "Vermanto ECR Programming Tool - ");
  captions_.add(*C_NuovaProgrammazione, Key::FRM_PRINCIPALE_C_NUOVA_PROGRAMMAZIONE, "PROGRAM A NEW CASH REGISTER");
  captions_.add(*C_ModificaProgrammazione, Key::FRM_PRINCIPALE_C_MODIFICA_PROGRAMMAZIONE,
                "UPDATE CASH REGISTER PROGRAMMING");
  captions_.add(*C_Logo, Key::FRM_PRINCIPALE_C_LOGO, "SET UP A LOGO");
  captions_.add(*C_Back, Key::FRM_PRINCIPALE_C_BACK, "BACK");
  make_hint(*L_Release_Fw);

  frame_.body->addStretch(1);
  for (CommandButton* button : {C_NuovaProgrammazione, C_ModificaProgrammazione, C_Logo}) {
    frame_.body->addWidget(button);
  }
  frame_.body->addStretch(2);
  auto* bar = new QHBoxLayout;
  bar->addWidget(C_Back);
  bar->addStretch(1);
  bar->addWidget(L_Release_Fw);
  frame_.body->addLayout(bar);

  C_NuovaProgrammazione->on_click([this] { new_programming(); });
  C_ModificaProgrammazione->on_click([this] { update_programming(); });
  C_Back->on_click([this] { unload(); });
  C_Logo->on_click([this] { open(make_screen(QStringLiteral("FrmSetLogo"))); });
  watch_banner([this](std::string_view banner) { L_Release_Fw->setText(screen_text(banner)); });
}

FrmPrincipale::~FrmPrincipale() {
  watch_banner({});
}

void FrmPrincipale::load() {
  frame_.load_band();
  use_port(1);
  guarded("FrmPrincipale Form_load: ", [this] {
    const Decimal port = value_of(port_text_);
    if (port > Decimal{255}) throw FaultError{FaultCode::overflow};
    if (port > Decimal{0}) use_port(static_cast<std::uint8_t>(leading_number(port.text())));
  });
  captions_.lay();
  if (chosen_model().number == Global::EcrModel) {
    const QString name = screen_text(chosen_model().name);
    setWindowTitle(windowTitle() + QStringLiteral("   ") + name);
    frame_.L_Titolo->setText(name);
  } else {
    memo_log(page_bytes(windowTitle()));
  }
  Read_Fw_State();
  Write_rs232_fw(Global::ComPort);
}

void FrmPrincipale::new_programming() {
  guarded("FrmPrincipale C_NuovaProgrammazione: ", [this] {
    const auto question = message_or(Key::FRM_PRINCIPALE_NUOVA_PRG_MSG, "Overwrite current setting with default?");
    if (ask(BoxButtons::yes_no, question) != Answer::yes) return;
    copia_def_file();
    if (!Read_PrgMode()) return;
    Read_PrgPlu();
    open_setup();
  });
}

void FrmPrincipale::update_programming() {
  guarded("FrmPrincipale C_ModificaProgrammazione: ", [this] {
    const auto question = message_or(Key::FRM_PRINCIPALE_MODIFICA_PRG_MSG, "Get Setting from Cash register?");
    switch (ask(BoxButtons::yes_no_cancel, question)) {
      case Answer::yes:
        take_from_register();
        break;
      case Answer::no:
        take_from_files();
        break;
      default:
        break;
    }
  });
}

void FrmPrincipale::take_from_register() {
  if (!Test_Connection()) {
    memo_log("C_ModificaProgrammazione: registratore non collegato e richiesta lettura dati");
    tell(BoxKind::plain, std::string{communication_error()} + "X");
    return;
  }
  const BusyPointer busy;
  if (!read_files_from_register()) return;
  if (!Read_PrgMode()) {
    unload();
    return;
  }
  if (!Read_PrgPlu()) shell().end_program();
  Aspetta(0.1);
  open_setup();
}

void FrmPrincipale::take_from_files() {
  supply_missing("PRG_MODE.BIN", "V105\\");
  supply_missing("PRG_PLU.BIN", "");
  if (!Read_PrgMode()) {
    unload();
    return;
  }
  if (!Read_PrgPlu()) shell().end_program();
  open_setup();
}

void FrmPrincipale::open_setup() {
  open(new FrmSetup);
}

void FrmPrincipale::import_old_configuration() {
  guarded("FrmPrincipale C_Import: ", [] {
    if (ask(BoxButtons::yes_no, "Do you want to import data From Old cash register?") != Answer::yes) return;
    {
      const BusyPointer busy;
      if (!read_files_from_register()) return;
      Read_PrgMode();
      Read_PrgPlu(true);
      Convert_OldPlu();
      Write_PrgPlu();
    }
    Aspetta(0.1);
    tell(BoxKind::information, "Import old configuration Completed");
  });
}

}  // namespace ecr

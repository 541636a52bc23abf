#include "screens/frm_pres.h"

#include <QApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>

#include "core/global.h"
#include "core/run_log.h"
#include "core/shell.h"
#include "core/system.h"
#include "lang/language.h"
#include "link/process.h"
#include "screens/frm_language.h"
#include "screens/frm_principale.h"
#include "widgets/help.h"
#include "widgets/look.h"
#include "widgets/screen_text.h"
#include "widgets/wait_panel.h"

namespace ecr {
namespace {

constexpr int timer_interval_ms = 3000;
constexpr int blanks_in_title = 92;
const QSize model_picture{320, 240};

}  // namespace

FrmPres::FrmPres()
    : Screen{QStringLiteral("FrmPres")},
      F_Titolo{new QGroupBox{this}},
      L_Titolo2{make_label(QStringLiteral("L_Titolo2"), F_Titolo)},
      E_ComPort{new Field{QStringLiteral("E_ComPort"), F_Titolo}},
      C_Z300{new PictureButton{QStringLiteral("C_Z300"), QStringLiteral("ECRZ300.png"), model_picture, F_Titolo}},
      C_Z320{new PictureButton{QStringLiteral("C_Z320"), QStringLiteral("ECRZ320.png"), model_picture, F_Titolo}},
      C_LinguaSel{new CommandButton{QStringLiteral("C_LinguaSel"), F_Titolo}},
      I_lingua{new Picture{QStringLiteral("I_lingua"), F_Titolo}},
      C_Exit{new CommandButton{QStringLiteral("C_Exit"), F_Titolo}},
      I_logo{new Picture{QStringLiteral("I_logo"), F_Titolo}},
      I_Vermanto{new Picture{QStringLiteral("I_Vermanto"), F_Titolo}},
      I_Help{new Picture{QStringLiteral("I_Help"), F_Titolo}},
      L_Emulated{make_label(QStringLiteral("L_Emulated"), F_Titolo)},
      Timer_TestCom{new QTimer{this}} {
  F_Titolo->setObjectName(QStringLiteral("F_Titolo"));
  F_Titolo->setFlat(true);
  L_ComPort = make_label(QStringLiteral("L_ComPort"), F_Titolo, E_ComPort);
  captions_.add(*L_Titolo2, Key::FRM_PRES_TITLE2, "ECR Programming Utility");
  captions_.add(*L_ComPort, Key::FRM_PRES_L_COM_PORT, "Comunication Port:");
  captions_.add(*C_Exit, Key::FRM_PRES_C_EXIT, "EXIT");
  Captions::fix(*C_Z300, "ECRZ300S");
  Captions::fix(*C_Z320, "ECRZ320");
  Captions::fix(*C_LinguaSel, "Language Selection");

  make_heading(*L_Titolo2);
  make_hint(*L_Emulated);
  L_Emulated->setWordWrap(true);
  E_ComPort->let_in(Field::Keys::digits);
  E_ComPort->setFixedWidth(64);
  E_ComPort->setAlignment(Qt::AlignHCenter);
  I_Help->setToolTip(QStringLiteral("Click here for open the guide"));
  I_Help->setAccessibleName(QStringLiteral("Help"));
  I_Help->setFocusPolicy(Qt::TabFocus);

  auto* whole = new QVBoxLayout{this};
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(F_Titolo);
  auto* inside = new QVBoxLayout{F_Titolo};
  inside->setContentsMargins(32, 22, 32, 22);
  inside->setSpacing(18);

  auto* top = new QHBoxLayout;
  top->setSpacing(20);
  top->addWidget(I_Vermanto);
  top->addWidget(L_Titolo2, 1);
  top->addWidget(I_logo);
  top->addWidget(I_Help, 0, Qt::AlignTop);
  inside->addLayout(top);

  auto* models = new QHBoxLayout;
  models->setSpacing(24);
  models->addWidget(C_Z300);
  models->addWidget(C_Z320);
  inside->addLayout(models, 1);

  auto* port = new QHBoxLayout;
  port->setSpacing(10);
  port->addWidget(L_ComPort);
  port->addWidget(E_ComPort);
  port->addSpacing(12);
  port->addWidget(L_Emulated, 1);
  inside->addLayout(port);

  auto* bar = new QHBoxLayout;
  bar->setSpacing(10);
  bar->addWidget(C_Exit);
  bar->addStretch(1);
  bar->addWidget(I_lingua);
  bar->addWidget(C_LinguaSel);
  inside->addLayout(bar);
  setTabOrder(C_Z300, C_Z320);
  setTabOrder(C_Z320, E_ComPort);
  setTabOrder(E_ComPort, C_LinguaSel);
  setTabOrder(C_LinguaSel, C_Exit);

  C_Z300->on_click([this] { model_clicked(Global::model_z300); });
  C_Z320->on_click([this] { model_clicked(Global::model_z320); });
  C_Exit->on_click([this] { unload(); });
  C_LinguaSel->on_click([this] { (new FrmLanguage{this, [this] { carica_messaggi(); }})->open(); });
  const auto help = [this] { open_help(this, help_page()); };
  I_Help->on_click(help);
  connect(new QShortcut{QKeySequence{Qt::Key_F1}, this}, &QShortcut::activated, this, help);

  Timer_TestCom->setInterval(timer_interval_ms);
  Timer_TestCom->setSingleShot(true);
  connect(Timer_TestCom, &QTimer::timeout, this, [this] { timer_tick(); });
  show_ports_on({[this](int port_number) { show_number(port_number); },
                 [this](PortColour colour) { show_colour(colour); },
                 [this](const PortTest& test) { show_test(test); }});
}

void FrmPres::load() {
  Global::ProgramVersion = "V. " + page_bytes(QApplication::applicationVersion());
  setWindowTitle(QStringLiteral("Vermanto ECR Programming Utility") + QString{blanks_in_title, u' '} +
                 screen_text(Global::ProgramVersion));
  I_logo->show_file(QStringLiteral("Logo_Angolo.jpg"), {112, 70});
  I_Vermanto->show_file(QStringLiteral("vermanto.bmp"), {172, 38});
  I_Help->show_file(QStringLiteral("help.png"), {24, 24});
  OsVersion = system_layer().version_text();
  Os64Bit = Get_OsBits();
  memo_log("Start Programm " + Global::ProgramVersion + " So: " + OsVersion + "." +
           std::to_string(system_layer().build_number()) + (Os64Bit ? " x64" : " x86"));
  carica_messaggi();
}

void FrmPres::first_discovery() {
  const bool found = discover(false);
  if (!found) Timer_TestCom->start();
  // Whoever waits for the search does not wait for the driver too, and who gave it up knows why no port was found.
  const bool all_were_asked = !given_up_;
  open_waiting_model();
  if (!found && all_were_asked && Install_Driver(true)) Aspetta(0.2);
}

void FrmPres::carica_messaggi() {
  captions_.lay();
  show_linked_register();
  I_lingua->show_file(QString::fromUtf8(FlagPicture.c_str()), {36, 24});
}

void FrmPres::unload() {
  memo_log("End Programm");
  shell().end_program();
}

QWidget* FrmPres::first_focus() {
  return C_Z300;
}

bool FrmPres::discover(bool skipLog) {
  discovering_ = true;
  given_up_ = false;
  test_.reset();
  const bool found = Test_Com(skipLog, [this] { return given_up_; });
  discovering_ = false;
  return found;
}

void FrmPres::timer_tick() {
  if (Global::ComPort == 0) {
    discover(true);
    Timer_TestCom->start();
    open_waiting_model();
  } else if (Global::DebugMode) {
    memo_log("Timer_TestCom: " + std::to_string(Global::ComPort));
  }
}

void FrmPres::model_clicked(std::uint8_t model) {
  waiting_model_ = model;
  // What is opened needs the link, which takes one call at a time, and the port that the search may find.
  if (discovering_) {
    show_wait();
  } else {
    open_waiting_model();
  }
}

void FrmPres::show_wait() {
  if (wait_ != nullptr) return;
  wait_ = new WaitPanel{*window(), own_words(OwnText::looking_for_ports), 0};
  wait_->let_give_up(own_words(OwnText::go_on_without_port), [this] { given_up_ = true; });
  if (test_) show_test(*test_);
}

void FrmPres::open_waiting_model() {
  delete wait_.data();
  if (!waiting_model_) return;
  Global::choose_model(*waiting_model_);
  waiting_model_.reset();
  open(new FrmPrincipale{E_ComPort->text()});
}

void FrmPres::show_number(int port) {
  E_ComPort->show_text(QString::number(port));
}

void FrmPres::show_colour(PortColour colour) {
  QPalette palette = E_ComPort->palette();
  palette.setColor(QPalette::Text, colour == PortColour::green ? text_green() : text_red());
  E_ComPort->setPalette(palette);
}

void FrmPres::show_test(const PortTest& test) {
  test_ = test;
  if (wait_ != nullptr) wait_->show_step(own_words(OwnText::looking_on_port).arg(test.port), test.nth, test.of);
}

void FrmPres::show_linked_register() {
  const std::string model = emulated_model();
  L_Emulated->setVisible(!model.empty());
  L_Emulated->setText(own_words(OwnText::emulated_register).arg(screen_text(model)));
}

}  // namespace ecr

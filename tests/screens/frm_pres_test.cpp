#include "screens/frm_pres.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <gtest/gtest.h>
#include <stdexcept>
#include <utility>

#include <QApplication>
#include <QKeyEvent>
#include <QProgressBar>
#include <QTest>

#include "core/catalogue.h"
#include "lang/language.h"
#include "screens/start_screen.h"
#include "widgets/look.h"
#include "widgets/qt_shell.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

class FrmPresTest : public StartScreenTest {
 protected:
  /// The card of the wait for the search, shown or about to be; nullptr where nobody waits.
  [[nodiscard]] QWidget* wait_panel() const {
    return stage.findChild<QWidget*>(QStringLiteral("WaitPanel"), Qt::FindDirectChildrenOnly);
  }
  [[nodiscard]] CommandButton& give_up_button() const {
    if (wait_panel() == nullptr) throw std::runtime_error{"nobody waits for the search"};
    return *wait_panel()->findChild<CommandButton*>(QStringLiteral("C_GiveUp"));
  }
  [[nodiscard]] std::string wait_words() const {
    const auto text = [this](const char* name) {
      return wait_panel()->findChild<QLabel*>(QString::fromLatin1(name))->text().toStdString();
    };
    const auto* bar = wait_panel()->findChild<QProgressBar*>(QStringLiteral("WaitBar"));
    return text("WaitWhat") + ", " + text("WaitRest") + ", bar " + std::to_string(bar->value()) + " of " +
           std::to_string(bar->maximum());
  }
  [[nodiscard]] static QString focus_name() {
    return QApplication::focusWidget() != nullptr ? QApplication::focusWidget()->objectName() : QString{};
  }
};

constexpr const char* ping_on_2 = "send_cmd folder=. direction=0 file=12 timeout=2 port=2";
constexpr const char* ask_release_on_1 = "send_cmd folder=. direction=0 file=22 timeout=3 port=1";
constexpr const char* ask_release_on_3 = "send_cmd folder=. direction=0 file=22 timeout=3 port=3";
constexpr const char* ping_on_3 = "send_cmd folder=. direction=0 file=12 timeout=2 port=3";
constexpr const char* ping_on_4 = "send_cmd folder=. direction=0 file=12 timeout=2 port=4";
constexpr const char* ping_failed =
    "Receive_ReportEcr error. File 12 Code: 401 Desc: The USB-COM port cannot be opened.";

TEST_F(FrmPresTest, TheTitleEndsWithTheVersionBehind92Blanks) {
  open_start();
  EXPECT_EQ(Global::ProgramVersion, "V. 1.2.3");
  EXPECT_EQ(stage.windowTitle(),
            QStringLiteral("Vermanto ECR Programming Utility") + QString(92, u' ') + QStringLiteral("V. 1.2.3"));
}

TEST_F(FrmPresTest, TheLoadNotesTheSystemAndLogsTheStart) {
  system.captions = {"Intel x86 processor", "Other x64"};
  open_start();
  EXPECT_EQ(OsVersion, "6,01");
  EXPECT_FALSE(Os64Bit);
  EXPECT_EQ(log(), (Lines{"Start Programm V. 1.2.3 So: 6,01.7601 x86"}));
}

TEST_F(FrmPresTest, TheStartLineNamesASystemOf64Bits) {
  system.captions = {"Processor x64"};
  system.version = "6";
  system.build = 6000;
  open_start();
  EXPECT_EQ(log(), (Lines{"Start Programm V. 1.2.3 So: 6.6000 x64"}));
}

TEST_F(FrmPresTest, EverythingHasItsBuiltInCaption) {
  open_start();
  EXPECT_EQ(caption("L_Titolo2"), QStringLiteral("ECR Programming Utility"));
  EXPECT_EQ(caption("L_ComPort"), QStringLiteral("Comunication Port:"));
  EXPECT_EQ(caption("C_Z300"), QStringLiteral("ECRZ300S"));
  EXPECT_EQ(caption("C_Z320"), QStringLiteral("ECRZ320"));
  EXPECT_EQ(caption("C_LinguaSel"), QStringLiteral("Language Selection"));
  EXPECT_EQ(caption("C_Exit"), QStringLiteral("EXIT"));
  EXPECT_EQ(control("I_Help").toolTip(), QStringLiteral("Click here for open the guide"));
}

TEST_F(FrmPresTest, ThreeCaptionsComeFromTheCatalogue) {
  for (std::size_t i = 0; i < key_count; ++i)
    set_message(static_cast<Key>(i), std::string{name_of(static_cast<Key>(i))});
  open_start();
  EXPECT_EQ(caption("L_Titolo2"), QStringLiteral("FRM_PRES_TITLE2"));
  EXPECT_EQ(caption("L_ComPort"), QStringLiteral("FRM_PRES_L_COM_PORT"));
  EXPECT_EQ(caption("C_Exit"), QStringLiteral("FRM_PRES_C_EXIT"));
  EXPECT_EQ(caption("C_Z300"), QStringLiteral("ECRZ300S"));
  EXPECT_EQ(caption("C_Z320"), QStringLiteral("ECRZ320"));
  EXPECT_EQ(caption("C_LinguaSel"), QStringLiteral("Language Selection"));
}

TEST_F(FrmPresTest, ThePicturesAreThere) {
  install_setup();
  FlagPicture = "UK.gif";
  open_start();
  for (const char* name : {"I_logo", "I_Vermanto", "I_lingua", "I_Help"}) {
    EXPECT_FALSE(control<Picture>(name).pixmap(Qt::ReturnByValue).isNull()) << name;
  }
}

TEST_F(FrmPresTest, BothModelButtonsAreThereWithAndWithoutDebugging) {
  for (const bool debug : {false, true}) {
    Global::DebugMode = debug;
    open_start();
    EXPECT_TRUE(control("C_Z300").isVisible());
    EXPECT_TRUE(control("C_Z320").isVisible());
  }
}

TEST_F(FrmPresTest, APortThatAnswersIsShownInGreen) {
  system.captions = {"USB Serial Port (COM4)"};
  open_start();
  start->first_discovery();
  EXPECT_EQ(port(), QStringLiteral("4"));
  EXPECT_EQ(port_colour(), text_green());
  EXPECT_EQ(Global::ComPort, 4);
  EXPECT_FALSE(timer().isActive());
  EXPECT_EQ(log_behind_start(), Lines{});
}

TEST_F(FrmPresTest, TheColourCanBeSeen) {
  system.captions = {"USB Serial Port (COM4)"};
  open_start();
  start->first_discovery();
  const QImage image = control("E_ComPort").grab().toImage();
  bool seen = false;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) seen = seen || image.pixelColor(x, y) == text_green();
  }
  EXPECT_TRUE(seen);
}

TEST_F(FrmPresTest, APortThatFailsIsRedForTheMomentOfTheNextTest) {
  system.captions = {"Modem (COM3)", "USB Serial Port (COM4)"};
  link().register_port = 4;
  open_start();
  struct Seen {
    QString text;
    QColor colour;
  };
  std::vector<Seen> seen;
  watched.on_run_beside = [](Waiting waiting) {
    EXPECT_EQ(waiting, Waiting::background) << "the screen goes on taking input";
  };
  link().after_call = [&] { seen.push_back({port(), port_colour()}); };
  start->first_discovery();
  ASSERT_EQ(seen.size(), 2U);
  EXPECT_EQ(seen[0].text, QStringLiteral("0"));
  EXPECT_EQ(seen[0].colour, text_plain());
  EXPECT_EQ(seen[1].text, QStringLiteral("0"));
  EXPECT_EQ(seen[1].colour, text_red());
  EXPECT_EQ(port(), QStringLiteral("4"));
  EXPECT_EQ(port_colour(), text_green());
  EXPECT_EQ(link().calls, (Lines{ping_on_3, ping_on_4}));
}

TEST_F(FrmPresTest, TheFirstDiscoverysFailuresAreLogged) {
  system.captions = {"Modem (COM3)", "USB Serial Port (COM4)"};
  link().register_port = 9;
  open_start();
  start->first_discovery();
  EXPECT_EQ(log_behind_start(), (Lines{ping_failed, ping_failed}));
  EXPECT_EQ(Global::ComPort, 0);
  EXPECT_EQ(port(), QStringLiteral("0"));
  EXPECT_EQ(port_colour(), text_red());
}

TEST_F(FrmPresTest, WithoutAPortTheTimerGoesOnAndTheDriverIsSetUp) {
  system.tools_apply = true;
  bool timer_ran = false;
  system.on_start = [&] { timer_ran = timer().isActive(); };
  open_start();
  start->first_discovery();
  EXPECT_TRUE(timer_ran) << "the timer is switched on before the tools run";
  EXPECT_TRUE(timer().isActive());
  EXPECT_EQ(timer().interval(), 3000);
  ASSERT_EQ(system.started.size(), 2U);
  EXPECT_NE(system.started[0].find("VerPreinstECRx86.exe|"), std::string::npos);
  EXPECT_TRUE(system.started[0].ends_with("ftdibus.inf"));
  EXPECT_TRUE(system.started[1].ends_with("ftdiport.inf"));
  EXPECT_EQ(log_behind_start().size(), 2U);
  EXPECT_EQ(shell.seconds_waited, std::vector<double>{0.2}) << "behind the tools, a moment";
}

TEST_F(FrmPresTest, BehindAnInstallerThatGoesOnNothingIsWaitedFor) {
  system.tools_apply = true;
  write("Driver/FTDI_Setup.exe", "tool");
  open_start();
  start->first_discovery();
  EXPECT_EQ(log_behind_start(), (Lines{"FTDI_Setup.exe started"}));
  EXPECT_EQ(shell.seconds_waited, std::vector<double>{});
  EXPECT_TRUE(timer().isActive());
}

TEST_F(FrmPresTest, APortThatIsFoundNeedsNoDriver) {
  system.tools_apply = true;
  system.captions = {"USB Serial Port (COM4)"};
  open_start();
  start->first_discovery();
  EXPECT_EQ(system.started, Lines{});
}

TEST_F(FrmPresTest, TheTimerIsOffUntilTheFirstDiscovery) {
  open_start();
  EXPECT_FALSE(timer().isActive());
}

TEST_F(FrmPresTest, EachTickTestsAgainAndKeepsOneFailureOutOfTheLog) {
  system.captions = {"Modem (COM3)"};
  link().register_port = 9;
  open_start();
  start->first_discovery();
  EXPECT_EQ(log_behind_start(), Lines{ping_failed});
  for (int tick = 1; tick <= 3; ++tick) {
    let_time_pass();
    EXPECT_EQ(link().calls.size(), 1U + static_cast<std::size_t>(tick));
    EXPECT_EQ(log_behind_start(), Lines{ping_failed});
    EXPECT_TRUE(timer().isActive());
  }
}

TEST_F(FrmPresTest, ATickStartsWithZeroAgain) {
  open_start();
  start->first_discovery();
  click("E_ComPort");
  press(Qt::Key_A, Qt::ControlModifier);
  type(QStringLiteral("7"));
  EXPECT_EQ(port(), QStringLiteral("7"));
  let_time_pass();
  EXPECT_EQ(port(), QStringLiteral("0"));
}

TEST_F(FrmPresTest, ATickThatFindsThePortShowsItAndTheNextOneSwitchesTheTimerOff) {
  open_start();
  start->first_discovery();
  system.captions = {"USB Serial Port (COM4)"};
  let_time_pass();
  EXPECT_EQ(port(), QStringLiteral("4"));
  EXPECT_EQ(port_colour(), text_green());
  EXPECT_TRUE(timer().isActive());
  const std::size_t calls = link().calls.size();
  let_time_pass();
  EXPECT_FALSE(timer().isActive());
  EXPECT_EQ(link().calls.size(), calls);
  EXPECT_EQ(log_behind_start(), Lines{}) << "only debugging tells of the last tick";
}

TEST_F(FrmPresTest, DebuggingTellsOfEachTestAndOfTheLastTick) {
  Global::DebugMode = true;
  system.captions = {"Modem (COM3)", "USB Serial Port (COM4)"};
  link().register_port = 9;
  open_start();
  start->first_discovery();
  link().register_port = 4;
  let_time_pass();
  let_time_pass();
  EXPECT_EQ(log_behind_start(), (Lines{ping_failed, "Test COM 3 KO", ping_failed, "Test COM 4 KO",  //
                                       "Test COM 3 KO", "Test COM 4 OK", "Timer_TestCom: 4"}))
      << "a tick keeps the failures of its tests out of the log, and nothing else";
}

TEST_F(FrmPresTest, DebuggingTellsOfAPortThatAnswersAtOnce) {
  Global::DebugMode = true;
  system.captions = {"USB Serial Port (COM4)"};
  open_start();
  start->first_discovery();
  EXPECT_EQ(log_behind_start(), Lines{"Test COM 4 OK"});
}

TEST_F(FrmPresTest, LettersInThePortFieldChangeNothing) {
  open_start();
  click("E_ComPort");
  type(QStringLiteral("a7b"));
  EXPECT_EQ(port(), QStringLiteral("7"));
  type(QStringLiteral("x -."));
  EXPECT_EQ(port(), QStringLiteral("7"));
}

TEST_F(FrmPresTest, EachModelButtonChoosesItsModelAndOpensTheMainMenu) {
  struct Model {
    const char* button;
    std::uint8_t number;
    const char* folder;
  };
  for (const Model& model : {Model{"C_Z300", 0, "ECRZ300\\"}, Model{"C_Z320", 1, "ECRZ320\\"}}) {
    system.captions = {"USB Serial Port (COM4)"};
    open_start();
    start->first_discovery();
    click(model.button);
    EXPECT_EQ(Global::EcrModel, model.number);
    EXPECT_EQ(Global::PathModel, Global::PathDati + model.folder);
    EXPECT_EQ(Global::MaxPlu, 3000);
    EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
    EXPECT_FALSE(start->isVisible());
    EXPECT_EQ(Global::ComPort, 4);
  }
}

TEST_F(FrmPresTest, TheMainMenuTakesThePortThatWasTyped) {
  open_start();
  start->first_discovery();
  click("E_ComPort");
  press(Qt::Key_A, Qt::ControlModifier);
  type(QStringLiteral("12"));
  click("C_Z320");
  EXPECT_EQ(Global::ComPort, 12);
}

TEST_F(FrmPresTest, BackFromTheMainMenuShowsTheSameScreenAgain) {
  system.captions = {"USB Serial Port (COM4)"};
  open_start();
  start->first_discovery();
  click("C_Z320");
  click("C_Back");
  let_screens_settle();
  EXPECT_EQ(stage.top(), start);
  EXPECT_TRUE(start->isVisible());
  EXPECT_EQ(port(), QStringLiteral("4"));
  EXPECT_EQ(port_colour(), text_green());
}

TEST_F(FrmPresTest, AModelChosenDuringTheSearchWaitsForTheRegistersPort) {
  // A built-in port that is silent comes first.
  system.captions = {"Built-in (COM2)", "USB Serial Port (COM3)"};
  system.tools_apply = true;
  link().register_port = 3;
  open_start();
  QString top_during_test;
  during_the_first_test([&] {
    click("C_Z320");
    top_during_test = top();
  });
  start->first_discovery();
  EXPECT_EQ(top_during_test, QStringLiteral("FrmPres"));
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
  EXPECT_EQ(Global::ComPort, 3);
  EXPECT_EQ(bytes("port.ini"), "\x03");
  EXPECT_EQ(Global::EcrModel, Global::model_z320);
  EXPECT_EQ(link().calls, (Lines{ping_on_2, ping_on_3, ask_release_on_3}));
  EXPECT_EQ(system.started, Lines{}) << "a register that answered needs no driver";
  EXPECT_EQ(wait_panel(), nullptr);
}

TEST_F(FrmPresTest, AModelChosenDuringATicksSearchWaitsAsWell) {
  open_start();
  start->first_discovery();
  system.captions = {"Built-in (COM2)", "USB Serial Port (COM3)"};
  link().register_port = 3;
  during_the_first_test([this] { click("C_Z300"); });
  let_time_pass();
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
  EXPECT_EQ(Global::EcrModel, Global::model_z300);
  EXPECT_EQ(Global::ComPort, 3);
  EXPECT_EQ(link().calls, (Lines{ping_on_2, ping_on_3, ask_release_on_3}));
}

TEST_F(FrmPresTest, ASearchThatFindsNothingOpensTheWaitingModelOnTheFirstPort) {
  system.captions = {"Modem (COM3)", "USB Serial Port (COM4)"};
  system.tools_apply = true;
  link().register_port = 9;
  open_start();
  during_the_first_test([this] { click("C_Z320"); });
  QString top_at_set_up;
  system.on_start = [&] { top_at_set_up = top(); };
  start->first_discovery();
  EXPECT_EQ(link().calls[0], ping_on_3);
  EXPECT_EQ(link().calls[1], ping_on_4);
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
  EXPECT_EQ(Global::ComPort, 1) << "the field shows 0, so the first port is taken";
  EXPECT_EQ(system.started.size(), 2U) << "all ports were tried, so the driver is set up";
  EXPECT_EQ(top_at_set_up, QStringLiteral("FrmPrincipale")) << "and nobody waits for that";
}

TEST_F(FrmPresTest, TheWaitForTheSearchTellsWhichPortOfHowManyIsAsked) {
  system.captions = {"Modem (COM3)", "Modem (COM12)", "USB Serial Port (COM4)"};
  link().register_port = 4;
  open_start();
  Lines told;
  link().after_call = [&] {
    if (link().calls.size() == 1) click("C_Z320");
    if (wait_panel() != nullptr) told.push_back(wait_words());
  };
  start->first_discovery();
  EXPECT_EQ(told, (Lines{"Looking for the register on port 3, 1 of 3, bar 0 of 3",
                         "Looking for the register on port 12, 2 of 3, bar 1 of 3",
                         "Looking for the register on port 4, 3 of 3, bar 2 of 3"}));
  EXPECT_EQ(wait_panel(), nullptr);
}

TEST_F(FrmPresTest, WhileTheDevicesAreListedTheWaitSaysSo) {
  LanguageNumber = 3;
  open_start();
  QString what;
  QString button;
  watched.on_run_beside = [&](Waiting) {
    click("C_Z320");
    what = wait_panel()->findChild<QLabel*>(QStringLiteral("WaitWhat"))->text();
    button = give_up_button().text();
    watched.on_run_beside = {};
  };
  start->first_discovery();
  LanguageNumber = 0;
  EXPECT_EQ(what, QStringLiteral("Serielle Anschlüsse werden gesucht"));
  EXPECT_EQ(button, QStringLiteral("Ohne Anschluss weiter"));
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
}

TEST_F(FrmPresTest, ASearchThatIsGivenUpMeansNoPort) {
  system.captions = {"Modem (COM3)", "USB Serial Port (COM4)", "Modem (COM5)"};
  system.tools_apply = true;
  link().register_port = 4;
  for (const std::size_t during : {1U, 2U}) {
    SCOPED_TRACE(during);
    link().calls.clear();
    open_start();
    link().after_call = [&] {
      if (link().calls.size() == 1) click("C_Z320");
      // The second test is the one that the register answers.
      if (link().calls.size() == during) give_up_button().click();
    };
    start->first_discovery();
    link().after_call = {};
    EXPECT_EQ(port(), QStringLiteral("0"));
    EXPECT_EQ(port_colour(), text_red());
    EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
    EXPECT_EQ(Global::ComPort, 1);
    EXPECT_EQ(bytes("port.ini"), "\x01");
    ASSERT_GT(link().calls.size(), during);
    EXPECT_EQ(link().calls[during], ask_release_on_1) << "no other port was asked";
    EXPECT_TRUE(timer().isActive());
    EXPECT_EQ(system.started, Lines{}) << "not all ports were tried, so the driver is not set up";
    EXPECT_EQ(wait_panel(), nullptr);
  }
}

TEST_F(FrmPresTest, ATicksSearchCanBeGivenUpToo) {
  open_start();
  start->first_discovery();
  system.captions = {"Modem (COM3)", "USB Serial Port (COM4)"};
  link().register_port = 4;
  during_the_first_test([this] {
    click("C_Z320");
    give_up_button().click();
  });
  let_time_pass();
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
  EXPECT_EQ(link().calls[0], ping_on_3);
  EXPECT_EQ(link().calls[1], ask_release_on_1);
}

TEST_F(FrmPresTest, ANumberTypedDuringASearchThatFindsNothingIsTaken) {
  system.captions = {"Modem (COM3)"};
  link().register_port = 9;
  open_start();
  during_the_first_test([this] {
    click("E_ComPort");
    press(Qt::Key_A, Qt::ControlModifier);
    type(QStringLiteral("5"));
    click("C_Z320");
  });
  start->first_discovery();
  EXPECT_EQ(Global::ComPort, 5);
}

class FrmPresOnRealShell : public FrmPresTest {
 protected:
  FrmPresOnRealShell() : before_{install_shell(&real_)} {
    // A real wait needs a clock that moves by itself.
    install_clock({});
    QObject::connect(&look_, &QTimer::timeout, &look_, [this] {
      if (on_its_way_ && person_ && person_()) {
        look_.stop();
        released_.set_value();
      }
    });
  }
  ~FrmPresOnRealShell() override { install_shell(before_); }

  /// The first call stays on its way, on its own thread, until `person`, who is asked again and again, is done.
  void hold_the_first_test(std::function<bool()> person) {
    person_ = std::move(person);
    link().after_call = [this, release = released_.get_future().share()] {
      if (on_its_way_.exchange(true)) return;
      EXPECT_EQ(release.wait_for(std::chrono::seconds{20}), std::future_status::ready);
    };
    look_.start(1);
  }
  [[nodiscard]] bool wait_is_up() const { return wait_panel() != nullptr && wait_panel()->isVisible(); }

 private:
  QtShell real_{stage};
  Shell* before_;
  std::promise<void> released_;
  std::atomic<bool> on_its_way_ = false;
  std::function<bool()> person_;
  QTimer look_;
};

TEST_F(FrmPresOnRealShell, TheScreenTakesInputWhileAPingIsOnItsWay) {
  system.captions = {"Modem (COM3)"};
  link().register_port = 9;
  open_start();
  hold_the_first_test([this] {
    click("E_ComPort");
    press(Qt::Key_A, Qt::ControlModifier);
    type(QStringLiteral("5"));
    EXPECT_EQ(port(), QStringLiteral("5"));
    click("C_Z320");
    EXPECT_EQ(top(), QStringLiteral("FrmPres")) << "the link takes one call at a time";
    return true;
  });
  start->first_discovery();
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
  EXPECT_EQ(Global::ComPort, 5) << "the number that was typed";
}

TEST_F(FrmPresOnRealShell, ThePersonWhoWaitsReachesTheCardAndNothingElse) {
  system.captions = {"Modem (COM3)", "USB Serial Port (COM4)"};
  link().register_port = 4;
  open_start();
  bool clicked = false;
  hold_the_first_test([&] {
    if (!std::exchange(clicked, true)) click("C_Z320");
    if (!wait_is_up()) return false;
    CommandButton& button = give_up_button();
    EXPECT_TRUE(button.hasFocus());
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_X}) press(key);
    EXPECT_TRUE(button.hasFocus()) << "the keyboard stays on the card";
    // Where the other model and the exit lie, as the window sees it.
    for (const char* name : {"C_Z300", "C_Exit", "C_LinguaSel"}) {
      const QWidget& covered = control(name);
      QTest::mouseClick(stage.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                        covered.mapTo(&stage, QPoint{covered.width() / 4, covered.height() / 4}));
    }
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    // The key that clicked the model is still held down.
    QKeyEvent held{QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString{}, true};
    QCoreApplication::sendEvent(&button, &held);
    EXPECT_TRUE(button.isEnabled());
    return true;
  });
  start->first_discovery();
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
  EXPECT_EQ(Global::EcrModel, Global::model_z320) << "the model that was clicked first";
  EXPECT_EQ(Global::ComPort, 4);
  EXPECT_EQ(focus_name(), QStringLiteral("C_ModificaProgrammazione")) << "the main menu's own first control";
}

TEST_F(FrmPresOnRealShell, TheButtonGivesTheSearchUp) {
  system.captions = {"Modem (COM3)", "USB Serial Port (COM4)"};
  link().register_port = 4;
  open_start();
  bool clicked = false;
  hold_the_first_test([&] {
    if (!std::exchange(clicked, true)) click("C_Z320");
    if (!wait_is_up()) return false;
    CommandButton& button = give_up_button();
    QTest::mouseClick(stage.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      button.mapTo(&stage, button.rect().center()));
    EXPECT_FALSE(button.isEnabled()) << "the wait goes on until the test on its way is over";
    EXPECT_TRUE(wait_is_up());
    return true;
  });
  start->first_discovery();
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
  EXPECT_EQ(link().calls[1], ask_release_on_1);
}

TEST_F(FrmPresOnRealShell, EscapeGivesTheSearchUp) {
  system.captions = {"Modem (COM3)", "USB Serial Port (COM4)"};
  link().register_port = 4;
  open_start();
  bool clicked = false;
  hold_the_first_test([&] {
    if (!std::exchange(clicked, true)) click("C_Z320");
    if (!wait_is_up()) return false;
    press(Qt::Key_Escape);
    return true;
  });
  start->first_discovery();
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
  EXPECT_EQ(link().calls[1], ask_release_on_1);
}

TEST_F(FrmPresOnRealShell, TheCloseBoxEndsTheProgramDuringTheWaitToo) {
  system.captions = {"Modem (COM3)", "USB Serial Port (COM4)"};
  open_start();
  EXPECT_EXIT(
      {
        hold_the_first_test([this] {
          click("C_Z320");
          stage.close();
          return true;
        });
        start->first_discovery();
      },
      ::testing::ExitedWithCode(EXIT_SUCCESS), "");
  EXPECT_EQ(log_behind_start(), Lines{"End Programm"});
}

TEST_F(FrmPresTest, ExitLogsTheEndAndEndsTheProgram) {
  open_start();
  expect_program_ends([this] { click("C_Exit"); });
  EXPECT_EQ(log_behind_start(), Lines{"End Programm"});
}

TEST_F(FrmPresTest, ExitDuringATicksTestIsLoggedToo) {
  system.captions = {"Modem (COM3)"};
  link().register_port = 9;
  open_start();
  start->first_discovery();
  expect_program_ends([this] {
    during_the_first_test([this] { click("C_Exit"); });
    let_time_pass();
  });
  EXPECT_EQ(log_behind_start(), (Lines{ping_failed, "End Programm"}));
}

TEST_F(FrmPresTest, TheCloseBoxEndsTheProgramAsExitDoes) {
  open_start();
  expect_program_ends([this] { stage.close(); });
  EXPECT_EQ(log_behind_start(), Lines{"End Programm"});
}

TEST_F(FrmPresTest, TheLanguageButtonOpensTheChoiceOfLanguages) {
  open_start();
  click("C_LinguaSel");
  ASSERT_NE(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(QApplication::activeModalWidget()->objectName(), QStringLiteral("FrmLanguage"));
}

TEST_F(FrmPresTest, HelpIsOpenedByItsPictureAndByItsKey) {
  open_start();
  click("I_Help");
  press(Qt::Key_F1);
  const std::string line = "Help: no manual in " + Global::PathHelp;
  EXPECT_EQ(log_behind_start(), (Lines{line, line}));
}

TEST_F(FrmPresTest, TellsWhichEmulatedRegisterIsThere) {
  open_start();
  EXPECT_FALSE(control("L_Emulated").isVisible());
  write("register/register.txt", "model = Z300\n");
  open_start();
  EXPECT_TRUE(control("L_Emulated").isVisible());
  EXPECT_TRUE(caption("L_Emulated").contains(QStringLiteral("Z300")));
}

TEST_F(FrmPresTest, TheFocusIsWhereItChangesNoText) {
  open_start();
  EXPECT_EQ(QApplication::focusWidget(), &control("C_Z300"));
}

}  // namespace
}  // namespace ecr::test

#include "screens/frm_pres.h"

#include <atomic>
#include <chrono>
#include <future>
#include <gtest/gtest.h>

#include <QApplication>

#include "core/catalogue.h"
#include "lang/language.h"
#include "screens/start_screen.h"
#include "widgets/look.h"
#include "widgets/qt_shell.h"

namespace ecr::test {
namespace {

using FrmPresTest = StartScreenTest;
using Lines = std::vector<std::string>;

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
    EXPECT_EQ(shell.pointers.back(), Pointer::normal);
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

TEST_F(FrmPresTest, AModelChosenWhileATestIsOnItsWayWaitsForItBehindABusyPointer) {
  system.captions = {"Modem (COM3)", "USB Serial Port (COM4)"};
  link().register_port = 4;
  open_start();
  std::vector<Pointer> pointers_during_test;
  QString top_during_test;
  during_the_first_test([&] {
    click("C_Z320");
    top_during_test = top();
    pointers_during_test = shell.pointers;
  });
  start->first_discovery();
  EXPECT_EQ(top_during_test, QStringLiteral("FrmPres"));
  EXPECT_EQ(pointers_during_test, std::vector<Pointer>{Pointer::busy});
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
  EXPECT_EQ(link().calls[0], ping_on_3);
  EXPECT_NE(link().calls[1], ping_on_4) << "the walk is not gone on with";
  EXPECT_EQ(Global::ComPort, 1) << "the field shows 0, so the first port is taken";
  int busy = 0;
  for (const Pointer pointer : shell.pointers) busy += pointer == Pointer::busy ? 1 : -1;
  EXPECT_EQ(busy, 0) << "in the end the pointer is normal";
}

TEST_F(FrmPresTest, OfTwoModelsChosenDuringATestTheLastOneCounts) {
  system.captions = {"USB Serial Port (COM4)"};
  open_start();
  during_the_first_test([&] {
    click("C_Z300");
    click("C_Z320");
  });
  start->first_discovery();
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
  EXPECT_EQ(Global::EcrModel, Global::model_z320);
  EXPECT_EQ(std::count(shell.pointers.begin(), shell.pointers.end(), Pointer::busy),
            std::count(shell.pointers.begin(), shell.pointers.end(), Pointer::normal));
}

TEST_F(FrmPresTest, AModelChosenDuringATicksTestWaitsAsWell) {
  open_start();
  start->first_discovery();
  system.captions = {"USB Serial Port (COM4)"};
  during_the_first_test([this] { click("C_Z300"); });
  let_time_pass();
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
  EXPECT_EQ(Global::EcrModel, Global::model_z300);
  EXPECT_EQ(Global::ComPort, 4);
}

TEST_F(FrmPresTest, TheScreenTakesInputWhileARealPingIsOnItsWay) {
  QtShell real{stage};
  Shell* const before = install_shell(&real);
  // A real wait needs a clock that moves by itself.
  install_clock({});
  system.captions = {"Modem (COM3)", "USB Serial Port (COM4)"};
  link().register_port = 4;
  open_start();
  // The first call stays on its way, on its own thread, until the person is done.
  std::promise<void> released;
  std::shared_future<void> release = released.get_future().share();
  std::atomic<bool> on_its_way = false;
  link().after_call = [&] {
    on_its_way = true;
    EXPECT_EQ(release.wait_for(std::chrono::seconds{20}), std::future_status::ready);
  };
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &look, [&] {
    if (!on_its_way) return;
    look.stop();
    click("E_ComPort");
    press(Qt::Key_A, Qt::ControlModifier);
    type(QStringLiteral("5"));
    EXPECT_EQ(port(), QStringLiteral("5"));
    click("C_Z320");
    EXPECT_EQ(top(), QStringLiteral("FrmPres")) << "the link takes one call at a time";
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    released.set_value();
  });
  look.start(1);
  start->first_discovery();
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
  EXPECT_EQ(Global::ComPort, 5) << "the number that was typed";
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  install_shell(before);
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

#include "link/ports.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "core/files.h"
#include "core/global.h"
#include "core/run_log.h"
#include "platform/platform.h"
#include "support/fake_system.h"
#include "support/installation.h"
#include "support/random.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

class PortWalk : public InstallationTest {
 protected:
  PortWalk() {
    link().be_a_register();
    show_ports_on({[this](int number) { shown.push_back(std::to_string(number)); },
                   [this](PortColour colour) { shown.emplace_back(colour == PortColour::green ? "green" : "red"); }});
  }

  /// Only these devices are there.
  void devices(const Lines& captions) {
    std::string content = "only\n";
    for (const std::string& caption : captions) content += caption + "\n";
    write("register/devices.txt", content);
  }

  /// The register hangs on this port; calls on all others end with 1025.
  void register_on(int port) { link().register_port = port; }

  [[nodiscard]] Lines pinged() {
    Lines ports;
    for (const std::string& call : link().calls) {
      const std::string expected = "send_cmd folder=. direction=0 file=12 timeout=2 port=";
      EXPECT_TRUE(call.starts_with(expected)) << call;
      ports.push_back(call.substr(expected.size()));
    }
    return ports;
  }

  Lines shown;
  FakeSystem system;
};

TEST_F(PortWalk, APortIsUsedFromThenOn) {
  for (const int port : {7, 255, 0}) {
    use_port(static_cast<std::uint8_t>(port));
    EXPECT_EQ(Global::ComPort, port);
  }
}

TEST_F(PortWalk, TheRegistersPortIsFoundAndShownInGreen) {
  devices({"USB Serial Port (COM4)"});
  EXPECT_TRUE(Test_Com(false));
  EXPECT_EQ(Global::ComPort, 4);
  EXPECT_EQ(shown, (Lines{"0", "4", "green"}));
  EXPECT_EQ(pinged(), Lines{"4"});
  EXPECT_TRUE(log().empty());
}

TEST_F(PortWalk, APortThatFailsIsShownAs0InRed) {
  devices({"USB Serial Port (COM4)"});
  register_on(9);
  EXPECT_FALSE(Test_Com(false));
  EXPECT_EQ(Global::ComPort, 0);
  EXPECT_EQ(shown, (Lines{"0", "red"})) << "the number is not shown, the field says 0";
}

TEST_F(PortWalk, EachWalkStartsWith0Again) {
  devices({"USB Serial Port (COM4)"});
  EXPECT_TRUE(Test_Com(false));
  shown.clear();
  register_on(9);
  EXPECT_FALSE(Test_Com(false));
  EXPECT_EQ(shown, (Lines{"0", "red"}));
  EXPECT_EQ(Global::ComPort, 0);
  shown.clear();
  devices({});
  Global::ComPort = 4;
  EXPECT_FALSE(Test_Com(false));
  EXPECT_EQ(shown, Lines{"0"});
  EXPECT_EQ(Global::ComPort, 0);
}

TEST_F(PortWalk, WithTwoAdaptersTheFirstThatAnswersWins) {
  devices({"Adapter A (COM3)", "Adapter B (COM5)", "Adapter C (COM8)"});
  register_on(5);
  EXPECT_TRUE(Test_Com(false));
  EXPECT_EQ(Global::ComPort, 5);
  EXPECT_EQ(shown, (Lines{"0", "red", "5", "green"}));
  EXPECT_EQ(pinged(), (Lines{"3", "5"})) << "the walk ends at the port that answered";
  register_on(0);
  link().calls.clear();
  EXPECT_TRUE(Test_Com(false));
  EXPECT_EQ(pinged(), Lines{"3"}) << "where all answer it is the first";
}

TEST_F(PortWalk, OnlyCaptionsWithAPortAndAClosingBracketAreTried) {
  devices({"USB Serial Port COM4", "COM4) and more", "serial (com4)", "Keyboard (HID)", "", "COM", "Printer (COM7)"});
  EXPECT_TRUE(Test_Com(false));
  EXPECT_EQ(pinged(), Lines{"7"});
}

TEST_F(PortWalk, NumbersMayHaveBlanksAndZeros) {
  struct Row {
    const char* caption;
    int port;
  };
  for (const Row& row :
       {Row{"(COM 4)", 4}, {"(COM4 )", 4}, {"(COM004)", 4}, {"COM255)", 255}, {"XCOM1)", 1}, {"(COM+4)", 4}}) {
    devices({row.caption});
    EXPECT_TRUE(Test_Com(false)) << row.caption;
    EXPECT_EQ(Global::ComPort, row.port) << row.caption;
  }
}

TEST_F(PortWalk, ANumberThatIsNoneOrAbove255EndsTheWalk) {
  struct Row {
    const char* caption;
    const char* line;
  };
  const Row rows[] = {
      {"Modem (COMx)", "Test_Com: Type mismatch"},
      {"Modem (COM)", "Test_Com: Type mismatch"},
      {"Modem (COM4) (second)", "Test_Com: Type mismatch"},
      {"COM Express bridge (COM4)", "Test_Com: Type mismatch"},
      {"Modem (COM256)", "Test_Com: Overflow"},
      {"Modem (COM-1)", "Test_Com: Overflow"},
      {"Modem (COM99999999999999999999999999999999)", "Test_Com: Overflow"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.caption);
    remove("Log/memo_log.txt");
    link().calls.clear();
    shown.clear();
    devices({"Adapter (COM3)", row.caption, "Register (COM4)"});
    register_on(4);
    EXPECT_FALSE(Test_Com(false));
    EXPECT_EQ(pinged(), Lines{"3"}) << "the devices behind it are not tried";
    EXPECT_EQ(Global::ComPort, 0);
    EXPECT_EQ(shown, (Lines{"0", "red"}));
    EXPECT_EQ(log(),
              (Lines{"Receive_ReportEcr error. File 12 Code: 401 Desc: The USB-COM port cannot be opened.", row.line}));
  }
}

TEST_F(PortWalk, AWalkThatSkipsTheLogDoesNotTellOfABadNumber) {
  devices({"Modem (COMx)"});
  EXPECT_FALSE(Test_Com(true));
  EXPECT_TRUE(log().empty());
  EXPECT_EQ(shown, Lines{"0"});
}

TEST_F(PortWalk, Port0IsNoPort) {
  devices({"Odd device (COM0)", "Register (COM4)"});
  EXPECT_TRUE(Test_Com(false));
  EXPECT_EQ(shown, (Lines{"0", "red", "4", "green"}));
  EXPECT_EQ(pinged(), Lines{"4"}) << "without a port nothing is asked";
}

TEST_F(PortWalk, EachTestIsLoggedInDebugMode) {
  Global::DebugMode = true;
  devices({"Adapter (COM3)", "Register (COM4)"});
  register_on(4);
  EXPECT_TRUE(Test_Com(false));
  EXPECT_EQ(log(), (Lines{"Receive_ReportEcr error. File 12 Code: 401 Desc: The USB-COM port cannot be opened.",
                          "Test COM 3 KO", "Test COM 4 OK"}));
}

TEST_F(PortWalk, AWalkThatSkipsTheLogTellsOfEachTestInDebugModeAllTheSame) {
  Global::DebugMode = true;
  devices({"Adapter (COM3)", "Register (COM4)"});
  register_on(4);
  EXPECT_TRUE(Test_Com(true));
  memo_log("some line of somebody");
  EXPECT_EQ(log(), (Lines{"Test COM 3 KO", "Test COM 4 OK", "some line of somebody"}))
      << "only the failures themselves stay out of the log";
}

TEST_F(PortWalk, GoesToItsEndOrToTheFirstPortThatAnswersUnlessItIsGivenUp) {
  devices({"Built-in (COM2)", "Adapter (COM5)", "Register (COM3)"});
  register_on(3);
  EXPECT_TRUE(Test_Com(false, [] { return false; }));
  EXPECT_EQ(Global::ComPort, 3);
  EXPECT_EQ(pinged(), (Lines{"2", "5", "3"}));
}

TEST_F(PortWalk, GivenUpBeforeTheFirstTestAsksNothing) {
  devices({"Register (COM4)"});
  EXPECT_FALSE(Test_Com(false, [] { return true; }));
  EXPECT_EQ(Global::ComPort, 0);
  EXPECT_EQ(pinged(), Lines{});
  EXPECT_EQ(shown, Lines{"0"});
}

TEST_F(PortWalk, GivenUpDuringATestTriesNoOtherPort) {
  devices({"Adapter (COM3)", "Adapter (COM5)", "Register (COM4)"});
  register_on(4);
  bool given_up = false;
  link().after_call = [&] { given_up = link().calls.size() == 2; };
  EXPECT_FALSE(Test_Com(false, [&given_up] { return given_up; }));
  EXPECT_EQ(pinged(), (Lines{"3", "5"}));
  EXPECT_EQ(Global::ComPort, 0);
  EXPECT_EQ(shown, (Lines{"0", "red", "red"}));
}

TEST_F(PortWalk, GivenUpMeansNoPortAlsoWhenTheTestOnItsWayAnswers) {
  Global::DebugMode = true;
  devices({"Register (COM4)", "Another (COM5)"});
  bool given_up = false;
  link().after_call = [&given_up] { given_up = true; };
  EXPECT_FALSE(Test_Com(false, [&given_up] { return given_up; }));
  EXPECT_EQ(Global::ComPort, 0);
  EXPECT_EQ(shown, (Lines{"0", "red"}));
  EXPECT_EQ(pinged(), Lines{"4"});
  EXPECT_EQ(log(), Lines{"Test COM 4 KO"});
}

TEST_F(PortWalk, GivenUpDoesNotTellOfABadNumberFurtherDown) {
  devices({"Adapter (COM3)", "Modem (COMx)"});
  bool given_up = false;
  link().after_call = [&given_up] { given_up = true; };
  EXPECT_FALSE(Test_Com(false, [&given_up] { return given_up; }));
  EXPECT_EQ(log(), Lines{});
}

TEST_F(PortWalk, EachTestIsToldBeforeItBegins) {
  Lines told;
  show_ports_on({{}, {}, [&](const PortTest& test) {
                   told.push_back(std::to_string(test.port) + " " + std::to_string(test.nth) + " of " +
                                  std::to_string(test.of) + ", calls " + std::to_string(link().calls.size()));
                 }});
  devices({"Adapter (COM3)", "Keyboard", "Adapter (COM5)", "Register (COM4)", "Another (COM9)"});
  register_on(4);
  EXPECT_TRUE(Test_Com(false));
  EXPECT_EQ(told, (Lines{"3 1 of 4, calls 0", "5 2 of 4, calls 1", "4 3 of 4, calls 2"}));

  told.clear();
  link().calls.clear();
  devices({"Adapter (COM3)", "Modem (COMx)", "Register (COM4)"});
  EXPECT_FALSE(Test_Com(false));
  EXPECT_EQ(told, Lines{"3 1 of 1, calls 0"}) << "the walk does not come to what stands behind a bad number";
}

TEST_F(PortWalk, LeavesTheScreensOpenToInput) {
  devices({"Register (COM4)"});
  EXPECT_TRUE(Test_Com(false));
  EXPECT_EQ(shell.waiting_kinds, (std::vector<Waiting>{Waiting::background, Waiting::background}));
  EXPECT_EQ(shell.waits, (std::vector<WorkInHand>{{Work::looking_for_ports}, {Work::looking_for_register}}));
  std::int32_t code = 0;
  util_send_cmd_to_ecr(Global::PathApp, 0, 0, code, 120, 4);
  EXPECT_EQ(shell.waiting_kinds.back(), Waiting::modal) << "other calls do not";
}

TEST_F(PortWalk, NeedsNoDisplay) {
  show_ports_on({});
  devices({"Adapter (COM3)", "Register (COM4)"});
  register_on(4);
  EXPECT_TRUE(Test_Com(false));
  EXPECT_TRUE(shown.empty());
}

TEST_F(PortWalk, FailsInEveryWayInWhichACallCan) {
  devices({"Adapter (COM3)"});
  for (const LinkAnswer answer :
       {LinkAnswer{0, 0}, {2, 0}, {-1, 0}, {1, 1}, {1, 1025}, {1, 4097}, {1, 4098}, {1, 9999}}) {
    link().answers[12] = answer;
    EXPECT_FALSE(Test_Com(false));
    EXPECT_EQ(Global::ComPort, 0);
  }
}

TEST_F(PortWalk, SurvivesAnyCaptions) {
  Random random{97001};
  for (int round = 0; round < 200; ++round) {
    std::string content = "only\n";
    for (int i = 0; i < 10; ++i) content += random.text(random.below(20), "COM()0123456789 x\xFF\t") + "\n";
    write("register/devices.txt", content);
    const bool found = Test_Com(true);
    EXPECT_EQ(found, Global::ComPort != 0);
  }
}

// The list of devices

TEST_F(PortWalk, TheSystemsDevicesComeFirstAndThoseOfTheEmulatedRegisterFollow) {
  system.captions = Lines{"System device (COM1)", "Processor x64"};
  EXPECT_EQ(device_captions(), (Lines{"System device (COM1)", "Processor x64"}));
  write("register/devices.txt", "Emulated register (COM4)\r\nAnother (COM9)\n");
  EXPECT_EQ(device_captions(),
            (Lines{"System device (COM1)", "Processor x64", "Emulated register (COM4)", "Another (COM9)"}));
}

TEST_F(PortWalk, AFirstLineOnlyLeavesTheSystemsDevicesOut) {
  system.captions = Lines{"System device (COM1)"};
  write("register/devices.txt", "only\nEmulated register (COM4)\n");
  EXPECT_EQ(device_captions(), Lines{"Emulated register (COM4)"});
  write("register/devices.txt", "only");
  EXPECT_EQ(device_captions(), Lines{});
  write("register/devices.txt", "Emulated register (COM4)\nonly\n");
  EXPECT_EQ(device_captions(), (Lines{"System device (COM1)", "Emulated register (COM4)", "only"}))
      << "further down it is a caption";
}

TEST_F(PortWalk, ASystemThatCannotBeAskedHasNoDevices) {
  system.captions = std::nullopt;
  EXPECT_EQ(device_captions(), Lines{});
  write("register/devices.txt", "Emulated register (COM4)\n");
  EXPECT_EQ(device_captions(), Lines{"Emulated register (COM4)"});
}

TEST_F(PortWalk, AFolderOrAnEmptyFileInPlaceOfTheListAddsNothing) {
  system.captions = Lines{"System device (COM1)"};
  write("register/devices.txt", "");
  EXPECT_EQ(device_captions(), Lines{"System device (COM1)"});
  remove("register/devices.txt");
  make_folder("register/devices.txt");
  EXPECT_EQ(device_captions(), Lines{"System device (COM1)"});
}

TEST_F(PortWalk, TheEmulatedRegistersModelStandsInItsTextFile) {
  EXPECT_EQ(emulated_model(), "");
  write("register/register.txt", "# a comment\nport = 4\nmodel = Z300  \r\nmodel = Z320\n");
  EXPECT_EQ(emulated_model(), "Z300");
  write("register/register.txt", "# model = Z300\nno model\n");
  EXPECT_EQ(emulated_model(), "");
}

// The processor

TEST_F(PortWalk, TheFirstCaptionThatNamesTheProcessorTellsItsBits) {
  const std::vector<std::pair<Lines, bool>> rows = {
      {{}, false},
      {{"Keyboard", "Mouse"}, false},
      {{"Processor x64"}, true},
      {{"Processor x86"}, false},
      {{"Keyboard", "ACPI x64-based PC", "ACPI x86-based PC"}, true},
      {{"ACPI x86-based PC", "ACPI x64-based PC"}, false},
      {{"x64 that is also x86"}, false},
      {{"X64"}, false},
  };
  for (const auto& [captions, bits64] : rows) {
    system.captions = captions;
    EXPECT_EQ(Get_OsBits(), bits64) << (captions.empty() ? "" : captions[0]);
  }
  system.captions = std::nullopt;
  EXPECT_FALSE(Get_OsBits());
  write("register/devices.txt", "only\nx64\n");
  system.captions = Lines{"x86"};
  EXPECT_FALSE(Get_OsBits()) << "the system is asked, not the emulated register's list";
}

// The driver

class DriverSetUp : public InstallationTest {
 protected:
  DriverSetUp() { OsVersion = "6,01"; }

  [[nodiscard]] std::string driver(const std::string& name) const { return host("Driver/" + name); }
  [[nodiscard]] Lines both_starts(const std::string& tool) const {
    return {driver(tool) + "|" + driver("ftdibus.inf"), driver(tool) + "|" + driver("ftdiport.inf")};
  }
  [[nodiscard]] static Lines both_lines(const std::string& tool) {
    const std::string folder = Global::PathDriver;
    return {folder + tool + " " + folder + "ftdibus.inf", folder + tool + " " + folder + "ftdiport.inf"};
  }

  FakeSystem system;
};

TEST_F(DriverSetUp, TheSetUpProgramIsStartedWhereItIsAndNotWaitedFor) {
  write("Driver/FTDI_Setup.exe", "program");
  write("Driver/x.inf", "");
  system.on_start = [this] { system.running = {{7, "FTDI_Setup.exe"}}; };
  int turns = 0;
  shell.on_screens_work = [&turns] { ++turns; };
  EXPECT_FALSE(Install_Driver(true));
  EXPECT_EQ(system.started, Lines{driver("FTDI_Setup.exe")});
  EXPECT_EQ(log(), Lines{"FTDI_Setup.exe started"});
  EXPECT_EQ(turns, 0);
}

TEST_F(DriverSetUp, TheToolIsPickedByTheSystemsVersion) {
  struct Row {
    const char* version;
    bool bits64;
    const char* tool;
  };
  const Row rows[] = {
      {"5,01", false, "VerPreinstECR.exe"},    {"5,01", true, "VerPreinstECR.exe"},
      {"6,01", false, "VerPreinstECRx86.exe"}, {"6,01", true, "VerPreinstECRx64.exe"},
      {"6", false, "VerPreinstECRx86.exe"},    {"6", true, "VerPreinstECRx64.exe"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.version);
    remove("Log/memo_log.txt");
    system.started.clear();
    OsVersion = row.version;
    Os64Bit = row.bits64;
    EXPECT_TRUE(Install_Driver(true));
    EXPECT_EQ(system.started, both_starts(row.tool));
    EXPECT_EQ(log(), both_lines(row.tool));
  }
}

TEST_F(DriverSetUp, AnyOtherVersionRunsNothingAndIsTrue) {
  // With a point as the decimal sign the version matches none of the three texts.
  for (const char* version : {"5.01", "6.01", "10,00", "6,02", "", " 6"}) {
    OsVersion = version;
    EXPECT_TRUE(Install_Driver(true)) << version;
  }
  EXPECT_TRUE(system.started.empty());
  EXPECT_TRUE(log().empty());
}

TEST_F(DriverSetUp, WithoutForceAnInfFileInTheFolderStopsIt) {
  EXPECT_TRUE(Install_Driver(false)) << "no such file: the tool runs";
  EXPECT_EQ(system.started.size(), 2U);
  system.started.clear();
  write("Driver/FTDIBUS.INF", "");
  EXPECT_FALSE(Install_Driver(false)) << "the case of the name does not matter";
  EXPECT_TRUE(system.started.empty());
  EXPECT_TRUE(Install_Driver(true));
  EXPECT_EQ(system.started.size(), 2U);
}

TEST_F(DriverSetUp, EachRunOfTheToolIsWaitedFor) {
  Lines events;
  system.on_start = [&] {
    events.emplace_back("start");
    system.running = {{9, "verpreinstecrX86.exe"}};
  };
  int turns = 0;
  shell.on_screens_work = [&] {
    events.emplace_back("screens");
    if (++turns % 3 == 0) system.running.clear();
  };
  EXPECT_TRUE(Install_Driver(true));
  EXPECT_EQ(events, (Lines{"start", "screens", "screens", "screens", "start", "screens", "screens", "screens"}));
}

TEST_F(DriverSetUp, AToolThatCannotBeStartedIsPassedOver) {
  system.start_fault = {FaultCode::file_not_found};
  EXPECT_TRUE(Install_Driver(true));
  EXPECT_EQ(system.started.size(), 2U);
  EXPECT_EQ(log(), both_lines("VerPreinstECRx86.exe"));
}

TEST_F(DriverSetUp, WhereTheToolsDoNotApplyThereIsNothingToDo) {
  system.tools_apply = false;
  write("Driver/FTDI_Setup.exe", "program");
  EXPECT_TRUE(Install_Driver(true));
  EXPECT_TRUE(Install_Driver(false));
  EXPECT_TRUE(system.started.empty());
  EXPECT_TRUE(log().empty());
}

}  // namespace
}  // namespace ecr::test

#include "link/firmware.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "core/catalogue.h"
#include "core/global.h"
#include "core/run_log.h"
#include "support/fake_system.h"
#include "support/installation.h"
#include "support/random.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

const std::string ask_release = "send_cmd folder=. direction=0 file=22 timeout=3 port=4";
const std::string ping = "send_cmd folder=. direction=0 file=12 timeout=2 port=4";
const std::string current_banner = "ECRZ300/ECRZ320F    FW rel.1.04     ";
const std::string banner_080 = "ECRZ300/ECRZ320F    FW rel.0.80     ";

class Firmware : public InstallationTest {
 protected:
  Firmware() {
    Global::ComPort = 4;
    set_message(Key::FRM_ALL_WRONG_ECR, "Wrong register");
    system.running = {{51, "regwire.exe"}};
  }
  FakeSystem system;
};

// Fetching the release file

TEST_F(Firmware, TheReleaseIsAskedForOnceInThreeSeconds) {
  link().be_a_register();
  EXPECT_TRUE(Get_Release());
  EXPECT_EQ(link().calls, Lines{ask_release});
  EXPECT_EQ(bytes("Dati/RELEASE.BIN"), current_banner);
  EXPECT_TRUE(log().empty());
}

TEST_F(Firmware, LeftoverReleaseFilesAreRemovedBeforeEachAsk) {
  FakeLink& fake = link();
  write("Dati/RELEA.BIN", banner_080);
  write("Dati/RELEASE.BIN", banner_080);
  bool gone = false;
  fake.after_call = [&] { gone = !exists("Dati/RELEA.BIN") && !exists("Dati/RELEASE.BIN"); };
  fake.answers[22] = {1, 4097};
  EXPECT_FALSE(Get_Release());
  EXPECT_TRUE(gone);
  EXPECT_FALSE(exists("Dati/RELEA.BIN")) << "an old banner cannot be read after a failed ask";
  EXPECT_FALSE(Read_release_fw());
}

TEST_F(Firmware, AnAskThatCouldNotBeMadeIsLoggedInTheWordsOfTheReportFetch) {
  for (const std::int32_t returned : {0, 2, -1}) {
    remove("Log/memo_log.txt");
    link().answers[22] = {returned, 0};
    EXPECT_FALSE(Get_Release());
    EXPECT_EQ(log(), Lines{"Receive_ReportEcr error using regwire"});
    EXPECT_TRUE(system.ended.empty());
  }
}

TEST_F(Firmware, ARefusedAskIsLoggedAndEndsTheToolFor9999Alone) {
  struct Row {
    std::int32_t code;
    const char* line;
  };
  const Row rows[] = {
      {1025, "Get_Release error. Code: 401 Desc: The USB-COM port cannot be opened."},
      {4098, "Get_Release error. Code: 1002 Desc: The error was returned from the ECR side."},
      {9999, "Get_Release error. Code: 270F Desc: Timeout Error"},
      {171, "Get_Release error. Code: AB Desc: No description"},
  };
  for (const Row& row : rows) {
    remove("Log/memo_log.txt");
    system.ended.clear();
    system.running = {{51, "regwire.exe"}};
    link().answers[22] = {1, row.code};
    EXPECT_FALSE(Get_Release());
    EXPECT_EQ(log(), Lines{row.line});
    EXPECT_EQ(system.ended.size(), row.code == 9999 ? 1U : 0U);
  }
}

// Reading the banner

TEST_F(Firmware, TheBannerIs36BlanksBeforeItWasRead) {
  EXPECT_EQ(FwBanner, std::string(36, ' '));
}

TEST_F(Firmware, TheBannerIsReadFromEitherFileAndTheOlderNameComesFirst) {
  write("Dati/RELEASE.BIN", current_banner);
  EXPECT_TRUE(Read_release_fw());
  EXPECT_EQ(FwBanner, current_banner);
  write("Dati/RELEA.BIN", banner_080);
  EXPECT_TRUE(Read_release_fw());
  EXPECT_EQ(FwBanner, banner_080);
}

TEST_F(Firmware, WithoutAFileTheBannerKeepsItsEarlierValue) {
  FwBanner = current_banner;
  EXPECT_FALSE(Read_release_fw());
  EXPECT_EQ(FwBanner, current_banner);
  EXPECT_FALSE(exists("Dati/RELEASE.BIN")) << "and none is created";
}

TEST_F(Firmware, ABannerOfAnyLengthHas36Characters) {
  Random random{96001};
  for (const std::size_t length : {0U, 1U, 20U, 35U, 36U, 37U, 5000U}) {
    const std::string content = random.bytes(length);
    write("Dati/RELEASE.BIN", content);
    EXPECT_TRUE(Read_release_fw());
    std::string expected = content.substr(0, 36);
    expected.resize(36, ' ');
    EXPECT_EQ(FwBanner, expected) << length;
  }
}

TEST_F(Firmware, AFolderInPlaceOfAReleaseFileIsNone) {
  make_folder("Dati/RELEA.BIN");
  write("Dati/RELEASE.BIN", current_banner);
  EXPECT_TRUE(Read_release_fw());
  EXPECT_EQ(FwBanner, current_banner);
  remove("Dati/RELEASE.BIN");
  make_folder("Dati/RELEASE.BIN");
  EXPECT_FALSE(Read_release_fw());
  EXPECT_EQ(FwBanner, current_banner);
}

TEST_F(Firmware, WhoWatchesTheBannerIsToldWhenItWasFetched) {
  Lines told;
  watch_banner([&told](std::string_view banner) { told.emplace_back(banner); });
  link().be_a_register(banner_080);
  EXPECT_TRUE(Get_Fw_Banner());
  EXPECT_EQ(told, Lines{banner_080});
  link().answers[22] = {1, 9999};
  EXPECT_FALSE(Get_Fw_Banner());
  EXPECT_EQ(told.size(), 1U);
  watch_banner({});
  link().answers.clear();
  EXPECT_TRUE(Get_Fw_Banner());
  EXPECT_EQ(told.size(), 1U);
}

TEST_F(Firmware, ARegisterThatDeliversNoFileKeepsTheOldBannerAndCountsAsAnswering) {
  FwBanner = current_banner;
  Lines told;
  watch_banner([&told](std::string_view banner) { told.emplace_back(banner); });
  link();
  EXPECT_TRUE(Get_Fw_Banner()) << "the result of the reading is not looked at";
  EXPECT_EQ(told, Lines{current_banner});
}

// Classing the firmware

TEST_F(Firmware, ACurrentBannerLeavesTheLevelAsItStands) {
  link().be_a_register(current_banner);
  for (const int level : {0, 1, 2}) {
    Global::FwLevel = static_cast<std::uint8_t>(level);
    Read_Fw_State();
    EXPECT_EQ(Global::FwLevel, level) << "also an earlier 1 stays";
  }
  EXPECT_TRUE(log().empty());
  EXPECT_TRUE(shell.seconds_waited.empty());
}

TEST_F(Firmware, TheBannerOfRelease080WithExactlyFiveBlanksGivesLevel2) {
  link().be_a_register(banner_080);
  Read_Fw_State();
  EXPECT_EQ(Global::FwLevel, 2);
  for (const std::string& other : Lines{"ECRZ300/ECRZ320F    FW rel.0.80    x", "ECRZ300/ECRZ320F     FW rel.0.80    ",
                                        "ECRZ300/ECRZ320F    FW rel.0.81     ", "ECRZ300/ECRZ320F    FW  rel.0.80    ",
                                        "ECRZ300/ECRZ320F    fw rel.0.80     "}) {
    ASSERT_EQ(other.size(), 36U);
    Global::FwLevel = 0;
    link().be_a_register(other);
    Read_Fw_State();
    EXPECT_EQ(Global::FwLevel, 0) << other;
  }
}

TEST_F(Firmware, AnythingBehindThe20thCharacterPassesTheFamilyTest) {
  link().be_a_register("ECRZ300/ECRZ320F    something else  ");
  Read_Fw_State();
  EXPECT_EQ(FwBanner, "ECRZ300/ECRZ320F    something else  ");
}

TEST_F(Firmware, ADifferenceInTheFirst20CharactersEndsTheProgram) {
  for (std::size_t place = 0; place < 20; ++place) {
    remove("Log/memo_log.txt");
    std::string foreign = current_banner;
    foreign[place] = '#';
    link().be_a_register(foreign);
    shell.expect_box(BoxKind::plain, foreign + "\rWrong register");
    EXPECT_TRUE(ends_program(Read_Fw_State)) << place;
    EXPECT_EQ(log(), Lines{"Linked:" + foreign});
  }
}

TEST_F(Firmware, WithAnEmptyCatalogueAForeignBannerStandsAloneInItsBox) {
  reset_catalogue();
  const std::string foreign = "ANOTHER FAMILY                      ";
  link().be_a_register(foreign);
  shell.expect_box(BoxKind::plain, foreign + "\r");
  EXPECT_TRUE(ends_program(Read_Fw_State));
}

TEST_F(Firmware, ARegisterThatAnswersTheTestButGivesNoReleaseIsVeryOld) {
  link().be_a_register();
  link().answers[22] = {1, 4098};
  Read_Fw_State();
  EXPECT_EQ(Global::FwLevel, 1);
  EXPECT_EQ(link().calls, (Lines{ask_release, ping}));
  EXPECT_EQ(shell.seconds_waited, std::vector<double>{0.5}) << "half a second lies between the two";
}

TEST_F(Firmware, ASilentRegisterGivesLevel0AndTheFlowGoesOn) {
  Global::FwLevel = 1;
  link().answer = {1, 1025};
  Read_Fw_State();
  EXPECT_EQ(Global::FwLevel, 0);
  EXPECT_EQ(log(), (Lines{"Get_Release error. Code: 401 Desc: The USB-COM port cannot be opened.",
                          "Receive_ReportEcr error. File 12 Code: 401 Desc: The USB-COM port cannot be opened."}));
}

TEST_F(Firmware, WithoutAPortTheReleaseIsAskedForAndTheTestIsNotMade) {
  Global::ComPort = 0;
  link().answer = {1, 1025};
  Global::FwLevel = 2;
  Read_Fw_State();
  EXPECT_EQ(Global::FwLevel, 0);
  EXPECT_EQ(link().calls, Lines{"send_cmd folder=. direction=0 file=22 timeout=3 port=0"});
}

// The connection test

TEST_F(Firmware, TheConnectionIsTestedWithTheCheapestReport) {
  link().be_a_register();
  EXPECT_TRUE(Test_Connection());
  EXPECT_EQ(link().calls, Lines{ping});
  link().answers[12] = {1, 9999};
  EXPECT_FALSE(Test_Connection());
  link().answers[12] = {0, 0};
  EXPECT_FALSE(Test_Connection());
}

TEST_F(Firmware, WithoutAPortThereIsNoConnection) {
  Global::ComPort = 0;
  link().be_a_register();
  EXPECT_FALSE(Test_Connection());
  EXPECT_TRUE(link().calls.empty());
}

TEST_F(Firmware, ATestWithoutArgumentDoesNotSkipTheLog) {
  link().answers[12] = {1, 1025};
  EXPECT_FALSE(Test_Connection());
  EXPECT_EQ(log(), Lines{"Receive_ReportEcr error. File 12 Code: 401 Desc: The USB-COM port cannot be opened."});
  link().answers[12] = {0, 0};
  EXPECT_FALSE(Test_Connection(false));
  EXPECT_EQ(log().back(), "Receive_ReportEcr error using regwire");
}

TEST_F(Firmware, ATestThatSkipsTheLogKeepsItsOwnFailureOutOfIt) {
  for (const LinkAnswer& answer : {LinkAnswer{1, 1025}, {1, 9999}, {0, 0}}) {
    link().answers[12] = answer;
    EXPECT_FALSE(Test_Connection(true));
  }
  EXPECT_TRUE(log().empty());
}

TEST_F(Firmware, ATestThatSkipsTheLogDropsNoLineOfOthers) {
  for (const LinkAnswer& answer : {LinkAnswer{1, 1025}, {0, 0}, {1, 0}}) {
    remove("Log/memo_log.txt");
    link().be_a_register();
    link().answers[12] = answer;
    // Somebody ends the program, or chooses another language, while the test is on its way.
    link().after_call = [] { memo_log("during the test"); };
    static_cast<void>(Test_Connection(true));
    link().after_call = {};
    memo_log("after the test");
    EXPECT_EQ(log(), (Lines{"during the test", "after the test"}));
  }
}

TEST_F(Firmware, ATestWithoutAPortDropsNoLineEither) {
  Global::ComPort = 0;
  link();
  EXPECT_FALSE(Test_Connection(true));
  memo_log("after the test");
  EXPECT_EQ(log(), Lines{"after the test"});
}

TEST_F(Firmware, ALibraryThatCannotBeLoadedIsToldAlsoByATestThatSkipsTheLog) {
  system.on_load = [](const std::string&, std::string& why) {
    why = "it is not there";
    return std::unique_ptr<Library>{};
  };
  EXPECT_FALSE(Test_Connection(true));
  const std::string name{system.link_library_name()};
  EXPECT_EQ(log(), Lines{"Link library " + name + " not loaded: it is not there"})
      << "the test's own failure stays out, the library's does not";
}

}  // namespace
}  // namespace ecr::test

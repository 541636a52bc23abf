#include "link/transfer.h"

#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/catalogue.h"
#include "core/files.h"
#include "core/global.h"
#include "image/prg_mode.h"
#include "image/prg_plu.h"
#include "support/fake_system.h"
#include "support/installation.h"
#include "support/random.h"

namespace ecr::test::transfer_cases {
namespace {

using Lines = std::vector<std::string>;

const std::string ask_release = "send_cmd folder=. direction=0 file=22 timeout=3 port=4";
const std::string send_image = "send_cmd folder=. direction=1 file=0 timeout=120 port=4";
const std::string send_items = "send_cmd folder=. direction=1 file=1 timeout=180 port=4";
const std::string read_image = "send_cmd folder=. direction=0 file=0 timeout=120 port=4";
const std::string read_items = "send_cmd folder=. direction=0 file=1 timeout=180 port=4";

constexpr std::size_t image_size = 5656;

/// Bytes with the digit keys where a Z320 has them.
std::string with_keypad(std::string content) {
  const std::size_t rows[] = {69, 54, 39};
  for (std::size_t digit = 1; digit <= 9; ++digit) {
    content[5567 + rows[(digit - 1) / 3] + (digit - 1) % 3] = static_cast<char>(digit);
  }
  return content;
}

class Transfer : public InstallationTest {
 protected:
  Transfer() {
    Global::choose_model(Global::model_z320);
    Global::ComPort = 4;
    set_message(Key::FRM_ALL_WRONG_ECR, "Wrong register");
    set_message(Key::FRM_PRINCIPALE_ECR_REGWIRE_KO_MSG, "No tool");
    set_message(Key::FRM_PRINCIPALE_COMUNICATION_ERROR_MSG, "Communication: ");
    system.running = {{50, "shell"}, {51, "regwire.exe"}};
  }

  static void fill_image(PrgModeImage& image, std::string_view content) {
    std::memcpy(static_cast<void*>(&image), content.data(), content.size());
  }
  static std::string image_bytes(const PrgModeImage& image) { return std::string{bytes_of_image(image)}; }

  [[nodiscard]] bool tool_was_ended() const { return system.ended == std::vector<std::uint64_t>{51}; }
  [[nodiscard]] bool nothing_was_ended() const { return system.ended.empty(); }

  FakeSystem system;
};

// Sending the items

TEST_F(Transfer, TheItemsAreSentBehindALinkCheck) {
  link().be_a_register();
  write("Dati/PRG_PLU.BIN", "as last written");
  EXPECT_TRUE(Send_PrgPluToEcr());
  EXPECT_EQ(link().calls, (Lines{ask_release, send_items}));
  EXPECT_EQ(link().received[1], "as last written") << "what is sent is the file";
  EXPECT_TRUE(log().empty());
  EXPECT_TRUE(nothing_was_ended());
}

TEST_F(Transfer, AfterAGoodSendTheFlagsAreClearedAndTheTableIsWritten) {
  link().be_a_register();
  PrgPlu.PluCount = 3;
  PrgPlu.Row[0].SendFlag = 1;
  PrgPlu.Row[1].SendFlag = 2;
  PrgPlu.Row[2].SendFlag = 1;
  write("Dati/PRG_PLU.BIN", "other bytes than in memory");
  EXPECT_TRUE(Send_PrgPluToEcr());
  std::string expected(802 + 3 * 44, '\0');
  expected[0] = 3;
  expected[802 + 44 + 37] = 2;
  EXPECT_EQ(bytes("Dati/PRG_PLU.BIN"), expected);
}

TEST_F(Transfer, TheRegisterIsGiven1Point4SecondsForEachFlaggedItem) {
  link().be_a_register();
  for (std::size_t i = 0; i < 5; ++i) PrgPlu.Row[i].SendFlag = 1;
  PrgPlu.PluCount = 5;
  write("Dati/PRG_PLU.BIN", "not yet");
  bool written_early = false;
  shell.on_screens_work = [&] { written_early = written_early || bytes("Dati/PRG_PLU.BIN") != "not yet"; };
  const double start = shell.moment.second_of_day;
  EXPECT_TRUE(Send_PrgPluToEcr());
  ASSERT_EQ(shell.seconds_waited.size(), 1U);
  EXPECT_DOUBLE_EQ(shell.seconds_waited[0], 7);
  EXPECT_GE(shell.moment.second_of_day - start, 7);
  EXPECT_FALSE(written_early) << "the file is written behind the wait";
  EXPECT_EQ(shell.waits.back(), WorkInHand{Work::taking_in_items});
}

TEST_F(Transfer, WithoutFlaggedItemsTheWaitIs0) {
  link().be_a_register();
  EXPECT_TRUE(Send_PrgPluToEcr());
  EXPECT_EQ(shell.seconds_waited, std::vector<double>{0});
}

TEST_F(Transfer, AnItemSendThatCouldNotBeMadeIsLoggedAndKeepsTheFlags) {
  for (const std::int32_t returned : {0, 2, -1}) {
    SCOPED_TRACE(returned);
    remove("Log/memo_log.txt");
    link().be_a_register();
    link().answers[1] = {returned, 0};
    PrgPlu.Row[0].SendFlag = 1;
    write("Dati/PRG_PLU.BIN", "kept");
    EXPECT_FALSE(Send_PrgPluToEcr());
    EXPECT_EQ(log(), Lines{"Send_PrgPluToEcr error using regwire"});
    EXPECT_EQ(PrgPlu.Row[0].SendFlag, 1);
    EXPECT_EQ(bytes("Dati/PRG_PLU.BIN"), "kept");
    EXPECT_TRUE(shell.seconds_waited.empty());
    EXPECT_TRUE(nothing_was_ended());
  }
}

struct Refusal {
  std::int32_t code;
  const char* text;
  bool ends_tool_after_image;
  bool ends_tool_after_items;
};
constexpr Refusal refusals[] = {
    {1, "1 Desc: It was discontinued while processing it.", false, false},
    {513, "201 Desc: The parameter number is illegal.", false, false},
    {1025, "401 Desc: The USB-COM port cannot be opened.", false, false},
    {2052, "804 Desc: The specified file cannot be written.", false, false},
    {4097, "1001 Desc: The ECR side is in the state of BUSY.", false, false},
    {4098, "1002 Desc: The error was returned from the ECR side.", false, true},
    {9999, "270F Desc: Timeout Error", true, true},
    {171, "AB Desc: No description", false, false},
    {-1, "FFFFFFFF Desc: No description", false, false},
};

TEST_F(Transfer, ARefusedItemSendIsLoggedAndEndsTheToolFor9999And4098) {
  for (const Refusal& refusal : refusals) {
    SCOPED_TRACE(refusal.code);
    remove("Log/memo_log.txt");
    system.running = {{51, "regwire.exe"}};
    system.ended.clear();
    link().be_a_register();
    link().answers[1] = {1, refusal.code};
    PrgPlu.Row[0].SendFlag = 1;
    EXPECT_FALSE(Send_PrgPluToEcr());
    EXPECT_EQ(log(), Lines{std::string{"Send_PrgPluToEcr error. Code: "} + refusal.text});
    EXPECT_EQ(tool_was_ended(), refusal.ends_tool_after_items);
    EXPECT_EQ(PrgPlu.Row[0].SendFlag, 1) << "the flags count again next time";
    EXPECT_FALSE(exists("Dati/PRG_PLU.BIN"));
  }
}

TEST_F(Transfer, AFailedLinkCheckInFrontOfTheItemsEndsTheProgram) {
  link().answers[22] = {1, 1025};
  shell.expect_box(BoxKind::plain, "Wrong register");
  EXPECT_TRUE(ends_program([] { Send_PrgPluToEcr(); }));
  EXPECT_EQ(link().calls, Lines{ask_release});
  EXPECT_EQ(log(), Lines{"Get_Release error. Code: 401 Desc: The USB-COM port cannot be opened."});
}

// Sending the image

TEST_F(Transfer, AsTheScreensSendItTheImageGoesAndTheItemsFollow) {
  link().be_a_register();
  write("Dati/PRG_MODE.BIN", "image as last written");
  write("Dati/PRG_PLU.BIN", "items as last written");
  EXPECT_TRUE(Send_PrgModeToEcr(true, true));
  EXPECT_EQ(link().calls, (Lines{ask_release, send_image, ask_release, send_items}));
  EXPECT_EQ(link().received[0], "image as last written");
  EXPECT_EQ(link().received[1], "items as last written");
  EXPECT_TRUE(log().empty());
}

TEST_F(Transfer, WithoutTheMergeTheImageIsNeitherMovedNorRewritten) {
  link().be_a_register();
  link().deliveries[0] = {"PRG_MODE.BIN", with_keypad(std::string(image_size, 'r'))};
  fill_image(PrgMode, std::string(image_size, 'w'));
  write("Dati/PRG_MODE.BIN", "image as last written");
  EXPECT_TRUE(Send_PrgModeToEcr(true, true));
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), "image as last written");
  EXPECT_FALSE(exists("Dati/PRG_MODE_SAV.BIN"));
  EXPECT_EQ(image_bytes(PrgMode), std::string(image_size, 'w'));
  EXPECT_EQ(image_bytes(PrgModeComparison), std::string(image_size, '\0'));
}

TEST_F(Transfer, WithoutTheItemsOnlyTheImageGoes) {
  link().be_a_register();
  EXPECT_TRUE(Send_PrgModeToEcr(false, true));
  EXPECT_EQ(link().calls, (Lines{ask_release, send_image}));
}

TEST_F(Transfer, TheLinkCheckDoesNotTestTheFamily) {
  link().be_a_register("QUITE ANOTHER FAMILY                ");
  EXPECT_TRUE(Send_PrgModeToEcr(false, true));
  EXPECT_EQ(link().calls, (Lines{ask_release, send_image}));
}

TEST_F(Transfer, AFailedLinkCheckInFrontOfTheImageEndsTheProgram) {
  for (const LinkAnswer answer : {LinkAnswer{0, 0}, LinkAnswer{1, 9999}, LinkAnswer{2, 0}}) {
    link().calls.clear();
    link().answers[22] = answer;
    shell.expect_box(BoxKind::plain, "Wrong register");
    EXPECT_TRUE(ends_program([] { Send_PrgModeToEcr(true, false); }));
    EXPECT_EQ(link().calls, Lines{ask_release});
    EXPECT_FALSE(exists("Dati/PRG_MODE_SAV.BIN")) << "the merge comes behind the check";
  }
}

TEST_F(Transfer, WithAnEmptyCatalogueTheBoxOfAFailedLinkCheckIsEmpty) {
  reset_catalogue();
  link().answers[22] = {0, 0};
  shell.expect_box(BoxKind::plain, "");
  EXPECT_TRUE(ends_program([] { Send_PrgModeToEcr(true, true); }));
}

TEST_F(Transfer, AnImageSendThatCouldNotBeMadeIsLoggedAndShowsNothing) {
  for (const std::int32_t returned : {0, 2, -1}) {
    SCOPED_TRACE(returned);
    remove("Log/memo_log.txt");
    link().calls.clear();
    link().be_a_register();
    link().answers[0] = {returned, 0};
    EXPECT_FALSE(Send_PrgModeToEcr(true, true));
    EXPECT_EQ(log(), Lines{"Send_PrgModeToEcr error using regwire"});
    EXPECT_EQ(link().calls, (Lines{ask_release, send_image})) << "the items do not follow";
    EXPECT_TRUE(nothing_was_ended());
  }
}

TEST_F(Transfer, ARefusedImageSendIsLoggedAndEndsTheToolFor9999Alone) {
  for (const Refusal& refusal : refusals) {
    SCOPED_TRACE(refusal.code);
    remove("Log/memo_log.txt");
    system.running = {{51, "regwire.exe"}};
    system.ended.clear();
    link().calls.clear();
    link().be_a_register();
    link().answers[0] = {1, refusal.code};
    EXPECT_FALSE(Send_PrgModeToEcr(true, true));
    EXPECT_EQ(log(), Lines{std::string{"Send_PrgModeToEcr error. Code: "} + refusal.text});
    EXPECT_EQ(tool_was_ended(), refusal.ends_tool_after_image);
    EXPECT_EQ(link().calls, (Lines{ask_release, send_image}));
  }
}

TEST_F(Transfer, ATimedOutSendLeavesNoToolRunning) {
  link().be_a_register();
  link().answers[0] = {1, 9999};
  EXPECT_FALSE(Send_PrgModeToEcr(true, true));
  ASSERT_EQ(system.running.size(), 1U);
  EXPECT_EQ(system.running[0].executable, "shell");
}

TEST_F(Transfer, ItemsThatFailBehindAGoodImageAreShownAndTheAnswerStaysTrue) {
  link().be_a_register();
  link().answers[1] = {1, 4097};
  shell.expect_box(BoxKind::critical, "Programmation sending Failed");
  EXPECT_TRUE(Send_PrgModeToEcr(true, true));
  EXPECT_EQ(log(), Lines{"Send_PrgPluToEcr error. Code: 1001 Desc: The ECR side is in the state of BUSY."});
  MsgProgramKo = "translated";
  shell.expect_box(BoxKind::critical, "translated");
  EXPECT_TRUE(Send_PrgModeToEcr(true, true));
}

TEST_F(Transfer, ALinkCheckThatFailsBehindAGoodImageEndsTheProgram) {
  FakeLink& fake = link();
  fake.be_a_register();
  fake.after_call = [&fake] {
    // The register goes away behind the image.
    if (fake.calls.back() == send_image) fake.answers[22] = {1, 1025};
  };
  shell.expect_box(BoxKind::plain, "Wrong register");
  EXPECT_TRUE(ends_program([] { Send_PrgModeToEcr(true, true); }));
  EXPECT_EQ(fake.calls, (Lines{ask_release, send_image, ask_release}));
}

// The merge

class Merge : public Transfer {
 protected:
  Merge() {
    link().be_a_register();
    register_image_ = with_keypad(Random{95001}.bytes(image_size));
    link().deliveries[0] = {"PRG_MODE.BIN", register_image_};
    working_image_ = with_keypad(Random{95002}.bytes(image_size));
    fill_image(PrgMode, working_image_);
    write("Dati/PRG_MODE.BIN", "the file before");
  }

  /// The working image with what the register owns.
  [[nodiscard]] std::string merged() const {
    std::string expected = working_image_;
    for (const auto& [offset, length] : {std::pair{3117U, 4U}, {3125U, 2U}, {3127U, 2U}, {3129U, 8U}}) {
      expected.replace(offset, length, register_image_.substr(offset, length));
    }
    return expected;
  }

  std::string register_image_;
  std::string working_image_;
};

TEST_F(Merge, TakesFourCountersFromTheRegisterAndSendsTheRest) {
  EXPECT_TRUE(Send_PrgModeToEcr(false, false));
  EXPECT_EQ(link().calls, (Lines{ask_release, read_image, send_image}));
  EXPECT_EQ(image_bytes(PrgMode), merged());
  EXPECT_NE(merged(), working_image_);
  EXPECT_EQ(merged().substr(3121, 4), working_image_.substr(3121, 4)) << "the invoice number is not the register's";
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), merged());
  EXPECT_EQ(link().received[0], merged());
  EXPECT_EQ(bytes("Dati/PRG_MODE_SAV.BIN"), "the file before");
  EXPECT_EQ(image_bytes(PrgModeComparison), register_image_);
  EXPECT_TRUE(log().empty());
}

TEST_F(Merge, ASecondSendKeepsTheOldestSavedFile) {
  EXPECT_TRUE(Send_PrgModeToEcr(false, false));
  EXPECT_TRUE(Send_PrgModeToEcr(false, false));
  EXPECT_EQ(bytes("Dati/PRG_MODE_SAV.BIN"), "the file before");
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), merged());
}

TEST_F(Merge, WhereTheNameIsTakenTheCurrentFileIsOverwritten) {
  write("Dati/PRG_MODE_SAV.BIN", "the oldest");
  EXPECT_TRUE(Send_PrgModeToEcr(false, false));
  EXPECT_EQ(bytes("Dati/PRG_MODE_SAV.BIN"), "the oldest");
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), merged());
}

TEST_F(Merge, AnUploadThatCouldNotBeMadeSendsTheWorkingImageAsItIs) {
  // Only the upload fails: both directions of the image share their file number.
  FakeLink& fake = link();
  fake.answers[0] = {0, 0};
  fake.after_call = [&fake] {
    if (fake.calls.back() == read_image) fake.answers[0] = {1, 0};
  };
  EXPECT_TRUE(Send_PrgModeToEcr(false, false));
  EXPECT_EQ(log(), Lines{"Send_PrgModeToEcr: Errore nella chiamata di REGWIRE. File 0"});
  EXPECT_EQ(fake.calls, (Lines{ask_release, read_image, send_image})) << "the send is still tried";
  EXPECT_EQ(image_bytes(PrgMode), working_image_);
  EXPECT_EQ(fake.received[0], working_image_) << "and the file was written for it";
  EXPECT_EQ(bytes("Dati/PRG_MODE_SAV.BIN"), "the file before");
}

TEST_F(Merge, TheResultOfAnUploadThatWasMadeIsNotLookedAt) {
  FakeLink& fake = link();
  fake.answers[0] = {1, 4098};
  fake.after_call = [&fake] {
    if (fake.calls.back() == read_image) fake.answers[0] = {1, 0};
  };
  fill_image(PrgModeComparison, std::string(image_size, 'c'));
  shell.expect_box(BoxKind::plain, "Wrong register");
  EXPECT_TRUE(Send_PrgModeToEcr(false, false));
  EXPECT_TRUE(log().empty());
  std::string expected = working_image_;
  for (const auto& [offset, length] : {std::pair{3117U, 4U}, {3125U, 2U}, {3127U, 2U}, {3129U, 8U}}) {
    expected.replace(offset, length, length, 'c');
  }
  EXPECT_EQ(fake.received[0], expected) << "what the comparison image held before is merged";
}

TEST_F(Merge, AReturnValueOtherThan0And1CountsAsAnUploadThatWasMade) {
  FakeLink& fake = link();
  fake.answers[0] = {2, 0};
  fake.after_call = [&fake] {
    if (fake.calls.back() == read_image) fake.answers[0] = {1, 0};
  };
  shell.expect_box(BoxKind::plain, "Wrong register");
  EXPECT_TRUE(Send_PrgModeToEcr(false, false));
  EXPECT_TRUE(log().empty());
}

TEST_F(Merge, AWorkingImageOfNoModelIsToldAndMergedAllTheSame) {
  working_image_ = std::string(image_size, 'w');
  fill_image(PrgMode, working_image_);
  shell.expect_box(BoxKind::plain, "Wrong register");
  EXPECT_TRUE(Send_PrgModeToEcr(false, false));
  EXPECT_EQ(link().received[0], merged());
}

TEST_F(Merge, ARegisterFileThatIsCutShortLeavesTheRestOfTheComparison) {
  link().deliveries[0] = {"PRG_MODE.BIN", register_image_.substr(0, 3119)};
  EXPECT_TRUE(Send_PrgModeToEcr(false, false));
  std::string expected = working_image_;
  expected.replace(3117, 4, register_image_.substr(3117, 2) + std::string(2, '\0'));
  expected.replace(3125, 12, std::string(12, '\0'));
  EXPECT_EQ(link().received[0], expected);
}

TEST_F(Merge, ARefusedSendLeavesTheMergedImageInTheFile) {
  FakeLink& fake = link();
  fake.after_call = [&fake] {
    if (fake.calls.back() == read_image) fake.answers[0] = {1, 4097};
  };
  EXPECT_FALSE(Send_PrgModeToEcr(true, false));
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), merged());
  EXPECT_EQ(log(), Lines{"Send_PrgModeToEcr error. Code: 1001 Desc: The ECR side is in the state of BUSY."});
}

// Reading both files

TEST_F(Transfer, BothFilesAreReadFromTheRegister) {
  link().deliveries[0] = {"PRG_MODE.BIN", "image of the register"};
  link().deliveries[1] = {"PRG_PLU.BIN", "items of the register"};
  write("Dati/PRG_MODE.BIN", "old image");
  write("Dati/PRG_PLU.BIN", "old items, which are longer than those of the register");
  EXPECT_TRUE(read_files_from_register());
  EXPECT_EQ(link().calls, (Lines{read_image, read_items})) << "no link check in front";
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), "image of the register");
  EXPECT_EQ(bytes("Dati/PRG_PLU.BIN"), "items of the register");
  EXPECT_EQ(shell.pointers, (std::vector<Pointer>{Pointer::busy, Pointer::normal}));
  EXPECT_TRUE(log().empty());
}

TEST_F(Transfer, TheOldItemsAreDeletedBetweenTheTwoReads) {
  FakeLink& fake = link();
  write("Dati/PRG_PLU.BIN", "old items");
  std::vector<bool> there;
  fake.after_call = [&] { there.push_back(exists("Dati/PRG_PLU.BIN")); };
  EXPECT_TRUE(read_files_from_register());
  EXPECT_EQ(there, (std::vector<bool>{true, false})) << "nothing was delivered behind the deletion";
}

TEST_F(Transfer, AnImageReadThatCouldNotBeMadeIsShownAndTheFilesThatStandAreGoneOnWith) {
  link().answers[0] = {0, 4098};
  write("Dati/PRG_PLU.BIN", "old items");
  shell.expect_box(BoxKind::plain, "No tool");
  EXPECT_TRUE(read_files_from_register());
  EXPECT_EQ(log(), Lines{"Errore nella chiamata di REGWIRE. File 0"});
  EXPECT_EQ(link().calls, Lines{read_image}) << "the items are not asked for";
  EXPECT_EQ(bytes("Dati/PRG_PLU.BIN"), "old items");
  EXPECT_EQ(shell.pointers.back(), Pointer::normal);
}

TEST_F(Transfer, AnItemReadThatCouldNotBeMadeIsShownAndTheFilesThatStandAreGoneOnWith) {
  link().answers[1] = {0, 0};
  shell.expect_box(BoxKind::plain, "No tool");
  EXPECT_TRUE(read_files_from_register());
  EXPECT_EQ(log(), Lines{"Errore nella chiamata di REGWIRE. File 1"});
}

TEST_F(Transfer, ARefusedImageReadIsShownWithItsTextJoinedDirectly) {
  for (const Refusal& refusal : refusals) {
    SCOPED_TRACE(refusal.code);
    remove("Log/memo_log.txt");
    link().calls.clear();
    system.running = {{51, "regwire.exe"}};
    system.ended.clear();
    shell.pointers.clear();
    link().answers[0] = {1, refusal.code};
    const std::string text = refusal.text;
    const std::string description = text.substr(text.find("Desc: ") + 6);
    shell.expect_box(BoxKind::critical, "Communication: " + description);
    EXPECT_FALSE(read_files_from_register());
    EXPECT_EQ(log(), Lines{"REGWIRE return error: " + text.substr(0, text.find(' ')) + " . File 0"});
    EXPECT_EQ(link().calls, Lines{read_image});
    EXPECT_EQ(tool_was_ended(), refusal.code == 9999);
    EXPECT_EQ(shell.pointers, (std::vector<Pointer>{Pointer::busy, Pointer::normal}));
  }
}

TEST_F(Transfer, ARefusedItemReadIsShownWithABlankAndLoggedWithItsText) {
  for (const Refusal& refusal : refusals) {
    SCOPED_TRACE(refusal.code);
    remove("Log/memo_log.txt");
    system.running = {{51, "regwire.exe"}};
    system.ended.clear();
    link().answers[1] = {1, refusal.code};
    const std::string text = refusal.text;
    const std::string description = text.substr(text.find("Desc: ") + 6);
    shell.expect_box(BoxKind::critical, "Communication:  " + description);
    EXPECT_FALSE(read_files_from_register());
    EXPECT_EQ(log(),
              Lines{"REGWIRE return error: " + text.substr(0, text.find(' ')) + " . File 1 Desc: " + description});
    EXPECT_EQ(tool_was_ended(), refusal.code == 9999);
  }
}

TEST_F(Transfer, TheItemRefusalLineReadsExactlySo) {
  link().answers[1] = {1, 4098};
  shell.expect_box(BoxKind::critical, "Communication:  The error was returned from the ECR side.");
  EXPECT_FALSE(read_files_from_register());
  EXPECT_EQ(log(), Lines{"REGWIRE return error: 1002 . File 1 Desc: The error was returned from the ECR side."});
}

TEST_F(Transfer, OddReturnValuesOfAReadCountAsMade) {
  link().answer = {2, 0};
  EXPECT_TRUE(read_files_from_register());
  EXPECT_EQ(link().calls, (Lines{read_image, read_items}));
  link().answer = {-1, 0};
  EXPECT_TRUE(read_files_from_register());
  EXPECT_TRUE(log().empty());
}

TEST_F(Transfer, WithAnEmptyCatalogueTheBoxesHaveTheirDefaultsOrNone) {
  reset_catalogue();
  link().answers[0] = {1, 1025};
  shell.expect_box(BoxKind::critical, "Comunicatione error: The USB-COM port cannot be opened.");
  EXPECT_FALSE(read_files_from_register());
  link().answers[0] = {0, 0};
  shell.expect_box(BoxKind::plain, "");
  EXPECT_TRUE(read_files_from_register());
}

// The default files

class DefaultFiles : public Transfer {
 protected:
  void install_defaults() const {
    for (const char* model : {"ECRZ300", "ECRZ320"}) {
      const std::string head = std::string{"Dati/"} + model + "/" + model + "_";
      write(head + "PRG_MODE.BIN", std::string{model} + " image");
      write(head + "PRG_PLU.BIN", std::string{model} + " items");
    }
  }
};

TEST_F(DefaultFiles, OfTheChosenModelAreCopiedOverTheOldOnes) {
  install_defaults();
  for (const auto& [model, name] : {std::pair{Global::model_z300, "ECRZ300"}, {Global::model_z320, "ECRZ320"}}) {
    write("Dati/PRG_MODE.BIN", "an old image that is longer than the default");
    remove("Dati/PRG_PLU.BIN");
    Global::choose_model(model);
    copia_def_file();
    EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), std::string{name} + " image");
    EXPECT_EQ(bytes("Dati/PRG_PLU.BIN"), std::string{name} + " items");
  }
  EXPECT_TRUE(log().empty());
  EXPECT_FALSE(exists("Dati/PRG_MODE_SAV.BIN"));
}

TEST_F(DefaultFiles, AreNotCopiedForAVeryOldFirmware) {
  install_defaults();
  write("Dati/PRG_MODE.BIN", "kept image");
  write("Dati/PRG_PLU.BIN", "kept items");
  Global::FwLevel = 1;
  copia_def_file();
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), "kept image");
  EXPECT_EQ(bytes("Dati/PRG_PLU.BIN"), "kept items");
  EXPECT_EQ(log(), Lines{"Selected new ecr with very old fw release"});
}

TEST_F(DefaultFiles, AreCopiedForEveryOtherFirmware) {
  install_defaults();
  for (const int level : {0, 2}) {
    remove("Dati/PRG_MODE.BIN");
    Global::FwLevel = static_cast<std::uint8_t>(level);
    copia_def_file();
    EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), "ECRZ320 image");
  }
}

TEST_F(DefaultFiles, AMissingImageIsShownAndLoggedAndNothingIsCopied) {
  install_defaults();
  remove("Dati/ECRZ320/ECRZ320_PRG_MODE.BIN");
  write("Dati/PRG_MODE.BIN", "old image");
  write("Dati/PRG_PLU.BIN", "old items");
  shell.expect_box(BoxKind::plain, "Error During copy PRG_MODE_FILE");
  copia_def_file();
  EXPECT_EQ(log(), Lines{"copia_def_file: 53 File not found"});
  EXPECT_FALSE(exists("Dati/PRG_MODE.BIN")) << "both old files were deleted first";
  EXPECT_FALSE(exists("Dati/PRG_PLU.BIN"));
}

TEST_F(DefaultFiles, AMissingItemTableIsShownAndLoggedBehindTheCopiedImage) {
  install_defaults();
  remove("Dati/ECRZ320/ECRZ320_PRG_PLU.BIN");
  write("Dati/PRG_PLU.BIN", "old items");
  shell.expect_box(BoxKind::plain, "Error During copy PRG_MODE_PLUE");
  copia_def_file();
  EXPECT_EQ(log(), Lines{"copia_def_file: 53 File not found"});
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), "ECRZ320 image");
  EXPECT_FALSE(exists("Dati/PRG_PLU.BIN"));
}

TEST_F(DefaultFiles, ACopyThatCannotBeWrittenIsShownAndLogged) {
  install_defaults();
  int replaced = 0;
  int fails_at = 1;
  system.on_replace = [&](const std::string& path, std::string_view content) {
    return ++replaced == fails_at ? Fault{FaultCode::disk_full} : host_system().replace_file(path, content);
  };
  MsgErrorCopyMode = "image text";
  MsgErrorCopyPlu = "items text";
  shell.expect_box(BoxKind::plain, "image text");
  copia_def_file();
  EXPECT_EQ(replaced, 1) << "the items are not copied behind a failed image";
  fails_at = 2;
  replaced = 0;
  shell.expect_box(BoxKind::plain, "items text");
  copia_def_file();
  EXPECT_EQ(log(), (Lines{"copia_def_file: 61 Disk full", "copia_def_file: 61 Disk full"}));
}

TEST_F(DefaultFiles, AFolderInPlaceOfAFileIsShownAndLogged) {
  install_defaults();
  make_folder("Dati/PRG_MODE.BIN");
  shell.expect_box(BoxKind::plain, "Error During copy PRG_MODE_FILE");
  copia_def_file();
  remove("Dati/PRG_MODE.BIN");
  make_folder("Dati/PRG_PLU.BIN");
  shell.expect_box(BoxKind::plain, "Error During copy PRG_MODE_PLUE");
  copia_def_file();
  EXPECT_EQ(log(),
            (Lines{"copia_def_file: 75 Path or file access error", "copia_def_file: 75 Path or file access error"}));
}

}  // namespace
}  // namespace ecr::test::transfer_cases

#include <gtest/gtest.h>

#include "core/catalogue.h"
#include "core/global.h"
#include "image/prg_plu.h"
#include "link/firmware.h"
#include "support/fake_system.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

class ResetTest : public ScreenTest {
 protected:
  ResetTest() {
    start_session(Global::model_z320);
    link().be_a_register();
    PrgModeImage defaults = good_image(Global::model_z320);
    defaults.Perm0.bytes[0] = 0x77;
    default_image = file_bytes(defaults);
    default_items = empty_item_file() + std::string(44, 'd');
    default_items[0] = 1;
    write("Dati/ECRZ320/ECRZ320_PRG_MODE.BIN", default_image);
    write("Dati/ECRZ320/ECRZ320_PRG_PLU.BIN", default_items);
    open("FrmSetup");
  }

  void ask(Answer answer) { expect_box(BoxKind::plain, "Are you sure you want to RESET the cash register?", answer); }

  std::string default_image;
  std::string default_items;
};

TEST_F(ResetTest, ThatIsDeclinedTouchesNothing) {
  const std::string before = image_file();
  ask(Answer::no);
  click("C_Reset");
  EXPECT_EQ(image_file(), before);
  EXPECT_EQ(link().calls, Lines{});
  EXPECT_EQ(watched.boxes[0].buttons, BoxButtons::yes_no);
  EXPECT_EQ(shell.pointers, std::vector<Pointer>{});
}

TEST_F(ResetTest, AsksInTheCataloguesWordsUnderItsTitle) {
  set_message(Key::FRM_SETUP_RESET_MSG, "Sicher?");
  set_message(Key::MSG_TITLE_RESET, "Achtung");
  expect_box(BoxKind::plain, "Sicher?", Answer::no);
  click("C_Reset");
  EXPECT_EQ(watched.boxes[0].title, "Achtung");
}

TEST_F(ResetTest, CopiesTheDefaultsAndSendsImageAndItems) {
  ask(Answer::yes);
  click("C_Reset");
  EXPECT_EQ(image_file(), default_image);
  EXPECT_EQ(link().received[0], default_image);
  EXPECT_EQ(link().received[1], default_items);
  EXPECT_EQ(link().calls, (Lines{"send_cmd folder=. direction=0 file=22 timeout=3 port=4",
                                 "send_cmd folder=. direction=1 file=0 timeout=120 port=4",
                                 "send_cmd folder=. direction=0 file=22 timeout=3 port=4",
                                 "send_cmd folder=. direction=1 file=1 timeout=180 port=4"}));
  EXPECT_EQ(shell.pointers, (std::vector<Pointer>{Pointer::busy, Pointer::normal}));
  EXPECT_EQ(top(), QStringLiteral("FrmSetup"));
}

TEST_F(ResetTest, LeavesTheImageInMemoryAsItWas) {
  const std::string in_memory = file_bytes(PrgMode);
  ask(Answer::yes);
  click("C_Reset");
  EXPECT_EQ(file_bytes(PrgMode), in_memory);
  EXPECT_NE(image_file(), in_memory);
}

TEST_F(ResetTest, WritesTheItemTableInMemoryOverTheDefaultItemsJustSent) {
  ask(Answer::yes);
  click("C_Reset");
  EXPECT_EQ(bytes("Dati/PRG_PLU.BIN"), empty_item_file());
}

TEST_F(ResetTest, ThatTheRegisterRefusesIsTold) {
  link().answers[0] = {1, 4097};
  ask(Answer::yes);
  expect_box(BoxKind::critical, "Programmation sending Failed");
  click("C_Reset");
  EXPECT_EQ(image_file(), default_image);
  EXPECT_EQ(log(), Lines{"Send_PrgModeToEcr error. Code: 1001 Desc: The ECR side is in the state of BUSY."});
  EXPECT_EQ(shell.pointers.back(), Pointer::normal);
}

TEST_F(ResetTest, WhoseToolCannotBeRunIsTold) {
  link().answers[0] = {0, 0};
  ask(Answer::yes);
  expect_box(BoxKind::critical, "Programmation sending Failed");
  click("C_Reset");
  EXPECT_EQ(log(), Lines{"Send_PrgModeToEcr error using regwire"});
}

TEST_F(ResetTest, WhoseItemsFailIsToldOnce) {
  link().answers[1] = {1, 4098};
  ask(Answer::yes);
  expect_box(BoxKind::critical, "Programmation sending Failed");
  click("C_Reset");
  EXPECT_EQ(bytes("Dati/PRG_PLU.BIN"), default_items) << "what was not sent is not written over";
}

TEST_F(ResetTest, WithoutALinkEndsTheProgramBehindTheCopy) {
  link().answers[22] = {1, 1025};
  set_message(Key::FRM_ALL_WRONG_ECR, "Wrong register");
  expect_program_ends([this] {
    ask(Answer::yes);
    expect_box(BoxKind::plain, "Wrong register");
    click("C_Reset");
  });
  EXPECT_EQ(image_file(), default_image);
  EXPECT_EQ(bytes("Dati/PRG_PLU.BIN"), default_items);
}

TEST_F(ResetTest, WithoutDefaultsIsToldAndSendsWhatIsThere) {
  remove("Dati/ECRZ320/ECRZ320_PRG_MODE.BIN");
  ask(Answer::yes);
  expect_box(BoxKind::plain, "Error During copy PRG_MODE_FILE");
  click("C_Reset");
  EXPECT_EQ(log(), Lines{"copia_def_file: 53 File not found"});
  EXPECT_EQ(link().calls.size(), 4U);
}

TEST_F(ResetTest, WithoutDefaultItemsIsTold) {
  remove("Dati/ECRZ320/ECRZ320_PRG_PLU.BIN");
  ask(Answer::yes);
  expect_box(BoxKind::plain, "Error During copy PRG_MODE_PLUE");
  click("C_Reset");
  EXPECT_EQ(image_file(), default_image);
}

TEST_F(ResetTest, OfAVeryOldFirmwareSendsTheFilesThatAreThere) {
  Global::FwLevel = FirmwareLevel::very_old;
  const std::string before = image_file();
  ask(Answer::yes);
  click("C_Reset");
  EXPECT_EQ(link().received[0], before);
  EXPECT_EQ(log(), Lines{"Selected new ecr with very old fw release"});
}

TEST_F(ResetTest, ThatTimesOutEndsTheToolThatIsLeftHanging) {
  FakeSystem system;
  system.running = {{7, "regwire.exe"}};
  link().answers[0] = {1, 9999};
  ask(Answer::yes);
  expect_box(BoxKind::critical, "Programmation sending Failed");
  click("C_Reset");
  EXPECT_EQ(system.ended, std::vector<std::uint64_t>{7});
}

}  // namespace
}  // namespace ecr::test

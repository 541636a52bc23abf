#include <gtest/gtest.h>

#include "editors/program/editor_test.h"

namespace ecr::test {
namespace {

constexpr std::size_t prg_z_at = 30;
constexpr std::size_t x_at = 32;
constexpr std::size_t manager_at = 34;
constexpr std::size_t training_at = 36;

constexpr const char* filtered[] = {"E_Prg_ZModePasswordSetting", "E_XModePasswordSetting",
                                    "E_TrainingModePasswordSetting"};
constexpr const char* manager = "E_ManagerModePassword";

class FrmPermissionProgramTest : public EditorTest {
 protected:
  FrmPermissionProgramTest() : EditorTest{"FrmPermissionProgram"} {
    number_to_bcds(PrgMode.Perm0, "1234");
    number_to_bcds(PrgMode.Perm1, "42");
    number_to_bcds(PrgMode.Perm2, "7");
    number_to_bcds(PrgMode.Perm3, "0");
    lay_down(PrgMode);
  }
};

TEST_F(FrmPermissionProgramTest, EverythingHasItsBuiltInCaption) {
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Set Passwords"));
  expect_captions({{"L_Titolo", "SET PASSWORDS"},
                   {"L_Prg_ZModePasswordSetting", "PRG/Z Mode Password Setting"},
                   {"L_XModePasswordSetting", "X Mode Password Setting"},
                   {"L_TrainingModePasswordSetting", "Training Mode Password Setting"},
                   {"L_ManagerModePassword", "Manager Mode Password Setting"},
                   {"L_MaxValue(1)", "(Max Value 9999)"},
                   {"L_MaxValue(2)", "(Max Value 9999)"},
                   {"L_MaxValue(3)", "(Max Value 9999)"},
                   {"L_MaxValue(4)", "(Max Value 9999)"}});
}

TEST_F(FrmPermissionProgramTest, CaptionsComeFromTheCatalogue) {
  name_every_key();
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("FRM_PERMISSION_PROGRAM_TITLE"));
  expect_captions({{"L_Titolo", "FRM_PERMISSION_PROGRAM_L_TITOLO"},
                   {"L_Prg_ZModePasswordSetting", "FRM_PERMISSION_PROGRAM_L_PRG_Z_MODE_PASSWORD_SETTING"},
                   {"L_XModePasswordSetting", "FRM_PERMISSION_PROGRAM_L_X_MODE_PASSWORD_SETTING"},
                   {"L_TrainingModePasswordSetting", "FRM_PERMISSION_PROGRAM_L_TRAINING_MODE_PASSWORD_SETTING"},
                   {"L_ManagerModePassword", "FRM_PERMISSION_PROGRAM_L_MANAGER_MODE_PASSWORD"},
                   {"L_MaxValue(1)", "MSG_MAX_9999"},
                   {"L_MaxValue(4)", "MSG_MAX_9999"}});
}

TEST_F(FrmPermissionProgramTest, EachPasswordIsShownWithFourDigits) {
  open_editor();
  EXPECT_EQ(shown(filtered[0]), QStringLiteral("1234"));
  EXPECT_EQ(shown(filtered[1]), QStringLiteral("0042"));
  EXPECT_EQ(shown(filtered[2]), QStringLiteral("0000"));
  EXPECT_EQ(shown(manager), QStringLiteral("0007"));
  EXPECT_TRUE(control("C_Annulla").hasFocus());
}

TEST_F(FrmPermissionProgramTest, AZeroEmptiesItsFieldOnEntryAndComesBackOnLeaving) {
  open_editor();
  click(filtered[2]);
  EXPECT_EQ(shown(filtered[2]), QString{});
  press(Qt::Key_Tab);
  EXPECT_EQ(shown(filtered[2]), QStringLiteral("0000"));
}

TEST_F(FrmPermissionProgramTest, AnotherNumberKeepsItsZerosOnEntry) {
  open_editor();
  click(filtered[1]);
  EXPECT_EQ(shown(filtered[1]), QStringLiteral("0042"));
}

TEST_F(FrmPermissionProgramTest, WhatIsTypedGetsItsZerosOnLeaving) {
  open_editor();
  for (const char* name : filtered) {
    enter(QString::fromLatin1(name), QStringLiteral("4x2"));
    press(Qt::Key_Tab);
    EXPECT_EQ(shown(QString::fromLatin1(name)), QStringLiteral("0042")) << name;
  }
  save();
  EXPECT_EQ(stored(prg_z_at, 4), bytes_of({0x42, 0, 0x42, 0})) << "the zeros are in the display only";
  EXPECT_EQ(stored(training_at, 2), bytes_of({0x42, 0}));
}

TEST_F(FrmPermissionProgramTest, AFifthDigitIsRefusedAndCut) {
  open_editor();
  for (const char* name : filtered) {
    enter(QString::fromLatin1(name), QStringLiteral("9999"));
    expect_refusals(1);
    type(QStringLiteral("1"));
    EXPECT_EQ(shown(QString::fromLatin1(name)), QStringLiteral("9999")) << name;
  }
}

TEST_F(FrmPermissionProgramTest, TheManagersPasswordTakesAnythingAndStaysAsTyped) {
  open_editor();
  click(manager);
  EXPECT_EQ(shown(manager), QStringLiteral("0007"));
  enter(manager, QStringLiteral("1a"));
  press(Qt::Key_Tab);
  EXPECT_EQ(shown(manager), QStringLiteral("1a"));
  enter(manager, QStringLiteral("0"));
  press(Qt::Key_Tab);
  click(manager);
  EXPECT_EQ(shown(manager), QStringLiteral("0")) << "it is not emptied";
  EXPECT_TRUE(watched.boxes.empty());
}

TEST_F(FrmPermissionProgramTest, FiveDigitsOfTheManagerLoseTheirFirstAndTheSaveGoesOn) {
  open_editor();
  enter(manager, QStringLiteral("12345"));
  save();
  EXPECT_TRUE(watched.boxes.empty());
  EXPECT_EQ(stored(manager_at, 2), bytes_of({0x45, 0x23}));
  EXPECT_EQ(log(), Lines{"number_to_bcds : Index out of range"});
}

TEST_F(FrmPermissionProgramTest, AWordOrNothingAsTheManagersPasswordEndsTheSaveBehindTheOtherThree) {
  for (const char* text : {"abc", ""}) {
    open_editor();
    const std::string before = image_file();
    enter(filtered[0], QStringLiteral("5"));
    enter(filtered[1], QStringLiteral("6"));
    enter(filtered[2], QStringLiteral("8"));
    empty(manager);
    type(QString::fromLatin1(text));
    save();
    EXPECT_EQ(log().back(), "FrmPermissionProgram Salva: Type mismatch");
    EXPECT_EQ(image_file(), before) << "the file is not written";
    EXPECT_EQ(PrgMode.Perm0.bytes[0], 5);
    EXPECT_EQ(PrgMode.Perm1.bytes[0], 6);
    EXPECT_EQ(PrgMode.Perm3.bytes[0], 8);
    EXPECT_EQ(PrgMode.Perm2.bytes[0], 7) << "the manager's is as it was";
    EXPECT_EQ(top(), QStringLiteral("FrmPermissionProgram"));
    lay_down(PrgMode);
  }
}

TEST_F(FrmPermissionProgramTest, ASaveWritesTheFourPasswordsAndNoOtherByte) {
  open_editor();
  const std::string before = image_file();
  enter(filtered[0], QStringLiteral("1111"));
  enter(filtered[1], QStringLiteral("2222"));
  enter(filtered[2], QStringLiteral("3333"));
  enter(manager, QStringLiteral("4444"));
  save();
  EXPECT_EQ(stored(prg_z_at, 8), bytes_of({0x11, 0x11, 0x22, 0x22, 0x44, 0x44, 0x33, 0x33}));
  expect_untouched_outside(before, prg_z_at, 8);
  EXPECT_EQ(stored(x_at, 2), bytes_of({0x22, 0x22}));
  EXPECT_EQ(file_bytes(PrgMode), image_file());
}

TEST_F(FrmPermissionProgramTest, BehindASendTheFirstPasswordHasTheFocus) {
  link().be_a_register();
  open_editor();
  const std::string before = image_file();
  enter(filtered[1], QStringLiteral("9"));
  click("C_Invia_Ecr");
  EXPECT_EQ(link().received[0], before);
  EXPECT_TRUE(control(filtered[0]).hasFocus());
}

TEST_F(FrmPermissionProgramTest, ABrokenPasswordIsShownAsFarAsItCanBeRead) {
  PrgMode.Perm1.bytes = {0x42, 0xA0};
  PrgMode.Perm3.bytes = {0xFF, 0x00};
  open_editor();
  EXPECT_EQ(shown(filtered[1]), QStringLiteral("0042"));
  EXPECT_EQ(shown(filtered[2]), QString{});
  EXPECT_EQ(shown(manager), QStringLiteral("0007")) << "the others are shown all the same";
}

TEST_F(FrmPermissionProgramTest, AnyPasswordsSurviveLoadAndSave) {
  Random random{16};
  for (int round = 0; round < 20; ++round) {
    PrgModeImage image = random_image(Global::model_z320, random);
    for (auto* one : {&image.Perm0, &image.Perm1, &image.Perm2, &image.Perm3}) number_to_bcds(*one, random.digits(4));
    lay_down(image);
    open_editor();
    for (const char* name : filtered) click(QString::fromLatin1(name));
    save();
    EXPECT_EQ(image_file(), file_bytes(image));
    stage.top()->unload();
    let_screens_settle();
  }
  EXPECT_TRUE(watched.boxes.empty());
}

}  // namespace
}  // namespace ecr::test

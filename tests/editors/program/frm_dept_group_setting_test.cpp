#include <gtest/gtest.h>

#include "editors/program/editor_test.h"

namespace ecr::test::dept_group_setting_cases {
namespace {

constexpr std::size_t first_at = 3137;
constexpr std::size_t width = 12;

class FrmDeptGroupSettingTest : public EditorTest {
 protected:
  FrmDeptGroupSettingTest() : EditorTest{"FrmDeptGroupSetting"} {
    for (std::size_t i = 0; i < 10; ++i) PrgMode.DeptGroupName[i].set("GROUP " + std::to_string(i + 1));
    lay_down(PrgMode);
  }
  [[nodiscard]] std::string name_in_file(int group) const {
    return stored(first_at + width * static_cast<std::size_t>(group - 1), width);
  }
};

TEST_F(FrmDeptGroupSettingTest, EverythingHasItsBuiltInCaption) {
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Program Dept. Groups"));
  expect_captions({{"L_Titolo", "PROGRAM DEPT. GROUPS"},
                   {"L_DeptGroupNumber", "Dept Group Number"},
                   {"L_Name", "Name"},
                   {"C_Salva", "Save Setup"}});
}

TEST_F(FrmDeptGroupSettingTest, CaptionsComeFromTheCatalogue) {
  name_every_key();
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("FRM_DEPT_GROUP_SETTING_TITLE"));
  expect_captions({{"L_Titolo", "FRM_DEPT_GROUP_SETTING_L_TITOLO"},
                   {"L_DeptGroupNumber", "FRM_DEPT_GROUP_SETTING_L_DEPT_GROUP_NUMBER"},
                   {"L_Name", "FRM_DEPT_GROUP_SETTING_L_NAME"}});
}

TEST_F(FrmDeptGroupSettingTest, OpensWithGroupOne) {
  open_editor();
  EXPECT_EQ(list("Cmb_DeptGroupNumber").text(), QStringLiteral("1"));
  EXPECT_EQ(entries_of(list("Cmb_DeptGroupNumber")), QStringList({"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
  EXPECT_EQ(shown("E_Name"), QStringLiteral("GROUP 1     "));
  EXPECT_EQ(field("E_Name").maxLength(), 12);
}

TEST_F(FrmDeptGroupSettingTest, EachGroupCanBeChosenAndSaved) {
  open_editor();
  for (int group = 1; group <= 10; ++group) {
    pick(list("Cmb_DeptGroupNumber"), group - 1);
    EXPECT_EQ(shown("E_Name").trimmed(), QStringLiteral("GROUP %1").arg(group));
    enter("E_Name", QStringLiteral("NEW %1").arg(group));
    const std::string before = image_file();
    save();
    expect_untouched_outside(before, first_at + width * static_cast<std::size_t>(group - 1), width);
    std::string expected = "NEW " + std::to_string(group);
    expected.resize(width, ' ');
    EXPECT_EQ(name_in_file(group), expected);
    EXPECT_EQ(list("Cmb_DeptGroupNumber").text(), QString::number(group)) << "the number stays";
  }
  EXPECT_EQ(file_bytes(PrgMode), image_file());
}

TEST_F(FrmDeptGroupSettingTest, ANameThatWasNotSavedIsLostWhenAnotherGroupIsChosen) {
  open_editor();
  enter("E_Name", QStringLiteral("TYPED"));
  pick(list("Cmb_DeptGroupNumber"), 1);
  EXPECT_EQ(shown("E_Name"), QStringLiteral("GROUP 2     "));
  pick(list("Cmb_DeptGroupNumber"), 0);
  EXPECT_EQ(shown("E_Name"), QStringLiteral("GROUP 1     "));
}

TEST_F(FrmDeptGroupSettingTest, PickingTheGroupThatIsShownOverwritesTheFieldToo) {
  open_editor();
  enter("E_Name", QStringLiteral("TYPED"));
  pick(list("Cmb_DeptGroupNumber"), 0);
  EXPECT_EQ(shown("E_Name"), QStringLiteral("GROUP 1     "));
}

TEST_F(FrmDeptGroupSettingTest, ATypedDigitAndTheArrowsFindAGroup) {
  open_editor();
  tab_to(control("Cmb_DeptGroupNumber"));
  press(Qt::Key_Down);
  EXPECT_EQ(shown("E_Name").trimmed(), QStringLiteral("GROUP 2"));
  type(QStringLiteral("7"));
  EXPECT_EQ(shown("E_Name").trimmed(), QStringLiteral("GROUP 7"));
}

TEST_F(FrmDeptGroupSettingTest, NamesGoThroughTheRegistersCharacters) {
  open_editor();
  enter("E_Name", QStringLiteral("CRÈME €"));
  save();
  EXPECT_EQ(name_in_file(1), "CR\xDBME \xF8     ");
  open_again();
  EXPECT_EQ(shown("E_Name"), QStringLiteral("CRÈME €     "));
}

TEST_F(FrmDeptGroupSettingTest, EnteringTheNameCutsItsBlanksAndSelectsAll) {
  open_editor();
  click("E_Name");
  EXPECT_EQ(field("E_Name").selectedText(), QStringLiteral("GROUP 1"));
}

TEST_F(FrmDeptGroupSettingTest, ALetterThatTheRegisterCannotFormEndsTheProgramAndNothingIsWritten) {
  open_editor();
  const std::string before = image_file();
  expect_program_ends([this] {
    enter("E_Name", QStringLiteral("\u00C3X"));
    save();
  });
  EXPECT_EQ(image_file(), before);
}

TEST_F(FrmDeptGroupSettingTest, SendSendsWhatWasSavedLast) {
  link().be_a_register();
  open_editor();
  const std::string before = image_file();
  enter("E_Name", QStringLiteral("TYPED"));
  click("C_Invia_Ecr");
  EXPECT_EQ(link().received[0], before);
}

}  // namespace
}  // namespace ecr::test::dept_group_setting_cases

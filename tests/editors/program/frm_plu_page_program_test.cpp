#include <gtest/gtest.h>

#include "core/catalogue.h"
#include "core/codecs.h"
#include "core/global.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

class FrmPluPageProgramTest : public ScreenTest {
 protected:
  FrmPluPageProgramTest() { start_session(Global::model_z320); }

  void open_editor() { open("FrmPluPageProgram"); }
  void enter(const char* name, const QString& text) const {
    click(name);
    press(Qt::Key_A, Qt::ControlModifier);
    type(text);
  }
  [[nodiscard]] QString shown(const char* name) const { return field(name).text(); }
  [[nodiscard]] std::string pages() const { return image_file().substr(70, 24); }
};

TEST_F(FrmPluPageProgramTest, EverythingHasItsBuiltInCaption) {
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Plu Page Program"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("PLU PAGE PROGRAM"));
  EXPECT_EQ(caption("L_PluPage1"), QStringLiteral("PLU Page 1:"));
  EXPECT_EQ(caption("L_PluPage2"), QStringLiteral("PLU Page 2:"));
  EXPECT_EQ(caption("L_PluPage3"), QStringLiteral("PLU Page 3"));
  for (const char* index : {"(0)", "(1)", "(2)"}) {
    EXPECT_EQ(caption(QString{"L_Desc"} + index), QStringLiteral("PLU Start #"));
    EXPECT_EQ(caption(QString{"L_PageMax"} + index), QStringLiteral("(Max Value 9999999999999)"));
  }
}

TEST_F(FrmPluPageProgramTest, CaptionsComeFromTheCatalogue) {
  for (std::size_t i = 0; i < key_count; ++i) {
    set_message(static_cast<Key>(i), std::string{name_of(static_cast<Key>(i))});
  }
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("FRM_PLU_PAGE_PROGRAM_TITLE"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("FRM_PLU_PAGE_PROGRAM_L_TITOLO"));
  EXPECT_EQ(caption("L_PluPage2"), QStringLiteral("FRM_PLU_PAGE_PROGRAM_L_PLU_PAGE2"));
  EXPECT_EQ(caption("L_Desc(2)"), QStringLiteral("FRM_PLU_PAGE_PROGRAM_L_DESC"));
  EXPECT_EQ(caption("L_PageMax(0)"), QStringLiteral("MSG_MAX_9999999999999"));
}

TEST_F(FrmPluPageProgramTest, EachPageIsShownAndSavedAtItsPlace) {
  number_to_bcds(PrgMode.PluPage[0], "1");
  number_to_bcds(PrgMode.PluPage[1], "9999999999999");
  open_editor();
  EXPECT_EQ(shown("E_PluPage(0)"), QStringLiteral("1"));
  EXPECT_EQ(shown("E_PluPage(1)"), QStringLiteral("9999999999999"));
  EXPECT_EQ(shown("E_PluPage(2)"), QStringLiteral("0"));
  enter("E_PluPage(2)", QStringLiteral("1234567"));
  click("C_Salva");
  EXPECT_EQ(pages(), std::string("\x01\0\0\0\0\0\0\0"
                                 "\x99\x99\x99\x99\x99\x99\x09\0"
                                 "\x67\x45\x23\x01\0\0\0\0",
                                 24));
  EXPECT_EQ(top(), QStringLiteral("FrmPluPageProgram"));
}

TEST_F(FrmPluPageProgramTest, ASaveTouchesNothingElse) {
  const std::string before = image_file();
  open_editor();
  enter("E_PluPage(1)", QStringLiteral("77"));
  click("C_Salva");
  std::string expected = before;
  expected.replace(78, 8, std::string("\x77\0\0\0\0\0\0\0", 8));
  EXPECT_EQ(image_file(), expected);
}

TEST_F(FrmPluPageProgramTest, ACodeMayBeTheMaximumAndNotMore) {
  open_editor();
  enter("E_PluPage(0)", QStringLiteral("9999999999999"));
  EXPECT_TRUE(watched.boxes.empty());
  expect_box(BoxKind::critical, "Value insert to high!");
  type(QStringLiteral("0"));
  EXPECT_EQ(shown("E_PluPage(0)"), QStringLiteral("9999999999999"));
}

TEST_F(FrmPluPageProgramTest, AZeroIsGoneWhileTheFieldIsEntered) {
  number_to_bcds(PrgMode.PluPage[1], "5");
  open_editor();
  click("E_PluPage(0)");
  EXPECT_EQ(shown("E_PluPage(0)"), QString{});
  type(QStringLiteral("1a2.-"));
  EXPECT_EQ(shown("E_PluPage(0)"), QStringLiteral("12"));
  click("E_PluPage(1)");
  EXPECT_EQ(shown("E_PluPage(1)"), QStringLiteral("5"));
  press(Qt::Key_End);
  press(Qt::Key_Backspace);
  press(Qt::Key_Tab);
  EXPECT_EQ(shown("E_PluPage(1)"), QStringLiteral("0"));
  click("C_Salva");
  EXPECT_EQ(pages().substr(8, 8), std::string(8, '\0'));
}

TEST_F(FrmPluPageProgramTest, SendSendsImageAndItems) {
  link().be_a_register();
  open_editor();
  enter("E_PluPage(0)", QStringLiteral("5"));
  const std::string before = image_file();
  click("C_Invia_Ecr");
  EXPECT_EQ(link().received[0], before) << "what is typed is not sent";
  EXPECT_EQ(link().received.count(1), 1U);
}

}  // namespace
}  // namespace ecr::test

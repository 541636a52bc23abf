// The tab of the short captions.

#include <QAbstractButton>
#include <QTabWidget>

#include "captions/caption_line.h"
#include "captions/paper.h"
#include "core/global.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

constexpr std::size_t caption_at = 4235;

class ShortCaptionTest : public ScreenTest {
 protected:
  ShortCaptionTest() {
    start_session(Global::model_z320);
    for (std::size_t i = 0; i < PrgMode.Caption.size(); ++i) PrgMode.Caption[i].set("CAP " + std::to_string(i + 1));
    lay_down(PrgMode);
    write("Setup/DescCaption.ini", "Total: what is paid\r\nBeer & wine\r\n");
    open("FrmCaptionSetting");
    control<QTabWidget>("Tab_Print").setCurrentIndex(1);
    let_screens_settle();
  }

  [[nodiscard]] RecordGrid& grid() const { return control<RecordGrid>("FG_Caption"); }
  [[nodiscard]] QString cell(int row, int column) const { return grid().cells().cell(row, column); }
  [[nodiscard]] CaptionLine& value() const { return control<CaptionLine>("E_Valore"); }
  /// A press on the box itself.
  void tick(const char* name) const { click_at(control(name), {8, control(name).height() / 2}); }
  void expect_editing(bool on) const {
    for (const char* name :
         {"E_Valore", "L_Desc", "C_Cancel", "C_Apply", "L_Preview2", "ChK_Double2", "L_Other(0)", "L_Other(22)"}) {
      EXPECT_EQ(control(name).isEnabled(), on) << name;
    }
  }
  [[nodiscard]] std::string saved(std::size_t caption) const {
    return image_file().substr(caption_at + (caption - 1) * 10, 10);
  }
};

TEST_F(ShortCaptionTest, TheGridHasATitleRowAnd78Captions) {
  EXPECT_EQ(grid().model()->rowCount(), 78);
  EXPECT_EQ(grid().model()->columnCount(), 2);
  EXPECT_EQ(grid().model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Definition"));
  EXPECT_EQ(grid().model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Custom Definition"));
  EXPECT_EQ(cell(1, 0), QStringLiteral("Total: what is paid"));
  EXPECT_EQ(cell(2, 0), QStringLiteral("Beer & wine"));
  EXPECT_EQ(cell(3, 0), QString{});
  EXPECT_EQ(cell(1, 1), QStringLiteral("CAP 1     "));
  EXPECT_EQ(cell(78, 1), QStringLiteral("CAP 78    "));
}

TEST_F(ShortCaptionTest, NothingIsEditedAtFirst) {
  expect_editing(false);
  EXPECT_EQ(value().text(), QString{});
  EXPECT_EQ(caption("L_Desc"), QStringLiteral("Description"));
}

TEST_F(ShortCaptionTest, AClickOnARowBeginsItsEditing) {
  click_row(grid(), 1);
  expect_editing(true);
  EXPECT_EQ(value().text(), QStringLiteral("CAP 1     "));
  EXPECT_EQ(caption("L_Desc"), QStringLiteral("Total: what is paid"));
  EXPECT_EQ(value().accessibleName(), QStringLiteral("Total: what is paid"));
  click_row(grid(), 78);
  EXPECT_EQ(value().text(), QStringLiteral("CAP 78    "));
  EXPECT_EQ(caption("L_Desc"), QString{});
}

TEST_F(ShortCaptionTest, AnAmpersandOfADefinitionMarksNoLetter) {
  click_row(grid(), 2);
  EXPECT_EQ(caption("L_Desc"), QStringLiteral("Beer && wine"));
  EXPECT_EQ(value().accessibleName(), QStringLiteral("Beer & wine"));
}

TEST_F(ShortCaptionTest, ADefinitionOfAnyLengthLeavesTheRestInItsPlace) {
  stage.top()->unload();
  write("Setup/DescCaption.ini", std::string(20'000, 'x'));
  open("FrmCaptionSetting");
  control<QTabWidget>("Tab_Print").setCurrentIndex(1);
  let_screens_settle();
  const QSize before = stage.size();
  click_row(grid(), 1);
  let_screens_settle();
  EXPECT_EQ(stage.size(), before);
  EXPECT_GT(grid().width(), 300);
  for (const char* name : {"E_Valore", "C_Apply", "C_Cancel"}) {
    EXPECT_FALSE(control(name).visibleRegion().isEmpty()) << name;
  }
}

TEST_F(ShortCaptionTest, ApplyPutsTheTextIntoTheGridAndEndsTheEditing) {
  click_row(grid(), 2);
  value().setFocus(Qt::OtherFocusReason);
  paste_over(QStringLiteral("SUM"));
  click("C_Apply");
  EXPECT_EQ(cell(2, 1), QStringLiteral("SUM       "));
  expect_editing(false);
  EXPECT_TRUE(grid().hasFocus()) << "the keyboard goes on from there";
}

TEST_F(ShortCaptionTest, CancelLeavesTheGridAsItWas) {
  click_row(grid(), 2);
  value().setFocus(Qt::OtherFocusReason);
  paste_over(QStringLiteral("SUM"));
  click("C_Cancel");
  EXPECT_EQ(cell(2, 1), QStringLiteral("CAP 2     "));
  expect_editing(false);
  click_row(grid(), 2);
  expect_editing(true);
  EXPECT_EQ(value().text(), QStringLiteral("CAP 2     ")) << "the same row again, with what the grid holds";
}

TEST_F(ShortCaptionTest, TheFieldIsTrimmedOnEnteringAndFilledToTenOnLeaving) {
  click_row(grid(), 1);
  value().setFocus(Qt::OtherFocusReason);
  EXPECT_EQ(value().text(), QStringLiteral("CAP 1"));
  EXPECT_EQ(value().cursorPosition(), 5);
  type(QStringLiteral("1234567890"));
  EXPECT_EQ(value().text(), QStringLiteral("CAP 11234567890"));
  control("C_Salva").setFocus(Qt::OtherFocusReason);
  EXPECT_EQ(value().text(), QStringLiteral("CAP 112345"));
}

TEST_F(ShortCaptionTest, DoubleWidthHasASwitchOfItsOwn) {
  click_row(grid(), 1);
  tick("ChK_Double2");
  value().setFocus(Qt::OtherFocusReason);
  type(QStringLiteral("AB"));
  EXPECT_EQ(value().text(), QStringLiteral("CAP 1·A·B"));
  EXPECT_EQ(value().cursorPosition(), 9);
  press(Qt::Key_Backspace);
  EXPECT_EQ(value().text(), QStringLiteral("CAP 1·A"));
  EXPECT_EQ(value().cursorPosition(), 7);
  EXPECT_FALSE(control<QAbstractButton>("Chk_Double").isChecked());
}

TEST_F(ShortCaptionTest, TheOtherSwitchDoesNothingHere) {
  control<QAbstractButton>("Chk_Double").setChecked(true);
  click_row(grid(), 1);
  value().setFocus(Qt::OtherFocusReason);
  type(QStringLiteral("A"));
  EXPECT_EQ(value().text(), QStringLiteral("CAP 1A"));
}

TEST_F(ShortCaptionTest, ThePreviewFollowsTheTyping) {
  const auto& row = control<PreviewRow>("E_ValorePrev");
  EXPECT_EQ(row.text(), QStringLiteral("          "));
  click_row(grid(), 1);
  EXPECT_EQ(row.text(), QStringLiteral("CAP 1     "));
  tick("ChK_Double2");
  value().setFocus(Qt::OtherFocusReason);
  type(QStringLiteral("AB"));
  EXPECT_EQ(row.text(), QStringLiteral("CAP 1AABB "));
  type(QStringLiteral("C"));
  EXPECT_EQ(row.text(), QStringLiteral("CAP 1AABB ")) << "half a character does not print";
}

TEST_F(ShortCaptionTest, EnterGoesFromTheRowToTheFieldAndFromThereToApply) {
  click_row(grid(), 5);
  press(Qt::Key_Return);
  ASSERT_TRUE(value().hasFocus());
  type(QStringLiteral("X"));
  press(Qt::Key_Return);
  ASSERT_TRUE(control("C_Apply").hasFocus());
  press(Qt::Key_Return);
  EXPECT_EQ(cell(5, 1), QStringLiteral("CAP 5X    "));
  press(Qt::Key_Down);
  EXPECT_EQ(value().text(), QStringLiteral("CAP 6     "));
}

TEST_F(ShortCaptionTest, OnlyWhatWasAppliedIsSaved) {
  click_row(grid(), 1);
  value().setFocus(Qt::OtherFocusReason);
  paste_over(QStringLiteral("SUM"));
  click("C_Apply");
  click_row(grid(), 78);
  value().setFocus(Qt::OtherFocusReason);
  paste_over(QStringLiteral("FINIS"));
  click("C_Salva");
  EXPECT_EQ(saved(1), "SUM       ");
  EXPECT_EQ(saved(2), "CAP 2     ");
  EXPECT_EQ(saved(78), "CAP 78    ");
}

TEST_F(ShortCaptionTest, AMarkIsSavedAsTheRegistersOwn) {
  click_row(grid(), 1);
  tick("ChK_Double2");
  value().setFocus(Qt::OtherFocusReason);
  press(Qt::Key_Backspace, Qt::NoModifier, 10);
  type(QStringLiteral("ÖL"));
  click("C_Apply");
  click("C_Salva");
  EXPECT_EQ(saved(1), "\xFF\xE4\xFFL      ");
}

TEST_F(ShortCaptionTest, TheReceiptOnThePaperShowsTheTotalAsItIsApplied) {
  const auto& total = control<PreviewRow>("T_Sale4");
  EXPECT_TRUE(total.text().startsWith(QStringLiteral("CAP 1   ")));
  click_row(grid(), 1);
  value().setFocus(Qt::OtherFocusReason);
  paste_over(QStringLiteral("·SUM"));
  click("C_Apply");
  EXPECT_TRUE(total.text().startsWith(QStringLiteral("SSUM   "))) << total.text().toStdString();
  EXPECT_TRUE(total.text().endsWith(QStringLiteral(" 7.30")));
}

}  // namespace
}  // namespace ecr::test

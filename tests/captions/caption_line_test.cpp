#include "captions/caption_line.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QTabWidget>
#include <QTest>
#include <QWindow>

#include "captions/line_groups.h"
#include "core/fault.h"
#include "core/global.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

/// A line of the screen itself, beside others to go to.
class CaptionLineTest : public ScreenTest {
 protected:
  CaptionLineTest() {
    start_session(Global::model_z320);
    write("Setup/DescCaption.ini", "");
    open("FrmCaptionSetting");
    line().show_text(QStringLiteral("                        "));
  }

  [[nodiscard]] CaptionLine& line(const QString& name = QStringLiteral("E_ReceiptHeader(0)")) const {
    return control<CaptionLine>(name);
  }
  [[nodiscard]] QAbstractButton& double_width() const { return control<QAbstractButton>("Chk_Double"); }
  /// A press on the box itself.
  void tick(const char* name) const { click_at(control(name), {8, control(name).height() / 2}); }
  /// Enters the line, with this text in it.
  CaptionLine& entered(const QString& text) {
    line().show_text(text);
    line().setFocus(Qt::OtherFocusReason);
    return line();
  }
  void leave() const { control("E_ReceiptHeader(1)").setFocus(Qt::OtherFocusReason); }
};

TEST_F(CaptionLineTest, EnteringTrimsTheEndAndPutsTheCursorThere) {
  entered(QStringLiteral("  Corner  Oven          "));
  EXPECT_EQ(line().text(), QStringLiteral("  Corner  Oven"));
  EXPECT_EQ(line().cursorPosition(), 14);
  EXPECT_FALSE(line().hasSelectedText());
}

TEST_F(CaptionLineTest, EnteringByTabSelectsNothing) {
  line(QStringLiteral("E_ReceiptHeader(1)")).show_text(QStringLiteral("Street                  "));
  entered(QStringLiteral("Oven"));
  press(Qt::Key_Tab);
  const CaptionLine& next = line(QStringLiteral("E_ReceiptHeader(1)"));
  ASSERT_TRUE(next.hasFocus());
  EXPECT_FALSE(next.hasSelectedText());
  EXPECT_EQ(next.cursorPosition(), 6);
}

TEST_F(CaptionLineTest, ThePressThatEntersLeavesTheCursorAtTheEndAndTheNextOnePlacesIt) {
  line().show_text(QStringLiteral("Corner Oven             "));
  click_at(line(), {12, line().height() / 2});
  EXPECT_EQ(line().text(), QStringLiteral("Corner Oven"));
  EXPECT_EQ(line().cursorPosition(), 11);
  EXPECT_FALSE(line().hasSelectedText());
  click_at(line(), {12, line().height() / 2});
  EXPECT_LT(line().cursorPosition(), 3);
}

TEST_F(CaptionLineTest, AHandThatIsNotQuiteStillSelectsNothingAsItEnters) {
  line().show_text(QStringLiteral("Corner Oven             "));
  const QPoint place = line().mapTo(&stage, QPoint{30, line().height() / 2});
  QWindow* window = stage.windowHandle();
  QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, place);
  QTest::mouseMove(window, place + QPoint{3, 0});
  QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, place + QPoint{3, 0});
  let_screens_settle();
  ASSERT_TRUE(line().hasFocus());
  EXPECT_FALSE(line().hasSelectedText());
  EXPECT_EQ(line().cursorPosition(), 11);
}

TEST_F(CaptionLineTest, LeavingFillsTheLineTo24) {
  entered(QStringLiteral("Oven"));
  leave();
  EXPECT_EQ(line().text(), QStringLiteral("Oven                    "));
  EXPECT_EQ(line().text().size(), 24);
}

TEST_F(CaptionLineTest, ALineTakesMoreThan24CharactersAndLosesThemWhenItIsLeft) {
  entered({});
  type(QStringLiteral("1234567890123456789012345678"));
  EXPECT_EQ(line().text().size(), 28);
  leave();
  EXPECT_EQ(line().text(), QStringLiteral("123456789012345678901234"));
}

TEST_F(CaptionLineTest, WithoutTheSwitchNoMarkIsPut) {
  entered({});
  type(QStringLiteral("Oven"));
  EXPECT_EQ(line().text(), QStringLiteral("Oven"));
  EXPECT_EQ(line().cursorPosition(), 4);
}

TEST_F(CaptionLineTest, StrokeByStrokeAMarkStandsInFrontOfEachCharacter) {
  tick("Chk_Double");
  entered({});
  struct Stroke {
    const char16_t* typed;
    const char16_t* text;
    int cursor;
  };
  const Stroke strokes[] = {{u"A", u"·A", 2}, {u"b", u"·A·b", 4}, {u" ", u"·A·b· ", 6}, {u"é", u"·A·b· ·é", 8}};
  for (const Stroke& stroke : strokes) {
    type(QString::fromUtf16(stroke.typed));
    EXPECT_EQ(line().text(), QString::fromUtf16(stroke.text));
    EXPECT_EQ(line().cursorPosition(), stroke.cursor);
  }
}

TEST_F(CaptionLineTest, AMarkComesInTheMiddleOfALineToo) {
  tick("Chk_Double");
  entered(QStringLiteral("ABCD"));
  press(Qt::Key_Left, Qt::NoModifier, 2);
  type(QStringLiteral("x"));
  EXPECT_EQ(line().text(), QStringLiteral("AB·xCD"));
  EXPECT_EQ(line().cursorPosition(), 4);
  tick("Chk_Double");
  line().setFocus(Qt::OtherFocusReason);
  press(Qt::Key_Home);
  type(QStringLiteral("y"));
  EXPECT_EQ(line().text(), QStringLiteral("yAB·xCD")) << "and no more when the switch is off";
}

TEST_F(CaptionLineTest, KeysThatTypeNothingPutNoMark) {
  tick("Chk_Double");
  entered(QStringLiteral("AB"));
  for (const int key : {Qt::Key_Left, Qt::Key_Home, Qt::Key_End, Qt::Key_Return, Qt::Key_Escape, Qt::Key_F5,
                        Qt::Key_Shift, Qt::Key_Right}) {
    press(key);
  }
  press(Qt::Key_C, Qt::ControlModifier);
  press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(line().text(), QStringLiteral("AB"));
}

TEST_F(CaptionLineTest, WhatIsSelectedStaysBehindTheMarkedCharacter) {
  tick("Chk_Double");
  entered(QStringLiteral("ABCD"));
  press(Qt::Key_Left, Qt::ShiftModifier, 2);
  type(QStringLiteral("x"));
  EXPECT_EQ(line().text(), QStringLiteral("AB·xCD"));
  EXPECT_EQ(line().cursorPosition(), 4);
  EXPECT_FALSE(line().hasSelectedText());
}

TEST_F(CaptionLineTest, WithoutTheSwitchATypedCharacterReplacesWhatIsSelected) {
  entered(QStringLiteral("ABCD"));
  press(Qt::Key_Left, Qt::ShiftModifier, 2);
  type(QStringLiteral("x"));
  EXPECT_EQ(line().text(), QStringLiteral("ABx"));
}

TEST_F(CaptionLineTest, BackspaceTakesTheMarkWithItsCharacter) {
  entered(QStringLiteral("A·B·C"));
  press(Qt::Key_Backspace);
  EXPECT_EQ(line().text(), QStringLiteral("A·B"));
  EXPECT_EQ(line().cursorPosition(), 3);
  press(Qt::Key_Backspace);
  EXPECT_EQ(line().text(), QStringLiteral("A"));
  EXPECT_EQ(line().cursorPosition(), 1);
  press(Qt::Key_Backspace, Qt::NoModifier, 3);
  EXPECT_EQ(line().text(), QString{});
}

TEST_F(CaptionLineTest, BackspaceDoesSoWithTheSwitchOnToo) {
  tick("Chk_Double");
  entered({});
  type(QStringLiteral("AB"));
  press(Qt::Key_Backspace);
  EXPECT_EQ(line().text(), QStringLiteral("·A"));
  EXPECT_EQ(line().cursorPosition(), 2);
}

TEST_F(CaptionLineTest, BackspaceInTheMiddleLeavesTheNeighboursAlone) {
  entered(QStringLiteral("·A·B·C"));
  press(Qt::Key_Left, Qt::NoModifier, 2);
  press(Qt::Key_Backspace);
  EXPECT_EQ(line().text(), QStringLiteral("·A·C"));
  EXPECT_EQ(line().cursorPosition(), 2);
}

TEST_F(CaptionLineTest, BackspaceRightBehindAMarkTakesTheMarkAlone) {
  entered(QStringLiteral("·A"));
  press(Qt::Key_Left);
  press(Qt::Key_Backspace);
  EXPECT_EQ(line().text(), QStringLiteral("A"));
}

TEST_F(CaptionLineTest, BackspaceAtTheBeginningDoesNothing) {
  entered(QStringLiteral("·A"));
  press(Qt::Key_Home);
  press(Qt::Key_Backspace);
  EXPECT_EQ(line().text(), QStringLiteral("·A"));
}

TEST_F(CaptionLineTest, BackspaceOverASelectionTakesTheMarkInFrontOfIt) {
  entered(QStringLiteral("X·A·B·C"));
  press(Qt::Key_Left, Qt::ShiftModifier, 3);
  press(Qt::Key_Backspace);
  EXPECT_EQ(line().text(), QStringLiteral("X·A"));
  EXPECT_EQ(line().cursorPosition(), 3);
}

TEST_F(CaptionLineTest, DeletingAWordBackwardsLeavesNoMarkBehind) {
  entered(QStringLiteral("Old ·T·o·w·n"));
  press(Qt::Key_Backspace, Qt::ControlModifier, 8);
  EXPECT_FALSE(line().text().contains(u'·')) << line().text().toStdString();
}

TEST_F(CaptionLineTest, OneStepTakesABackspaceBack) {
  entered(QStringLiteral("A"));
  tick("Chk_Double");
  line().setFocus(Qt::OtherFocusReason);
  type(QStringLiteral("B"));
  press(Qt::Key_Backspace);
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(line().text(), QStringLiteral("A·B"));
}

TEST_F(CaptionLineTest, WhatIsTypedWithOtherKeysHeldIsMarkedToo) {
  tick("Chk_Double");
  entered(QString{});
  type(QStringLiteral("@"), Qt::ControlModifier | Qt::AltModifier);
  type(QStringLiteral("5"), Qt::ControlModifier | Qt::KeypadModifier);
  EXPECT_EQ(line().text(), QStringLiteral("·@·5"));
}

TEST_F(CaptionLineTest, APastedTextIsTakenAsItIs) {
  tick("Chk_Double");
  entered(QStringLiteral("old"));
  paste_over(QStringLiteral("a·b"));
  EXPECT_EQ(line().text(), QStringLiteral("a·b"));
}

TEST_F(CaptionLineTest, WhatIsComposedOfSeveralKeysIsMarkedToo) {
  tick("Chk_Double");
  entered(QStringLiteral("A"));
  QInputMethodEvent composed;
  composed.setCommitString(QStringLiteral("êt"));
  QApplication::sendEvent(&line(), &composed);
  EXPECT_EQ(line().text(), QStringLiteral("A·ê·t"));
  EXPECT_EQ(line().cursorPosition(), 5);
  tick("Chk_Double");
  line().setFocus(Qt::OtherFocusReason);
  QApplication::sendEvent(&line(), &composed);
  EXPECT_EQ(line().text(), QStringLiteral("A·ê·têt"));
}

TEST_F(CaptionLineTest, AFaultInAKeyIsLoggedUnderTheHandlersNameAndTheKeyGoesOn) {
  line().print_double_while([]() -> bool { throw FaultError{FaultCode::overflow}; }, "E_ReceiptHeader_KeyPress ");
  entered(QStringLiteral("A"));
  type(QStringLiteral("B"));
  EXPECT_EQ(line().text(), QStringLiteral("AB"));
  QInputMethodEvent composed;
  composed.setCommitString(QStringLiteral("ê"));
  QApplication::sendEvent(&line(), &composed);
  EXPECT_EQ(line().text(), QStringLiteral("ABê"));
  EXPECT_EQ(log(), std::vector<std::string>(2, "E_ReceiptHeader_KeyPress Overflow"));
}

TEST(LineGroups, EachHandlerHasItsNameForTheLog) {
  const std::pair<LineGroup, const char*> names[] = {{LineGroup::header, "E_ReceiptHeader_KeyPress "},
                                                     {LineGroup::footer, "E_ReceiptFooter_KeyPress "},
                                                     {LineGroup::extra_invoice, "E_ExtraInvoice_KeyPress "},
                                                     {LineGroup::other, "E_Other_KeyPress "}};
  for (const auto& [group, name] : names) EXPECT_STREQ(row_of(group).key_prefix, name);
  EXPECT_EQ(row_of(LineGroup::abbreviations).key_prefix, nullptr);
}

TEST_F(CaptionLineTest, TheSwitchCanBePressedWithoutLeavingTheLine) {
  entered(QStringLiteral("A"));
  press(Qt::Key_D, Qt::ControlModifier);
  EXPECT_TRUE(double_width().isChecked());
  ASSERT_TRUE(line().hasFocus());
  type(QStringLiteral("B"));
  press(Qt::Key_D, Qt::ControlModifier);
  EXPECT_FALSE(double_width().isChecked());
  type(QStringLiteral("C"));
  EXPECT_EQ(line().text(), QStringLiteral("A·BC"));
}

TEST_F(CaptionLineTest, AFullLineLosesItsLastCharactersToTheMarks) {
  tick("Chk_Double");
  entered(QStringLiteral("123456789012345678901234"));
  press(Qt::Key_Home);
  type(QStringLiteral("AB"));
  EXPECT_EQ(line().text(), QStringLiteral("·A·B123456789012345678901234"));
  leave();
  EXPECT_EQ(line().text(), QStringLiteral("·A·B12345678901234567890")) << "24 places, not 24 cells";
}

TEST_F(CaptionLineTest, EveryGroupButTheAbbreviationsPrintsDouble) {
  const std::pair<const char*, int> groups[] = {
      {"E_ReceiptHeader", 10}, {"E_ReceiptFooter", 10}, {"E_ExtraInvoice", 5}, {"E_Other", 23}, {"E_Abr", 7}};
  auto& tabs = control<QTabWidget>("Tab_Invoice");
  for (int tab = 0; tab < tabs.count(); ++tab) {
    double_width().setChecked(true);
    tabs.setCurrentIndex(tab);
    const auto& [array, count] = groups[tab];
    for (int i = 0; i < count; ++i) {
      CaptionLine& one = line(member_name(array, i));
      one.show_text(QStringLiteral("  x                     "));
      one.setFocus(Qt::OtherFocusReason);
      EXPECT_EQ(one.text(), QStringLiteral("  x"));
      type(QStringLiteral("y"));
      EXPECT_EQ(one.text(), tab == 4 ? QStringLiteral("  xy") : QStringLiteral("  x·y")) << array << i;
      control("Chk_Double").setFocus(Qt::OtherFocusReason);
      EXPECT_EQ(one.text().size(), 24) << array << i;
    }
  }
}

TEST_F(CaptionLineTest, AnAbbreviationsBackspaceTakesOneCharacter) {
  control<QTabWidget>("Tab_Invoice").setCurrentIndex(4);
  CaptionLine& abbreviation = line(QStringLiteral("E_Abr(0)"));
  abbreviation.show_text(QStringLiteral("A·B"));
  abbreviation.setFocus(Qt::OtherFocusReason);
  press(Qt::Key_Backspace);
  EXPECT_EQ(abbreviation.text(), QStringLiteral("A·"));
}

}  // namespace
}  // namespace ecr::test

#include "widgets/field.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>

#include "core/fault.h"
#include "support_qt/screen_test.h"
#include "widgets/plain_screen.h"
#include "widgets/real_shell.h"

namespace ecr::test {
namespace {

/// A field between two buttons, counting what its handlers are told.
template <typename Base>
class FieldOn : public Base {
 protected:
  FieldOn()
      : screen{new PlainScreen},
        above{screen->put(new CommandButton{QStringLiteral("C_Above"), screen})},
        field{screen->put(new Field{QStringLiteral("E_Field"), screen})},
        below{screen->put(new CommandButton{QStringLiteral("C_Below"), screen})} {
    screen->first = &above;
    field.on_entered([this] { ++entered; });
    field.on_left([this] { ++left; });
    field.on_change([this] {
      changes.append(field.text());
      typed.append(field.key_typed());
    });
    this->open(screen);
  }

  PlainScreen* screen;
  CommandButton& above;
  Field& field;
  CommandButton& below;
  int entered = 0;
  int left = 0;
  QStringList changes;
  QList<bool> typed;
};

/// Where the cursor stands, in pixels: behind what is being composed, which is no part of the text yet.
int composed_end(const QLineEdit& field) {
  return field.inputMethodQuery(Qt::ImCursorRectangle).toRect().x();
}

using FieldTest = FieldOn<ScreenTest>;
using FieldUnderRealShell = FieldOn<RealShellTest>;

TEST_F(FieldTest, ALimitOfTypingLeavesWhatTheProgramShows) {
  field.limit_typing(4);
  EXPECT_EQ(field.maxLength(), 4);
  field.show_text(QStringLiteral("1234567"));
  EXPECT_EQ(field.text(), QStringLiteral("1234567"));
  click(field);
  press(Qt::Key_End);
  type("8");
  EXPECT_EQ(field.text(), QStringLiteral("1234567")) << "nothing is added to a text that is too long already";
  press(Qt::Key_Backspace, Qt::NoModifier, 2);
  type("9");
  EXPECT_EQ(field.text(), QStringLiteral("12345"));
  press(Qt::Key_Backspace, Qt::NoModifier, 2);
  type("89");
  EXPECT_EQ(field.text(), QStringLiteral("1238"));
  field.show_text(QStringLiteral("1"));
  EXPECT_EQ(field.maxLength(), 4);
}

TEST_F(FieldTest, AnEmptyTextFromTheProgrammingIsUnreadUntilItChanges) {
  EXPECT_FALSE(field.is_unread());
  field.show_stored(QStringLiteral("12"));
  EXPECT_FALSE(field.is_unread());
  field.show_stored({});
  EXPECT_TRUE(field.is_unread());
  field.show_stored({});
  EXPECT_TRUE(field.is_unread()) << "the next one cannot be read either";
  field.show_stored(QStringLiteral("0"));
  EXPECT_FALSE(field.is_unread());
  field.show_stored({});
  field.show_text(QStringLiteral("0"));
  EXPECT_FALSE(field.is_unread());
  field.show_text({});
  EXPECT_FALSE(field.is_unread()) << "someone has emptied it";
}

TEST_F(FieldTest, AnUnreadFieldIsNeitherEnteredNorLeftBeforeSomethingIsTyped) {
  field.show_stored({});
  press(Qt::Key_Tab);
  ASSERT_TRUE(field.hasFocus());
  press(Qt::Key_Tab);
  EXPECT_EQ(entered, 0);
  EXPECT_EQ(left, 0);
  EXPECT_TRUE(field.is_unread());
  click(field);
  type("1");
  press(Qt::Key_Tab);
  EXPECT_EQ(left, 1);
  EXPECT_FALSE(field.is_unread());
  click(field);
  EXPECT_EQ(entered, 1);
}

TEST_F(FieldTest, AClickIntoItEntersItOnce) {
  click(field);
  EXPECT_EQ(entered, 1);
  EXPECT_EQ(left, 0);
  click(field);
  EXPECT_EQ(entered, 1) << "a second click inside is no entry";
}

TEST_F(FieldTest, TabEntersItAndLeavesIt) {
  press(Qt::Key_Tab);
  EXPECT_TRUE(field.hasFocus());
  EXPECT_EQ(entered, 1);
  EXPECT_EQ(left, 0);
  press(Qt::Key_Tab);
  EXPECT_TRUE(below.hasFocus());
  EXPECT_EQ(left, 1);
  press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(entered, 2);
}

TEST_F(FieldTest, TheProgramsMoveOfTheFocusEntersAndLeavesItToo) {
  field.setFocus(Qt::OtherFocusReason);
  EXPECT_EQ(entered, 1);
  above.setFocus(Qt::OtherFocusReason);
  EXPECT_EQ(left, 1);
}

TEST_F(FieldTest, AClickOnAButtonLeavesItBeforeTheButtonActs) {
  int left_when_pressed = -1;
  below.on_click([&] { left_when_pressed = left; });
  click(field);
  click(below);
  EXPECT_EQ(left_when_pressed, 1);
}

TEST_F(FieldTest, AButtonsLetterLeavesItBeforeTheButtonActs) {
  below.setText(QStringLiteral("&Below"));
  int left_when_pressed = -1;
  below.on_click([&] { left_when_pressed = left; });
  click(field);
  press(Qt::Key_B, Qt::AltModifier);
  work_until([&] { return left_when_pressed >= 0; });
  EXPECT_EQ(left_when_pressed, 1);
}

TEST_F(FieldTest, AnotherWindowInFrontIsNoLeave) {
  click(field);
  QWidget other;
  other.show();
  other.activateWindow();
  work_until([&] { return other.isActiveWindow() && !field.hasFocus(); });
  EXPECT_EQ(left, 0);
  stage.activateWindow();
  work_until([&] { return stage.isActiveWindow() && field.hasFocus(); });
  EXPECT_EQ(entered, 1);
  EXPECT_EQ(left, 0);
}

TEST_F(FieldTest, ItsOwnMenuIsNoLeave) {
  click(field);
  QContextMenuEvent event{QContextMenuEvent::Mouse, field.rect().center(), field.mapToGlobal(field.rect().center())};
  QApplication::sendEvent(&field, &event);
  work_until([] { return QApplication::activePopupWidget() != nullptr; });
  QApplication::activePopupWidget()->close();
  let_screens_settle();
  EXPECT_EQ(left, 0);
  EXPECT_EQ(entered, 1);
}

TEST_F(FieldTest, AScreenThatClosesDoesNotLeaveIt) {
  auto* menu = screen;
  auto* editor = new PlainScreen{QStringLiteral("FrmEditor")};
  auto& inside = editor->put(new Field{QStringLiteral("E_Inside"), editor});
  int times_left = 0;
  inside.on_left([&] { ++times_left; });
  open(editor);
  click(inside);
  editor->unload();
  let_screens_settle();
  EXPECT_EQ(stage.top(), menu);
  EXPECT_EQ(times_left, 0);
}

TEST_F(FieldTest, AScreenThatOpensOverItLeavesIt) {
  click(field);
  open(new PlainScreen{QStringLiteral("FrmOver")});
  EXPECT_EQ(left, 1);
}

TEST_F(FieldUnderRealShell, AMessageBoxIsNoLeave) {
  click(field);
  when_a_box_is_up([&](QMessageBox& box) {
    EXPECT_FALSE(field.hasFocus());
    press(Qt::Key_Return);
    EXPECT_FALSE(box.isVisible());
  });
  real.box(BoxKind::critical, BoxButtons::ok, "text", "");
  // The window manager's part, which an offscreen display lacks.
  stage.activateWindow();
  work_until([&] { return field.hasFocus(); });
  EXPECT_EQ(left, 0);
  EXPECT_EQ(entered, 1);
}

TEST_F(FieldUnderRealShell, ABusyWaitIsNoLeave) {
  click(field);
  const auto panel_is_up = [this] {
    const auto* panel = stage.findChild<QWidget*>(QStringLiteral("WaitPanel"));
    return panel != nullptr && panel->isVisible();
  };
  real.wait_until({}, 1, panel_is_up);
  real.run_beside({}, Waiting::modal, [] {});
  real.run_beside({}, Waiting::background, [] {});
  EXPECT_TRUE(field.hasFocus());
  EXPECT_EQ(left, 0);
  EXPECT_EQ(entered, 1);
}

TEST_F(FieldTest, LetsAnyCharacterInUnlessTold) {
  click(field);
  type(QStringLiteral("aZ 9%é€"));
  EXPECT_EQ(field.text(), QStringLiteral("aZ 9%é€"));
}

TEST_F(FieldTest, TheDigitFilterDropsCharactersOnly) {
  field.let_in(Field::Keys::digits);
  click(field);
  type(QStringLiteral("1a2 .3,-4+eé€"));
  EXPECT_EQ(field.text(), QStringLiteral("1234"));
  press(Qt::Key_Backspace);
  EXPECT_EQ(field.text(), QStringLiteral("123"));
  press(Qt::Key_Home);
  press(Qt::Key_Delete);
  EXPECT_EQ(field.text(), QStringLiteral("23"));
  press(Qt::Key_End, Qt::ShiftModifier);
  EXPECT_EQ(field.selectedText(), QStringLiteral("23"));
  type(QStringLiteral("7"));
  EXPECT_EQ(field.text(), QStringLiteral("7"));
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(field.text(), QStringLiteral("23"));
}

TEST_F(FieldTest, TheDigitFilterLetsASelectionBeCopiedCutAndPasted) {
  field.let_in(Field::Keys::digits);
  click(field);
  type(QStringLiteral("12"));
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("12"));
  press(Qt::Key_End);
  press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(field.text(), QStringLiteral("1212"));
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(field.text(), QString{});
  paste_over(QStringLiteral("no number"));
  EXPECT_EQ(field.text(), QStringLiteral("no number")) << "what is pasted is judged by the change handler alone";
}

TEST_F(FieldTest, TheDigitFilterLooksAtTheCharacterWhateverIsHeld) {
  field.let_in(Field::Keys::digits);
  click(field);
  const Qt::KeyboardModifiers altgr = Qt::ControlModifier | Qt::AltModifier;
  for (const Qt::KeyboardModifiers held : {Qt::KeyboardModifiers{Qt::AltModifier}, altgr, altgr | Qt::ShiftModifier,
                                           Qt::KeyboardModifiers{Qt::MetaModifier}}) {
    type(QStringLiteral("a\u20ac\u00b2.-"), held);
    EXPECT_EQ(field.text(), QString{}) << held.toInt();
    type(QStringLiteral("7"), held);
    EXPECT_EQ(field.text(), QStringLiteral("7")) << held.toInt();
    field.clear();
  }
}

TEST_F(FieldTest, TheDigitFilterDropsCharactersWithoutAPictureToo) {
  field.let_in(Field::Keys::digits);
  click(field);
  for (const QString& text :
       {QStringLiteral("\u200d"), QStringLiteral("\ue000"), QStringLiteral("\U0001F600"), QStringLiteral("1a")}) {
    QKeyEvent event{QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, text};
    QApplication::sendEvent(&field, &event);
    EXPECT_EQ(field.text(), QString{});
  }
}

TEST_F(FieldTest, AltAndALetterThatTypeNothingStillPressAButton) {
  field.let_in(Field::Keys::digits);
  below.setText(QStringLiteral("&Below"));
  bool pressed = false;
  below.on_click([&] { pressed = true; });
  click(field);
  type(QStringLiteral("b"), Qt::AltModifier);
  work_until([&] { return pressed; });
  EXPECT_EQ(field.text(), QString{});
  EXPECT_EQ(changes, QStringList{});
}

TEST_F(FieldTest, ADigitTypedWithAltCountsAsTyped) {
  click(field);
  type(QStringLiteral("7"), Qt::AltModifier);
  field.show_text(QStringLiteral("1"));
  EXPECT_EQ(changes, QStringList({"7", "1"}));
  EXPECT_EQ(typed, QList<bool>({true, false}));
}

TEST_F(FieldTest, TheDigitFilterHoldsForInputMethodsToo) {
  field.let_in(Field::Keys::digits);
  click(field);
  for (const char* text : {"x", "5", "1x"}) finish_composing(QString::fromLatin1(text));
  EXPECT_EQ(field.text(), QStringLiteral("5"));
  EXPECT_EQ(typed, QList<bool>{true});
}

TEST_F(FieldTest, TheDigitFilterHoldsWhileATextIsBeingComposed) {
  field.let_in(Field::Keys::digits);
  field.show_text(QStringLiteral("5"));
  click(field);
  press(Qt::Key_End);
  const int end = composed_end(field);
  compose(QStringLiteral("x"));
  EXPECT_EQ(composed_end(field), end);
  press(Qt::Key_A, Qt::ControlModifier);
  compose(QStringLiteral("x"));
  EXPECT_EQ(field.selectedText(), QStringLiteral("5")) << "nothing is replaced by what is not let in";
  press(Qt::Key_End);
  compose(QStringLiteral("7"));
  EXPECT_GT(composed_end(field), end);
  finish_composing(QStringLiteral("x"));
  EXPECT_EQ(field.text(), QStringLiteral("5"));
  EXPECT_EQ(composed_end(field), end) << "what was composed goes with the text that is not let in";
}

TEST_F(FieldTest, AFieldForAnyCharacterTakesWhatIsComposed) {
  click(field);
  const int end = composed_end(field);
  compose(QStringLiteral("\u00b4"));
  EXPECT_GT(composed_end(field), end);
  finish_composing(QStringLiteral("\u00e9"));
  EXPECT_EQ(field.text(), QStringLiteral("\u00e9"));
}

TEST_F(FieldTest, TheChangeHandlerRunsOnEveryChangeAlsoOfTheProgram) {
  field.show_text(QStringLiteral("a"));
  field.show_text(QStringLiteral("a"));
  field.show_text(QStringLiteral("ab"));
  click(field);
  press(Qt::Key_End);
  type(QStringLiteral("cd"));
  press(Qt::Key_Backspace);
  paste_over(QStringLiteral("whole"));
  EXPECT_EQ(changes, QStringList({"a", "ab", "abc", "abcd", "abc", "whole"}))
      << "one change each, a paste over a selection included";
}

TEST_F(FieldTest, AChangeKnowsWhetherAKeyBroughtIt) {
  field.show_text(QStringLiteral("1"));
  click(field);
  press(Qt::Key_End);
  type(QStringLiteral("2"));
  field.show_text(QStringLiteral("3"));
  press(Qt::Key_Backspace);
  EXPECT_EQ(changes, QStringList({"1", "12", "3", ""}));
  EXPECT_EQ(typed, QList<bool>({false, true, false, true}));
}

TEST_F(FieldTest, AKeyThatWasDroppedCountsForTheNextChange) {
  field.let_in(Field::Keys::digits);
  click(field);
  type(QStringLiteral("x"));
  EXPECT_EQ(changes, QStringList{});
  field.show_text(QStringLiteral("1"));
  field.show_text(QStringLiteral("2"));
  EXPECT_EQ(typed, QList<bool>({true, false}));
}

TEST_F(FieldTest, KeysThatTypeNothingDoNotCount) {
  click(field);
  press(Qt::Key_Left);
  press(Qt::Key_Home);
  press(Qt::Key_Return);
  press(Qt::Key_Shift);
  field.show_text(QStringLiteral("1"));
  EXPECT_EQ(typed, QList<bool>{false});
}

TEST_F(FieldTest, EnterGoesToTheWidgetThatWasNamed) {
  field.enter_goes_to(&below);
  click(field);
  type(QStringLiteral("7"));
  press(Qt::Key_Return);
  EXPECT_TRUE(below.hasFocus());
  EXPECT_EQ(left, 1);
  EXPECT_EQ(field.text(), QStringLiteral("7"));
  click(field);
  press(Qt::Key_Enter);
  EXPECT_TRUE(below.hasFocus());
}

TEST_F(FieldTest, EnterThatMovesTheFocusDoesNotPressTheButtonAsWell) {
  field.enter_goes_to(&below);
  int pressed = 0;
  below.on_click([&] { ++pressed; });
  click(field);
  press(Qt::Key_Return);
  EXPECT_EQ(pressed, 0);
  press(Qt::Key_Return);
  EXPECT_EQ(pressed, 1);
}

TEST_F(FieldTest, EnterDoesNothingWhereNobodyWasNamed) {
  click(field);
  type(QStringLiteral("7"));
  press(Qt::Key_Return);
  press(Qt::Key_Enter);
  EXPECT_TRUE(field.hasFocus());
  EXPECT_EQ(field.text(), QStringLiteral("7"));
}

TEST_F(FieldTest, AFaultInAHandlerIsLoggedBehindScreenAndControl) {
  field.on_change([] { throw FaultError{FaultCode::type_mismatch}; });
  field.on_entered([] { throw FaultError{FaultCode::overflow}; });
  field.on_left([] { throw FaultError{FaultCode::out_of_range}; });
  click(field);
  type(QStringLiteral("x"));
  click(below);
  EXPECT_EQ(field.text(), QStringLiteral("x"));
  const auto line = [](FaultCode code) { return "FrmPlain E_Field: " + std::string{Fault{code}.description()}; };
  EXPECT_EQ(log(), (std::vector<std::string>{line(FaultCode::overflow), line(FaultCode::type_mismatch),
                                             line(FaultCode::out_of_range)}));
}

TEST_F(FieldTest, CuttingTheLastCharacterKeepsTheCursorWhereThatCanBe) {
  field.show_text(QStringLiteral("12345"));
  field.setCursorPosition(2);
  field.cut_last();
  EXPECT_EQ(field.text(), QStringLiteral("1234"));
  EXPECT_EQ(field.cursorPosition(), 2);
  field.setCursorPosition(4);
  field.cut_last();
  EXPECT_EQ(field.text(), QStringLiteral("123"));
  EXPECT_EQ(field.cursorPosition(), 3);
  field.show_text({});
  field.cut_last();
  EXPECT_EQ(field.text(), QString{});
}

class NameFieldTest : public FieldTest {
 protected:
  NameFieldTest() { make_name_field(field, 12); }
};

TEST_F(NameFieldTest, TakesAsManyCharactersAsTheRecordHas) {
  click(field);
  type(QStringLiteral("abcdefghijklmnop"));
  EXPECT_EQ(field.text(), QStringLiteral("abcdefghijkl"));
  EXPECT_EQ(field.maxLength(), 12);
  paste_over(QStringLiteral("0123456789012345"));
  EXPECT_EQ(field.text(), QStringLiteral("012345678901"));
}

TEST_F(NameFieldTest, EnteringCutsTheBlanksAtTheEndAndSelectsAll) {
  field.show_text(QStringLiteral(" two words  "));
  press(Qt::Key_Tab);
  EXPECT_EQ(field.text(), QStringLiteral(" two words"));
  EXPECT_EQ(field.selectedText(), QStringLiteral(" two words"));
  type(QStringLiteral("x"));
  EXPECT_EQ(field.text(), QStringLiteral("x"));
}

TEST_F(NameFieldTest, OnlyBlanksAreCut) {
  field.show_text(QStringLiteral("tab\t"));
  press(Qt::Key_Tab);
  EXPECT_EQ(field.text(), QStringLiteral("tab\t"));
  press(Qt::Key_Tab);
  field.show_text(QStringLiteral("wide\u00A0"));
  click(field);
  EXPECT_EQ(field.text(), QStringLiteral("wide\u00A0"));
}

TEST_F(NameFieldTest, ThePressThatEntersSelectsAllAndTheNextOneSetsTheCursor) {
  field.show_text(QStringLiteral("bread       "));
  click(field);
  EXPECT_EQ(field.selectedText(), QStringLiteral("bread"));
  click_at(field, {12, field.height() / 2});
  EXPECT_FALSE(field.hasSelectedText());
  EXPECT_LT(field.cursorPosition(), 2);
}

TEST_F(NameFieldTest, AProgramsEntrySelectsAllToo) {
  field.show_text(QStringLiteral("bread  "));
  field.setFocus(Qt::OtherFocusReason);
  EXPECT_EQ(field.selectedText(), QStringLiteral("bread"));
}

TEST_F(NameFieldTest, LeavingChangesNothing) {
  click(field);
  type(QStringLiteral("bread "));
  click(below);
  EXPECT_EQ(field.text(), QStringLiteral("bread "));
}

}  // namespace
}  // namespace ecr::test

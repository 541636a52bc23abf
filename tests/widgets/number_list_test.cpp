#include <gtest/gtest.h>
#include <memory>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>

#include "support_qt/screen_test.h"
#include "widgets/choice_list.h"
#include "widgets/plain_screen.h"

namespace ecr::test {
namespace {

class NumberListTest : public ScreenTest {
 protected:
  NumberListTest()
      : screen{new PlainScreen},
        list{screen->put(new NumberList{QStringLiteral("Cmb_Number"), 99, screen})},
        other{screen->put(new CommandButton{QStringLiteral("C_Other"), screen})} {
    screen->first = &other;
    list.on_click([this](int number) { loaded.push_back(number); });
    list.fill();
    list.show_number(1);
    open(screen);
  }

  using Numbers = std::vector<int>;

  /// Pastes over all of it by the field's menu, where no key is pressed.
  void paste_from_menu(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    list.lineEdit()->selectAll();
    const std::unique_ptr<QMenu> menu{list.lineEdit()->createStandardContextMenu()};
    for (QAction* action : menu->actions()) {
      if (action->text().startsWith(QStringLiteral("&Paste"))) action->trigger();
    }
  }

  PlainScreen* screen;
  NumberList& list;
  CommandButton& other;
  Numbers loaded;
};

TEST_F(NumberListTest, HoldsTheNumbersOfTheTable) {
  EXPECT_EQ(list.count(), 99);
  EXPECT_EQ(list.itemText(0), QStringLiteral("1"));
  EXPECT_EQ(list.itemText(98), QStringLiteral("99"));
  EXPECT_EQ(list.last(), 99);
}

TEST_F(NumberListTest, FilledAnewItShowsTheFirstNumber) {
  list.show_number(42);
  list.fill();
  EXPECT_EQ(list.currentText(), QStringLiteral("1"));
  EXPECT_EQ(list.currentIndex(), 0);
  EXPECT_EQ(list.count(), 99);
}

TEST_F(NumberListTest, ANumberOfThePopupIsPicked) {
  pick(list, 6);
  EXPECT_EQ(list.currentText(), QStringLiteral("7"));
  EXPECT_EQ(loaded, Numbers{7});
}

TEST_F(NumberListTest, WhatTheProgramShowsLoadsNothing) {
  list.show_number(42);
  EXPECT_EQ(list.currentText(), QStringLiteral("42"));
  EXPECT_EQ(list.number(), 42);
  EXPECT_EQ(list.currentIndex(), 41);
  list.fill();
  EXPECT_EQ(loaded, Numbers{});
}

TEST_F(NumberListTest, EnteringItSelectsTheNumber) {
  list.show_number(42);
  click(list);
  let_screens_settle();
  EXPECT_EQ(list.lineEdit()->selectedText(), QStringLiteral("42"));
  press(Qt::Key_End);
  press(Qt::Key_Tab);
  press(Qt::Key_Backtab, Qt::ShiftModifier);
  let_screens_settle();
  EXPECT_EQ(list.lineEdit()->selectedText(), QStringLiteral("42"));
}

TEST_F(NumberListTest, EachTypedDigitLoadsItsRecord) {
  tab_to(list);
  let_screens_settle();
  type(QStringLiteral("47"));
  EXPECT_EQ(list.currentText(), QStringLiteral("47"));
  EXPECT_EQ(loaded, (Numbers{4, 47}));
}

TEST_F(NumberListTest, ANumberAboveTheTableBecomesTheLastOne) {
  tab_to(list);
  let_screens_settle();
  type(QStringLiteral("100"));
  EXPECT_EQ(list.currentText(), QStringLiteral("99"));
  EXPECT_EQ(loaded, (Numbers{1, 10, 99}));
}

TEST_F(NumberListTest, TheLastNumberItselfStays) {
  tab_to(list);
  let_screens_settle();
  type(QStringLiteral("99"));
  EXPECT_EQ(list.currentText(), QStringLiteral("99"));
  EXPECT_EQ(loaded, (Numbers{9, 99}));
}

TEST_F(NumberListTest, CharactersThatAreNoDigitsAreDropped) {
  tab_to(list);
  let_screens_settle();
  type(QStringLiteral("a4. -x"));
  EXPECT_EQ(list.currentText(), QStringLiteral("4"));
  EXPECT_EQ(loaded, Numbers{4});
}

TEST_F(NumberListTest, CharactersAreDroppedWhateverIsHeld) {
  tab_to(list);
  let_screens_settle();
  for (const Qt::KeyboardModifiers held :
       {Qt::KeyboardModifiers{Qt::AltModifier}, Qt::KeyboardModifiers{Qt::MetaModifier},
        Qt::ControlModifier | Qt::AltModifier}) {
    type(QStringLiteral("a.\u20ac"), held);
  }
  EXPECT_EQ(list.currentText(), QStringLiteral("1"));
  EXPECT_EQ(loaded, Numbers{});
  type(QStringLiteral("47"), Qt::AltModifier);
  EXPECT_EQ(list.currentText(), QStringLiteral("47"));
  EXPECT_EQ(loaded, (Numbers{4, 47}));
}

TEST_F(NumberListTest, ComposedDigitsAreTakenAndOtherTextIsDropped) {
  tab_to(list);
  let_screens_settle();
  press(Qt::Key_End);
  const auto cursor = [this] { return list.lineEdit()->inputMethodQuery(Qt::ImCursorRectangle).toRect().x(); };
  const int end = cursor();
  compose(QStringLiteral("x"));
  EXPECT_EQ(cursor(), end);
  finish_composing(QStringLiteral("x"));
  EXPECT_EQ(list.currentText(), QStringLiteral("1"));
  EXPECT_EQ(loaded, Numbers{});
  press(Qt::Key_A, Qt::ControlModifier);
  compose(QStringLiteral("4"));
  EXPECT_EQ(loaded, Numbers{});
  finish_composing(QStringLiteral("47"));
  EXPECT_EQ(list.currentText(), QStringLiteral("47"));
  EXPECT_EQ(loaded, Numbers{47});
  finish_composing(QStringLiteral("8"));
  EXPECT_EQ(list.currentText(), QStringLiteral("99"));
  EXPECT_EQ(loaded, (Numbers{47, 99}));
}

TEST_F(NumberListTest, AnyKeyBringsANumberPastedFromTheMenuBackIntoTheTable) {
  for (const int key : {Qt::Key_End, Qt::Key_Left, Qt::Key_Shift, Qt::Key_Return, Qt::Key_F5}) {
    list.show_number(12);
    tab_to(list);
    let_screens_settle();
    loaded.clear();
    paste_from_menu(QStringLiteral("3333"));
    EXPECT_EQ(list.currentText(), QStringLiteral("3333"));
    press(key);
    EXPECT_EQ(list.currentText(), QStringLiteral("99"));
    EXPECT_EQ(loaded, Numbers{99});
  }
}

TEST_F(NumberListTest, AnyKeyLoadsANumberPastedFromTheMenu) {
  tab_to(list);
  let_screens_settle();
  paste_from_menu(QStringLiteral("33"));
  EXPECT_EQ(loaded, Numbers{});
  press(Qt::Key_End);
  EXPECT_EQ(loaded, Numbers{33});
  press(Qt::Key_Home);
  EXPECT_EQ(loaded, Numbers{33}) << "it is on screen now";
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(list.currentText(), QStringLiteral("1"));
  EXPECT_EQ(loaded, (Numbers{33, 1})) << "taking it back is a change, too";
}

TEST_F(NumberListTest, AnEmptiedListAndAZeroLoadNothing) {
  tab_to(list);
  let_screens_settle();
  press(Qt::Key_Backspace);
  EXPECT_EQ(list.currentText(), QString{});
  EXPECT_EQ(list.number(), 0);
  type(QStringLiteral("0"));
  EXPECT_EQ(list.number(), 0);
  EXPECT_EQ(loaded, Numbers{});
  type(QStringLiteral("7"));
  EXPECT_EQ(loaded, Numbers{7});
}

TEST_F(NumberListTest, DeletingADigitLoadsWhatIsLeft) {
  list.show_number(47);
  tab_to(list);
  let_screens_settle();
  press(Qt::Key_End);
  press(Qt::Key_Backspace);
  EXPECT_EQ(loaded, Numbers{4});
  type(QStringLiteral("5"));
  press(Qt::Key_Home);
  press(Qt::Key_Delete);
  EXPECT_EQ(loaded, (Numbers{4, 45, 5}));
}

TEST_F(NumberListTest, KeysThatChangeNothingLoadNothing) {
  tab_to(list);
  press(Qt::Key_Home);
  press(Qt::Key_Right);
  press(Qt::Key_Return);
  press(Qt::Key_Shift);
  EXPECT_EQ(loaded, Numbers{});
}

TEST_F(NumberListTest, APastedNumberIsLoaded) {
  tab_to(list);
  paste_over(QStringLiteral("33"));
  EXPECT_EQ(list.currentText(), QStringLiteral("33"));
  EXPECT_EQ(loaded.back(), 33);
  paste_over(QStringLiteral("3333"));
  EXPECT_EQ(list.currentText(), QStringLiteral("99"));
  EXPECT_EQ(loaded.back(), 99);
}

TEST_F(NumberListTest, ThePointerPicksANumber) {
  pick(list, 11);
  EXPECT_EQ(list.currentText(), QStringLiteral("12"));
  EXPECT_EQ(loaded, Numbers{12});
}

TEST_F(NumberListTest, TheArrowKeysAndTheWheelMoveByOne) {
  list.show_number(5);
  tab_to(list);
  press(Qt::Key_Down);
  press(Qt::Key_Up, Qt::NoModifier, 2);
  turn_wheel(list, -1);
  EXPECT_EQ(loaded, (Numbers{6, 5, 4, 5}));
}

TEST_F(NumberListTest, TheArrowsGoOnFromATypedNumber) {
  tab_to(list);
  let_screens_settle();
  type(QStringLiteral("47"));
  press(Qt::Key_Down);
  EXPECT_EQ(list.currentText(), QStringLiteral("48"));
  EXPECT_EQ(loaded.back(), 48);
}

TEST_F(NumberListTest, TypedNumbersDoNotBecomeEntries) {
  tab_to(list);
  let_screens_settle();
  type(QStringLiteral("0"));
  press(Qt::Key_Return);
  EXPECT_EQ(list.count(), 99);
}

TEST_F(NumberListTest, NothingIsCompletedWhileItIsTyped) {
  tab_to(list);
  let_screens_settle();
  type(QStringLiteral("1"));
  EXPECT_EQ(list.currentText(), QStringLiteral("1"));
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

}  // namespace
}  // namespace ecr::test

#include "widgets/choice_list.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>

#include "support_qt/screen_test.h"
#include "widgets/plain_screen.h"

namespace ecr::test {
namespace {

const Qt::KeyboardModifiers modifiers[] = {Qt::AltModifier, Qt::ControlModifier, Qt::MetaModifier,
                                           Qt::ControlModifier | Qt::AltModifier,
                                           Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier};

const QStringList entries = {"0. OPEN", "1. NORMAL", "2. PRESET", "1. AGAIN", "12. TWELVE", "NONE"};

class ChoiceListTest : public ScreenTest {
 protected:
  ChoiceListTest()
      : screen{new PlainScreen},
        list{screen->put(new ChoiceList{QStringLiteral("Cmb_List"), screen})},
        other{screen->put(new CommandButton{QStringLiteral("C_Other"), screen})} {
    screen->first = &other;
    list.on_click([this] { clicks.append(list.text()); });
    list.fill(entries);
    open(screen);
  }

  PlainScreen* screen;
  ChoiceList& list;
  CommandButton& other;
  QStringList clicks;
};

TEST_F(ChoiceListTest, AFilledListShowsNothing) {
  EXPECT_EQ(entries_of(list), entries);
  EXPECT_EQ(list.text(), QString{});
  EXPECT_EQ(list.number(), 0);
  EXPECT_EQ(list.objectName(), QStringLiteral("Cmb_List"));
  EXPECT_EQ(clicks, QStringList{});
}

TEST_F(ChoiceListTest, FillingAgainForgetsWhatWasShown) {
  list.show_text(QStringLiteral("9. STORED"));
  list.fill({"0. A"});
  EXPECT_EQ(list.text(), QString{});
  list.show_number(0);
  list.fill({"0. A", "1. B"});
  EXPECT_EQ(list.text(), QString{});
  EXPECT_EQ(list.currentIndex(), -1);
}

TEST_F(ChoiceListTest, ShowsAnEntryByItsText) {
  list.show_text(QStringLiteral("2. PRESET"));
  EXPECT_EQ(list.currentIndex(), 2);
  EXPECT_EQ(list.text(), QStringLiteral("2. PRESET"));
  EXPECT_EQ(list.number(), 2);
}

TEST_F(ChoiceListTest, ShowsATextThatIsNoneOfItsEntries) {
  for (const char* text : {"12", "2. preset", "2. PRES"}) {
    list.show_text(QString::fromLatin1(text));
    EXPECT_EQ(list.currentIndex(), -1);
    EXPECT_EQ(list.text(), QString::fromLatin1(text));
  }
  list.show_text({});
  EXPECT_EQ(list.text(), QString{});
  list.show_text(QStringLiteral("7. x"));
  list.show_nothing();
  EXPECT_EQ(list.text(), QString{});
}

TEST_F(ChoiceListTest, AnUnknownTextCanBeSeen) {
  const auto paints_text = [this] {
    const QImage with = list.grab().toImage();
    list.show_nothing();
    return with != list.grab().toImage();
  };
  list.show_text(QStringLiteral("12. STORED"));
  EXPECT_TRUE(paints_text());
}

TEST_F(ChoiceListTest, ShowsTheEntryOfADigit) {
  EXPECT_TRUE(list.show_number(2));
  EXPECT_EQ(list.text(), QStringLiteral("2. PRESET"));
  EXPECT_TRUE(list.show_number(12));
  EXPECT_EQ(list.text(), QStringLiteral("12. TWELVE"));
}

TEST_F(ChoiceListTest, OfTwoEntriesWithOneDigitTheFirstIsShown) {
  EXPECT_TRUE(list.show_number(1));
  EXPECT_EQ(list.text(), QStringLiteral("1. NORMAL"));
}

TEST_F(ChoiceListTest, ADigitWithoutAnEntryLeavesTheListAsItStands) {
  list.show_number(2);
  EXPECT_FALSE(list.show_number(3));
  EXPECT_EQ(list.text(), QStringLiteral("2. PRESET"));
  list.show_text(QStringLiteral("stored"));
  EXPECT_FALSE(list.show_number(-1));
  EXPECT_EQ(list.text(), QStringLiteral("stored"));
  EXPECT_TRUE(list.show_number(0));
  EXPECT_EQ(list.text(), QStringLiteral("0. OPEN"));
}

TEST_F(ChoiceListTest, ReadsTheDigitInFrontOfTheFirstPoint) {
  const std::pair<const char*, int> numbers[] = {{"2. PRESET", 2}, {"12. TWELVE", 12}, {"NONE", 0}, {"12", 0},
                                                 {"", 0},          {"3. a. b", 3},     {"x. y", 0}};
  for (const auto& [text, number] : numbers) {
    list.show_text(QString::fromLatin1(text));
    EXPECT_EQ(list.number(), number) << text;
  }
}

TEST_F(ChoiceListTest, NothingTheProgramShowsIsAClick) {
  list.show_number(1);
  list.show_text(QStringLiteral("2. PRESET"));
  list.show_text(QStringLiteral("none of them"));
  list.show_nothing();
  list.fill(entries);
  EXPECT_EQ(clicks, QStringList{});
}

TEST_F(ChoiceListTest, ThePointerPicks) {
  pick(list, 2);
  EXPECT_EQ(list.text(), QStringLiteral("2. PRESET"));
  EXPECT_EQ(clicks, QStringList{"2. PRESET"});
}

TEST_F(ChoiceListTest, PickingTheEntryThatIsShownIsAClickAsWell) {
  list.show_number(1);
  pick(list, 1);
  EXPECT_EQ(clicks, QStringList{"1. NORMAL"});
}

TEST_F(ChoiceListTest, PickingReplacesATextThatIsNoEntry) {
  list.show_text(QStringLiteral("stored"));
  pick(list, 0);
  EXPECT_EQ(list.text(), QStringLiteral("0. OPEN"));
}

TEST_F(ChoiceListTest, TheArrowKeysPick) {
  list.show_number(0);
  tab_to(list);
  press(Qt::Key_Down, Qt::NoModifier, 2);
  press(Qt::Key_Up);
  EXPECT_EQ(clicks, QStringList({"1. NORMAL", "2. PRESET", "1. NORMAL"}));
  press(Qt::Key_Up, Qt::NoModifier, 5);
  EXPECT_EQ(clicks.size(), 4) << "at the end nothing is picked any more";
}

TEST_F(ChoiceListTest, TheWheelPicks) {
  list.show_number(0);
  tab_to(list);
  turn_wheel(list, -1);
  turn_wheel(list, -1);
  turn_wheel(list, 1);
  EXPECT_EQ(clicks, QStringList({"1. NORMAL", "2. PRESET", "1. NORMAL"}));
}

TEST_F(ChoiceListTest, TypedCharactersDoNothing) {
  list.show_number(1);
  tab_to(list);
  type(QStringLiteral("2N0. x\u00E9"));
  EXPECT_EQ(list.text(), QStringLiteral("1. NORMAL"));
  EXPECT_EQ(clicks, QStringList{});
  EXPECT_FALSE(list.view()->isVisible()) << "a blank is a typed character, too";
}

TEST_F(ChoiceListTest, TypedCharactersDoNothingWhateverIsHeld) {
  list.show_number(1);
  tab_to(list);
  for (const Qt::KeyboardModifiers held : modifiers) type(QStringLiteral("2N0. x\u00e9"), held);
  EXPECT_EQ(list.text(), QStringLiteral("1. NORMAL"));
  EXPECT_EQ(clicks, QStringList{});
  EXPECT_FALSE(list.view()->isVisible());
}

TEST_F(ChoiceListTest, ComposedCharactersDoNothing) {
  list.show_number(1);
  tab_to(list);
  compose(QStringLiteral("2"));
  finish_composing(QStringLiteral("2"));
  EXPECT_EQ(list.text(), QStringLiteral("1. NORMAL"));
  EXPECT_EQ(clicks, QStringList{});
}

TEST_F(ChoiceListTest, TypedOrComposedCharactersDoNothingInTheOpenListEither) {
  list.show_number(1);
  tab_to(list);
  press(Qt::Key_Down, Qt::AltModifier);
  work_until([this] { return list.view()->isVisible(); });
  type(QStringLiteral("2"));
  for (const Qt::KeyboardModifiers held : modifiers) type(QStringLiteral("2"), held);
  finish_composing(QStringLiteral("2"));
  press(Qt::Key_Return);
  work_until([this] { return !list.view()->isVisible(); });
  EXPECT_EQ(list.text(), QStringLiteral("1. NORMAL"));
}

TEST_F(ChoiceListTest, AnEntryOfTheOpenListCanBeCopied) {
  list.show_number(1);
  tab_to(list);
  press(Qt::Key_Down, Qt::AltModifier);
  work_until([this] { return list.view()->isVisible(); });
  press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("1. NORMAL"));
}

TEST_F(ChoiceListTest, ListsThatAreToldToFindEntriesByTyping) {
  auto& finding = screen->put(new ChoiceList{QStringLiteral("Cmb_Finding"), screen, ChoiceList::Typing::finds_entries});
  int found = 0;
  finding.on_click([&found] { ++found; });
  finding.fill(entries);
  finding.show_number(0);
  let_screens_settle();
  tab_to(finding);
  type(QStringLiteral("2"));
  EXPECT_EQ(finding.text(), QStringLiteral("2. PRESET"));
  EXPECT_EQ(found, 1);
}

TEST_F(ChoiceListTest, BareNumbersAreReadByTheirWholeText) {
  list.fill(bare_numbers(0, 12));
  EXPECT_EQ(list.count(), 13);
  EXPECT_EQ(list.itemText(12), QStringLiteral("12"));
  EXPECT_EQ(list.whole_number(), 0) << "nothing is shown yet";
  list.show_text(QStringLiteral("12"));
  EXPECT_EQ(list.whole_number(), 12);
  EXPECT_EQ(list.number(), 0) << "there is no point to read it by";
  list.show_text(QStringLiteral("255"));
  EXPECT_EQ(list.whole_number(), 255) << "also one that is none of the entries";
}

TEST_F(ChoiceListTest, TabLeavesIt) {
  tab_to(list);
  press(Qt::Key_Tab);
  EXPECT_FALSE(list.hasFocus());
}

TEST(LabelOfAnEntry, IsAllBehindTheFirstBlank) {
  EXPECT_EQ(label_of(QStringLiteral("1. NORMAL PRICE")), QStringLiteral("NORMAL PRICE"));
  EXPECT_EQ(label_of(QStringLiteral("1. ")), QString{});
  EXPECT_EQ(label_of(QStringLiteral("NORMAL")), QStringLiteral("NORMAL"));
  EXPECT_EQ(label_of({}), QString{});
}

}  // namespace
}  // namespace ecr::test

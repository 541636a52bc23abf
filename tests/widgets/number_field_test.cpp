#include <gtest/gtest.h>

#include "core/global.h"
#include "support_qt/screen_test.h"
#include "widgets/field.h"
#include "widgets/plain_screen.h"
#include "widgets/screen_text.h"

namespace ecr::test {
namespace {

/// An amount field of at most 500, and a field of thousandths that checks what is typed alone.
class NumberFieldTest : public ScreenTest {
 protected:
  NumberFieldTest()
      : screen{new PlainScreen},
        amount{screen->put(new Field{QStringLiteral("E_Amount"), screen})},
        rate{screen->put(new Field{QStringLiteral("E_Rate"), screen})},
        save{screen->put(new CommandButton{QStringLiteral("C_Save"), screen})} {
    Global::DecimalPoint = 2;
    screen->first = &save;
    NumberRules rules = amount_rules(Decimal{500});
    rules.changed = [this] { changes.append(amount.text()); };
    make_number_field(amount, std::move(rules));

    NumberRules typing_only;
    typing_only.maximum = Decimal{500};
    typing_only.check_typing_only = true;
    typing_only.to_raw = [](const QString& shown) { return Decimal::from_text(page_bytes(shown)).scaled(3); };
    typing_only.to_shown = [](const QString& raw) {
      return screen_text(Decimal::from_text(page_bytes(raw)).scaled(-3).text());
    };
    typing_only.enter_goes_to = &save;
    make_number_field(rate, std::move(typing_only));
    open(screen);
  }

  void expect_refusals(int boxes) {
    for (int i = 0; i < boxes; ++i) expect_box(BoxKind::critical, "Value insert to high!");
  }

  PlainScreen* screen;
  Field& amount;
  Field& rate;
  CommandButton& save;
  QStringList changes;
};

TEST_F(NumberFieldTest, EnteringTurnsTheDisplayFormIntoRawDigits) {
  amount.show_text(QStringLiteral("4.50"));
  click(amount);
  EXPECT_EQ(amount.text(), QStringLiteral("450"));
  rate.show_text(QStringLiteral("0.25"));
  click(rate);
  EXPECT_EQ(rate.text(), QStringLiteral("250"));
}

TEST_F(NumberFieldTest, LeavingBringsTheDisplayFormBack) {
  click(amount);
  type(QStringLiteral("450"));
  click(save);
  EXPECT_EQ(amount.text(), QStringLiteral("4.50"));
  click(amount);
  EXPECT_EQ(amount.text(), QStringLiteral("450"));
  click(save);
  EXPECT_EQ(amount.text(), QStringLiteral("4.50"));
}

TEST_F(NumberFieldTest, TheDecimalsAreThoseOfTheMoment) {
  const std::pair<std::uint8_t, const char*> forms[] = {{0, "7"}, {1, "0.7"}, {2, "0.07"}, {3, "0.007"}};
  for (const auto& [decimals, shown] : forms) {
    Global::DecimalPoint = decimals;
    amount.show_text({});
    click(amount);
    type(QStringLiteral("7"));
    click(save);
    EXPECT_EQ(amount.text(), QString::fromLatin1(shown));
    click(amount);
    EXPECT_EQ(amount.text(), QStringLiteral("7"));
    click(save);
  }
}

TEST_F(NumberFieldTest, AZeroLeavesTheFieldEmptyOnEntry) {
  for (const char* zero : {"0", "0.00", "000", "-0"}) {
    amount.show_text(QString::fromLatin1(zero));
    click(amount);
    EXPECT_EQ(amount.text(), QString{}) << zero;
    click(save);
  }
}

TEST_F(NumberFieldTest, AnEmptyFieldBecomesZeroWhenItIsLeft) {
  click(amount);
  changes.clear();
  click(save);
  EXPECT_EQ(amount.text(), QStringLiteral("0.00"));
  EXPECT_EQ(changes, QStringList({"0", "0.00"})) << "first the digit, then its display form";
  click(rate);
  click(save);
  EXPECT_EQ(rate.text(), QStringLiteral("0"));
}

TEST_F(NumberFieldTest, TheMaximumItselfIsAllowedAndOneDigitMoreIsCut) {
  click(amount);
  type(QStringLiteral("500"));
  EXPECT_TRUE(watched.boxes.empty());
  expect_refusals(1);
  type(QStringLiteral("0"));
  EXPECT_EQ(amount.text(), QStringLiteral("500"));
}

TEST_F(NumberFieldTest, TheLastCharacterIsCutWhereverTheCursorIs) {
  click(amount);
  type(QStringLiteral("500"));
  press(Qt::Key_Home);
  expect_refusals(2);
  type(QStringLiteral("9"));
  EXPECT_EQ(amount.text(), QStringLiteral("95"));
  EXPECT_EQ(amount.cursorPosition(), 1);
}

TEST_F(NumberFieldTest, TheValueJustAboveTheMaximumIsRefused) {
  click(amount);
  expect_refusals(1);
  type(QStringLiteral("501"));
  EXPECT_EQ(amount.text(), QStringLiteral("50"));
}

TEST_F(NumberFieldTest, APasteIsCutOnceForEachDigitTooMany) {
  click(amount);
  expect_refusals(3);
  paste_over(QStringLiteral("123456"));
  EXPECT_EQ(amount.text(), QStringLiteral("123"));
  EXPECT_EQ(changes.last(), QStringLiteral("123"));
}

TEST_F(NumberFieldTest, TheProgramsOwnTextIsCheckedAsWell) {
  expect_refusals(1);
  amount.show_text(QStringLiteral("5000"));
  EXPECT_EQ(amount.text(), QStringLiteral("500"));
}

TEST_F(NumberFieldTest, ATextWithAPointIsComparedByItsIntegerPart) {
  amount.show_text(QStringLiteral("500.99"));
  EXPECT_TRUE(watched.boxes.empty());
  // As raw digits, the same amount is above the maximum.
  expect_refusals(2);
  click(amount);
  EXPECT_EQ(amount.text(), QStringLiteral("500"));
}

TEST_F(NumberFieldTest, TheHugestTextIsCutToTheMaximumInTheEnd) {
  click(amount);
  expect_refusals(97);
  paste_over(QString{100, u'4'});
  EXPECT_EQ(amount.text(), QStringLiteral("444"));
}

TEST_F(NumberFieldTest, LettersAreDroppedAsTheyAreTyped) {
  click(amount);
  type(QStringLiteral("4x5.6"));
  EXPECT_EQ(amount.text(), QStringLiteral("456"));
}

TEST_F(NumberFieldTest, ATextThatIsNoNumberStaysAndIsLogged) {
  rate.show_text(QStringLiteral("abc"));
  click(rate);
  EXPECT_EQ(rate.text(), QStringLiteral("abc"));
  EXPECT_EQ(log(), (std::vector<std::string>{"FrmPlain E_Rate: Type mismatch"}));
  click(save);
  EXPECT_EQ(rate.text(), QStringLiteral("abc"));
  EXPECT_EQ(log(), (std::vector<std::string>{"FrmPlain E_Rate: Type mismatch", "FrmPlain E_Rate: Type mismatch"}));
}

TEST_F(NumberFieldTest, AnAmountThatIsNoNumberIsLoggedOnEntryToo) {
  amount.show_text(QStringLiteral("abc"));
  click(amount);
  EXPECT_EQ(amount.text(), QStringLiteral("abc"));
  EXPECT_EQ(log(), (std::vector<std::string>{"FrmPlain E_Amount: Type mismatch"}));
}

TEST_F(NumberFieldTest, CheckingTypingOnlyLetsTheProgramsTextPass) {
  rate.show_text(QStringLiteral("900"));
  rate.show_text(QStringLiteral("9000"));
  EXPECT_TRUE(watched.boxes.empty());
  click(rate);
  EXPECT_EQ(rate.text(), QStringLiteral("9000000"));
  EXPECT_TRUE(watched.boxes.empty()) << "the raw digits are the program's text, too";
  expect_refusals(1);
  press(Qt::Key_End);
  type(QStringLiteral("1"));
  EXPECT_EQ(rate.text(), QStringLiteral("9000000")) << "one digit typed, one digit cut";
}

TEST_F(NumberFieldTest, TheCutOfATypedCharacterIsNotItselfChecked) {
  rate.show_text(QStringLiteral("90"));
  click(rate);
  press(Qt::Key_End);
  expect_refusals(1);
  press(Qt::Key_Backspace);
  EXPECT_EQ(rate.text(), QStringLiteral("900")) << "9000 is too high as well, and loses one digit, not more";
}

TEST_F(NumberFieldTest, EnterGoesWhereTheRulesSay) {
  click(rate);
  type(QStringLiteral("250"));
  press(Qt::Key_Return);
  EXPECT_TRUE(save.hasFocus());
  EXPECT_EQ(rate.text(), QStringLiteral("0.25"));
  click(amount);
  press(Qt::Key_Return);
  EXPECT_TRUE(amount.hasFocus());
}

TEST_F(NumberFieldTest, WhatTheScreenDoesRunsBehindTheCheckWithTheCutText) {
  click(amount);
  expect_refusals(1);
  type(QStringLiteral("600"));
  EXPECT_EQ(changes, QStringList({"6", "60", "60", "60"}))
      << "the cut is a change of its own, inside the one that it judges";
}

}  // namespace
}  // namespace ecr::test

#include "widgets/typing.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>

namespace ecr::test {
namespace {

constexpr Qt::KeyboardModifier held_keys[] = {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier,
                                              Qt::MetaModifier,  Qt::KeypadModifier,  Qt::GroupSwitchModifier};

/// Every set of these keys.
std::vector<Qt::KeyboardModifiers> all_that_can_be_held() {
  std::vector<Qt::KeyboardModifiers> all;
  for (std::size_t set = 0; set < std::size_t{1} << std::size(held_keys); ++set) {
    Qt::KeyboardModifiers held;
    for (std::size_t i = 0; i < std::size(held_keys); ++i) held.setFlag(held_keys[i], (set >> i & 1) != 0);
    all.push_back(held);
  }
  return all;
}

/// Characters of all kinds: plain, of other scripts, of two units, private, without a picture, control characters.
const QString texts[] = {
    "",   "a",    "7",    " ",    QStringLiteral("\u00e9"),     QStringLiteral("\u20ac"), QStringLiteral("\u4e03"),
    "1a", "\x01", "\x1b", "\x7f", QStringLiteral("\U0001F600"), QStringLiteral("\ue000"), QStringLiteral("\u200d"),
};

QKeyEvent stroke(const QString& text, Qt::KeyboardModifiers held) {
  return {QEvent::KeyPress, Qt::Key_unknown, held, text};
}

TEST(TypedText, IsWhatTheToolkitsFieldInserts) {
  for (const QString& text : texts) {
    for (const Qt::KeyboardModifiers held : all_that_can_be_held()) {
      QKeyEvent key = stroke(text, held);
      const QString typed = typed_text(key);
      QLineEdit field;
      QApplication::sendEvent(&field, &key);
      EXPECT_EQ(field.text(), typed) << text.toStdString() << " with " << held.toInt();
    }
  }
}

TEST(SearchedText, IsWhatTheToolkitsListLooksForControlCharactersAside) {
  for (const QString& text : texts) {
    for (const Qt::KeyboardModifiers held : all_that_can_be_held()) {
      QKeyEvent key = stroke(text, held);
      QComboBox list;
      list.addItems({QStringLiteral("?"), text});
      QApplication::sendEvent(&list, &key);
      const bool is_control = !text.isEmpty() && text.front().category() == QChar::Other_Control;
      const QString expected = list.currentIndex() == 1 && !is_control ? text : QString{};
      EXPECT_EQ(searched_text(key), expected) << text.toStdString() << " with " << held.toInt();
    }
  }
}

TEST(AllDigits, AreThoseOfTheRegister) {
  EXPECT_TRUE(all_digits({}));
  EXPECT_TRUE(all_digits(QStringLiteral("0123456789")));
  for (const QString& other : {QStringLiteral("1a"), QStringLiteral("-1"), QStringLiteral("1.5"),
                               QStringLiteral("\u0661"), QStringLiteral("\uff11"), QStringLiteral(" 1")}) {
    EXPECT_FALSE(all_digits(other)) << other.toStdString();
  }
}

TEST(DigitsAlone, KeepAnEventThatBringsNothingElse) {
  QInputMethodEvent event{QStringLiteral("12"), {{QInputMethodEvent::Cursor, 1, 1, {}}}};
  event.setCommitString(QStringLiteral("3"), -1, 1);
  const auto left = digits_alone(event);
  EXPECT_EQ(left->preeditString(), QStringLiteral("12"));
  EXPECT_EQ(left->commitString(), QStringLiteral("3"));
  EXPECT_EQ(left->replacementStart(), -1);
  EXPECT_EQ(left->replacementLength(), 1);
  EXPECT_EQ(left->attributes().size(), 1);
}

TEST(DigitsAlone, DropAFinalTextTogetherWithWhatItReplaces) {
  QInputMethodEvent event;
  event.setCommitString(QStringLiteral("x"), -2, 2);
  EXPECT_TRUE(changes_text(event));
  EXPECT_FALSE(changes_text(*digits_alone(event)));
}

TEST(DigitsAlone, DropACompositionAndWhatIsSaidOfIt) {
  QInputMethodEvent event{QStringLiteral("x"), {{QInputMethodEvent::Cursor, 1, 1, {}}}};
  event.setCommitString(QStringLiteral("5"));
  const auto left = digits_alone(event);
  EXPECT_EQ(left->preeditString(), QString{});
  EXPECT_EQ(left->commitString(), QStringLiteral("5"));
  EXPECT_TRUE(left->attributes().isEmpty());
}

TEST(DigitsAlone, LetAnInputMethodDelete) {
  QInputMethodEvent event;
  event.setCommitString({}, -1, 1);
  EXPECT_TRUE(changes_text(*digits_alone(event)));
}

}  // namespace
}  // namespace ecr::test

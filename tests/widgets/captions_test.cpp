#include "widgets/captions.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "support_qt/screen_test.h"
#include "widgets/plain_screen.h"

namespace ecr::test {
namespace {

class CaptionsTest : public ScreenTest {
 protected:
  PlainScreen& screen = *new PlainScreen;
  Captions captions;
};

TEST_F(CaptionsTest, ABuiltInCaptionStandsAtOnce) {
  QPushButton button;
  captions.add(button, Key::FRM_ALL_C_SALVA, "Save Setup");
  EXPECT_EQ(button.text(), QStringLiteral("Save Setup"));
}

TEST_F(CaptionsTest, ATextOfTheCatalogueGoesOverTheBuiltInOne) {
  QPushButton save;
  QLabel label;
  captions.add(save, Key::FRM_ALL_C_SALVA, "Save Setup");
  captions.add(label, Key::FRM_ALL_C_ANNULLA, "Back");
  set_message(Key::FRM_ALL_C_SALVA, "Speichern");
  captions.lay();
  EXPECT_EQ(save.text(), QStringLiteral("Speichern"));
  EXPECT_EQ(label.text(), QStringLiteral("Back")) << "a key without a text leaves the caption";
}

TEST_F(CaptionsTest, AnEmptyTextLeavesTheCaptionThatStands) {
  QPushButton save;
  captions.add(save, Key::FRM_ALL_C_SALVA, "Save Setup");
  set_message(Key::FRM_ALL_C_SALVA, "Speichern");
  captions.lay();
  set_message(Key::FRM_ALL_C_SALVA, "");
  captions.lay();
  EXPECT_EQ(save.text(), QStringLiteral("Speichern"));
}

TEST_F(CaptionsTest, AFixedCaptionIsChangedByNoKey) {
  QPushButton button;
  Captions::fix(button, "ECRZ320");
  for (std::size_t i = 0; i < key_count; ++i) set_message(static_cast<Key>(i), "other");
  captions.lay();
  EXPECT_EQ(button.text(), QStringLiteral("ECRZ320"));
}

TEST_F(CaptionsTest, EveryKindOfControlTakesACaption) {
  QPushButton button;
  QCheckBox check;
  QLabel label;
  QGroupBox box;
  for (QWidget* control : {static_cast<QWidget*>(&button), static_cast<QWidget*>(&check), static_cast<QWidget*>(&label),
                           static_cast<QWidget*>(&box), static_cast<QWidget*>(&screen)}) {
    captions.add(*control, Key::FRM_ALL_TITLE, "built in");
  }
  set_message(Key::FRM_ALL_TITLE, "Pr\xE9nom \x80");
  captions.lay();
  const QString text = QStringLiteral("Prénom €");
  EXPECT_EQ(button.text(), text);
  EXPECT_EQ(check.text(), text);
  EXPECT_EQ(label.text(), text);
  EXPECT_EQ(box.title(), text);
  EXPECT_EQ(screen.windowTitle(), text);
}

TEST_F(CaptionsTest, ACarriageReturnIsALineBreak) {
  QLabel label;
  captions.add(label, Key::FRM_ALL_TITLE, "one");
  set_message(Key::FRM_ALL_TITLE, "one\rtwo");
  captions.lay();
  EXPECT_EQ(label.text(), QStringLiteral("one\ntwo"));
}

TEST_F(CaptionsTest, AButtonsMarkIsItsLetter) {
  QPushButton button;
  set_caption(button, QStringLiteral("S&ave && go"));
  EXPECT_EQ(button.text(), QStringLiteral("S&ave && go")) << "the button itself draws two as one";
  EXPECT_EQ(button.shortcut(), QKeySequence(Qt::ALT | Qt::Key_A));
}

TEST_F(CaptionsTest, ALabelWithoutAFieldShowsNoMarks) {
  const std::pair<const char*, const char*> readings[] = {
      {"R&ate", "Rate"}, {"A && B", "A & B"}, {"&&", "&"},    {"&", ""},          {"A&", "A"},
      {"&A&B", "AB"},    {"&&&A", "&A"},      {"A&&&", "A&"}, {"plain", "plain"}, {"&&&&", "&&"}};
  for (const auto& [text, read] : readings) {
    QLabel label;
    set_caption(label, QString::fromLatin1(text));
    EXPECT_EQ(label.text(), QString::fromLatin1(read)) << text;
  }
}

TEST_F(CaptionsTest, ALabelMarksTheLetterOfItsFieldAndNamesIt) {
  auto* column = new PlainScreen;
  auto& field = column->put(new QLineEdit);
  auto& other = column->put(new QLineEdit);
  auto& label = column->put(make_label(QStringLiteral("L_Field"), column, &field));
  set_caption(label, QStringLiteral("&Price && more:"));
  EXPECT_EQ(label.text(), QStringLiteral("&Price && more:"));
  EXPECT_EQ(field.accessibleName(), QStringLiteral("Price & more:"));
  open(column);
  other.setFocus();
  press(Qt::Key_P, Qt::AltModifier);
  EXPECT_TRUE(field.hasFocus());
}

TEST_F(CaptionsTest, ALabelNeverTakesItsTextForMarkup) {
  const QLabel* label = make_label(QStringLiteral("L_Plain"), &screen);
  EXPECT_EQ(label->textFormat(), Qt::PlainText);
  EXPECT_EQ(label->objectName(), QStringLiteral("L_Plain"));
}

TEST_F(CaptionsTest, AChoiceTakesItsDigitFromTheScreenAndItsLabelFromTheCatalogue) {
  EXPECT_EQ(choice(1, Key::FRM_ALL_SINGLE, "1. SINGLE"), QStringLiteral("1. SINGLE"));
  set_message(Key::FRM_ALL_SINGLE, "Einzeln");
  EXPECT_EQ(choice(1, Key::FRM_ALL_SINGLE, "1. SINGLE"), QStringLiteral("1. Einzeln"));
  EXPECT_EQ(choice(7, Key::FRM_ALL_SINGLE, "1. SINGLE"), QStringLiteral("7. Einzeln"));
}

TEST_F(CaptionsTest, ACrossedChoiceAsksOneKeyAndReadsAnother) {
  const auto built = [] { return crossed_choice(0, Key::FRM_ALL_OPEN, Key::FRM_ALL_NORMAL, "0. OPEN"); };
  EXPECT_EQ(built(), QStringLiteral("0. OPEN"));
  set_message(Key::FRM_ALL_OPEN, "Offen");
  EXPECT_EQ(built(), QStringLiteral("0. OPEN"));
  set_message(Key::FRM_ALL_NORMAL, "Normal");
  EXPECT_EQ(built(), QStringLiteral("0. Offen"));
  set_message(Key::FRM_ALL_OPEN, "");
  EXPECT_EQ(built(), QStringLiteral("0. ")) << "the deciding key has a text, the other one has none";
}

TEST_F(CaptionsTest, ACaptionTextFallsBackOnTheBuiltInOne) {
  EXPECT_EQ(caption_text(Key::FRM_DEPT_COL_NAME_MSG, "Name"), QStringLiteral("Name"));
  set_message(Key::FRM_DEPT_COL_NAME_MSG, "Nom");
  EXPECT_EQ(caption_text(Key::FRM_DEPT_COL_NAME_MSG, "Name"), QStringLiteral("Nom"));
}

}  // namespace
}  // namespace ecr::test

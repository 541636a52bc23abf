// The checks that every screen goes through, each shown to find what it is there for.

#include "house/screen_check.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QRadioButton>
#include <QTabWidget>

#include "support_qt/screen_test.h"
#include "widgets/plain_screen.h"

namespace ecr::test {
namespace {

class ScreenCheckTest : public ScreenTest {
 protected:
  ScreenCheckTest() : screen{new PlainScreen} {
    button = &screen->put(new CommandButton{QStringLiteral("C_Go"), screen});
    button->setText(QStringLiteral("Go"));
    field = &screen->put(new Field{QStringLiteral("E_Field"), screen});
    label = &screen->put(make_label(QStringLiteral("L_Field"), screen, field));
    label->setText(QStringLiteral("A label of some length"));
    field->setAccessibleName(QStringLiteral("Field"));
    screen->first = button;
    open(screen);
  }

  /// A control that no layout looks after, at a place of its own.
  template <typename Control>
  Control& loose(Control* control, QRect place) {
    control->setParent(screen);
    control->setGeometry(place);
    control->show();
    return *control;
  }

  PlainScreen* screen;
  CommandButton* button;
  Field* field;
  QLabel* label;
};

TEST_F(ScreenCheckTest, AGoodScreenBringsNoComplaint) {
  EXPECT_EQ(complaints_about_names(*screen), QStringList{});
  EXPECT_EQ(complaints_about_cut_texts(*screen), QStringList{});
  EXPECT_EQ(complaints_about_places(*screen), QStringList{});
  EXPECT_EQ(complaints_about_silent_controls(*screen), QStringList{});
  EXPECT_EQ(complaints_about_tab(*screen), QStringList{});
}

TEST_F(ScreenCheckTest, NamelessControlsAreFound) {
  const auto all = [this](QWidget* control) {
    screen->put(control);
    return complaints_about_names(*screen).size();
  };
  EXPECT_EQ(all(new QLabel{QStringLiteral("text")}), 1);
  EXPECT_EQ(all(new QPushButton), 2);
  EXPECT_EQ(all(new QLineEdit), 3);
  EXPECT_EQ(all(new QComboBox), 4);
  EXPECT_EQ(all(new QTableView), 5);
  EXPECT_EQ(all(new QTabWidget), 6);
  EXPECT_EQ(all(new QGroupBox), 7);
  EXPECT_EQ(all(new QLabel), 7) << "an empty label is no control";
  EXPECT_EQ(all(new QWidget), 7);
}

TEST_F(ScreenCheckTest, TheToolkitsOwnPartsNeedNoNames) {
  screen->put(new NumberList{QStringLiteral("Cmb_Number"), 9, screen}).fill();
  screen->put(new RecordGrid{QStringLiteral("Fg_Grid"), screen});
  EXPECT_EQ(complaints_about_names(*screen), QStringList{});
}

TEST_F(ScreenCheckTest, NamesThatStandTwiceAreFound) {
  screen->put(make_label(QStringLiteral("C_Go"), screen));
  EXPECT_EQ(complaints_about_names(*screen), QStringList{"C_Go stands twice"});
}

TEST_F(ScreenCheckTest, CutTextsAreFound) {
  label->setFixedWidth(30);
  let_screens_settle();
  EXPECT_EQ(complaints_about_cut_texts(*screen).size(), 1);
  label->setWordWrap(true);
  label->setFixedHeight(18);
  let_screens_settle();
  EXPECT_EQ(complaints_about_cut_texts(*screen).size(), 1) << "too low for its lines";
  label->setFixedSize(400, 60);
  let_screens_settle();
  EXPECT_EQ(complaints_about_cut_texts(*screen), QStringList{});
  button->setText(QStringLiteral("A caption that is too long"));
  button->setFixedWidth(60);
  let_screens_settle();
  EXPECT_EQ(complaints_about_cut_texts(*screen).size(), 1);
}

TEST_F(ScreenCheckTest, CutChoicesHeadingsAndTitlesAreFound) {
  auto& list = screen->put(new ChoiceList{QStringLiteral("Cmb_List"), screen});
  list.fill({"0. SHORT", "1. QUITE A LONG CHOICE"});
  list.setFixedWidth(130);
  let_screens_settle();
  EXPECT_EQ(complaints_about_cut_texts(*screen).size(), 1);
  auto& grid = screen->put(new RecordGrid{QStringLiteral("Fg_Grid"), screen});
  grid.cells().resize(1, 2);
  grid.cells().set_headings({"A heading that is long", "B"});
  grid.setColumnWidth(0, 40);
  let_screens_settle();
  EXPECT_EQ(complaints_about_cut_texts(*screen).size(), 2);
  auto& box = screen->put(new QGroupBox{QStringLiteral("A title that is long")});
  box.setFixedWidth(50);
  let_screens_settle();
  EXPECT_EQ(complaints_about_cut_texts(*screen).size(), 3);
}

TEST_F(ScreenCheckTest, ControlsThatOverlapAreFound) {
  const QRect place = button->geometry();
  loose(new QPushButton, place.adjusted(place.width() - 1, 0, 0, 0)).setObjectName(QStringLiteral("C_Over"));
  EXPECT_EQ(complaints_about_places(*screen), QStringList{"C_Go and C_Over overlap"});
}

TEST_F(ScreenCheckTest, ControlsThatReachOutAreFound) {
  loose(new QPushButton, {screen->width() - 10, screen->height() - 5, 40, 3}).setObjectName(QStringLiteral("C_Out"));
  EXPECT_EQ(complaints_about_places(*screen), QStringList{"C_Out reaches out of FrmPlain"});
}

TEST_F(ScreenCheckTest, HiddenControlsLieNowhere) {
  loose(new QPushButton, button->geometry()).hide();
  EXPECT_EQ(complaints_about_places(*screen), QStringList{});
}

TEST_F(ScreenCheckTest, LettersThatAreMarkedTwiceAreFound) {
  button->setText(QStringLiteral("&Go"));
  label->setText(QStringLiteral("A label of some len&gth"));
  EXPECT_EQ(complaints_about_letter_marks(*screen), QStringList{QStringLiteral("C_Go and L_Field share Alt+G")});
  label->setText(QStringLiteral("A &label of some length"));
  EXPECT_EQ(complaints_about_letter_marks(*screen), QStringList{});
}

TEST_F(ScreenCheckTest, SilentControlsAreFound) {
  field->setAccessibleName({});
  label->setBuddy(nullptr);
  EXPECT_EQ(complaints_about_silent_controls(*screen), QStringList{"E_Field"});
  button->setText({});
  EXPECT_EQ(complaints_about_silent_controls(*screen), QStringList({"C_Go", "E_Field"}));
}

TEST_F(ScreenCheckTest, ControlsThatTabPassesByAreFound) {
  field->setFocusPolicy(Qt::ClickFocus);
  EXPECT_EQ(complaints_about_tab(*screen), QStringList{"E_Field"});
  field->setFocusPolicy(Qt::StrongFocus);
  EXPECT_EQ(complaints_about_tab(*screen), QStringList{});
  EXPECT_TRUE(button->hasFocus()) << "the focus is where it was";
}

TEST_F(ScreenCheckTest, OneOptionOfASetIsEnough) {
  auto& one = screen->put(new QRadioButton);
  one.setObjectName(QStringLiteral("Opt(0)"));
  auto& two = screen->put(new QRadioButton);
  two.setObjectName(QStringLiteral("Opt(1)"));
  one.setChecked(true);
  let_screens_settle();
  EXPECT_EQ(complaints_about_tab(*screen), QStringList{});
  one.setFocusPolicy(Qt::ClickFocus);
  two.setFocusPolicy(Qt::ClickFocus);
  EXPECT_EQ(complaints_about_tab(*screen), QStringList({"Opt(0)", "Opt(1)"}));
}

/// A key of a group: Right leads on to the next one.
class GroupKey : public QWidget {
 public:
  GroupKey(const char* name, QWidget* next) : next_{next} {
    setObjectName(QString::fromLatin1(name));
    setAccessibleName(objectName());
    setFocusPolicy(Qt::ClickFocus);
    setMinimumSize(20, 20);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Right && next_ != nullptr) next_->setFocus();
  }

 private:
  QWidget* next_;
};

TEST_F(ScreenCheckTest, WhatTheArrowKeysReachFromOneOfItsKindCounts) {
  auto& last = screen->put(new GroupKey{"L_Key(3)", nullptr});
  auto& middle = screen->put(new GroupKey{"L_Key(2)", &last});
  auto& first = screen->put(new GroupKey{"L_Key(1)", &middle});
  let_screens_settle();
  EXPECT_EQ(complaints_about_tab(*screen).size(), 3);
  first.setFocusPolicy(Qt::StrongFocus);
  EXPECT_EQ(complaints_about_tab(*screen), QStringList{});
  first.setFocusPolicy(Qt::ClickFocus);
  middle.setFocusPolicy(Qt::StrongFocus);
  EXPECT_EQ(complaints_about_tab(*screen), QStringList{"L_Key(1)"}) << "no arrow leads back to it";
}

}  // namespace
}  // namespace ecr::test

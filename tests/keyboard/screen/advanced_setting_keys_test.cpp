#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>
#include <string>
#include <vector>

#include <QAbstractItemView>
#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QTest>
#include <QWindow>

#include "core/global.h"
#include "image/side_files.h"
#include "keyboard/key_codes.h"
#include "keyboard/key_drag.h"
#include "keyboard/key_positions.h"
#include "keyboard/screen/advanced_setting_test.h"
#include "widgets/look.h"

namespace ecr::test {
namespace {

constexpr std::uint8_t dept_1 = 82;

class AdvancedSettingKeys : public AdvancedSettingTest {
 protected:
  AdvancedSettingKeys() { begin(Global::model_z320); }

  /// A session in which each position holds a code of its own, 1 to 19 excepted, and none that is a department's.
  void begin(std::uint8_t model) {
    start_session(model);
    std::iota(PrgMode.KeyLayout.begin(), PrgMode.KeyLayout.end(), std::uint8_t{102});
    lay_digit_keys(PrgMode, model);
    lay_down(PrgMode);
  }
  void open_keys() {
    open_editor();
    go_to_keys();
  }

  static QString cap_name(int key) {
    return member_name(Global::EcrModel == Global::model_z320 ? "L_key2" : "L_key", key);
  }
  [[nodiscard]] KeyCap& cap(int key) const { return control<KeyCap>(cap_name(key)); }
  static int keys() { return Global::EcrModel == Global::model_z320 ? z320_keys : z300_keys; }
  static std::size_t position(int key) {
    const PositionMap& map = Global::EcrModel == Global::model_z320 ? z320_position_map : z300_position_map;
    return static_cast<std::size_t>(std::find(map.begin(), map.end(), key) - map.begin());
  }
  static QColor ink(const KeyCap& key) { return key.palette().color(QPalette::ButtonText); }
  [[nodiscard]] std::string stored_keys() const { return image_file().substr(keys_at, key_positions); }
  [[nodiscard]] int stored(int key) const { return static_cast<unsigned char>(stored_keys()[position(key)]); }

  /// Picks a function from the list with the pointer.
  void choose(std::string_view name) const {
    auto& functions = list("Cmb_KeyList");
    const QString wanted = QStringLiteral(". ") + QString::fromLatin1(name.data(), qsizetype(name.size()));
    const QStringList lines = entries_of(functions);
    const auto found =
        std::find_if(lines.begin(), lines.end(), [&](const QString& line) { return line.endsWith(wanted); });
    ASSERT_NE(found, lines.end()) << name;
    pick(functions, static_cast<int>(found - lines.begin()));
  }

  /// Lets go of what is dragged over a control.
  static void drop(const QMimeData* data, QWidget& over) {
    const QPoint place = over.rect().center();
    QDragEnterEvent enter{place, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier};
    enter.ignore();
    QApplication::sendEvent(&over, &enter);
    if (!enter.isAccepted()) return;
    QDropEvent event{place, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier};
    QApplication::sendEvent(&over, &event);
  }
  /// The display that tests have carries nothing, so what is dragged falls right onto this control.
  void let_drags_fall_on(QWidget& control) {
    carry_drag = [this, &control](QDrag& drag) {
      ++drags;
      EXPECT_FALSE(drag.pixmap().isNull());
      drop(drag.mimeData(), control);
    };
  }
  /// Presses on a control, pulls the pointer out of it and lets go over another one. Answers whether anything came
  /// along.
  bool drag(QWidget& from, QWidget& to) {
    drags = 0;
    let_drags_fall_on(to);
    QWindow* window = stage.windowHandle();
    const QPoint start = from.mapTo(&stage, from.rect().center());
    const QPoint end = to.mapTo(&stage, to.rect().center());
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(window, end);
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, end);
    let_screens_settle();
    return drags == 1;
  }
  ~AdvancedSettingKeys() override { carry_drag = nullptr; }

  int drags = 0;
};

TEST_F(AdvancedSettingKeys, TheListHoldsEachNamedFunctionAndNothingIsChosen) {
  open_keys();
  QStringList lines;
  for (int code = 0; code < 256; ++code) {
    const std::string name{key_name(static_cast<std::uint8_t>(code))};
    if (!name.empty()) lines.append(QString::fromStdString(std::to_string(code) + ". " + name));
  }
  EXPECT_EQ(entries_of(list("Cmb_KeyList")), lines);
  EXPECT_EQ(lines.front(), QStringLiteral("20. DEPT SHIFT, CODE"));
  EXPECT_FALSE(lines.contains(QStringLiteral("39. PO")));
  EXPECT_EQ(list("Cmb_KeyList").text(), QString{});
  EXPECT_EQ(caption("L_Preview"), QString{});
}

TEST_F(AdvancedSettingKeys, TheChosenFunctionIsShownBesideTheList) {
  open_keys();
  choose("DEPT SHIFT, CODE");
  EXPECT_EQ(list("Cmb_KeyList").text(), QStringLiteral("20. DEPT SHIFT, CODE"));
  EXPECT_EQ(caption("L_Preview"), QStringLiteral("DEPT SHIFT, CODE"));
  EXPECT_EQ(control("L_Preview").toolTip(), QStringLiteral("DEPT SHIFT, CODE"));
  choose("PLU 3");
  EXPECT_EQ(caption("L_Preview"), QStringLiteral("PLU 3"));
  EXPECT_EQ(control("L_Preview").toolTip(), QStringLiteral("PLU 3"));
}

TEST_F(AdvancedSettingKeys, EachKeyShowsTheFunctionAtItsPositionInBlack) {
  for (const auto model : {Global::model_z300, Global::model_z320}) {
    begin(model);
    open_keys();
    for (int key = 1; key <= keys(); ++key) {
      const std::string name{key_name(PrgMode.KeyLayout.at(position(key)))};
      EXPECT_EQ(cap(key).text(), QString::fromStdString(name)) << key;
      EXPECT_EQ(ink(cap(key)), text_plain());
    }
    stage.top()->unload();
    let_screens_settle();
  }
}

TEST_F(AdvancedSettingKeys, AClickPutsTheFunctionOnEachKeyAndNothingElseChanges) {
  for (const auto model : {Global::model_z300, Global::model_z320}) {
    begin(model);
    open_keys();
    choose("DEPT 1");
    std::string expected = image_file();
    int before = 0;
    for (int key = 1; key <= keys(); ++key) {
      click(cap_name(key));
      EXPECT_EQ(cap(key).text(), QStringLiteral("DEPT 1"));
      EXPECT_EQ(ink(cap(key)), text_red());
      expected[keys_at + position(key)] = static_cast<char>(dept_1);
      if (before != 0) {
        expected[keys_at + position(before)] = static_cast<char>(no_operation);
        EXPECT_EQ(cap(before).text(), QStringLiteral("NO OPERATION"));
        EXPECT_EQ(ink(cap(before)), text_red());
      }
      before = key;
      save();
      EXPECT_EQ(image_file() == expected, true) << "key " << key;
    }
    stage.top()->unload();
    let_screens_settle();
  }
}

TEST_F(AdvancedSettingKeys, AClickWithNothingChosenClearsTheKey) {
  open_keys();
  click(cap_name(7));
  click(cap_name(8));
  EXPECT_EQ(cap(7).text(), QStringLiteral("NO OPERATION"));
  EXPECT_EQ(ink(cap(8)), text_red());
  save();
  EXPECT_EQ(stored(7), no_operation);
  EXPECT_EQ(stored(8), no_operation);
}

TEST_F(AdvancedSettingKeys, ACodeWithoutANameLeavesTheKeyEmptyAndIsKept) {
  PrgMode.KeyLayout.at(position(3)) = 39;
  PrgMode.KeyLayout.at(position(4)) = 200;
  open_keys();
  EXPECT_EQ(cap(3).text(), QString{});
  EXPECT_EQ(cap(4).text(), QString{});
  save();
  EXPECT_EQ(stored(3), 39);
  EXPECT_EQ(stored(4), 200);
  choose("DEPT 1");
  click(cap_name(3));
  save();
  EXPECT_EQ(stored(3), dept_1);
}

TEST_F(AdvancedSettingKeys, PositionsWithoutAKeyAreKeptThroughLoadAndSave) {
  begin(Global::model_z300);
  const std::string before = image_file();
  open_keys();
  save();
  EXPECT_EQ(image_file() == before, true);
  choose("DEPT 1");
  click(cap_name(1));
  save();
  EXPECT_EQ(stored_keys().substr(53), before.substr(keys_at + 53, 36));
}

TEST_F(AdvancedSettingKeys, AFunctionLeavesAPositionWithoutAKeyToo) {
  begin(Global::model_z300);
  PrgMode.KeyLayout[88] = dept_1;
  open_keys();
  choose("DEPT 1");
  click(cap_name(2));
  save();
  EXPECT_EQ(static_cast<unsigned char>(stored_keys()[88]), no_operation);
  EXPECT_EQ(stored(2), dept_1);
}

TEST_F(AdvancedSettingKeys, KeysThatWereNotSavedAreDropped) {
  open_keys();
  const QString before = cap(9).text();
  click(cap_name(9));
  open_again();
  EXPECT_EQ(cap(9).text(), before);
  EXPECT_EQ(ink(cap(9)), text_plain());
}

TEST_F(AdvancedSettingKeys, TheOtherModelsKeyboardCannotBeReached) {
  for (const auto model : {Global::model_z300, Global::model_z320}) {
    begin(model);
    open_keys();
    const int own = model == Global::model_z320 ? 1 : 0;
    auto& tabs = control<QTabWidget>("Tab_Keyboard");
    EXPECT_EQ(tabs.tabText(0), QStringLiteral("ECR Z300"));
    EXPECT_EQ(tabs.tabText(1), QStringLiteral("ECRZ320"));
    EXPECT_EQ(tabs.currentIndex(), own);
    go_to_tab("Tab_Keyboard", 1 - own);
    EXPECT_EQ(tabs.currentIndex(), own);
    EXPECT_TRUE(cap(1).isVisible());
    tabs.tabBar()->setFocus();
    press(own == 1 ? Qt::Key_Left : Qt::Key_Right);
    EXPECT_EQ(tabs.currentIndex(), own);
    const auto& other = control<KeyCap>(member_name(own == 1 ? "L_key" : "L_key2", own == 1 ? 33 : 69));
    EXPECT_FALSE(other.isVisible());
    EXPECT_EQ(other.text(), QString{});
    stage.top()->unload();
    let_screens_settle();
  }
}

TEST_F(AdvancedSettingKeys, TheChosenFunctionIsMarkedWhereverItSits) {
  open_keys();
  click(cap_name(5));
  click(cap_name(6));
  const auto marked = [this] {
    std::vector<int> found;
    for (int key = 1; key <= keys(); ++key) {
      if (cap(key).is_marked()) found.push_back(key);
    }
    return found;
  };
  EXPECT_EQ(marked(), std::vector<int>{});
  choose("NO OPERATION");
  EXPECT_EQ(marked(), (std::vector<int>{5, 6}));
  choose("DEPT 1");
  EXPECT_EQ(marked(), std::vector<int>{});
  click(cap_name(20));
  EXPECT_EQ(marked(), std::vector<int>{20});
  click(cap_name(21));
  EXPECT_EQ(marked(), std::vector<int>{21});
}

TEST_F(AdvancedSettingKeys, DefaultsAreReadFromTheModelsFileAndShownInBlack) {
  std::string keys(key_positions, '\x32');
  keys[0] = 9;
  keys[88] = 77;
  write("Dati/KEY_DEFAULTZ320.BIN", keys);
  write("Dati/KEY_DEFAULTZ300.BIN", std::string(key_positions, '\x64'));
  open_keys();
  click(cap_name(1));
  const std::string before = image_file();
  click("C_RestoreDefault");
  for (int key = 1; key <= z320_keys; ++key) {
    EXPECT_EQ(cap(key).text(), QStringLiteral("TAKE OUT"));
    EXPECT_EQ(ink(cap(key)), text_plain());
  }
  EXPECT_EQ(image_file() == before, true) << "the button changes the screen only";
  save();
  EXPECT_EQ(stored_keys(), keys) << "positions without a key are restored too";
}

TEST_F(AdvancedSettingKeys, WithoutADefaultFileTheDefaultsReadBeforeComeBack) {
  KeyDefault.fill(50);
  open_keys();
  click("C_RestoreDefault");
  EXPECT_EQ(cap(1).text(), QStringLiteral("TAKE OUT"));
}

TEST_F(AdvancedSettingKeys, DefaultsAreSavedWithDebugOnlyAndFromTheSavedImage) {
  open_keys();
  EXPECT_FALSE(control("C_nuovi_default").isVisible());
  Global::DebugMode = true;
  open_again();
  go_to_keys();
  EXPECT_TRUE(control("C_nuovi_default").isVisible());
  click(cap_name(1));
  click("C_nuovi_default");
  EXPECT_EQ(bytes("Dati/KEY_DEFAULTZ320.BIN"), stored_keys());
  EXPECT_FALSE(exists("Dati/KEY_DEFAULTZ300.BIN"));
  EXPECT_NE(stored(1), no_operation);
}

TEST_F(AdvancedSettingKeys, TheKeyboardIsOneStopOfTabAndArrowsLeadOn) {
  open_keys();
  choose("DEPT 1");
  tab_to(cap(1));
  press(Qt::Key_Tab);
  for (int key = 1; key <= keys(); ++key) EXPECT_FALSE(cap(key).hasFocus()) << key;
  press(Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_TRUE(cap(1).hasFocus());
  press(Qt::Key_Down);
  EXPECT_TRUE(cap(2).hasFocus());
  press(Qt::Key_Right);
  EXPECT_TRUE(cap(7).hasFocus());
  press(Qt::Key_End);
  EXPECT_TRUE(cap(67).hasFocus());
  press(Qt::Key_Left);
  EXPECT_TRUE(cap(63).hasFocus());
  press(Qt::Key_Left);
  EXPECT_TRUE(cap(55).hasFocus()) << "over the digits";
  press(Qt::Key_Home);
  EXPECT_TRUE(cap(2).hasFocus());
  press(Qt::Key_Left);
  EXPECT_TRUE(cap(2).hasFocus());
  press(Qt::Key_Space);
  EXPECT_EQ(cap(2).text(), QStringLiteral("DEPT 1"));
  press(Qt::Key_Down);
  press(Qt::Key_Return);
  EXPECT_EQ(cap(3).text(), QStringLiteral("DEPT 1"));
  EXPECT_EQ(cap(2).text(), QStringLiteral("NO OPERATION"));
  press(Qt::Key_Tab);
  press(Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_TRUE(cap(3).hasFocus()) << "Tab comes back to where one was";
}

TEST_F(AdvancedSettingKeys, EachKeyTellsItsNumberAndFunction) {
  open_keys();
  EXPECT_EQ(cap(12).accessibleName(), QStringLiteral("Key 12 ") + cap(12).text());
  click(cap_name(12));
  EXPECT_EQ(cap(12).accessibleName(), QStringLiteral("Key 12 NO OPERATION"));
}

TEST_F(AdvancedSettingKeys, AFunctionDraggedFromTheListsSideGoesOntoTheKey) {
  open_keys();
  choose("DEPT 1");
  EXPECT_TRUE(drag(control("L_Preview"), cap(30)));
  EXPECT_EQ(cap(30).text(), QStringLiteral("DEPT 1"));
  EXPECT_EQ(ink(cap(30)), text_red());
  EXPECT_TRUE(drag(control("L_Preview"), cap(31)));
  EXPECT_EQ(cap(30).text(), QStringLiteral("NO OPERATION"));
  EXPECT_EQ(cap(31).text(), QStringLiteral("DEPT 1"));
}

TEST_F(AdvancedSettingKeys, AKeyDraggedOntoAnotherTakesItsFunctionAlong) {
  open_keys();
  const QString function = cap(11).text();
  EXPECT_TRUE(drag(cap(11), cap(12)));
  EXPECT_EQ(cap(12).text(), function);
  EXPECT_EQ(cap(11).text(), QStringLiteral("NO OPERATION"));
  EXPECT_EQ(ink(cap(11)), text_red());
  EXPECT_EQ(list("Cmb_KeyList").text(), QString{});
  save();
  EXPECT_EQ(stored(11), no_operation);
  EXPECT_TRUE(drag(cap(12), control("L_KeyAssignHelp")));
  EXPECT_EQ(cap(12).text(), function) << "dropped beside the keys it goes nowhere";
}

TEST_F(AdvancedSettingKeys, WhatHasNoNameCannotBeDragged) {
  PrgMode.KeyLayout.at(position(11)) = 39;
  PrgMode.KeyLayout.at(position(13)) = no_operation;
  open_keys();
  const QString function = cap(12).text();
  EXPECT_FALSE(drag(cap(11), cap(12)));
  EXPECT_FALSE(drag(cap(13), cap(12)));
  EXPECT_FALSE(drag(control("L_Preview"), cap(12))) << "nothing is chosen";
  EXPECT_EQ(cap(12).text(), function);
  EXPECT_EQ(cap(11).text(), QString{});
  EXPECT_EQ(ink(cap(12)), text_plain());
}

TEST_F(AdvancedSettingKeys, ALinePulledOutOfTheOpenListIsChosenAndGoesAlong) {
  open_keys();
  auto& functions = list("Cmb_KeyList");
  const int line = functions.findText(QStringLiteral("82. DEPT 1"));
  let_drags_fall_on(cap(44));
  functions.showPopup();
  QAbstractItemView& view = *functions.view();
  work_until([&view] { return view.isVisible(); });
  view.scrollTo(functions.model()->index(line, 0));
  QWidget& port = *view.viewport();
  const QPoint place = view.visualRect(functions.model()->index(line, 0)).center();
  QTest::mousePress(&port, Qt::LeftButton, Qt::NoModifier, place);
  QTest::mouseMove(&port, place + QPoint{5, 0});
  EXPECT_EQ(drags, 0) << "inside of the list the pointer looks for a line";
  QMouseEvent out{QEvent::MouseMove, QPoint{-50, 0}, port.mapToGlobal(QPoint{-50, 0}),
                  Qt::NoButton,      Qt::LeftButton, Qt::NoModifier};
  QApplication::sendEvent(&port, &out);
  EXPECT_EQ(drags, 1);
  EXPECT_FALSE(view.isVisible());
  EXPECT_EQ(functions.text(), QStringLiteral("82. DEPT 1"));
  EXPECT_EQ(caption("L_Preview"), QStringLiteral("DEPT 1"));
  EXPECT_EQ(cap(44).text(), QStringLiteral("DEPT 1"));
  EXPECT_TRUE(cap(44).is_marked());
}

TEST_F(AdvancedSettingKeys, OtherThingsThatAreDraggedAreNotTaken) {
  open_keys();
  const QString before = cap(2).text();
  QMimeData text;
  text.setText(QStringLiteral("DEPT 1"));
  QMimeData unnamed;
  unnamed.setData(QStringLiteral("application/x-vermanto-key-function"), QByteArray(1, 39));
  for (const QMimeData* data : {&text, &unnamed}) {
    drop(data, cap(2));
    QDropEvent forced{{5, 5}, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier};
    QApplication::sendEvent(&cap(2), &forced);
    EXPECT_EQ(cap(2).text(), before);
  }
}

}  // namespace
}  // namespace ecr::test

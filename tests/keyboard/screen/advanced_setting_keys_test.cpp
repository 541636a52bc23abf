#include "keyboard/screen/advanced_setting_keys.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "fields/key_codes.h"
#include "keyboard/key_default.h"
#include "widgets/look.h"

namespace ecr::test {
namespace {

constexpr std::uint8_t dept_1 = 82;

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

}  // namespace
}  // namespace ecr::test

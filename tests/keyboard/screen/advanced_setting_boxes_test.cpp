#include <array>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "core/catalogue.h"
#include "core/global.h"
#include "keyboard/option_boxes.h"
#include "keyboard/screen/advanced_setting_test.h"
#include "support/random.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

QString q(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

class AdvancedSettingBoxes : public AdvancedSettingTest {
 protected:
  AdvancedSettingBoxes() { start_session(Global::model_z320); }

  /// Any bits in the records of chains and pop-up lists, and in what lies between them.
  static void fill_at_random() {
    Random random{9};
    for (auto& record : PrgMode.AdvSet2) {
      for (Flags& byte : record) byte = random.byte();
    }
    for (auto& record : PrgMode.AdvSet8) {
      for (Flags& byte : record) byte = random.byte();
    }
    for (auto& record : PrgMode.AdvSet20) {
      for (std::uint8_t& byte : record.bytes) byte = random.byte();
    }
  }

  [[nodiscard]] QStringList ticked_in(int list) const {
    QStringList names;
    for (const OptionBox& row : pop_boxes()) {
      if (box(row.control, list).isChecked()) names.append(q(row.control));
    }
    return names;
  }
};

TEST_F(AdvancedSettingBoxes, EverythingHasItsBuiltInCaption) {
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Advanced Setting"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("Advanced Setting"));
  const auto& tabs = control<QTabWidget>("Tab_AdvancedOption");
  EXPECT_EQ(tabs.tabText(0), QStringLiteral("CHAIN REPORT SELECT"));
  EXPECT_EQ(tabs.tabText(1), QStringLiteral("FREE KEY LAYOUT"));
  EXPECT_EQ(tabs.tabText(2), QStringLiteral("POP UP KEY SELECT"));
  EXPECT_EQ(tabs.count(), 3);
  EXPECT_EQ(tabs.currentIndex(), 0);
  EXPECT_EQ(control<QTabBar>("Tab_Chain").count(), 5);
  EXPECT_EQ(control<QTabWidget>("SSTab1").count(), 5);
  EXPECT_EQ(caption("L_KeyList"), QStringLiteral("Key list"));
  EXPECT_EQ(caption("C_RestoreDefault"), QStringLiteral("Restore Default"));
  EXPECT_EQ(caption("C_nuovi_default"), QStringLiteral("Salva Default"));
  EXPECT_EQ(caption("C_Salva"), QStringLiteral("Save Setup"));
  EXPECT_FALSE(caption("L_KeyAssignHelp").isEmpty());
  for (const OptionBox& row : chain_boxes()) EXPECT_EQ(caption(q(row.control)), q(row.caption));
  for (int list = 0; list < 5; ++list) {
    for (const OptionBox& row : pop_boxes()) EXPECT_EQ(box(row.control, list).text(), q(row.caption));
    EXPECT_EQ(box("C_RestoreDefaultPop", list).text(), QStringLiteral("Restore Default"));
  }
  EXPECT_EQ(caption("Chk_P1(0)"), QStringLiteral("Chk_FC"));
  EXPECT_EQ(caption("Chk_DepartmentAndFinanciaGT"), QStringLiteral("Department And Financia GT"));
}

TEST_F(AdvancedSettingBoxes, CaptionsComeFromTheKeysThatBearTheControlsNames) {
  for (std::size_t i = 0; i < key_count; ++i)
    set_message(static_cast<Key>(i), std::string{name_of(static_cast<Key>(i))});
  open_editor();
  const auto& tabs = control<QTabWidget>("Tab_AdvancedOption");
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("FRM_ADVANCED_SETTING_TITLE_MSG"));
  for (int tab = 0; tab < 3; ++tab) {
    EXPECT_EQ(tabs.tabText(tab), QStringLiteral("FRM_ADVANCED_SETTINF_TAB%1_ADVANCED_OPTION").arg(tab + 1));
  }
  EXPECT_EQ(caption("L_KeyList"), QStringLiteral("FRM_ADVANCED_SETTING_L_KEY_LIST"));
  EXPECT_EQ(caption("L_KeyAssignHelp"), QStringLiteral("FRM_ADVANCED_SETTING_L_KEY_ASSIGN_HELP"));
  EXPECT_EQ(caption("C_RestoreDefault"), QStringLiteral("FRM_ADVANCED_SETTING_C_RESTORE_DEFAULT_MSG"));
  const auto plain = [](QString name) { return name.remove(u'_').toUpper(); };
  for (const auto rows : {chain_boxes(), pop_boxes()}) {
    for (const OptionBox& row : rows) {
      const QString name = rows.data() == chain_boxes().data() ? q(row.control) : q(row.control) + "(3)";
      if (row.control == "Chk_SalesClerk") {
        EXPECT_EQ(caption(name), QStringLiteral("Sales Clerk"));
        continue;
      }
      QString expected = plain(QStringLiteral("FRM_ADVANCED_SETTING_") + q(row.control) + QStringLiteral("_MSG"));
      expected.replace(QStringLiteral("FINANCIAGT"), QStringLiteral("FINANCIALGT"));
      EXPECT_EQ(plain(caption(name)), expected);
    }
  }
}

TEST_F(AdvancedSettingBoxes, TheEnglishFileNamesThePercentKeys) {
  fill_catalogue();
  open_editor();
  EXPECT_EQ(caption("Chk_P1(0)"), QStringLiteral("%1"));
  EXPECT_EQ(caption("ChK_PM2(4)"), QStringLiteral("+/- 2"));
  EXPECT_EQ(log(), Lines{});
}

TEST_F(AdvancedSettingBoxes, EachReportOfEachChainFlipsItsBitAndNoOther) {
  fill_at_random();
  open_editor();
  save();
  for (int chain = 0; chain < 5; ++chain) {
    go_to_tab("Tab_Chain", chain);
    for (const OptionBox& row : chain_boxes()) {
      std::string expected = image_file();
      const std::size_t at = chain_at + static_cast<std::size_t>(chain) * 2 + row.byte;
      expected[at] = static_cast<char>(expected[at] ^ (1 << row.bit));
      click_box(box(q(row.control)));
      save();
      EXPECT_EQ(image_file() == expected, true) << row.control << " of chain " << chain;
      EXPECT_EQ(box(q(row.control)).isChecked(), (expected[at] >> row.bit & 1) == 1);
    }
  }
}

TEST_F(AdvancedSettingBoxes, EachFunctionOfEachPopUpListFlipsItsBitAndNoOther) {
  fill_at_random();
  open_editor();
  save();
  for (int list = 0; list < 5; ++list) {
    go_to_pop_list(list);
    for (const OptionBox& row : pop_boxes()) {
      std::string expected = image_file();
      const std::size_t at = pop_at + static_cast<std::size_t>(list) * 8 + row.byte;
      expected[at] = static_cast<char>(expected[at] ^ (1 << row.bit));
      QAbstractButton& one = box(row.control, list);
      if (one.isEnabled()) {
        click_box(one);
      } else {
        // Only the program can change it.
        one.toggle();
      }
      save();
      EXPECT_EQ(image_file() == expected, true) << row.control << " of list " << list;
    }
  }
}

TEST_F(AdvancedSettingBoxes, EachBoxShowsItsBitWhenItIsLoaded) {
  for (const OptionBox& row : pop_boxes()) {
    for (auto& record : PrgMode.AdvSet8) record = {};
    const bool is_odd = row.control == "Chk_PluInquiry";
    const std::size_t byte = is_odd ? 2 : row.byte;
    PrgMode.AdvSet8[1].at(byte) = static_cast<Flags>(1U << row.bit);
    if (stage.top() == nullptr) {
      open_editor();
    } else {
      go_to_tab("Tab_Chain", 0);
    }
    const bool is_po = byte == 2 && row.bit == 0;
    EXPECT_EQ(ticked_in(1), is_po ? QStringList({"Chk_PO", "Chk_PluInquiry"}) : QStringList{q(row.control)});
    for (const int list : {0, 2, 3, 4}) EXPECT_EQ(ticked_in(list), QStringList{});
  }
}

TEST_F(AdvancedSettingBoxes, ReceiptOnOffCannotBeChangedAndIsKept) {
  PrgMode.AdvSet8[0][0] = 1;
  PrgMode.AdvSet8[1][0] = 0;
  open_editor();
  for (int list = 0; list < 5; ++list) {
    for (const OptionBox& row : pop_boxes()) {
      EXPECT_EQ(box(row.control, list).isEnabled(), row.control != "Chk_ReceiptOn_Off") << row.control;
    }
  }
  EXPECT_TRUE(box("Chk_ReceiptOn_Off", 0).isChecked());
  EXPECT_FALSE(box("Chk_ReceiptOn_Off", 1).isChecked());
  save();
  EXPECT_EQ(image_file()[pop_at], 1);
  EXPECT_EQ(image_file()[pop_at + 8], 0);
}

TEST_F(AdvancedSettingBoxes, ChainTicksThatWereNotSavedAreDroppedByAnotherTab) {
  PrgMode.AdvSet2[0] = {0x04, 0x00};
  PrgMode.AdvSet2[1] = {0x00, 0x01};
  open_editor();
  EXPECT_TRUE(box("Chk_AllPlu").isChecked());
  click_box(box("Chk_AllPlu"));
  click_box(box("Chk_Hourly"));
  go_to_tab("Tab_Chain", 1);
  EXPECT_FALSE(box("Chk_AllPlu").isChecked());
  EXPECT_FALSE(box("Chk_Hourly").isChecked());
  EXPECT_TRUE(box("Chk_FullEJ").isChecked());
  go_to_tab("Tab_Chain", 0);
  EXPECT_TRUE(box("Chk_AllPlu").isChecked());
  EXPECT_FALSE(box("Chk_Hourly").isChecked());
  click_box(box("Chk_Hourly"));
  go_to_tab("Tab_Chain", 0);
  EXPECT_FALSE(box("Chk_Hourly").isChecked()) << "a click on the tab in front loads its chain too";
}

TEST_F(AdvancedSettingBoxes, PopUpTicksThatWereNotSavedAreDroppedByAnotherChain) {
  PrgMode.AdvSet8 = {};
  open_editor();
  go_to_pop_list(2);
  click_box(box("Chk_Hold(2)"));
  go_to_tab("Tab_AdvancedOption", 0);
  EXPECT_TRUE(box("Chk_Hold", 2).isChecked()) << "the tabs of the screen drop nothing";
  go_to_tab("Tab_Chain", 3);
  EXPECT_FALSE(box("Chk_Hold", 2).isChecked());
}

TEST_F(AdvancedSettingBoxes, ASaveStoresTheChainInFrontOnly) {
  for (auto& record : PrgMode.AdvSet2) record = {0, 0};
  open_editor();
  go_to_tab("Tab_Chain", 4);
  click_box(box("Chk_DepartmentGroup"));
  save();
  EXPECT_EQ(image_file().substr(chain_at, 10), std::string("\0\0\0\0\0\0\0\0\x02\0", 10));
}

TEST_F(AdvancedSettingBoxes, PluInquiryComesBackAsPaidOutStands) {
  PrgMode.AdvSet8 = {};
  open_editor();
  go_to_pop_list(0);
  click_box(box("Chk_PluInquiry(0)"));
  save();
  EXPECT_EQ(image_file()[pop_at + 3], 1);
  EXPECT_EQ(image_file()[pop_at + 2], 0);
  EXPECT_TRUE(box("Chk_PluInquiry", 0).isChecked()) << "the save itself loads nothing";
  open_again();
  EXPECT_FALSE(box("Chk_PluInquiry", 0).isChecked());
  save();
  EXPECT_EQ(image_file()[pop_at + 3], 0) << "what is shown is stored";
  go_to_pop_list(0);
  click_box(box("Chk_PO(0)"));
  save();
  open_again();
  EXPECT_TRUE(box("Chk_PluInquiry", 0).isChecked());
}

TEST_F(AdvancedSettingBoxes, DefaultTicksReplaceAllThatIsTicked) {
  for (const auto model : {Global::model_z300, Global::model_z320}) {
    start_session(model);
    for (auto& record : PrgMode.AdvSet8) record.fill(0xFF);
    open_editor();
    const bool z320 = model == Global::model_z320;
    const std::array<QStringList, 5> expected = {
        QStringList{"Chk_P1", "Chk_P2", "ChK_PM1", "ChK_PM2"},
        z320 ? QStringList{"Chk_Void", "Chk_FullVoid", "Chk_Refund"} : QStringList{"Chk_Void", "Chk_FullVoid"},
        QStringList{"Chk_Check", "Chk_Charge", "Chk_Credit2", "Chk_Credit3", "Chk_Credit4", "Chk_Credit5"},
        QStringList{"Chk_RA", "Chk_PO"}, z320 ? QStringList{} : QStringList{"Chk_FC", "ChK_TakeOut"}};
    const std::string before = image_file();
    for (int list = 0; list < 5; ++list) {
      EXPECT_EQ(ticked_in(list).size(), 44);
      go_to_pop_list(list);
      click(member_name("C_RestoreDefaultPop", list));
      EXPECT_EQ(ticked_in(list), expected.at(static_cast<std::size_t>(list))) << "list " << list;
    }
    EXPECT_EQ(image_file() == before, true) << "the buttons change the screen only";
    save();
    // Three bits of byte 3, one of byte 5 and the bytes 6 and 7 are no box's.
    EXPECT_EQ(image_file().substr(pop_at + 24, 8), std::string("\x00\x80\x01\xE0\x00\x80\xFF\xFF", 8));
    stage.top()->unload();
    let_screens_settle();
  }
}

TEST_F(AdvancedSettingBoxes, OneListsDefaultsLeaveTheOthersAlone) {
  PrgMode.AdvSet8 = {};
  PrgMode.AdvSet8[1][3] = 2;
  open_editor();
  go_to_pop_list(0);
  click("C_RestoreDefaultPop(0)");
  EXPECT_EQ(ticked_in(1), QStringList{"Chk_Hold"});
  EXPECT_EQ(ticked_in(0).size(), 4);
}

TEST_F(AdvancedSettingBoxes, SavedUntouchedNothingChangesButPluInquiry) {
  fill_at_random();
  for (auto& record : PrgMode.AdvSet8) record[3] = static_cast<Flags>((record[3] & 0xFE) | (record[2] & 1));
  const std::string before = file_bytes(PrgMode);
  open_editor();
  save();
  EXPECT_EQ(image_file() == before, true);
  EXPECT_EQ(log(), Lines{});
}

TEST_F(AdvancedSettingBoxes, WorkByKeyboardAlone) {
  PrgMode.AdvSet2 = {};
  open_editor();
  press(Qt::Key_Tab);
  EXPECT_TRUE(control("Tab_Chain").hasFocus());
  press(Qt::Key_Right, Qt::NoModifier, 2);
  press(Qt::Key_Tab);
  EXPECT_TRUE(box("Chk_AllPlu").hasFocus());
  press(Qt::Key_Space);
  tab_to(control("C_Salva"));
  press(Qt::Key_Return);
  EXPECT_EQ(image_file().substr(chain_at, 10), std::string("\0\0\0\0\x04\0\0\0\0\0", 10));
}

TEST_F(AdvancedSettingBoxes, SendTakesWhatIsSaved) {
  PrgMode.AdvSet2 = {};
  lay_down(PrgMode);
  link().be_a_register();
  open_editor();
  click_box(box("Chk_Hourly"));
  click("C_Invia_Ecr");
  EXPECT_EQ(link().received[0].substr(chain_at, 2), std::string(2, '\0'));
  EXPECT_TRUE(box("Chk_Hourly").isChecked()) << "the screen keeps what was ticked";
  save();
  click("C_Invia_Ecr");
  EXPECT_EQ(link().received[0].substr(chain_at, 2), std::string("\x20\0", 2));
  EXPECT_TRUE(control("C_Salva").isEnabled());
}

}  // namespace
}  // namespace ecr::test

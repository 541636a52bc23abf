#include "editors/program/frm_ns_menu_setting.h"

#include <gtest/gtest.h>

#include "core/global.h"
#include "editors/option_screen_test.h"

namespace ecr::test::ns_menu_setting_cases {
namespace {

const QString screen = QStringLiteral("FrmNSMenuSetting");
const std::vector<ListInImage> lists = {
    {"Cmb_DrawerOpen", 69, 0, {"0. OPEN", "1. CLOSED"}},
    {"Cmb_ControlKeyPositioning", 69, 1, {"0. REG & MGR", "1. MGR ONLY"}},
    {"Cmb_ReceiptPrint", 69, 2, {"0. PRINT", "1. NOT PRINT"}},
    {"Cmb_ReceiptHeaderPrint", 69, 3, {"0. PRINT", "1. NOT PRINT"}},
    {"Cmb_EJInput", 69, 4, {"0. INPUT", "1. NOT INPUT"}},
    {"Cmb_ConsecutiveIncrement", 69, 5, {"0. UPDATE", "1. NOT UPDATE"}},
};

using FrmNSMenuSettingTest = OptionScreenTest;

TEST_F(FrmNSMenuSettingTest, ListsHaveTheirEntries) {
  check_entries(screen, lists);
}

TEST_F(FrmNSMenuSettingTest, EveryStoredValueIsShown) {
  check_loading(screen, lists);
}

TEST_F(FrmNSMenuSettingTest, EveryChoiceSavesItsBitAndNoOther) {
  check_every_choice(screen, lists);
}

TEST_F(FrmNSMenuSettingTest, SavingUntouchedChangesNothing) {
  check_saving_untouched(screen, lists);
}

TEST_F(FrmNSMenuSettingTest, CaptionsAreTheBuiltInOnes) {
  start_session(Global::model_z320);
  open(screen);
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Program #/NS Key"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("PROGRAM #/NS KEY"));
}

TEST_F(FrmNSMenuSettingTest, TheTwoUpperBitsSurvive) {
  start_session(Global::model_z300);
  PrgModeImage image = good_image(Global::model_z300);
  image.NoSaleOpt = 0xC0;
  lay_down(image);
  open(screen);
  list("Cmb_EJInput").show_entry(1);
  click("C_Salva");
  EXPECT_EQ(image_file()[69], '\xD0');
}

TEST_F(FrmNSMenuSettingTest, FaultsWouldStandInTheLogBehindThesePrefixes) {
  EXPECT_EQ(ns_menu_setting.load_prefix, "FrmNsMenuSetting form_load: ") << "not the spelling of the screen";
  EXPECT_EQ(ns_menu_setting.save_prefix, "FrmNsMenuSetting Salva: ");
}

}  // namespace
}  // namespace ecr::test::ns_menu_setting_cases

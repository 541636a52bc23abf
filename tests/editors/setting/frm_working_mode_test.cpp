#include <gtest/gtest.h>

#include "core/catalogue.h"
#include "core/global.h"
#include "editors/option_screen_test.h"

namespace ecr::test::working_mode_cases {
namespace {

const QString screen = QStringLiteral("FrmWorkingMode");
const std::vector<ListInImage> lists = {
    {.control = "Cmb_VatCalculation", .byte = 3, .bit = whole_byte, .entries = {"0. VAT", "1. ADD ON TAX"}},
    {.control = "Cmb_FC_ConvertCalculation", .byte = 11, .bit = 1, .entries = {"0. DIVIDE", "1. MULTIPLE"}},
    {.control = "Cmb_PM_Per_Result", .byte = 11, .bit = 0, .entries = {"0. ENABLE", "1. DISABLE"}},
    {.control = "Cmb_ZeroPriceRegistration", .byte = 10, .bit = 6, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_PostTender", .byte = 10, .bit = 5, .entries = {"0. ENABLE", "1. DISABLE"}},
    {.control = "Cmb_PluPageSelection",
     .byte = 2,
     .bit = whole_byte,
     .entries = {"0. EACH ENTRY", "1. END OF TRANSACTION", "2. STAY DOWN"},
     .hidden_on_z300 = true},
    {.control = "Cmb_Price1_2ShiftSel",
     .byte = 1,
     .bit = whole_byte,
     .entries = {"0. EACH ENTRY", "1. END OF TRANSACTION", "2. STAY DOWN"},
     .hidden_on_z300 = true},
};

using FrmWorkingModeTest = OptionScreenTest;

TEST_F(FrmWorkingModeTest, ListsHaveTheirEntries) {
  check_entries(screen, lists);
}

TEST_F(FrmWorkingModeTest, EveryStoredValueIsShown) {
  check_loading(screen, lists);
}

TEST_F(FrmWorkingModeTest, EveryChoiceSavesItsPlaceAndNoOther) {
  check_every_choice(screen, lists);
}

TEST_F(FrmWorkingModeTest, SavingUntouchedChangesOnlyWhatTheListsShow) {
  check_saving_untouched(screen, lists);
}

TEST_F(FrmWorkingModeTest, CaptionsAreTheBuiltInOnesUntilTheCatalogueHasOthers) {
  start_session(Global::model_z320);
  open(screen);
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Operating Mode"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("OPERATING MODE"));
  stage.close_top();
  fill_catalogue();
  open(screen);
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Operating mode"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("Operating mode"));
}

TEST_F(FrmWorkingModeTest, TheHiddenShiftsSurviveOnTheZ300) {
  start_session(Global::model_z300);
  for (std::uint8_t shift = 0; shift <= 2; ++shift) {
    PrgModeImage image = good_image(Global::model_z300);
    image.Set01_Working = shift;
    image.Set02_Working = static_cast<std::uint8_t>(2 - shift);
    lay_down(image);
    open(screen);
    EXPECT_TRUE(control("L_PluPageSelection").isHidden());
    EXPECT_TRUE(control("L_Price1_2ShiftSel").isHidden());
    click("C_Salva");
    EXPECT_EQ(PrgMode.Set01_Working, shift);
    EXPECT_EQ(PrgMode.Set02_Working, 2 - shift);
    stage.close_top();
  }
}

TEST_F(FrmWorkingModeTest, AVatCalculationOfTwoShowsNothingAndSavesZero) {
  start_session(Global::model_z320);
  PrgModeImage image = good_image(Global::model_z320);
  image.Set03_Working = 2;
  lay_down(image);
  open(screen);
  EXPECT_EQ(list("Cmb_VatCalculation").text(), QString{});
  click("C_Salva");
  EXPECT_EQ(image_file()[3], '\0');
}

TEST_F(FrmWorkingModeTest, TheVatKeysAreCrossed) {
  start_session(Global::model_z320);
  set_message(Key::FRM_WORKING_MODE_CMB_VAT_CALCULATION0_MSG, "key 0");
  open(screen);
  EXPECT_EQ(entries_of(list("Cmb_VatCalculation")), (QStringList{"0. VAT", "1. key 0"}));
  stage.close_top();
  set_message(Key::FRM_WORKING_MODE_CMB_VAT_CALCULATION1_MSG, "key 1");
  open(screen);
  EXPECT_EQ(entries_of(list("Cmb_VatCalculation")), (QStringList{"0. key 1", "1. key 0"}));
}

TEST_F(FrmWorkingModeTest, ANumberedTextOfTheCatalogueDoesNotDisturbTheValue) {
  start_session(Global::model_z320);
  set_message(Key::FRM_ALL_DISABLE, "2.5 off");
  open(screen);
  list("Cmb_PostTender").show_entry(1);
  EXPECT_EQ(list("Cmb_PostTender").text(), QStringLiteral("1. 2.5 off"));
  click("C_Salva");
  EXPECT_EQ(image_file()[10] & 0x20, 0x20);
}

}  // namespace
}  // namespace ecr::test::working_mode_cases

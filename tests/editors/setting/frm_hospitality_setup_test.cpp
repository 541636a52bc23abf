#include <gtest/gtest.h>

#include "core/catalogue.h"
#include "core/global.h"
#include "editors/option_screen_test.h"

namespace ecr::test::hospitality_setup_cases {
namespace {

const QString screen = QStringLiteral("FrmHospitalitySetup");
const std::vector<ListInImage> lists = {
    {.control = "Cmb_TableCompulsory", .byte = 11, .bit = 6, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_GuestCompulsory", .byte = 11, .bit = 7, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_ExclusiveClerk", .byte = 12, .bit = 0, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_Review_ProformaReceipt", .byte = 12, .bit = 1, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_ConsUpdateOnNewBalance", .byte = 12, .bit = 2, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_ConsUpdateOnInvoice", .byte = 12, .bit = 3, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_ConsUpdateOnReview_Proforma", .byte = 12, .bit = 4, .entries = {"0. YES", "1. NO"}},
};

using FrmHospitalitySetupTest = OptionScreenTest;

TEST_F(FrmHospitalitySetupTest, ListsHaveTheirEntries) {
  check_entries(screen, lists);
}

TEST_F(FrmHospitalitySetupTest, EveryStoredValueIsShown) {
  check_loading(screen, lists);
}

TEST_F(FrmHospitalitySetupTest, EveryChoiceSavesItsPlaceAndNoOther) {
  check_every_choice(screen, lists, Save::changes_the_working_image_only);
}

TEST_F(FrmHospitalitySetupTest, SavingUntouchedChangesOnlyWhatTheListsShow) {
  check_saving_untouched(screen, lists, Save::changes_the_working_image_only);
}

TEST_F(FrmHospitalitySetupTest, CaptionsAreTheBuiltInOnesUntilTheCatalogueHasOthers) {
  start_session(Global::model_z320);
  open(screen);
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Hospitality Setup"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("HOSPITALITY SETUP"));
  stage.close_top();
  fill_catalogue();
  open(screen);
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Hospitality setup"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("Hospitality setup"));
}

TEST_F(FrmHospitalitySetupTest, BitsOfOthersSurvive) {
  start_session(Global::model_z320);
  PrgModeImage image = good_image(Global::model_z320);
  image.Set11_Shared = 0xFF;
  image.Set12_Hospitality = 0xFF;
  lay_down(image);
  open(screen);
  for (const ListInImage& each : lists) list(QString::fromLatin1(each.control)).show_entry(0);
  click("C_Salva");
  EXPECT_EQ(PrgMode.Set11_Shared, 0x3F);
  EXPECT_EQ(PrgMode.Set12_Hospitality, 0xE0);
}

TEST_F(FrmHospitalitySetupTest, SaveNamesNoFileSinceItWritesNone) {
  start_session(Global::model_z320);
  open(screen);
  EXPECT_EQ(button("C_Salva").toolTip(), QString{});
  open("FrmClerkMenuSetup");
  EXPECT_TRUE(button("C_Salva").toolTip().endsWith(QStringLiteral("PRG_MODE.BIN")));
}

TEST_F(FrmHospitalitySetupTest, TheFileFollowsWhenAnotherEditorSaves) {
  start_session(Global::model_z320);
  PrgModeImage image = good_image(Global::model_z320);
  image.Set12_Hospitality = 0;
  lay_down(image);
  const std::string before = image_file();
  open(screen);
  list("Cmb_ExclusiveClerk").show_entry(1);
  click("C_Salva");
  click("C_Annulla");
  EXPECT_EQ(PrgMode.Set12_Hospitality, 1);
  EXPECT_EQ(image_file(), before);
  open("FrmClerkMenuSetup");
  click("C_Salva");
  EXPECT_EQ(image_file()[12], 1);
}

}  // namespace
}  // namespace ecr::test::hospitality_setup_cases

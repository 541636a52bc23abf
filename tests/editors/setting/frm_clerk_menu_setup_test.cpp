#include <gtest/gtest.h>

#include "core/catalogue.h"
#include "core/global.h"
#include "editors/option_screen_test.h"

namespace ecr::test::clerk_menu_setup_cases {
namespace {

const QString screen = QStringLiteral("FrmClerkMenuSetup");
const std::vector<ListInImage> lists = {
    {.control = "Cmb_ClerkSystem", .byte = 9, .bit = 4, .entries = {"0. INACTIVE", "1. ACTIVE"}},
    {.control = "Cmb_MustClerkPassword", .byte = 9, .bit = 5, .entries = {"0. NO", "1. YES"}},
    {.control = "Cmb_EachTransactionOfClerk", .byte = 9, .bit = 6, .entries = {"0. NO", "1. YES"}},
    {.control = "Cmb_LoginClerkDisplay", .byte = 9, .bit = 7, .entries = {"0. INACTIVE", "1. ACTIVE"}},
};

using FrmClerkMenuSetupTest = OptionScreenTest;

TEST_F(FrmClerkMenuSetupTest, ListsHaveTheirEntries) {
  check_entries(screen, lists);
}

TEST_F(FrmClerkMenuSetupTest, EveryStoredValueIsShown) {
  check_loading(screen, lists);
}

TEST_F(FrmClerkMenuSetupTest, EveryChoiceSavesItsPlaceAndNoOther) {
  check_every_choice(screen, lists);
}

TEST_F(FrmClerkMenuSetupTest, SavingUntouchedChangesOnlyWhatTheListsShow) {
  check_saving_untouched(screen, lists);
}

TEST_F(FrmClerkMenuSetupTest, CaptionsAreTheBuiltInOnesUntilTheCatalogueHasOthers) {
  start_session(Global::model_z320);
  open(screen);
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Clerk Setup"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("CLERK SETUP"));
  stage.close_top();
  fill_catalogue();
  open(screen);
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Clerk setup"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("Clerk setup"));
}

TEST_F(FrmClerkMenuSetupTest, TheLowerFourBitsSurvive) {
  start_session(Global::model_z320);
  PrgModeImage image = good_image(Global::model_z320);
  image.Set09_ClerkMenu = 0x0F;
  lay_down(image);
  open(screen);
  for (const ListInImage& each : lists) list(QString::fromLatin1(each.control)).show_entry(1);
  click("C_Salva");
  EXPECT_EQ(image_file()[9], '\xFF');
  for (const ListInImage& each : lists) list(QString::fromLatin1(each.control)).show_entry(0);
  click("C_Salva");
  EXPECT_EQ(image_file()[9], '\x0F');
}

TEST_F(FrmClerkMenuSetupTest, TheLoginDisplayTakesItsKeysCrosswise) {
  start_session(Global::model_z320);
  set_message(Key::FRM_ALL_ACTIVE, "on");
  open(screen);
  EXPECT_EQ(entries_of(list("Cmb_ClerkSystem")), (QStringList{"0. INACTIVE", "1. on"}));
  EXPECT_EQ(entries_of(list("Cmb_LoginClerkDisplay")), (QStringList{"0. on", "1. ACTIVE"}));
  stage.close_top();
  set_message(Key::FRM_ALL_INACTIVE, "off");
  open(screen);
  EXPECT_EQ(entries_of(list("Cmb_ClerkSystem")), (QStringList{"0. off", "1. on"}));
  EXPECT_EQ(entries_of(list("Cmb_LoginClerkDisplay")), (QStringList{"0. on", "1. off"}));
}

}  // namespace
}  // namespace ecr::test::clerk_menu_setup_cases

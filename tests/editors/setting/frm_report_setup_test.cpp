#include <gtest/gtest.h>

#include "core/catalogue.h"
#include "core/global.h"
#include "editors/option_screen_test.h"

namespace ecr::test::report_setup_cases {
namespace {

const QString screen = QStringLiteral("FrmReportSetup");
const std::vector<ListInImage> lists = {
    {.control = "Cmb_ConsecutiveReset", .byte = 10, .bit = 1, .entries = {"0. NO", "1. YES"}},
    {.control = "Cmb_InvoiceReset", .byte = 10, .bit = 2, .entries = {"0. NO", "1. YES"}},
    {.control = "Cmb_GTReset", .byte = 10, .bit = 3, .entries = {"0. NO", "1. YES"}},
    {.control = "Cmb_Z1_Z2CounterReset", .byte = 10, .bit = 4, .entries = {"0. NO", "1. YES"}},
    {.control = "Cmb_DuplicateZ", .byte = 11, .bit = 3, .entries = {"0. ACTIVE", "1. INACTIVE"}},
    {.control = "Cmb_ZeroSkip", .byte = 11, .bit = 4, .entries = {"0. YES", "1. NO"}},
};

using FrmReportSetupTest = OptionScreenTest;

TEST_F(FrmReportSetupTest, ListsHaveTheirEntries) {
  check_entries(screen, lists);
}

TEST_F(FrmReportSetupTest, EveryStoredValueIsShown) {
  check_loading(screen, lists);
}

TEST_F(FrmReportSetupTest, EveryChoiceSavesItsPlaceAndNoOther) {
  check_every_choice(screen, lists);
}

TEST_F(FrmReportSetupTest, SavingUntouchedChangesOnlyWhatTheListsShow) {
  check_saving_untouched(screen, lists);
}

TEST_F(FrmReportSetupTest, CaptionsAreTheBuiltInOnesUntilTheCatalogueHasOthers) {
  start_session(Global::model_z320);
  open(screen);
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Report Setup"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("REPORT SETUP"));
  stage.close_top();
  fill_catalogue();
  open(screen);
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Report setup"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("Report setup"));
}

TEST_F(FrmReportSetupTest, ChangesItsSixBitsOnly) {
  start_session(Global::model_z320);
  PrgModeImage image = good_image(Global::model_z320);
  image.Set10_Report = 0xFF;
  image.Set11_Shared = 0xFF;
  lay_down(image);
  open(screen);
  for (const ListInImage& each : lists) {
    EXPECT_EQ(list(QString::fromLatin1(each.control)).currentIndex(), 1);
  }
  click("C_Salva");
  EXPECT_EQ(PrgMode.Set10_Report, 0xFF);
  EXPECT_EQ(PrgMode.Set11_Shared, 0xFF);
  for (const ListInImage& each : lists) list(QString::fromLatin1(each.control)).show_entry(0);
  click("C_Salva");
  EXPECT_EQ(PrgMode.Set10_Report, 0xE1);
  EXPECT_EQ(PrgMode.Set11_Shared, 0xE7);
}

}  // namespace
}  // namespace ecr::test::report_setup_cases

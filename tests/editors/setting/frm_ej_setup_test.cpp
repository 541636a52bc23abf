#include <array>
#include <gtest/gtest.h>

#include "core/catalogue.h"
#include "core/global.h"
#include "editors/option_screen_test.h"

namespace ecr::test::ej_setup_cases {
namespace {

const QString screen = QStringLiteral("FrmEJSetup");
const std::vector<ListInImage> lists = {
    {.control = "Cmb_EJSystem",
     .byte = 8,
     .bit = whole_byte,
     .entries = {"0. STANDARD", "1. DYNAMIC", "2. SD"},
     .mends_unknown = true},
    {.control = "Cmb_EJStore", .byte = 13, .bit = 0, .entries = {"0. SALES ONLY", "0. SALES ONLY"}},
    {.control = "Cmb_BeepStartOfTransaction", .byte = 13, .bit = 1, .entries = {"0. SOUND", "1. NO SOUND"}},
    {.control = "Cmb_BeepEndOfTransaction", .byte = 13, .bit = 2, .entries = {"0. SOUND", "1. NO SOUND"}},
    {.control = "Cmb_NewBalanceReceipttoEJ",
     .byte = 13,
     .bit = 3,
     .entries = {"0. INPUT", "1. NO INPUT"},
     .hidden_on_z300 = true},
    {.control = "Cmb_InvoiceReceipttoEJ",
     .byte = 13,
     .bit = 4,
     .entries = {"0. INPUT", "1. NO INPUT"},
     .saved_from = "Cmb_NewBalanceReceipttoEJ",
     .hidden_on_z300 = true},
    {.control = "Cmb_Review_ProformaReceiptToEJ",
     .byte = 13,
     .bit = 5,
     .entries = {"0. INPUT", "1. NO INPUT"},
     .hidden_on_z300 = true},
};

using FrmEJSetupTest = OptionScreenTest;

TEST_F(FrmEJSetupTest, ListsHaveTheirEntries) {
  check_entries(screen, lists);
}

TEST_F(FrmEJSetupTest, EveryStoredValueIsShown) {
  check_loading(screen, lists);
}

TEST_F(FrmEJSetupTest, EveryChoiceSavesItsPlaceAndNoOther) {
  check_every_choice(screen, lists);
}

TEST_F(FrmEJSetupTest, SavingUntouchedChangesOnlyWhatTheListsShow) {
  check_saving_untouched(screen, lists);
}

TEST_F(FrmEJSetupTest, CaptionsAreTheBuiltInOnesUntilTheCatalogueHasOthers) {
  start_session(Global::model_z320);
  open(screen);
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("EJ SETUP"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("EJ SETUP"));
  stage.close_top();
  fill_catalogue();
  open(screen);
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("EJ setup"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("Electronic journal"));
}

TEST_F(FrmEJSetupTest, AnUnknownSystemIsMendedAtOnceInMemoryAndInTheFileOnSave) {
  start_session(Global::model_z320);
  for (const std::uint8_t system : std::array<std::uint8_t, 3>{3, 7, 255}) {
    PrgModeImage image = good_image(Global::model_z320);
    image.Set08_EJ = system;
    lay_down(image);
    open(screen);
    EXPECT_EQ(list("Cmb_EJSystem").text(), QStringLiteral("0. STANDARD"));
    EXPECT_EQ(PrgMode.Set08_EJ, 0);
    EXPECT_EQ(image_file()[8], static_cast<char>(system));
    click("C_Salva");
    EXPECT_EQ(image_file()[8], '\0');
    stage.close_top();
  }
}

TEST_F(FrmEJSetupTest, TheInvoiceBitFollowsTheNewBalanceOnBothModels) {
  for (const auto model : {Global::model_z300, Global::model_z320}) {
    start_session(model);
    for (const std::uint8_t before : std::array<std::uint8_t, 2>{0x08, 0x10}) {
      PrgModeImage image = good_image(model);
      image.Set13_EJ = before;
      lay_down(image);
      open(screen);
      EXPECT_EQ(list("Cmb_NewBalanceReceipttoEJ").currentIndex(), before == 0x08 ? 1 : 0);
      EXPECT_EQ(list("Cmb_InvoiceReceipttoEJ").currentIndex(), before == 0x10 ? 1 : 0);
      click("C_Salva");
      EXPECT_EQ(PrgMode.Set13_EJ, before == 0x08 ? 0x18 : 0x00);
      stage.close_top();
    }
  }
}

TEST_F(FrmEJSetupTest, TheHiddenListsStillDecideOnTheZ300) {
  start_session(Global::model_z300);
  PrgModeImage image = good_image(Global::model_z300);
  image.Set13_EJ = 0xE8;
  lay_down(image);
  open(screen);
  for (const char* name : {"NewBalanceReceipttoEJ", "InvoiceReceipttoEJ", "Review_ProformaReceiptToEJ"}) {
    EXPECT_TRUE(control(QStringLiteral("L_") + name).isHidden()) << name;
    EXPECT_TRUE(control(QStringLiteral("Cmb_") + name).isHidden()) << name;
  }
  click("C_Salva");
  EXPECT_EQ(image_file()[13], '\xF8');
}

TEST_F(FrmEJSetupTest, WithoutACatalogueEverySaveClearsTheStoreBit) {
  start_session(Global::model_z320);
  PrgModeImage image = good_image(Global::model_z320);
  image.Set13_EJ = 0x01;
  lay_down(image);
  open(screen);
  EXPECT_EQ(list("Cmb_EJStore").currentIndex(), 1);
  click("C_Salva");
  EXPECT_EQ(PrgMode.Set13_EJ, 0x00);
}

TEST_F(FrmEJSetupTest, ATextForTheSecondStoreGivesItItsNumber) {
  start_session(Global::model_z320);
  set_message(Key::FRM_EJ_SETUP_CMB_EJ_STORE1_MSG, "all");
  open(screen);
  EXPECT_EQ(entries_of(list("Cmb_EJStore")), (QStringList{"0. SALES ONLY", "1. all"}));
  list("Cmb_EJStore").show_entry(1);
  click("C_Salva");
  EXPECT_EQ(PrgMode.Set13_EJ & 1, 1);
}

}  // namespace
}  // namespace ecr::test::ej_setup_cases

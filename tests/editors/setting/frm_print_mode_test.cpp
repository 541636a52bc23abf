#include <gtest/gtest.h>
#include <utility>

#include <QTabWidget>

#include "core/catalogue.h"
#include "core/global.h"
#include "editors/option_screen_test.h"

namespace ecr::test::print_mode_cases {
namespace {

const QString screen = QStringLiteral("FrmPrintMode");
const std::vector<ListInImage> lists = {
    {.control = "Cmb_TaxRatePrint", .byte = 18, .bit = 2, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_TotalTaxAmountPrint", .byte = 18, .bit = 3, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_TaxAmountPerRatePrint", .byte = 18, .bit = 4, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_TaxableAmountPerRatePrint", .byte = 18, .bit = 5, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_TotalTaxableAmountPrint", .byte = 18, .bit = 6, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_TaxSymbolPrint", .byte = 19, .bit = 1, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_TotalTaxableAmountOutOfVatPrint", .byte = 19, .bit = 0, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_TaxableAmtOutOfVatPerRatePrint", .byte = 18, .bit = 7, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_VoidTotalPrint", .byte = 20, .bit = 6, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_AutomaticAbr", .byte = 14, .bit = 0, .entries = {"0. AUTO", "1. MANUAL"}},
    {.control = "Cmb_MultipleInvoice", .byte = 14, .bit = 1, .entries = {"0. ENABLE", "1. DISABLE"}},
    {.control = "Cmb_GraphicHeaderPrintOnReceipt", .byte = 16, .bit = 0, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_HeaderPrintWithoutTableTrackingPrint", .byte = 19, .bit = 2, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_FooterPrintWithoutTableTrackingPrint", .byte = 19, .bit = 3, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_MultipleReceipt", .byte = 11, .bit = 2, .entries = {"0. ENABLE", "1. DISABLE"}},
    {.control = "Cmb_ClerkNamePrint", .byte = 17, .bit = 2, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_SubtotalPrint", .byte = 17, .bit = 6, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_PluNumberPrint", .byte = 17, .bit = 5, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_ConsecutivePrint", .byte = 17, .bit = 4, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_MachinePrint", .byte = 17, .bit = 3, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_TimePrint", .byte = 17, .bit = 1, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_DatePrint", .byte = 17, .bit = 0, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_TaxDetailsPrintPosition", .byte = 10, .bit = 7, .entries = {"0. AFTER TENDER", "1. BEFORE TOTAL"}},
    {.control = "Cmb_ReceiptwithoutTableTrackingPrint",
     .byte = 6,
     .bit = whole_byte,
     .entries = {"0. NORMAL", "1. COMPRESSED", "2. DOUBLE HEIGHT"}},
    {.control = "Cmb_LineDistanceSel",
     .byte = 5,
     .bit = whole_byte,
     .entries = {"0. 0.5 mm", "1. 1.0 mm", "2. 1.5 mm", "3. 2.0 mm"}},
    {.control = "Cmb_InvoicePrint", .byte = 15, .bit = 3, .entries = {"0. NORMAL", "1. COMPRESSED"}},
    {.control = "Cmb_HeaderPrintOnInvoice", .byte = 20, .bit = 0, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_FooterPrintOnInvoice", .byte = 20, .bit = 1, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_GraphicHeaderOnInvoice", .byte = 16, .bit = 2, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_ReviewProformaPrint", .byte = 15, .bit = 4, .entries = {"0. NORMAL", "1. COMPRESSED"}},
    {.control = "Cmb_HeaderPrintOnReview_Proforma", .byte = 20, .bit = 2, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_FooterPrintOnReview_Proforma", .byte = 20, .bit = 3, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_GraphicHeaderOnReview", .byte = 16, .bit = 3, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_VatAmountTaxableAmountAmountOutOfVatPrintOnProforma",
     .byte = 20,
     .bit = 5,
     .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_NewBalanceReceiptPrint",
     .byte = 7,
     .bit = whole_byte,
     .entries = {"0. NONE", "1. NORMAL", "2. COMPRESSED", "3. DOUBLE HEIGHT"}},
    {.control = "Cmb_HeaderPrintOnNewBalance", .byte = 19, .bit = 6, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_FooterPrintOnNewBalance", .byte = 19, .bit = 7, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_GraphicHeaderOnNewBalance", .byte = 16, .bit = 1, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_VatAmountTaxableAmountAmountOutOfVatPrintOnNewBalance",
     .byte = 20,
     .bit = 4,
     .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_X_ZReportCompressed", .byte = 15, .bit = 0, .entries = {"0. NORMAL", "1. COMPRESSED"}},
    {.control = "Cmb_PrgModeCompressed", .byte = 15, .bit = 2, .entries = {"0. NORMAL", "1. COMPRESSED"}},
    {.control = "Cmb_EJReportCompressed", .byte = 15, .bit = 1, .entries = {"0. NORMAL", "1. COMPRESSED"}},
    {.control = "Cmb_Z1_Z2CounterPrint", .byte = 17, .bit = 7, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_RefoundTotalPrint", .byte = 18, .bit = 1, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_X_ZReportHeaderPrint", .byte = 19, .bit = 4, .entries = {"0. NO", "1. YES"}, .loads_turned = true},
    {.control = "Cmb_GTPrint", .byte = 18, .bit = 0, .entries = {"0. YES", "1. NO"}},
    {.control = "Cmb_RatioPerInDeptAndPluReportPrint", .byte = 19, .bit = 5, .entries = {"0. YES", "1. NO"}},
};

using FrmPrintModeTest = OptionScreenTest;

TEST_F(FrmPrintModeTest, ListsHaveTheirEntries) {
  check_entries(screen, lists);
}

TEST_F(FrmPrintModeTest, EveryStoredValueIsShown) {
  check_loading(screen, lists);
}

TEST_F(FrmPrintModeTest, EveryChoiceSavesItsPlaceAndNoOther) {
  check_every_choice(screen, lists);
}

TEST_F(FrmPrintModeTest, SavingUntouchedChangesOnlyWhatTheListsShow) {
  check_saving_untouched(screen, lists);
}

TEST_F(FrmPrintModeTest, CaptionsAreTheBuiltInOnesUntilTheCatalogueHasOthers) {
  start_session(Global::model_z320);
  open(screen);
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Print MODE"));
  stage.close_top();
  fill_catalogue();
  open(screen);
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Print mode"));
  EXPECT_EQ(caption("L_GraphicHeaderOnNewReview"), QStringLiteral("Review/proforma graphic header"));
}

TEST_F(FrmPrintModeTest, TheTabsHaveTheirCaptionsAndStandOnTheFirst) {
  const auto texts = [this](const char* name) {
    const auto& tabs = control<QTabWidget>(QString::fromLatin1(name));
    EXPECT_EQ(tabs.currentIndex(), 0);
    QStringList captions;
    for (int i = 0; i < tabs.count(); ++i) captions.append(tabs.tabText(i));
    return captions;
  };
  start_session(Global::model_z320);
  open(screen);
  EXPECT_EQ(texts("Tab_Print"), (QStringList{"ON RECEIPT", "ON INVOICE", "ON REPORT/PRG"}));
  EXPECT_EQ(texts("Tab_PrintReceipt"), (QStringList{"Tax Details", "Header/Footer", "Item Selection", "Format"}));
  stage.close_top();
  set_message(Key::FRM_PRINT_MODE_TAB_PRINT_TAB1, "one");
  set_message(Key::FRM_PRINT_MODE_TAB_PRINT_TAB3, "three");
  set_message(Key::FRM_PRINT_MODE_TAB_PRINT_TAB4, "four");
  set_message(Key::FRM_PRINT_MODE_TAB_PRINT_TAB5, "five");
  set_message(Key::FRM_PRINT_MODE_TAB_PRINT_RECEIPT_TAB4, "inner four");
  open(screen);
  EXPECT_EQ(texts("Tab_Print"), (QStringList{"one", "ON INVOICE", "five"}));
  EXPECT_EQ(texts("Tab_PrintReceipt"), (QStringList{"Tax Details", "Header/Footer", "Item Selection", "inner four"}));
}

TEST_F(FrmPrintModeTest, EachListLiesOnItsTab) {
  start_session(Global::model_z320);
  open(screen);
  auto& outer = control<QTabWidget>("Tab_Print");
  auto& inner = control<QTabWidget>("Tab_PrintReceipt");
  EXPECT_TRUE(outer.widget(0)->isAncestorOf(&inner));
  const std::vector<std::pair<const QWidget*, std::size_t>> pages = {{inner.widget(0), 11}, {inner.widget(1), 3},
                                                                     {inner.widget(2), 8},  {inner.widget(3), 3},
                                                                     {outer.widget(1), 14}, {outer.widget(2), 8}};
  std::size_t place = 0;
  for (const auto& [page, count] : pages) {
    for (std::size_t i = 0; i < count; ++i, ++place) {
      EXPECT_TRUE(page->isAncestorOf(&list(QString::fromLatin1(lists[place].control)))) << lists[place].control;
    }
  }
  EXPECT_EQ(place, lists.size());
}

TEST_F(FrmPrintModeTest, BitsThatNoListHasSurvive) {
  start_session(Global::model_z320);
  PrgModeImage image = good_image(Global::model_z320);
  for (std::size_t byte = 5; byte <= 20; ++byte) reinterpret_cast<std::uint8_t*>(&image)[byte] = 0xFF;
  lay_down(image);
  open(screen);
  for (const ListInImage& each : lists) list(QString::fromLatin1(each.control)).show_entry(0);
  click("C_Salva");
  const std::string file = image_file();
  EXPECT_EQ(file.substr(5, 16), std::string("\0\0\0\xFF\xFF\x7F\xFB\xFF\xFF\xFC\xE0\xF0\0\0\0\x80", 16));
}

TEST_F(FrmPrintModeTest, AByteBeyondItsListShowsNothingAndSavesZero) {
  start_session(Global::model_z320);
  PrgModeImage image = good_image(Global::model_z320);
  image.Set05_Print = 4;
  image.Set06_Print = 3;
  image.Set07_Print = 4;
  lay_down(image);
  open(screen);
  EXPECT_EQ(list("Cmb_LineDistanceSel").text(), QString{});
  EXPECT_EQ(list("Cmb_ReceiptwithoutTableTrackingPrint").text(), QString{});
  EXPECT_EQ(list("Cmb_NewBalanceReceiptPrint").text(), QString{});
  click("C_Salva");
  EXPECT_EQ(image_file().substr(5, 3), std::string(3, '\0'));
}

TEST_F(FrmPrintModeTest, TheHeaderOfReportsTurnsOnceForEachOpeningThatIsSaved) {
  start_session(Global::model_z320);
  PrgModeImage image = good_image(Global::model_z320);
  image.Set19_Print = 0x10;
  lay_down(image);
  open(screen);
  EXPECT_EQ(list("Cmb_X_ZReportHeaderPrint").text(), QStringLiteral("0. NO"));
  click("C_Salva");
  EXPECT_EQ(PrgMode.Set19_Print, 0x00);
  // The list still shows what it showed.
  click("C_Salva");
  EXPECT_EQ(PrgMode.Set19_Print, 0x00);
  stage.close_top();
  open(screen);
  EXPECT_EQ(list("Cmb_X_ZReportHeaderPrint").text(), QStringLiteral("1. YES"));
  stage.close_top();
  EXPECT_EQ(PrgMode.Set19_Print, 0x00);
  open(screen);
  click("C_Salva");
  EXPECT_EQ(PrgMode.Set19_Print, 0x10);
}

TEST_F(FrmPrintModeTest, AnEmptyTextKeepsTheLiteralAndAPointInATextDoesNoHarm) {
  start_session(Global::model_z320);
  set_message(Key::FRM_ALL_YES, "");
  set_message(Key::FRM_ALL_NO, "n.o. 7.");
  open(screen);
  EXPECT_EQ(entries_of(list("Cmb_TaxRatePrint")), (QStringList{"0. YES", "1. n.o. 7."}));
  list("Cmb_TaxRatePrint").show_entry(1);
  click("C_Salva");
  EXPECT_EQ(image_file()[18] & 0x04, 0x04);
}

TEST_F(FrmPrintModeTest, LineDistancesAreNeverTranslated) {
  start_session(Global::model_z320);
  fill_catalogue();
  open(screen);
  EXPECT_EQ(entries_of(list("Cmb_LineDistanceSel")), (QStringList{"0. 0.5 mm", "1. 1.0 mm", "2. 1.5 mm", "3. 2.0 mm"}));
}

}  // namespace
}  // namespace ecr::test::print_mode_cases

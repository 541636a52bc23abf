// The labels of the screens of choice lists: each with its built-in caption, and with the text of its own key.

#include <gtest/gtest.h>

#include "core/catalogue.h"
#include "core/global.h"
#include "support_qt/screen_test.h"
#include "widgets/screen_text.h"

namespace ecr::test {
namespace {

struct LabelRow {
  const char* screen;
  const char* label;
  Key key;
  const char* built_in;
};

// clang-format off
const std::vector<LabelRow> rows = {
    {"FrmPercentageMenu", "L_P1KeyRate", Key::FRM_PERCENTAGE_MENU_L_P1_KEY_RATE, "Key %1 Rate"},
    {"FrmPercentageMenu", "L_P1KeyRateLimit", Key::FRM_PERCENTAGE_MENU_L_P1_KEY_RATE_LIMIT, "Key %1 Rate Limit"},
    {"FrmPercentageMenu", "L_P1Sign", Key::FRM_PERCENTAGE_MENU_L_P1_SIGN, "Key %1 Function:"},
    {"FrmPercentageMenu", "L_P2KeyRate", Key::FRM_PERCENTAGE_MENU_L_P2_KEY_RATE, "Key %2 Rate"},
    {"FrmPercentageMenu", "L_P2KeyRateLimit", Key::FRM_PERCENTAGE_MENU_L_P2_KEY_RATE_LIMIT, "Key %2 Rate Limit"},
    {"FrmPercentageMenu", "L_P2Sign", Key::FRM_PERCENTAGE_MENU_L_P2_SIGN, "Key %2 Function:"},
    {"FrmPORAMPKeyMenu", "L_RAKeyHDLOSetting", Key::FRM_PO_RA_MP_KEY_MENU_L_RA_KEY_HDLO_SETTING, "RA Key HDLO Setting"},
    {"FrmPORAMPKeyMenu", "L_POKeyHDLOSetting", Key::FRM_PO_RA_MP_KEY_MENU_L_PO_KEY_HDLO_SETTING, "PO Key HDLO Setting"},
    {"FrmPORAMPKeyMenu", "L_PM1KeyHDLOSetting", Key::FRM_PO_RA_MP_KEY_MENU_L_PM1_KEY_HDLO_SETTING, "+/- 1 Key HDLO Setting"},
    {"FrmPORAMPKeyMenu", "L_PM2KeyHDLOSetting", Key::FRM_PO_RA_MP_KEY_MENU_L_PM2_KEY_HDLO_SETTING, "+/- 2 Key HDLO Setting"},
    {"FrmPORAMPKeyMenu", "L_PM1Sign", Key::FRM_PO_RA_MP_KEY_MENU_L_PM1_SIGN, "+/-1 Sign"},
    {"FrmPORAMPKeyMenu", "L_PM2Sign", Key::FRM_PO_RA_MP_KEY_MENU_L_PM2_SIGN, "+/-2 Sign"},
    {"FrmPORAMPKeyMenu", "L_RAHeaderPrint", Key::FRM_PO_RA_MP_KEY_MENU_L_RA_HEADER_PRINT, "RA Header Print"},
    {"FrmPORAMPKeyMenu", "L_POHeaderPrint", Key::FRM_PO_RA_MP_KEY_MENU_L_PO_HEADER_PRINT, "PO Header Print"},
    {"FrmNSMenuSetting", "L_DrawerOpen", Key::FRM_NS_MENU_SETTING_L_DRAWER_OPEN, "Drawer Open"},
    {"FrmNSMenuSetting", "L_ControlKeyPositioning", Key::FRM_NS_MENU_SETTING_L_CONTROL_KEY_POSITIONING, "Control Key Positioning"},
    {"FrmNSMenuSetting", "L_ReceiptPrint", Key::FRM_NS_MENU_SETTING_L_RECEIPT_PRINT, "Receipt Print"},
    {"FrmNSMenuSetting", "L_ReceiptHeaderPrint", Key::FRM_NS_MENU_SETTING_L_RECEIPT_HEADER_PRINT, "Receipt Header Print"},
    {"FrmNSMenuSetting", "L_EJInput", Key::FRM_NS_MENU_SETTING_L_EJ_INPUT, "EJ Input"},
    {"FrmNSMenuSetting", "L_ConsecutiveIncrement", Key::FRM_NS_MENU_SETTING_L_CONSECUTIVE_INCREMENT, "Consecutive # Increment"},
    {"FrmSystemOption", "L_DecimalPosition", Key::FRM_SYSTEM_OPTION_L_DECIMAL_POSITION, "Decimal Position"},
    {"FrmSystemOption", "L_FractionRound", Key::FRM_SYSTEM_OPTION_L_FRACTION_ROUND, "Fraction Rounding "},
    {"FrmSystemOption", "L_ComPort1", Key::FRM_SYSTEM_OPTION_L_COM_PORT_1, "Com port 1"},
    {"FrmSystemOption", "L_ComPort2", Key::FRM_SYSTEM_OPTION_L_COM_PORT_2, "Com port 2"},
    {"FrmSystemOption", "L_ConsecutiveReceipt", Key::FRM_SYSTEM_OPTION_L_CONSECUTIVE_RECEIPT, "Consecutive Receipt #"},
    {"FrmSystemOption", "L_InvoiceNumber", Key::FRM_SYSTEM_OPTION_L_INVOICE_NUMBER, "Invoice Number"},
    {"FrmSystemOption", "L_Z1CounterSetting", Key::FRM_SYSTEM_OPTION_L_Z1_COUNTER_SETTING, "Z1 Counter Setting"},
    {"FrmSystemOption", "L_Z2CounterSetting", Key::FRM_SYSTEM_OPTION_L_Z2_COUNTER_SETTING, "Z2 Counter Setting"},
    {"FrmSystemOption", "L_GTCounterSetting", Key::FRM_SYSTEM_OPTION_L_GT_COUNTER_SETTING, "GT Counter Setting"},
    {"FrmInitialMenu", "L_Language", Key::FRM_INITIAL_MENU_L_LANGUAGE, "Language"},
    {"FrmInitialMenu", "L_DateFormat", Key::FRM_INITIAL_MENU_L_DATE_FORMAT, "Date Format"},
    {"FrmInitialMenu", "L_TimeFormat", Key::FRM_INITIAL_MENU_L_TIME_FORMAT, "Time Format"},
    {"FrmInitialMenu", "L_KeyTone", Key::FRM_INITIAL_MENU_L_KEY_TONE, "Key Tone"},
    {"FrmInitialMenu", "L_WindingMotor", Key::FRM_INITIAL_MENU_L_WINDING_MOTOR, "Winding Motor"},
    {"FrmInitialMenu", "L_EuropeanRoundingSel", Key::FRM_INITIAL_MENU_L_EUROPEAN_ROUNDING_SEL, "European Rounding Selection"},
    {"FrmInitialMenu", "L_RegisterMode", Key::FRM_INITIAL_MENU_L_REGISTER_MODE_MSG, "Register Mode"},
    {"FrmWorkingMode", "L_VatCalculation", Key::FRM_WORKING_MODE_L_VAT_CALCULATION, "VAT Calculation"},
    {"FrmWorkingMode", "L_FC_ConvertCalculation", Key::FRM_WORKING_MODE_L_FC_CONVERT_CALCULATION, " FC Convert Calculation"},
    {"FrmWorkingMode", "L_PM_Per_Result", Key::FRM_WORKING_MODE_L_PM_PER_RESULT, "\xB1%, \xB1 Result"},
    {"FrmWorkingMode", "L_ZeroPriceRegistration", Key::FRM_WORKING_MODE_L_ZERO_PRICE_REGISTRATION, "Zero Price Registration"},
    {"FrmWorkingMode", "L_PostTender", Key::FRM_WORKING_MODE_L_POST_TENDER, "Post Transaction Tender"},
    {"FrmWorkingMode", "L_PluPageSelection", Key::FRM_WORKING_MODE_L_PLUPAGESELECTION, "PLU Page shift selection"},
    {"FrmWorkingMode", "L_Price1_2ShiftSel", Key::FRM_WORKING_MODE_L_PRICE_1_2_SHIFT_SEL, "Price 1/2 shift selection"},
    {"FrmPrintMode", "L_TaxRatePrint", Key::FRM_PRINT_MODE_L_TAX_RATE_PRINT, "Tax Rate"},
    {"FrmPrintMode", "L_TotalTaxAmountPrint", Key::FRM_PRINT_MODE_L_TOTAL_TAX_AMOUNT_PRINT, "Total Tax Amount"},
    {"FrmPrintMode", "L_TaxAmountPerRatePrint", Key::FRM_PRINT_MODE_L_TAX_AMOUNT_PER_RATE_PRINT, "Tax Amount per Rate"},
    {"FrmPrintMode", "L_TaxableAmountPerRatePrint", Key::FRM_PRINT_MODE_L_TAXABLE_AMOUNT_PER_RATE_PRINT, "Taxable Amount per Rate"},
    {"FrmPrintMode", "L_TotalTaxableAmountPrint", Key::FRM_PRINT_MODE_L_TOTAL_TAXABLE_AMOUNT_PRINT, "Total Taxable Amount"},
    {"FrmPrintMode", "L_TaxSymbolPrint", Key::FRM_PRINT_MODE_L_TAXSYMBOLPRINT, "Tax Symbol"},
    {"FrmPrintMode", "L_TotalTaxableAmountOutOfVatPrint", Key::FRM_PRINT_MODE_L_TOTAL_TAXABLE_AMOUNT_OUT_OF_VAT_PRINT, "Total Taxable Amount Without VAT"},
    {"FrmPrintMode", "L_TaxableAmtOutOfVatPerRatePrint", Key::FRM_PRINT_MODE_L_TAXABLE_AMT_OUT_OF_VAT_PER_RATE_PRINT, "Taxable Amt Without VAT per Rate"},
    {"FrmPrintMode", "L_VoidTotalPrint", Key::FRM_PRINT_MODE_L_VOID_TOTAL_PRINT, "Void Total print"},
    {"FrmPrintMode", "L_AutomaticAbr", Key::FRM_PRINT_MODE_L_AUTOMATIC_ABR, "Automatic ABR"},
    {"FrmPrintMode", "L_MultipleInvoice", Key::FRM_PRINT_MODE_L_MULTIPLE_INVOICE, "Multiple Invoice"},
    {"FrmPrintMode", "L_GraphicHeaderPrintOnReceipt", Key::FRM_PRINT_MODE_L_GRAPHIC_HEADER_PRINT_ON_RECEIPT, "Print Graphic Header"},
    {"FrmPrintMode", "L_HeaderPrintWithoutTableTrackingPrint", Key::FRM_PRINT_MODE_L_HEADER_PRINT_WITHOUT_TABLE_TRACKING_PRINT, "Print Header"},
    {"FrmPrintMode", "L_FooterPrintWithoutTableTrackingPrint", Key::FRM_PRINT_MODE_L_FOOTER_PRINT_WITHOUT_TABLE_TRACKING_PRINT, "Print Footer"},
    {"FrmPrintMode", "L_MultipleReceipt", Key::FRM_PRINT_MODE_L_MULTIPLE_RECEIPT, "Multiple Receipts"},
    {"FrmPrintMode", "L_ClerkNamePrint", Key::FRM_PRINT_MODE_L_CLERK_NAME_PRINT, "Clerk Name"},
    {"FrmPrintMode", "L_SubtotalPrint", Key::FRM_PRINT_MODE_L_SUBTOTAL_PRINT, "Subtotal"},
    {"FrmPrintMode", "L_PluNumberPrint", Key::FRM_PRINT_MODE_L_PLU_NUMBER_PRINT, "PLU Number"},
    {"FrmPrintMode", "L_ConsecutivePrint", Key::FRM_PRINT_MODE_L_CONSECUTIVEPRINT, "Consecutive"},
    {"FrmPrintMode", "L_MachinePrint", Key::FRM_PRINT_MODE_L_MACHINE_PRINT, "Machine"},
    {"FrmPrintMode", "L_TimePrint", Key::FRM_PRINT_MODE_L_TIME_PRINT, "Time"},
    {"FrmPrintMode", "L_DatePrint", Key::FRM_PRINT_MODE_L_DATE_PRINT, "Date"},
    {"FrmPrintMode", "L_TaxDetailsPrintPosition", Key::FRM_PRINT_MODE_L_TAX_DETAILS_PRINT_POSITION, "Tax Details Position"},
    {"FrmPrintMode", "L_ReceiptWithoutTableTrackingPrint", Key::FRM_PRINT_MODE_L_RECEIPT_WITHOUT_TABLE_TRACKING_PRINT, "Receipt Font"},
    {"FrmPrintMode", "L_LineDistanceSel", Key::FRM_PRINT_MODE_L_LINE_DISTANCE_SEL, "Line Distance Selection"},
    {"FrmPrintMode", "L_InvoicePrint", Key::FRM_PRINT_MODE_L_INVOICE_PRINT, "Invoice Font"},
    {"FrmPrintMode", "L_HeaderPrintOnInvoice", Key::FRM_PRINT_MODE_L_HEADER_PRINT_ON_INVOICE, "Print Header"},
    {"FrmPrintMode", "L_FooterPrintOnInvoice", Key::FRM_PRINT_MODE_L_FOOTER_PRINT_ON_INVOICE, "Print Footer"},
    {"FrmPrintMode", "L_GraphicHeaderOnInvoice", Key::FRM_PRINT_MODE_L_GRAPHIC_HEADER_ON_INVOICE, "Graphic Header On Invoice"},
    {"FrmPrintMode", "L_Review_ProformaPrint", Key::FRM_PRINT_MODE_L_REVIEW_PROFORMA_PRINT, "Review/Proforma Font"},
    {"FrmPrintMode", "L_HeaderPrintOnReview_Proforma", Key::FRM_PRINT_MODE_L_HEADER_PRINT_ON_REVIEW_PROFORMA, "Print Header"},
    {"FrmPrintMode", "L_FooterPrintOnReview_Proforma", Key::FRM_PRINT_MODE_L_FOOTER_PRINT_ON_REVIEW_PROFORMA, "Print Footer"},
    {"FrmPrintMode", "L_GraphicHeaderOnNewReview", Key::FRM_PRINT_MODE_L_GRAPHIC_HEADER_ON_NEW_REVIEW, "Print Graphic Header"},
    {"FrmPrintMode", "L_VatAmountTaxableAmountAmountOutOfVatPrintOnProforma", Key::FRM_PRINT_MODE_L_VAT_AMOUNT_TAXABLE_AMOUNT_AMOUNT_OUT_OF_VAT_PRINT_ON_PROFORMA, "Print on Proforma - VAT Amount, Taxable Amount, Amount without VAT"},
    {"FrmPrintMode", "L_NewBalancePrint", Key::FRM_PRINT_MODE_L_NEW_BALANCE_PRINT, "New Balance Receipt Font"},
    {"FrmPrintMode", "L_HeaderPrintOnNewBalance", Key::FRM_PRINT_MODE_L_HEADER_PRINT_ON_NEW_BALANCE, "Print Header"},
    {"FrmPrintMode", "L_FooterPrintOnNewBalance", Key::FRM_PRINT_MODE_L_FOOTER_PRINT_ON_NEW_BALANCE, "Print Footer"},
    {"FrmPrintMode", "L_GraphicHeaderOnNewBalance", Key::FRM_PRINT_MODE_L_GRAPHIC_HEADER_ON_NEW_BALANCE, "Print Graphic Header"},
    {"FrmPrintMode", "L_VatAmountTaxableAmountAmountOutOfVatPrintOnNewBalance", Key::FRM_PRINT_MODE_L_VAT_AMOUNT_TAXABLE_AMOUNT_AMOUNT_OUT_OF_VAT_PRINT_ON_NEW_BALANCE, "Print on New Balance - VAT Amount, Taxable Amount, Amount without VAT"},
    {"FrmPrintMode", "L_X_ZReportCompressed", Key::FRM_PRINT_MODE_L_X_Z_REPORT_COMPRESSED, "X/Z Report Font"},
    {"FrmPrintMode", "L_PrgModeCompressed", Key::FRM_PRINT_MODE_L_PRG_MODE_COMPRESSED, "Program Mode Font"},
    {"FrmPrintMode", "L_EJReportCompressed", Key::FRM_PRINT_MODE_L_EJ_REPORT_COMPRESSED, "EJ Report Font"},
    {"FrmPrintMode", "L_Z1_Z2CounterPrint", Key::FRM_PRINT_MODE_L_Z1_Z2_COUNTER_PRINT, "Print Z1 and Z2 Counters"},
    {"FrmPrintMode", "L_RefoundTotalPrint", Key::FRM_PRINT_MODE_L_REFOUND_TOTAL_PRINT, "Refund Total Print"},
    {"FrmPrintMode", "L_X_ZReportHeaderPrint", Key::FRM_PRINT_MODE_L_X_Z_REPORT_HEADER_PRINT, "Print Header on X/Z Report"},
    {"FrmPrintMode", "L_GTPrint", Key::FRM_PRINT_MODE_L_GT_PRINT, "Print GT"},
    {"FrmPrintMode", "L_RatioPerInDeptAndPluReportPrint", Key::FRM_PRINT_MODE_L_RATIO_PER_IN_DEPT_AND_PLU_REPORT_PRINT, "Ratio % In Dept and PLU Report Print"},
    {"FrmReportSetup", "L_ConsecutiveReset", Key::FRM_REPORT_SETUP_L_CONSECUTIVE_RESET, "Consecutive Reset"},
    {"FrmReportSetup", "L_InvoiceReset", Key::FRM_REPORT_SETUP_L_INVOICE_RESET, "INVOICE# RESET"},
    {"FrmReportSetup", "L_GTReset", Key::FRM_REPORT_SETUP_L_GT_RESET, "GT Reset"},
    {"FrmReportSetup", "L_Z1_Z2CounterReset", Key::FRM_REPORT_SETUP_L_Z1_Z2_COUNTER_RESET, "Z1/Z2 Counter Reset"},
    {"FrmReportSetup", "L_DuplicateZ", Key::FRM_REPORT_SETUP_L_DUPLICATE_Z, "Duplicate Z"},
    {"FrmReportSetup", "L_ZeroSkip", Key::FRM_REPORT_SETUP_L_ZERO_SKIP, "Zero Skip"},
    {"FrmEJSetup", "L_EJSystem", Key::FRM_EJ_SETUP_L_EJ_SYSTEM, "EJ System"},
    {"FrmEJSetup", "L_EJStore", Key::FRM_EJ_SETUP_L_EJ_STORE, "EJ Store"},
    {"FrmEJSetup", "L_BeepStartOfTransaction", Key::FRM_EJ_SETUP_L_BEEP_START_OF_TRANSACTION, "Beep Start Of Transaction"},
    {"FrmEJSetup", "L_BeepEndOfTransaction", Key::FRM_EJ_SETUP_L_BEEP_END_OF_TRANSACTION, "Beep End Of Transaction"},
    {"FrmEJSetup", "L_NewBalanceReceipttoEJ", Key::FRM_EJ_SETUP_L_NEW_BALANCE_RECEIPTTO_EJ, "New Balance Receipt to EJ"},
    {"FrmEJSetup", "L_InvoiceReceipttoEJ", Key::FRM_EJ_SETUP_L_INVOICE_RECEIPT_TO_EJ, "Invoice Receipt to EJ"},
    {"FrmEJSetup", "L_Review_ProformaReceiptToEJ", Key::FRM_EJ_SETUP_L_REVIEW_PROFORMA_RECEIPT_TO_EJ, "Review/Proforma Receipt To EJ"},
    {"FrmHospitalitySetup", "L_TableCompulsory", Key::FRM_HOSPITALITY_SETUP_L_TABLE_COMPULSORY, "Table Compulsory"},
    {"FrmHospitalitySetup", "L_GuestCompulsory", Key::FRM_HOSPITALITY_SETUP_L_GUEST_COMPULSORY, "Guest Compulsory"},
    {"FrmHospitalitySetup", "L_ExclusiveClerk", Key::FRM_HOSPITALITY_SETUP_L_EXCLUSIVE_CLERK, "Exclusive Clerk"},
    {"FrmHospitalitySetup", "L_Review_ProformaReceipt", Key::FRM_HOSPITALITY_SETUP_L_REVIEW_PROFORMA_RECEIPT, "Review / Proforma Receipt"},
    {"FrmHospitalitySetup", "L_ConsUpdateOnNewBalance", Key::FRM_HOSPITALITY_SETUP_L_CONS_UPDATE_ON_NEW_BALANCE, "Cons # Update On New Balance"},
    {"FrmHospitalitySetup", "L_ConsUpdateOnInvoice", Key::FRM_HOSPITALITY_SETUP_L_CONS_UPDATE_ON_NEW_INVOICE, "Cons # Update On Invoice"},
    {"FrmHospitalitySetup", "L_ConsUpdateOnReview_Proforma", Key::FRM_HOSPITALITY_SETUP_L_CONS_UPDATE_ON_NEW_REVIEW_PROFORMA, "Cons # Update On Review/Proforma"},
    {"FrmClerkMenuSetup", "L_ClerkSystem", Key::FRM_CLERK_MENU_SETUP_CLERK_SYSTEM, "Clerk System"},
    {"FrmClerkMenuSetup", "L_MustClerkPassword", Key::FRM_CLERK_MENU_SETUP_L_MUST_CLERK_PASSWORD, "Clerk Password"},
    {"FrmClerkMenuSetup", "L_EachTransactionOfClerk", Key::FRM_CLERK_MENU_SETUP_L_EACH_TRANSACTION_OF_CLERK, "Clerk Pwd for Each Transaction"},
    {"FrmClerkMenuSetup", "L_LoginClerkDisplay", Key::FRM_CLERK_MENU_SETUP_LOGIN_CLERK_DISPLAY, "Login Clerk Display"},
};
// clang-format on

class OptionLabelsTest : public ScreenTest {
 protected:
  OptionLabelsTest() {
    start_session(Global::model_z320);
    reset_catalogue();
  }
  ~OptionLabelsTest() override { reset_catalogue(); }

  /// Opens each screen once and hands over its labels.
  void on_every_screen(const std::function<void(const LabelRow&)>& look) {
    const char* open_screen = "";
    for (const LabelRow& row : rows) {
      if (QString::fromLatin1(open_screen) != QString::fromLatin1(row.screen)) {
        open(row.screen);
        open_screen = row.screen;
      }
      look(row);
    }
  }
};

TEST_F(OptionLabelsTest, HaveTheirBuiltInCaptions) {
  on_every_screen([this](const LabelRow& row) {
    EXPECT_EQ(caption(row.label), screen_text(row.built_in)) << row.screen << ' ' << row.label;
  });
}

TEST_F(OptionLabelsTest, TakeTheTextsOfTheirOwnKeys) {
  for (std::size_t i = 0; i < key_count; ++i) {
    const auto key = static_cast<Key>(i);
    set_message(key, "text of " + std::string{name_of(key)});
  }
  on_every_screen([this](const LabelRow& row) {
    EXPECT_EQ(caption(row.label), QStringLiteral("text of ") + screen_text(name_of(row.key)))
        << row.screen << ' ' << row.label;
  });
}

}  // namespace
}  // namespace ecr::test

#pragma once
// The table of the sections: each menu entry with its screen and its fields.

#include <array>

#include "fields/book.h"
#include "fields/rows/barcodes.h"
#include "fields/rows/captions.h"
#include "fields/rows/carried.h"
#include "fields/rows/chains_and_keys.h"
#include "fields/rows/clerk_setup.h"
#include "fields/rows/departments.h"
#include "fields/rows/hospitality.h"
#include "fields/rows/initial_setup.h"
#include "fields/rows/items.h"
#include "fields/rows/journal_setup.h"
#include "fields/rows/keys.h"
#include "fields/rows/money.h"
#include "fields/rows/people.h"
#include "fields/rows/pop_up_keys.h"
#include "fields/rows/print_mode.h"
#include "fields/rows/report_setup.h"
#include "fields/rows/system_options.h"
#include "fields/rows/vat.h"
#include "fields/rows/working_mode.h"

namespace ecr::fields {

// clang-format off
inline constexpr std::array<SectionRow, section_count> section_table = {{
    {.section = Section::vat, .id = "vat", .name = {Key::FRM_PROGRAM_MODE_C_SET_VAT_RATE, "Set VAT Rate"},
     .fields = vat_fields, .screen = "FrmSetVatRate", .records = vat_captions},
    {.section = Section::departments, .id = "departments",
     .name = {Key::FRM_PROGRAM_MODE_C_DEPARTMENT_PROGRAM, "Program Departments"},
     .fields = department_fields, .screen = "FrmDepartmentProgram", .record_control = "Cmb_DepartmentNumber"},
    {.section = Section::groups, .id = "groups",
     .name = {Key::FRM_PROGRAM_MODE_C_DEPT_GROUP_PROGRAM, "Program Dept. Groups"},
     .fields = group_fields, .screen = "FrmDeptGroupSetting", .record_control = "Cmb_DeptGroupNumber"},
    {.section = Section::items, .id = "items", .name = {Key::FRM_PROGRAM_MODE_C_PLU_PROGRAM, "Program PLUs"},
     .fields = item_rows, .screen = "FrmPrgPlu", .record_control = "Cmb_PluNumber"},
    {.section = Section::plu_pages, .id = "plu-pages",
     .name = {Key::FRM_PROGRAM_MODE_C_PLUPAGEPROGRAM, "Program PLU Pages"},
     .fields = plu_page_fields, .screen = "FrmPluPageProgram", .models = Models::z320_only,
     .records = plu_page_captions},
    {.section = Section::percent_keys, .id = "percent-keys",
     .name = {Key::FRM_PROGRAM_MODE_C_PERCENTAGE_PROGRAM, "Program % Key"},
     .fields = percent_key_fields, .screen = "FrmPercentageMenu"},
    {.section = Section::amount_keys, .id = "amount-keys",
     .name = {Key::FRM_PROGRAM_MODE_C_PO_RA_M_P_KEY_PROGRAM, "Program PO, RA, +/- Keys"},
     .fields = amount_key_fields, .screen = "FrmPORAMPKeyMenu"},
    {.section = Section::tenders, .id = "tenders",
     .name = {Key::FRM_PROGRAM_MODE_C_TENDER_PROGRAM, "Program Payment Media"},
     .fields = tender_fields, .screen = "FrmTenderMenuSetting", .records = tender_captions},
    {.section = Section::no_sale, .id = "no-sale", .name = {Key::FRM_PROGRAM_MODE_C_NS_PROGRAM, "Program #/NS key"},
     .fields = no_sale_fields, .screen = "FrmNSMenuSetting"},
    {.section = Section::currencies, .id = "currencies",
     .name = {Key::FRM_PROGRAM_MODE_C_FOREIGN_CURRENCY_PROGRAM, "Program Foreign Currencies "},
     .fields = currency_fields, .screen = "FrmFCRatingSetting", .records = currency_captions},
    {.section = Section::clerks, .id = "clerks",
     .name = {Key::FRM_PROGRAM_MODE_C_CLERK_SYSTEM_PROGRAM, "Program Clerk System"},
     .fields = clerk_fields, .screen = "FrmClerkSystemProgram", .record_control = "Cmb_ClerkNumber"},
    {.section = Section::passwords, .id = "passwords",
     .name = {Key::FRM_PROGRAM_MODE_C_PERMISSION_PROGRAM, "Set Passwords"},
     .fields = password_fields, .screen = "FrmPermissionProgram"},
    {.section = Section::barcodes, .id = "barcodes",
     .name = {Key::FRM_PROGRAM_MODE_C_INSTORE_BARCODE_SETTING, "Program Instore Barcodes"},
     .fields = barcode_fields, .screen = "FrmInstoreBarcodeSetting",
     .record_control = "Cmb_InstoreBarcodeSettingNumber"},
    {.section = Section::system_options, .id = "system",
     .name = {Key::FRM_PROGRAM_MODE_C_SYSTEM_OPTION, "System Options"},
     .fields = system_option_fields, .screen = "FrmSystemOption"},
    {.section = Section::pop_up_plus, .id = "pop-up-plus",
     .name = {Key::FRM_PROGRAM_MODE_C_POP_UP_PLU_LIST, "Program Pop Up Plu LIST"},
     .fields = pop_up_plu_fields, .screen = "FrmPopUpPluList", .record_control = "Tab_PopUpPluList"},
    {.section = Section::initial_setup, .id = "initial", .name = {Key::FRM_SETTING_C_INITIAL_SETUP, "Initial Setup"},
     .fields = initial_setup_fields, .screen = "FrmInitialMenu"},
    {.section = Section::working_mode, .id = "working", .name = {Key::FRM_SETTING_C_WORKING_MODE, "Operating Mode"},
     .fields = working_mode_fields, .screen = "FrmWorkingMode"},
    {.section = Section::print_mode, .id = "print", .name = {Key::FRM_SETTING_C_PRINTOUT_MODE, "Print Mode"},
     .fields = print_mode_fields, .screen = "FrmPrintMode"},
    {.section = Section::report_setup, .id = "report", .name = {Key::FRM_SETTING_C_REPORT_SETUP, "Report Setup"},
     .fields = report_setup_fields, .screen = "FrmReportSetup"},
    {.section = Section::journal_setup, .id = "journal", .name = {Key::FRM_SETTING_C_EJ_SETUP, "EJ Setup"},
     .fields = journal_setup_fields, .screen = "FrmEJSetup"},
    {.section = Section::hospitality, .id = "hospitality",
     .name = {Key::FRM_SETTING_C_HOSPITALITY, "Hospitality Setup"},
     .fields = hospitality_fields, .screen = "FrmHospitalitySetup", .models = Models::z320_only},
    {.section = Section::clerk_setup, .id = "clerk-setup", .name = {Key::FRM_SETTING_C_CLERK_SETUP, "Clerk Setup"},
     .fields = clerk_setup_fields, .screen = "FrmClerkMenuSetup"},
    {.section = Section::header, .id = "header", .name = {Key::FRM_CAPTION_TAB_INVOICE1, "HEADER"},
     .fields = header_fields, .screen = "FrmCaptionSetting",
     .record_prefix = {Key::FRM_CAPTION_HEADER_N, "Header "}},
    {.section = Section::footer, .id = "footer", .name = {Key::FRM_CAPTION_TAB_INVOICE2, "FOOTER"},
     .fields = footer_fields, .screen = "FrmCaptionSetting",
     .record_prefix = {Key::FRM_CAPTION_FOOTER_N, "Footer "}},
    {.section = Section::invoice_lines, .id = "invoice-lines",
     .name = {Key::FRM_CAPTION_TAB_INVOICE3, "EXTRA INVOICE"},
     .fields = invoice_line_fields, .screen = "FrmCaptionSetting",
     .record_prefix = {Key::FRM_CAPTION_EXTRA_INVOICE_N, "Extra invoice "}},
    {.section = Section::other_lines, .id = "other-lines", .name = {Key::FRM_CAPTION_TAB_INVOICE4, "OTHER"},
     .fields = other_line_fields, .screen = "FrmCaptionSetting",
     .record_prefix = {Key::FRM_CAPTION_EXTRA_OTHER_N, "Other "}},
    {.section = Section::abbreviations, .id = "abbreviations", .name = {Key::FRM_CAPTION_TAB_INVOICE5, "ABR"},
     .fields = abbreviation_fields, .screen = "FrmCaptionSetting",
     .record_prefix = {Key::FRM_CAPTION_ABR_N, "ABR "}},
    {.section = Section::short_captions, .id = "captions", .name = {Key::FRM_CAPTION_TAB_PRINT2, "CUSTOM TEXT"},
     .fields = short_caption_fields, .screen = "FrmCaptionSetting", .record_control = "FG_Caption"},
    {.section = Section::messages, .id = "messages", .name = {Key::FRM_CAPTION_TAB_PRINT3, "SCROLL MESSAGE"},
     .fields = message_fields, .screen = "FrmCaptionSetting"},
    {.section = Section::chains, .id = "chains",
     .name = {Key::FRM_ADVANCED_SETTINF_TAB1_ADVANCED_OPTION, "CHAIN REPORT SELECT"},
     .fields = chain_fields, .screen = "FrmAdvancedSetting", .record_control = "Tab_Chain"},
    {.section = Section::key_layout, .id = "key-layout",
     .name = {Key::FRM_ADVANCED_SETTINF_TAB2_ADVANCED_OPTION, "FREE KEY LAYOUT"},
     .fields = key_layout_fields, .screen = "FrmAdvancedSetting"},
    {.section = Section::pop_up_keys, .id = "pop-up-keys",
     .name = {Key::FRM_ADVANCED_SETTINF_TAB3_ADVANCED_OPTION, "POP UP KEY SELECT"},
     .fields = pop_up_key_fields, .screen = "FrmAdvancedSetting", .record_control = "SSTab1"},
    {.section = Section::carried, .id = "carried", .name = {.own = OwnText::field_carried},
     .fields = carried_fields},
}};
// clang-format on

}  // namespace ecr::fields

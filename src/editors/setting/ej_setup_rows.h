#pragma once
// The lists of the electronic journal: its system, what it stores, its beeps.
//
// The invoice's bit is saved from the list of the new balance: what is chosen for the invoice is not kept.

#include <cstddef>

#include "editors/option_table.h"
#include "editors/setting/setting_choices.h"
#include "image/prg_mode.h"

namespace ecr::setting {

inline constexpr Choice journal_systems[] = {
    {.digit = 0, .literal = "0. STANDARD", .text = Key::FRM_EJ_SETUP_CMB_EJ_SYSTEM0_MSG},
    {.digit = 1, .literal = "1. DYNAMIC", .text = Key::FRM_EJ_SETUP_CMB_EJ_SYSTEM1_MSG},
    {.digit = 2, .literal = "2. SD", .text = Key::FRM_EJ_SETUP_CMB_EJ_SYSTEM2_MSG}};
// Without a catalogue both entries read alike and save 0.
inline constexpr Choice journal_stores[] = {
    {.digit = 0, .literal = "0. SALES ONLY", .text = Key::FRM_EJ_SETUP_CMB_EJ_STORE0_MSG},
    {.digit = 1, .literal = "0. SALES ONLY", .text = Key::FRM_EJ_SETUP_CMB_EJ_STORE1_MSG}};
inline constexpr Choice input_no_input[] = {{.digit = 0, .literal = "0. INPUT", .text = Key::FRM_ALL_INPUT},
                                            {.digit = 1, .literal = "1. NO INPUT", .text = Key::FRM_ALL_NOINPUT}};

inline constexpr OptionRow ej_setup_rows[] = {
    {.control = "Cmb_EJSystem",
     .label = "L_EJSystem",
     .key = Key::FRM_EJ_SETUP_L_EJ_SYSTEM,
     .caption = "EJ System",
     .choices = journal_systems,
     .place = byte_at(offsetof(PrgModeImage, Set08_EJ)),
     .load = OptionLoad::mends_unknown},
    {.control = "Cmb_EJStore",
     .label = "L_EJStore",
     .key = Key::FRM_EJ_SETUP_L_EJ_STORE,
     .caption = "EJ Store",
     .choices = journal_stores,
     .place = bit_at(offsetof(PrgModeImage, Set13_EJ), 0)},
    {.control = "Cmb_BeepStartOfTransaction",
     .label = "L_BeepStartOfTransaction",
     .key = Key::FRM_EJ_SETUP_L_BEEP_START_OF_TRANSACTION,
     .caption = "Beep Start Of Transaction",
     .choices = sound_no_sound,
     .place = bit_at(offsetof(PrgModeImage, Set13_EJ), 1)},
    {.control = "Cmb_BeepEndOfTransaction",
     .label = "L_BeepEndOfTransaction",
     .key = Key::FRM_EJ_SETUP_L_BEEP_END_OF_TRANSACTION,
     .caption = "Beep End Of Transaction",
     .choices = sound_no_sound,
     .place = bit_at(offsetof(PrgModeImage, Set13_EJ), 2)},
    {.control = "Cmb_NewBalanceReceipttoEJ",
     .label = "L_NewBalanceReceipttoEJ",
     .key = Key::FRM_EJ_SETUP_L_NEW_BALANCE_RECEIPTTO_EJ,
     .caption = "New Balance Receipt to EJ",
     .choices = input_no_input,
     .place = bit_at(offsetof(PrgModeImage, Set13_EJ), 3),
     .models = Models::z320_only},
    {.control = "Cmb_InvoiceReceipttoEJ",
     .label = "L_InvoiceReceipttoEJ",
     .key = Key::FRM_EJ_SETUP_L_INVOICE_RECEIPT_TO_EJ,
     .caption = "Invoice Receipt to EJ",
     .choices = input_no_input,
     .place = bit_at(offsetof(PrgModeImage, Set13_EJ), 4),
     .models = Models::z320_only,
     .saved_from = "Cmb_NewBalanceReceipttoEJ"},
    {.control = "Cmb_Review_ProformaReceiptToEJ",
     .label = "L_Review_ProformaReceiptToEJ",
     .key = Key::FRM_EJ_SETUP_L_REVIEW_PROFORMA_RECEIPT_TO_EJ,
     .caption = "Review/Proforma Receipt To EJ",
     .choices = input_no_input,
     .place = bit_at(offsetof(PrgModeImage, Set13_EJ), 5),
     .models = Models::z320_only},
};
static_assert(sound(ej_setup_rows, prg_mode_size));

}  // namespace ecr::setting

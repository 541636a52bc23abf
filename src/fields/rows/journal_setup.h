#pragma once
// The electronic journal: its system, what it stores, its beeps.
//
// The invoice's bit is saved from the list of the new balance: what is chosen for the invoice is not kept.

#include "fields/rows/choices.h"
#include "fields/rows/places.h"

namespace ecr::fields {

inline constexpr Choice journal_systems[] = {
    {.digit = 0, .token = "standard", .literal = "0. STANDARD", .text = Key::FRM_EJ_SETUP_CMB_EJ_SYSTEM0_MSG},
    {.digit = 1, .token = "dynamic", .literal = "1. DYNAMIC", .text = Key::FRM_EJ_SETUP_CMB_EJ_SYSTEM1_MSG},
    {.digit = 2, .token = "sd", .literal = "2. SD", .text = Key::FRM_EJ_SETUP_CMB_EJ_SYSTEM2_MSG}};
// Without a catalogue both entries read alike and save 0.
inline constexpr Choice journal_stores[] = {
    {.digit = 0, .token = "sales-only", .literal = "0. SALES ONLY", .text = Key::FRM_EJ_SETUP_CMB_EJ_STORE0_MSG},
    {.digit = 1, .token = "everything", .literal = "0. SALES ONLY", .text = Key::FRM_EJ_SETUP_CMB_EJ_STORE1_MSG}};
inline constexpr Choice input_no_input[] = {
    {.digit = 0, .token = "stored", .literal = "0. INPUT", .text = Key::FRM_ALL_INPUT},
    {.digit = 1, .token = "not-stored", .literal = "1. NO INPUT", .text = Key::FRM_ALL_NOINPUT}};

inline constexpr auto journal_setup_fields =
    in_section(Section::journal_setup,
               {{.id = "journal.system",
                 .name = {Key::FRM_EJ_SETUP_L_EJ_SYSTEM, "EJ System"},
                 .place = image_place("Set08_EJ"),
                 .choices = journal_systems,
                 .edited = {"Cmb_EJSystem", "L_EJSystem"},
                 .load = OptionLoad::mends_unknown},
                {.id = "journal.store",
                 .name = {Key::FRM_EJ_SETUP_L_EJ_STORE, "EJ Store"},
                 .place = image_bit("Set13_EJ", 0),
                 .choices = journal_stores,
                 .edited = {"Cmb_EJStore", "L_EJStore"}},
                {.id = "journal.beep-at-start",
                 .name = {Key::FRM_EJ_SETUP_L_BEEP_START_OF_TRANSACTION, "Beep Start Of Transaction"},
                 .place = image_bit("Set13_EJ", 1),
                 .choices = sound_no_sound,
                 .edited = {"Cmb_BeepStartOfTransaction", "L_BeepStartOfTransaction"}},
                {.id = "journal.beep-at-end",
                 .name = {Key::FRM_EJ_SETUP_L_BEEP_END_OF_TRANSACTION, "Beep End Of Transaction"},
                 .place = image_bit("Set13_EJ", 2),
                 .choices = sound_no_sound,
                 .edited = {"Cmb_BeepEndOfTransaction", "L_BeepEndOfTransaction"}},
                {.id = "journal.new-balance",
                 .name = {Key::FRM_EJ_SETUP_L_NEW_BALANCE_RECEIPTTO_EJ, "New Balance Receipt to EJ"},
                 .place = image_bit("Set13_EJ", 3),
                 .choices = input_no_input,
                 .models = Models::z320_only,
                 .edited = {"Cmb_NewBalanceReceipttoEJ", "L_NewBalanceReceipttoEJ"}},
                {.id = "journal.invoice",
                 .name = {Key::FRM_EJ_SETUP_L_INVOICE_RECEIPT_TO_EJ, "Invoice Receipt to EJ"},
                 .place = image_bit("Set13_EJ", 4),
                 .choices = input_no_input,
                 .models = Models::z320_only,
                 .edited = {"Cmb_InvoiceReceipttoEJ", "L_InvoiceReceipttoEJ"},
                 .saved_from = "Cmb_NewBalanceReceipttoEJ"},
                {.id = "journal.review",
                 .name = {Key::FRM_EJ_SETUP_L_REVIEW_PROFORMA_RECEIPT_TO_EJ, "Review/Proforma Receipt To EJ"},
                 .place = image_bit("Set13_EJ", 5),
                 .choices = input_no_input,
                 .models = Models::z320_only,
                 .edited = {"Cmb_Review_ProformaReceiptToEJ", "L_Review_ProformaReceiptToEJ"}}});

}  // namespace ecr::fields

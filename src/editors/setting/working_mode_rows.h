#pragma once
// The lists of the operating mode: how the register calculates and what a sale allows.

#include <cstddef>

#include "editors/option_table.h"
#include "editors/setting/setting_choices.h"
#include "image/prg_mode.h"

namespace ecr::setting {

// Key 1 has the text of number 0, key 0 that of number 1.
inline constexpr Choice vat_calculations[] = {
    {.digit = 0, .literal = "0. VAT", .text = Key::FRM_WORKING_MODE_CMB_VAT_CALCULATION1_MSG},
    {.digit = 1, .literal = "1. ADD ON TAX", .text = Key::FRM_WORKING_MODE_CMB_VAT_CALCULATION0_MSG}};
inline constexpr Choice conversions[] = {
    {.digit = 0, .literal = "0. DIVIDE", .text = Key::FRM_WORKING_MODE_CMB_FC_CONVERT_CALC0_MSG},
    {.digit = 1, .literal = "1. MULTIPLE", .text = Key::FRM_WORKING_MODE_CMB_FC_CONVERT_CALC1_MSG}};
inline constexpr Choice shifts[] = {
    {.digit = 0, .literal = "0. EACH ENTRY", .text = Key::FRM_WORKING_MODE_EACHENTRY},
    {.digit = 1, .literal = "1. END OF TRANSACTION", .text = Key::FRM_WORKING_MODE_ENDOFTRANSACTION},
    {.digit = 2, .literal = "2. STAY DOWN", .text = Key::FRM_WORKING_MODE_STAYDOWN}};

inline constexpr OptionRow working_mode_rows[] = {
    {.control = "Cmb_VatCalculation",
     .label = "L_VatCalculation",
     .key = Key::FRM_WORKING_MODE_L_VAT_CALCULATION,
     .caption = "VAT Calculation",
     .choices = vat_calculations,
     .place = byte_at(offsetof(PrgModeImage, Set03_Working))},
    {.control = "Cmb_FC_ConvertCalculation",
     .label = "L_FC_ConvertCalculation",
     .key = Key::FRM_WORKING_MODE_L_FC_CONVERT_CALCULATION,
     .caption = " FC Convert Calculation",
     .choices = conversions,
     .place = bit_at(offsetof(PrgModeImage, Set11_Shared), 1)},
    {.control = "Cmb_PM_Per_Result",
     .label = "L_PM_Per_Result",
     .key = Key::FRM_WORKING_MODE_L_PM_PER_RESULT,
     .caption = "\xB1%, \xB1 Result",
     .choices = enable_disable,
     .place = bit_at(offsetof(PrgModeImage, Set11_Shared), 0)},
    {.control = "Cmb_ZeroPriceRegistration",
     .label = "L_ZeroPriceRegistration",
     .key = Key::FRM_WORKING_MODE_L_ZERO_PRICE_REGISTRATION,
     .caption = "Zero Price Registration",
     .choices = yes_no,
     .place = bit_at(offsetof(PrgModeImage, Set10_Report), 6)},
    {.control = "Cmb_PostTender",
     .label = "L_PostTender",
     .key = Key::FRM_WORKING_MODE_L_POST_TENDER,
     .caption = "Post Transaction Tender",
     .choices = enable_disable,
     .place = bit_at(offsetof(PrgModeImage, Set10_Report), 5)},
    {.control = "Cmb_PluPageSelection",
     .label = "L_PluPageSelection",
     .key = Key::FRM_WORKING_MODE_L_PLUPAGESELECTION,
     .caption = "PLU Page shift selection",
     .choices = shifts,
     .place = byte_at(offsetof(PrgModeImage, Set02_Working)),
     .models = Models::z320_only},
    {.control = "Cmb_Price1_2ShiftSel",
     .label = "L_Price1_2ShiftSel",
     .key = Key::FRM_WORKING_MODE_L_PRICE_1_2_SHIFT_SEL,
     .caption = "Price 1/2 shift selection",
     .choices = shifts,
     .place = byte_at(offsetof(PrgModeImage, Set01_Working)),
     .models = Models::z320_only},
};
static_assert(sound(working_mode_rows, prg_mode_size));

}  // namespace ecr::setting

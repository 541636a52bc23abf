#pragma once
// The operating mode: how the register calculates and what a sale allows.

#include "fields/rows/choices.h"
#include "fields/rows/places.h"

namespace ecr::fields {

// Key 1 has the text of number 0, key 0 that of number 1.
inline constexpr Choice vat_calculations[] = {
    {.digit = 0, .token = "vat", .literal = "0. VAT", .text = Key::FRM_WORKING_MODE_CMB_VAT_CALCULATION1_MSG},
    {.digit = 1,
     .token = "add-on-tax",
     .literal = "1. ADD ON TAX",
     .text = Key::FRM_WORKING_MODE_CMB_VAT_CALCULATION0_MSG}};
inline constexpr Choice conversions[] = {
    {.digit = 0, .token = "divide", .literal = "0. DIVIDE", .text = Key::FRM_WORKING_MODE_CMB_FC_CONVERT_CALC0_MSG},
    {.digit = 1,
     .token = "multiply",
     .literal = "1. MULTIPLE",
     .text = Key::FRM_WORKING_MODE_CMB_FC_CONVERT_CALC1_MSG}};
inline constexpr Choice shifts[] = {
    {.digit = 0, .token = "each-entry", .literal = "0. EACH ENTRY", .text = Key::FRM_WORKING_MODE_EACHENTRY},
    {.digit = 1,
     .token = "end-of-transaction",
     .literal = "1. END OF TRANSACTION",
     .text = Key::FRM_WORKING_MODE_ENDOFTRANSACTION},
    {.digit = 2, .token = "stays", .literal = "2. STAY DOWN", .text = Key::FRM_WORKING_MODE_STAYDOWN}};

inline constexpr auto working_mode_fields = in_section(
    Section::working_mode, {{.id = "working.vat-calculation",
                             .name = {Key::FRM_WORKING_MODE_L_VAT_CALCULATION, "VAT Calculation"},
                             .place = image_place("Set03_Working"),
                             .choices = vat_calculations,
                             .edited = {"Cmb_VatCalculation", "L_VatCalculation"}},
                            {.id = "working.fc-conversion",
                             .name = {Key::FRM_WORKING_MODE_L_FC_CONVERT_CALCULATION, " FC Convert Calculation"},
                             .place = image_bit("Set11_Shared", 1),
                             .choices = conversions,
                             .edited = {"Cmb_FC_ConvertCalculation", "L_FC_ConvertCalculation"}},
                            {.id = "working.percent-result",
                             .name = {Key::FRM_WORKING_MODE_L_PM_PER_RESULT, "\xB1%, \xB1 Result"},
                             .place = image_bit("Set11_Shared", 0),
                             .choices = enable_disable,
                             .edited = {"Cmb_PM_Per_Result", "L_PM_Per_Result"}},
                            {.id = "working.zero-price",
                             .name = {Key::FRM_WORKING_MODE_L_ZERO_PRICE_REGISTRATION, "Zero Price Registration"},
                             .place = image_bit("Set10_Report", 6),
                             .choices = yes_no,
                             .edited = {"Cmb_ZeroPriceRegistration", "L_ZeroPriceRegistration"}},
                            {.id = "working.post-tender",
                             .name = {Key::FRM_WORKING_MODE_L_POST_TENDER, "Post Transaction Tender"},
                             .place = image_bit("Set10_Report", 5),
                             .choices = enable_disable,
                             .edited = {"Cmb_PostTender", "L_PostTender"}},
                            {.id = "working.plu-page-shift",
                             .name = {Key::FRM_WORKING_MODE_L_PLUPAGESELECTION, "PLU Page shift selection"},
                             .place = image_place("Set02_Working"),
                             .choices = shifts,
                             .models = Models::z320_only,
                             .edited = {"Cmb_PluPageSelection", "L_PluPageSelection"}},
                            {.id = "working.price-shift",
                             .name = {Key::FRM_WORKING_MODE_L_PRICE_1_2_SHIFT_SEL, "Price 1/2 shift selection"},
                             .place = image_place("Set01_Working"),
                             .choices = shifts,
                             .models = Models::z320_only,
                             .edited = {"Cmb_Price1_2ShiftSel", "L_Price1_2ShiftSel"}}});

}  // namespace ecr::fields

#pragma once
// The lists of table service. A set bit means no.

#include <cstddef>

#include "editors/option_table.h"
#include "editors/setting/setting_choices.h"
#include "image/prg_mode.h"

namespace ecr::setting {

inline constexpr OptionRow hospitality_setup_rows[] = {
    {.control = "Cmb_TableCompulsory",
     .label = "L_TableCompulsory",
     .key = Key::FRM_HOSPITALITY_SETUP_L_TABLE_COMPULSORY,
     .caption = "Table Compulsory",
     .choices = yes_no,
     .place = bit_at(offsetof(PrgModeImage, Set11_Shared), 6)},
    {.control = "Cmb_GuestCompulsory",
     .label = "L_GuestCompulsory",
     .key = Key::FRM_HOSPITALITY_SETUP_L_GUEST_COMPULSORY,
     .caption = "Guest Compulsory",
     .choices = yes_no,
     .place = bit_at(offsetof(PrgModeImage, Set11_Shared), 7)},
    {.control = "Cmb_ExclusiveClerk",
     .label = "L_ExclusiveClerk",
     .key = Key::FRM_HOSPITALITY_SETUP_L_EXCLUSIVE_CLERK,
     .caption = "Exclusive Clerk",
     .choices = yes_no,
     .place = bit_at(offsetof(PrgModeImage, Set12_Hospitality), 0)},
    {.control = "Cmb_Review_ProformaReceipt",
     .label = "L_Review_ProformaReceipt",
     .key = Key::FRM_HOSPITALITY_SETUP_L_REVIEW_PROFORMA_RECEIPT,
     .caption = "Review / Proforma Receipt",
     .choices = yes_no,
     .place = bit_at(offsetof(PrgModeImage, Set12_Hospitality), 1)},
    {.control = "Cmb_ConsUpdateOnNewBalance",
     .label = "L_ConsUpdateOnNewBalance",
     .key = Key::FRM_HOSPITALITY_SETUP_L_CONS_UPDATE_ON_NEW_BALANCE,
     .caption = "Cons # Update On New Balance",
     .choices = yes_no,
     .place = bit_at(offsetof(PrgModeImage, Set12_Hospitality), 2)},
    {.control = "Cmb_ConsUpdateOnInvoice",
     .label = "L_ConsUpdateOnInvoice",
     .key = Key::FRM_HOSPITALITY_SETUP_L_CONS_UPDATE_ON_NEW_INVOICE,
     .caption = "Cons # Update On Invoice",
     .choices = yes_no,
     .place = bit_at(offsetof(PrgModeImage, Set12_Hospitality), 3)},
    {.control = "Cmb_ConsUpdateOnReview_Proforma",
     .label = "L_ConsUpdateOnReview_Proforma",
     .key = Key::FRM_HOSPITALITY_SETUP_L_CONS_UPDATE_ON_NEW_REVIEW_PROFORMA,
     .caption = "Cons # Update On Review/Proforma",
     .choices = yes_no,
     .place = bit_at(offsetof(PrgModeImage, Set12_Hospitality), 4)},
};
static_assert(sound(hospitality_setup_rows, prg_mode_size));

}  // namespace ecr::setting

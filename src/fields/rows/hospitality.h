#pragma once
// Table service. A set bit means no.

#include "fields/rows/choices.h"
#include "fields/rows/places.h"

namespace ecr::fields {

inline constexpr auto hospitality_fields = in_section(
    Section::hospitality,
    {{.id = "hospitality.table-compulsory",
      .name = {Key::FRM_HOSPITALITY_SETUP_L_TABLE_COMPULSORY, "Table Compulsory"},
      .place = image_bit("Set11_Shared", 6),
      .choices = yes_no,
      .edited = {"Cmb_TableCompulsory", "L_TableCompulsory"}},
     {.id = "hospitality.guest-compulsory",
      .name = {Key::FRM_HOSPITALITY_SETUP_L_GUEST_COMPULSORY, "Guest Compulsory"},
      .place = image_bit("Set11_Shared", 7),
      .choices = yes_no,
      .edited = {"Cmb_GuestCompulsory", "L_GuestCompulsory"}},
     {.id = "hospitality.exclusive-clerk",
      .name = {Key::FRM_HOSPITALITY_SETUP_L_EXCLUSIVE_CLERK, "Exclusive Clerk"},
      .place = image_bit("Set12_Hospitality", 0),
      .choices = yes_no,
      .edited = {"Cmb_ExclusiveClerk", "L_ExclusiveClerk"}},
     {.id = "hospitality.review-receipt",
      .name = {Key::FRM_HOSPITALITY_SETUP_L_REVIEW_PROFORMA_RECEIPT, "Review / Proforma Receipt"},
      .place = image_bit("Set12_Hospitality", 1),
      .choices = yes_no,
      .edited = {"Cmb_Review_ProformaReceipt", "L_Review_ProformaReceipt"}},
     {.id = "hospitality.count-new-balance",
      .name = {Key::FRM_HOSPITALITY_SETUP_L_CONS_UPDATE_ON_NEW_BALANCE, "Cons # Update On New Balance"},
      .place = image_bit("Set12_Hospitality", 2),
      .choices = yes_no,
      .edited = {"Cmb_ConsUpdateOnNewBalance", "L_ConsUpdateOnNewBalance"}},
     {.id = "hospitality.count-invoice",
      .name = {Key::FRM_HOSPITALITY_SETUP_L_CONS_UPDATE_ON_NEW_INVOICE, "Cons # Update On Invoice"},
      .place = image_bit("Set12_Hospitality", 3),
      .choices = yes_no,
      .edited = {"Cmb_ConsUpdateOnInvoice", "L_ConsUpdateOnInvoice"}},
     {.id = "hospitality.count-review",
      .name = {Key::FRM_HOSPITALITY_SETUP_L_CONS_UPDATE_ON_NEW_REVIEW_PROFORMA, "Cons # Update On Review/Proforma"},
      .place = image_bit("Set12_Hospitality", 4),
      .choices = yes_no,
      .edited = {"Cmb_ConsUpdateOnReview_Proforma", "L_ConsUpdateOnReview_Proforma"}}});

}  // namespace ecr::fields

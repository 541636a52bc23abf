#pragma once
// Who may do what: the 15 clerks, and the passwords of the modes.

#include "fields/rows/choices.h"
#include "fields/rows/places.h"

namespace ecr::fields {

inline constexpr Choice clerk_modes[] = {
    {.digit = 0, .token = "normal", .literal = "0. NORMAL", .text = Key::FRM_CLERK_SYSTEM_PROGRAM_CMB_MODE_0_MSG},
    {.digit = 1, .token = "training", .literal = "1. TRAINING", .text = Key::FRM_CLERK_SYSTEM_PROGRAM_CMB_MODE_1_MSG}};

/// Name and password first, then the rights in the order of their bits; a bit that is set forbids.
inline constexpr auto clerk_fields =
    in_section(Section::clerks, {{.id = "clerk.name",
                                  .name = {Key::FRM_CLERK_SYSTEM_PROGRAM_L_DEPT_NAME, "Clerk Name:"},
                                  .place = image_place("Clerk.Name"),
                                  .coding = Coding::text,
                                  .edited = {"E_Name", "L_DeptName", Reach::record_list}},
                                 {.id = "clerk.password",
                                  .name = {Key::FRM_CLERK_SYSTEM_PROGRAM_L_PASSWORD, "Password:"},
                                  .place = image_place("Clerk.Password"),
                                  .coding = Coding::number,
                                  .limits = {.highest = 999, .digits = 3},
                                  .edited = {"E_Password", "L_Password", Reach::record_list},
                                  .secret = true},
                                 {.id = "clerk.void",
                                  .name = {Key::FRM_CLERK_SYSTEM_PROGRAM_L_VOID, "Void"},
                                  .place = image_bit("Clerk.Rights", 0),
                                  .choices = enable_disable,
                                  .edited = {"Cmb_Void", "L_Void", Reach::record_list}},
                                 {.id = "clerk.refund",
                                  .name = {Key::FRM_CLERK_SYSTEM_PROGRAM_L_REFUND, "Refund"},
                                  .place = image_bit("Clerk.Rights", 1),
                                  .choices = enable_disable,
                                  .edited = {"Cmb_Refund", "L_Refund", Reach::record_list}},
                                 {.id = "clerk.discount",
                                  .name = {Key::FRM_CLERK_SYSTEM_PROGRAM_L_DISCOUNT, "Discount"},
                                  .place = image_bit("Clerk.Rights", 2),
                                  .choices = enable_disable,
                                  .edited = {"Cmb_Discount", "L_Discount", Reach::record_list}},
                                 {.id = "clerk.paid-out",
                                  .name = {Key::FRM_CLERK_SYSTEM_PROGRAM_L_PAID_OUT, "Paid Out"},
                                  .place = image_bit("Clerk.Rights", 3),
                                  .choices = enable_disable,
                                  .edited = {"Cmb_PaidOut", "L_PaidOut", Reach::record_list}},
                                 {.id = "clerk.negative",
                                  .name = {Key::FRM_CLERK_SYSTEM_PROGRAM_L_NEGATIVE_DEPT_PLU, "Negative Dept && PLU"},
                                  .place = image_bit("Clerk.Rights", 4),
                                  .choices = enable_disable,
                                  .edited = {"Cmb_NegativeDeptPlu", "L_NegativeDeptPlu", Reach::record_list}},
                                 {.id = "clerk.coupon",
                                  .name = {Key::FRM_CLERK_SYSTEM_PROGRAM_L_COUPON, "Coupon"},
                                  .place = image_bit("Clerk.Rights", 5),
                                  .choices = enable_disable,
                                  .edited = {"Cmb_Coupon", "L_Coupon", Reach::record_list}},
                                 {.id = "clerk.extra-invoice",
                                  .name = {Key::FRM_CLERK_SYSTEM_PROGRAM_L_EXTRA_INVOICE, "Extra Invoice"},
                                  .place = image_bit("Clerk.Rights", 6),
                                  .choices = enable_disable,
                                  .models = Models::z320_only,
                                  .edited = {"Cmb_ExtraInvoice", "L_ExtraInvoice", Reach::record_list}},
                                 {.id = "clerk.mode",
                                  .name = {Key::FRM_CLERK_SYSTEM_PROGRAM_L_MODE, "Mode"},
                                  .place = image_bit("Clerk.Rights", 7),
                                  .choices = clerk_modes,
                                  .edited = {"Cmb_Mode", "L_Mode", Reach::record_list}}});

inline constexpr Limits mode_passwords = {.highest = 9'999, .digits = 4};

/// In the order in which they are loaded and saved: the manager's last.
inline constexpr auto password_fields = in_section(
    Section::passwords,
    {{.id = "password.program-z",
      .name = {Key::FRM_PERMISSION_PROGRAM_L_PRG_Z_MODE_PASSWORD_SETTING, "PRG/Z Mode Password Setting"},
      .place = image_place("Perm0"),
      .coding = Coding::number,
      .limits = mode_passwords,
      .edited = {"E_Prg_ZModePasswordSetting", "L_Prg_ZModePasswordSetting"},
      .secret = true},
     {.id = "password.x",
      .name = {Key::FRM_PERMISSION_PROGRAM_L_X_MODE_PASSWORD_SETTING, "X Mode Password Setting"},
      .place = image_place("Perm1"),
      .coding = Coding::number,
      .limits = mode_passwords,
      .edited = {"E_XModePasswordSetting", "L_XModePasswordSetting"},
      .secret = true},
     {.id = "password.training",
      .name = {Key::FRM_PERMISSION_PROGRAM_L_TRAINING_MODE_PASSWORD_SETTING, "Training Mode Password Setting"},
      .place = image_place("Perm3"),
      .coding = Coding::number,
      .limits = mode_passwords,
      .edited = {"E_TrainingModePasswordSetting", "L_TrainingModePasswordSetting"},
      .secret = true},
     {.id = "password.manager",
      .name = {Key::FRM_PERMISSION_PROGRAM_L_MANAGER_MODE_PASSWORD, "Manager Mode Password Setting"},
      .place = image_place("Perm2"),
      .coding = Coding::number,
      .limits = mode_passwords,
      .edited = {"E_ManagerModePassword", "L_ManagerModePassword"},
      .oddity = Oddity::takes_any_text,
      .secret = true}});

}  // namespace ecr::fields

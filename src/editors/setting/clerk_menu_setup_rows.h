#pragma once
// The lists of the clerk setup: whether there are clerks, and how they sign on.

#include <cstddef>

#include "editors/option_table.h"
#include "editors/setting/setting_choices.h"
#include "image/prg_mode.h"

namespace ecr::setting {

inline constexpr Choice clerk_systems[] = {{.digit = 0, .literal = "0. INACTIVE", .text = Key::FRM_ALL_INACTIVE},
                                           {.digit = 1, .literal = "1. ACTIVE", .text = Key::FRM_ALL_ACTIVE}};
// The keys stand crosswise to the literals: with a catalogue 0 reads active, without one inactive.
inline constexpr Choice login_displays[] = {{.digit = 0, .literal = "0. INACTIVE", .text = Key::FRM_ALL_ACTIVE},
                                            {.digit = 1, .literal = "1. ACTIVE", .text = Key::FRM_ALL_INACTIVE}};

inline constexpr OptionRow clerk_menu_setup_rows[] = {
    {.control = "Cmb_ClerkSystem",
     .label = "L_ClerkSystem",
     .key = Key::FRM_CLERK_MENU_SETUP_CLERK_SYSTEM,
     .caption = "Clerk System",
     .choices = clerk_systems,
     .place = bit_at(offsetof(PrgModeImage, Set09_ClerkMenu), 4)},
    {.control = "Cmb_MustClerkPassword",
     .label = "L_MustClerkPassword",
     .key = Key::FRM_CLERK_MENU_SETUP_L_MUST_CLERK_PASSWORD,
     .caption = "Clerk Password",
     .choices = no_yes,
     .place = bit_at(offsetof(PrgModeImage, Set09_ClerkMenu), 5)},
    {.control = "Cmb_EachTransactionOfClerk",
     .label = "L_EachTransactionOfClerk",
     .key = Key::FRM_CLERK_MENU_SETUP_L_EACH_TRANSACTION_OF_CLERK,
     .caption = "Clerk Pwd for Each Transaction",
     .choices = no_yes,
     .place = bit_at(offsetof(PrgModeImage, Set09_ClerkMenu), 6)},
    {.control = "Cmb_LoginClerkDisplay",
     .label = "L_LoginClerkDisplay",
     .key = Key::FRM_CLERK_MENU_SETUP_LOGIN_CLERK_DISPLAY,
     .caption = "Login Clerk Display",
     .choices = login_displays,
     .place = bit_at(offsetof(PrgModeImage, Set09_ClerkMenu), 7)},
};
static_assert(sound(clerk_menu_setup_rows, prg_mode_size));

}  // namespace ecr::setting

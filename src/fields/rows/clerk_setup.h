#pragma once
// The clerk setup: whether there are clerks, and how they sign on.

#include "fields/rows/choices.h"
#include "fields/rows/places.h"

namespace ecr::fields {

inline constexpr Choice clerk_systems[] = {
    {.digit = 0, .token = "inactive", .literal = "0. INACTIVE", .text = Key::FRM_ALL_INACTIVE},
    {.digit = 1, .token = "active", .literal = "1. ACTIVE", .text = Key::FRM_ALL_ACTIVE}};
// The keys stand crosswise to the literals: with a catalogue 0 reads active, without one inactive. Plain text takes
// neither side.
inline constexpr Choice login_displays[] = {
    {.digit = 0, .token = "clear", .literal = "0. INACTIVE", .text = Key::FRM_ALL_ACTIVE},
    {.digit = 1, .token = "set", .literal = "1. ACTIVE", .text = Key::FRM_ALL_INACTIVE}};

inline constexpr auto clerk_setup_fields =
    in_section(Section::clerk_setup,
               {{.id = "clerk-setup.system",
                 .name = {Key::FRM_CLERK_MENU_SETUP_CLERK_SYSTEM, "Clerk System"},
                 .place = image_bit("Set09_ClerkMenu", 4),
                 .choices = clerk_systems,
                 .edited = {"Cmb_ClerkSystem", "L_ClerkSystem"}},
                {.id = "clerk-setup.password",
                 .name = {Key::FRM_CLERK_MENU_SETUP_L_MUST_CLERK_PASSWORD, "Clerk Password"},
                 .place = image_bit("Set09_ClerkMenu", 5),
                 .choices = no_yes,
                 .edited = {"Cmb_MustClerkPassword", "L_MustClerkPassword"}},
                {.id = "clerk-setup.password-each-time",
                 .name = {Key::FRM_CLERK_MENU_SETUP_L_EACH_TRANSACTION_OF_CLERK, "Clerk Pwd for Each Transaction"},
                 .place = image_bit("Set09_ClerkMenu", 6),
                 .choices = no_yes,
                 .edited = {"Cmb_EachTransactionOfClerk", "L_EachTransactionOfClerk"}},
                {.id = "clerk-setup.login-display",
                 .name = {Key::FRM_CLERK_MENU_SETUP_LOGIN_CLERK_DISPLAY, "Login Clerk Display"},
                 .place = image_bit("Set09_ClerkMenu", 7),
                 .choices = login_displays,
                 .edited = {"Cmb_LoginClerkDisplay", "L_LoginClerkDisplay"},
                 .oddity = Oddity::words_crossed}});

}  // namespace ecr::fields

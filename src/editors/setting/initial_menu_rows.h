#pragma once
// The lists of the initial menu: language, formats, tone, motor, rounding, mode.

#include <cstddef>

#include "editors/option_table.h"
#include "editors/setting/setting_choices.h"
#include "image/prg_mode.h"

namespace ecr::setting {

// From German on, it is the text of the language before that decides.
inline constexpr Choice register_languages[] = {
    {.digit = 0, .literal = "0. ENGLISH", .text = Key::FRM_INITIAL_MENU_CMB_LINGUA0_MSG},
    {.digit = 1, .literal = "1. SPANISH", .text = Key::FRM_INITIAL_MENU_CMB_LINGUA1_MSG},
    {.digit = 2, .literal = "2. FRENCH", .text = Key::FRM_INITIAL_MENU_CMB_LINGUA2_MSG},
    {.digit = 3,
     .literal = "3. GERMAN",
     .text = Key::FRM_INITIAL_MENU_CMB_LINGUA3_MSG,
     .decides = Key::FRM_INITIAL_MENU_CMB_LINGUA2_MSG},
    {.digit = 4,
     .literal = "4. DUTCH",
     .text = Key::FRM_INITIAL_MENU_CMB_LINGUA4_MSG,
     .decides = Key::FRM_INITIAL_MENU_CMB_LINGUA3_MSG},
    {.digit = 5,
     .literal = "5. PORTOGUESE",
     .text = Key::FRM_INITIAL_MENU_CMB_LINGUA5_MSG,
     .decides = Key::FRM_INITIAL_MENU_CMB_LINGUA4_MSG},
    {.digit = 6,
     .literal = "6. DANISH",
     .text = Key::FRM_INITIAL_MENU_CMB_LINGUA6_MSG,
     .decides = Key::FRM_INITIAL_MENU_CMB_LINGUA5_MSG},
    {.digit = 7,
     .literal = "7. NORWEGIAN",
     .text = Key::FRM_INITIAL_MENU_CMB_LINGUA7_MSG,
     .decides = Key::FRM_INITIAL_MENU_CMB_LINGUA6_MSG}};
// Key 1 has the text of format 0 and key 0 that of format 1, and each asks for the other one.
inline constexpr Choice date_formats[] = {{.digit = 0,
                                           .literal = "0. DD-MM-YY",
                                           .text = Key::FRM_INITIAL_MENU_CMB_DATA_FORMAT1_MSG,
                                           .decides = Key::FRM_INITIAL_MENU_CMB_DATA_FORMAT0_MSG},
                                          {.digit = 1,
                                           .literal = "1. MM-DD-YY",
                                           .text = Key::FRM_INITIAL_MENU_CMB_DATA_FORMAT0_MSG,
                                           .decides = Key::FRM_INITIAL_MENU_CMB_DATA_FORMAT1_MSG}};
inline constexpr Choice time_formats[] = {
    {.digit = 0, .literal = "0. 24 HOUR", .text = Key::FRM_INITIAL_MENU_CMB_TIME_FORMAT0_MSG},
    {.digit = 1, .literal = "1. 12 HOUR", .text = Key::FRM_INITIAL_MENU_CMB_TIME_FORMAT1_MSG}};
inline constexpr Choice winding_motor[] = {
    {.digit = 0, .literal = "0. ONLY EJ", .text = Key::FRM_INITIAL_MENU_CMB_WINDING_MOTOR0_MSG},
    {.digit = 1, .literal = "1. PRG, X.Z MODE", .text = Key::FRM_INITIAL_MENU_CMB_WINDING_MOTOR1_MSG}};
// Codes 4 and 5 have an entry without a text: it is shown, and saves 0.
inline constexpr Choice roundings[] = {
    {.digit = 0, .literal = "0. NO", .text = Key::FRM_ALL_NO},
    {.digit = 1, .literal = "1. EURO", .text = Key::FRM_INITIAL_MENU_CMB_EU_ROUNDING1_MSG},
    {.digit = 2, .literal = "2. SWISS", .text = Key::FRM_INITIAL_MENU_CMB_EU_ROUNDING2_MSG},
    {.digit = 3, .literal = "3. DANISH", .text = Key::FRM_INITIAL_MENU_CMB_EU_ROUNDING3_MSG},
    {.digit = 4},
    {.digit = 5}};
inline constexpr Choice register_modes[] = {
    {.digit = 0, .literal = "0. JOURNAL MODE", .text = Key::FRM_INITIAL_MENU_CMB_REGISTER_MODE0_MSG},
    {.digit = 1, .literal = "1. RECEIPT MODE", .text = Key::FRM_INITIAL_MENU_CMB_REGISTER_MODE1_MSG}};

inline constexpr OptionRow initial_menu_rows[] = {
    {.control = "Cmb_Lingua",
     .label = "L_Language",
     .key = Key::FRM_INITIAL_MENU_L_LANGUAGE,
     .caption = "Language",
     .choices = register_languages,
     .place = byte_at(offsetof(PrgModeImage, Set00_InitialMenu))},
    {.control = "Cmb_DateFormat",
     .label = "L_DateFormat",
     .key = Key::FRM_INITIAL_MENU_L_DATE_FORMAT,
     .caption = "Date Format",
     .choices = date_formats,
     .place = bit_at(offsetof(PrgModeImage, Set09_ClerkMenu), 0)},
    {.control = "Cmb_TimeFormat",
     .label = "L_TimeFormat",
     .key = Key::FRM_INITIAL_MENU_L_TIME_FORMAT,
     .caption = "Time Format",
     .choices = time_formats,
     .place = bit_at(offsetof(PrgModeImage, Set09_ClerkMenu), 1)},
    {.control = "Cmb_KeyTone",
     .label = "L_KeyTone",
     .key = Key::FRM_INITIAL_MENU_L_KEY_TONE,
     .caption = "Key Tone",
     .choices = sound_no_sound,
     .place = bit_at(offsetof(PrgModeImage, Set09_ClerkMenu), 2)},
    {.control = "Cmb_WindingMotor",
     .label = "L_WindingMotor",
     .key = Key::FRM_INITIAL_MENU_L_WINDING_MOTOR,
     .caption = "Winding Motor",
     .choices = winding_motor,
     .place = bit_at(offsetof(PrgModeImage, Set10_Report), 0)},
    {.control = "Cmb_EuRoundigSel",
     .label = "L_EuropeanRoundingSel",
     .key = Key::FRM_INITIAL_MENU_L_EUROPEAN_ROUNDING_SEL,
     .caption = "European Rounding Selection",
     .choices = roundings,
     .place = byte_at(offsetof(PrgModeImage, Set04_InitialMenu))},
    {.control = "Cmb_RegisterMode",
     .label = "L_RegisterMode",
     .key = Key::FRM_INITIAL_MENU_L_REGISTER_MODE_MSG,
     .caption = "Register Mode",
     .choices = register_modes,
     .place = bit_at(offsetof(PrgModeImage, Set11_Shared), 5)},
};
static_assert(sound(initial_menu_rows, prg_mode_size));

}  // namespace ecr::setting

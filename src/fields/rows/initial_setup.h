#pragma once
// The initial menu: language, formats, tone, motor, rounding, mode.

#include "fields/rows/choices.h"
#include "fields/rows/places.h"

namespace ecr::fields {

// From German on, it is the text of the language before that decides.
inline constexpr Choice register_languages[] = {
    {.digit = 0, .token = "english", .literal = "0. ENGLISH", .text = Key::FRM_INITIAL_MENU_CMB_LINGUA0_MSG},
    {.digit = 1, .token = "spanish", .literal = "1. SPANISH", .text = Key::FRM_INITIAL_MENU_CMB_LINGUA1_MSG},
    {.digit = 2, .token = "french", .literal = "2. FRENCH", .text = Key::FRM_INITIAL_MENU_CMB_LINGUA2_MSG},
    {.digit = 3,
     .token = "german",
     .literal = "3. GERMAN",
     .text = Key::FRM_INITIAL_MENU_CMB_LINGUA3_MSG,
     .decides = Key::FRM_INITIAL_MENU_CMB_LINGUA2_MSG},
    {.digit = 4,
     .token = "dutch",
     .literal = "4. DUTCH",
     .text = Key::FRM_INITIAL_MENU_CMB_LINGUA4_MSG,
     .decides = Key::FRM_INITIAL_MENU_CMB_LINGUA3_MSG},
    {.digit = 5,
     .token = "portuguese",
     .literal = "5. PORTOGUESE",
     .text = Key::FRM_INITIAL_MENU_CMB_LINGUA5_MSG,
     .decides = Key::FRM_INITIAL_MENU_CMB_LINGUA4_MSG},
    {.digit = 6,
     .token = "danish",
     .literal = "6. DANISH",
     .text = Key::FRM_INITIAL_MENU_CMB_LINGUA6_MSG,
     .decides = Key::FRM_INITIAL_MENU_CMB_LINGUA5_MSG},
    {.digit = 7,
     .token = "norwegian",
     .literal = "7. NORWEGIAN",
     .text = Key::FRM_INITIAL_MENU_CMB_LINGUA7_MSG,
     .decides = Key::FRM_INITIAL_MENU_CMB_LINGUA6_MSG}};
// Key 1 has the text of format 0 and key 0 that of format 1, and each asks for the other one.
inline constexpr Choice date_formats[] = {{.digit = 0,
                                           .token = "dd-mm-yy",
                                           .literal = "0. DD-MM-YY",
                                           .text = Key::FRM_INITIAL_MENU_CMB_DATA_FORMAT1_MSG,
                                           .decides = Key::FRM_INITIAL_MENU_CMB_DATA_FORMAT0_MSG},
                                          {.digit = 1,
                                           .token = "mm-dd-yy",
                                           .literal = "1. MM-DD-YY",
                                           .text = Key::FRM_INITIAL_MENU_CMB_DATA_FORMAT0_MSG,
                                           .decides = Key::FRM_INITIAL_MENU_CMB_DATA_FORMAT1_MSG}};
inline constexpr Choice time_formats[] = {
    {.digit = 0, .token = "24-hours", .literal = "0. 24 HOUR", .text = Key::FRM_INITIAL_MENU_CMB_TIME_FORMAT0_MSG},
    {.digit = 1, .token = "12-hours", .literal = "1. 12 HOUR", .text = Key::FRM_INITIAL_MENU_CMB_TIME_FORMAT1_MSG}};
inline constexpr Choice winding_motor[] = {
    {.digit = 0, .token = "journal", .literal = "0. ONLY EJ", .text = Key::FRM_INITIAL_MENU_CMB_WINDING_MOTOR0_MSG},
    {.digit = 1,
     .token = "program-x-z",
     .literal = "1. PRG, X.Z MODE",
     .text = Key::FRM_INITIAL_MENU_CMB_WINDING_MOTOR1_MSG}};
// Codes 4 and 5 have an entry without a text: it is shown, and saves 0.
inline constexpr Choice roundings[] = {
    {.digit = 0, .token = "none", .literal = "0. NO", .text = Key::FRM_ALL_NO},
    {.digit = 1, .token = "euro", .literal = "1. EURO", .text = Key::FRM_INITIAL_MENU_CMB_EU_ROUNDING1_MSG},
    {.digit = 2, .token = "swiss", .literal = "2. SWISS", .text = Key::FRM_INITIAL_MENU_CMB_EU_ROUNDING2_MSG},
    {.digit = 3, .token = "danish", .literal = "3. DANISH", .text = Key::FRM_INITIAL_MENU_CMB_EU_ROUNDING3_MSG},
    {.digit = 4},
    {.digit = 5}};
inline constexpr Choice register_modes[] = {{.digit = 0,
                                             .token = "journal",
                                             .literal = "0. JOURNAL MODE",
                                             .text = Key::FRM_INITIAL_MENU_CMB_REGISTER_MODE0_MSG},
                                            {.digit = 1,
                                             .token = "receipt",
                                             .literal = "1. RECEIPT MODE",
                                             .text = Key::FRM_INITIAL_MENU_CMB_REGISTER_MODE1_MSG}};

inline constexpr auto initial_setup_fields = in_section(
    Section::initial_setup, {{.id = "initial.language",
                              .name = {Key::FRM_INITIAL_MENU_L_LANGUAGE, "Language"},
                              .place = image_place("Set00_InitialMenu"),
                              .choices = register_languages,
                              .edited = {"Cmb_Lingua", "L_Language"}},
                             {.id = "initial.date-format",
                              .name = {Key::FRM_INITIAL_MENU_L_DATE_FORMAT, "Date Format"},
                              .place = image_bit("Set09_ClerkMenu", 0),
                              .choices = date_formats,
                              .edited = {"Cmb_DateFormat", "L_DateFormat"}},
                             {.id = "initial.time-format",
                              .name = {Key::FRM_INITIAL_MENU_L_TIME_FORMAT, "Time Format"},
                              .place = image_bit("Set09_ClerkMenu", 1),
                              .choices = time_formats,
                              .edited = {"Cmb_TimeFormat", "L_TimeFormat"}},
                             {.id = "initial.key-tone",
                              .name = {Key::FRM_INITIAL_MENU_L_KEY_TONE, "Key Tone"},
                              .place = image_bit("Set09_ClerkMenu", 2),
                              .choices = sound_no_sound,
                              .edited = {"Cmb_KeyTone", "L_KeyTone"}},
                             {.id = "initial.winding-motor",
                              .name = {Key::FRM_INITIAL_MENU_L_WINDING_MOTOR, "Winding Motor"},
                              .place = image_bit("Set10_Report", 0),
                              .choices = winding_motor,
                              .edited = {"Cmb_WindingMotor", "L_WindingMotor"}},
                             {.id = "initial.rounding",
                              .name = {Key::FRM_INITIAL_MENU_L_EUROPEAN_ROUNDING_SEL, "European Rounding Selection"},
                              .place = image_place("Set04_InitialMenu"),
                              .choices = roundings,
                              .edited = {"Cmb_EuRoundigSel", "L_EuropeanRoundingSel"}},
                             {.id = "initial.register-mode",
                              .name = {Key::FRM_INITIAL_MENU_L_REGISTER_MODE_MSG, "Register Mode"},
                              .place = image_bit("Set11_Shared", 5),
                              .choices = register_modes,
                              .edited = {"Cmb_RegisterMode", "L_RegisterMode"}},
                             {.id = "initial.business-id",
                              .name = {Key::FRM_INITIAL_MENU_L_BUSINESS_ID_MSG, "Business ID"},
                              .place = image_place("InitialMenuBlock5"),
                              .coding = Coding::number,
                              .limits = {.highest = 9'999'999'999},
                              .edited = {"E_BusinessID", "L_BusinessID"},
                              .oddity = Oddity::never_shown}});

}  // namespace ecr::fields

#pragma once
// What the function keys do: the two percentage keys, the keys for money paid in and out, the plus-minus keys, and the
// number and no-sale key.

#include "fields/rows/choices.h"
#include "fields/rows/places.h"

namespace ecr::fields {

// The entries stand crosswise: the built-in texts have the other digit than the place at which they stand, and the
// catalogue's words for the two keys are turned against each other. Load goes by the place, save by the digit, so with
// an empty catalogue each of them flips the sign. Plain text goes with the catalogue.
inline constexpr Choice signs_of_percent1[] = {
    {.digit = 0, .token = "add-on", .literal = "1. DISCOUNT", .text = Key::FRM_ALL_ADDON, .prefix = Prefix::point},
    {.digit = 1, .token = "discount", .literal = "0. ADD ON", .text = Key::FRM_ALL_DISCOUNT, .prefix = Prefix::point}};
inline constexpr Choice signs_of_percent2[] = {{.digit = 0,
                                                .token = "discount",
                                                .literal = "1. DISCOUNT",
                                                .text = Key::FRM_ALL_DISCOUNT,
                                                .decides = Key::FRM_ALL_ADDON,
                                                .prefix = Prefix::point},
                                               {.digit = 1,
                                                .token = "add-on",
                                                .literal = "0. ADD ON",
                                                .text = Key::FRM_ALL_ADDON,
                                                .decides = Key::FRM_ALL_DISCOUNT,
                                                .prefix = Prefix::point}};

inline constexpr Limits key_rates = {.highest = 9'999, .decimals = 2};

inline constexpr auto percent_key_fields =
    in_section(Section::percent_keys, {{.id = "percent1.rate",
                                        .name = {Key::FRM_PERCENTAGE_MENU_L_P1_KEY_RATE, "Key %1 Rate"},
                                        .place = image_element("PercentA", 1),
                                        .coding = Coding::percent,
                                        .limits = key_rates,
                                        .edited = {"E_P1KeyRate", "L_P1KeyRate"}},
                                       {.id = "percent1.limit",
                                        .name = {Key::FRM_PERCENTAGE_MENU_L_P1_KEY_RATE_LIMIT, "Key %1 Rate Limit"},
                                        .place = image_element("PercentA", 2),
                                        .coding = Coding::percent,
                                        .limits = key_rates,
                                        .edited = {"E_P1KeyRateLimit", "L_P1KeyRateLimit"}},
                                       {.id = "percent1.sign",
                                        .name = {Key::FRM_PERCENTAGE_MENU_L_P1_SIGN, "Key %1 Function:"},
                                        .place = image_bit("KeyOpt4", 0),
                                        .choices = signs_of_percent1,
                                        .edited = {"Cmb_P1Sign", "L_P1Sign"},
                                        .oddity = Oddity::words_crossed},
                                       {.id = "percent2.rate",
                                        .name = {Key::FRM_PERCENTAGE_MENU_L_P2_KEY_RATE, "Key %2 Rate"},
                                        .place = image_element("PercentB", 1),
                                        .coding = Coding::percent,
                                        .limits = key_rates,
                                        .edited = {"E_P2KeyRate", "L_P2KeyRate"}},
                                       {.id = "percent2.limit",
                                        .name = {Key::FRM_PERCENTAGE_MENU_L_P2_KEY_RATE_LIMIT, "Key %2 Rate Limit"},
                                        .place = image_element("PercentB", 2),
                                        .coding = Coding::percent,
                                        .limits = key_rates,
                                        .edited = {"E_P2KeyRateLimit", "L_P2KeyRateLimit"}},
                                       {.id = "percent2.sign",
                                        .name = {Key::FRM_PERCENTAGE_MENU_L_P2_SIGN, "Key %2 Function:"},
                                        .place = image_bit("KeyOpt4", 1),
                                        .choices = signs_of_percent2,
                                        .edited = {"Cmb_P2Sign", "L_P2Sign"}}});

// A discount is number 0 here, as it is for key %2.
inline constexpr Choice plus_minus_signs[] = {
    {.digit = 0, .token = "discount", .literal = "0. DISCOUNT", .text = Key::FRM_ALL_DISCOUNT},
    {.digit = 1, .token = "add-on", .literal = "1. ADD ON", .text = Key::FRM_ALL_ADDON}};

inline constexpr auto amount_key_fields = in_section(
    Section::amount_keys, {{.id = "ra.limit",
                            .name = {Key::FRM_PO_RA_MP_KEY_MENU_L_RA_KEY_HDLO_SETTING, "RA Key HDLO Setting"},
                            .place = image_place("KeyOpt0"),
                            .choices = digit_limits,
                            .edited = {"Cmb_RAKeyHDLOSetting", "L_RAKeyHDLOSetting"}},
                           {.id = "po.limit",
                            .name = {Key::FRM_PO_RA_MP_KEY_MENU_L_PO_KEY_HDLO_SETTING, "PO Key HDLO Setting"},
                            .place = image_place("KeyOpt1"),
                            .choices = digit_limits,
                            .edited = {"Cmb_POKeyHDLOSetting", "L_POKeyHDLOSetting"}},
                           {.id = "plus-minus1.limit",
                            .name = {Key::FRM_PO_RA_MP_KEY_MENU_L_PM1_KEY_HDLO_SETTING, "+/- 1 Key HDLO Setting"},
                            .place = image_place("KeyOpt2"),
                            .choices = digit_limits,
                            .edited = {"Cmb_PM1KeyHDLOSetting", "L_PM1KeyHDLOSetting"}},
                           {.id = "plus-minus2.limit",
                            .name = {Key::FRM_PO_RA_MP_KEY_MENU_L_PM2_KEY_HDLO_SETTING, "+/- 2 Key HDLO Setting"},
                            .place = image_place("KeyOpt3"),
                            .choices = digit_limits,
                            .edited = {"Cmb_PM2KeyHDLOSetting", "L_PM2KeyHDLOSetting"}},
                           {.id = "plus-minus1.sign",
                            .name = {Key::FRM_PO_RA_MP_KEY_MENU_L_PM1_SIGN, "+/-1 Sign"},
                            .place = image_bit("KeyOpt4", 2),
                            .choices = plus_minus_signs,
                            .edited = {"Cmb_PM1Sign", "L_PM1Sign"}},
                           {.id = "plus-minus2.sign",
                            .name = {Key::FRM_PO_RA_MP_KEY_MENU_L_PM2_SIGN, "+/-2 Sign"},
                            .place = image_bit("KeyOpt4", 3),
                            .choices = plus_minus_signs,
                            .edited = {"Cmb_PM2Sign", "L_PM2Sign"}},
                           {.id = "ra.header",
                            .name = {Key::FRM_PO_RA_MP_KEY_MENU_L_RA_HEADER_PRINT, "RA Header Print"},
                            .place = image_bit("KeyOpt4", 4),
                            .choices = print_not_print,
                            .edited = {"Cmb_RAHeaderPrint", "L_RAHeaderPrint"}},
                           {.id = "po.header",
                            .name = {Key::FRM_PO_RA_MP_KEY_MENU_L_PO_HEADER_PRINT, "PO Header Print"},
                            .place = image_bit("KeyOpt4", 5),
                            .choices = print_not_print,
                            .edited = {"Cmb_POHeaderPrint", "L_POHeaderPrint"}}});

inline constexpr Choice key_positions_ns[] = {{.digit = 0,
                                               .token = "reg-and-mgr",
                                               .literal = "0. REG & MGR",
                                               .text = Key::FRM_NS_MENU_SETTING_CMB_CONTROL_KEY_POSITIONING_0_MSG},
                                              {.digit = 1,
                                               .token = "mgr-only",
                                               .literal = "1. MGR ONLY",
                                               .text = Key::FRM_NS_MENU_SETTING_CMB_CONTROL_KEY_POSITIONING_1_MSG}};
// The journal's own screen has "1. NO INPUT" for the same key.
inline constexpr Choice input_not_input[] = {
    {.digit = 0, .token = "stored", .literal = "0. INPUT", .text = Key::FRM_ALL_INPUT},
    {.digit = 1, .token = "not-stored", .literal = "1. NOT INPUT", .text = Key::FRM_ALL_NOINPUT}};
inline constexpr Choice increments[] = {{.digit = 0,
                                         .token = "update",
                                         .literal = "0. UPDATE",
                                         .text = Key::FRM_NS_MENU_SETTING_CMB_CONSECUTIVE_INCREMENT_0_MSG},
                                        {.digit = 1,
                                         .token = "no-update",
                                         .literal = "1. NOT UPDATE",
                                         .text = Key::FRM_NS_MENU_SETTING_CMB_CONSECUTIVE_INCREMENT_1_MSG}};

inline constexpr auto no_sale_fields = in_section(
    Section::no_sale, {{.id = "no-sale.drawer",
                        .name = {Key::FRM_NS_MENU_SETTING_L_DRAWER_OPEN, "Drawer Open"},
                        .place = image_bit("NoSaleOpt", 0),
                        .choices = open_closed,
                        .edited = {"Cmb_DrawerOpen", "L_DrawerOpen"}},
                       {.id = "no-sale.key-position",
                        .name = {Key::FRM_NS_MENU_SETTING_L_CONTROL_KEY_POSITIONING, "Control Key Positioning"},
                        .place = image_bit("NoSaleOpt", 1),
                        .choices = key_positions_ns,
                        .edited = {"Cmb_ControlKeyPositioning", "L_ControlKeyPositioning"}},
                       {.id = "no-sale.receipt",
                        .name = {Key::FRM_NS_MENU_SETTING_L_RECEIPT_PRINT, "Receipt Print"},
                        .place = image_bit("NoSaleOpt", 2),
                        .choices = print_not_print,
                        .edited = {"Cmb_ReceiptPrint", "L_ReceiptPrint"}},
                       {.id = "no-sale.header",
                        .name = {Key::FRM_NS_MENU_SETTING_L_RECEIPT_HEADER_PRINT, "Receipt Header Print"},
                        .place = image_bit("NoSaleOpt", 3),
                        .choices = print_not_print,
                        .edited = {"Cmb_ReceiptHeaderPrint", "L_ReceiptHeaderPrint"}},
                       {.id = "no-sale.journal",
                        .name = {Key::FRM_NS_MENU_SETTING_L_EJ_INPUT, "EJ Input"},
                        .place = image_bit("NoSaleOpt", 4),
                        .choices = input_not_input,
                        .edited = {"Cmb_EJInput", "L_EJInput"}},
                       {.id = "no-sale.consecutive",
                        .name = {Key::FRM_NS_MENU_SETTING_L_CONSECUTIVE_INCREMENT, "Consecutive # Increment"},
                        .place = image_bit("NoSaleOpt", 5),
                        .choices = increments,
                        .edited = {"Cmb_ConsecutiveIncrement", "L_ConsecutiveIncrement"}}});

}  // namespace ecr::fields

#pragma once
// The ten rules for barcodes that a shop prints itself.

#include "fields/rows/choices.h"
#include "fields/rows/places.h"

namespace ecr::fields {

inline constexpr Choice code_lengths[] = {
    {.digit = 0, .token = "long", .literal = "0. LONG", .text = Key::FRM_INSTORE_BARCODE_SETTING_CMB_CODE_LENGHT_0_MSG},
    {.digit = 1,
     .token = "short",
     .literal = "1. SHORT",
     .text = Key::FRM_INSTORE_BARCODE_SETTING_CMB_CODE_LENGHT_1_MSG}};

// The lists of bare numbers show whatever number the image holds.
inline constexpr auto barcode_fields =
    in_section(Section::barcodes, {{.id = "barcode.flag",
                                    .name = {Key::FRM_INSTORE_BARCODE_SETTING_L_INSTORE, "Flag Code"},
                                    .place = image_place("InstoreBarcode.FlagCode"),
                                    .coding = Coding::number,
                                    .limits = {.highest = 9'999},
                                    .edited = {"E_FlagCode", "L_Instore", Reach::record_list}},
                                   {.id = "barcode.flag-digits",
                                    .name = {Key::FRM_INSTORE_BARCODE_SETTING_L_DIGITS_OF_FLAG, "Digits in Flag"},
                                    .place = image_place("InstoreBarcode.DigitsOfFlag"),
                                    .coding = Coding::number,
                                    .limits = {.highest = 3},
                                    .edited = {"Cmb_DigitsOfFlag", "L_DigitsOfFlag", Reach::record_list}},
                                   {.id = "barcode.price-digits",
                                    .name = {Key::FRM_INSTORE_BARCODE_SETTING_L_DIGITS_OF_PRICE, "Digits in Price"},
                                    .place = image_place("InstoreBarcode.DigitsOfPrice"),
                                    .coding = Coding::number,
                                    .limits = {.highest = 8},
                                    .edited = {"Cmb_DigitsOfPrice", "L_DigitsOfPrice", Reach::record_list}},
                                   {.id = "barcode.currency",
                                    .name = {Key::FRM_INSTORE_BARCODE_SETTING_L_NUMBER_OF_FC, "FC Number"},
                                    .place = image_place("InstoreBarcode.NumberOfFc"),
                                    .coding = Coding::number,
                                    .limits = {.highest = 4},
                                    .edited = {"Cmb_NumberOfFc", "L_NumberOfFc", Reach::record_list}},
                                   // Its built-in caption says "Version", though it sets a length.
                                   {.id = "barcode.length",
                                    .name = {Key::FRM_INSTORE_BARCODE_SETTING_L_CODE_LENGHT, "Version"},
                                    .place = image_place("InstoreBarcode.CodeLenght"),
                                    .choices = code_lengths,
                                    .edited = {"Cmb_CodeLenght", "L_CodeLenght", Reach::record_list},
                                    .load = OptionLoad::zero_or_second},
                                   {.id = "barcode.price-check",
                                    .name = {Key::FRM_INSTORE_BARCODE_SETTING_L_PRICE_CHECK_DIGIT, "Price Check Digit"},
                                    .place = image_place("InstoreBarcode.PriceCheckDigit"),
                                    .choices = no_yes,
                                    .edited = {"Cmb_PriceCheckDigit", "L_PriceCheckDigit", Reach::record_list},
                                    .load = OptionLoad::zero_or_second},
                                   {.id = "barcode.newspaper",
                                    .name = {Key::FRM_INSTORE_BARCODE_SETTING_L_NEWS_PAPER, "News paper"},
                                    .place = image_place("InstoreBarcode.NewsPaper"),
                                    .choices = no_yes,
                                    .edited = {"Cmb_NewsPaper", "L_NewPaper", Reach::record_list},
                                    .load = OptionLoad::zero_or_second}});

}  // namespace ecr::fields

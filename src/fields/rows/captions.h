#pragma once
// Every text that the register prints or shows, and the two options of its scroll messages.

#include "fields/rows/places.h"

namespace ecr::fields {

inline constexpr auto header_fields =
    in_section(Section::header, {{.id = "header.text",
                                  .name = {.own = OwnText::field_text},
                                  .place = image_place("ReceiptHeader"),
                                  .coding = Coding::text,
                                  .edited = {"E_ReceiptHeader", "L_ReceiptHeader", Reach::array_from_0}}});
inline constexpr auto footer_fields =
    in_section(Section::footer, {{.id = "footer.text",
                                  .name = {.own = OwnText::field_text},
                                  .place = image_place("ReceiptFooter"),
                                  .coding = Coding::text,
                                  .edited = {"E_ReceiptFooter", "L_ReceiptFooter", Reach::array_from_0}}});
inline constexpr auto invoice_line_fields =
    in_section(Section::invoice_lines, {{.id = "invoice-line.text",
                                         .name = {.own = OwnText::field_text},
                                         .place = image_place("ExtraInvoice"),
                                         .coding = Coding::text,
                                         .models = Models::z320_only,
                                         .edited = {"E_ExtraInvoice", "L_ExtraInvoice", Reach::array_from_0},
                                         .oddity = Oddity::invoice_lines_kept}});
inline constexpr auto other_line_fields =
    in_section(Section::other_lines, {{.id = "other-line.text",
                                       .name = {.own = OwnText::field_text},
                                       .place = image_place("Other"),
                                       .coding = Coding::text,
                                       .edited = {"E_Other", "L_Other", Reach::array_from_0}}});
inline constexpr auto abbreviation_fields =
    in_section(Section::abbreviations, {{.id = "abbreviation.text",
                                         .name = {.own = OwnText::field_text},
                                         .place = image_place("Abr"),
                                         .coding = Coding::text,
                                         .edited = {"E_Abr", "L_Abr", Reach::array_from_0}}});
inline constexpr auto short_caption_fields =
    in_section(Section::short_captions, {{.id = "caption.text",
                                          .name = {.own = OwnText::field_text},
                                          .place = image_place("Caption"),
                                          .coding = Coding::text,
                                          .edited = {"E_Valore", "L_Desc", Reach::record_list}}});

inline constexpr Choice wait_times[] = {
    {.digit = 0, .token = "none", .literal = "0. NO", .text = Key::FRM_CAPTION_WAIT_TIME_0_MSG},
    {.digit = 1, .token = "3-minutes", .literal = "1. 3 minutes", .text = Key::FRM_CAPTION_WAIT_TIME_1_MSG},
    {.digit = 2, .token = "5-minutes", .literal = "2. 5 minutes", .text = Key::FRM_CAPTION_WAIT_TIME_2_MSG},
    {.digit = 3, .token = "10-minutes", .literal = "3. 10 minutes", .text = Key::FRM_CAPTION_WAIT_TIME_3_MSG}};
inline constexpr Choice scroll_speeds[] = {
    {.digit = 0, .token = "slow", .literal = "0. SLOW", .text = Key::FRM_CAPTION_SCROLL_SPEED_0_MSG},
    {.digit = 1, .token = "medium", .literal = "1. MEDIUM", .text = Key::FRM_CAPTION_SCROLL_SPEED_1_MSG},
    {.digit = 2, .token = "fast", .literal = "2. FAST", .text = Key::FRM_CAPTION_SCROLL_SPEED_2_MSG}};

/// The messages in the order of the image, then the options.
inline constexpr auto message_fields =
    in_section(Section::messages, {{.id = "message.off",
                                    .name = {Key::FRM_CAPTION_OFF_MODE_SCROLL_MESSAGE_MSG, "OFF mode"},
                                    .place = image_place("OffModeScrollMessage"),
                                    .coding = Coding::text,
                                    .edited = {"E_OffModeScrollMessage", "L_OffModeScrollMessage"}},
                                   {.id = "message.program-x-z",
                                    .name = {Key::FRM_CAPTION_PRG_X_Z_MODE_SCROLL_MESSAGE_MSG, "PRG, X, Z mode"},
                                    .place = image_place("PrgXZ_ModeScrollMessage"),
                                    .coding = Coding::text,
                                    .edited = {"E_PrgXZ_ModeScrollMessage", "L_PrgXZ_ModeScrollMessage"}},
                                   {.id = "message.sales",
                                    .name = {Key::FRM_CAPTION_REG_MODE_SALES_SCROLL_MESSAGE_MSG, "REG mode, sales"},
                                    .place = image_place("RegModeSalesScrollMessage"),
                                    .coding = Coding::text,
                                    .edited = {"E_RegModeSalesScrollMessage", "L_RegModeSalesScrollMessage"}},
                                   {.id = "message.idle-am",
                                    .name = {Key::FRM_CAPTION_IDLE_AM_SCROLL_MESSAGE_MSG, "Idle, AM"},
                                    .place = image_place("IdleAMScrollMessage"),
                                    .coding = Coding::text,
                                    .edited = {"E_IdleAMScrollMessage", "L_IdleAMScrollMessage"}},
                                   {.id = "message.idle-pm",
                                    .name = {Key::FRM_CAPTION_IDEL_PM_MODE_SCROLL_MESSAGE_MSG, "Idle, PM"},
                                    .place = image_place("IdlePMScrollMessage"),
                                    .coding = Coding::text,
                                    .edited = {"E_IdlePMScrollMessage", "L_IdlePMScrollMessage"}},
                                   {.id = "message.wait",
                                    .name = {Key::FRM_CAPTION_L_WAIT_TIME_MSG, "Wait time"},
                                    .place = image_place("CaptionOpt0"),
                                    .choices = wait_times,
                                    .edited = {"Cmb_WaitTime", "L_WaitTime"}},
                                   {.id = "message.speed",
                                    .name = {Key::FRM_CAPTION_L_SCROLL_SPEED_MSG, "Scroll speed"},
                                    .place = image_place("CaptionOpt1"),
                                    .choices = scroll_speeds,
                                    .edited = {"Cmb_ScrollSpeed", "L_ScrollSpeed"}}});

}  // namespace ecr::fields

#pragma once
// The report setup: what a Z report resets. The reset bits mean yes when set, the zero skip means no.

#include "fields/rows/choices.h"
#include "fields/rows/places.h"

namespace ecr::fields {

inline constexpr Choice active_inactive[] = {
    {.digit = 0, .token = "active", .literal = "0. ACTIVE", .text = Key::FRM_ALL_ACTIVE},
    {.digit = 1, .token = "inactive", .literal = "1. INACTIVE", .text = Key::FRM_ALL_INACTIVE}};

inline constexpr auto report_setup_fields =
    in_section(Section::report_setup, {{.id = "report.reset-consecutive",
                                        .name = {Key::FRM_REPORT_SETUP_L_CONSECUTIVE_RESET, "Consecutive Reset"},
                                        .place = image_bit("Set10_Report", 1),
                                        .choices = no_yes,
                                        .edited = {"Cmb_ConsecutiveReset", "L_ConsecutiveReset"}},
                                       {.id = "report.reset-invoice",
                                        .name = {Key::FRM_REPORT_SETUP_L_INVOICE_RESET, "INVOICE# RESET"},
                                        .place = image_bit("Set10_Report", 2),
                                        .choices = no_yes,
                                        .edited = {"Cmb_InvoiceReset", "L_InvoiceReset"}},
                                       {.id = "report.reset-grand-total",
                                        .name = {Key::FRM_REPORT_SETUP_L_GT_RESET, "GT Reset"},
                                        .place = image_bit("Set10_Report", 3),
                                        .choices = no_yes,
                                        .edited = {"Cmb_GTReset", "L_GTReset"}},
                                       {.id = "report.reset-z-counters",
                                        .name = {Key::FRM_REPORT_SETUP_L_Z1_Z2_COUNTER_RESET, "Z1/Z2 Counter Reset"},
                                        .place = image_bit("Set10_Report", 4),
                                        .choices = no_yes,
                                        .edited = {"Cmb_Z1_Z2CounterReset", "L_Z1_Z2CounterReset"}},
                                       {.id = "report.duplicate-z",
                                        .name = {Key::FRM_REPORT_SETUP_L_DUPLICATE_Z, "Duplicate Z"},
                                        .place = image_bit("Set11_Shared", 3),
                                        .choices = active_inactive,
                                        .edited = {"Cmb_DuplicateZ", "L_DuplicateZ"}},
                                       {.id = "report.zero-skip",
                                        .name = {Key::FRM_REPORT_SETUP_L_ZERO_SKIP, "Zero Skip"},
                                        .place = image_bit("Set11_Shared", 4),
                                        .choices = yes_no,
                                        .edited = {"Cmb_ZeroSkip", "L_ZeroSkip"}}});

}  // namespace ecr::fields

#pragma once
// The lists of the report setup: what a Z report resets. The reset bits mean yes when set, the zero skip means no.

#include <cstddef>

#include "editors/option_table.h"
#include "editors/setting/setting_choices.h"
#include "image/prg_mode.h"

namespace ecr::setting {

inline constexpr Choice active_inactive[] = {{.digit = 0, .literal = "0. ACTIVE", .text = Key::FRM_ALL_ACTIVE},
                                             {.digit = 1, .literal = "1. INACTIVE", .text = Key::FRM_ALL_INACTIVE}};

inline constexpr OptionRow report_setup_rows[] = {
    {.control = "Cmb_ConsecutiveReset",
     .label = "L_ConsecutiveReset",
     .key = Key::FRM_REPORT_SETUP_L_CONSECUTIVE_RESET,
     .caption = "Consecutive Reset",
     .choices = no_yes,
     .place = bit_at(offsetof(PrgModeImage, Set10_Report), 1)},
    {.control = "Cmb_InvoiceReset",
     .label = "L_InvoiceReset",
     .key = Key::FRM_REPORT_SETUP_L_INVOICE_RESET,
     .caption = "INVOICE# RESET",
     .choices = no_yes,
     .place = bit_at(offsetof(PrgModeImage, Set10_Report), 2)},
    {.control = "Cmb_GTReset",
     .label = "L_GTReset",
     .key = Key::FRM_REPORT_SETUP_L_GT_RESET,
     .caption = "GT Reset",
     .choices = no_yes,
     .place = bit_at(offsetof(PrgModeImage, Set10_Report), 3)},
    {.control = "Cmb_Z1_Z2CounterReset",
     .label = "L_Z1_Z2CounterReset",
     .key = Key::FRM_REPORT_SETUP_L_Z1_Z2_COUNTER_RESET,
     .caption = "Z1/Z2 Counter Reset",
     .choices = no_yes,
     .place = bit_at(offsetof(PrgModeImage, Set10_Report), 4)},
    {.control = "Cmb_DuplicateZ",
     .label = "L_DuplicateZ",
     .key = Key::FRM_REPORT_SETUP_L_DUPLICATE_Z,
     .caption = "Duplicate Z",
     .choices = active_inactive,
     .place = bit_at(offsetof(PrgModeImage, Set11_Shared), 3)},
    {.control = "Cmb_ZeroSkip",
     .label = "L_ZeroSkip",
     .key = Key::FRM_REPORT_SETUP_L_ZERO_SKIP,
     .caption = "Zero Skip",
     .choices = yes_no,
     .place = bit_at(offsetof(PrgModeImage, Set11_Shared), 4)},
};
static_assert(sound(report_setup_rows, prg_mode_size));

}  // namespace ecr::setting

#pragma once
// The four VAT rates. A rate that comes from elsewhere may be higher than the limit, and is shown as it is.

#include "fields/rows/places.h"

namespace ecr::fields {

inline constexpr Caption vat_captions[] = {{Key::FRM_SET_VAT_RATE_L_VAT_RATE1, "VAT Rate 1:"},
                                           {Key::FRM_SET_VAT_RATE_L_VAT_RATE2, "VAT Rate 2:"},
                                           {Key::FRM_SET_VAT_RATE_L_VAT_RATE3, "VAT Rate 3"},
                                           {Key::FRM_SET_VAT_RATE_L_VAT_RATE4, "VAT Rate 4"}};

inline constexpr auto vat_fields = in_section(
    Section::vat, {{.id = "vat.rate",
                    .name = {.own = OwnText::field_rate},
                    .place = image_place("VatRate"),
                    .coding = Coding::percent,
                    .limits = {.highest = 99'999, .decimals = 3},
                    .edited = {.control = "E_VatRate", .label = "L_VatRate", .reach = Reach::array_from_1}}});

}  // namespace ecr::fields

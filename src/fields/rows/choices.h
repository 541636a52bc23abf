#pragma once
// Choices that rows of several sections share.

#include "fields/field.h"

namespace ecr::fields {

inline constexpr Choice yes_no[] = {{.digit = 0, .token = "yes", .literal = "0. YES", .text = Key::FRM_ALL_YES},
                                    {.digit = 1, .token = "no", .literal = "1. NO", .text = Key::FRM_ALL_NO}};
inline constexpr Choice no_yes[] = {{.digit = 0, .token = "no", .literal = "0. NO", .text = Key::FRM_ALL_NO},
                                    {.digit = 1, .token = "yes", .literal = "1. YES", .text = Key::FRM_ALL_YES}};
inline constexpr Choice enable_disable[] = {
    {.digit = 0, .token = "enabled", .literal = "0. ENABLE", .text = Key::FRM_ALL_ENABLE},
    {.digit = 1, .token = "disabled", .literal = "1. DISABLE", .text = Key::FRM_ALL_DISABLE}};
inline constexpr Choice sound_no_sound[] = {
    {.digit = 0, .token = "sound", .literal = "0. SOUND", .text = Key::FRM_ALL_SOUND},
    {.digit = 1, .token = "no-sound", .literal = "1. NO SOUND", .text = Key::FRM_ALL_NOSOUND}};
inline constexpr Choice open_closed[] = {
    {.digit = 0, .token = "open", .literal = "0. OPEN", .text = Key::FRM_ALL_OPEN},
    {.digit = 1, .token = "closed", .literal = "1. CLOSED", .text = Key::FRM_ALL_CLOSED}};
inline constexpr Choice print_not_print[] = {
    {.digit = 0, .token = "print", .literal = "0. PRINT", .text = Key::FRM_ALL_PRINT},
    {.digit = 1, .token = "no-print", .literal = "1. NOT PRINT", .text = Key::FRM_ALL_NOTPRINT}};

/// How high a price may be that is keyed in.
inline constexpr Choice digit_limits[] = {
    {.digit = 0, .token = "none", .literal = "0. NO LIMIT", .text = Key::FRM_ALL_NO_LIMIT},
    {.digit = 1, .token = "0.99", .literal = "1. (0 - 0.99)", .text = Key::FRM_ALL_1DIGITS},
    {.digit = 2, .token = "9.99", .literal = "2. (0 - 9.99)", .text = Key::FRM_ALL_2DIGITS},
    {.digit = 3, .token = "99.99", .literal = "3. (0 - 99.99)", .text = Key::FRM_ALL_3DIGITS},
    {.digit = 4, .token = "999.99", .literal = "4. (0 - 999.99)", .text = Key::FRM_ALL_4DIGITS}};

inline constexpr Choice taxes[] = {
    {.digit = 0, .token = "none", .literal = "0. NON TAXABLE", .text = Key::FRM_ALL_TAX_0_MSG},
    {.digit = 1, .token = "vat1", .literal = "1. TAX1 TAXABLE", .text = Key::FRM_ALL_TAX_1_MSG},
    {.digit = 2, .token = "vat2", .literal = "2. TAX2 TAXABLE", .text = Key::FRM_ALL_TAX_2_MSG},
    {.digit = 3, .token = "vat3", .literal = "3. TAX3 TAXABLE", .text = Key::FRM_ALL_TAX_3_MSG},
    {.digit = 4, .token = "vat4", .literal = "4. TAX4 TAXABLE", .text = Key::FRM_ALL_TAX_4_MSG}};

}  // namespace ecr::fields

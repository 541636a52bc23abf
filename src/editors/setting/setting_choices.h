#pragma once
// Choices that several of the setting screens share.

#include "editors/option_table.h"

namespace ecr::setting {

inline constexpr Choice yes_no[] = {{.digit = 0, .literal = "0. YES", .text = Key::FRM_ALL_YES},
                                    {.digit = 1, .literal = "1. NO", .text = Key::FRM_ALL_NO}};
inline constexpr Choice no_yes[] = {{.digit = 0, .literal = "0. NO", .text = Key::FRM_ALL_NO},
                                    {.digit = 1, .literal = "1. YES", .text = Key::FRM_ALL_YES}};
inline constexpr Choice enable_disable[] = {{.digit = 0, .literal = "0. ENABLE", .text = Key::FRM_ALL_ENABLE},
                                            {.digit = 1, .literal = "1. DISABLE", .text = Key::FRM_ALL_DISABLE}};
inline constexpr Choice sound_no_sound[] = {{.digit = 0, .literal = "0. SOUND", .text = Key::FRM_ALL_SOUND},
                                            {.digit = 1, .literal = "1. NO SOUND", .text = Key::FRM_ALL_NOSOUND}};

}  // namespace ecr::setting

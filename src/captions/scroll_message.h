#pragma once
// A message that runs through the register's display, from right to left, over and over.

#include <cstddef>
#include <string>
#include <string_view>

namespace ecr {

/// Characters of the display's line, as the picture of it has them.
inline constexpr std::size_t display_columns = 20;

/// What the display shows `step` steps after the message's first character stood at its left end. After the last
/// character has gone the display is empty for one moment, then the message comes in again from the right.
[[nodiscard]] std::u16string display_window(std::u16string_view message, std::size_t step);

/// After how many steps the display shows the same again; at least 1.
[[nodiscard]] std::size_t display_period(std::u16string_view message);

/// Milliseconds from step to step at the stored speed: 0 slow, 1 medium, 2 fast; any other counts as medium.
[[nodiscard]] int scroll_interval_ms(int speed);

}  // namespace ecr

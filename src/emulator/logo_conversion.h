#pragma once
// The conversion of a bitmap into the register's logo.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ecr {

/// Converts the bitmap `name` in `folder` and writes GRAPHIC.BIN beside it. `folder` has backslashes, one at its end.
/// The answer is a code from 0x01000000 to 0x01006464 where it went well, else the fault's own; then nothing is
/// written.
[[nodiscard]] std::int32_t convert_logo(const std::string& folder, std::string_view name);

/// Whether a code says that a conversion went well.
[[nodiscard]] bool says_converted(std::int32_t code);

}  // namespace ecr

#pragma once
// The texts that the makers of the link library give to its result codes, TilbridgeResult and TilbridgeConversion.

#include <array>
#include <cstdint>
#include <string_view>

namespace ecr {

struct CodeText32 {
  std::int32_t code;
  std::string_view text;
};

/// Rows 1 to 18 and 1 to 15; row 0 is unused.
extern const std::array<CodeText32, 19> RegWireError;
extern const std::array<CodeText32, 16> RegPixError;

/// The text of a result code, "No description" for a code that the table does not hold.
[[nodiscard]] std::string_view NumToDesc_RegWire(std::int32_t code);
[[nodiscard]] std::string_view NumToDesc_RegPix(std::int32_t code);

}  // namespace ecr

#pragma once
// File numbers and result codes of the link library, with the texts that the library's makers give them.

#include <array>
#include <cstdint>
#include <string_view>

namespace ecr {

namespace FileNumber {
inline constexpr std::uint8_t image = 0;
inline constexpr std::uint8_t plu = 1;
inline constexpr std::uint8_t logo = 2;
inline constexpr std::uint8_t time = 12;  ///< the cheapest report, which also serves as the link test
inline constexpr std::uint8_t release = 22;
}  // namespace FileNumber

namespace ResultCode {
inline constexpr std::int32_t done = 0;
inline constexpr std::int32_t port_not_opened = 1025;
inline constexpr std::int32_t busy = 4097;
inline constexpr std::int32_t refused = 4098;
inline constexpr std::int32_t timeout = 9999;  ///< the exchange tool is left running
}  // namespace ResultCode

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

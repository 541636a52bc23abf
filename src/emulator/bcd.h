#pragma once
// The packed decimal fields of what the register holds and reports, read and written by itself: two digits a byte, the
// least significant pair first. A field with a sign has its first digit for it: what is above 10^(2n-1) is negative.
// The program's codecs are not used: they write to the program's log, and a mistake in them must show.

#include <cstdint>
#include <optional>
#include <span>

namespace ecr::trading {

/// The number in a field of up to 8 bytes; nothing if a digit is above 9.
[[nodiscard]] std::optional<std::uint64_t> read_bcd(std::span<const std::uint8_t> field);

/// The number in a field with a sign.
[[nodiscard]] std::optional<std::int64_t> read_signed_bcd(std::span<const std::uint8_t> field);

/// Writes as many digits of `number`, from the right, as the field has.
void write_bcd(std::span<std::uint8_t> field, std::uint64_t number);

/// Writes a number with its sign; of the digits of its amount those that fit beside the sign.
void write_signed_bcd(std::span<std::uint8_t> field, std::int64_t number);

}  // namespace ecr::trading

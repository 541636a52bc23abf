#pragma once
// Amounts and quantities as screen text.
//
// A signed field of n bytes has 2n digits. A stored number above 10^(2n-1) is negative: its first digit, whichever it
// is, is the sign and the others are the magnitude. A field of 8 bytes is an amount in smallest units, shown with
// Global::DecimalPoint decimals; every other field is a quantity times 10000.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace ecr {

/// A stored whole number with its decimals: "1234" with 2 gives "12.34". With 0 decimals the text as it is, leading
/// zeros included. A text that is no number gives an empty one and a line in the log; so does any text with more than
/// 28 decimals.
[[nodiscard]] std::string Amount_Text(std::string_view value, int decimals);

/// A signed field as text. Quantities come in their shortest form. A field that cannot be read gives an empty text and
/// the line in the log that bcds_to_number leaves.
[[nodiscard]] std::string Bcds_To_Stock(std::span<const std::uint8_t> field);

/// The same behind what stands in `out`, without a text of its own for each field.
void append_stock(std::string& out, std::span<const std::uint8_t> field);

/// A quantity as text into a signed field. An empty text counts as 0; for a text that is no number the field stays as
/// it is and the log tells.
void Stock_To_Bcds(std::string_view text, std::span<std::uint8_t> field);

}  // namespace ecr

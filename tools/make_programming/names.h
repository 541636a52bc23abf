#pragma once
// The words that a programming source uses for bits.

#include <span>
#include <string_view>

namespace ecr {

/// One bit, or a small number in several bits, of a field whose bytes are flags.
struct BitName {
  std::string_view field;
  unsigned first_bit = 0;  ///< counted through the field's bytes: bit 8 is bit 0 of the second
  unsigned bits = 1;
  std::string_view word;  ///< one bit: stands in the source when it is set; more: stands in front of ":" and the number
  /// The words for the numbers of more than one bit, used instead of `word` as far as they go.
  std::span<const std::string_view> choices = {};
};

/// The rows of one field, by rising bit; empty if its bytes are plain numbers.
[[nodiscard]] std::span<const BitName> bit_names(std::string_view field);

}  // namespace ecr

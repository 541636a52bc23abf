#pragma once
// The digits of a packed decimal field as characters, for the fields of ordinary width: reports hold tens of thousands.

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace ecr {

class PackedDigits {
 public:
  static constexpr std::size_t most_bytes = 8;

  /// Takes the field, least significant pair first. Answers false, and holds nothing, where it is empty or wider than
  /// `most_bytes`, or has a nibble above 9.
  [[nodiscard]] bool read(std::span<const std::uint8_t> field) noexcept {
    if (field.empty() || field.size() > most_bytes) return false;
    packed_ = 0;
    for (std::size_t i = 0; i < field.size(); ++i) packed_ |= std::uint64_t{field[i]} << (8 * i);
    // A nibble above 9 carries into the top bit of its byte.
    constexpr std::uint64_t nibbles = 0x0F0F0F0F0F0F0F0F;
    constexpr std::uint64_t six_below = 0x7676767676767676;
    constexpr std::uint64_t tops = 0x8080808080808080;
    const std::uint64_t units = packed_ & nibbles;
    const std::uint64_t tens = packed_ >> 4 & nibbles;
    if ((((units + six_below) | (tens + six_below)) & tops) != 0) return false;
    count_ = 2 * field.size();
    for (std::size_t i = 0; i < field.size(); ++i) {
      const std::uint8_t byte = field[field.size() - 1 - i];
      digits_[2 * i] = static_cast<char>('0' + (byte >> 4));
      digits_[2 * i + 1] = static_cast<char>('0' + (byte & 0x0F));
    }
    return true;
  }

  /// All digits, highest first, zeros in front included.
  [[nodiscard]] std::string_view all() const noexcept { return {digits_.data(), count_}; }

  /// The place of the first digit that is no zero; the number of digits where there is none.
  [[nodiscard]] std::size_t first_significant() const noexcept {
    return static_cast<std::size_t>(std::countl_zero(packed_)) / 4 + count_ - 2 * most_bytes;
  }

  /// Whether it is a one with zeros behind it, all digits long.
  [[nodiscard]] bool is_one_and_zeros() const noexcept { return packed_ == std::uint64_t{1} << (4 * (count_ - 1)); }

 private:
  std::uint64_t packed_ = 0;
  std::size_t count_ = 0;
  std::array<char, 2 * most_bytes> digits_;
};

}  // namespace ecr

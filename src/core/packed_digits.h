#pragma once
// The digits of a packed decimal field as characters, for the fields of ordinary width: reports hold tens of thousands.
// They go from the number they are packed in straight to their place in a text.

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>

namespace ecr {

class PackedDigits {
 public:
  static constexpr std::size_t most_bytes = 8;
  static constexpr std::size_t most_digits = 2 * most_bytes;

  /// Takes the field, least significant pair first. Answers false, and holds nothing, where it is empty or wider than
  /// `most_bytes`, or has a nibble above 9.
  [[nodiscard]] bool read(std::span<const std::uint8_t> field) noexcept {
    // The widths that reports are made of are known to the compiler.
    switch (field.size()) {
      case 0:
        return false;
      case 2:
        return take<2>(field.data(), 2);
      case 6:
        return take<6>(field.data(), 6);
      case most_bytes:
        return take<most_bytes>(field.data(), most_bytes);
      default:
        return field.size() < most_bytes && take<0>(field.data(), field.size());
    }
  }

  /// How many digits there are, zeros in front included. Places count from the highest one, 0.
  [[nodiscard]] std::size_t count() const noexcept { return count_; }

  /// The place of the first digit from `place` on that is no zero; the number of digits where there is none.
  [[nodiscard]] std::size_t first_significant(std::size_t place = 0) const noexcept {
    if (place >= count_) return count_;
    const auto zeros = static_cast<std::size_t>(std::countl_zero(digits_ << (bits * place))) / bits;
    return std::min(place + zeros, count_);
  }

  /// How many zeros stand at the end.
  [[nodiscard]] std::size_t zeros_at_end() const noexcept {
    const auto zeros = static_cast<std::size_t>(std::countr_zero(digits_)) / bits;
    return std::min(zeros - std::min(zeros, most_digits - count_), count_);
  }

  /// Whether it is a one with zeros behind it, all digits long.
  [[nodiscard]] bool is_one_and_zeros() const noexcept { return digits_ == std::uint64_t{1} << (64 - bits); }

  /// Writes `count` digits from `place` on to `out`, which has room for `most_digits` whatever the count is, and
  /// answers what stands behind them.
  char* write(char* out, std::size_t place, std::size_t count) const noexcept {
    if (count == 0) return out;
    const std::uint64_t wanted = digits_ << (bits * place);
    write_eight(out, static_cast<std::uint32_t>(wanted >> 32));
    if (count > 8) write_eight(out + 8, static_cast<std::uint32_t>(wanted));
    return out + count;
  }

 private:
  static constexpr std::size_t bits = 4;  ///< of a digit

  /// `Width` bytes, or `width` of them where it is 0.
  template <std::size_t Width>
  bool take(const std::uint8_t* field, std::size_t width) noexcept {
    const std::size_t bytes = Width != 0 ? Width : width;
    std::uint64_t packed = 0;
    for (std::size_t i = 0; i < bytes; ++i) packed |= std::uint64_t{field[i]} << (8 * i);
    // A nibble above 9 carries into the top bit of its byte.
    constexpr std::uint64_t nibbles = 0x0F0F0F0F0F0F0F0F;
    constexpr std::uint64_t six_below = 0x7676767676767676;
    constexpr std::uint64_t tops = 0x8080808080808080;
    if (((((packed & nibbles) + six_below) | ((packed >> 4 & nibbles) + six_below)) & tops) != 0) return false;
    digits_ = packed << (64 - 8 * bytes);
    count_ = 2 * bytes;
    return true;
  }

  /// Eight digits as characters, the highest first: the nibbles are spread to a byte each, half by half.
  static void write_eight(char* out, std::uint32_t eight) noexcept {
    std::uint64_t spread = eight;
    spread = (spread << 16 & 0x0000FFFF00000000) | (spread & 0x0000FFFF);
    spread = (spread << 8 & 0x00FF000000FF0000) | (spread & 0x000000FF000000FF);
    spread = (spread << 4 & 0x0F000F000F000F00) | (spread & 0x000F000F000F000F);
    spread |= 0x3030303030303030;
    for (int i = 0; i < 8; ++i) out[i] = static_cast<char>(spread >> (56 - 8 * i));
  }

  std::uint64_t digits_ = 0;  ///< the highest digit in the highest nibble
  std::size_t count_ = 0;
};

}  // namespace ecr

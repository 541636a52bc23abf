#pragma once
// Exact decimal numbers of up to 28 digits: prices, rates and counters never pass through binary fractions.

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ecr {

class Decimal {
 public:
  static constexpr int max_digits = 28;

  Decimal() = default;
  explicit Decimal(std::int64_t number);

  /// The number that the whole text says: blanks around it, a sign, digits with at most one point, an exponent
  /// ("1.5E+3"). Nothing if the text is anything else. FaultError(overflow) beyond 28 digits in front of the point;
  /// decimals that do not fit are rounded half away from zero.
  [[nodiscard]] static std::optional<Decimal> parse(std::string_view text);

  /// The same, but FaultError(type_mismatch) where the text is no number.
  [[nodiscard]] static Decimal from_text(std::string_view text);

  /// The lenient reading: blanks, a sign, then digits up to the first character that is none. No digits give 0; more
  /// than 28 give the largest number that fits.
  [[nodiscard]] static Decimal leading(std::string_view text);

  /// Multiplied by ten to the power of `exponent`, -28 to 28. FaultError(overflow) beyond 28 digits in front of the
  /// point, and for any other exponent, whatever the number: there is no such power to multiply or divide by.
  [[nodiscard]] Decimal scaled(int exponent) const;

  [[nodiscard]] Decimal operator+(const Decimal& other) const;

  /// The whole number nearest to it, halves away from zero.
  [[nodiscard]] Decimal rounded() const;

  [[nodiscard]] bool is_negative() const noexcept { return negative_; }
  [[nodiscard]] bool is_zero() const noexcept { return count_ == 0; }

  /// The shortest plain form: no exponent, no needless zeros, a point as the decimal sign.
  [[nodiscard]] std::string text() const;

  /// With exactly `decimals` digits behind the point (none and no point for 0) and at least `digits` in front of it,
  /// rounded half away from zero. Both up to 28.
  [[nodiscard]] std::string text(int decimals, int digits = 1) const;

  [[nodiscard]] std::strong_ordering operator<=>(const Decimal& other) const;
  [[nodiscard]] bool operator==(const Decimal& other) const { return (*this <=> other) == std::strong_ordering::equal; }

 private:
  /// The number that `digits`, the last `scale` of them behind the point, make.
  static Decimal from_digits(bool negative, std::string digits, int scale);
  [[nodiscard]] std::string digits() const { return {digits_.data(), static_cast<std::size_t>(count_)}; }
  /// The digits with as many zeros behind them as bring the scale to `scale`.
  [[nodiscard]] std::string digits_at(int scale) const;
  [[nodiscard]] std::strong_ordering compare_magnitude(const Decimal& other) const;

  // The significant digits, highest first, as characters. The last `scale_` of them stand behind the point, with zeros
  // in front of them where they are fewer. Neither the first digit nor, behind the point, the last one is a zero.
  std::array<char, max_digits> digits_{};
  int count_ = 0;
  int scale_ = 0;
  bool negative_ = false;
};

/// The lenient reading as a plain number, for small values; beyond the range it stays at the range's end.
[[nodiscard]] std::int64_t leading_number(std::string_view text);

}  // namespace ecr

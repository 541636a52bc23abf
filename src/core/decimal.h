#pragma once
// Exact decimal numbers of up to 28 digits: prices, rates and counters never pass through binary fractions.

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ecr {

class Decimal {
 public:
  constexpr Decimal() = default;
  constexpr explicit Decimal(std::int64_t number) : coefficient_{number} {}

  /// The number that the whole text says: blanks around it, a sign, digits with at most one point, an exponent
  /// ("1.5E+3"). Nothing if the text is anything else. FaultError(overflow) beyond 28 digits in front of the point;
  /// decimals that do not fit are rounded half away from zero.
  [[nodiscard]] static std::optional<Decimal> parse(std::string_view text);

  /// The same, but FaultError(type_mismatch) where the text is no number.
  [[nodiscard]] static Decimal from_text(std::string_view text);

  /// The lenient reading: blanks, a sign, then digits up to the first character that is none. No digits give 0; more
  /// than 28 give the largest number that fits.
  [[nodiscard]] static Decimal leading(std::string_view text);

  /// Multiplied by ten to the power of `exponent`, which may be negative. FaultError(overflow) beyond 28 digits.
  [[nodiscard]] Decimal scaled(int exponent) const;

  [[nodiscard]] Decimal operator+(const Decimal& other) const;

  /// The whole number nearest to it, halves away from zero.
  [[nodiscard]] Decimal rounded() const;

  [[nodiscard]] bool is_negative() const noexcept { return coefficient_ < 0; }
  [[nodiscard]] bool is_zero() const noexcept { return coefficient_ == 0; }

  /// The shortest plain form: no exponent, no needless zeros, a point as the decimal sign.
  [[nodiscard]] std::string text() const;

  /// With exactly `decimals` digits behind the point (none and no point for 0) and at least `digits` in front of it,
  /// rounded half away from zero. Both up to 28.
  [[nodiscard]] std::string text(int decimals, int digits = 1) const;

  [[nodiscard]] std::strong_ordering operator<=>(const Decimal& other) const;
  [[nodiscard]] bool operator==(const Decimal& other) const { return (*this <=> other) == std::strong_ordering::equal; }

  static constexpr int max_digits = 28;

 private:
  __extension__ using Wide = __int128;

  static Decimal from_parts(bool negative, Wide magnitude, int scale);
  static Wide power_of_ten(int exponent);
  static int digits_in(Wide magnitude);

  Wide coefficient_ = 0;  // the number is coefficient / 10^scale
  int scale_ = 0;         // 0 to 28; no needless zeros at the coefficient's end
};

/// The lenient reading as a plain number, for small values; beyond the range it stays at the range's end.
[[nodiscard]] std::int64_t leading_number(std::string_view text);

}  // namespace ecr

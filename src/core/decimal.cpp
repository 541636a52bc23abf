#include "core/decimal.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>

#include "core/fault.h"

namespace ecr {
namespace {

constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }

std::string_view without_blanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool take_sign(std::string_view& text) {
  const bool negative = !text.empty() && text.front() == '-';
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
  return negative;
}

std::string_view take_digits(std::string_view& text) {
  std::size_t length = 0;
  while (length < text.size() && is_digit(text[length])) ++length;
  const std::string_view digits = text.substr(0, length);
  text.remove_prefix(length);
  return digits;
}

}  // namespace

Decimal::Wide Decimal::power_of_ten(int exponent) {
  static constexpr auto powers = [] {
    std::array<Wide, 39> table{};
    Wide power = 1;
    for (Wide& entry : table) {
      entry = power;
      if (&entry != &table.back()) power *= 10;
    }
    return table;
  }();
  return powers[static_cast<std::size_t>(exponent)];
}

int Decimal::digits_in(Wide magnitude) {
  int digits = 1;
  while (digits < 39 && magnitude >= power_of_ten(digits)) ++digits;
  return digits;
}

Decimal Decimal::from_parts(bool negative, Wide magnitude, int scale) {
  while (scale > 0 && magnitude % 10 == 0) {
    magnitude /= 10;
    --scale;
  }
  if (scale < 0) {
    if (magnitude != 0 && digits_in(magnitude) - scale > max_digits) throw FaultError{FaultCode::overflow};
    magnitude *= magnitude == 0 ? 1 : power_of_ten(-scale);
    scale = 0;
  }
  // Decimals that do not fit are rounded away, those in front of the point are not.
  while (scale > 0 && (scale > max_digits || digits_in(magnitude) > max_digits)) {
    const bool up = magnitude % 10 >= 5;
    magnitude = magnitude / 10 + (up ? 1 : 0);
    --scale;
  }
  if (digits_in(magnitude) > max_digits) throw FaultError{FaultCode::overflow};
  Decimal result;
  result.coefficient_ = negative ? -magnitude : magnitude;
  result.scale_ = magnitude == 0 ? 0 : scale;
  return result;
}

std::optional<Decimal> Decimal::parse(std::string_view text) {
  text = without_blanks(text);
  const bool negative = take_sign(text);
  const std::string_view whole = take_digits(text);
  std::string_view fraction;
  if (!text.empty() && text.front() == '.') {
    text.remove_prefix(1);
    fraction = take_digits(text);
  }
  if (whole.empty() && fraction.empty()) return std::nullopt;
  int exponent = 0;
  if (!text.empty() && (text.front() == 'E' || text.front() == 'e')) {
    text.remove_prefix(1);
    const bool down = take_sign(text);
    const std::string_view digits = take_digits(text);
    if (digits.empty()) return std::nullopt;
    for (const char digit : digits) exponent = std::min(exponent * 10 + (digit - '0'), 10000);
    if (down) exponent = -exponent;
  }
  if (!text.empty()) return std::nullopt;

  std::string digits{whole};
  digits += fraction;
  // Where the point stands once the exponent has moved it, counted in digits from the left.
  int point = static_cast<int>(std::min<std::size_t>(whole.size(), 100000)) + exponent;
  const std::size_t zeros = std::min(digits.find_first_not_of('0'), digits.size());
  digits.erase(0, zeros);
  point -= static_cast<int>(zeros);
  if (digits.empty()) return Decimal{};
  if (point > max_digits) throw FaultError{FaultCode::overflow};
  if (point < -max_digits) return Decimal{};
  // One digit more than can be kept decides the rounding.
  const auto kept = static_cast<std::size_t>(max_digits + 1);
  if (digits.size() > kept) digits.resize(kept);
  Wide magnitude = 0;
  for (const char digit : digits) magnitude = magnitude * 10 + (digit - '0');
  return from_parts(negative, magnitude, static_cast<int>(digits.size()) - point);
}

Decimal Decimal::from_text(std::string_view text) {
  const std::optional<Decimal> number = parse(text);
  if (!number) throw FaultError{FaultCode::type_mismatch};
  return *number;
}

Decimal Decimal::leading(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  const bool negative = take_sign(text);
  std::string_view digits = take_digits(text);
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  if (digits.size() > static_cast<std::size_t>(max_digits)) {
    return from_parts(negative, power_of_ten(max_digits) - 1, 0);
  }
  Wide magnitude = 0;
  for (const char digit : digits) magnitude = magnitude * 10 + (digit - '0');
  return from_parts(negative, magnitude, 0);
}

Decimal Decimal::scaled(int exponent) const {
  return from_parts(coefficient_ < 0, coefficient_ < 0 ? -coefficient_ : coefficient_, scale_ - exponent);
}

Decimal Decimal::operator+(const Decimal& other) const {
  // Both are brought to the finer scale; where that does not fit, the sum could not be exact either.
  const int scale = std::max(scale_, other.scale_);
  const auto at_scale = [scale](const Decimal& number) {
    const Wide magnitude = number.coefficient_ < 0 ? -number.coefficient_ : number.coefficient_;
    if (magnitude != 0 && digits_in(magnitude) + scale - number.scale_ > max_digits + 9) {
      throw FaultError{FaultCode::overflow};
    }
    return magnitude == 0 ? Wide{0} : number.coefficient_ * power_of_ten(scale - number.scale_);
  };
  const Wide sum = at_scale(*this) + at_scale(other);
  return from_parts(sum < 0, sum < 0 ? -sum : sum, scale);
}

Decimal Decimal::rounded() const {
  if (scale_ == 0) return *this;
  const Wide unit = power_of_ten(scale_);
  const Wide magnitude = coefficient_ < 0 ? -coefficient_ : coefficient_;
  return from_parts(coefficient_ < 0, magnitude / unit + (magnitude % unit * 2 >= unit ? 1 : 0), 0);
}

std::string Decimal::text() const { return text(scale_); }

std::string Decimal::text(int decimals, int digits) const {
  const int shown = std::clamp(decimals, 0, max_digits);
  Wide magnitude = coefficient_ < 0 ? -coefficient_ : coefficient_;
  int scale = scale_;
  if (scale > shown) {
    const Wide unit = power_of_ten(scale - shown);
    magnitude = magnitude / unit + (magnitude % unit * 2 >= unit ? 1 : 0);
    scale = shown;
  }
  std::string result;
  const auto put = [&result](auto digit) { result += static_cast<char>('0' + static_cast<int>(digit)); };
  for (; magnitude > std::numeric_limits<std::uint64_t>::max(); magnitude /= 10) put(magnitude % 10);
  const bool is_zero = result.empty() && magnitude == 0;
  for (auto rest = static_cast<std::uint64_t>(magnitude); rest > 0; rest /= 10) put(rest % 10);
  std::reverse(result.begin(), result.end());
  result.append(static_cast<std::size_t>(shown - scale), '0');
  const auto least = static_cast<std::size_t>(std::clamp(digits, 0, max_digits) + shown);
  if (result.size() < least) result.insert(0, least - result.size(), '0');
  if (shown > 0) result.insert(result.size() - static_cast<std::size_t>(shown), ".");
  if (coefficient_ < 0 && !is_zero) result.insert(0, "-");
  return result;
}

std::strong_ordering Decimal::operator<=>(const Decimal& other) const {
  const bool negative = coefficient_ < 0;
  if (negative != (other.coefficient_ < 0)) {
    return negative ? std::strong_ordering::less : std::strong_ordering::greater;
  }
  // The same sign: whole parts first, then the fractions at the finer scale, which always fit.
  const auto part = [](const Decimal& number, bool whole) {
    const Wide unit = power_of_ten(number.scale_);
    return whole ? number.coefficient_ / unit : number.coefficient_ % unit * power_of_ten(max_digits - number.scale_);
  };
  for (const bool whole : {true, false}) {
    const Wide mine = part(*this, whole);
    const Wide theirs = part(other, whole);
    if (mine != theirs) return mine < theirs ? std::strong_ordering::less : std::strong_ordering::greater;
  }
  return std::strong_ordering::equal;
}

std::int64_t leading_number(std::string_view text) {
  const Decimal number = Decimal::leading(text);
  const Decimal least{std::numeric_limits<std::int64_t>::min()};
  const Decimal most{std::numeric_limits<std::int64_t>::max()};
  const std::string digits = std::clamp(number, least, most).text();
  return std::stoll(digits);
}

}  // namespace ecr

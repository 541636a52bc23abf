#include "core/decimal.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

#include "core/fault.h"

namespace ecr {
namespace {

constexpr bool is_digit(char c) {
  return c >= '0' && c <= '9';
}

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

/// Adds one to a number given as digits.
void increment(std::string& digits) {
  for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
    if (*digit != '9') {
      ++*digit;
      return;
    }
    *digit = '0';
  }
  digits.insert(0, "1");
}

/// Takes the last `count` digits away; what they were worth rounds the others, a half away from zero.
void drop_last(std::string& digits, int count) {
  const int kept = static_cast<int>(digits.size()) - count;
  const bool up = kept >= 0 && digits[static_cast<std::size_t>(kept)] >= '5';
  digits.resize(static_cast<std::size_t>(std::max(kept, 0)));
  if (up) increment(digits);
}

}  // namespace

Decimal::Decimal(std::int64_t number) {
  const std::string text = std::to_string(number);
  *this = from_digits(number < 0, text.substr(number < 0 ? 1 : 0), 0);
}

Decimal Decimal::from_digits(bool negative, std::string digits, int scale) {
  digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
  if (digits.empty()) return {};
  if (scale < 0) {
    if (static_cast<int>(digits.size()) - scale > max_digits) throw FaultError{FaultCode::overflow};
    digits.append(static_cast<std::size_t>(-scale), '0');
    scale = 0;
  }
  // Decimals that do not fit are rounded away, those in front of the point are not. All go at once: digit by digit,
  // 0.445 would become 0.45 and then 0.5.
  const int excess = std::max(scale - max_digits, std::min(scale, static_cast<int>(digits.size()) - max_digits));
  if (excess > 0) {
    drop_last(digits, excess);
    scale -= excess;
  }
  while (scale > 0 && !digits.empty() && digits.back() == '0') {
    digits.pop_back();
    --scale;
  }
  if (digits.size() > static_cast<std::size_t>(max_digits)) throw FaultError{FaultCode::overflow};
  Decimal result;
  std::copy(digits.begin(), digits.end(), result.digits_.begin());
  result.count_ = static_cast<int>(digits.size());
  result.scale_ = digits.empty() ? 0 : scale;
  result.negative_ = negative && !digits.empty();
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
    const std::string_view figures = take_digits(text);
    if (figures.empty()) return std::nullopt;
    for (const char figure : figures) exponent = std::min(exponent * 10 + (figure - '0'), 10000);
    if (down) exponent = -exponent;
  }
  if (!text.empty()) return std::nullopt;

  std::string digits{whole};
  digits += fraction;
  const std::size_t zeros = std::min(digits.find_first_not_of('0'), digits.size());
  digits.erase(0, zeros);
  if (digits.empty()) return Decimal{};
  // How many digits stand in front of the point once the exponent has moved it; below 0 where zeros follow the point.
  const std::int64_t point = static_cast<std::int64_t>(whole.size()) + exponent - static_cast<std::int64_t>(zeros);
  if (point > max_digits) throw FaultError{FaultCode::overflow};
  if (point < -max_digits) return Decimal{};
  // One digit more than can be kept decides the rounding.
  digits.resize(std::min(digits.size(), static_cast<std::size_t>(max_digits + 1)));
  const int scale = static_cast<int>(digits.size()) - static_cast<int>(point);
  return from_digits(negative, std::move(digits), scale);
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
  const bool too_long = digits.size() > static_cast<std::size_t>(max_digits);
  return from_digits(negative, too_long ? std::string(max_digits, '9') : std::string{digits}, 0);
}

Decimal Decimal::scaled(int exponent) const {
  if (exponent < -max_digits || exponent > max_digits) throw FaultError{FaultCode::overflow};
  return from_digits(negative_, digits(), scale_ - exponent);
}

std::string Decimal::digits_at(int scale) const {
  return digits().append(static_cast<std::size_t>(scale - scale_), '0');
}

Decimal Decimal::operator+(const Decimal& other) const {
  const int scale = std::max(scale_, other.scale_);
  const bool mine_is_larger = compare_magnitude(other) != std::strong_ordering::less;
  const Decimal& large = mine_is_larger ? *this : other;
  const Decimal& small = mine_is_larger ? other : *this;
  std::string sum = large.digits_at(scale);
  std::string addend = small.digits_at(scale);
  addend.insert(0, sum.size() - std::min(sum.size(), addend.size()), '0');
  // The smaller one is added to the larger one or taken from it, from the last digit on, with a carry.
  const int sign = negative_ == other.negative_ ? 1 : -1;
  int carry = 0;
  for (std::size_t i = sum.size(); i-- > 0;) {
    const int value = (sum[i] - '0') + sign * (addend[i] - '0') + carry;
    carry = value > 9 ? 1 : value < 0 ? -1 : 0;
    sum[i] = static_cast<char>('0' + value - 10 * carry);
  }
  if (carry > 0) sum.insert(0, "1");
  return from_digits(large.negative_, std::move(sum), scale);
}

Decimal Decimal::rounded() const {
  std::string whole = digits();
  drop_last(whole, scale_);
  return from_digits(negative_, std::move(whole), 0);
}

std::string Decimal::text() const {
  return text(scale_);
}

std::string Decimal::text(int decimals, int digits_in_front) const {
  const int shown = std::clamp(decimals, 0, max_digits);
  std::string result = digits();
  if (scale_ > shown) drop_last(result, scale_ - shown);
  const bool minus = negative_ && !result.empty();
  if (scale_ < shown) result.append(static_cast<std::size_t>(shown - scale_), '0');
  const auto least = static_cast<std::size_t>(std::clamp(digits_in_front, 0, max_digits) + shown);
  if (result.size() < least) result.insert(0, least - result.size(), '0');
  if (shown > 0) result.insert(result.size() - static_cast<std::size_t>(shown), ".");
  if (minus) result.insert(0, "-");
  return result;
}

std::strong_ordering Decimal::compare_magnitude(const Decimal& other) const {
  if (count_ == 0 || other.count_ == 0) return count_ <=> other.count_;
  // No number begins with a zero, so the one with more digits in front of the point is larger.
  const auto in_front = count_ - scale_ <=> other.count_ - other.scale_;
  return in_front != std::strong_ordering::equal ? in_front : digits() <=> other.digits();
}

std::strong_ordering Decimal::operator<=>(const Decimal& other) const {
  if (negative_ != other.negative_) {
    return negative_ ? std::strong_ordering::less : std::strong_ordering::greater;
  }
  return negative_ ? other.compare_magnitude(*this) : compare_magnitude(other);
}

std::int64_t leading_number(std::string_view text) {
  const Decimal number = Decimal::leading(text);
  const Decimal least{std::numeric_limits<std::int64_t>::min()};
  const Decimal most{std::numeric_limits<std::int64_t>::max()};
  const std::string digits = std::clamp(number, least, most).text();
  return std::stoll(digits);
}

}  // namespace ecr

#include "core/amount_text.h"

#include <algorithm>
#include <array>

#include "core/codecs.h"
#include "core/decimal.h"
#include "core/global.h"
#include "core/packed_digits.h"
#include "core/run_log.h"

namespace ecr {
namespace {

constexpr int quantity_decimals = 4;
constexpr std::size_t amount_bytes = 8;
constexpr int most_decimals = 3;

/// 10^(2n-1) for a field of n bytes: the largest stored number that is not negative.
Decimal sign_weight(std::size_t bytes) {
  return Decimal{1}.scaled(static_cast<int>(2 * bytes) - 1);
}

/// Any field whatever, digit by digit.
std::string stock_text(std::span<const std::uint8_t> field) {
  std::string text;
  guarded("Bcds_To_Stock: ", [&] {
    std::string digits = bcds_to_number(field);
    if (digits.empty()) return;
    const bool negative = Decimal::from_text(digits) > sign_weight(field.size());
    if (negative) {
      digits.erase(0, 1);
      text = "-";
    }
    text += field.size() == amount_bytes ? Amount_Text(digits, Global::DecimalPoint)
                                         : Decimal::from_text(digits).scaled(-quantity_decimals).text();
  });
  return text;
}

}  // namespace

std::string Amount_Text(std::string_view value, int decimals) {
  if (decimals == 0) return std::string{value};
  std::string text;
  guarded("Amount_Text: ", [&] { text = Decimal::from_text(value).scaled(-decimals).text(decimals); });
  return text;
}

std::string Bcds_To_Stock(std::span<const std::uint8_t> field) {
  std::string text;
  append_stock(text, field);
  return text;
}

void append_stock(std::string& out, std::span<const std::uint8_t> field) {
  // Whatever is out of the ordinary goes the long way, where faults are told too.
  const bool is_amount = field.size() == amount_bytes;
  const std::size_t decimals = is_amount ? Global::DecimalPoint : std::size_t{quantity_decimals};
  PackedDigits packed;
  if ((is_amount && decimals > most_decimals) || 2 * field.size() < decimals + 2 || !packed.read(field)) {
    out += stock_text(field);
    return;
  }
  // A sign, the digits, a point, and room for what a write may touch.
  std::array<char, 2 * PackedDigits::most_digits + 2> text;
  char* end = text.data();
  std::size_t first = packed.first_significant();
  if (first == 0 && !packed.is_one_and_zeros()) {
    *end++ = '-';
    // The digit text of a negative amount goes through as it stands where it has no decimals.
    first = decimals == 0 ? 1 : packed.first_significant(1);
  }
  const std::size_t point = packed.count() - decimals;
  first = std::min(first, point - 1);
  end = packed.write(end, first, point - first);
  const std::size_t shown = decimals - (is_amount ? 0 : std::min(decimals, packed.zeros_at_end()));
  if (shown > 0) {
    *end++ = '.';
    end = packed.write(end, point, shown);
  }
  out.append(text.data(), static_cast<std::size_t>(end - text.data()));
}

void Stock_To_Bcds(std::string_view text, std::span<std::uint8_t> field) {
  guarded("Stock_To_Bcds: ", [&] {
    const Decimal quantity = text.empty() ? Decimal{} : Decimal::from_text(text);
    if (!quantity.is_negative()) {
      number_to_bcds(field, quantity.scaled(quantity_decimals));
    } else {
      const Decimal magnitude = Decimal::from_text(text.substr(1));
      number_to_bcds(field, sign_weight(field.size()) + magnitude.scaled(quantity_decimals));
    }
  });
}

}  // namespace ecr

#include "core/amount_text.h"

#include "core/codecs.h"
#include "core/decimal.h"
#include "core/global.h"
#include "core/run_log.h"

namespace ecr {
namespace {

constexpr int quantity_decimals = 4;
constexpr std::size_t amount_bytes = 8;

/// 10^(2n-1) for a field of n bytes: the largest stored number that is not negative.
Decimal sign_weight(std::size_t bytes) {
  return Decimal{1}.scaled(static_cast<int>(2 * bytes) - 1);
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
  guarded("Bcds_To_Stock: ", [&] {
    std::string digits = bcds_to_number(field);
    const bool negative = !field.empty() && Decimal::from_text(digits) > sign_weight(field.size());
    if (negative) {
      digits.erase(0, 1);
      text = "-";
    }
    text += field.size() == amount_bytes ? Amount_Text(digits, Global::DecimalPoint)
                                         : Decimal::from_text(digits).scaled(-quantity_decimals).text();
  });
  return text;
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

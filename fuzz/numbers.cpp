// Any texts as numbers, any bytes as packed decimals, and the way there and back.

#include <algorithm>
#include <cstring>
#include <span>
#include <vector>

#include "core/amount_text.h"
#include "core/codecs.h"
#include "core/decimal.h"
#include "core/fault.h"
#include "core/global.h"
#include "support/installation.h"

namespace ecr::fuzz::numbers_target {
namespace {

/// What the text says, nothing if that is no number or too large a one.
std::optional<Decimal> number_in(std::string_view text) {
  try {
    return Decimal::parse(text);
  } catch (const FaultError& error) {
    require(error.fault().code == FaultCode::overflow, "a text is too large a number or none at all");
    return std::nullopt;
  }
}

std::size_t digits_in(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; }));
}

void check_number(const Decimal& number, int decimals, int digits) {
  const std::string shortest = number.text();
  require(Decimal::parse(shortest) == number, "a number's text says the number");
  require(Decimal::parse("  " + shortest + " ") == number, "blanks around it change nothing");
  require(Decimal::parse(shortest)->text() == shortest, "the shortest form is one");
  require(digits_in(shortest) <= 57, "a text is bounded");
  require(number.is_negative() == shortest.starts_with('-'), "the sign is shown");
  require(number.is_zero() == (shortest == "0"), "zero has one form");

  const std::string fixed = number.text(decimals, digits);
  const int shown = std::clamp(decimals, 0, Decimal::max_digits);
  const std::size_t point = fixed.find('.');
  require((point == std::string::npos ? 0 : fixed.size() - point - 1) == static_cast<std::size_t>(shown),
          "as many decimals as were asked for");
  require(digits_in(fixed) >= static_cast<std::size_t>(std::clamp(digits, 0, Decimal::max_digits) + shown),
          "at least as many digits as were asked for");
  if (const auto again = number_in(fixed); again && shown == Decimal::max_digits) {
    require(*again == number, "with all decimals nothing is rounded away");
  }
  try {
    const std::size_t decimal_sign = std::min(shortest.find('.'), shortest.size());
    const Decimal whole = Decimal::from_text(shortest.substr(0, decimal_sign));
    const bool up = decimal_sign < shortest.size() && shortest[decimal_sign + 1] >= '5';
    require(number.rounded() == whole + Decimal{!up                    ? 0
                                                : number.is_negative() ? -1
                                                                       : 1},
            "a half and more is rounded away from zero, less towards it");
    require(number_in(number.text(0)) == number.rounded(), "no decimals is rounded");
    require(number.rounded().rounded() == number.rounded(), "rounding once is enough");
  } catch (const FaultError& error) {
    require(error.fault().code == FaultCode::overflow, "rounding can only grow too large");
  }
  try {
    const Decimal scaled = number.scaled(decimals);
    // Decimals can be lost on the way down, digits in front of the point never.
    if (decimals >= 0) require(scaled.scaled(-decimals) == number, "a number that was multiplied can be divided again");
  } catch (const FaultError& error) {
    require(error.fault().code == FaultCode::overflow, "a power of ten can only be too high");
  }
}

void check_pair(const Decimal& one, const Decimal& other) {
  require((one < other) + (one == other) + (one > other) == 1, "two numbers have one order");
  require((one < other) == (other > one), "whichever comes first");
  require((one == other) == (one.text() == other.text()), "equal numbers have equal texts");
  try {
    const Decimal sum = one + other;
    require(sum == other + one, "a sum has no order");
    if (!other.is_negative()) require(sum >= one, "adding does not make smaller");
  } catch (const FaultError& error) {
    require(error.fault().code == FaultCode::overflow, "a sum can only be too large");
  }
}

void check_texts(std::string_view first, std::string_view second, int decimals, int digits) {
  const auto one = number_in(first);
  const auto other = number_in(second);
  if (one) check_number(*one, decimals, digits);
  if (one && other) check_pair(*one, *other);
  if (one)
    require(number_in("0" + std::string{first}) == one || first.find_first_of(" +-") != std::string_view::npos,
            "a zero in front changes nothing");

  const Decimal lenient = Decimal::leading(first);
  check_number(lenient, 0, digits);
  require(lenient.rounded() == lenient, "the lenient reading knows no decimals");
  const std::int64_t number = leading_number(first);
  require(Decimal{number} == lenient || digits_in(lenient.text()) >= 19, "a small number is read as it is");

  const std::string amount = Amount_Text(first, decimals);
  if (decimals == 0) require(amount == first, "without decimals an amount is its text");
  const std::uint8_t separated = ottieni_numero(first, second);
  require(separated == 0 || !second.empty(), "without a separator there is no number");
}

std::size_t faults_in(std::span<const std::uint8_t> field) {
  return static_cast<std::size_t>(
      std::count_if(field.begin(), field.end(), [](std::uint8_t byte) { return byte >> 4 > 9 || (byte & 15) > 9; }));
}

void check_field(const std::vector<std::uint8_t>& field) {
  const std::string text = bcds_to_number(field);
  require(text.find_first_not_of("0123456789") == std::string::npos, "a field's text is digits");
  require(text.size() <= Decimal::max_digits, "of which there are 28 at most");
  require(text.size() < 2 || text.front() != '0', "none of them a leading zero");
  const std::size_t significant = 2 * field.size();
  if (faults_in(field) == 0 && significant <= Decimal::max_digits) {
    std::vector<std::uint8_t> again(field.size(), 0xEE);
    number_to_bcds(again, text);
    require(again == field, "a field comes back from its text");
    if (field.size() <= 7) require(bcds_to_number_str(field) == (text.empty() ? "0" : text), "both walks agree");
  }
  require(number_in(bcds_to_number_str(field)).has_value(), "the lenient walk always ends in a number");

  // A quantity that is shown and typed again is stored as it was; its sign digit is 1 then.
  const std::string shown = Bcds_To_Stock(field);
  const bool is_quantity = field.size() != 8 && !field.empty() && significant <= Decimal::max_digits - 4;
  if (is_quantity && faults_in(field) == 0 && shown != "-0") {
    std::vector<std::uint8_t> again(field.size());
    Stock_To_Bcds(shown, again);
    std::vector<std::uint8_t> expected = field;
    if (shown.front() == '-') expected.back() = static_cast<std::uint8_t>((expected.back() & 15) | 0x10);
    require(again == expected, "a quantity comes back from its text");
  }
}

void check_writing(std::string_view text, std::size_t size) {
  std::vector<std::uint8_t> field(size, 0xEE);
  number_to_bcds(field, text);
  require(faults_in(field) == 0, "a written field is always packed decimal");
  if (const auto number = number_in(text); number && !number->is_negative()) {
    try {
      const std::string digits = number->rounded().text();
      if (digits.size() <= 2 * size) {
        require(bcds_to_number(field) == (size == 0 ? "" : digits), "what fits is written");
      }
    } catch (const FaultError&) {
      // Rounded up to one digit too many.
    }
  }
  std::vector<std::uint8_t> stock(size, 0);
  Stock_To_Bcds(text, stock);
  require(faults_in(stock) == 0, "a written quantity is always packed decimal");
}

void check_bits(std::uint8_t byte, std::uint8_t bit) {
  std::uint8_t changed = byte;
  byte_bit_change(changed, bit, true);
  require(bit > 7 ? changed == byte : byte_bit_tst(changed, bit), "a bit that is set is set");
  byte_bit_change(changed, bit, false);
  require(!byte_bit_tst(changed, bit), "a bit that is cleared is clear");
  require(bcd_to_number(byte) >= 0 && bcd_to_number(byte) <= 99, "two digits make a number up to 99");
  std::uint8_t out = 0;
  number_to_bcd(out, byte);
  require(faults_in({&out, 1}) == 0, "any number gives two digits");
  if (byte <= 99) require(bcd_to_number(out) == byte, "a number of two digits comes back");
  int key = byte;
  require(solo_numeri(key) == 0 || key == 8 || (key >= '0' && key <= '9'), "other keys are dropped");
}

/// Cuts the input into values: numbers from its end, texts from its beginning.
class Cutter {
 public:
  Cutter(const std::uint8_t* data, std::size_t size) : rest_{reinterpret_cast<const char*>(data), size} {}

  /// 0 where nothing is left.
  std::uint8_t byte() {
    if (rest_.empty()) return 0;
    const auto last = static_cast<std::uint8_t>(rest_.back());
    rest_.remove_suffix(1);
    return last;
  }
  std::vector<std::uint8_t> bytes(std::size_t most) {
    const std::string_view taken = rest_.substr(0, most);
    rest_.remove_prefix(taken.size());
    return {taken.begin(), taken.end()};
  }
  /// Up to a backslash with any other character behind it; two backslashes stand for one.
  std::string text() {
    std::string text;
    while (!rest_.empty()) {
      const char c = front();
      if (c == '\\' && !rest_.empty() && front() != c) break;
      text += c;
    }
    return text;
  }
  [[nodiscard]] std::string rest() const { return std::string{rest_}; }

 private:
  char front() {
    const char c = rest_.front();
    rest_.remove_prefix(1);
    return c;
  }

  std::string_view rest_;
};

}  // namespace

FUZZ_TARGET(numbers) {
  static Installation installation;
  installation.reset();
  Cutter input{data, size};
  Global::DecimalPoint = input.byte();
  const int decimals = static_cast<std::int8_t>(input.byte());
  const int digits = static_cast<std::int8_t>(input.byte());
  const std::uint8_t byte = input.byte();
  const std::vector<std::uint8_t> field = input.bytes(input.byte() % 21U);
  const std::string first = input.text();
  const std::string second = input.rest();

  check_texts(first, second, decimals, digits);
  check_field(field);
  check_writing(first, field.size());
  check_bits(byte, static_cast<std::uint8_t>(digits & 15));
  require(installation.lines_in_log() <= 64, "a fault is logged once");
  return 0;
}

}  // namespace ecr::fuzz::numbers_target

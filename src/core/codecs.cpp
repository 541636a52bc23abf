#include "core/codecs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "core/fault.h"
#include "core/packed_digits.h"
#include "core/run_log.h"
#include "core/text.h"

namespace ecr {
namespace {

constexpr int tens_of(std::uint8_t byte) {
  return byte >> 4;
}
constexpr int units_of(std::uint8_t byte) {
  return byte & 0x0F;
}

/// Any field whatever, byte by byte.
std::string number_text(std::span<const std::uint8_t> field) {
  // The digit pairs of the bytes, highest first, are the number: nothing has to be added up.
  std::string text;
  guarded("bcds_to_number ", [&] {
    std::size_t significant = 0;
    for (std::size_t i = 0; i < field.size(); ++i) {
      const int tens = tens_of(field[i]);
      const int units = units_of(field[i]);
      if (tens > 9 || units > 9) throw FaultError{FaultCode::type_mismatch};
      const std::size_t digits = tens != 0 ? 2 * i + 2 : units != 0 ? 2 * i + 1 : significant;
      if (digits > static_cast<std::size_t>(Decimal::max_digits)) throw FaultError{FaultCode::overflow};
      // Kept lowest digit first until the walk is over, so that a fault leaves what was read before it.
      text += static_cast<char>('0' + units);
      text += static_cast<char>('0' + tens);
      significant = digits;
    }
  });
  if (text.empty()) return text;
  text.erase(std::min(text.size(), text.find_last_not_of('0') + 1));
  if (text.empty()) return "0";
  std::reverse(text.begin(), text.end());
  return text;
}

}  // namespace

std::string bcds_to_number(std::span<const std::uint8_t> field) {
  std::string text;
  append_number(text, field);
  return text;
}

void append_number(std::string& out, std::span<const std::uint8_t> field) {
  PackedDigits packed;
  if (!packed.read(field)) {
    out += number_text(field);
    return;
  }
  std::array<char, PackedDigits::most_digits> text;
  const std::size_t first = std::min(packed.first_significant(), packed.count() - 1);
  packed.write(text.data(), first, packed.count() - first);
  out.append(text.data(), packed.count() - first);
}

std::string bcds_to_number_str(std::span<const std::uint8_t> field) {
  std::string text = "0";
  guarded("bcds_to_number_str : ", [&] {
    Decimal sum;
    double weight = 1;
    for (const std::uint8_t byte : field) {
      const double product = bcd_to_number(byte) * weight;
      if (product >= 1e28) throw FaultError{FaultCode::overflow};
      // A double of this size is a whole number; it is taken over with every one of its digits.
      const double high = std::floor(product / 1e14);
      const double low = std::fma(-high, 1e14, product);
      sum = sum + Decimal{static_cast<std::int64_t>(high)}.scaled(14) + Decimal{static_cast<std::int64_t>(low)};
      text = sum.text();
      weight *= 100;
    }
  });
  return text;
}

int bcd_to_number(std::uint8_t byte) {
  if (tens_of(byte) > 9) return 0;
  // A byte below 16 has one hexadecimal digit.
  if (tens_of(byte) == 0) return units_of(byte) > 9 ? 0 : units_of(byte);
  return units_of(byte) > 9 ? tens_of(byte) : tens_of(byte) * 10 + units_of(byte);
}

void number_to_bcd(std::uint8_t& out, std::uint8_t number) {
  const std::string text = Decimal{number}.text(0, 2);
  out = static_cast<std::uint8_t>((text[0] - '0') * 16 + (text[1] - '0'));
}

void number_to_bcds(std::span<std::uint8_t> field, std::string_view value) {
  guarded("number_to_bcds : ", [&] {
    std::fill(field.begin(), field.end(), std::uint8_t{0});
    const std::optional<Decimal> number = Decimal::parse(value);
    const std::string digits = number ? number->text(0, static_cast<int>(field.size())) : std::string{value};
    if (digits.size() > 255) throw FaultError{FaultCode::overflow};
    for (std::size_t i = 0; i < digits.size(); ++i) {
      const char digit = digits[digits.size() - 1 - i];
      if (i / 2 >= field.size()) throw FaultError{FaultCode::out_of_range};
      if (digit < '0' || digit > '9') throw FaultError{FaultCode::type_mismatch};
      const int nibble = digit - '0';
      std::uint8_t& byte = field[i / 2];
      byte = static_cast<std::uint8_t>(i % 2 == 0 ? nibble : byte + 16 * nibble);
    }
  });
}

void number_to_bcds(std::span<std::uint8_t> field, const Decimal& value) {
  number_to_bcds(field, value.text(0));
}

std::uint8_t ottieni_numero(std::string_view text, std::string_view separator) {
  std::uint8_t result = 0;
  guarded("ottieni_numero : ", [&] {
    if (separator.empty()) return;
    const std::size_t place = lower_ascii(text).find(lower_ascii(separator));
    if (place == std::string_view::npos) return;
    const std::int64_t number = leading_number(text.substr(0, place + 1));
    if (number < 0 || number > 255) throw FaultError{FaultCode::overflow};
    result = static_cast<std::uint8_t>(number);
  });
  return result;
}

void byte_bit_change(std::uint8_t& byte, std::uint8_t bit, bool on) {
  guarded("byte_bit_change : ", [&] {
    if (bit > 7) throw FaultError{FaultCode::overflow};
    const unsigned mask = 1U << bit;
    byte = static_cast<std::uint8_t>(on ? byte | mask : byte & ~mask);
  });
}

bool byte_bit_tst(std::uint8_t byte, std::uint8_t bit) {
  bool set = false;
  guarded("byte_bit_tst : ", [&] {
    if (bit > 7) throw FaultError{FaultCode::overflow};
    set = (byte & (1U << bit)) != 0;
  });
  return set;
}

std::string_view testo_dopo_spazio(std::string_view text) {
  const std::size_t blank = text.find(' ');
  return blank == std::string_view::npos ? text : text.substr(blank + 1);
}

int solo_numeri(int& key) {
  constexpr int backspace = 8;
  if ((key < '0' || key > '9') && key != backspace) key = 0;
  return key;
}

}  // namespace ecr

#include "fields/coding.h"

#include <algorithm>
#include <bit>

#include "core/register_text.h"
#include "core/text.h"

namespace ecr::fields {
namespace {

constexpr std::string_view hex_digits = "0123456789abcdef";

int shift_of(std::uint8_t mask) {
  return std::countr_zero(mask);
}

/// 10^(2n-1) for n bytes: the largest stored quantity that is not negative.
std::int64_t sign_weight(std::size_t bytes) {
  std::int64_t weight = 1;
  for (std::size_t i = 1; i < 2 * bytes; ++i) weight *= 10;
  return weight;
}

std::optional<std::int64_t> packed_number(std::span<const std::uint8_t> bytes) {
  std::int64_t number = 0;
  for (std::size_t i = bytes.size(); i-- > 0;) {
    const int tens = bytes[i] >> 4;
    const int units = bytes[i] & 0x0F;
    if (tens > 9 || units > 9) return std::nullopt;
    number = number * 100 + tens * 10 + units;
  }
  return number;
}

void store_packed(std::span<std::uint8_t> bytes, std::int64_t number) {
  for (std::uint8_t& byte : bytes) {
    byte = static_cast<std::uint8_t>(number / 10 % 10 * 16 + number % 10);
    number /= 100;
  }
}

bool is_digit(char c) {
  return c >= '0' && c <= '9';
}

int value_of_hex(char c) {
  const std::size_t value = hex_digits.find(lower_ascii(c));
  return value == std::string_view::npos ? -1 : static_cast<int>(value);
}

void append_hex(std::string& out, std::uint8_t byte) {
  out += hex_digits[byte >> 4];
  out += hex_digits[byte & 0x0F];
}

}  // namespace

std::optional<std::int64_t> stored_number(const Place& place, std::span<const std::uint8_t> bytes) {
  switch (place.stored) {
    case Stored::binary:
      return (bytes.front() & place.mask) >> shift_of(place.mask);
    case Stored::packed:
      return packed_number(bytes);
    case Stored::quantity: {
      const std::optional<std::int64_t> number = packed_number(bytes);
      const std::int64_t weight = sign_weight(bytes.size());
      // The first digit of a negative one is the sign, whichever it is.
      return number && *number > weight ? -(*number % weight) : number;
    }
    case Stored::text:
    case Stored::raw:
      return std::nullopt;
  }
  return std::nullopt;
}

void store_number(const Place& place, std::span<std::uint8_t> bytes, std::int64_t number) {
  if (place.stored == Stored::binary) {
    const auto bits = static_cast<std::uint8_t>(number << shift_of(place.mask));
    bytes.front() = static_cast<std::uint8_t>((bytes.front() & ~place.mask) | (bits & place.mask));
  } else if (place.stored == Stored::quantity) {
    store_packed(bytes, number < 0 ? sign_weight(bytes.size()) - number : number);
  } else {
    store_packed(bytes, number);
  }
}

std::string number_text(std::int64_t number, const NumberForm& form) {
  std::string text = std::to_string(number < 0 ? -number : number);
  const auto decimals = static_cast<std::size_t>(form.decimals);
  const std::size_t least = decimals + static_cast<std::size_t>(std::max(form.digits, 1));
  if (text.size() < least) text.insert(0, least - text.size(), '0');
  if (decimals > 0) {
    text.insert(text.size() - decimals, 1, form.decimal_sign);
    if (form.shortest) {
      text.erase(text.find_last_not_of('0') + 1);
      if (text.back() == form.decimal_sign) text.pop_back();
    }
  }
  return number < 0 ? "-" + text : text;
}

ReadNumber read_number(std::string_view text, const NumberForm& form) {
  constexpr std::size_t most_digits = 18;
  text = trim_both(text);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  const std::size_t sign = std::min(text.find(form.decimal_sign), text.size());
  std::string digits{text.substr(0, sign)};
  std::string_view decimals = text.substr(std::min(sign + 1, text.size()));
  const bool is_number = std::all_of(digits.begin(), digits.end(), is_digit) &&
                         std::all_of(decimals.begin(), decimals.end(), is_digit) &&
                         !(digits.empty() && decimals.empty());
  if (!is_number) return {.fault = ReadNumber::Fault::no_number};
  const auto room = static_cast<std::size_t>(form.decimals);
  while (decimals.size() > room && decimals.back() == '0') decimals.remove_suffix(1);
  if (decimals.size() > room) return {.fault = ReadNumber::Fault::too_many_decimals};
  digits += decimals;
  digits.append(room - decimals.size(), '0');
  digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size()));
  ReadNumber result;
  if (digits.size() > most_digits) result.fault = ReadNumber::Fault::too_long;
  for (const char digit : std::string_view{digits}.substr(0, most_digits)) {
    result.number = result.number * 10 + (digit - '0');
  }
  if (negative) result.number = -result.number;
  return result;
}

std::string hexadecimal(std::span<const std::uint8_t> bytes) {
  std::string text = "<";
  for (const std::uint8_t byte : bytes) append_hex(text, byte);
  return text + ">";
}

bool read_hexadecimal(std::string_view text, std::span<std::uint8_t> bytes) {
  if (!text.starts_with('<') || !text.ends_with('>') || text.size() < 2) return false;
  text = text.substr(1, text.size() - 2);
  std::size_t read = 0;
  while (true) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    if (text.empty()) return read == bytes.size();
    if (text.size() < 2 || read == bytes.size()) return false;
    const int high = value_of_hex(text[0]);
    const int low = value_of_hex(text[1]);
    if (high < 0 || low < 0) return false;
    bytes[read++] = static_cast<std::uint8_t>(high * 16 + low);
    text.remove_prefix(2);
  }
}

std::string escaped_text(std::string_view register_text) {
  std::string text;
  for (const char c : trim_end(register_text)) {
    const auto code = static_cast<unsigned char>(c);
    const std::uint8_t shown = CharFromEcr[code];
    if (shown == '\\') {
      text += "\\\\";
    } else if (shown < ' ' || CharToEcr[shown] != code) {
      text += "\\x";
      append_hex(text, code);
    } else {
      text += static_cast<char>(shown);
    }
  }
  return text;
}

RegisterText register_text_of(std::string_view text, bool escapes) {
  // What the register has no character for becomes this one, which stands for a character of its own too.
  const std::uint8_t lacking = CharToEcr[0xC3];
  RegisterText result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string_view rest = text.substr(i);
    if (escapes && rest.starts_with("\\\\")) {
      result.text += '\\';
      ++i;
      continue;
    }
    if (escapes && rest.starts_with('\\')) {
      const int high = rest.size() > 3 && rest[1] == 'x' ? value_of_hex(rest[2]) : -1;
      const int low = high >= 0 ? value_of_hex(rest[3]) : -1;
      if (low < 0) return {.text = {}, .fault = std::string{rest.substr(0, 2)}};
      result.text += static_cast<char>(high * 16 + low);
      i += 3;
      continue;
    }
    const auto page = static_cast<unsigned char>(text[i]);
    const std::uint8_t code = CharToEcr[page];
    const bool is_lacking = code == lacking && CharFromEcr[code] != page;
    if (page < ' ' || is_lacking) return {.text = {}, .fault = std::string(1, text[i])};
    result.text += static_cast<char>(code);
  }
  return result;
}

}  // namespace ecr::fields

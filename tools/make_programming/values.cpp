#include "make_programming/values.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <optional>
#include <vector>

#include "core/code_page.h"
#include "core/codecs.h"
#include "core/decimal.h"
#include "core/register_text.h"
#include "core/text.h"
#include "fields/key_codes.h"
#include "make_programming/names.h"

namespace ecr {
namespace {

using Place = std::span<std::uint8_t>;
using ConstBytes = std::span<const std::uint8_t>;

enum class NumberForm {
  plain,
  percent,   ///< with " %" behind it
  quantity,  ///< signed: a top digit of 1 means that the rest is below zero; shortest form
  packed,    ///< two decimal digits in a byte
};

struct NumberFormat {
  std::string_view field;
  NumberForm form = NumberForm::plain;
  int decimals = 0;
};

// Fields that are not plain whole numbers. Amounts have two decimals in a source, whatever the image says of its own.
constexpr NumberFormat number_formats[] = {
    {"VatRate", NumberForm::percent, 3},  {"PercentA", NumberForm::percent, 2}, {"PercentB", NumberForm::percent, 2},
    {"SysOpt1", NumberForm::packed, 0},   {"Dept.Price", NumberForm::plain, 2}, {"Plu.LinkDept", NumberForm::packed, 0},
    {"Plu.Price1", NumberForm::plain, 2}, {"Plu.Price2", NumberForm::plain, 2}, {"Plu.Stock", NumberForm::quantity, 4},
};

NumberFormat format_of(const FieldPlace& field) {
  const auto* found = std::find_if(std::begin(number_formats), std::end(number_formats),
                                   [&](const NumberFormat& format) { return format.field == field.name; });
  return found == std::end(number_formats) ? NumberFormat{} : *found;
}

bool is_packed(const FieldPlace& field) {
  return field.kind == FieldKind::bcd || format_of(field).form == NumberForm::packed;
}

// ---- bytes in hexadecimal

constexpr std::string_view hex_digits = "0123456789ABCDEF";

std::optional<unsigned> hex_value(char c) {
  const std::size_t value = hex_digits.find(upper_ascii(c));
  if (value == std::string_view::npos) return std::nullopt;
  return static_cast<unsigned>(value);
}

std::string hex_pair(std::uint8_t byte) {
  return {hex_digits[static_cast<std::size_t>(byte >> 4)], hex_digits[byte & 15U]};
}

void set_raw(std::string_view written, Place bytes) {
  if (written.size() < 2 || written.back() != '>') throw ValueError{"the \">\" behind the bytes is missing"};
  std::vector<unsigned> digits;
  for (const char c : written.substr(1, written.size() - 2)) {
    if (c == ' ') continue;
    const std::optional<unsigned> digit = hex_value(c);
    if (!digit) throw ValueError{"bytes are written in hexadecimal digits"};
    digits.push_back(*digit);
  }
  if (digits.size() != 2 * bytes.size()) throw ValueError{"the field has " + std::to_string(bytes.size()) + " bytes"};
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    bytes[i] = static_cast<std::uint8_t>(digits[2 * i] * 16 + digits[2 * i + 1]);
  }
}

std::string written_raw(ConstBytes bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) text += (text.empty() ? "<" : " ") + hex_pair(byte);
  return text + ">";
}

// ---- texts

constexpr std::uint8_t none_in_register = 127;
constexpr char16_t lead_byte_in_page = 195;

char32_t next_character(std::string_view text, std::size_t& place) {
  const auto byte_at = [&](std::size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U; };
  const unsigned lead = byte_at(place);
  const std::size_t length = lead < 0x80 ? 1 : lead >> 5 == 6 ? 2 : lead >> 4 == 14 ? 3 : lead >> 3 == 30 ? 4 : 0;
  if (length == 0) throw ValueError{"the source is not UTF-8"};
  char32_t character = length == 1 ? lead : lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if (byte_at(place + i) >> 6 != 2) throw ValueError{"the source is not UTF-8"};
    character = character << 6 | (byte_at(place + i) & 0x3FU);
  }
  place += length;
  return character;
}

std::string as_utf8(char16_t character) {
  std::string text;
  if (character < 0x80) {
    text += static_cast<char>(character);
  } else if (character < 0x800) {
    text += static_cast<char>(0xC0 | character >> 6);
    text += static_cast<char>(0x80 | (character & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | character >> 12);
    text += static_cast<char>(0x80 | (character >> 6 & 0x3F));
    text += static_cast<char>(0x80 | (character & 0x3F));
  }
  return text;
}

std::uint8_t register_code(char32_t character, std::string_view as_written) {
  const char16_t code = character > 0xFFFF ? code_not_in_page : code_of(static_cast<char16_t>(character));
  // Code 195 of the page is read as half a letter, and codes below the blank print nothing.
  const bool usable = code >= 32 && code <= 255 && code != lead_byte_in_page;
  const std::uint8_t result = usable ? CharToEcr[code] : none_in_register;
  if (result == none_in_register) throw ValueError{"the register has no character " + std::string{as_written}};
  return result;
}

void set_text(std::string_view written, Place bytes) {
  if (written.size() < 2 || written.front() != '"' || written.back() != '"')
    throw ValueError{"a text in quotes is wanted"};
  const std::string_view text = written.substr(1, written.size() - 2);
  std::vector<std::uint8_t> codes;
  for (std::size_t i = 0; i < text.size();) {
    if (text[i] == '\\') {
      const char next = i + 1 < text.size() ? text[i + 1] : '\0';
      if (next == '"' || next == '\\') {
        codes.push_back(static_cast<std::uint8_t>(next));
        i += 2;
        continue;
      }
      const std::optional<unsigned> tens = i + 2 < text.size() ? hex_value(text[i + 2]) : std::nullopt;
      const std::optional<unsigned> units = i + 3 < text.size() ? hex_value(text[i + 3]) : std::nullopt;
      if (next != 'x' || !tens || !units) throw ValueError{R"(behind "\" stands a quote, a "\" or x and two digits)"};
      codes.push_back(static_cast<std::uint8_t>(*tens * 16 + *units));
      i += 4;
      continue;
    }
    const std::size_t start = i;
    const char32_t character = next_character(text, i);
    codes.push_back(register_code(character, text.substr(start, i - start)));
  }
  if (codes.size() > bytes.size()) {
    throw ValueError{"the text has " + std::to_string(codes.size()) + " characters, the field " +
                     std::to_string(bytes.size())};
  }
  std::fill(bytes.begin(), bytes.end(), static_cast<std::uint8_t>(' '));
  std::copy(codes.begin(), codes.end(), bytes.begin());
}

std::string written_text(ConstBytes bytes) {
  while (!bytes.empty() && bytes.back() == ' ') bytes = bytes.first(bytes.size() - 1);
  std::string text = "\"";
  for (const std::uint8_t byte : bytes) {
    const std::uint8_t page = CharFromEcr[byte];
    if (byte == '"' || byte == '\\') {
      text += '\\';
      text += static_cast<char>(byte);
    } else if (byte >= 32 && byte != none_in_register && CharToEcr[page] == byte) {
      text += as_utf8(unicode_of(page));
    } else {
      text += "\\x" + hex_pair(byte);
    }
  }
  return text + "\"";
}

// ---- numbers

Decimal number_of(std::string_view written) {
  const std::optional<Decimal> number = Decimal::parse(written);
  if (!number) throw ValueError{"\"" + std::string{written} + "\" is no number"};
  return *number;
}

/// Ten to the power of one less than the field's digits: above it stand the negative quantities.
Decimal sign_of_quantity(std::size_t bytes) {
  return Decimal{1}.scaled(static_cast<int>(2 * bytes) - 1);
}

void set_number(const FieldPlace& field, std::string_view written, Place bytes) {
  const NumberFormat format = format_of(field);
  if (format.form == NumberForm::percent && written.ends_with('%')) {
    written = trim_end(written.substr(0, written.size() - 1));
  }
  const bool negative = format.form == NumberForm::quantity && written.starts_with('-');
  if (negative) written.remove_prefix(1);
  Decimal number = number_of(written).scaled(format.decimals);
  if (number != number.rounded()) {
    throw ValueError{"the field has " + std::to_string(format.decimals) + " decimals"};
  }
  if (format.form == NumberForm::quantity) {
    const Decimal sign = sign_of_quantity(bytes.size());
    // The sign itself is the largest positive quantity, so it cannot be a negative one.
    if (number > sign || (negative && (number == sign || number.is_zero()))) {
      throw ValueError{"the field cannot hold this quantity"};
    }
    if (negative) number = number + sign;
  }
  if (number.is_negative()) throw ValueError{"the field holds no number below zero"};
  const std::string digits = number.text();
  if (is_packed(field)) {
    if (digits.size() > 2 * bytes.size()) {
      throw ValueError{"the field has " + std::to_string(2 * bytes.size()) + " digits"};
    }
    number_to_bcds(bytes, digits);
    return;
  }
  if (number > Decimal{255}) throw ValueError{"the field is a byte, 0 to 255"};
  bytes[0] = static_cast<std::uint8_t>(leading_number(digits));
}

std::string written_number(const FieldPlace& field, ConstBytes bytes) {
  if (!is_packed(field)) return std::to_string(bytes[0]);
  const bool decimal =
      std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte >> 4 <= 9 && (byte & 15) <= 9; });
  if (!decimal) return written_raw(bytes);
  const NumberFormat format = format_of(field);
  const std::string digits = bcds_to_number(bytes);
  const Decimal number = Decimal::from_text(digits).scaled(-format.decimals);
  if (format.form == NumberForm::percent) return number.text(format.decimals) + " %";
  if (format.form != NumberForm::quantity) return number.text(format.decimals);
  if (Decimal::from_text(digits) <= sign_of_quantity(bytes.size())) return number.text();
  // Other digits than 1 count as a sign too, but only 1 is ever written.
  if (digits.front() != '1') return written_raw(bytes);
  return "-" + Decimal::from_text(digits.substr(1)).scaled(-format.decimals).text();
}

// ---- flags

bool bit_at(ConstBytes bytes, unsigned bit) {
  return (bytes[bit / 8] >> (bit % 8) & 1) != 0;
}

unsigned number_at(ConstBytes bytes, const BitName& name) {
  unsigned number = 0;
  for (unsigned i = 0; i < name.bits; ++i) number |= static_cast<unsigned>(bit_at(bytes, name.first_bit + i)) << i;
  return number;
}

/// Which bits a word of the source means, and their number.
struct FlagWord {
  unsigned first_bit;
  unsigned bits;
  unsigned number;
};

std::optional<unsigned> small_number(std::string_view digits) {
  if (digits.empty() || digits.size() > 3 || digits.find_first_not_of("0123456789") != std::string_view::npos) {
    return std::nullopt;
  }
  return static_cast<unsigned>(leading_number(digits));
}

FlagWord flag_word(const FieldPlace& field, std::string_view word) {
  for (const BitName& name : bit_names(field.name)) {
    if (name.bits == 1 && name.word == word) return {name.first_bit, 1, 1};
    if (name.bits == 1) continue;
    for (std::size_t i = 0; i < name.choices.size(); ++i) {
      if (name.choices[i] == word) return {name.first_bit, name.bits, static_cast<unsigned>(i)};
    }
    const std::size_t colon = word.find(':');
    if (colon == std::string_view::npos || word.substr(0, colon) != name.word) continue;
    const std::optional<unsigned> number = small_number(word.substr(colon + 1));
    if (number && *number < 1U << name.bits) return {name.first_bit, name.bits, *number};
  }
  if (word.starts_with("bit")) {
    const std::optional<unsigned> bit = small_number(word.substr(3));
    if (bit && *bit < 8 * field.width) return {*bit, 1, 1};
  }
  throw ValueError{"the field has no flag \"" + std::string{word} + "\""};
}

void set_flags(const FieldPlace& field, std::string_view written, Place bytes) {
  std::fill(bytes.begin(), bytes.end(), std::uint8_t{0});
  if (written == "none") return;
  std::vector<bool> given(8 * bytes.size(), false);
  while (true) {
    const std::size_t plus = std::min(written.find('+'), written.size());
    const FlagWord word = flag_word(field, written.substr(0, plus));
    for (unsigned i = 0; i < word.bits; ++i) {
      const unsigned bit = word.first_bit + i;
      if (given[bit]) throw ValueError{"\"" + std::string{written.substr(0, plus)} + "\" says a bit again"};
      given[bit] = true;
      if ((word.number >> i & 1U) != 0) bytes[bit / 8] = static_cast<std::uint8_t>(bytes[bit / 8] | 1U << (bit % 8));
    }
    if (plus == written.size()) return;
    written.remove_prefix(plus + 1);
  }
}

std::string written_flags(const FieldPlace& field, ConstBytes bytes) {
  std::string text;
  const auto add = [&](const std::string& word) { text += (text.empty() ? "" : "+") + word; };
  const std::span<const BitName> names = bit_names(field.name);
  for (unsigned bit = 0; bit < 8 * bytes.size(); ++bit) {
    const auto name = std::find_if(names.begin(), names.end(), [&](const BitName& candidate) {
      return bit >= candidate.first_bit && bit < candidate.first_bit + candidate.bits;
    });
    if (name == names.end()) {
      if (bit_at(bytes, bit)) add("bit" + std::to_string(bit));
      continue;
    }
    if (bit != name->first_bit) continue;
    const unsigned number = number_at(bytes, *name);
    if (name->bits == 1) {
      if (number != 0) add(std::string{name->word});
    } else if (number < name->choices.size()) {
      add(std::string{name->choices[number]});
    } else if (number != 0) {
      add(std::string{name->word} + ":" + std::to_string(number));
    }
  }
  return text.empty() ? "none" : text;
}

// ---- keys

constexpr std::string_view key_field = "KeyLayout";

void set_key(std::string_view written, Place bytes) {
  if (written.size() < 2 || written.back() != '"') throw ValueError{"the quote behind the key's name is missing"};
  const std::optional<std::uint8_t> code = key_code(written.substr(1, written.size() - 2));
  if (!code) throw ValueError{"there is no key function " + std::string{written}};
  bytes[0] = *code;
}

bool is_number(std::string_view written) {
  return !written.empty() && (std::string_view{"0123456789-.%"}.find(written.front()) != std::string_view::npos) &&
         written.find_first_not_of("0123456789-.% ") == std::string_view::npos;
}

}  // namespace

void set_value(const FieldPlace& field, std::string_view written, Place bytes) {
  if (written.empty()) throw ValueError{"a value is missing"};
  if (written.front() == '<') return set_raw(written, bytes);
  if (field.kind == FieldKind::text) return set_text(written, bytes);
  if (field.kind == FieldKind::opaque) throw ValueError{"the field takes bytes between \"<\" and \">\" only"};
  if (field.name == key_field && written.front() == '"') return set_key(written, bytes);
  const bool flags = !bit_names(field.name).empty();
  if (flags && (field.width > 1 || !is_number(written))) return set_flags(field, written, bytes);
  set_number(field, written, bytes);
}

std::string written_value(const FieldPlace& field, ConstBytes bytes) {
  if (field.kind == FieldKind::text) return written_text(bytes);
  if (field.kind == FieldKind::opaque) return written_raw(bytes);
  if (!bit_names(field.name).empty()) return written_flags(field, bytes);
  if (field.name == key_field) {
    const std::string_view name = key_name(bytes[0]);
    if (!name.empty()) return "\"" + std::string{name} + "\"";
  }
  return written_number(field, bytes);
}

}  // namespace ecr

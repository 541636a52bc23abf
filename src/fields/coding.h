#pragma once
// Between bytes, numbers and texts: what the values of all fields have in common.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "fields/field.h"

namespace ecr::fields {

/// The number that the bytes hold, in units of its last decimal. Nothing for texts, for bytes that nobody reads, and
/// where a nibble above 9 stands in a packed number.
[[nodiscard]] std::optional<std::int64_t> stored_number(const Place& place, std::span<const std::uint8_t> bytes);

/// Puts a number into the bytes; of a shared byte into the place's bits. The number has room there.
void store_number(const Place& place, std::span<std::uint8_t> bytes, std::int64_t number);

/// What can be written by a person for a number.
struct NumberForm {
  int decimals = 0;
  int digits = 1;         ///< at least so many in front of the decimal sign
  bool shortest = false;  ///< without the zeros at the end of the decimals
  char decimal_sign = '.';
};

/// 1250 with two decimals is "12.50".
[[nodiscard]] std::string number_text(std::int64_t number, const NumberForm& form);

struct ReadNumber {
  enum class Fault : std::uint8_t { none, no_number, too_many_decimals, too_long };
  Fault fault = Fault::none;
  std::int64_t number = 0;
};

/// The number that the whole text says: blanks around it, a sign, digits with at most one decimal sign among or in
/// front of them. No exponent and no separators of thousands. Decimals beyond the form's must be zeros.
[[nodiscard]] ReadNumber read_number(std::string_view text, const NumberForm& form);

/// Two hexadecimal digits for each byte, in file order, between "<" and ">".
[[nodiscard]] std::string hexadecimal(std::span<const std::uint8_t> bytes);

/// The way back, blanks between bytes allowed. Answers whether the text says exactly as many bytes.
[[nodiscard]] bool read_hexadecimal(std::string_view text, std::span<std::uint8_t> bytes);

/// A register text, without the blanks at its end: characters of the code page; a character that does not come back
/// from there, a control character and a backslash are "\" with "\" or with "x" and two hexadecimal digits.
[[nodiscard]] std::string escaped_text(std::string_view register_text);

/// Texts of the code page in the register's characters. `fault` is the first character that the register lacks, with
/// an empty result.
struct RegisterText {
  std::string text;
  std::string fault;
};
/// `escapes`: whether a backslash is one of escaped_text.
[[nodiscard]] RegisterText register_text_of(std::string_view text, bool escapes);

}  // namespace ecr::fields

#pragma once
// Conversions between the register's packed decimal fields and flag bits and what a screen shows.
//
// Packed decimal: two decimal digits a byte, tens in the high nibble; the least significant pair stands in the first
// byte, so 123456 in three bytes is 0x56, 0x34, 0x12.
//
// None of these lets a fault out: it is logged behind the function's name, and the caller has a partial or zero result.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "core/decimal.h"

namespace ecr {

/// The field as decimal text without leading zeros, exact to 28 digits; an empty field gives an empty text. At a nibble
/// above 9 the walk ends and the text of the bytes before it is returned.
[[nodiscard]] std::string bcds_to_number(std::span<const std::uint8_t> field);

/// The same behind what stands in `out`, without a text of its own for each field.
void append_number(std::string& out, std::span<const std::uint8_t> field);

/// The same walk over bytes read leniently (0x1A counts as 1), with each byte's weight formed in double precision
/// before it is added: fields of more than ten bytes can differ in their low digits. An empty field gives "0".
[[nodiscard]] std::string bcds_to_number_str(std::span<const std::uint8_t> field);

/// The byte's two hexadecimal digits read leniently: 0x42 gives 42, 0x1A gives 1, 0xA1 gives 0.
[[nodiscard]] int bcd_to_number(std::uint8_t byte);

/// Two digits into one byte. Of a number above 99 the last digit is lost: 123 gives 0x12.
void number_to_bcd(std::uint8_t& out, std::uint8_t number);

/// A number, given as text, into the field; an empty text clears it. Decimals are rounded half away from zero. With
/// more digits than the field holds, or a text that is no number, the bytes written so far stay.
void number_to_bcds(std::span<std::uint8_t> field, std::string_view value);
void number_to_bcds(std::span<std::uint8_t> field, const Decimal& value);

/// The number in front of the first `separator`, read leniently; 0 without one. Above 255 it is 0 too, and logged.
[[nodiscard]] std::uint8_t ottieni_numero(std::string_view text, std::string_view separator);

/// Bit numbers are 0 to 7, 0 the least significant.
void byte_bit_change(std::uint8_t& byte, std::uint8_t bit, bool on);
[[nodiscard]] bool byte_bit_tst(std::uint8_t byte, std::uint8_t bit);

/// What stands behind the first blank; the whole text if there is none.
[[nodiscard]] std::string_view testo_dopo_spazio(std::string_view text);

/// The key filter of number fields: digits and Backspace (8) stay, any other key becomes 0.
int solo_numeri(int& key);

}  // namespace ecr

#pragma once
// The register's own 8-bit character set, and the way between it and the code page.

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "core/code_page.h"

namespace ecr {

/// Both tables are indexed by an 8-bit code. CharToEcr: code of the page -> code of the register, 127 where it has
/// none. CharFromEcr: code of the register -> code of the page, 215 where it has none.
extern const std::array<std::uint8_t, 256> CharToEcr;
extern const std::array<std::uint8_t, 256> CharFromEcr;

/// Into the register's characters. Code 195 is the lead byte of a two-byte sequence; where the register has no
/// character for the sequence, or the text ends behind the lead byte, the program ends at once. A character that the
/// code page lacks is logged and left out.
[[nodiscard]] std::string sostituzione_to_ecr(const CodeText& codes);
[[nodiscard]] std::string sostituzione_to_ecr(std::string_view bytes);

/// Into the characters of the code page, one for one.
[[nodiscard]] std::string sostituzione_from_ecr(std::string_view register_bytes);
/// The same in place.
void from_ecr_in_place(std::span<char> text);

}  // namespace ecr

#pragma once
// The fixed 8-bit code page of all files and of everything inside the program: Windows-1252. Screen text is Unicode
// (UTF-16) and becomes codes of the page at the widget's edge, here and nowhere else.
//
// The five bytes that the page leaves undefined (129, 141, 143, 144, 157) stand for the control characters of the same
// number, so that any byte comes back as itself.

#include <string>
#include <string_view>

namespace ecr {

/// The code that characters missing from the page are given: above every code of the page.
inline constexpr char16_t code_not_in_page = 0xFFFF;

/// One code a character: 0 to 255, or code_not_in_page.
using CodeText = std::u16string;

[[nodiscard]] char16_t code_of(char16_t unicode) noexcept;
[[nodiscard]] char16_t unicode_of(unsigned char code) noexcept;

[[nodiscard]] CodeText codes_of(std::u16string_view unicode);
[[nodiscard]] std::u16string unicode_of(std::string_view bytes);

/// Bytes of the page; a character that the page lacks becomes a question mark.
[[nodiscard]] std::string bytes_of(std::u16string_view unicode);

}  // namespace ecr

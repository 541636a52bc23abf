#include "core/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace ecr {
namespace {

// The 32 codes in which the page differs from Latin-1, by their Unicode characters.
constexpr std::array<char16_t, 32> upper_controls = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                     0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr char16_t first_upper_control = 128;

constexpr bool same_as_latin1(char16_t c) {
  return c < first_upper_control || (c >= 160 && c <= 255);
}

}  // namespace

char16_t code_of(char16_t unicode) noexcept {
  if (same_as_latin1(unicode)) return unicode;
  const auto* found = std::find(upper_controls.begin(), upper_controls.end(), unicode);
  if (found == upper_controls.end()) return code_not_in_page;
  return static_cast<char16_t>(first_upper_control + (found - upper_controls.begin()));
}

char16_t unicode_of(unsigned char code) noexcept {
  return same_as_latin1(code) ? code : upper_controls[static_cast<std::size_t>(code - first_upper_control)];
}

CodeText codes_of(std::u16string_view unicode) {
  CodeText codes(unicode.size(), u'\0');
  std::transform(unicode.begin(), unicode.end(), codes.begin(), [](char16_t c) { return code_of(c); });
  return codes;
}

std::u16string unicode_of(std::string_view bytes) {
  std::u16string text(bytes.size(), u'\0');
  std::transform(bytes.begin(), bytes.end(), text.begin(),
                 [](char c) { return unicode_of(static_cast<unsigned char>(c)); });
  return text;
}

std::string bytes_of(std::u16string_view unicode) {
  std::string bytes(unicode.size(), '\0');
  std::transform(unicode.begin(), unicode.end(), bytes.begin(), [](char16_t c) {
    const char16_t code = code_of(c);
    return code <= 255 ? static_cast<char>(static_cast<unsigned char>(code)) : '?';
  });
  return bytes;
}

}  // namespace ecr

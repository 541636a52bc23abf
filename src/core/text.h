#pragma once
// Small operations on byte texts. Only blanks (code 32) are ever trimmed, never other white space.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ecr {

[[nodiscard]] constexpr char lower_ascii(char c) noexcept {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
[[nodiscard]] constexpr char upper_ascii(char c) noexcept {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
[[nodiscard]] std::string lower_ascii(std::string_view text);
[[nodiscard]] std::string upper_ascii(std::string_view text);

/// Without the blanks at its end.
[[nodiscard]] std::string_view trim_end(std::string_view text) noexcept;
/// Without the blanks at both of its ends.
[[nodiscard]] std::string_view trim_both(std::string_view text) noexcept;

/// Exactly `width` bytes: cut, or filled with blanks at the end.
[[nodiscard]] std::string padded(std::string_view text, std::size_t width);

/// The lines of a text file. A line ends with CR LF, LF or a lone CR; the last one need not.
[[nodiscard]] std::vector<std::string_view> lines_of(std::string_view bytes);

/// Upper-case hexadecimal without prefix and without padding; a negative number as its two's complement in 32 bits.
[[nodiscard]] std::string hex_text(std::int32_t number);

/// For each place at which `find` stands in `text`, from the left: the one character there becomes the first character
/// of `with`. The length never changes, so a longer `find` keeps its tail.
[[nodiscard]] std::string Replace_Text(std::string_view text, std::string_view find, std::string_view with);

}  // namespace ecr

#include "core/text.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iterator>

namespace ecr {

std::string lower_ascii(std::string_view text) {
  std::string result{text};
  std::transform(result.begin(), result.end(), result.begin(), [](char c) { return lower_ascii(c); });
  return result;
}

std::string upper_ascii(std::string_view text) {
  std::string result{text};
  std::transform(result.begin(), result.end(), result.begin(), [](char c) { return upper_ascii(c); });
  return result;
}

std::string_view trim_end(std::string_view text) noexcept {
  const std::size_t last = text.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string_view{} : text.substr(0, last + 1);
}

std::string_view trim_both(std::string_view text) noexcept {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return trim_end(text);
}

std::string padded(std::string_view text, std::size_t width) {
  std::string result{text.substr(0, width)};
  result.resize(width, ' ');
  return result;
}

std::vector<std::string_view> lines_of(std::string_view bytes) {
  std::vector<std::string_view> lines;
  std::size_t start = 0;
  while (start < bytes.size()) {
    const std::size_t end = std::min(bytes.find_first_of("\r\n", start), bytes.size());
    lines.push_back(bytes.substr(start, end - start));
    const bool carriage_return_first = end + 1 < bytes.size() && bytes[end] == '\r' && bytes[end + 1] == '\n';
    start = end + (carriage_return_first ? 2 : 1);
  }
  return lines;
}

std::string hex_text(std::int32_t number) {
  char digits[8];
  const auto end = std::to_chars(std::begin(digits), std::end(digits), static_cast<std::uint32_t>(number), 16).ptr;
  return upper_ascii(std::string_view{digits, static_cast<std::size_t>(end - digits)});
}

std::string Replace_Text(std::string_view text, std::string_view find, std::string_view with) {
  std::string result{text};
  if (with.empty()) return result;
  std::size_t place = 0;
  while (place < result.size() && (place = result.find(find, place)) < result.size()) result[place++] = with.front();
  return result;
}

}  // namespace ecr

// text_to_code_page IN OUT
//
// Turns a text in UTF-8 into one in the program's code page, with CR LF at each line's end. What is not UTF-8 or what
// the page lacks is told as "IN:line: what it is", one a line of the text; then nothing is written.
//
// Ends with 0 when OUT was written, 1 when IN was refused or a file failed, 2 when it was called otherwise.

#include <array>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/code_page.h"
#include "core/text.h"

namespace ecr {
namespace {

/// A character and the bytes that it takes in UTF-8.
struct Character {
  std::uint32_t number;
  std::size_t length;
};

/// The character at the beginning of `bytes`, which are not empty; none if they are not UTF-8. Only the shortest form
/// counts, and neither half of a surrogate pair does.
std::optional<Character> first_character(std::string_view bytes) {
  struct Form {
    std::uint32_t mask, mark, least;
  };
  constexpr std::array<Form, 4> forms = {
      {{0x80, 0x00, 0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}}};
  const std::uint32_t lead = static_cast<unsigned char>(bytes.front());
  for (std::size_t i = 0; i < forms.size(); ++i) {
    const Form& form = forms[i];
    if ((lead & form.mask) != form.mark) continue;
    const std::size_t length = i + 1;
    if (bytes.size() < length) return std::nullopt;
    std::uint32_t number = lead & ~form.mask;
    for (std::size_t place = 1; place < length; ++place) {
      const std::uint32_t next = static_cast<unsigned char>(bytes[place]);
      if ((next & 0xC0U) != 0x80U) return std::nullopt;
      number = number << 6U | (next & 0x3FU);
    }
    const bool surrogate = number >= 0xD800 && number <= 0xDFFF;
    if (number < form.least || number > 0x10FFFF || surrogate) return std::nullopt;
    return Character{number, length};
  }
  return std::nullopt;
}

/// The byte of the code page for a character. The control characters that the page's undefined codes stand for inside
/// the program have no business in a text.
std::optional<char> byte_of(std::uint32_t character) {
  if (character > 0xFFFF || (character >= 0x80 && character < 0xA0)) return std::nullopt;
  const char16_t code = code_of(static_cast<char16_t>(character));
  if (code > 255) return std::nullopt;
  return static_cast<char>(static_cast<unsigned char>(code));
}

std::string description_of(Character character, std::string_view as_written) {
  std::string number = hex_text(static_cast<std::int32_t>(character.number));
  if (number.size() < 4) number.insert(0, 4 - number.size(), '0');
  return '"' + std::string{as_written} + "\" (U+" + number + ") is not in the code page";
}

/// Appends the line's bytes; answers why it is refused, if it is.
std::optional<std::string> turn_line(std::string_view line, std::string& bytes) {
  while (!line.empty()) {
    const std::optional<Character> character = first_character(line);
    if (!character) return "byte " + hex_text(static_cast<unsigned char>(line.front())) + " is not UTF-8";
    const std::optional<char> byte = byte_of(character->number);
    if (!byte) return description_of(*character, line.substr(0, character->length));
    bytes += *byte;
    line.remove_prefix(character->length);
  }
  return std::nullopt;
}

bool turn_file(const std::string& in, const std::string& out) {
  std::ifstream source{in, std::ios::binary};
  const std::string utf8{std::istreambuf_iterator<char>{source}, std::istreambuf_iterator<char>{}};
  if (!source.is_open() || source.bad()) {
    std::cerr << in << ": cannot be read\n";
    return false;
  }
  std::string bytes;
  bool refused = false;
  std::size_t number = 0;
  for (const std::string_view line : lines_of(utf8)) {
    ++number;
    if (const std::optional<std::string> refusal = turn_line(line, bytes)) {
      std::cerr << in << ':' << number << ": " << *refusal << '\n';
      refused = true;
    }
    bytes += "\r\n";
  }
  if (refused) return false;
  std::ofstream target{out, std::ios::binary | std::ios::trunc};
  target.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  target.close();
  if (!target) std::cerr << out << ": cannot be written\n";
  return static_cast<bool>(target);
}

}  // namespace
}  // namespace ecr

int main(int count, char** words) {
  const std::vector<std::string> arguments(words, words + count);
  if (arguments.size() != 3) {
    std::cerr << "usage: text_to_code_page IN OUT\n";
    return 2;
  }
  return ecr::turn_file(arguments[1], arguments[2]) ? 0 : 1;
}

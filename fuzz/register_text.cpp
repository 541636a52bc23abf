// Texts of any characters on their way to the register and back, through the code page and the small operations on
// texts.

#include "core/register_text.h"

#include <algorithm>
#include <cstring>

#include "core/code_page.h"
#include "core/codecs.h"
#include "core/text.h"
#include "image/fields.h"
#include "support/installation.h"

namespace ecr::fuzz::register_text_target {
namespace {

constexpr char16_t lead_byte = 195;

/// Whether the text ends the program on its way to the register: a lead byte with nothing known behind it.
bool has_lost_lead_byte(const CodeText& codes) {
  const std::u16string_view known = u"\u00B6\u0096\u0085\u00A4\u0084";
  for (std::size_t i = 0; i < codes.size(); ++i) {
    if (codes[i] != lead_byte) continue;
    ++i;
    if (i == codes.size() || known.find(codes[i]) == std::u16string_view::npos) return true;
  }
  return false;
}

void to_register_and_back(Installation& installation, const CodeText& codes) {
  std::string stored;
  const bool ended = ends_program([&] { stored = sostituzione_to_ecr(codes); });
  require(ended == has_lost_lead_byte(codes), "a letter half understood ends the program, and nothing else does");
  if (ended) return;
  const auto count = [&codes](auto wanted) {
    return static_cast<std::size_t>(std::count_if(codes.begin(), codes.end(), wanted));
  };
  const std::size_t left_out = count([](char16_t code) { return code > 255; });
  const std::size_t lead_bytes = count([](char16_t code) { return code == lead_byte; });
  // Behind a lead byte none of the known characters is a lead byte or lies outside of the page.
  require(stored.size() == codes.size() - left_out - lead_bytes, "a character of the register for each that was known");
  require(installation.lines_in_log() == left_out, "a character that the page lacks is logged, one line each");

  const std::string shown = sostituzione_from_ecr(stored);
  require(shown.size() == stored.size(), "back it goes one for one");
  // What came back once goes there and back without change, but for the signs of what could not be shown.
  if (shown.find(static_cast<char>(lead_byte)) == std::string::npos) {
    std::string again;
    require(!ends_program([&] { again = sostituzione_to_ecr(std::string_view{shown}); }), "no lead byte, no end");
    require(sostituzione_from_ecr(again) == shown, "a shown text is stored as itself");
  }
}

void through_the_page(const std::u16string& unicode, const std::string& bytes) {
  require(unicode_of(std::string_view{bytes}).size() == bytes.size(), "a character for each byte");
  require(bytes_of(unicode_of(std::string_view{bytes})) == bytes, "any byte comes back as itself");
  const CodeText codes = codes_of(unicode);
  const std::string of_page = bytes_of(unicode);
  require(codes.size() == unicode.size() && of_page.size() == unicode.size(), "a code for each character");
  for (std::size_t i = 0; i < codes.size(); ++i) {
    require(codes[i] <= 255 || codes[i] == code_not_in_page, "a code is the page's or none");
    if (codes[i] > 255) {
      require(of_page[i] == '?', "what the page lacks becomes a question mark");
    } else {
      require(unicode_of(static_cast<unsigned char>(codes[i])) == unicode[i], "a code stands for its character");
    }
  }
}

void small_operations(std::string_view text) {
  const std::string_view trimmed = trim_end(text);
  require(text.starts_with(trimmed), "trimming cuts the end alone");
  require(text.substr(trimmed.size()).find_first_not_of(' ') == std::string_view::npos, "nothing but blanks is cut");
  require(padded(text, 12).size() == 12, "a padded text has its width");
  require(text.ends_with(testo_dopo_spazio(text)), "what stands behind a blank is the end of the text");

  std::size_t in_lines = 0;
  for (const std::string_view line : lines_of(text)) {
    require(line.find_first_of("\r\n") == std::string_view::npos, "no line holds a line's end");
    in_lines += line.size();
  }
  const auto ends = std::count_if(text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; });
  require(in_lines + static_cast<std::size_t>(ends) == text.size(), "the lines are all of the text");

  const std::size_t third = text.size() / 3;
  const std::string replaced = Replace_Text(text, text.substr(0, third), text.substr(third, third));
  require(replaced.size() == text.size(), "replacing keeps the length");

  Text<12> field;
  field.set(text);
  require(trim_end(field.view()) == trim_end(text.substr(0, 12)), "a field holds the head of a text");
}

}  // namespace

FUZZ_TARGET(register_text) {
  static Installation installation;
  const std::string bytes = file_of(data, size);
  std::u16string characters(size / 2, u'\0');
  if (!characters.empty()) std::memcpy(characters.data(), data, characters.size() * 2);

  installation.reset();
  to_register_and_back(installation, characters);
  installation.reset();
  to_register_and_back(installation, codes_of(characters));
  // The same as bytes of the page, none of which lies outside of it.
  installation.reset();
  CodeText codes(size, u'\0');
  std::copy(data, data + size, codes.begin());
  to_register_and_back(installation, codes);
  std::string stored;
  if (!ends_program([&] { stored = sostituzione_to_ecr(std::string_view{bytes}); })) {
    require(stored == sostituzione_to_ecr(codes), "bytes and codes are stored alike");
  }

  through_the_page(characters, bytes);
  small_operations(bytes);
  return 0;
}

}  // namespace ecr::fuzz::register_text_target

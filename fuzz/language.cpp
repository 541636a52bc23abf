// A language file holds any bytes: read into the catalogue, and out of it into a file that says the same.

#include "lang/language.h"

#include <algorithm>
#include <array>

#include "core/catalogue.h"
#include "core/global.h"
#include "core/text.h"
#include "support/installation.h"

namespace ecr::fuzz::language_target {
namespace {

constexpr char section_sign = '\xA7';

std::array<std::string, key_count> catalogue() {
  std::array<std::string, key_count> texts;
  for (std::size_t i = 0; i < key_count; ++i) texts[i] = message(static_cast<Key>(i));
  return texts;
}

/// An entry as it stands in a file. A line break within a text is the section sign that it came from.
std::string entry(std::size_t key, std::string text) {
  std::replace(text.begin(), text.end(), '\r', section_sign);
  return std::string{name_of(static_cast<Key>(key))} + "=" + text;
}

/// The catalogue as a file.
std::string as_file(const std::array<std::string, key_count>& texts) {
  std::string file;
  for (std::size_t i = 0; i < key_count; ++i) {
    if (!texts[i].empty()) file += entry(i, texts[i]) + "\r\n";
  }
  return file;
}

}  // namespace

FUZZ_TARGET(language) {
  static Installation installation;
  const std::string file = file_of(data, size);
  installation.reset();
  installation.write("Setup/FrmDescEng.txt", file);
  installation.write("Setup/UK.gif", "");

  selezione_lingua(0);
  require(installation.shell.boxes == 0, "a file that can be read is never told of");
  require(LanguageFile == "FrmDescEng.txt", "the language is the one that was chosen");
  const auto read = catalogue();
  for (std::size_t i = 0; i < key_count; ++i) {
    const std::string& text = read[i];
    require(text.empty() || file.find(entry(i, text)) != std::string::npos, "a text stands in the file as its key's");
    require(text.find('\n') == std::string::npos, "a text is part of one line");
    require(text.find(section_sign) == std::string::npos, "no section sign is left");
    require(trim_end(text) == text, "no blanks are left at an end");
  }
  require(message(Key::FRM_FW_UPGRADE_TITLE).empty(), "the key that is left out has no text");
  require(installation.lines_in_log() <= lines_of(file).size(),
          "a line of the file leaves one line in the log at most");

  parse_language(file);
  require(catalogue() == read, "reading it once more changes nothing");

  // The catalogue says all that the file said.
  installation.reset();
  parse_language(as_file(read));
  require(catalogue() == read, "the texts can be written down and read again");
  require(installation.lines_in_log() == 0, "every key of the catalogue is known");

  carica_messaggi_default();
  for (const std::string* text :
       {&MsgValueTooHigh, &MsgProgramKo, &MsgErrorCopyMode, &MsgErrorCopyPlu, &MsgFileLangKo, &MsgOptionNoZ300}) {
    require(!text->empty(), "the six messages always have a text");
  }
  return 0;
}

}  // namespace ecr::fuzz::language_target

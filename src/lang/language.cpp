#include "lang/language.h"

#include <algorithm>
#include <optional>

#include "core/catalogue.h"
#include "core/files.h"
#include "core/global.h"
#include "core/run_log.h"
#include "core/shell.h"
#include "core/small_files.h"
#include "core/text.h"

namespace ecr {
namespace {

constexpr char section_sign = '\xA7';

std::string language_number_file() {
  return Global::PathSetup + "Language.ini";
}

void take_names(std::uint8_t number) {
  if (number >= languages.size()) return;
  const Language& language = languages[number];
  Global::PathHelp = Global::PathApp + std::string{language.help_folder};
  LanguageFile = language.file;
  HelpFile = language.help_file;
  FlagPicture = language.flag;
}

/// Whether a line is an entry, and if so where its "=" stands.
std::optional<std::size_t> separator_of(std::string_view line) {
  const std::size_t place = line.find('=');
  if (place == std::string_view::npos || place == 0 || line.front() == ';' || line.front() == '[') return std::nullopt;
  return place;
}

}  // namespace

constexpr std::array<Language, 8> languages = {{
    {"English", "FrmDescEng.txt", "help\\eng\\", "ECRZ300S Programming Utility Help (GB).chm", "UK.gif"},
    {"Español", "FrmDescSpa.txt", "help\\es\\", "ECRZ300S Utilidad de programación (ES).chm", "Spain.gif"},
    {"Français", "FrmDescFra.txt", "help\\fr\\", "ECRZ300S Utilitaire de programmation (FR).chm", "France.gif"},
    {"Deutsch", "FrmDescGer.txt", "help\\ge\\", "ECRZ300S Anwendungsprogramm (GE).chm", "Germany.gif"},
    {"Nederlands", "FrmDescOla.txt", "help\\nl\\", "ECRZ300S Hulpprogramma voor programmering (NL).chm",
     "Netherlands.gif"},
    {"Português", "FrmDescPor.txt", "help\\pt\\", "ECRZ300S Utilitário de Programação (PT).chm", "Portugal.gif"},
    {"Dansk", "FrmDescDan.txt", "help\\dk\\", "ECRZ300S Programmeringshjælp (DK).chm", "Denmark.gif"},
    {"Norsk", "FrmDescNv.txt", "help\\nv\\", "ECR Z3x0 S Programmeringsverktyg(NV).chm", "Norway.gif"},
}};

std::uint8_t LanguageNumber = 0;
std::string LanguageFile;
std::string HelpFile;
std::string FlagPicture;

void Read_Language() {
  if (!file_exists(language_number_file())) {
    LanguageNumber = 0;
    Write_Language();
    return;
  }
  read_small_file(language_number_file(), {&LanguageNumber, 1});
}

void Write_Language() {
  write_small_file(language_number_file(), {&LanguageNumber, 1});
}

void selezione_lingua(std::uint8_t number) {
  LanguageNumber = number;
  take_names(LanguageNumber);
  while (!read_language_file(LanguageFile)) {
    LanguageNumber = 0;
    take_names(LanguageNumber);
  }
  // The start screen shows the picture; that it can be read is settled here.
  std::string picture;
  const Fault fault = read_file(Global::PathSetup + FlagPicture, picture);
  if (fault.stands()) log_fault("selezione_lingua ", fault);
}

bool read_language_file(std::string_view file_name) {
  const std::string path = Global::PathSetup + std::string{file_name};
  std::string bytes;
  if (!file_exists(path) || read_file(path, bytes).stands()) {
    tell(BoxKind::information, MsgFileLangKo);
    return false;
  }
  parse_language(bytes);
  return true;
}

void parse_language(std::string_view bytes) {
  for (std::string_view line : lines_of(bytes)) {
    line = trim_end(line);
    const std::optional<std::size_t> separator = separator_of(line);
    if (!separator) continue;
    const std::string_view name = line.substr(0, *separator);
    const std::optional<Key> key = key_named(name);
    if (!key) {
      memo_log("Voce " + std::string{name} + " Non presente");
    } else if (*key != Key::FRM_FW_UPGRADE_TITLE) {
      // The one key left out is known and has no text to be shown anywhere.
      std::string text{line.substr(*separator + 1)};
      std::replace(text.begin(), text.end(), section_sign, '\r');
      set_message(*key, std::move(text));
    }
  }
}

void reset_language() {
  LanguageNumber = 0;
  LanguageFile.clear();
  HelpFile.clear();
  FlagPicture.clear();
}

}  // namespace ecr

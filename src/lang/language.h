#pragma once
// The program's languages: which there are, choosing one, and reading its texts into the catalogue.
//
// A language file is text in the code page, one entry a line, KEY=text. Blanks at the line's end go first. A line
// counts when it has a "=" at its second character or later and begins with neither ";" nor "["; anything else is a
// comment. The key is all in front of the first "=", the text all behind it, neither trimmed; in the text each section
// sign becomes a carriage return. The last entry of a key wins.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace ecr {

struct Language {
  std::string_view name;
  std::string_view file;         ///< in Setup\ .
  std::string_view help_folder;  ///< below the application folder, with its last backslash
  std::string_view help_file;
  std::string_view flag;  ///< picture in Setup\ .
};

/// By language number, 0 to 7: English, Spanish, French, German, Dutch, Portuguese, Danish, Norwegian. Names are UTF-8.
extern const std::array<Language, 8> languages;

/// Number of the chosen language, the byte of Setup\Language.ini.
extern std::uint8_t LanguageNumber;

/// A missing file makes the number 0 and is created with it; a read that fails leaves the number as it was.
void Read_Language();
/// A failure is silent.
void Write_Language();

// The files of the chosen language; a number outside the table leaves them as they were.
extern std::string LanguageFile;  ///< name in PathSetup, empty before any language was chosen
extern std::string HelpFile;      ///< name in Global::PathHelp
extern std::string FlagPicture;   ///< name in PathSetup

/// Takes the number, its files and its texts. A file that cannot be read is told in a box and English follows, again
/// and again if that one cannot be read either.
void selezione_lingua(std::uint8_t number);

/// Reads a language file of PathSetup into the catalogue; a box tells of a missing one. Answers whether it was read.
bool read_language_file(std::string_view file_name);

/// The entries of a language file's bytes into the catalogue. Unknown keys go to the log. What the bytes do not name
/// keeps its text.
void parse_language(std::string_view bytes);

void reset_language();

}  // namespace ecr

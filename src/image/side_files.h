#pragma once
// The small files that keep one fact each between two runs. All are bytes without a head; a failed read leaves the
// fact as it stood, a failed write is silent.

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "image/fields.h"
#include "image/prg_mode.h"

namespace ecr {

/// Number of the program's language, the byte of Setup\Language.ini; see lang/language.h.
extern std::uint8_t LanguageNumber;

/// Setup\ExportOption.ini: one byte for each report number, 0 or 1, whether it is exported.
extern std::array<std::uint8_t, 24> ExportOption;

/// The saved default keyboard of a model, Dati\KEY_DEFAULTZ300.BIN or Dati\KEY_DEFAULTZ320.BIN: key codes in the order
/// of PrgModeImage::KeyLayout.
extern std::array<std::uint8_t, 89> KeyDefault;

struct EjRecord {
  std::array<std::uint8_t, 2> Head;
  Text<24> Line;
};
static_assert(sizeof(EjRecord) == 26 && alignof(EjRecord) == 1);

/// The journal that Read_EJ read last.
struct EjFile {
  std::array<std::uint8_t, 26> Head{};
  std::vector<EjRecord> Records;
};
extern EjFile Ej;

/// A missing file makes the number 0 and is created with it.
void Read_Language();
void Write_Language();

void Read_ExportOption();
void Write_ExportOption();

/// Writes `port` to port.ini in the application folder; the exchange tool reads it there.
void Write_rs232_fw(std::uint8_t port);

/// The file of the chosen model into KeyDefault.
void Read_Key_Default();
/// The working image's KeyLayout into KeyDefault and from there to the file of the chosen model.
void Write_Key_Default();

/// Reads a journal file: a head of 26 bytes, then records of 26; the number of records is the rounded quotient, so a
/// last piece of more than half a record counts.
void Read_EJ(std::string_view fileName);

void reset_side_files();

}  // namespace ecr

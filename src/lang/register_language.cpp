#include "lang/register_language.h"

#include <algorithm>
#include <limits>
#include <string>

#include "core/catalogue.h"
#include "core/files.h"
#include "core/global.h"
#include "core/register_text.h"
#include "core/run_log.h"
#include "core/shell.h"
#include "core/text.h"
#include "image/prg_mode.h"

namespace ecr {
namespace {

constexpr bool line_goes_to(std::size_t line, std::string_view section, std::size_t number) {
  const TextPlace& place = register_language_places.at(line);
  return place.field().name == section && place.number == number && place.field().kind == FieldKind::text;
}

// The first and the last line of each section of more than one, and the lines of those of one.
static_assert(line_goes_to(0, "DeptGroupName", 1) && line_goes_to(9, "DeptGroupName", 10));
static_assert(line_goes_to(10, "ReceiptHeader", 1) && line_goes_to(19, "ReceiptHeader", 10));
static_assert(line_goes_to(20, "ReceiptFooter", 1) && line_goes_to(29, "ReceiptFooter", 10));
static_assert(line_goes_to(30, "OffModeScrollMessage", 1) && line_goes_to(31, "PrgXZ_ModeScrollMessage", 1));
static_assert(line_goes_to(32, "RegModeSalesScrollMessage", 1));
static_assert(line_goes_to(33, "IdleAMScrollMessage", 1) && line_goes_to(34, "IdlePMScrollMessage", 1));
static_assert(line_goes_to(35, "Abr", 1) && line_goes_to(41, "Abr", 7));
static_assert(line_goes_to(42, "ExtraInvoice", 1) && line_goes_to(46, "ExtraInvoice", 5));
static_assert(line_goes_to(47, "Caption", 1) && line_goes_to(124, "Caption", 78));
static_assert(line_goes_to(125, "Other", 1) && line_goes_to(147, "Other", 23));

/// The path of the language's file; empty if there is no such language.
std::string file_of(std::uint8_t number) {
  if (number >= register_language_files.size()) return {};
  return Global::PathSetup + std::string{register_language_files[number]};
}

void put_text(const TextPlace& place, std::string_view line) {
  const std::string text = padded(sostituzione_to_ecr(line), place.field().width);
  // Any object may be written to as the bytes it is made of.
  std::copy(text.begin(), text.end(), reinterpret_cast<char*>(&PrgMode) + place.field().offset_of(place.number));
}

void put_texts(std::string_view bytes) {
  std::size_t number = 0;
  for (const std::string_view line : lines_of(bytes)) {
    // Lines are counted in a byte.
    if (number > std::numeric_limits<std::uint8_t>::max()) throw FaultError{FaultCode::overflow};
    if (number < register_language_places.size()) put_text(register_language_places[number], line);
    ++number;
  }
}

}  // namespace

bool Setta_Lingua(std::uint8_t number) {
  const std::string path = file_of(number);
  if (!file_exists(path)) {
    tell(BoxKind::warning,
         message_or(Key::MSG_FILE_LANG_NOT_PRESET_STR, "Warning! The Language file definition is not present"));
    memo_log("The file language " + std::to_string(number) + " is not present");
    return false;
  }
  return guarded("Setta ligua: ", [&path] {
    std::string bytes;
    const Fault fault = read_file(path, bytes);
    if (fault.stands()) throw FaultError{fault};
    put_texts(bytes);
  });
}

}  // namespace ecr

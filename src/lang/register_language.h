#pragma once
// The register's own language: the texts that it prints and displays.
//
// A register language file is text in the code page, one text a line, in the order of the image's text sections. It
// need not be complete: what it does not reach stays as it is.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "image/layout.h"

namespace ecr {

/// The files in Setup\, by the register's language number, 0 to 7. Their spelling is what it is.
inline constexpr std::array<std::string_view, 8> register_language_files = {
    "English.txt", "Spanish.txt",    "French.txt", "German.txt",
    "dutch.txt",   "Purtoguese.txt", "danish.txt", "Norwegian.txt"};

/// The sections that a file fills, in the order of its lines.
inline constexpr std::array<std::string_view, 12> register_language_sections = {"DeptGroupName",
                                                                                "ReceiptHeader",
                                                                                "ReceiptFooter",
                                                                                "OffModeScrollMessage",
                                                                                "PrgXZ_ModeScrollMessage",
                                                                                "RegModeSalesScrollMessage",
                                                                                "IdleAMScrollMessage",
                                                                                "IdlePMScrollMessage",
                                                                                "Abr",
                                                                                "ExtraInvoice",
                                                                                "Caption",
                                                                                "Other"};

inline constexpr std::size_t register_language_lines = 148;

/// Where the text of one line goes.
struct TextPlace {
  std::size_t row = 0;     ///< in image_fields
  std::size_t number = 0;  ///< which one of the field's row

  [[nodiscard]] constexpr const FieldPlace& field() const { return image_fields[row]; }
};

namespace register_language_detail {

constexpr std::array<TextPlace, register_language_lines> places() {
  std::array<TextPlace, register_language_lines> result{};
  std::size_t line = 0;
  for (const std::string_view section : register_language_sections) {
    for (std::size_t row = 0; row < image_fields.size(); ++row) {
      const FieldPlace& field = image_fields[row];
      if (field.name != section) continue;
      for (std::size_t number = field.first; field.has(number); ++number) result.at(line++) = {row, number};
    }
  }
  return result;
}

}  // namespace register_language_detail

/// By line, counted from 0.
inline constexpr std::array<TextPlace, register_language_lines> register_language_places =
    register_language_detail::places();

/// Fills the text sections of the working image from the file of the language. A missing file is told in a box and
/// logged; a number above 7 has none. Lines behind the last place are passed over; behind line 256 the routine ends
/// with a fault, all texts being filled by then. Answers whether it came to the end of the file. A text with half a
/// letter ends the program: see sostituzione_to_ecr.
bool Setta_Lingua(std::uint8_t number);

}  // namespace ecr

#pragma once
// The item table as text that a spreadsheet opens: a heading, then one line for each item. Fields are separated by ";",
// lines end with CR LF; texts are bytes of the code page. The layout stands in docs/formats/item-csv.md.

#include <cstddef>
#include <string>
#include <string_view>

namespace ecr {

/// The longest text that an import reads, in bytes; far above 3001 lines of any sense.
inline constexpr std::size_t plu_csv_limit = std::size_t{16} * 1024 * 1024;

/// The counted rows of the working table as text. A row that memory does not have is left out and logged behind
/// "FrmPrgPlu Errore: ".
[[nodiscard]] std::string plu_csv_text();

/// What an import has read.
struct PluImport {
  int lines = 0;          ///< complete rows, from the first one on
  bool finished = false;  ///< false: a fault ended it, which is logged behind "Frm_PrgPlu_Import "
};

/// Takes the lines of a text into the rows of the working table, from the first row on. A field is taken where the
/// separator behind it is there; the others, and all that the text does not hold, stay as they were. At the end
/// PluCount becomes the number of lines without the heading, -1 for an empty text; after a fault it stays. Faults are a
/// line behind row 3001, and a department or a tax above 255. Nothing is sorted and no file is written.
PluImport import_plu_csv(std::string_view text);

}  // namespace ecr

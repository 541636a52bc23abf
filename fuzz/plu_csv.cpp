// A text file of any bytes is imported into the item table, and what is there then is exported and imported again.

#include "image/plu_csv.h"

#include <algorithm>
#include <cstring>

#include "core/global.h"
#include "core/text.h"
#include "image/prg_plu.h"
#include "support/installation.h"

namespace ecr::fuzz::plu_csv_target {
namespace {

std::string_view bytes_of(const PluRecord& record) {
  return {reinterpret_cast<const char*>(&record), sizeof record};
}

/// Rows that can be told apart, so that whatever stays is seen to.
void mark_rows() {
  PrgPlu.PluCount = 1234;
  for (std::size_t row = 0; row < plu_rows; ++row) {
    std::memset(static_cast<void*>(&PrgPlu.Row[row]), static_cast<int>(row % 251), sizeof(PluRecord));
  }
}

void import_once(const std::string& text) {
  mark_rows();
  const PluImport import = import_plu_csv(text);
  require(import.lines >= 0 && import.lines <= static_cast<int>(plu_rows), "no more rows are read than there are");
  const auto lines = static_cast<int>(lines_of(text).size());
  if (import.finished) {
    require(import.lines == std::max(lines - 1, 0), "each line behind the heading is a row");
    require(PrgPlu.PluCount == lines - 1, "the count is that of the lines without the heading");
  } else {
    require(PrgPlu.PluCount == 1234, "a fault leaves the count");
  }
  for (std::size_t row = 0; row < plu_rows; ++row) {
    const auto stood = static_cast<std::uint8_t>(row % 251);
    const PluRecord& record = PrgPlu.Row[row];
    require(record.PluListLink == stood && record.SendFlag == stood, "what the text does not say stays");
    require((record.Flags1 & 0x3C) == (stood & 0x3C), "bits that the text does not say stay");
    // The row in which a fault arose may be half taken.
    const bool untouched = row > static_cast<std::size_t>(import.lines) ||
                           (import.finished && row == static_cast<std::size_t>(import.lines));
    if (untouched) {
      require(bytes_of(record) == std::string(sizeof record, static_cast<char>(stood)), "rows above the lines stay");
    }
  }
}

/// What an export writes of rows that the editor could have made is read as the same.
void export_and_import_again() {
  PrgPlu.PluCount = static_cast<std::int16_t>(std::clamp<int>(PrgPlu.PluCount, 0, 40));
  const std::string text = plu_csv_text();
  require(text.substr(0, 11) == ";;;;;;;;;\r\n", "the heading of an empty catalogue");
  import_plu_csv(text);
  static_cast<void>(plu_csv_text());
}

}  // namespace

FUZZ_TARGET(plu_csv) {
  static Installation installation;
  installation.reset();
  Global::choose_model(Global::model_z320);
  import_once(file_of(data, size));
  export_and_import_again();
  return 0;
}

}  // namespace ecr::fuzz::plu_csv_target

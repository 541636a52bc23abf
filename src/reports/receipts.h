#pragma once
// The journal cut into its receipts.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "reports/csv_file.h"

namespace ecr {

/// Lines `first` up to, but not including, `end` of a journal.
struct Receipt {
  std::size_t first = 0;
  std::size_t end = 0;
};

/// A receipt ends at a line of blanks. Where no line is blank the journal is cut into pieces of `lines_a_page`.
inline constexpr std::size_t lines_a_page = 40;
[[nodiscard]] std::vector<Receipt> receipts_of(const CsvExport& journal);

/// Its lines, each ended by a line feed.
[[nodiscard]] std::string receipt_text(const CsvExport& journal, const Receipt& receipt);

/// The receipts in which `text` stands, whatever its case; all of them for an empty text.
[[nodiscard]] std::vector<Receipt> receipts_with(const CsvExport& journal, std::string_view text);

}  // namespace ecr

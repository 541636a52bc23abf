#include "reports/receipts.h"

#include <algorithm>

#include "core/text.h"

namespace ecr {
namespace {

std::string_view line_of(const CsvExport& journal, std::size_t line) {
  return journal.rows[line].empty() ? std::string_view{} : std::string_view{journal.rows[line][0]};
}

}  // namespace

std::vector<Receipt> receipts_of(const CsvExport& journal) {
  std::vector<Receipt> receipts;
  const std::size_t lines = journal.rows.size();
  bool any_blank = false;
  std::size_t first = 0;
  for (std::size_t line = 0; line <= lines; ++line) {
    const bool blank = line < lines && trim_end(line_of(journal, line)).empty();
    any_blank = any_blank || blank;
    if (!blank && line < lines) continue;
    if (line > first) receipts.push_back({first, line});
    first = line + 1;
  }
  if (any_blank) return receipts;
  receipts.clear();
  for (first = 0; first < lines; first += lines_a_page)
    receipts.push_back({first, std::min(first + lines_a_page, lines)});
  return receipts;
}

std::string receipt_text(const CsvExport& journal, const Receipt& receipt) {
  std::string text;
  for (std::size_t line = receipt.first; line < receipt.end; ++line) {
    text += line_of(journal, line);
    text += '\n';
  }
  return text;
}

std::vector<Receipt> receipts_with(const CsvExport& journal, std::string_view text) {
  std::vector<Receipt> receipts = receipts_of(journal);
  const std::string wanted = lower_ascii(text);
  std::erase_if(receipts, [&](const Receipt& receipt) {
    return lower_ascii(receipt_text(journal, receipt)).find(wanted) == std::string::npos;
  });
  return receipts;
}

}  // namespace ecr

#include "captions/double_width.h"

#include <algorithm>

#include "core/fault.h"

namespace ecr {
namespace {

/// Walks the text and hands out each character that prints; ends where `take` answers false.
template <typename Take>
void walk(std::u16string_view text, Take take) {
  bool marked = false;
  for (const char16_t character : text) {
    if (character == double_mark) {
      marked = true;
      continue;
    }
    if (!take(character, marked)) return;
    marked = false;
  }
}

}  // namespace

void print_cells(std::u16string_view text, std::span<PrintCell> row) {
  std::fill(row.begin(), row.end(), PrintCell{});
  std::size_t cell = 0;
  walk(text, [&](char16_t character, bool marked) {
    if (cell + (marked ? 2 : 1) > row.size()) return false;
    if (marked) {
      row[cell++] = {character, PrintCell::Part::double_left};
      row[cell++] = {character, PrintCell::Part::double_right};
    } else {
      row[cell++] = {character, PrintCell::Part::single};
    }
    return true;
  });
}

std::size_t cell_count(std::u16string_view text) {
  std::size_t count = 0;
  walk(text, [&count](char16_t, bool marked) {
    count += marked ? 2 : 1;
    return true;
  });
  return count;
}

std::u16string at_both_ends(std::u16string_view left, std::u16string_view right) {
  const std::size_t taken = cell_count(left) + cell_count(right);
  const std::size_t between = taken < paper_cells ? paper_cells - taken : 1;
  std::u16string line{left};
  line.append(between, u' ');
  line += right;
  return line;
}

Places with_mark(std::u16string_view text, Places deleted) {
  if (deleted.begin > deleted.end || deleted.end > text.size()) throw FaultError{FaultCode::out_of_range};
  const bool has_mark = deleted.begin < deleted.end && deleted.begin > 0 && text[deleted.begin - 1] == double_mark;
  return has_mark ? Places{deleted.begin - 1, deleted.end} : deleted;
}

}  // namespace ecr

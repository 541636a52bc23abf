#pragma once
// How a line of text prints: cell by cell, with characters of double width.
//
// A mark stands in front of a character that prints at double width. It takes one place of the text and no cell; the
// marked character takes two cells, any other one takes one. Texts are Unicode here (UTF-16), and the mark is the same
// character in Unicode, in the code page and in a field on the screen; the register stores it as 255.

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace ecr {

inline constexpr char16_t double_mark = 183;

/// Cells of a line on the paper.
inline constexpr std::size_t paper_cells = 24;

struct PrintCell {
  enum class Part { single, double_left, double_right };

  char16_t character = u' ';  ///< of both halves where it is double
  Part part = Part::single;

  bool operator==(const PrintCell&) const = default;
};

/// Prints the text into a row: cells behind its end are blank, what would go beyond the row's end is cut off, a double
/// character of which half would remain included. Marks behind each other count as one, and one at the end as none.
void print_cells(std::u16string_view text, std::span<PrintCell> row);

/// How many cells the whole text takes.
[[nodiscard]] std::size_t cell_count(std::u16string_view text);

/// `left` and `right` at the two ends of a line of paper, with blanks between them; at least one.
[[nodiscard]] std::u16string at_both_ends(std::u16string_view left, std::u16string_view right);

/// Places of a text, from `begin` up to but not including `end`.
struct Places {
  std::size_t begin;
  std::size_t end;

  bool operator==(const Places&) const = default;
};

/// What goes with a deletion of these places: the mark in front of the first one too, if there is one.
/// FaultError(out_of_range) where the text has no such places.
[[nodiscard]] Places with_mark(std::u16string_view text, Places deleted);

}  // namespace ecr

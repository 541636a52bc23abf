#pragma once
// The black-and-white picture that the conversion reads from a bitmap file, and the faults that it finds there.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace ecr {

/// Dots on paper, at most 2048 in a line. `rows` holds `lines` rows from the top, each of row_bytes() bytes; the
/// leftmost dot is the highest bit of a row's first byte, and a set bit is a printed dot. Bits behind the last dot are
/// clear.
struct DotPicture {
  std::size_t dots = 0;
  std::size_t lines = 0;
  std::string rows;

  [[nodiscard]] std::size_t row_bytes() const noexcept { return (dots + 7) / 8; }
  [[nodiscard]] bool is_printed(std::size_t dot, std::size_t line) const;

  bool operator==(const DotPicture&) const = default;
};

inline constexpr std::size_t most_dots_in_a_line = 2048;

/// How many bytes of a bitmap file decide what becomes of it: whoever reads more learns nothing new.
inline constexpr std::size_t longest_bitmap = std::size_t{1024} * 1024;

/// What read_bitmap returns where it read one; the conversion never ends with it.
inline constexpr std::int32_t bitmap_was_read = 0;

/// Reads a bitmap file of any bytes. Returns bitmap_was_read, or the code of the first fault found: no bitmap, of an
/// unknown kind, not black and white, too many dots in a line, more lines than the register has room for, cut short.
/// `picture` is left empty on a fault.
[[nodiscard]] std::int32_t read_bitmap(std::string_view bytes, DotPicture& picture);

}  // namespace ecr

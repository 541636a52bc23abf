#include "emulator/bitmap.h"

#include <algorithm>
#include <array>
#include <optional>

#include "emulator/graphic.h"
#include "link/tilbridge2.h"

namespace ecr {
namespace {

// A bitmap file: a head of 14 bytes, a description whose first four bytes tell its own length, a colour for each value
// that a dot can have, and rows of dots, filled up to a multiple of four bytes. Integers have their low byte first.
constexpr std::size_t bitmap_head = 14;
constexpr std::size_t shortest_description = 40;
/// Of the descriptions with these lengths the first forty bytes are the same.
constexpr std::array<std::size_t, 5> known_descriptions = {40, 52, 56, 108, 124};
constexpr std::size_t colours = 2;
constexpr std::size_t colour_size = 4;

namespace Place {
constexpr std::size_t dots = 10;
constexpr std::size_t description = 14;
constexpr std::size_t width = 18;
constexpr std::size_t height = 22;
constexpr std::size_t planes = 26;
constexpr std::size_t bits_of_a_dot = 28;
constexpr std::size_t packing = 30;
constexpr std::size_t colours_used = 46;
}  // namespace Place

std::uint32_t number_at(std::string_view bytes, std::size_t place, std::size_t width) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < width; ++i) {
    number |= std::uint32_t{static_cast<unsigned char>(bytes[place + i])} << (8 * i);
  }
  return number;
}

/// Which of the two values of a dot is the black one; nothing where the colours are others than black and white.
std::optional<bool> value_of_black(std::string_view palette) {
  constexpr std::string_view black{"\0\0\0", 3};
  constexpr std::string_view white{"\xFF\xFF\xFF", 3};
  // The fourth byte of a colour means nothing.
  const std::string_view first = palette.substr(0, 3);
  const std::string_view second = palette.substr(colour_size, 3);
  if (first == black && second == white) return false;
  if (first == white && second == black) return true;
  return std::nullopt;
}

/// A row with a set bit for each printed dot and none behind the last.
void append_row(std::string_view row, bool black, DotPicture& picture) {
  for (const char byte : row.substr(0, picture.row_bytes())) {
    picture.rows += black ? byte : static_cast<char>(~byte);
  }
  if (const std::size_t last = picture.dots % 8; last != 0) {
    picture.rows.back() = static_cast<char>(static_cast<unsigned char>(picture.rows.back()) & (0xFF00U >> last));
  }
}

}  // namespace

bool DotPicture::is_printed(std::size_t dot, std::size_t line) const {
  const auto byte = static_cast<unsigned char>(rows.at(line * row_bytes() + dot / 8));
  return (byte & (0x80U >> (dot % 8))) != 0;
}

std::int32_t read_bitmap(std::string_view bytes, DotPicture& picture) {
  picture = {};
  if (!bytes.starts_with("BM") || bytes.size() < bitmap_head + shortest_description) return TILBRIDGE_LOGO_NO_BITMAP;
  const std::size_t description = number_at(bytes, Place::description, 4);
  if (std::find(known_descriptions.begin(), known_descriptions.end(), description) == known_descriptions.end()) {
    return TILBRIDGE_LOGO_UNKNOWN_TYPE;
  }
  const auto width = static_cast<std::int32_t>(number_at(bytes, Place::width, 4));
  const auto height = static_cast<std::int32_t>(number_at(bytes, Place::height, 4));
  if (width <= 0 || height == 0 || number_at(bytes, Place::planes, 2) != 1) return TILBRIDGE_LOGO_NO_BITMAP;
  if (number_at(bytes, Place::bits_of_a_dot, 2) != 1) return TILBRIDGE_LOGO_NOT_BLACK_AND_WHITE;
  if (number_at(bytes, Place::packing, 4) != 0) return TILBRIDGE_LOGO_UNKNOWN_TYPE;
  if (static_cast<std::size_t>(width) > most_dots_in_a_line) return TILBRIDGE_LOGO_TOO_MANY_DOTS;

  const std::size_t palette = bitmap_head + description;
  const std::uint32_t colours_used = number_at(bytes, Place::colours_used, 4);
  const std::size_t dots_begin = number_at(bytes, Place::dots, 4);
  if (colours_used != 0 && colours_used != colours) return TILBRIDGE_LOGO_NO_BITMAP;
  if (dots_begin < palette + colours * colour_size || dots_begin > bytes.size()) return TILBRIDGE_LOGO_NO_BITMAP;
  const std::optional<bool> black = value_of_black(bytes.substr(palette, colours * colour_size));
  if (!black) return TILBRIDGE_LOGO_NOT_BLACK_AND_WHITE;

  DotPicture read;
  read.dots = static_cast<std::size_t>(width);
  // A negative height means that the first row is the upper one; the usual order is from the lower one upwards.
  const bool from_the_top = height < 0;
  read.lines = static_cast<std::size_t>(from_the_top ? -std::int64_t{height} : std::int64_t{height});
  if (!fits_graphic(read)) return TILBRIDGE_LOGO_FILE_NOT_MADE;
  const std::size_t stride = (read.dots + 31) / 32 * 4;
  if (bytes.size() - dots_begin < read.lines * stride) return TILBRIDGE_LOGO_NO_BITMAP;
  read.rows.reserve(read.lines * read.row_bytes());
  for (std::size_t line = 0; line < read.lines; ++line) {
    const std::size_t stored = from_the_top ? line : read.lines - 1 - line;
    append_row(bytes.substr(dots_begin + stored * stride, stride), *black, read);
  }
  picture = std::move(read);
  return bitmap_was_read;
}

}  // namespace ecr

#include "emulator/graphic.h"

#include <algorithm>

#include "emulator/memory.h"
#include "link/tilbridge2.h"

namespace ecr {
namespace {

constexpr std::size_t graphic_head = 4;

std::string two_bytes(std::size_t number) {
  return {static_cast<char>(number & 0xFF), static_cast<char>(number >> 8)};
}

std::size_t number_at(std::string_view bytes, std::size_t place) {
  return static_cast<unsigned char>(bytes[place]) + 256U * static_cast<unsigned char>(bytes[place + 1]);
}

std::size_t size_of_graphic(const DotPicture& picture) {
  return graphic_head + picture.row_bytes() * picture.lines;
}

}  // namespace

bool fits_graphic(const DotPicture& picture) {
  const std::size_t room = RegisterMemory::longest(TILBRIDGE_FILE_LOGO);
  // The number of lines may be any before this is known.
  return picture.dots > 0 && picture.dots <= most_dots_in_a_line && picture.lines > 0 && picture.lines <= room &&
         size_of_graphic(picture) <= room;
}

std::string graphic_of(const DotPicture& picture) {
  return two_bytes(picture.dots) + two_bytes(picture.lines) + picture.rows;
}

std::optional<DotPicture> picture_in_graphic(std::string_view bytes) {
  if (bytes.size() < graphic_head) return std::nullopt;
  DotPicture picture{number_at(bytes, 0), number_at(bytes, 2), {}};
  if (!fits_graphic(picture) || bytes.size() != size_of_graphic(picture)) return std::nullopt;
  picture.rows = bytes.substr(graphic_head);
  return picture;
}

std::int32_t code_of_fullness(const DotPicture& picture) {
  std::size_t all = 0;
  std::size_t fullest = 0;
  for (std::size_t line = 0; line < picture.lines; ++line) {
    std::size_t printed = 0;
    for (std::size_t dot = 0; dot < picture.dots; ++dot) {
      if (picture.is_printed(dot, line)) ++printed;
    }
    all += printed;
    fullest = std::max(fullest, printed);
  }
  const std::size_t of_line = 100 * fullest / picture.dots;
  const std::size_t of_all = 100 * all / (picture.dots * picture.lines);
  return TILBRIDGE_LOGO_CONVERTED_FIRST + static_cast<std::int32_t>(of_line * 256 + of_all);
}

}  // namespace ecr

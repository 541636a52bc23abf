#pragma once
// Bitmap files made in code.

#include <cstddef>
#include <cstdint>
#include <string>

namespace ecr::test {

/// A black-and-white bitmap as drawing programs write it; each part of it may be made another.
struct BitmapFile {
  std::string mark = "BM";
  std::uint32_t description = 40;
  std::int32_t width = 384;
  std::int32_t height = 162;
  std::uint16_t planes = 1;
  std::uint16_t bits = 1;
  std::uint32_t packing = 0;
  std::uint32_t colours_used = 2;
  std::string palette{"\xFF\xFF\xFF\0\0\0\0\0", 8};
  /// Bytes between the palette and the dots.
  std::size_t between = 0;
  /// The rows in the order of the file, filled up to four bytes; white ones where this is empty.
  std::string rows;

  [[nodiscard]] std::size_t stride() const { return (static_cast<std::size_t>(width) * bits + 31) / 32 * 4; }

  [[nodiscard]] std::string bytes() const {
    const auto number = [](std::size_t value, std::size_t size) {
      std::string text;
      for (std::size_t i = 0; i < size; ++i) text += static_cast<char>(value >> (8 * i) & 0xFF);
      return text;
    };
    const std::size_t lines = static_cast<std::size_t>(height < 0 ? -std::int64_t{height} : std::int64_t{height});
    const std::string dots = rows.empty() ? std::string(lines * stride(), '\0') : rows;
    const std::size_t begin = 14 + description + palette.size() + between;
    std::string file = mark + number(begin + dots.size(), 4) + number(0, 4) + number(begin, 4);
    file += number(description, 4) + number(static_cast<std::uint32_t>(width), 4);
    file += number(static_cast<std::uint32_t>(height), 4) + number(planes, 2) + number(bits, 2) + number(packing, 4);
    file += number(dots.size(), 4) + number(2835, 4) + number(2835, 4) + number(colours_used, 4) + number(0, 4);
    if (description > 40) file.append(description - 40, '\0');
    return file + palette + std::string(between, '\0') + dots;
  }
};

}  // namespace ecr::test

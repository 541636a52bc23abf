#include "emulator/receipt.h"

#include <algorithm>
#include <array>
#include <optional>

#include "core/files.h"
#include "emulator/graphic.h"
#include "emulator/memory.h"
#include "emulator/tool_codes.h"

namespace ecr {
namespace {

constexpr std::size_t paper_dots = 384;
constexpr std::size_t most_lines = 2048;  // of a logo; what is longer is cut there
constexpr std::size_t side = 24;          // of paper beside what is printed
constexpr std::size_t around = 16;        // of the ground around the paper
constexpr std::size_t gap = 28;           // above and below the logo
constexpr std::size_t line_step = 24;
constexpr std::size_t bar = 9;
constexpr std::size_t tooth = 12;  // of the torn end, twice as wide as it is high

/// How long the bars are, in percent of the line; the first three are in its middle, as a shop's address.
constexpr std::array<std::size_t, 6> bars = {46, 64, 38, 100, 82, 91};
constexpr std::size_t bars_in_the_middle = 3;

enum Colour : char { ground, paper, ink, faint };
constexpr std::array<std::array<unsigned char, 3>, 4> red_green_blue = {
    {{0xD9, 0xDE, 0xE3}, {0xFF, 0xFF, 0xFC}, {0x26, 0x2B, 0x30}, {0xD5, 0xD8, 0xDA}}};

/// A picture of one byte a dot, from the top.
struct Canvas {
  std::size_t width;
  std::size_t height;
  std::string dots;

  Canvas(std::size_t w, std::size_t h) : width{w}, height{h}, dots(w * h, ground) {}

  void box(std::size_t x, std::size_t y, std::size_t w, std::size_t h, Colour colour) {
    for (std::size_t line = y; line < y + h; ++line) {
      std::fill_n(dots.begin() + static_cast<std::ptrdiff_t>(line * width + x), w, colour);
    }
  }
};

std::string number(std::size_t value, std::size_t bytes) {
  std::string text;
  for (std::size_t i = 0; i < bytes; ++i) text += static_cast<char>(value >> (8 * i) & 0xFF);
  return text;
}

std::string bitmap_of(const Canvas& canvas) {
  const std::size_t stride = (canvas.width + 3) / 4 * 4;
  const std::size_t dots_begin = 14 + 40 + 4 * red_green_blue.size();
  std::string file = "BM" + number(dots_begin + stride * canvas.height, 4) + number(0, 4) + number(dots_begin, 4);
  file += number(40, 4) + number(canvas.width, 4) + number(canvas.height, 4) + number(1, 2) + number(8, 2);
  file += number(0, 4) + number(stride * canvas.height, 4) + number(0, 8) + number(red_green_blue.size(), 4);
  file += number(0, 4);
  for (const auto& [red, green, blue] : red_green_blue) {
    file += {static_cast<char>(blue), static_cast<char>(green), static_cast<char>(red), '\0'};
  }
  for (std::size_t line = canvas.height; line-- > 0;) {
    file += canvas.dots.substr(line * canvas.width, canvas.width);
    file.append(stride - canvas.width, '\0');
  }
  return file;
}

/// The paper's lower edge, torn off: a row of teeth below `y`.
void tear(Canvas& canvas, std::size_t y, std::size_t from, std::size_t width) {
  for (std::size_t line = 0; line < tooth; ++line) {
    for (std::size_t x = 0; x < width; ++x) {
      const std::size_t in_tooth = x % (2 * tooth);
      const std::size_t depth = std::min(in_tooth, 2 * tooth - in_tooth);
      if (line < depth) canvas.box(from + x, y + line, 1, 1, paper);
    }
  }
}

}  // namespace

std::string receipt_picture(const DotPicture& logo) {
  const std::size_t printed = std::max(paper_dots, logo.dots);
  const std::size_t lines = std::min(logo.lines, most_lines);
  const std::size_t paper_width = printed + 2 * side;
  const std::size_t paper_height = gap + lines + gap + bars.size() * line_step;
  Canvas canvas{paper_width + 2 * around, around + paper_height + tooth + around};
  canvas.box(around, around, paper_width, paper_height, paper);
  tear(canvas, around + paper_height, around, paper_width);

  const std::size_t left = around + side;
  const std::size_t logo_left = left + (printed - logo.dots) / 2;
  for (std::size_t line = 0; line < lines; ++line) {
    for (std::size_t dot = 0; dot < logo.dots; ++dot) {
      if (logo.is_printed(dot, line)) canvas.box(logo_left + dot, around + gap + line, 1, 1, ink);
    }
  }
  for (std::size_t i = 0; i < bars.size(); ++i) {
    const std::size_t width = printed * bars.at(i) / 100;
    const std::size_t x = i < bars_in_the_middle ? left + (printed - width) / 2 : left;
    canvas.box(x, around + gap + lines + gap + i * line_step, width, bar, faint);
  }
  return bitmap_of(canvas);
}

Fault draw_receipt(const std::string& folder) {
  const std::string file = folder + std::string{receipt_file};
  std::string held;
  const Fault fault = RegisterMemory{folder}.fetch(ToolFile::logo, held);
  const std::optional<DotPicture> logo = fault.stands() ? std::nullopt : picture_in_graphic(held);
  if (logo) return save_file(file, receipt_picture(*logo));
  return file_exists(file) ? delete_file(file) : Fault{};
}

}  // namespace ecr

#include "emulator/receipt.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>

#include "core/files.h"
#include "core/register_text.h"
#include "core/text.h"
#include "emulator/graphic.h"
#include "emulator/memory.h"
#include "emulator/receipt_font.h"
#include "image/prg_mode.h"
#include "link/tilbridge2.h"

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

constexpr std::size_t characters = 24;  // of a line
constexpr std::size_t most_texts = 60;
constexpr std::size_t pen = 2;  // how thick a stroke is

// A record of the journal: its line, a mark, a zero.
constexpr std::size_t record_size = characters + 2;
constexpr char receipt_mark = 2;

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

struct Point {
  std::size_t x;
  std::size_t y;
};

/// A line of the pen; of one point where both ends are the same.
void draw_line(Canvas& canvas, Point from, Point to) {
  const auto distance = [](std::size_t a, std::size_t b) { return a < b ? b - a : a - b; };
  const std::size_t steps = std::max({distance(from.x, to.x), distance(from.y, to.y), std::size_t{1}});
  for (std::size_t i = 0; i <= steps; ++i) {
    const std::size_t x = (from.x * (steps - i) + to.x * i + steps / 2) / steps;
    const std::size_t y = (from.y * (steps - i) + to.y * i + steps / 2) / steps;
    canvas.box(x, y, pen, pen, ink);
  }
}

void draw_character(Canvas& canvas, Point corner, char character) {
  const std::string_view strokes = strokes_of(character);
  // A step of the letters' points is two and a half dots.
  const auto step = [&strokes](std::size_t place) { return static_cast<std::size_t>(strokes[place] - '0') * 5 / 2; };
  Point last = corner;
  bool begins = true;
  for (std::size_t i = 0; i < strokes.size();) {
    if (strokes[i] == ' ') {
      begins = true;
      ++i;
      continue;
    }
    const Point point{corner.x + step(i), corner.y + step(i + 1)};
    draw_line(canvas, begins ? point : last, point);
    last = point;
    begins = false;
    i += 2;
  }
}

void draw_text(Canvas& canvas, Point corner, std::string_view text) {
  constexpr std::size_t width = paper_dots / characters;
  for (const char character : text.substr(0, characters)) {
    draw_character(canvas, {corner.x + 2, corner.y}, character);
    corner.x += width;
  }
}

std::string line_of_register(std::string_view bytes) {
  return std::string{trim_end(sostituzione_from_ecr(bytes))};
}

/// The heading lines of the programming that the register holds; those that are blank are not printed.
std::vector<std::string> heading_lines(const RegisterMemory& memory) {
  std::string bytes;
  std::vector<std::string> lines;
  if (memory.fetch(TILBRIDGE_FILE_IMAGE, bytes).stands() || bytes.size() != prg_mode_size) return lines;
  PrgModeImage image{};
  std::memcpy(&image, bytes.data(), sizeof image);
  for (const auto& field : image.ReceiptHeader) {
    if (std::string line = line_of_register(field.view()); !line.empty()) lines.push_back(std::move(line));
  }
  return lines;
}

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

std::vector<std::string> last_receipt(std::string_view journal) {
  std::vector<std::string> lines;
  for (std::size_t place = 0; place + record_size <= journal.size(); place += record_size) {
    const std::string_view record = journal.substr(place, record_size);
    if (record[characters] == receipt_mark) lines.clear();
    lines.push_back(line_of_register(record.substr(0, characters)));
  }
  while (!lines.empty() && lines.back().empty()) lines.pop_back();
  return lines;
}

std::string receipt_picture(const DotPicture& logo, const std::vector<std::string>& lines) {
  const std::size_t printed = std::max(paper_dots, logo.dots);
  const std::size_t logo_lines = std::min(logo.lines, most_lines);
  const std::size_t texts = std::min(lines.size(), most_texts);
  const std::size_t paper_width = printed + 2 * side;
  const std::size_t paper_height = gap + logo_lines + gap + (texts == 0 ? bars.size() : texts) * line_step + gap / 4;
  Canvas canvas{paper_width + 2 * around, around + paper_height + tooth + around};
  canvas.box(around, around, paper_width, paper_height, paper);
  tear(canvas, around + paper_height, around, paper_width);

  const std::size_t left = around + side;
  const std::size_t logo_left = left + (printed - logo.dots) / 2;
  for (std::size_t line = 0; line < logo_lines; ++line) {
    for (std::size_t dot = 0; dot < logo.dots; ++dot) {
      if (logo.is_printed(dot, line)) canvas.box(logo_left + dot, around + gap + line, 1, 1, ink);
    }
  }
  const std::size_t text_top = around + gap + logo_lines + gap;
  const std::size_t text_left = left + (printed - paper_dots) / 2;
  for (std::size_t i = 0; i < texts; ++i) draw_text(canvas, {text_left, text_top + i * line_step}, lines[i]);
  for (std::size_t i = 0; texts == 0 && i < bars.size(); ++i) {
    const std::size_t width = printed * bars.at(i) / 100;
    const std::size_t x = i < bars_in_the_middle ? left + (printed - width) / 2 : left;
    canvas.box(x, text_top + i * line_step, width, bar, faint);
  }
  return bitmap_of(canvas);
}

Fault draw_receipt(const std::string& folder, std::string_view journal) {
  const std::string file = folder + std::string{receipt_file};
  const RegisterMemory memory{folder};
  std::string held;
  const Fault fault = memory.fetch(TILBRIDGE_FILE_LOGO, held);
  const std::optional<DotPicture> logo = fault.stands() ? std::nullopt : picture_in_graphic(held);
  if (!logo) return file_exists(file) ? delete_file(file) : Fault{};
  std::vector<std::string> lines = heading_lines(memory);
  const std::vector<std::string> receipt = last_receipt(journal);
  if (!lines.empty() && !receipt.empty()) lines.emplace_back();
  lines.insert(lines.end(), receipt.begin(), receipt.end());
  return save_file(file, receipt_picture(*logo, lines));
}

}  // namespace ecr

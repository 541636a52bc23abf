// A custom import file and DescCaption.ini hold any bytes, and so do the texts that an export writes.

#include <algorithm>
#include <cstring>

#include "captions/double_width.h"
#include "captions/scroll_message.h"
#include "captions/text_files.h"
#include "core/code_page.h"
#include "core/global.h"
#include "core/text.h"
#include "fields/caption_meanings.h"
#include "image/prg_mode.h"
#include "support/installation.h"

namespace ecr::fuzz::caption_files_target {
namespace {

constexpr char before = 0x5A;

/// Whether an import may write this byte: names, taxes and prices of departments, headers and footers.
bool may_change(std::size_t place) {
  constexpr std::size_t departments = 329;
  constexpr std::size_t record = 22;
  constexpr std::size_t lines = 3257;
  constexpr std::size_t lines_end = 3737;
  if (place >= departments && place < departments + 99 * record) {
    const std::size_t in_record = (place - departments) % record;
    return in_record < 12 || in_record >= 16;
  }
  return place >= lines && place < lines_end;
}

void import(const Installation& installation, const std::string& file) {
  std::memset(&PrgMode, before, sizeof PrgMode);
  installation.write("import.txt", file);
  bool read = false;
  const bool ended = ends_program([&] { read = Import_Caption(Global::PathApp + "import.txt"); });
  require(ended || read, "a file that is there is read");
  require(!ended || file.find('\xC3') != std::string::npos, "nothing but a lead byte ends the program");
  const std::string_view image = bytes_of_image(PrgMode);
  for (std::size_t place = 0; place < image.size(); ++place) {
    require(image[place] == before || may_change(place), "an import writes to its own fields alone");
  }
  const bool has_tag = file.find("RHE:") != std::string::npos || file.find("RFO:") != std::string::npos ||
                       file.find("VAR:") != std::string::npos;
  const bool untouched = std::all_of(image.begin(), image.end(), [](char c) { return c == before; });
  require(has_tag || untouched, "without a tag nothing is written");
  installation.remove("import.txt");
}

void describe(Installation& installation, const std::string& file) {
  installation.reset();
  installation.write("Setup/DescCaption.ini", file);
  CaptionDescriptions descriptions;
  require(Read_DescCaption(descriptions), "a file that is there is read");
  const std::vector<std::string_view> lines = lines_of(file);
  for (std::size_t i = 0; i < short_captions; ++i) {
    require(descriptions.captions[i] == (i < lines.size() ? lines[i] : std::string_view{}), "line by line");
  }
  const std::size_t behind = lines.size() > short_captions ? lines.size() - short_captions : 0;
  require(descriptions.others.size() == std::min(behind, described_others), "then the other lines");
  for (std::size_t i = 0; i < descriptions.others.size(); ++i) {
    require(descriptions.others[i] == lines[short_captions + i], "line by line, too");
  }
  const bool too_many = lines.size() > short_captions + described_others;
  require(installation.lines_in_log() == (too_many ? 1U : 0U), "one line in the log for all that are too many");
  installation.remove("Setup/DescCaption.ini");
}

void print(const std::string& file) {
  const std::u16string text = unicode_of(std::string_view{file});
  std::vector<PrintCell> row(std::max<std::size_t>(1, file.size() % 40));
  print_cells(text, row);
  std::size_t blank = 0;
  for (std::size_t i = 0; i < row.size(); ++i) {
    require(row[i].character != double_mark, "a mark never prints");
    if (row[i].part == PrintCell::Part::double_left) {
      require(i + 1 < row.size() && row[i + 1].part == PrintCell::Part::double_right &&
                  row[i + 1].character == row[i].character,
              "a double character has both its halves");
    }
    if (row[i] == PrintCell{}) ++blank;
  }
  require(cell_count(text) <= 2 * text.size(), "a character takes two cells at most");
  require(cell_count(text) >= row.size() || blank + cell_count(text) >= row.size(), "the rest is blank");
  if (!text.empty()) {
    const std::size_t at = file.size() / 2;
    const Places places = with_mark(text, {at, text.size()});
    require(places.begin <= at && at - places.begin <= 1 && places.end == text.size(), "one mark at most goes along");
  }
  const std::size_t period = display_period(text);
  for (std::size_t step = 0; step < std::min<std::size_t>(period, 8); ++step) {
    require(display_window(text, step).size() == display_columns, "the display is always full");
  }
  require(display_window(text, period) == display_window(text, 0), "and shows the same again after its period");
}

void export_texts(const Installation& installation, const std::string& file) {
  constexpr std::size_t first_text = 3137;
  std::string image(sizeof PrgMode, before);
  image.replace(first_text, std::min(file.size(), image.size() - first_text), file, 0, image.size() - first_text);
  std::memcpy(&PrgMode, image.data(), sizeof PrgMode);
  require(Export_Caption(), "an export can be written");
  constexpr std::size_t texts = 120 + 240 + 240 + 5 * 42 + 168 + 120 + 780 + 552;
  require(installation.bytes("Setup/caption.txt").size() == texts + 148 * 2, "each text at its full width");
  installation.remove("Setup/caption.txt");
}

}  // namespace

FUZZ_TARGET(caption_files) {
  static Installation installation;
  const std::string file = file_of(data, size);
  installation.reset();
  import(installation, file);
  describe(installation, file);
  print(file);
  export_texts(installation, file);
  return 0;
}

}  // namespace ecr::fuzz::caption_files_target

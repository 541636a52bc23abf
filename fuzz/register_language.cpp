// A register language file holds any bytes: its texts into the image, and out of it into a file that says the same.

#include "lang/register_language.h"

#include <cstring>
#include <string>

#include "core/register_text.h"
#include "core/text.h"
#include "image/prg_mode.h"
#include "support/installation.h"

namespace ecr::fuzz::register_language_target {
namespace {

constexpr std::size_t texts_begin = offsetof(PrgModeImage, DeptGroupName);
constexpr std::size_t texts_end = offsetof(PrgModeImage, KeyLayout);
constexpr char untouched = '\x02';

std::string image() {
  return std::string{bytes_of_image(PrgMode)};
}

std::string text_at(const TextPlace& place) {
  return image().substr(place.field().offset_of(place.number), place.field().width);
}

}  // namespace

FUZZ_TARGET(register_language) {
  static Installation installation;
  const std::string file = file_of(data, size);
  installation.reset();
  installation.write("Setup/English.txt", file);
  std::memset(&PrgMode, untouched, sizeof PrgMode);

  bool whole = false;
  const bool ended = ends_program([&] { whole = Setta_Lingua(0); });
  require(installation.shell.boxes == 0, "a file that can be read is never told of");
  require(image().substr(0, texts_begin) == std::string(texts_begin, untouched), "nothing in front of the texts");
  require(image().substr(texts_end) == std::string(sizeof PrgMode - texts_end, untouched), "nothing behind the texts");
  if (ended) return 0;

  const auto lines = lines_of(file);
  require(whole == (lines.size() <= 256), "lines are counted in a byte");
  require(installation.lines_in_log() == (whole ? 0U : 1U), "too many lines are logged, and nothing else is");
  for (std::size_t i = 0; i < register_language_lines; ++i) {
    const TextPlace& place = register_language_places[i];
    const std::string expected = i < lines.size() ? padded(sostituzione_to_ecr(lines[i]), place.field().width)
                                                  : std::string(place.field().width, untouched);
    require(text_at(place) == expected, "a line fills its place, cut or padded, and no line leaves it as it was");
  }

  // Once more changes nothing.
  const std::string once = image();
  require(Setta_Lingua(0) == whole && image() == once, "reading it once more changes nothing");
  return 0;
}

}  // namespace ecr::fuzz::register_language_target

#include "make_programming/language_file.h"

#include "core/register_text.h"
#include "core/text.h"
#include "lang/register_language.h"

namespace ecr {

std::string language_lines(std::string_view image) {
  std::string lines;
  for (const TextPlace& place : register_language_places) {
    const std::string_view text = image.substr(place.field().offset_of(place.number), place.field().width);
    lines += sostituzione_from_ecr(trim_end(text)) + "\r\n";
  }
  return lines;
}

}  // namespace ecr

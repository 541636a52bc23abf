#include "fields/caption_meanings.h"

#include <optional>
#include <utility>

#include "core/files.h"
#include "core/global.h"
#include "core/run_log.h"
#include "core/text.h"

namespace ecr {
namespace {

// Far above any file of captions; whoever picks a film by mistake does not wait for it.
constexpr std::size_t longest_file = std::size_t{16} * 1024 * 1024;

std::optional<CaptionDescriptions> last_read;

}  // namespace

CaptionDescriptions descriptions_in(std::string_view bytes) {
  CaptionDescriptions descriptions;
  std::size_t number = 0;
  for (const std::string_view line : lines_of(bytes)) {
    if (number < short_captions) {
      descriptions.captions[number] = line;
    } else if (number < short_captions + described_others) {
      descriptions.others.emplace_back(line);
    } else {
      memo_log("Number of caption description to High");
      break;
    }
    ++number;
  }
  return descriptions;
}

bool Read_DescCaption(CaptionDescriptions& descriptions) {
  descriptions = {};
  const std::string path = Global::PathSetup + "DescCaption.ini";
  if (!file_exists(path)) return false;
  return guarded("Read_DescCaption: ", [&] {
    std::string bytes;
    const Fault fault = read_file(path, bytes, longest_file);
    if (fault.stands()) throw FaultError{fault};
    descriptions = descriptions_in(bytes);
    last_read = descriptions;
  });
}

const CaptionDescriptions& caption_descriptions() {
  if (!last_read) {
    CaptionDescriptions descriptions;
    static_cast<void>(Read_DescCaption(descriptions));
    last_read = std::move(descriptions);
  }
  return *last_read;
}

void reset_caption_descriptions() noexcept {
  last_read.reset();
}

}  // namespace ecr

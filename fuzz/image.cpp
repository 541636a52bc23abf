// PRG_MODE.BIN holds any bytes: read into both images, tested, written back.

#include <algorithm>
#include <cstring>

#include "core/global.h"
#include "image/layout.h"
#include "image/prg_mode.h"
#include "support/installation.h"

namespace ecr::fuzz::image_target {
namespace {

constexpr std::string_view file_name = "Dati/PRG_MODE.BIN";

/// What an image holds that held `before` everywhere when the file was read over it.
std::string image_after(const std::string& file, char before) {
  std::string image(prg_mode_size, before);
  std::copy_n(file.begin(), std::min(file.size(), image.size()), image.begin());
  return image;
}

void read_and_write(Installation& installation, const std::string& file, std::uint8_t model) {
  constexpr char before = '\x5A';
  installation.reset();
  Global::choose_model(model);
  std::memset(static_cast<void*>(&PrgMode), before, sizeof PrgMode);
  std::memset(static_cast<void*>(&PrgModeComparison), before, sizeof PrgModeComparison);
  const std::string expected = image_after(file, before);
  installation.write(file_name, file);

  Read_PrgMode(true);
  require(bytes_of_image(PrgMode) == std::string(prg_mode_size, before),
          "the comparison leaves the working image alone");
  require(bytes_of_image(PrgModeComparison) == expected, "the comparison image is the head of the file");

  installation.shell.boxes = 0;
  const bool passed = Read_PrgMode();
  require(bytes_of_image(PrgMode) == expected, "the working image is the head of the file");
  require(passed == (!file.empty() && keypad_matches(PrgMode, model)), "the answer is the keypad test's");
  require(installation.shell.boxes == (passed ? 0 : 1), "a box tells of a failed keypad test and of nothing else");

  Write_PrgMode();
  const std::string tail = file.size() > prg_mode_size ? file.substr(prg_mode_size) : std::string{};
  require(installation.bytes(file_name) == expected + tail, "a write keeps what stands behind the image");
  PrgMode = {};
  Read_PrgMode();
  require(bytes_of_image(PrgMode) == expected, "what was written is read again");

  installation.put_folder(file_name);
  Read_PrgMode();
  Write_PrgMode();
  require(bytes_of_image(PrgMode) == expected, "a read that fails leaves the image as it was");
  installation.remove(file_name);
  require(installation.lines_in_log() == 0, "none of this reaches the log");
}

}  // namespace

FUZZ_TARGET(image) {
  static Installation installation;
  const std::string file = file_of(data, size);
  for (const std::uint8_t model : {Global::model_z300, Global::model_z320}) read_and_write(installation, file, model);
  return 0;
}

}  // namespace ecr::fuzz::image_target

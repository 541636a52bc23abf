#include "image/prg_mode.h"

#include <cstring>
#include <string>

#include "core/catalogue.h"
#include "core/files.h"
#include "core/global.h"
#include "core/shell.h"

namespace ecr {
namespace {

std::string image_file() {
  return Global::PathDati + "PRG_MODE.BIN";
}

// Positions of the keys 7, 4 and 1; the other two of each row lie on the next two positions.
struct Keypad {
  std::size_t seven;
  std::size_t four;
  std::size_t one;
};
constexpr Keypad keypad_z300{12, 23, 34};
constexpr Keypad keypad_z320{39, 54, 69};

}  // namespace

PrgModeImage PrgMode{};
PrgModeImage PrgModeComparison{};

bool keypad_matches(const PrgModeImage& image, std::uint8_t model) {
  const Keypad& keypad = model == Global::model_z320 ? keypad_z320 : keypad_z300;
  const auto row_holds = [&](std::size_t position, std::uint8_t first_digit) {
    for (std::size_t i = 0; i < 3; ++i) {
      if (image.KeyLayout[position + i] != first_digit + i) return false;
    }
    return true;
  };
  return row_holds(keypad.seven, 7) && row_holds(keypad.four, 4) && row_holds(keypad.one, 1);
}

std::string_view bytes_of_image(const PrgModeImage& image) noexcept {
  // Any object may be looked at as the characters it is made of.
  return {reinterpret_cast<const char*>(&image), sizeof image};
}

bool Read_PrgMode(bool toComparison) {
  std::string bytes;
  // Of a short file the keypad test decides.
  static_cast<void>(read_or_create_file(image_file(), bytes, prg_mode_size));
  PrgModeImage& image = toComparison ? PrgModeComparison : PrgMode;
  std::memcpy(&image, bytes.data(), bytes.size());
  // Where the disk delivered nothing, the test would look at what an earlier read left in memory.
  if (!bytes.empty() && keypad_matches(PrgMode, Global::EcrModel)) return true;
  tell(BoxKind::plain, message(Key::FRM_ALL_WRONG_ECR));
  return false;
}

void Write_PrgMode() {
  static_cast<void>(overwrite_file(image_file(), bytes_of_image(PrgMode)));
}

std::uint8_t& image_byte(std::size_t offset) {
  if (offset >= prg_mode_size) throw FaultError{FaultCode::out_of_range};
  return reinterpret_cast<std::uint8_t*>(&PrgMode)[offset];
}

void reset_prg_mode() noexcept {
  PrgMode = {};
  PrgModeComparison = {};
}

}  // namespace ecr

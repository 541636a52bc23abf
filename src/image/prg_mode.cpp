#include "image/prg_mode.h"

#include <cstring>
#include <string>

#include "core/catalogue.h"
#include "core/files.h"
#include "core/global.h"
#include "core/model.h"
#include "core/shell.h"

namespace ecr {
namespace {

std::string image_file() {
  return Global::PathDati + "PRG_MODE.BIN";
}

}  // namespace

PrgModeImage PrgMode{};
PrgModeImage PrgModeComparison{};

bool keypad_matches(const PrgModeImage& image, std::uint8_t model) {
  const DigitKeys& digits = model_row(model).digits;
  const auto row_holds = [&](std::size_t position, std::uint8_t first_digit) {
    for (std::size_t i = 0; i < 3; ++i) {
      if (image.KeyLayout[position + i] != first_digit + i) return false;
    }
    return true;
  };
  return row_holds(digits.seven, 7) && row_holds(digits.four, 4) && row_holds(digits.one, 1);
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

void take_decimal_point() {
  Global::DecimalPoint = PrgMode.SysOpt0;
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

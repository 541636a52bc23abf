#include "keyboard/key_default.h"

#include <string>

#include "core/global.h"
#include "core/model.h"
#include "core/small_files.h"
#include "image/prg_mode.h"

namespace ecr {
namespace {

std::string key_default_file() {
  return Global::PathDati + std::string{chosen_model().keyboard_file};
}

}  // namespace

std::array<std::uint8_t, key_positions> KeyDefault{};

void Read_Key_Default() {
  read_small_file(key_default_file(), KeyDefault);
}

void Write_Key_Default() {
  KeyDefault = PrgMode.KeyLayout;
  write_small_file(key_default_file(), KeyDefault);
}

void reset_key_default() {
  KeyDefault = {};
}

}  // namespace ecr

#include "keyboard/free_layout.h"

#include "fields/key_codes.h"

namespace ecr {

void FreeLayout::lay(const KeyCodes& codes) {
  for (std::size_t position = 0; position < key_positions; ++position) {
    set_key(codes[position], position, KeyColour::black);
  }
}

void FreeLayout::assign(std::uint8_t key, std::uint8_t code) {
  if (code == 0) code = no_operation;
  set_key(code, static_cast<std::size_t>(n_tasto_to_key_position(key)), KeyColour::red);
  if (code == no_operation) return;
  for (std::size_t position = 0; position < key_positions; ++position) {
    if (KeyOfPosition[position] == key || codes_[position] != code) continue;
    set_key(no_operation, position, KeyColour::red);
    changed_ = true;
  }
}

std::uint8_t FreeLayout::code_of(std::uint8_t key) const {
  return codes_[static_cast<std::size_t>(n_tasto_to_key_position(key))];
}

void FreeLayout::set_key(std::uint8_t code, std::size_t position, KeyColour colour) {
  codes_[position] = code;
  if (const std::uint8_t key = KeyOfPosition[position]; key != 0 && show_) show_(key, code, colour);
}

}  // namespace ecr

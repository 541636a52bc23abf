#pragma once
// The saved default keyboard of a model, Dati\KEY_DEFAULTZ300.BIN or Dati\KEY_DEFAULTZ320.BIN.

#include <array>
#include <cstdint>

#include "keyboard/key_positions.h"

namespace ecr {

/// Key codes in the order of PrgModeImage::KeyLayout.
extern std::array<std::uint8_t, key_positions> KeyDefault;

/// The file of the chosen model into KeyDefault. A read that fails leaves it as it was; a missing file is created
/// empty.
void Read_Key_Default();
/// The working image's KeyLayout into KeyDefault and from there to the file of the chosen model. A failure is silent.
void Write_Key_Default();

void reset_key_default();

}  // namespace ecr

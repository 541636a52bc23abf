#pragma once
// The keyboard that is being laid out: a working copy of the 89 codes, and what each key of the model shows of it.

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>

#include "keyboard/key_positions.h"

namespace ecr {

/// The colour of a key's caption: red for what was changed on screen.
enum class KeyColour { black, red };

/// The code at each position, in the form of PrgModeImage::KeyLayout.
using KeyCodes = std::array<std::uint8_t, key_positions>;

class FreeLayout {
 public:
  /// `show` is told what a key of the chosen model holds from now on, whenever that is set.
  using Show = std::function<void(std::uint8_t key, std::uint8_t code, KeyColour colour)>;
  explicit FreeLayout(Show show) : show_{std::move(show)} {}

  /// Takes all 89 codes, those of positions without a key too; the keys show them in black.
  void lay(const KeyCodes& codes);

  /// A click on a key while the list shows `code`; 0, nothing chosen, counts as NO OPERATION. The key takes the code.
  /// Any other position that held it, one without a key too, becomes NO OPERATION, so that a function sits on one key
  /// only. NO OPERATION itself may stand anywhere.
  void assign(std::uint8_t key, std::uint8_t code);

  [[nodiscard]] const KeyCodes& codes() const { return codes_; }
  /// The code that a key of the chosen model holds.
  [[nodiscard]] std::uint8_t code_of(std::uint8_t key) const;
  /// Whether a function has been taken from one position to another.
  [[nodiscard]] bool changed() const { return changed_; }

 private:
  void set_key(std::uint8_t code, std::size_t position, KeyColour colour);

  Show show_;
  KeyCodes codes_{};
  bool changed_ = false;
};

}  // namespace ecr

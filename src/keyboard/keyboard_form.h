#pragma once
// The keyboards of the two models as they look: which cap lies where. Places are counted in keys, from 0, down and to
// the right; the columns are those of the scan matrix in the order in which they lie on the register.

#include <cstdint>
#include <span>
#include <string_view>

namespace ecr {

struct KeyCapPlace {
  std::uint8_t key = 0;  ///< its number; 0 for a fixed key
  int row = 0;
  int column = 0;
  int rows = 1;  ///< how far it reaches
  int columns = 1;
  std::string_view print;  ///< what is printed on a fixed key
};

struct KeyboardForm {
  int rows = 0;
  int columns = 0;
  std::span<const KeyCapPlace> caps;
  /// The columns with a gap before them, where one group of keys ends.
  std::span<const int> gaps;
};

/// `model` is a value of Global::EcrModel.
[[nodiscard]] const KeyboardForm& keyboard_form(std::uint8_t model);

}  // namespace ecr

#include "keyboard/key_positions.h"

#include <algorithm>

#include "core/global.h"

namespace ecr {

PositionMap KeyOfPosition{};

void assegna_Code_key() {
  KeyOfPosition = position_map(Global::EcrModel);
}

std::int16_t n_tasto_to_key_position(std::uint8_t key) {
  const auto* found = std::find(KeyOfPosition.begin(), KeyOfPosition.end(), key);
  return found == KeyOfPosition.end() ? std::int16_t{0} : static_cast<std::int16_t>(found - KeyOfPosition.begin());
}

void reset_key_positions() noexcept {
  KeyOfPosition = {};
}

}  // namespace ecr

#pragma once
// The keys of the chosen model by their positions.

#include <cstdint>

#include "fields/key_matrix.h"

namespace ecr {

/// The map of the chosen model, as assegna_Code_key left it; all 0 before.
extern PositionMap KeyOfPosition;

/// Takes the map of the chosen model: the Z320's for it, else the Z300's.
void assegna_Code_key();

/// The first position of the key in KeyOfPosition; 0 where it has none.
[[nodiscard]] std::int16_t n_tasto_to_key_position(std::uint8_t key);

void reset_key_positions() noexcept;

}  // namespace ecr

#pragma once
// Where a key sits in the register's scan matrix. The layout has a code for each of 89 positions; a model has a key
// that can be reassigned at some of them. Positions follow the matrix, not the order of the keys.

#include <array>
#include <cstddef>
#include <cstdint>

#include "core/model.h"

namespace ecr {

inline constexpr std::size_t key_positions = 89;

/// The number of the key at each position, 0 where the model has none that can be reassigned.
using PositionMap = std::array<std::uint8_t, key_positions>;

inline constexpr std::uint8_t z300_keys = 33;
inline constexpr std::uint8_t z320_keys = 69;

// clang-format off
inline constexpr PositionMap z320_position_map = {
     0, 11, 17, 23, 29, 35, 41, 47, 53, 57, 59, 61,  0,  0,
     1,  6, 12, 18, 24, 30, 36, 42, 48, 54, 58, 60, 62,  0,  0,
     2,  7, 13, 19, 25, 31, 37, 43, 49, 55,  0,  0,  0, 63, 67,
     3,  8, 14, 20, 26, 32, 38, 44, 50, 56,  0,  0,  0, 64, 68,
     4,  9, 15, 21, 27, 33, 39, 45, 51,  0,  0,  0,  0, 65, 69,
     5, 10, 16, 22, 28, 34, 40, 46, 52,  0,  0,  0,  0, 66,  0};

inline constexpr PositionMap z300_position_map = {
     0,
     7,  8,  9, 10, 15, 20, 25,  0,  0,  1,  4,
     0,  0,  0, 11, 16, 21, 26,  0,  0,  2,  5,
     0,  0,  0, 12, 17, 22, 27, 30, 32,  3,  6,
     0,  0,  0, 13, 18, 23, 28, 31, 33,  0,  0,
     0,  0,  0, 14, 19, 24, 29};
// clang-format on

namespace key_positions_proof {

/// Whether each key from 1 to the last has exactly one position.
constexpr bool each_key_once(const PositionMap& map, std::uint8_t last) {
  for (int key = 1; key <= 255; ++key) {
    int places = 0;
    for (const std::uint8_t at : map) places += at == key ? 1 : 0;
    if (places != (key <= last ? 1 : 0)) return false;
  }
  return map[0] == 0;
}
static_assert(each_key_once(z300_position_map, z300_keys));
static_assert(each_key_once(z320_position_map, z320_keys));

}  // namespace key_positions_proof

/// By model number, see core/model.h.
inline constexpr std::array<const PositionMap*, model_rows.size()> position_maps = {&z300_position_map,
                                                                                    &z320_position_map};

/// The map of a model, a value of Global::EcrModel.
[[nodiscard]] constexpr const PositionMap& position_map(std::uint8_t model) {
  return *position_maps[model_row(model).number];
}

}  // namespace ecr

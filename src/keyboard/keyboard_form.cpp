#include "keyboard/keyboard_form.h"

#include <array>
#include <cstddef>

#include "core/model.h"
#include "keyboard/key_positions.h"

namespace ecr {
namespace {

struct Place {
  int row = 0;
  int column = 0;
};

// The Z300's matrix has eleven columns; the last two of them lie at the left of the keyboard.
constexpr int z300_columns = 11;
constexpr Place z300_place(int position) {
  return {(position - 1) / z300_columns, (position - 1 + 2) % z300_columns};
}

// The Z320's matrix has fifteen columns; its first row begins one column before position 0.
constexpr int z320_columns = 15;
constexpr Place z320_place(int position) {
  return {(position + 1) / z320_columns, (position + 1) % z320_columns};
}

struct FixedKey {
  int position;
  std::string_view print;
  int rows = 1;
  int columns = 1;
};

constexpr FixedKey z300_fixed[] = {{8, "FEED", 1, 2}, {12, "7"},  {13, "8"},       {14, "9"},
                                   {23, "4"},         {24, "5"},  {25, "6"},       {34, "1"},
                                   {35, "2"},         {36, "3"},  {43, "X", 2, 1}, {44, "C", 2, 1},
                                   {45, "0"},         {46, "00"}, {47, "."},       {52, "TOTAL", 1, 2}};
constexpr FixedKey z320_fixed[] = {{12, "FEED", 1, 2}, {39, "7"},  {40, "8"}, {41, "9"},    {54, "4"}, {55, "5"},
                                   {56, "6"},          {68, "X"},  {69, "1"}, {70, "2"},    {71, "3"}, {83, "C"},
                                   {84, "0"},          {85, "00"}, {86, "."}, {88, "TOTAL"}};

/// The keys in the order of their numbers, then the fixed ones.
template <std::size_t Keys, std::size_t Fixed>
constexpr std::array<KeyCapPlace, Keys + Fixed> lay_out(const PositionMap& map, const FixedKey (&fixed)[Fixed],
                                                        Place (*place_of)(int)) {
  std::array<KeyCapPlace, Keys + Fixed> caps{};
  for (std::size_t position = 0; position < map.size(); ++position) {
    if (map[position] == 0) continue;
    const Place place = place_of(static_cast<int>(position));
    KeyCapPlace& cap = caps[map[position] - 1U];
    cap.key = map[position];
    cap.row = place.row;
    cap.column = place.column;
  }
  for (std::size_t i = 0; i < Fixed; ++i) {
    if (map[static_cast<std::size_t>(fixed[i].position)] != 0) throw "a fixed key where a free one lies";
    const Place place = place_of(fixed[i].position);
    KeyCapPlace& cap = caps[Keys + i];
    cap.row = place.row;
    cap.column = place.column;
    cap.rows = fixed[i].rows;
    cap.columns = fixed[i].columns;
    cap.print = fixed[i].print;
  }
  return caps;
}

constexpr auto z300_caps = lay_out<z300_keys>(z300_position_map, z300_fixed, z300_place);
constexpr auto z320_caps = lay_out<z320_keys>(z320_position_map, z320_fixed, z320_place);
constexpr int z300_gaps[] = {2, 5, 9};
constexpr int z320_gaps[] = {2, 10, 13};

template <std::size_t Count>
constexpr bool lies_apart(const std::array<KeyCapPlace, Count>& caps, int rows, int columns) {
  for (std::size_t i = 0; i < Count; ++i) {
    const KeyCapPlace& one = caps[i];
    if (one.row < 0 || one.column < 0 || one.row + one.rows > rows || one.column + one.columns > columns) return false;
    for (std::size_t j = 0; j < i; ++j) {
      const KeyCapPlace& other = caps[j];
      const bool beside = one.column + one.columns <= other.column || other.column + other.columns <= one.column;
      const bool below = one.row + one.rows <= other.row || other.row + other.rows <= one.row;
      if (!beside && !below) return false;
    }
  }
  return true;
}
static_assert(lies_apart(z300_caps, 5, z300_columns));
static_assert(lies_apart(z320_caps, 6, z320_columns));

// By model number.
constexpr std::array<KeyboardForm, model_rows.size()> forms = {{
    {5, z300_columns, z300_caps, z300_gaps},
    {6, z320_columns, z320_caps, z320_gaps},
}};

}  // namespace

const KeyboardForm& keyboard_form(std::uint8_t model) {
  return forms.at(model_row(model).number);
}

}  // namespace ecr

#pragma once
// The two models of the register: one row for each, with all that the program knows of what they differ in. What needs
// a room above is a table there, by the row's number: the keyboards in keyboard/.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/global.h"

namespace ecr {

/// Where the digit keys lie in the image's key layout: the positions of 7, 4 and 1. The other two of each row lie on
/// the next two positions.
struct DigitKeys {
  std::size_t seven = 0;
  std::size_t four = 0;
  std::size_t one = 0;
};

struct Model {
  std::uint8_t number = 0;           ///< a value of Global::EcrModel, and the row's place
  std::string_view name{};           ///< in titles; also its folder in PathDati
  std::string_view file_prefix{};    ///< the names of its default files begin with it
  std::string_view keyboard_file{};  ///< its saved default keyboard, in PathDati
  DigitKeys digits{};
  bool has_extra_invoice = false;  ///< lines of its own for the invoice, and a clerk's right to print one
};

inline constexpr std::array<Model, 2> model_rows = {{
    {.number = Global::model_z300,
     .name = "ECRZ300",
     .file_prefix = "ECRZ300_",
     .keyboard_file = "KEY_DEFAULTZ300.BIN",
     .digits = {.seven = 12, .four = 23, .one = 34}},
    {.number = Global::model_z320,
     .name = "ECRZ320",
     .file_prefix = "ECRZ320_",
     .keyboard_file = "KEY_DEFAULTZ320.BIN",
     .digits = {.seven = 39, .four = 54, .one = 69},
     .has_extra_invoice = true},
}};
static_assert(model_rows[0].number == 0 && model_rows[1].number == 1);

/// The row of a value of Global::EcrModel. A number that is no model's has the Z300's.
[[nodiscard]] constexpr const Model& model_row(std::uint8_t number) {
  return model_rows[number < model_rows.size() ? number : std::size_t{0}];
}

/// The row of the chosen model.
[[nodiscard]] inline const Model& chosen_model() {
  return model_row(Global::EcrModel);
}

/// On which models something is there.
enum class Models : std::uint8_t { both, z300_only, z320_only };

/// `model` is a value of Global::EcrModel.
[[nodiscard]] constexpr bool is_on(Models models, std::uint8_t model) {
  if (models == Models::both) return true;
  return (models == Models::z320_only) == (model_row(model).number == Global::model_z320);
}

/// Whether it is there on the chosen model.
[[nodiscard]] inline bool is_on_chosen_model(Models models) {
  return is_on(models, Global::EcrModel);
}

}  // namespace ecr

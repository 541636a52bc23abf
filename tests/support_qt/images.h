#pragma once
// Programmings and item tables made in code: good ones, and random ones that the program takes for good.

#include <cstdint>
#include <string>

#include "image/prg_mode.h"
#include "support/random.h"

namespace ecr::test {

/// A small shop: VAT rates, departments 1 to 8 with names and prices, the digit keys where the model has them. Amounts
/// have two decimals.
[[nodiscard]] PrgModeImage good_image(std::uint8_t model);

/// Random bytes everywhere, but with the digit keys of the model, so that it is read.
[[nodiscard]] PrgModeImage random_image(std::uint8_t model, Random& random);

/// Puts the digit keys where the keyboard of the model has them.
void lay_digit_keys(PrgModeImage& image, std::uint8_t model);

[[nodiscard]] std::string file_bytes(const PrgModeImage& image);

/// An item table without items.
[[nodiscard]] std::string empty_item_file();

}  // namespace ecr::test

#include "core/packed_digits.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "support/random.h"

namespace ecr::test::packed_digits_cases {
namespace {

/// Digits, highest first, an even number of them, as a packed field.
std::vector<std::uint8_t> field_of(const std::string& digits) {
  std::vector<std::uint8_t> field;
  for (std::size_t i = digits.size(); i >= 2; i -= 2) {
    field.push_back(static_cast<std::uint8_t>((digits[i - 2] - '0') * 16 + (digits[i - 1] - '0')));
  }
  return field;
}

std::string written(const PackedDigits& packed, std::size_t place, std::size_t count) {
  std::array<char, PackedDigits::most_digits> text{};
  return {text.data(), packed.write(text.data(), place, count)};
}

TEST(PackedDigits, EveryPieceOfEveryFieldIsWritten) {
  Random random{31};
  for (int i = 0; i < 500; ++i) {
    std::string digits = random.text(2 * (1 + random.below(8)), random.coin() ? "0123456789" : "00001");
    PackedDigits packed;
    ASSERT_TRUE(packed.read(field_of(digits)));
    ASSERT_EQ(packed.count(), digits.size());
    for (std::size_t place = 0; place < digits.size(); ++place) {
      EXPECT_EQ(packed.first_significant(place), std::min(digits.find_first_not_of('0', place), digits.size()))
          << digits;
      for (std::size_t count = 0; place + count <= digits.size(); ++count) {
        ASSERT_EQ(written(packed, place, count), digits.substr(place, count)) << digits;
      }
    }
    EXPECT_EQ(packed.first_significant(digits.size()), digits.size());
    const std::size_t last = digits.find_last_not_of('0');
    EXPECT_EQ(packed.zeros_at_end(), last == std::string::npos ? digits.size() : digits.size() - 1 - last) << digits;
    EXPECT_EQ(packed.is_one_and_zeros(), digits == "1" + std::string(digits.size() - 1, '0')) << digits;
  }
}

TEST(PackedDigits, ANibbleAboveNineIsRefusedWhereverItStands) {
  for (std::size_t width = 1; width <= PackedDigits::most_bytes; ++width) {
    for (std::size_t byte = 0; byte < width; ++byte) {
      for (int value = 0; value < 256; ++value) {
        std::vector<std::uint8_t> field(width, 0x99);
        field[byte] = static_cast<std::uint8_t>(value);
        PackedDigits packed;
        EXPECT_EQ(packed.read(field), value / 16 <= 9 && value % 16 <= 9) << width << ' ' << byte << ' ' << value;
      }
    }
  }
}

TEST(PackedDigits, WhatIsEmptyOrTooWideIsRefused) {
  PackedDigits packed;
  EXPECT_FALSE(packed.read({}));
  EXPECT_FALSE(packed.read(std::vector<std::uint8_t>(9, 0)));
  EXPECT_FALSE(packed.read(std::vector<std::uint8_t>(300, 0)));
}

}  // namespace
}  // namespace ecr::test::packed_digits_cases

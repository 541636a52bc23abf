#include "keyboard/free_layout.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <numeric>

#include "core/global.h"
#include "fields/key_codes.h"
#include "support/random.h"

namespace ecr::test {
namespace {

constexpr std::uint8_t dept_1 = 82;
constexpr std::uint8_t dept_2 = 83;

class FreeLayoutTest : public ::testing::TestWithParam<std::uint8_t> {
 protected:
  FreeLayoutTest() {
    Global::EcrModel = GetParam();
    assegna_Code_key();
  }
  ~FreeLayoutTest() override {
    reset_key_positions();
    Global::reset();
  }

  struct Shown {
    std::uint8_t code;
    KeyColour colour;
    bool operator==(const Shown&) const = default;
  };
  std::map<int, Shown> shown;  ///< by key, as told last
  FreeLayout layout{[this](std::uint8_t key, std::uint8_t code, KeyColour colour) { shown[key] = {code, colour}; }};

  [[nodiscard]] static std::uint8_t keys() { return GetParam() == Global::model_z320 ? z320_keys : z300_keys; }
  static std::size_t position(int key) {
    return static_cast<std::size_t>(n_tasto_to_key_position(static_cast<std::uint8_t>(key)));
  }
  /// A code of its own at each position.
  static KeyCodes all_different() {
    KeyCodes codes{};
    std::iota(codes.begin(), codes.end(), std::uint8_t{130});
    return codes;
  }
};

TEST_P(FreeLayoutTest, ALayoutIsTakenWholeAndShownInBlack) {
  const KeyCodes codes = all_different();
  layout.lay(codes);
  EXPECT_EQ(layout.codes(), codes);
  EXPECT_EQ(shown.size(), keys());
  for (const auto& [key, what] : shown) {
    EXPECT_EQ(what, (Shown{codes[position(key)], KeyColour::black})) << key;
    EXPECT_EQ(layout.code_of(static_cast<std::uint8_t>(key)), codes[position(key)]);
  }
  EXPECT_FALSE(layout.changed());
}

TEST_P(FreeLayoutTest, EachKeyTakesTheCodeAtItsPositionAndNothingElseChanges) {
  for (std::uint8_t key = 1; key <= keys(); ++key) {
    KeyCodes expected = all_different();
    layout.lay(expected);
    shown.clear();
    layout.assign(key, dept_1);
    expected[position(key)] = dept_1;
    EXPECT_EQ(layout.codes(), expected) << int{key};
    ASSERT_EQ(shown.size(), 1U) << int{key};
    EXPECT_EQ(shown.at(key), (Shown{dept_1, KeyColour::red}));
    EXPECT_FALSE(layout.changed());
  }
}

TEST_P(FreeLayoutTest, AFunctionThatMovesLeavesNoOperationBehind) {
  for (std::uint8_t key = 2; key <= keys(); ++key) {
    layout.lay(all_different());
    layout.assign(1, dept_1);
    layout.assign(key, dept_1);
    EXPECT_EQ(shown.at(1), (Shown{no_operation, KeyColour::red}));
    EXPECT_EQ(shown.at(key), (Shown{dept_1, KeyColour::red}));
    EXPECT_EQ(layout.codes()[position(1)], no_operation);
    EXPECT_TRUE(layout.changed());
  }
}

TEST_P(FreeLayoutTest, EveryOtherHolderIsFreedAlsoWhereNoKeyIs) {
  KeyCodes codes{};
  codes.fill(dept_2);
  layout.lay(codes);
  layout.assign(5, dept_2);
  for (std::size_t at = 0; at < key_positions; ++at) {
    EXPECT_EQ(layout.codes()[at], at == position(5) ? dept_2 : no_operation) << at;
  }
}

TEST_P(FreeLayoutTest, AKeyThatHeldTheFunctionAlreadyKeepsItInRed) {
  KeyCodes codes = all_different();
  codes[position(4)] = dept_1;
  layout.lay(codes);
  layout.assign(4, dept_1);
  EXPECT_EQ(layout.codes(), codes);
  EXPECT_EQ(shown.at(4), (Shown{dept_1, KeyColour::red}));
  EXPECT_EQ(shown.at(3).colour, KeyColour::black);
  EXPECT_FALSE(layout.changed());
}

TEST_P(FreeLayoutTest, NoOperationMayStandOnManyKeys) {
  layout.lay(all_different());
  layout.assign(1, no_operation);
  layout.assign(2, no_operation);
  EXPECT_EQ(layout.codes()[position(1)], no_operation);
  EXPECT_EQ(layout.codes()[position(2)], no_operation);
  EXPECT_FALSE(layout.changed());
}

TEST_P(FreeLayoutTest, NothingChosenClearsTheKey) {
  layout.lay(all_different());
  layout.assign(3, 0);
  EXPECT_EQ(shown.at(3), (Shown{no_operation, KeyColour::red}));
}

TEST_P(FreeLayoutTest, ANewLayoutTurnsRedKeysBlack) {
  layout.lay(all_different());
  layout.assign(3, dept_1);
  layout.lay(all_different());
  EXPECT_EQ(shown.at(3), (Shown{all_different()[position(3)], KeyColour::black}));
  EXPECT_EQ(layout.codes(), all_different());
}

TEST_P(FreeLayoutTest, WhateverIsAssignedAFunctionSitsOnOneKeyOnly) {
  Random random{20261121};
  KeyCodes codes{};
  for (std::uint8_t& code : codes) code = random.byte();
  layout.lay(codes);
  for (int i = 0; i < 2000; ++i) {
    const auto key = static_cast<std::uint8_t>(random.between(1, keys()));
    const auto code = static_cast<std::uint8_t>(random.between(1, 254));
    layout.assign(key, code);
    EXPECT_EQ(std::count(layout.codes().begin(), layout.codes().end(), code), 1);
    EXPECT_EQ(layout.code_of(key), code);
  }
}

INSTANTIATE_TEST_SUITE_P(OfBothModels, FreeLayoutTest, ::testing::Values(Global::model_z300, Global::model_z320),
                         [](const auto& model) { return model.param == Global::model_z320 ? "Z320" : "Z300"; });

}  // namespace
}  // namespace ecr::test

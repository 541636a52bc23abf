#include "keyboard/key_positions.h"

#include <gtest/gtest.h>

#include "core/global.h"
#include "image/prg_mode.h"

namespace ecr::test {
namespace {

class KeyPositions : public ::testing::Test {
 protected:
  ~KeyPositions() override {
    reset_key_positions();
    Global::reset();
  }
  static void take(std::uint8_t model) {
    Global::EcrModel = model;
    assegna_Code_key();
  }
};

TEST_F(KeyPositions, BeforeAModelIsTakenNoKeyHasAPosition) {
  for (int key = 0; key < 256; ++key) EXPECT_EQ(n_tasto_to_key_position(static_cast<std::uint8_t>(key)), 0);
}

TEST_F(KeyPositions, OfTheZ320FollowTheMatrix) {
  take(Global::model_z320);
  const int keys_of_first_row[] = {11, 17, 23, 29, 35, 41, 47, 53, 57, 59, 61};
  int position = 0;
  for (const int key : keys_of_first_row) {
    EXPECT_EQ(n_tasto_to_key_position(static_cast<std::uint8_t>(key)), ++position) << key;
  }
  EXPECT_EQ(n_tasto_to_key_position(1), 14);
  EXPECT_EQ(n_tasto_to_key_position(2), 29);
  EXPECT_EQ(n_tasto_to_key_position(56), 53);
  EXPECT_EQ(n_tasto_to_key_position(63), 42);
  EXPECT_EQ(n_tasto_to_key_position(67), 43);
  EXPECT_EQ(n_tasto_to_key_position(66), 87);
  EXPECT_EQ(n_tasto_to_key_position(69), 73);
}

TEST_F(KeyPositions, OfTheZ300EndAt51) {
  take(Global::model_z300);
  EXPECT_EQ(n_tasto_to_key_position(7), 1);
  EXPECT_EQ(n_tasto_to_key_position(1), 10);
  EXPECT_EQ(n_tasto_to_key_position(4), 11);
  EXPECT_EQ(n_tasto_to_key_position(30), 30);
  EXPECT_EQ(n_tasto_to_key_position(32), 31);
  EXPECT_EQ(n_tasto_to_key_position(29), 51);
  for (std::size_t position = 52; position < key_positions; ++position) EXPECT_EQ(KeyOfPosition[position], 0);
}

TEST_F(KeyPositions, LeadBackToEachKeyOfBothModels) {
  for (const auto& [model, keys] : {std::pair{Global::model_z300, z300_keys}, {Global::model_z320, z320_keys}}) {
    take(model);
    for (std::uint8_t key = 1; key <= keys; ++key) {
      const auto position = static_cast<std::size_t>(n_tasto_to_key_position(key));
      EXPECT_GT(position, 0U);
      EXPECT_EQ(KeyOfPosition[position], key);
    }
    for (int key = keys + 1; key < 256; ++key) EXPECT_EQ(n_tasto_to_key_position(static_cast<std::uint8_t>(key)), 0);
  }
}

TEST_F(KeyPositions, PositionZeroIsNoKey) {
  for (const auto model : {Global::model_z300, Global::model_z320}) {
    take(model);
    EXPECT_EQ(KeyOfPosition[0], 0);
    EXPECT_EQ(n_tasto_to_key_position(0), 0);
    EXPECT_NE(KeyOfPosition[1], 0);
  }
}

TEST_F(KeyPositions, TheDigitsOfBothModelsLieWhereNoKeyIs) {
  for (const auto model : {Global::model_z300, Global::model_z320}) {
    take(model);
    PrgModeImage image{};
    const int rows[2][3] = {{12, 23, 34}, {39, 54, 69}};
    const int digits[] = {7, 4, 1};
    for (int row = 0; row < 3; ++row) {
      for (int i = 0; i < 3; ++i) {
        const auto position = static_cast<std::size_t>(rows[model][row] + i);
        EXPECT_EQ(KeyOfPosition[position], 0) << position;
        image.KeyLayout[position] = static_cast<std::uint8_t>(digits[row] + i);
      }
    }
    EXPECT_TRUE(keypad_matches(image, model));
  }
}

TEST_F(KeyPositions, AnyOtherModelThanTheZ320HasTheKeysOfTheZ300) {
  take(7);
  EXPECT_EQ(KeyOfPosition, z300_position_map);
}

}  // namespace
}  // namespace ecr::test

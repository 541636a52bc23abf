#include "core/model.h"

#include <gtest/gtest.h>
#include <set>

namespace ecr::test {
namespace {

TEST(Models, AreTwoRowsByTheirNumbers) {
  ASSERT_EQ(model_rows.size(), 2U);
  EXPECT_EQ(model_row(0).name, "ECRZ300");
  EXPECT_EQ(model_row(1).name, "ECRZ320");
  for (const Model& model : model_rows) EXPECT_EQ(&model_row(model.number), &model);
}

TEST(Models, NumbersOfNoModelHaveTheRowOfTheZ300) {
  for (int number = 2; number < 256; ++number) {
    EXPECT_EQ(&model_row(static_cast<std::uint8_t>(number)), &model_row(Global::model_z300)) << number;
  }
}

TEST(Models, NameTheirFilesAfterThemselves) {
  EXPECT_EQ(model_row(Global::model_z300).file_prefix, "ECRZ300_");
  EXPECT_EQ(model_row(Global::model_z320).file_prefix, "ECRZ320_");
  EXPECT_EQ(model_row(Global::model_z300).keyboard_file, "KEY_DEFAULTZ300.BIN");
  EXPECT_EQ(model_row(Global::model_z320).keyboard_file, "KEY_DEFAULTZ320.BIN");
}

TEST(Models, HaveTheirDigitKeysWhereTheOtherHasNone) {
  std::set<std::size_t> positions;
  for (const Model& model : model_rows) {
    for (const std::size_t first : {model.digits.seven, model.digits.four, model.digits.one}) {
      for (std::size_t i = 0; i < 3; ++i) positions.insert(first + i);
    }
  }
  EXPECT_EQ(positions, (std::set<std::size_t>{12, 13, 14, 23, 24, 25, 34, 35, 36, 39, 40, 41, 54, 55, 56, 69, 70, 71}));
}

TEST(Models, OnlyTheZ320HasTheExtraInvoice) {
  EXPECT_FALSE(model_row(Global::model_z300).has_extra_invoice);
  EXPECT_TRUE(model_row(Global::model_z320).has_extra_invoice);
}

TEST(Models, SayWhatIsOnWhich) {
  for (const std::uint8_t model : {Global::model_z300, Global::model_z320}) {
    EXPECT_TRUE(is_on(Models::both, model));
    EXPECT_EQ(is_on(Models::z300_only, model), model == Global::model_z300);
    EXPECT_EQ(is_on(Models::z320_only, model), model == Global::model_z320);
  }
}

TEST(Models, TheChosenOneIsThatOfTheSession) {
  for (const std::uint8_t model : {Global::model_z320, Global::model_z300}) {
    Global::choose_model(model);
    EXPECT_EQ(chosen_model().number, model);
    EXPECT_EQ(is_on_chosen_model(Models::z320_only), model == Global::model_z320);
  }
  Global::reset();
}

}  // namespace
}  // namespace ecr::test

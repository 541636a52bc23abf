#include "keyboard/keyboard_form.h"

#include <gtest/gtest.h>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include "core/global.h"
#include "keyboard/key_positions.h"

namespace ecr::test {
namespace {

const KeyCapPlace& cap_of(std::uint8_t model, int key) {
  for (const KeyCapPlace& cap : keyboard_form(model).caps) {
    if (cap.key == key) return cap;
  }
  throw std::runtime_error{"no cap of key " + std::to_string(key)};
}
const KeyCapPlace& fixed_cap(std::uint8_t model, std::string_view print) {
  for (const KeyCapPlace& cap : keyboard_form(model).caps) {
    if (cap.key == 0 && cap.print == print) return cap;
  }
  throw std::runtime_error{"no cap with this print"};
}

TEST(KeyboardForm, HasACapForEachKeyOfTheModel) {
  for (const auto& [model, keys] : {std::pair{Global::model_z300, z300_keys}, {Global::model_z320, z320_keys}}) {
    std::set<int> seen;
    for (const KeyCapPlace& cap : keyboard_form(model).caps) {
      if (cap.key == 0) {
        EXPECT_FALSE(cap.print.empty());
      } else {
        EXPECT_TRUE(cap.print.empty()) << "key " << int{cap.key} << " shows its function";
        EXPECT_TRUE(seen.insert(cap.key).second) << int{cap.key};
      }
    }
    EXPECT_EQ(seen.size(), keys);
    EXPECT_EQ(*seen.rbegin(), keys);
  }
}

TEST(KeyboardForm, KeysAreCountedDownTheColumns) {
  for (const auto& [model, first, last] : {std::tuple{Global::model_z300, 10, 14},
                                           {Global::model_z300, 25, 29},
                                           {Global::model_z300, 1, 3},
                                           {Global::model_z320, 1, 5},
                                           {Global::model_z320, 11, 16},
                                           {Global::model_z320, 47, 52},
                                           {Global::model_z320, 63, 66},
                                           {Global::model_z320, 67, 69}}) {
    for (int key = first + 1; key <= last; ++key) {
      EXPECT_EQ(cap_of(model, key).column, cap_of(model, first).column) << key;
      EXPECT_EQ(cap_of(model, key).row, cap_of(model, key - 1).row + 1) << key;
    }
  }
  EXPECT_LT(cap_of(Global::model_z300, 1).column, cap_of(Global::model_z300, 7).column);
}

TEST(KeyboardForm, TheDigitsMakeAKeypad) {
  for (const auto model : {Global::model_z300, Global::model_z320}) {
    for (const auto& [one, beside] :
         {std::pair{"7", "8"}, {"8", "9"}, {"4", "5"}, {"5", "6"}, {"1", "2"}, {"2", "3"}}) {
      EXPECT_EQ(fixed_cap(model, one).row, fixed_cap(model, beside).row);
      EXPECT_EQ(fixed_cap(model, one).column + 1, fixed_cap(model, beside).column);
    }
    for (const auto& [one, below] : {std::pair{"7", "4"}, {"4", "1"}, {"1", "0"}}) {
      EXPECT_EQ(fixed_cap(model, one).row + 1, fixed_cap(model, below).row);
      EXPECT_EQ(fixed_cap(model, one).column, fixed_cap(model, below).column);
    }
  }
}

}  // namespace
}  // namespace ecr::test

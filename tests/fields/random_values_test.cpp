// What must hold for the values of any programming, whatever bytes it is made of.

#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "fields/book.h"
#include "fields/names.h"
#include "fields/random_programming.h"
#include "fields/value.h"

namespace ecr::test {
namespace {

using namespace fields;

constexpr std::uint8_t both_models[] = {Global::model_z300, Global::model_z320};
constexpr int some_items = 12;

std::vector<ValueRef> values_of(const Programming& programming) {
  std::vector<ValueRef> values;
  each_value(programming, [&](ValueRef value) { values.push_back(value); });
  return values;
}

std::string name(const Programming& programming, ValueRef value) {
  return std::string{value.field->id} + " of record " + std::to_string(value.record) + ": " +
         plain_text(programming, value);
}

/// The same as same_bytes, without the rows that are not counted.
bool same_values(const Programming& one, const Programming& other) {
  return std::memcmp(&one.image, &other.image, sizeof one.image) == 0 &&
         std::memcmp(&one.items.Lists, &other.items.Lists, sizeof one.items.Lists) == 0 &&
         std::memcmp(&one.items.Row, &other.items.Row, some_items * sizeof(PluRecord)) == 0;
}

/// Random programmings: of any bytes, and with digits in the packed numbers.
std::vector<std::unique_ptr<Programming>> programmings(Random& random) {
  std::vector<std::unique_ptr<Programming>> all;
  for (int round = 0; round < 12; ++round) {
    all.push_back(random_programming(both_models[round % 2], some_items, random));
    if (round % 4 > 1) {
      for (const ValueRef value : values_of(*all.back())) put_digits(*all.back(), value, random);
      all.back()->image.SysOpt0 = static_cast<std::uint8_t>(random.below(5));
    }
  }
  return all;
}

TEST(RandomValues, ReadAsPlainTextAndSetAgainLeaveEveryByteAsItWas) {
  Random random{3101};
  for (const auto& programming : programmings(random)) {
    const auto before = std::make_unique<Programming>(*programming);
    for (const ValueRef value : values_of(*programming)) {
      const std::string text = plain_text(*programming, value);
      ASSERT_FALSE(set_plain(*programming, value, text).refused()) << name(*programming, value);
      ASSERT_TRUE(same_bytes(*programming, *before)) << name(*before, value);
    }
  }
}

TEST(RandomValues, SetIntoAnotherProgrammingAreThereByteForByte) {
  Random random{3102};
  for (const auto& programming : programmings(random)) {
    const auto other = random_programming(Global::model_z320, some_items, random);
    // The two that say how many decimals other values have.
    other->image.SysOpt0 = programming->image.SysOpt0;
    for (std::size_t i = 0; i < other->image.ForeignCurrency.size(); ++i) {
      other->image.ForeignCurrency[i].DecimalPositionForExchangedRate =
          programming->image.ForeignCurrency[i].DecimalPositionForExchangedRate;
    }
    for (const ValueRef value : values_of(*programming)) {
      ASSERT_FALSE(set_plain(*other, value, plain_text(*programming, value)).refused()) << name(*programming, value);
      ASSERT_TRUE(same_value(*programming, value, *other, value)) << name(*programming, value);
    }
  }
}

TEST(RandomValues, SetTheirOwnBitsAndNoOthers) {
  Random random{3103};
  const auto programming = random_programming(Global::model_z320, some_items, random);
  const auto other = random_programming(Global::model_z320, some_items, random);
  other->image.SysOpt0 = programming->image.SysOpt0;
  for (const ValueRef value : values_of(*programming)) {
    auto changed = std::make_unique<Programming>(*other);
    ASSERT_FALSE(set_plain(*changed, value, plain_text(*programming, value)).refused()) << name(*programming, value);
    // What may have changed beside it is put back; then nothing differs.
    const auto put_back = [&](ValueRef each) { copy_value(*other, each, *changed, each); };
    put_back(value);
    if (value.field->bit_above_zero) {
      put_back({value.field->id == "plu.price1" ? &field("plu.has-price1") : &field("plu.has-price2"), value.record});
    }
    if (value.field->oddity == Oddity::one_for_all) {
      for (std::size_t row = 1; row <= value.field->place.count; ++row) put_back({value.field, row});
    }
    ASSERT_TRUE(same_bytes(*changed, *other)) << name(*programming, value);
  }
}

/// Whether no other entry of the field reads so.
bool has_words_of_its_own(const Field& field, const Choice& choice) {
  for (const Choice& other : choices_of(field)) {
    if (&other != &choice && choice_words(other) == choice_words(choice)) return false;
  }
  return true;
}

TEST(RandomValues, TakeEveryChoiceByItsTokenAndItsNumberAndItsWords) {
  Random random{3104};
  const auto programming = random_programming(Global::model_z320, some_items, random);
  reset_catalogue();
  int choices = 0;
  for (const ValueRef value : values_of(*programming)) {
    for (const Choice& choice : choices_of(*value.field)) {
      if (choice.token.empty()) continue;
      ++choices;
      const auto check = [&](auto&& set, const std::string& text) {
        auto changed = std::make_unique<Programming>(*programming);
        ASSERT_FALSE(set(*changed, text).refused()) << value.field->id << ' ' << text;
        EXPECT_EQ(number_of(*changed, value), choice.digit) << value.field->id << ' ' << text;
        EXPECT_EQ(plain_text(*changed, value), choice.token);
        if (value.field->oddity == Oddity::one_for_all) return;
        copy_value(*programming, value, *changed, value);
        ASSERT_TRUE(same_bytes(*changed, *programming)) << value.field->id << ' ' << text;
      };
      const auto plain = [&](Programming& to, const std::string& text) { return set_plain(to, value, text); };
      const auto typed = [&](Programming& to, const std::string& text) { return set_typed(to, value, text); };
      check(plain, std::string{choice.token});
      check(plain, std::to_string(choice.digit));
      if (has_words_of_its_own(*value.field, choice)) check(typed, choice_words(choice));
    }
  }
  EXPECT_GT(choices, 1000);
}

TEST(RandomValues, ThatAreRefusedChangeNothing) {
  Random random{3105};
  constexpr std::string_view wrong[] = {"nonsense", "",     "-",     "1e3",   "99999999999999999999",
                                        "-1",       "<",    "<zz>",  "<0000", "<00 00 00 00",
                                        "1.2.3",    "\xB1", "\\xg0", "\\",    "5,5",
                                        "0.00001"};
  for (const std::uint8_t model : both_models) {
    const auto programming = random_programming(model, some_items, random);
    const auto changed = std::make_unique<Programming>(*programming);
    const auto check = [&](ValueRef value, const Refusal& refusal, std::string_view text) {
      if (refusal.refused()) {
        ASSERT_TRUE(same_values(*changed, *programming)) << value.field->id << ' ' << text;
        ASSERT_FALSE(words(refusal).empty());
      } else {
        *changed = *programming;
      }
    };
    for (const ValueRef value : values_of(*programming)) {
      for (const std::string_view text : wrong) {
        check(value, set_plain(*changed, value, text), text);
        check(value, set_typed(*changed, value, text), text);
      }
    }
  }
}

TEST(RandomValues, AreEachNamedByEveryOneOfTheirBits) {
  Random random{3106};
  const auto programming = random_programming(Global::model_z320, some_items, random);
  std::size_t bits = 0;
  for (const ValueRef value : values_of(*programming)) {
    const Place& place = value.field->place;
    for (std::size_t byte = 0; byte < place.width; ++byte) {
      for (std::uint8_t bit = 0; bit < 8; ++bit) {
        if ((place.mask >> bit & 1) == 0) continue;
        ++bits;
        const std::size_t offset = place.offset_of(value.record) + byte;
        const std::size_t in_file = (place.where == Where::item ? plu_head_size : 2) + offset;
        const auto found = place.where == Where::image ? value_at_image(offset, bit) : value_at_item_file(in_file, bit);
        ASSERT_EQ(found, value) << value.field->id << " of record " << value.record;
      }
    }
  }
  EXPECT_EQ(bits, 8 * (prg_mode_size + pop_up_lists_size + some_items * sizeof(PluRecord)));
}

}  // namespace
}  // namespace ecr::test

#include "fields/reference.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "core/codecs.h"
#include "fields/book.h"

namespace ecr::test {
namespace {

using namespace fields;

class ReferenceTest : public ::testing::Test {
 protected:
  ReferenceTest() {
    programming->items.PluCount = 4;
    for (const auto& [row, code] : {std::pair{0, "7"}, {1, "5901234123457"}, {2, "12"}, {3, "12"}}) {
      number_to_bcds(programming->items.Row[static_cast<std::size_t>(row)].Code, code);
    }
  }

  /// The field's id and the record of what the text names.
  std::string found(std::string_view text) {
    const Found result = find_value(*programming, text);
    if (!result.value) return {};
    return std::string{result.value->field->id} + " " + std::to_string(result.value->record);
  }
  Refusal refusal(std::string_view text) {
    const Found result = find_value(*programming, text);
    EXPECT_FALSE(result.value.has_value()) << text;
    return result.refusal;
  }

  std::unique_ptr<Programming> programming = std::make_unique<Programming>();
};

TEST_F(ReferenceTest, NamesARecordInSquareBrackets) {
  EXPECT_EQ(found("dept[12].price"), "dept.price 12");
  EXPECT_EQ(found(" Dept[ 12 ].Price "), "dept.price 12");
  EXPECT_EQ(found("key[0].function"), "key.function 0");
  EXPECT_EQ(found("pop-plu[5].entry20"), "pop-plu.entry20 5");
  EXPECT_EQ(found("plu[2].price1"), "plu.price1 2");
}

TEST_F(ReferenceTest, NamesAnItemByItsCodeInBraces) {
  EXPECT_EQ(found("plu{5901234123457}.price1"), "plu.price1 2");
  EXPECT_EQ(found("plu{0007}.name"), "plu.name 1");
  EXPECT_EQ(refusal("plu{8}.name"), (Refusal{.why = Why::no_such_item, .what = "8"}));
  EXPECT_EQ(refusal("plu{0}.name").why, Why::no_such_item);
  EXPECT_EQ(refusal("plu{x}.name").why, Why::no_such_item);
  EXPECT_EQ(refusal("plu{12}.name"), (Refusal{.why = Why::several_items, .what = "12", .first = "2"}));
}

TEST_F(ReferenceTest, NamesAValueThatStandsAloneWithoutARecord) {
  EXPECT_EQ(found("print.tax-rate"), "print.tax-rate 1");
  EXPECT_EQ(refusal("print[1].tax-rate"), (Refusal{.why = Why::stands_alone, .what = "print.tax-rate"}));
}

TEST_F(ReferenceTest, RefusesWhatNamesNothing) {
  EXPECT_EQ(refusal("dept[12].colour"), (Refusal{.why = Why::no_such_field, .what = "dept.colour"}));
  EXPECT_EQ(refusal("").why, Why::no_such_field);
  EXPECT_EQ(refusal("dept[12]price").why, Why::not_a_reference);
  EXPECT_EQ(refusal("dept[12.price").why, Why::not_a_reference);
  EXPECT_EQ(refusal("dept[12}.price").why, Why::not_a_reference);
  EXPECT_EQ(refusal("dept[12]").why, Why::not_a_reference);
  const Refusal none = {.why = Why::no_such_record, .what = "dept.price", .first = "1", .second = "99"};
  for (const char* text : {"dept.price", "dept[0].price", "dept[100].price", "dept[x].price", "dept[].price",
                           "dept[-1].price", "dept{12}.price", "dept[99999999999999999999].price"}) {
    EXPECT_EQ(refusal(text), none) << text;
  }
  EXPECT_EQ(refusal("plu[5].price1").second, "4");
}

TEST_F(ReferenceTest, IsWrittenForEveryValueAndReadBack) {
  const References references{*programming};
  std::size_t values = 0;
  each_value(*programming, [&](ValueRef value) {
    ++values;
    EXPECT_EQ(find_value(*programming, references.text(value)).value, value) << references.text(value);
  });
  EXPECT_GT(values, 2000U);
  EXPECT_EQ(reference_text(*programming, {&field("plu.price1"), 2}), "plu{5901234123457}.price1");
  EXPECT_EQ(reference_text(*programming, {&field("plu.price1"), 3}), "plu[3].price1") << "another one has its code";
  EXPECT_EQ(reference_text(*programming, {&field("dept.price"), 12}), "dept[12].price");
  EXPECT_EQ(reference_text(*programming, {&field("print.tax-rate"), 1}), "print.tax-rate");
}

TEST_F(ReferenceTest, FindsTheRowOfACode) {
  EXPECT_EQ(row_of_code(*programming, 12), 3U);
  EXPECT_EQ(row_of_code(*programming, 13), std::nullopt);
}

}  // namespace
}  // namespace ecr::test

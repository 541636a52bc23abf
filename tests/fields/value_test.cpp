#include "fields/value.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "core/catalogue.h"
#include "core/codecs.h"
#include "fields/book.h"

namespace ecr::test {
namespace {

using namespace fields;

class ValueTest : public ::testing::Test {
 protected:
  ValueTest() {
    reset_catalogue();
    programming->model = Global::model_z320;
    programming->image.SysOpt0 = 2;
    programming->items.PluCount = 3;
  }
  ~ValueTest() override { reset_catalogue(); }

  [[nodiscard]] ValueRef at(std::string_view id, std::size_t record = 1) const { return {&field(id), record}; }
  [[nodiscard]] std::string shown(std::string_view id, std::size_t record = 1) const {
    return shown_text(*programming, at(id, record));
  }
  [[nodiscard]] std::string plain(std::string_view id, std::size_t record = 1) const {
    return plain_text(*programming, at(id, record));
  }
  Refusal set(std::string_view id, std::string_view text, std::size_t record = 1) {
    return set_plain(*programming, at(id, record), text);
  }
  Refusal type(std::string_view id, std::string_view text, Manner manner = {}) {
    return set_typed(*programming, at(id), text, manner);
  }

  std::unique_ptr<Programming> programming = std::make_unique<Programming>();
};

TEST_F(ValueTest, AnAmountHasTheDecimalsOfTheProgramming) {
  number_to_bcds(programming->image.Dept[11].Price, "420");
  EXPECT_EQ(shown("dept.price", 12), "4.20");
  EXPECT_EQ(plain("dept.price", 12), "4.20");
  EXPECT_EQ(shown_text(*programming, at("dept.price", 12), {.decimal_sign = ','}), "4,20");
  programming->image.SysOpt0 = 0;
  EXPECT_EQ(plain("dept.price", 12), "420");
  programming->image.SysOpt0 = 3;
  EXPECT_EQ(plain("dept.price", 12), "0.420");
  programming->image.SysOpt0 = 200;
  EXPECT_EQ(plain("dept.price", 12), "420") << "no screen can set that";
}

TEST_F(ValueTest, ARateHasThreeDecimalsAndItsUnit) {
  EXPECT_FALSE(set("vat.rate", "22", 2).refused());
  EXPECT_EQ(bcds_to_number(programming->image.VatRate[1]), "22000");
  EXPECT_EQ(shown("vat.rate", 2), "22.000 %");
  EXPECT_EQ(plain("vat.rate", 2), "22.000");
  EXPECT_FALSE(type("vat.rate", "7,5 %", {.decimal_sign = ','}).refused());
  EXPECT_EQ(plain("vat.rate"), "7.500");
}

TEST_F(ValueTest, AnExchangeRateHasTheDecimalsOfItsRecord) {
  programming->image.ForeignCurrency[1].DecimalPositionForExchangedRate = 3;
  EXPECT_FALSE(set("currency.rate", "12.345", 2).refused());
  EXPECT_EQ(bcds_to_number(programming->image.ForeignCurrency[1].Rate), "12345");
  EXPECT_EQ(shown("currency.rate", 2), "12.345");
}

TEST_F(ValueTest, ANumberShowsItsZeros) {
  EXPECT_FALSE(set("clerk.password", "7").refused());
  EXPECT_EQ(shown("clerk.password"), "007");
  EXPECT_FALSE(set("counter.consecutive", "12").refused());
  EXPECT_EQ(plain("counter.consecutive"), "0000012");
}

TEST_F(ValueTest, AQuantityIsShort) {
  EXPECT_FALSE(set("plu.stock", "-1.25").refused());
  EXPECT_EQ(shown("plu.stock"), "-1.25");
  EXPECT_FALSE(set("plu.stock", "3").refused());
  EXPECT_EQ(plain("plu.stock"), "3");
}

TEST_F(ValueTest, ADepartmentOfAnItemIsTwoDigitsInOneByte) {
  EXPECT_FALSE(set("plu.dept", "12").refused());
  EXPECT_EQ(programming->items.Row[0].LinkDept, 0x12);
  programming->items.Row[0].LinkDept = 0x1A;
  EXPECT_EQ(plain("plu.dept"), "<1a>");
  EXPECT_EQ(shown("plu.dept"), "<1a>");
}

TEST_F(ValueTest, GroupTenIsStoredAsSixteen) {
  EXPECT_FALSE(set("dept.group", "10").refused());
  EXPECT_EQ(programming->image.Dept[0].Group, 16);
  EXPECT_EQ(plain("dept.group"), "10");
  programming->image.Dept[0].Group = 10;
  EXPECT_EQ(plain("dept.group"), "<0a>") << "that would come back as 16";
  EXPECT_EQ(set("dept.group", "11").why, Why::too_high);
}

TEST_F(ValueTest, AChoiceHasATokenAndWords) {
  programming->image.Set18_Print = 0x04;
  EXPECT_EQ(plain("print.tax-rate"), "no");
  EXPECT_EQ(shown("print.tax-rate"), "NO");
  set_message(Key::FRM_ALL_NO, "Nein");
  EXPECT_EQ(shown("print.tax-rate"), "Nein");
  set_message(Key::FRM_ALL_YES, "Ja");
  EXPECT_FALSE(type("print.tax-rate", "ja").refused());
  EXPECT_EQ(programming->image.Set18_Print, 0);
  EXPECT_FALSE(type("print.tax-rate", "1. Nein").refused());
  EXPECT_EQ(plain("print.tax-rate"), "no");
  EXPECT_EQ(set("print.tax-rate", "ja").why, Why::no_such_choice) << "plain text has one language";
  EXPECT_FALSE(set("print.tax-rate", "YES").refused());
}

TEST_F(ValueTest, AValueOutsideOfTheChoicesIsItsByte) {
  programming->image.Set04_InitialMenu = 4;
  EXPECT_EQ(plain("initial.rounding"), "<04>");
  EXPECT_EQ(shown("initial.rounding"), "4");
  programming->image.Dept[0].Status1 = 0xF7;
  EXPECT_EQ(plain("dept.limit"), "<f0>") << "the field's bits at their places";
  EXPECT_FALSE(set("dept.limit", "<50>").refused());
  EXPECT_EQ(programming->image.Dept[0].Status1, 0x57);
  EXPECT_EQ(set("dept.limit", "<57>").why, Why::not_its_bits);
  EXPECT_EQ(set("dept.limit", "<5>").why, Why::not_its_bytes);
  EXPECT_EQ(type("dept.limit", "<50>").why, Why::no_such_choice) << "nobody types bytes";
}

TEST_F(ValueTest, AKeyIsCalledAsItsFunction) {
  programming->image.KeyLayout[5] = 24;
  EXPECT_EQ(shown("key.function", 5), "SUBTOTAL");
  programming->image.KeyLayout[5] = 7;
  EXPECT_EQ(plain("key.function", 5), "7");
  EXPECT_FALSE(set("key.function", "dept 3", 5).refused());
  EXPECT_EQ(programming->image.KeyLayout[5], 84);
  EXPECT_FALSE(set("key.function", "39", 5).refused()) << "paid out has no name";
  EXPECT_EQ(set("key.function", "256", 5).why, Why::no_such_choice);
  EXPECT_EQ(set("key.function", "DEPT 21", 5).why, Why::no_such_choice);
}

TEST_F(ValueTest, ATextComesInItsCharacters) {
  EXPECT_FALSE(set("dept.name", "Caf\xE9").refused());
  EXPECT_EQ(programming->image.Dept[0].Name.view(), "Caf\xF0        ");
  EXPECT_EQ(shown("dept.name"), "Caf\xE9");
  EXPECT_EQ(set("dept.name", "thirteen long").first, "12");
  EXPECT_EQ(set("dept.name", "thirteen long").why, Why::too_long);
  EXPECT_FALSE(set("dept.name", "twelve long     ").refused()) << "blanks at the end fill the field anyway";
  EXPECT_EQ(set("dept.name", "50 \xB1").why, Why::no_such_character);
  EXPECT_FALSE(type("dept.name", "a\\x41").refused());
  EXPECT_EQ(shown("dept.name"), "a\\x41");
  EXPECT_EQ(plain("dept.name"), "a\\\\x41");
}

TEST_F(ValueTest, LimitsAreSaidAsPeopleWriteThem) {
  const Refusal refusal = set("dept.price", "100000");
  EXPECT_EQ(refusal.why, Why::too_high);
  EXPECT_EQ(refusal.what, "100000");
  EXPECT_EQ(refusal.first, "0.00");
  EXPECT_EQ(refusal.second, "99999.99");
  EXPECT_EQ(set("dept.price", "-1").why, Why::too_low);
  EXPECT_EQ(set("dept.price", "4.205").why, Why::too_many_decimals);
  EXPECT_EQ(set("dept.price", "4,20").why, Why::no_number);
  EXPECT_EQ(type("dept.price", "4,2", {.decimal_sign = ','}).why, Why::taken);
  EXPECT_EQ(plain("dept.price"), "4.20");
  const ShownLimits limits = limits_of(*programming, at("vat.rate"), {.decimal_sign = ','});
  EXPECT_EQ(limits.lowest, "0,000");
  EXPECT_EQ(limits.highest, "99,999");
  EXPECT_EQ(limits_of(*programming, at("dept.name")).highest, "");
}

TEST_F(ValueTest, AValueAboveItsLimitIsShownAndKept) {
  number_to_bcds(programming->image.VatRate[0], "123456");
  EXPECT_EQ(shown("vat.rate"), "123.456 %");
  EXPECT_EQ(plain("vat.rate"), "<56341200>");
  EXPECT_FALSE(set("vat.rate", "<56341200>").refused());
  EXPECT_EQ(set("vat.rate", "123.456").why, Why::too_high);
}

TEST_F(ValueTest, APriceTakesItsFlagAlong) {
  PluRecord& item = programming->items.Row[0];
  item.Flags1 = 0x1C;
  EXPECT_FALSE(set("plu.price1", "4.20").refused());
  EXPECT_EQ(item.Flags1, 0x5C);
  EXPECT_FALSE(set("plu.price2", "1").refused());
  EXPECT_EQ(item.Flags1, 0xDC);
  EXPECT_FALSE(set("plu.price1", "0").refused());
  EXPECT_EQ(item.Flags1, 0x9C);
  item.Flags1 = 0;
  EXPECT_FALSE(set("plu.price2", "1.00").refused());
  EXPECT_EQ(item.Flags1, 0) << "it was 1.00 already: nothing changes";
}

TEST_F(ValueTest, TheStockChoiceIsOneForAllItems) {
  programming->items.Row[2].Flags1 = 0x43;
  EXPECT_FALSE(set("plu.keep-stock", "yes").refused());
  EXPECT_EQ(programming->items.Row[0].Flags1, 0x20);
  EXPECT_EQ(programming->items.Row[2].Flags1, 0x63);
  EXPECT_EQ(programming->items.Row[2999].Flags1, 0x20);
}

TEST_F(ValueTest, WhatTheModelLacksIsLeftAlone) {
  programming->model = Global::model_z300;
  EXPECT_EQ(set("clerk.extra-invoice", "disabled").why, Why::not_on_this_model);
  EXPECT_EQ(programming->image.Clerk[0].Rights, 0);
  EXPECT_FALSE(set("clerk.extra-invoice", "enabled").refused()) << "it is that already";
}

TEST_F(ValueTest, ARecordThatIsNotThereIsToldWithThoseThatAre) {
  const Refusal department = set("dept.price", "1", 100);
  EXPECT_EQ(department, (Refusal{.why = Why::no_such_record, .what = "dept.price", .first = "1", .second = "99"}));
  EXPECT_EQ(set("dept.price", "1", 0).why, Why::no_such_record);
  EXPECT_EQ(set("plu.price1", "1", 4).second, "3") << "the items that are counted";
  EXPECT_EQ(set("key.function", "7", 89).second, "88");
}

TEST_F(ValueTest, AChangeIsMarkedForTheSend) {
  mark_changed(*programming, at("plu.price1", 2));
  EXPECT_EQ(programming->items.Row[1].SendFlag, 1);
  mark_changed(*programming, at("dept.name", 3));
  EXPECT_EQ(programming->image.Dept[2].Changed, 1);
  EXPECT_EQ(programming->image.Dept[2].Status1, 0x08);
  const Programming before = *programming;
  mark_changed(*programming, at("vat.rate"));
  EXPECT_EQ(std::memcmp(&before.image, &programming->image, sizeof before.image), 0);
}

}  // namespace
}  // namespace ecr::test

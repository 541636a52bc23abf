#include "fields/book.h"

#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "fields/names.h"

namespace ecr::test {
namespace {

using namespace fields;

TEST(Book, HasItsSectionsInTheOrderOfTheMenus) {
  ASSERT_EQ(sections().size(), section_count);
  EXPECT_EQ(sections().front().screen, "FrmSetVatRate");
  EXPECT_EQ(sections()[1].screen, "FrmDepartmentProgram");
  EXPECT_EQ(section_row(Section::print_mode).screen, "FrmPrintMode");
  EXPECT_EQ(sections().back().id, "carried");
}

TEST(Book, FindsAFieldByItsId) {
  EXPECT_EQ(field("vat.rate").place.offset, 38U);
  EXPECT_EQ(field("dept.price").place.offset, 329U + 18U);
  EXPECT_EQ(field("dept.price").place.stride, 22U);
  EXPECT_EQ(field("clerk.void").place.mask, 0x01);
  EXPECT_EQ(field("plu.price1").place.where, Where::item);
  EXPECT_EQ(field("print.tax-rate").place.offset, 18U);
  EXPECT_EQ(field("print.tax-rate").section, Section::print_mode);
  EXPECT_EQ(field_with_id("vat"), nullptr);
  EXPECT_EQ(field_with_id(""), nullptr);
  EXPECT_THROW(static_cast<void>(field("dept.colour")), std::logic_error);
}

TEST(Book, WalksOverARecordBeforeTheNextOne) {
  const auto programming = std::make_unique<Programming>();
  std::vector<ValueRef> departments;
  each_value(*programming, Section::departments, [&](ValueRef value) { departments.push_back(value); });
  const std::size_t fields = fields_of(Section::departments).size();
  ASSERT_EQ(departments.size(), 99 * fields);
  EXPECT_EQ(departments[0].field->id, "dept.name");
  EXPECT_EQ(departments[1].field->id, "dept.price");
  EXPECT_EQ(departments[1].record, 1U);
  EXPECT_EQ(departments[fields].field->id, "dept.name");
  EXPECT_EQ(departments[fields].record, 2U);
}

TEST(Book, WalksOverTheItemsThatAreCounted) {
  auto programming = std::make_unique<Programming>();
  const auto items = [&] {
    std::size_t values = 0;
    each_value(*programming, Section::items, [&](ValueRef) { ++values; });
    return values / fields_of(Section::items).size();
  };
  EXPECT_EQ(items(), 0U);
  programming->items.PluCount = 7;
  EXPECT_EQ(items(), 7U);
  programming->items.PluCount = -3;
  EXPECT_EQ(items(), 0U);
  programming->items.PluCount = 32000;
  EXPECT_EQ(items(), 3000U);
}

TEST(Book, KnowsWhatIsAtAByte) {
  EXPECT_EQ(value_at_image(38)->field->id, "vat.rate");
  EXPECT_EQ(value_at_image(45)->record, 2U);
  EXPECT_EQ(value_at_image(9, 2)->field->id, "initial.key-tone");
  EXPECT_EQ(value_at_image(9, 3)->field->id, "carried.byte-9");
  EXPECT_EQ(value_at_image(329 + 22 * 11 + 12, 4)->field->id, "dept.limit");
  EXPECT_EQ(value_at_image(329 + 22 * 11 + 12, 4)->record, 12U);
  EXPECT_EQ(value_at_image(5567)->record, 0U) << "positions of the keyboard count from 0";
  EXPECT_EQ(value_at_image(5655)->field->id, "key.function");
  EXPECT_FALSE(value_at_image(5656).has_value());
  EXPECT_FALSE(value_at_image(0, 8).has_value());

  EXPECT_FALSE(value_at_item_file(1).has_value());
  EXPECT_EQ(value_at_item_file(2 + 160 + 8)->field->id, "pop-plu.entry2");
  EXPECT_EQ(value_at_item_file(2 + 160 + 8)->record, 2U);
  EXPECT_EQ(value_at_item_file(802 + 44 * 4 + 28)->field->id, "plu.price1");
  EXPECT_EQ(value_at_item_file(802 + 44 * 4 + 28)->record, 5U);
  EXPECT_FALSE(value_at_item_file(802 + 44 * 3000).has_value());
  EXPECT_FALSE(value_at_item(1, 44).has_value());
}

TEST(Book, KnowsWhichModelHasWhat) {
  EXPECT_TRUE(is_on_model(field("vat.rate"), Global::model_z300));
  EXPECT_FALSE(is_on_model(field("clerk.extra-invoice"), Global::model_z300));
  EXPECT_TRUE(is_on_model(field("clerk.extra-invoice"), Global::model_z320));
  EXPECT_FALSE(is_on_model(field("hospitality.table-compulsory"), Global::model_z300)) << "no menu leads there";
}

TEST(Book, KnowsTheControlOfAValue) {
  auto programming = std::make_unique<Programming>();
  const auto control = [&](std::string_view id, std::size_t record) {
    return control_of(*programming, {&field(id), record});
  };
  EXPECT_EQ(control("vat.rate", 2), "E_VatRate(2)");
  EXPECT_EQ(control("tender.drawer", 1), "Cmb_Drawer(0)");
  EXPECT_EQ(control("dept.price", 12), "E_Price");
  EXPECT_EQ(control("pop-plu.entry7", 3), "E_Plu3(7)");
  EXPECT_EQ(control("print.tax-rate", 1), "Cmb_TaxRatePrint");
  EXPECT_EQ(control("carried.byte-9", 1), "");
  EXPECT_EQ(control("key.function", 1), "L_key(7)");
  EXPECT_EQ(control("key.function", 0), "");
  programming->model = Global::model_z320;
  EXPECT_EQ(control("key.function", 1), "L_key2(11)");
}

TEST(Book, LeavesNoFieldWithoutANameInAnyLanguage) {
  for (const SectionRow& section : sections()) {
    EXPECT_FALSE(name_of(section.section).empty()) << section.id;
    for (const Field& each : section.fields) EXPECT_FALSE(name_of(each).empty()) << each.id;
  }
}

}  // namespace
}  // namespace ecr::test

#include "image/layout.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace ecr::test {
namespace {

TEST(ImageLayout, TellsWhatStandsAtAByte) {
  const std::vector<std::pair<std::size_t, std::string>> rows = {
      {0, "Set00_InitialMenu"},
      {21, "Spare4, byte 0"},
      {24, "Spare4, byte 3"},
      {31, "Perm0, byte 1"},
      {38, "VatRate[1], byte 0"},
      {53, "VatRate[4], byte 3"},
      {94, "InstoreBarcode[1].FlagCode, byte 0"},
      {96, "InstoreBarcode[1].DigitsOfFlag"},
      {173, "InstoreBarcode[10].NewsPaper"},
      {209, "AdvSet8[5], byte 1"},
      {328, "SysOpt2[3]"},
      {329, "Dept[1].Name, byte 0"},
      {347, "Dept[1].Price, byte 0"},
      {482, "Dept[7].Price, byte 3"},
      {2506, "Dept[99].Price, byte 3"},
      {2507, "Clerk[1].Name, byte 0"},
      {2923, "Clerk[15].Rights"},
      {2987, "ForeignCurrency[4].Rate, byte 0"},
      {3116, "Tender[9].Options"},
      {5567, "KeyLayout[0]"},
      {5655, "KeyLayout[88]"},
      {5656, ""},
      {1000000, ""},
  };
  for (const auto& [offset, text] : rows) EXPECT_EQ(describe_image_byte(offset), text) << offset;
}

TEST(ImageLayout, EveryByteBelongsToOneFieldWithADescriptionOfItsOwn) {
  std::set<std::string> descriptions;
  for (std::size_t offset = 0; offset < prg_mode_size; ++offset) {
    const BytePlace place = place_of_byte(image_fields, offset);
    ASSERT_NE(place.field, nullptr) << offset;
    ASSERT_TRUE(place.field->has(place.number)) << offset;
    ASSERT_EQ(place.field->offset_of(place.number) + place.byte, offset);
    ASSERT_TRUE(descriptions.insert(describe_image_byte(offset)).second) << describe_image_byte(offset);
  }
}

TEST(ImageLayout, TellsWhatStandsInAnItem) {
  const std::vector<std::pair<std::size_t, std::string>> rows = {
      {0, "Plu.Code"},         {8, "Plu.Name"},        {24, "Plu.Flags1"}, {25, "Plu.LinkDept"},
      {26, "Plu.Tax"},         {27, "Plu.TakeOutTax"}, {28, "Plu.Price1"}, {32, "Plu.Price2"},
      {36, "Plu.PluListLink"}, {37, "Plu.SendFlag"},   {38, "Plu.Stock"},
  };
  for (const auto& [offset, name] : rows) {
    const BytePlace place = place_of_byte(item_fields, offset);
    ASSERT_NE(place.field, nullptr) << offset;
    EXPECT_EQ(place.field->name, name);
    EXPECT_EQ(place.byte, 0U);
  }
  for (std::size_t offset = 0; offset < 44; ++offset) {
    const BytePlace place = place_of_byte(item_fields, offset);
    ASSERT_NE(place.field, nullptr) << offset;
    EXPECT_EQ(place.field->offset_of(place.number) + place.byte, offset);
  }
  EXPECT_EQ(place_of_byte(item_fields, 44).field, nullptr);
  EXPECT_EQ(field_named(item_fields, "Plu.Stock")->width, 6U);
}

TEST(ImageLayout, TellsAFieldsKindNumberAndDistance) {
  EXPECT_EQ(field_named(image_fields, "Dept.Name")->kind, FieldKind::text);
  EXPECT_EQ(field_named(image_fields, "Dept.Price")->kind, FieldKind::bcd);
  EXPECT_EQ(field_named(image_fields, "Dept.Status1")->kind, FieldKind::byte);
  EXPECT_EQ(field_named(image_fields, "Spare4")->kind, FieldKind::opaque);
  EXPECT_EQ(field_named(image_fields, "Dept.Price")->count, 99U);
  EXPECT_EQ(field_named(image_fields, "Dept.Price")->stride, 22U);
  EXPECT_EQ(field_named(image_fields, "Plu.Stock"), nullptr) << "it belongs to the items";
}

TEST(ImageLayout, FindsAFieldByItsExactName) {
  const FieldPlace* price = field_named(image_fields, "Dept.Price");
  ASSERT_NE(price, nullptr);
  EXPECT_EQ(price->offset_of(1), 347U);
  EXPECT_EQ(price->offset_of(2), 369U);
  EXPECT_TRUE(price->has(99));
  EXPECT_FALSE(price->has(0) || price->has(100));
  EXPECT_EQ(price->kind, FieldKind::bcd);
  const FieldPlace* keys = field_named(image_fields, "KeyLayout");
  ASSERT_NE(keys, nullptr);
  EXPECT_TRUE(keys->has(0) && keys->has(88));
  EXPECT_FALSE(keys->has(89)) << "positions of the keyboard count from 0";
  EXPECT_EQ(field_named(image_fields, "dept.price"), nullptr);
  EXPECT_EQ(field_named(image_fields, "Dept"), nullptr);
  EXPECT_EQ(field_named(image_fields, ""), nullptr);
}

}  // namespace
}  // namespace ecr::test

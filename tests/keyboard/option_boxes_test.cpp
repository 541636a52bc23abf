#include "keyboard/option_boxes.h"

#include <array>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

#include "core/global.h"
#include "support/random.h"

namespace ecr::test {
namespace {

const OptionBox& box(std::string_view control) {
  for (const auto rows : {chain_boxes(), pop_boxes()}) {
    for (const OptionBox& row : rows) {
      if (row.control == control) return row;
    }
  }
  throw std::runtime_error{"no such box"};
}

/// Storing either way changes the box's bit and no other one, whatever the record holds.
void expect_own_bit_only(std::span<const OptionBox> boxes, std::size_t record_size) {
  Random random{7};
  for (const OptionBox& row : boxes) {
    for (const bool ticked : {false, true}) {
      std::vector<Flags> record(record_size);
      for (Flags& byte : record) byte = random.byte();
      std::vector<Flags> expected = record;
      const auto mask = static_cast<Flags>(1U << row.bit);
      expected[row.byte] = static_cast<Flags>(ticked ? expected[row.byte] | mask : expected[row.byte] & ~mask);
      store_tick(record, row, ticked);
      EXPECT_EQ(record, expected) << row.control;
      if (row.loads == LoadsFrom::own_bit) {
        EXPECT_EQ(is_ticked(record, row), ticked) << row.control;
      }
    }
  }
}

TEST(OptionBoxes, OfAChainStoreTheirOwnBitOnly) {
  expect_own_bit_only(chain_boxes(), chain_record_size);
}

TEST(OptionBoxes, OfAPopUpListStoreTheirOwnBitOnly) {
  expect_own_bit_only(pop_boxes(), pop_record_size);
}

TEST(OptionBoxes, PluInquiryIsLoadedFromTheBitOfPaidOut) {
  std::array<Flags, pop_record_size> record{};
  store_tick(record, box("Chk_PluInquiry"), true);
  EXPECT_EQ(record[3], 1);
  EXPECT_FALSE(is_ticked(record, box("Chk_PluInquiry")));
  record = {};
  store_tick(record, box("Chk_PO"), true);
  EXPECT_EQ(record[2], 1);
  EXPECT_TRUE(is_ticked(record, box("Chk_PluInquiry")));
  int odd = 0;
  for (const OptionBox& row : pop_boxes()) odd += row.loads == LoadsFrom::own_bit ? 0 : 1;
  EXPECT_EQ(odd, 1);
}

TEST(OptionBoxes, FourCaptionsAreTheNamesOfTheBoxesBefore) {
  EXPECT_EQ(box("Chk_P1").caption, "Chk_FC");
  EXPECT_EQ(box("Chk_P2").caption, "Chk_P1");
  EXPECT_EQ(box("ChK_PM1").caption, "Chk_P2");
  EXPECT_EQ(box("ChK_PM2").caption, "ChK_PM1");
}

TEST(OptionBoxes, AllButOneHaveATextInTheCatalogue) {
  std::set<std::string_view> without;
  for (const auto rows : {chain_boxes(), pop_boxes()}) {
    for (const OptionBox& row : rows) {
      if (!row.key) without.insert(row.control);
    }
  }
  EXPECT_EQ(without, std::set<std::string_view>{"Chk_SalesClerk"});
}

TEST(OptionBoxes, TheDefaultTicksOfEachListDependOnTheModel) {
  using Names = std::set<std::string_view>;
  const auto ticked = [](int list, std::uint8_t model) {
    Names names;
    for (const OptionBox& row : pop_boxes()) {
      if (is_default_tick(list, row, model)) names.insert(row.control);
    }
    return names;
  };
  const Names percents = {"Chk_P1", "Chk_P2", "ChK_PM1", "ChK_PM2"};
  const Names payments = {"Chk_Check", "Chk_Charge", "Chk_Credit2", "Chk_Credit3", "Chk_Credit4", "Chk_Credit5"};
  const Names drawer = {"Chk_RA", "Chk_PO"};
  for (const auto model : {Global::model_z300, Global::model_z320}) {
    EXPECT_EQ(ticked(0, model), percents);
    EXPECT_EQ(ticked(2, model), payments);
    EXPECT_EQ(ticked(3, model), drawer);
  }
  EXPECT_EQ(ticked(1, Global::model_z300), Names({"Chk_Void", "Chk_FullVoid"}));
  EXPECT_EQ(ticked(1, Global::model_z320), Names({"Chk_Void", "Chk_FullVoid", "Chk_Refund"}));
  EXPECT_EQ(ticked(4, Global::model_z300), Names({"ChK_TakeOut", "Chk_FC"}));
  EXPECT_EQ(ticked(4, Global::model_z320), Names{});
}

}  // namespace
}  // namespace ecr::test

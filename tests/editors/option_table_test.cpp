#include "editors/option_table.h"

#include <array>
#include <gtest/gtest.h>

#include "core/catalogue.h"
#include "editors/option_list.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

constexpr Choice yes_no[] = {{.digit = 0, .literal = "0. YES", .text = Key::FRM_ALL_YES},
                             {.digit = 1, .literal = "1. NO", .text = Key::FRM_ALL_NO}};
constexpr Choice no_point[] = {{.digit = 0, .literal = "0 YES"}, {.digit = 1, .literal = "1. NO"}};

constexpr OptionRow row(std::string_view control, OptionPlace place, std::string_view label = "L_Any") {
  return {.control = control, .label = label, .choices = yes_no, .place = place};
}

TEST(OptionTable, ASoundOneHasNoComplaint) {
  constexpr std::array rows = {row("A", bit_at(9, 0), "L_A"), row("B", bit_at(9, 7), "L_B"),
                               row("C", byte_at(10), "L_C")};
  EXPECT_EQ(complaint_about(rows, 11), nullptr);
  EXPECT_EQ(owned_bits(rows, 9), 0x81);
  EXPECT_EQ(owned_bits(rows, 10), 0xFF);
  EXPECT_EQ(owned_bits(rows, 8), 0);
}

TEST(OptionTable, EachMistakeIsFound) {
  const auto complaint = [](std::vector<OptionRow> rows) -> std::string {
    const char* text = complaint_about(rows, 11);
    return text == nullptr ? "" : text;
  };
  EXPECT_EQ(complaint({row("A", byte_at(11))}), "a place outside of the image or the record");
  EXPECT_EQ(complaint({row("A", bit_at(1, 8))}), "a byte has bits 0 to 7");
  EXPECT_EQ(complaint({row("", byte_at(1))}), "a control without a name");
  EXPECT_EQ(complaint({row("A", bit_at(1, 2), "L_A"), row("B", bit_at(1, 2), "L_B")}), "two lists own one bit");
  EXPECT_EQ(complaint({row("A", bit_at(1, 2), "L_A"), row("B", byte_at(1), "L_B")}), "two lists own one bit");
  EXPECT_EQ(complaint({row("A", bit_at(1, 2), "L_A"), row("A", byte_at(2), "L_B")}), "two controls of one name");
  EXPECT_EQ(complaint({row("A", bit_at(1, 2), "L_A"), row("B", byte_at(2), "L_A")}), "two controls of one name");

  OptionRow bad = row("A", bit_at(1, 2));
  bad.choices = {};
  EXPECT_EQ(complaint({bad}), "a list without entries");
  bad.choices = std::span{yes_no}.first(1);
  EXPECT_EQ(complaint({bad}), "a bit has two entries");
  bad.choices = no_point;
  EXPECT_EQ(complaint({bad}), "a literal begins with a digit and a point");
  bad = row("A", byte_at(1));
  bad.load = OptionLoad::other_way_round;
  EXPECT_EQ(complaint({bad}), "only a bit can be turned");
  bad = row("A", bit_at(1, 2));
  bad.saved_from = "B";
  EXPECT_EQ(complaint({bad}), "saved from a list that is not there");
}

TEST(OptionEntry, ReadsAsItsKeysSay) {
  reset_catalogue();
  const Choice crossed{.digit = 3, .literal = "3. GERMAN", .text = Key::FRM_ALL_YES, .decides = Key::FRM_ALL_NO};
  EXPECT_EQ(entry_of(crossed), QStringLiteral("3. GERMAN"));
  set_message(Key::FRM_ALL_YES, "Deutsch");
  EXPECT_EQ(entry_of(crossed), QStringLiteral("3. GERMAN"));
  set_message(Key::FRM_ALL_NO, "any");
  EXPECT_EQ(entry_of(crossed), QStringLiteral("3. Deutsch"));
  set_message(Key::FRM_ALL_YES, "");
  EXPECT_EQ(entry_of(crossed), QStringLiteral("3. "));
  const Choice without_blank{.digit = 0, .literal = "1. DISCOUNT", .text = Key::FRM_ALL_ADDON, .prefix = Prefix::point};
  EXPECT_EQ(entry_of(without_blank), QStringLiteral("1. DISCOUNT"));
  set_message(Key::FRM_ALL_ADDON, "Add on");
  EXPECT_EQ(entry_of(without_blank), QStringLiteral("0.Add on"));
  EXPECT_EQ(entry_of({.digit = 2, .literal = "2. 1.5 mm"}), QStringLiteral("2. 1.5 mm"));
  EXPECT_EQ(entry_of({.digit = 4}), QString{});
  reset_catalogue();
}

}  // namespace
}  // namespace ecr::test

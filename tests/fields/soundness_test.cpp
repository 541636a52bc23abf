// Each mistake that the compiler's check of the rows is there for.

#include "fields/soundness.h"

#include <array>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "fields/rows/choices.h"

namespace ecr::test {
namespace {

using namespace fields;

constexpr std::size_t size = 11;
constexpr Choice no_point[] = {{.digit = 0, .token = "yes", .literal = "0 YES"},
                               {.digit = 1, .token = "no", .literal = "1. NO"}};
constexpr Choice no_token[] = {{.digit = 0, .literal = "0. YES"}, {.digit = 1, .token = "no", .literal = "1. NO"}};
constexpr Choice twice[] = {{.digit = 0, .token = "no", .literal = "0. YES"},
                            {.digit = 1, .token = "no", .literal = "1. NO"}};
constexpr Choice crossed[] = {{.digit = 0, .token = "1", .literal = "0. YES"},
                              {.digit = 1, .token = "0", .literal = "1. NO"}};
constexpr Choice too_high[] = {{.digit = 0, .token = "a", .literal = "0. A"},
                               {.digit = 2, .token = "b", .literal = "2. B"}};

constexpr Place bit(std::size_t offset, int number) {
  return {.offset = offset, .mask = static_cast<std::uint8_t>(1U << number)};
}
constexpr Place byte(std::size_t offset) {
  return {.offset = offset};
}

constexpr Field row(std::string_view id, std::string_view control, Place place, std::string_view label = "L_Any") {
  return {.id = id, .name = {.built_in = "Any"}, .place = place, .choices = yes_no, .edited = {control, label}};
}

std::string complaint(std::vector<Field> rows) {
  const char* text = complaint_about(rows, size);
  return text == nullptr ? "" : text;
}

TEST(Soundness, OfSoundRowsHasNoComplaint) {
  constexpr std::array rows = {row("a.a", "A", bit(9, 0), "L_A"), row("a.b", "B", bit(9, 7), "L_B"),
                               row("a.c", "C", byte(10), "L_C")};
  static_assert(sound(rows, size));
  EXPECT_EQ(owned_bits(rows, 9), 0x81);
  EXPECT_EQ(owned_bits(rows, 10), 0xFF);
  EXPECT_EQ(owned_bits(rows, 8), 0);
}

TEST(Soundness, FindsAWrongPlace) {
  EXPECT_EQ(complaint({row("a.a", "A", byte(11))}), "a place outside of its part");
  EXPECT_EQ(complaint({row("a.a", "A", {.offset = 1, .mask = 0})}), "a place without bits");
  EXPECT_EQ(complaint({row("a.a", "A", {.offset = 1, .mask = 0x05})}), "bits that do not lie next to each other");
  EXPECT_EQ(complaint({row("a.a", "A", {.offset = 1, .count = 2})}), "records that lie over each other");
  EXPECT_EQ(complaint({row("a.a", "A", {.offset = 1, .count = 6, .stride = 2})}), "a place outside of its part");
  EXPECT_EQ(complaint({row("a.a", "A", {.stored = Stored::packed, .offset = 1, .width = 2, .mask = 1})}),
            "bits of more than a byte");
  EXPECT_EQ(complaint({row("a.a", "A", {.offset = 1, .width = 2})}), "a number in more than a byte");
}

TEST(Soundness, FindsWhatTwoRowsShare) {
  const Field first = row("a.a", "A", bit(1, 2), "L_A");
  EXPECT_EQ(complaint({first, row("a.b", "B", bit(1, 2), "L_B")}), "two fields own one bit");
  EXPECT_EQ(complaint({first, row("a.b", "B", byte(1), "L_B")}), "two fields own one bit");
  EXPECT_EQ(complaint({first, row("a.b", "A", byte(2), "L_B")}), "two controls of one name");
  EXPECT_EQ(complaint({first, row("a.b", "B", byte(2), "L_A")}), "two labels of one name");
  EXPECT_EQ(complaint({first, row("a.a", "B", byte(2), "L_B")}), "two fields of one id");
}

TEST(Soundness, FindsAWrongChoice) {
  const auto with = [](std::span<const Choice> choices, Place place) {
    Field bad = row("a.a", "A", place);
    bad.choices = choices;
    return complaint({bad});
  };
  EXPECT_EQ(with({}, bit(1, 2)), "a list without entries");
  EXPECT_EQ(with(std::span{yes_no}.first(1), bit(1, 2)), "a bit has two entries");
  EXPECT_EQ(with(no_point, bit(1, 2)), "a literal begins with a digit and a point");
  EXPECT_EQ(with(no_token, bit(1, 2)), "an entry without a plain text");
  EXPECT_EQ(with(twice, bit(1, 2)), "two entries for one value");
  EXPECT_EQ(with(crossed, bit(1, 2)), "a token that is another's digit");
  EXPECT_EQ(with(too_high, bit(1, 2)), "an entry has one digit");
  EXPECT_EQ(with(too_high, byte(1)), "");
}

TEST(Soundness, FindsAWrongRow) {
  Field bad = row("a.a", "A", byte(1));
  bad.load = OptionLoad::other_way_round;
  EXPECT_EQ(complaint({bad}), "only a bit can be turned");
  bad = row("a.a", "A", bit(1, 2));
  bad.saved_from = "B";
  EXPECT_EQ(complaint({bad}), "saved from a list that is not there");
  bad = row("a.a", "A", bit(1, 2));
  bad.name = {};
  EXPECT_EQ(complaint({bad}), "a field without a name");
  bad = row("a.a", "A", byte(1));
  bad.coding = Coding::number;
  EXPECT_EQ(complaint({bad}), "choices of what is no choice");
  bad.choices = {};
  bad.limits = {.highest = 256};
  EXPECT_EQ(complaint({bad}), "limits without room");
  bad.coding = Coding::text;
  EXPECT_EQ(complaint({bad}), "a text is stored as text");
}

TEST(Soundness, KnowsAnId) {
  for (const char* id : {"vat.rate", "plu.price1", "clerk-setup.password-each-time", "percent1.limit"}) {
    EXPECT_TRUE(is_id(id)) << id;
  }
  for (const char* id : {"", "vat", "vat.", ".rate", "Vat.rate", "vat rate.x", "a.b.c", "1a.b", "a.b-", "a_b.c"}) {
    EXPECT_FALSE(is_id(id)) << id;
  }
}

}  // namespace
}  // namespace ecr::test

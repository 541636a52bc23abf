#include "image/fields.h"

#include <cstring>
#include <gtest/gtest.h>
#include <string>

#include "core/codecs.h"

namespace ecr::test {
namespace {

TEST(ImageFields, ATextIsCutAtItsWidthOrFilledWithBlanks) {
  Text<5> text{};
  EXPECT_EQ(text.view(), std::string(5, '\0'));
  text.set("ab");
  EXPECT_EQ(text.view(), "ab   ");
  text.set("abcdefg");
  EXPECT_EQ(text.view(), "abcde");
  text.set("");
  EXPECT_EQ(text.view(), "     ");
  EXPECT_EQ(Text<5>::width, 5U);
}

TEST(ImageFields, ATextTakesAnyBytes) {
  Text<4> text{};
  text.set(std::string_view{"\0\xFF\x9A", 3});
  EXPECT_EQ(text.view(), (std::string_view{"\0\xFF\x9A ", 4}));
}

TEST(ImageFields, APackedNumberIsReadAndWrittenThroughTheCodecs) {
  Bcd<4> field{};
  number_to_bcds(field, "123456");
  EXPECT_EQ(field, (Bcd<4>{{0x56, 0x34, 0x12, 0x00}}));
  EXPECT_EQ(bcds_to_number(field), "123456");
  const Bcd<4>& constant = field;
  EXPECT_EQ(bcds_to_number(constant), "123456");
}

TEST(ImageFields, FieldsAreEqualWhenAllTheirBytesAre) {
  Opaque<3> a{{1, 2, 3}};
  Opaque<3> b = a;
  EXPECT_EQ(a, b);
  b.bytes[2] = 4;
  EXPECT_NE(a, b);
  EXPECT_NE((Bcd<2>{{1, 2}}), (Bcd<2>{{1, 3}}));
  Text<2> c{};
  Text<2> d{};
  c.set("x");
  d.set("x ");
  EXPECT_EQ(c, d);
}

}  // namespace
}  // namespace ecr::test

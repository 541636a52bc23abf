#include "core/code_page.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <utility>

namespace ecr::test {
namespace {

// Where the page differs from Latin-1.
constexpr std::pair<int, char16_t> of_its_own[] = {
    {128, u'\u20AC'}, {130, u'\u201A'}, {131, u'\u0192'}, {132, u'\u201E'}, {133, u'\u2026'}, {134, u'\u2020'},
    {135, u'\u2021'}, {136, u'\u02C6'}, {137, u'\u2030'}, {138, u'\u0160'}, {139, u'\u2039'}, {140, u'\u0152'},
    {142, u'\u017D'}, {145, u'\u2018'}, {146, u'\u2019'}, {147, u'\u201C'}, {148, u'\u201D'}, {149, u'\u2022'},
    {150, u'\u2013'}, {151, u'\u2014'}, {152, u'\u02DC'}, {153, u'\u2122'}, {154, u'\u0161'}, {155, u'\u203A'},
    {156, u'\u0153'}, {158, u'\u017E'}, {159, u'\u0178'},
};

TEST(CodePage, TwentySevenCodesDifferFromLatin1) {
  std::set<int> different;
  for (const auto& [code, unicode] : of_its_own) {
    different.insert(code);
    EXPECT_EQ(unicode_of(static_cast<unsigned char>(code)), unicode) << code;
    EXPECT_EQ(code_of(unicode), code);
  }
  EXPECT_EQ(different.size(), 27U);
  for (int code = 0; code < 256; ++code) {
    if (different.contains(code)) continue;
    EXPECT_EQ(unicode_of(static_cast<unsigned char>(code)), code) << code;
    EXPECT_EQ(code_of(static_cast<char16_t>(code)), code);
  }
}

TEST(CodePage, EveryByteComesBackAsItself) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(static_cast<unsigned char>(code));
  EXPECT_EQ(bytes_of(unicode_of(all)), all);
}

TEST(CodePage, EveryUnicodeCharacterIsInThePageOrNowhere) {
  std::set<char16_t> known;
  for (int code = 0; code < 256; ++code) known.insert(unicode_of(static_cast<unsigned char>(code)));
  ASSERT_EQ(known.size(), 256U);
  for (int unicode = 0; unicode < 0x10000; ++unicode) {
    const auto c = static_cast<char16_t>(unicode);
    if (known.contains(c)) {
      ASSERT_LE(code_of(c), 255) << unicode;
      ASSERT_EQ(unicode_of(static_cast<unsigned char>(code_of(c))), c);
    } else {
      ASSERT_EQ(code_of(c), code_not_in_page) << unicode;
    }
  }
  EXPECT_GT(code_not_in_page, 255);
}

TEST(CodePage, ACharacterThatThePageLacksBecomesAQuestionMark) {
  EXPECT_EQ(bytes_of(u"a\u4E2Db\u20AC"), "a?b\x80");
  EXPECT_EQ(codes_of(u"a\u4E2D"), (CodeText{u'a', code_not_in_page}));
  EXPECT_EQ(bytes_of(u"\u0080"), "?") << "the control character that the euro sign displaces";
}

}  // namespace
}  // namespace ecr::test

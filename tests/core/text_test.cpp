#include "core/text.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "support/random.h"

namespace ecr::test::text_cases {
namespace {

using Lines = std::vector<std::string_view>;

TEST(ByteTexts, OnlyBlanksAreTrimmed) {
  EXPECT_EQ(trim_end("abc   "), "abc");
  EXPECT_EQ(trim_end("  abc"), "  abc") << "blanks in front stay";
  EXPECT_EQ(trim_end("abc\t "), "abc\t");
  EXPECT_EQ(trim_end("abc \t"), "abc \t");
  EXPECT_EQ(trim_end("abc\xA0"), "abc\xA0") << "a hard blank is another character";
  EXPECT_EQ(trim_end("abc\r"), "abc\r");
  EXPECT_EQ(trim_end(std::string_view{"abc\0 ", 5}), (std::string_view{"abc\0", 4}));
  EXPECT_EQ(trim_end("   "), "");
  EXPECT_EQ(trim_end(""), "");
  EXPECT_EQ(trim_both("  a b  "), "a b");
  EXPECT_EQ(trim_both("\ta "), "\ta");
  EXPECT_EQ(trim_both("   "), "");
  EXPECT_EQ(trim_both(""), "");
}

TEST(ByteTexts, ATextIsCutOrFilledToItsWidth) {
  EXPECT_EQ(padded("ab", 4), "ab  ");
  EXPECT_EQ(padded("abcdef", 4), "abcd");
  EXPECT_EQ(padded("abcd", 4), "abcd");
  EXPECT_EQ(padded("", 3), "   ");
  EXPECT_EQ(padded("abc", 0), "");
}

TEST(ByteTexts, LinesEndInEveryCustomaryWay) {
  EXPECT_EQ(lines_of(""), Lines{});
  EXPECT_EQ(lines_of("a"), Lines{"a"});
  EXPECT_EQ(lines_of("a\nb"), (Lines{"a", "b"}));
  EXPECT_EQ(lines_of("a\nb\n"), (Lines{"a", "b"})) << "an end behind the last line starts no further one";
  EXPECT_EQ(lines_of("a\r\nb\r\n"), (Lines{"a", "b"}));
  EXPECT_EQ(lines_of("a\rb\r"), (Lines{"a", "b"}));
  EXPECT_EQ(lines_of("a\n\nb"), (Lines{"a", "", "b"}));
  EXPECT_EQ(lines_of("\r\n\r\n"), (Lines{"", ""}));
  EXPECT_EQ(lines_of("\n\r\n"), (Lines{"", ""}));
  EXPECT_EQ(lines_of("a\r"), Lines{"a"});
}

TEST(ByteTexts, RandomLinesComeBackWhateverTheirEnds) {
  Random random{61001};
  for (int round = 0; round < 500; ++round) {
    std::vector<std::string> lines;
    std::string bytes;
    for (std::uint64_t i = random.below(10); i > 0; --i) {
      lines.push_back(random.text(random.below(6), "ab =;\t"));
      // An empty line behind a lone CR and in front of a lone LF would read as one end.
      constexpr std::string_view ends[] = {"\r\n", "\n"};
      bytes += lines.back();
      bytes += ends[random.below(2)];
    }
    const Lines found = lines_of(bytes);
    ASSERT_EQ((std::vector<std::string>{found.begin(), found.end()}), lines);
  }
}

TEST(ByteTexts, HexadecimalIsUpperCaseWithoutPrefixAndPadding) {
  EXPECT_EQ(hex_text(0), "0");
  EXPECT_EQ(hex_text(10), "A");
  EXPECT_EQ(hex_text(1025), "401");
  EXPECT_EQ(hex_text(4098), "1002");
  EXPECT_EQ(hex_text(9999), "270F");
  EXPECT_EQ(hex_text(0x10040000), "10040000");
  EXPECT_EQ(hex_text(std::numeric_limits<std::int32_t>::max()), "7FFFFFFF");
  EXPECT_EQ(hex_text(-1), "FFFFFFFF");
  EXPECT_EQ(hex_text(std::numeric_limits<std::int32_t>::min()), "80000000");
}

TEST(ByteTexts, CaseIsChangedForPlainLettersOnly) {
  EXPECT_EQ(lower_ascii("AbZ@[`{19\xC4\xD6"), "abz@[`{19\xC4\xD6");
  EXPECT_EQ(upper_ascii("aBz@[`{19\xE4\xF6"), "ABZ@[`{19\xE4\xF6");
}

TEST(ByteTexts, ReplaceOverwritesOneCharacterAtEachPlace) {
  EXPECT_EQ(Replace_Text("1.234.5", ".", ","), "1,234,5");
  EXPECT_EQ(Replace_Text("abc", "x", "y"), "abc");
  EXPECT_EQ(Replace_Text("", "x", "y"), "");
}

TEST(ByteTexts, ReplaceKeepsTheTailOfALongerFind) {
  EXPECT_EQ(Replace_Text("abab", "ab", "X"), "XbXb");
  EXPECT_EQ(Replace_Text("ab", "ab", "XYZ"), "Xb") << "only the first character of the replacement is used";
}

TEST(ByteTexts, ReplaceGoesOnOneCharacterFurther) {
  EXPECT_EQ(Replace_Text("aaaa", "aa", "b"), "bbba");
  EXPECT_EQ(Replace_Text("aaa", "a", "aa"), "aaa") << "what was put there is not found again";
}

TEST(ByteTexts, ReplaceNeverChangesTheLength) {
  Random random{61002};
  for (int round = 0; round < 1000; ++round) {
    const std::string text = random.text(random.below(12), "ab.");
    const std::string find = random.text(1 + random.below(3), "ab.");
    const std::string with = random.text(1 + random.below(3), "xyb");
    // The walk, character by character.
    std::string expected = text;
    for (std::size_t i = 0; i < expected.size(); ++i) {
      if (expected.compare(i, find.size(), find) == 0) expected[i] = with[0];
    }
    SCOPED_TRACE(text + " / " + find + " / " + with);
    ASSERT_EQ(Replace_Text(text, find, with), expected);
  }
  EXPECT_EQ(Replace_Text("abc", "b", ""), "abc") << "there is no character to put";
}

}  // namespace
}  // namespace ecr::test::text_cases

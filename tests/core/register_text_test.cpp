#include "core/register_text.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "core/run_log.h"
#include "support/installation.h"
#include "support/random.h"

namespace ecr::test {
namespace {

class RegisterText : public InstallationTest {};

// clang-format off
// Code of the page, code of the register.
const std::map<int, int> to_register = {
    {128, 248}, {140, 234}, {156, 234}, {167, 163}, {168, 243}, {173, 45},  {180, 39},  {183, 255}, {191, 244},
    {192, 214}, {193, 138}, {194, 215}, {196, 216}, {197, 213}, {198, 233}, {199, 217}, {200, 219}, {201, 218},
    {202, 220}, {203, 221}, {205, 140}, {206, 224}, {207, 225}, {208, 152}, {209, 226}, {211, 209}, {212, 227},
    {214, 228}, {215, 127}, {216, 190}, {217, 230}, {218, 146}, {219, 231}, {220, 232}, {221, 151}, {223, 235},
    {224, 236}, {225, 139}, {226, 237}, {228, 238}, {230, 233}, {231, 217}, {232, 239}, {233, 240}, {234, 241},
    {235, 242}, {236, 185}, {237, 141}, {238, 224}, {239, 225}, {241, 136}, {242, 168}, {243, 143}, {244, 169},
    {246, 154}, {248, 190}, {249, 165}, {250, 147}, {251, 164}, {252, 148}};

// Code of the register, code of the page.
const std::map<int, int> from_register = {
    {127, 215}, {136, 241}, {138, 193}, {139, 225}, {140, 205}, {141, 237}, {143, 243}, {146, 218}, {147, 250},
    {148, 252}, {151, 221}, {152, 208}, {154, 246}, {163, 167}, {164, 251}, {165, 249}, {168, 242}, {169, 244},
    {185, 236}, {186, 215}, {190, 216}, {209, 211}, {213, 197}, {214, 192}, {215, 194}, {216, 196}, {217, 199},
    {218, 201}, {219, 200}, {220, 202}, {221, 203}, {224, 206}, {225, 207}, {226, 209}, {227, 212}, {228, 214},
    {230, 217}, {231, 219}, {232, 220}, {233, 198}, {234, 140}, {235, 223}, {236, 224}, {237, 226}, {238, 228},
    {239, 232}, {240, 233}, {241, 234}, {242, 235}, {243, 168}, {244, 191}, {248, 128}, {255, 183}};
// clang-format on

// Codes of the page that the register knows but that come back as something else.
const std::set<int> no_way_back = {156, 173, 180, 230, 231, 238, 239, 248};

constexpr int lead_byte = 195;

std::string character(int code) {
  return std::string(1, static_cast<char>(static_cast<unsigned char>(code)));
}

int code_in(const std::string& text) {
  return text.size() == 1 ? static_cast<unsigned char>(text[0]) : -1;
}

TEST_F(RegisterText, EveryCodeOfThePageHasItsEntryInTheTable) {
  for (int code = 0; code < 256; ++code) {
    const auto pair = to_register.find(code);
    const int expected = code <= 126 ? code : pair != to_register.end() ? pair->second : 127;
    EXPECT_EQ(CharToEcr[static_cast<std::size_t>(code)], expected) << code;
  }
}

TEST_F(RegisterText, EveryCodeOfTheRegisterHasItsEntryInTheTable) {
  for (int code = 0; code < 256; ++code) {
    const auto pair = from_register.find(code);
    const int expected = code <= 126 ? code : pair != from_register.end() ? pair->second : 215;
    EXPECT_EQ(CharFromEcr[static_cast<std::size_t>(code)], expected) << code;
  }
}

TEST_F(RegisterText, TheWayBackIsTheReverseExceptForEightCodes) {
  std::map<int, int> reverse;
  for (const auto& [page, ecr] : to_register) {
    if (!no_way_back.contains(page)) reverse[ecr] = page;
  }
  // One more code of the register reads as the multiplication sign, though nothing is written with it.
  reverse[186] = 215;
  EXPECT_EQ(reverse, from_register);
}

TEST_F(RegisterText, EveryCharacterButTheLeadByteIsLookedUp) {
  for (int code = 0; code < 256; ++code) {
    if (code == lead_byte) continue;
    EXPECT_EQ(sostituzione_to_ecr(character(code)), character(CharToEcr[static_cast<std::size_t>(code)])) << code;
  }
  EXPECT_TRUE(log().empty());
}

TEST_F(RegisterText, ACharacterWithoutEntryBecomes127) {
  EXPECT_EQ(code_in(sostituzione_to_ecr(character(229))), 127);
  EXPECT_EQ(code_in(sostituzione_to_ecr(character(127))), 127);
  EXPECT_EQ(code_in(sostituzione_to_ecr(character(253))), 127);
}

TEST_F(RegisterText, EveryRegisterCodeIsLookedUpOneForOne) {
  for (int code = 0; code < 256; ++code) {
    EXPECT_EQ(sostituzione_from_ecr(character(code)), character(CharFromEcr[static_cast<std::size_t>(code)])) << code;
  }
  EXPECT_EQ(sostituzione_from_ecr("\xC3\xB6"), "\xD7\xD7") << "there are no sequences on this side";
}

TEST_F(RegisterText, UnknownRegisterCodesBecome215) {
  for (const int code : {128, 135, 137, 149, 153, 186, 195, 254}) {
    EXPECT_EQ(code_in(sostituzione_from_ecr(character(code))), 215) << code;
  }
}

TEST_F(RegisterText, PlainTextComesBackUnchanged) {
  std::string ascii;
  for (int code = 0; code <= 126; ++code) ascii += character(code);
  EXPECT_EQ(sostituzione_to_ecr(ascii), ascii);
  EXPECT_EQ(sostituzione_from_ecr(sostituzione_to_ecr(ascii)), ascii);
}

TEST_F(RegisterText, TheEightCharactersWithoutAWayBackComeBackAsOthers) {
  const std::map<int, int> come_back_as = {{156, 140}, {173, 45},  {180, 39},  {230, 198},
                                           {231, 199}, {238, 206}, {239, 207}, {248, 216}};
  for (const auto& [page, back] : come_back_as) {
    EXPECT_EQ(code_in(sostituzione_from_ecr(sostituzione_to_ecr(character(page)))), back) << page;
  }
}

TEST_F(RegisterText, RandomTextsOfCharactersWithAWayBackComeBack) {
  std::string alphabet;
  for (int code = 0; code <= 126; ++code) alphabet += character(code);
  for (const auto& [page, ecr] : to_register) {
    if (!no_way_back.contains(page)) alphabet += character(page);
  }
  ASSERT_EQ(alphabet.size(), 127U + to_register.size() - no_way_back.size());
  Random random{40001};
  for (int round = 0; round < 2000; ++round) {
    const std::string text = random.text(random.below(43), alphabet);
    ASSERT_EQ(sostituzione_from_ecr(sostituzione_to_ecr(text)), text);
  }
  EXPECT_TRUE(log().empty());
}

TEST_F(RegisterText, AnEmptyTextStaysEmpty) {
  EXPECT_EQ(sostituzione_to_ecr(""), "");
  EXPECT_EQ(sostituzione_from_ecr(""), "");
}

// clang-format off
const std::map<int, int> behind_the_lead_byte = {{182, 154}, {150, 228}, {133, 213}, {164, 238}, {132, 216}};
// clang-format on

TEST_F(RegisterText, ALetterOfTwoBytesBecomesOneCode) {
  for (const auto& [second, ecr] : behind_the_lead_byte) {
    EXPECT_EQ(sostituzione_to_ecr("a" + character(lead_byte) + character(second) + "z"), "a" + character(ecr) + "z")
        << second;
  }
  EXPECT_EQ(sostituzione_to_ecr("\xC3\xB6\xC3\xA4"), "\x9A\xEE") << "two sequences in a row";
}

TEST_F(RegisterText, EveryOtherSecondByteEndsTheProgram) {
  for (int second = 0; second < 256; ++second) {
    const std::string text = "ab" + character(lead_byte) + character(second) + "c";
    EXPECT_EQ(ends_program([&] { static_cast<void>(sostituzione_to_ecr(text)); }),
              !behind_the_lead_byte.contains(second))
        << second;
  }
  EXPECT_TRUE(log().empty()) << "nothing is written on the way out";
}

TEST_F(RegisterText, ACharacterAbove255BehindTheLeadByteEndsTheProgram) {
  EXPECT_TRUE(ends_program([] { static_cast<void>(sostituzione_to_ecr(CodeText{lead_byte, code_not_in_page})); }));
  // Its low byte alone would make a known sequence.
  EXPECT_TRUE(ends_program([] { static_cast<void>(sostituzione_to_ecr(CodeText{lead_byte, 0x100 + 182})); }));
}

TEST_F(RegisterText, ALeadByteAsTheLastCharacterEndsTheProgram) {
  EXPECT_TRUE(ends_program([] { static_cast<void>(sostituzione_to_ecr("abc\xC3")); }));
  EXPECT_TRUE(ends_program([] { static_cast<void>(sostituzione_to_ecr("\xC3")); }));
}

TEST_F(RegisterText, CharactersThatThePageLacksAreLoggedAndLeftOut) {
  const CodeText text = codes_of(u"a\u4E2Db\u0416c");
  EXPECT_EQ(sostituzione_to_ecr(text), "abc");
  EXPECT_EQ(log(), (std::vector<std::string>{"sostituzione_to_ecr : Index out of range",
                                             "sostituzione_to_ecr : Index out of range"}));
}

TEST_F(RegisterText, TheTablesAreIndexedByCodesOfThePage) {
  EXPECT_EQ(code_in(sostituzione_to_ecr(codes_of(u"\u20AC"))), 248) << "the euro sign is 128 in the page";
  EXPECT_EQ(code_in(sostituzione_to_ecr(codes_of(u"\u0153"))), 234) << "the small oe is 156 in the page";
  EXPECT_EQ(code_in(sostituzione_to_ecr(codes_of(u"\u00FC"))), 148);
  EXPECT_EQ(unicode_of(sostituzione_from_ecr("\xF8")), u"\u20AC");
  EXPECT_EQ(sostituzione_to_ecr(CodeText{256}), "") << "256 is above the page, not its code 0";
  EXPECT_TRUE(ends_program([] { static_cast<void>(sostituzione_to_ecr(codes_of(u"\u00C3x"))); }));
}

// The real end of the process, seen from outside. Nothing behind the stop may run.

using RegisterTextDeathTest = RegisterText;

TEST_F(RegisterTextDeathTest, TheHardStopEndsTheProcessWithStatus0) {
  const auto stop = [this](const std::string& text) {
    install_shell(nullptr);
    static_cast<void>(sostituzione_to_ecr(text));
    memo_log("went on behind the stop");
    install_shell(&shell);
  };
  EXPECT_EXIT(stop("\xC3\xA5"), ::testing::ExitedWithCode(0), "");
  EXPECT_EXIT(stop("text \xC3"), ::testing::ExitedWithCode(0), "");
  EXPECT_TRUE(log().empty());
}

TEST_F(RegisterText, EachCharacterIsLookedUpWhereverItStands) {
  Random random{77};
  for (int i = 0; i < 2000; ++i) {
    std::string text =
        random.coin() ? random.bytes(random.below(40)) : random.text(random.below(40), "AZ~\x7F\xFF\x80 0");
    std::string expected = text;
    for (char& c : expected) c = static_cast<char>(CharFromEcr[static_cast<unsigned char>(c)]);
    EXPECT_EQ(sostituzione_from_ecr(text), expected);
    from_ecr_in_place(text);
    EXPECT_EQ(text, expected);
  }
}

}  // namespace
}  // namespace ecr::test

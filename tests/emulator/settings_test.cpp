#include "emulator/settings.h"

#include <chrono>
#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/files.h"
#include "core/global.h"
#include "emulator/emulator_test.h"

namespace ecr::test {
namespace {

using std::chrono::milliseconds;

TEST(SettingsText, KnowsAValueWithoutTheOneBlankBehindTheSign) {
  const SettingsText text{"a = 1\nb=2\nc =  3 \n d\t= 4\n"};
  EXPECT_EQ(text.value("a"), "1");
  EXPECT_EQ(text.value("b"), "2");
  EXPECT_EQ(text.value("c"), " 3 ");
  EXPECT_EQ(text.value("d"), "4");
  EXPECT_EQ(text.value("e"), std::nullopt);
}

TEST(SettingsText, ReadsAnyLineEndAndALastLineWithoutOne) {
  const SettingsText text{"a = 1\r\nb = 2\rc = 3\nd = 4"};
  EXPECT_EQ(text.value("a"), "1");
  EXPECT_EQ(text.value("b"), "2");
  EXPECT_EQ(text.value("c"), "3");
  EXPECT_EQ(text.value("d"), "4");
}

TEST(SettingsText, TakesKeysInEitherCase) {
  EXPECT_EQ(SettingsText{"PoRt = 7\n"}.value("port"), "7");
}

TEST(SettingsText, LetsTheLastOfTwoLinesCount) {
  EXPECT_EQ(SettingsText{"port = 7\nport = 8\n"}.value("port"), "8");
}

TEST(SettingsText, PassesCommentsOver) {
  EXPECT_EQ(SettingsText{"# port = 7\n#port = 8\n  # port = 9\n"}.value("port"), std::nullopt);
}

TEST(SettingsText, PassesAByteOrderMarkOverAtTheBeginningOnly) {
  EXPECT_EQ(SettingsText{"\xEF\xBB\xBFport = 7\n"}.value("port"), "7");
  EXPECT_EQ(SettingsText{"a = 1\n\xEF\xBB\xBFport = 7\n"}.value("port"), std::nullopt);
}

TEST(SettingsText, DividesALineAtItsFirstSign) {
  EXPECT_EQ(SettingsText{"banner = A=B\n"}.value("banner"), "A=B");
}

TEST(SettingsText, SetsAValueAndKeepsEveryOtherByte) {
  SettingsText text{"# top\r\n\r\nunknown = x\r\nHANG  = next  \r\nnonsense\nport=4\n# end"};
  text.set("hang", "no");
  EXPECT_EQ(text.bytes(), "# top\r\n\r\nunknown = x\r\nHANG  = no\r\nnonsense\nport=4\n# end");
  text.set("port", "12");
  EXPECT_EQ(text.bytes(), "# top\r\n\r\nunknown = x\r\nHANG  = no\r\nnonsense\nport=12\n# end");
}

TEST(SettingsText, SetsTheLineThatCounts) {
  SettingsText text{"hang = 1\nhang = 2\n"};
  text.set("hang", "no");
  EXPECT_EQ(text.bytes(), "hang = 1\nhang = no\n");
  EXPECT_EQ(text.value("hang"), "no");
}

TEST(SettingsText, AddsALineForAKeyThatHasNone) {
  SettingsText empty;
  empty.set("hang", "no");
  EXPECT_EQ(empty.bytes(), "hang = no\n");
  SettingsText open_end{"port = 4"};
  open_end.set("hang", "no");
  EXPECT_EQ(open_end.bytes(), "port = 4\nhang = no\n");
  SettingsText whole{"port = 4\r\n"};
  whole.set("hang", "no");
  EXPECT_EQ(whole.bytes(), "port = 4\r\nhang = no\n");
  SettingsText lone_returns{"port = 4\r"};
  lone_returns.set("hang", "no");
  EXPECT_EQ(lone_returns.bytes(), "port = 4\rhang = no\n");
}

class RegisterSettingsTest : public EmulatorTest {
 protected:
  [[nodiscard]] static RegisterSettings settings() { return RegisterSettings{Global::PathApp + "register\\"}; }

  /// With this text alone in register.txt.
  [[nodiscard]] RegisterSettings reading(std::string_view text) const {
    write("register/register.txt", text);
    return settings();
  }
};

void expect_fresh(const RegisterSettings& settings) {
  EXPECT_EQ(settings.port(), 4);
  EXPECT_EQ(settings.banner(), "ECRZ300/ECRZ320F    FW rel.1.04     ");
  EXPECT_EQ(settings.release_file(), "RELEASE.BIN");
  EXPECT_EQ(settings.days_to_trade(), 0);
  EXPECT_EQ(settings.seed(), 1U);
  EXPECT_EQ(settings.delay(), milliseconds{0});
  EXPECT_EQ(settings.logo_answer(), std::nullopt);
  for (const std::optional<std::uint8_t> file : {std::optional<std::uint8_t>{}, {0}, {12}, {255}}) {
    EXPECT_EQ(settings.answer(file), 0);
    EXPECT_FALSE(settings.fails(file));
    EXPECT_FALSE(settings.hangs(file));
  }
}

TEST_F(RegisterSettingsTest, AreThoseOfAFreshRegisterAtFirst) {
  expect_fresh(settings());
}

TEST_F(RegisterSettingsTest, AreFreshWithoutAFile) {
  remove("register/register.txt");
  expect_fresh(settings());
  remove("register");
  expect_fresh(settings());
}

TEST_F(RegisterSettingsTest, AreFreshWhereTheFileIsAFolder) {
  remove("register/register.txt");
  make_folder("register/register.txt");
  expect_fresh(settings());
}

TEST_F(RegisterSettingsTest, AreFreshInAnEmptyFileAndInOneWithoutAnyKey) {
  expect_fresh(reading(""));
  expect_fresh(reading("\n\n= 5\nport\nport 5\n: 7\n"));
  expect_fresh(reading(std::string(5000, '\0')));
}

TEST_F(RegisterSettingsTest, AreFreshInAFileThatIsTooLong) {
  const std::string port = "port = 9\n";
  const std::string filling(1024 * 1024 - port.size(), '#');
  EXPECT_EQ(reading(port + filling).port(), 9);
  expect_fresh(reading(port + filling + "#"));
}

TEST_F(RegisterSettingsTest, KnowThePort) {
  const std::vector<std::pair<std::string, int>> cases = {
      {"1", 1},  {"255", 255}, {"0", 0}, {" 9 ", 9},  {"\t9\t", 9}, {"256", 4},
      {"-1", 4}, {"4x", 4},    {"", 4},  {"COM5", 4}, {"5.0", 4},   {"9999999999999999999999", 4}};
  for (const auto& [value, port] : cases) EXPECT_EQ(reading("port = " + value + "\n").port(), port) << value;
}

TEST_F(RegisterSettingsTest, CutOrFillTheBannerToItsLength) {
  EXPECT_EQ(reading("banner = X\n").banner(), "X" + std::string(35, ' '));
  EXPECT_EQ(reading("banner =  X\n").banner(), " X" + std::string(34, ' '));
  EXPECT_EQ(reading("banner =\n").banner(), std::string(36, ' '));
  EXPECT_EQ(reading("banner = " + std::string(40, 'y') + "\n").banner(), std::string(36, 'y'));
  EXPECT_EQ(reading("banner = # = \x80\xFF\n").banner(), "# = \x80\xFF" + std::string(30, ' '));
}

TEST_F(RegisterSettingsTest, KnowTheReleaseFile) {
  EXPECT_EQ(reading("release = RELEA.BIN\n").release_file(), "RELEA.BIN");
  EXPECT_EQ(reading("release = relea.bin\n").release_file(), "RELEA.BIN");
  EXPECT_EQ(reading("release = RELEASE.BIN\n").release_file(), "RELEASE.BIN");
  EXPECT_EQ(reading("release = none\n").release_file(), "");
  EXPECT_EQ(reading("release = ../x\n").release_file(), "RELEASE.BIN");
  EXPECT_EQ(reading("release =\n").release_file(), "RELEASE.BIN");
}

TEST_F(RegisterSettingsTest, KnowTheDelay) {
  const std::vector<std::pair<std::string, int>> cases = {
      {"0", 0},   {"1", 1000}, {"0.5", 500}, {" 2.25 ", 2250}, {"3600", 3600000}, {"3600.1", 0}, {"-1", 0},
      {"inf", 0}, {"nan", 0},  {"1e99", 0},  {"0,5", 0},       {"soon", 0},       {"", 0}};
  for (const auto& [value, delay] : cases) {
    EXPECT_EQ(reading("delay = " + value + "\n").delay(), milliseconds{delay}) << value;
  }
}

TEST_F(RegisterSettingsTest, KnowTheAnswerInDecimalAndHexadecimal) {
  const std::vector<std::pair<std::string, std::int32_t>> cases = {
      {"4097", 4097}, {"0x1001", 4097}, {"0X1001", 4097},   {"-5", -5},  {"0xFFFFFFFF", -1}, {"2147483647", 2147483647},
      {"0x", 0},      {"0xg", 0},       {"0x100000000", 0}, {"busy", 0}, {"4097!", 0},       {"2147483648", 0}};
  for (const auto& [value, code] : cases) EXPECT_EQ(reading("answer = " + value + "\n").answer(0), code) << value;
}

TEST_F(RegisterSettingsTest, LetTheAnswerForOneFileGoFirst) {
  const RegisterSettings both = reading("answer = 4097\nanswer.12 = 1025\nanswer.22 = 0\n");
  EXPECT_EQ(both.answer(12), 1025);
  EXPECT_EQ(both.answer(22), 0);
  EXPECT_EQ(both.answer(1), 4097);
  EXPECT_EQ(both.answer({}), 4097);
  const RegisterSettings one = reading("answer.2 = 4097\n");
  EXPECT_EQ(one.answer(2), 4097);
  EXPECT_EQ(one.answer(22), 0);
  EXPECT_EQ(one.answer({}), 0);
}

TEST_F(RegisterSettingsTest, LetTheFailureOfOneFileGoFirst) {
  const RegisterSettings but_one = reading("fails = yes\nfails.12 = no\n");
  EXPECT_TRUE(but_one.fails(0));
  EXPECT_TRUE(but_one.fails({}));
  EXPECT_FALSE(but_one.fails(12));
  const RegisterSettings one = reading("fails.12 = YES\n");
  EXPECT_TRUE(one.fails(12));
  EXPECT_FALSE(one.fails(1));
  EXPECT_FALSE(one.fails({}));
  EXPECT_FALSE(reading("fails = perhaps\n").fails(1));
}

TEST_F(RegisterSettingsTest, KnowTheAnswerOfTheConversion) {
  EXPECT_EQ(reading("logo = 0x10020000\n").logo_answer(), 0x10020000);
  EXPECT_EQ(reading("logo = 268566528\n").logo_answer(), 0x10020000);
  EXPECT_EQ(reading("logo = 0\n").logo_answer(), 0);
  EXPECT_EQ(reading("logo = normal\n").logo_answer(), std::nullopt);
  EXPECT_EQ(reading("logo = nice\n").logo_answer(), std::nullopt);
}

TEST_F(RegisterSettingsTest, KnowWhichCallHangs) {
  const RegisterSettings next = reading("hang = next\n");
  EXPECT_TRUE(next.hangs(0));
  EXPECT_TRUE(next.hangs(255));
  EXPECT_TRUE(next.hangs({}));
  const RegisterSettings one = reading("hang = 12\n");
  EXPECT_TRUE(one.hangs(12));
  EXPECT_FALSE(one.hangs(1));
  EXPECT_FALSE(one.hangs({}));
  EXPECT_FALSE(reading("hang = 0x0C\n").hangs(12));
  EXPECT_FALSE(reading("hang = 268\n").hangs(12));
}

TEST_F(RegisterSettingsTest, KnowHowManyDaysToTradeAndTheirSeed) {
  EXPECT_EQ(reading("trade = 0").days_to_trade(), 0);
  EXPECT_EQ(reading("trade = 366").days_to_trade(), 366);
  EXPECT_EQ(reading("trade = 367").days_to_trade(), 0);
  EXPECT_EQ(reading("trade = -1").days_to_trade(), 0);
  EXPECT_EQ(reading("trade = often").days_to_trade(), 0);
  EXPECT_EQ(reading("seed = 18446744073709551615").seed(), 18446744073709551615U);
  EXPECT_EQ(reading("seed = -5").seed(), 1U);
  EXPECT_EQ(reading("seed =").seed(), 1U);
}

TEST_F(RegisterSettingsTest, WriteBackThatNothingHangsAndKeepTheRest) {
  reading("# mine\r\nowner = me\r\nhang = next\r\nport = 7").hang_no_more();
  EXPECT_EQ(bytes("register/register.txt"), "# mine\r\nowner = me\r\nhang = no\r\nport = 7");
  EXPECT_EQ(register_files().size(), 7U) << "something was left beside the file";
}

}  // namespace
}  // namespace ecr::test

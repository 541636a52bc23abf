// The language files as they stand in the installation, and the tool that makes them from UTF-8.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/catalogue.h"
#include "core/text.h"
#include "lang/language.h"
#include "support/installation.h"

namespace ecr::test {
namespace {

/// One entry, as a reader of the file sees it: blanks at the line's end are still there.
struct Entry {
  std::string key;
  std::string text;
};

std::string bytes_of_file(const std::string& path) {
  std::ifstream file{path, std::ios::binary};
  EXPECT_TRUE(file.is_open()) << path;
  return {std::istreambuf_iterator<char>{file}, std::istreambuf_iterator<char>{}};
}

std::string installed(std::string_view name) {
  return bytes_of_file(VERMANTO_SETUP "/" + std::string{name});
}

std::vector<Entry> entries_of(std::string_view bytes) {
  std::vector<Entry> entries;
  for (const std::string_view line : lines_of(bytes)) {
    if (line.empty() || line.front() == ';' || line.front() == '[') continue;
    const std::size_t separator = line.find('=');
    EXPECT_NE(separator, std::string_view::npos) << "neither an entry nor a comment: " << line;
    if (separator == std::string_view::npos) continue;
    entries.push_back({std::string{line.substr(0, separator)}, std::string{line.substr(separator + 1)}});
  }
  return entries;
}

std::string with_line_breaks(std::string text) {
  std::replace(text.begin(), text.end(), '\xA7', '\r');
  return text;
}

/// Latin-1 of UTF-8 text that has no character above it.
std::string latin1_of(std::string_view utf8) {
  std::string bytes;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const bool upper_half = utf8[i] == '\xC3' && i + 1 < utf8.size();
    bytes += upper_half ? static_cast<char>(utf8[++i] | 0x40) : utf8[i];
  }
  return bytes;
}

/// A choice as the screens build it: the prefix and the text of `text`, or the default while `deciding` has no text.
std::string choice(std::string_view prefix, Key text, Key deciding, std::string_view default_choice) {
  if (message(deciding).empty()) return std::string{default_choice};
  return std::string{prefix} + message(text);
}

std::string choice(std::string_view prefix, Key text, std::string_view default_choice) {
  return choice(prefix, text, text, default_choice);
}

class LanguageFiles : public InstallationTest {
 protected:
  /// Reads one file into an empty catalogue, as the program does.
  void read(std::string_view name) {
    write("Setup/" + std::string{name}, installed(name));
    reset_catalogue();
    ASSERT_TRUE(read_language_file(name));
  }
};

class EveryLanguageFile : public LanguageFiles, public ::testing::WithParamInterface<std::size_t> {
 protected:
  [[nodiscard]] static std::string_view name() { return languages[GetParam()].file; }
};

INSTANTIATE_TEST_SUITE_P(LanguageFiles, EveryLanguageFile, ::testing::Range<std::size_t>(0, languages.size()),
                         [](const auto& file) {
                           const std::string_view name = languages[file.param].file;
                           return std::string{name.substr(0, name.find('.'))};
                         });

TEST_P(EveryLanguageFile, HoldsOnlyKnownKeysAndEachAtMostOnce) {
  std::set<std::string> seen;
  for (const Entry& entry : entries_of(installed(name()))) {
    EXPECT_TRUE(key_named(entry.key).has_value()) << entry.key;
    EXPECT_TRUE(seen.insert(entry.key).second) << entry.key;
  }
  EXPECT_FALSE(seen.empty());
}

TEST_P(EveryLanguageFile, GivesEachOfItsKeysAText) {
  for (const Entry& entry : entries_of(installed(name()))) EXPECT_FALSE(entry.text.empty()) << entry.key;
}

TEST_P(EveryLanguageFile, HasNoBlankAtTheEndsOfATextWhereItWouldBeLostOrOutOfPlace) {
  for (const Entry& entry : entries_of(installed(name()))) {
    if (entry.text.empty()) continue;
    EXPECT_NE(entry.text.front(), ' ') << entry.key;
    EXPECT_NE(entry.text.back(), ' ') << entry.key;
    EXPECT_EQ(entry.text.find('\t'), std::string::npos) << entry.key;
  }
}

TEST_P(EveryLanguageFile, EndsEveryLineWithCarriageReturnAndLineFeed) {
  std::string bytes = installed(name());
  ASSERT_GE(bytes.size(), 2U);
  EXPECT_EQ(bytes.substr(bytes.size() - 2), "\r\n");
  for (std::size_t place = bytes.find("\r\n"); place != std::string::npos; place = bytes.find("\r\n", place)) {
    bytes.erase(place, 2);
  }
  EXPECT_EQ(bytes.find_first_of("\r\n"), std::string::npos);
}

TEST_P(EveryLanguageFile, UsesNoCodeThatThePageLeavesUndefined) {
  EXPECT_EQ(installed(name()).find_first_of("\x81\x8D\x8F\x90\x9D"), std::string::npos);
}

TEST_P(EveryLanguageFile, ReachesTheCatalogueWholeAndLeavesNoLineInTheLog) {
  read(name());
  EXPECT_TRUE(log().empty());
  for (const Entry& entry : entries_of(installed(name()))) {
    const std::optional<Key> key = key_named(entry.key);
    ASSERT_TRUE(key.has_value()) << entry.key;
    if (*key == Key::FRM_FW_UPGRADE_TITLE) continue;
    EXPECT_EQ(message(*key), with_line_breaks(entry.text)) << entry.key;
  }
}

TEST_P(EveryLanguageFile, DoublesEveryAmpersandThatIsToBeSeen) {
  for (const Entry& entry : entries_of(installed(name()))) {
    for (std::size_t place = entry.text.find('&'); place != std::string::npos;
         place = entry.text.find('&', place + 2)) {
      ASSERT_LT(place + 1, entry.text.size()) << entry.key;
      EXPECT_EQ(entry.text[place + 1], '&') << entry.key;
    }
  }
}

TEST_P(EveryLanguageFile, KeepsTheHeadingsOfGridsShort) {
  constexpr std::size_t longest = 12;
  for (const Entry& entry : entries_of(installed(name()))) {
    if (entry.key.find("_COL_") == std::string::npos) continue;
    EXPECT_LE(entry.text.size(), longest) << entry.key;
  }
}

TEST_P(EveryLanguageFile, HasNoSemicolonInTheLabelsThatHeadAnExportedFile) {
  read(name());
  for (const Key key :
       {Key::FRM_PRG_PLU_L_PLU_NUMBER, Key::FRM_PRG_PLU_L_NAME, Key::FRM_PRG_PLU_L_FREECODE,
        Key::FRM_PRG_PLU_L_LINK_DEPT, Key::FRM_PRG_PLU_L_PRICE1, Key::FRM_PRG_PLU_L_PRICE2, Key::FRM_PRG_PLU_L_STATUS,
        Key::FRM_PRG_PLU_L_TAX, Key::FRM_PRG_PLU_L_TAKE_OUT_TAX, Key::FRM_PRG_PLU_L_STOCK_COUNT}) {
    EXPECT_EQ(message(key).find(';'), std::string::npos) << name_of(key);
    EXPECT_EQ(message(key).find('\r'), std::string::npos) << name_of(key);
  }
}

TEST_P(EveryLanguageFile, HoldsEveryKeyExactlyOnce) {
  std::map<std::string, int> counts;
  for (const Entry& entry : entries_of(installed(name()))) ++counts[entry.key];
  for (std::size_t i = 0; i < key_count; ++i) {
    const std::string key{name_of(static_cast<Key>(i))};
    EXPECT_EQ(counts[key], 1) << key;
  }
  EXPECT_EQ(counts.size(), key_count);
}

TEST_P(EveryLanguageFile, BreaksItsLinesWhereTheEnglishFileDoes) {
  std::map<std::string, std::ptrdiff_t> breaks;
  for (const Entry& entry : entries_of(installed("FrmDescEng.txt"))) {
    breaks[entry.key] = std::count(entry.text.begin(), entry.text.end(), '\xA7');
  }
  for (const Entry& entry : entries_of(installed(name()))) {
    EXPECT_EQ(std::count(entry.text.begin(), entry.text.end(), '\xA7'), breaks[entry.key]) << entry.key;
  }
}

TEST_P(EveryLanguageFile, EndsEachMessageWithAPointOrAQuestionMark) {
  for (const Entry& entry : entries_of(installed(name()))) {
    if (entry.text.find('\xA7') == std::string::npos) continue;
    const std::size_t last = entry.text.find_last_not_of('\xA7');
    ASSERT_NE(last, std::string::npos) << entry.key;
    EXPECT_TRUE(entry.text[last] == '.' || entry.text[last] == '?') << entry.key;
  }
}

TEST_P(EveryLanguageFile, NamesTheEightLanguagesAndItselfByItsOwnName) {
  read(name());
  std::set<std::string> names;
  for (std::size_t i = 0; i < languages.size(); ++i) {
    names.insert(message(static_cast<Key>(static_cast<std::size_t>(Key::FRM_LANGUAGE_OPT_LANG1) + i)));
  }
  EXPECT_EQ(names.size(), languages.size());
  const Key own = static_cast<Key>(static_cast<std::size_t>(Key::FRM_LANGUAGE_OPT_LANG1) + GetParam());
  EXPECT_EQ(message(own), latin1_of(languages[GetParam()].name));
}

TEST_P(EveryLanguageFile, GivesBothOfTwoKeysThatDecideForEachOther) {
  read(name());
  const std::vector<std::pair<Key, Key>> pairs = {
      {Key::FRM_ALL_OPEN, Key::FRM_ALL_NORMAL},
      {Key::FRM_ALL_ADDON, Key::FRM_ALL_DISCOUNT},
      {Key::FRM_INITIAL_MENU_CMB_DATA_FORMAT0_MSG, Key::FRM_INITIAL_MENU_CMB_DATA_FORMAT1_MSG},
      {Key::FRM_INITIAL_MENU_CMB_LINGUA2_MSG, Key::FRM_INITIAL_MENU_CMB_LINGUA3_MSG},
      {Key::FRM_INITIAL_MENU_CMB_LINGUA3_MSG, Key::FRM_INITIAL_MENU_CMB_LINGUA4_MSG},
      {Key::FRM_INITIAL_MENU_CMB_LINGUA4_MSG, Key::FRM_INITIAL_MENU_CMB_LINGUA5_MSG},
      {Key::FRM_INITIAL_MENU_CMB_LINGUA5_MSG, Key::FRM_INITIAL_MENU_CMB_LINGUA6_MSG},
      {Key::FRM_INITIAL_MENU_CMB_LINGUA6_MSG, Key::FRM_INITIAL_MENU_CMB_LINGUA7_MSG},
      {Key::FRM_EJ_SETUP_CMB_EJ_STORE0_MSG, Key::FRM_EJ_SETUP_CMB_EJ_STORE1_MSG}};
  for (const auto& [one, other] : pairs) {
    EXPECT_EQ(message(one).empty(), message(other).empty()) << name_of(one) << ", " << name_of(other);
  }
}

TEST_P(EveryLanguageFile, SaysTheSameOfAMissingExchangeProgramUnderBothKeysThatAreReadForIt) {
  read(name());
  EXPECT_EQ(message(Key::FRM_PRINCIPALE_ECR_NO_SEL_MSG), message(Key::FRM_PRINCIPALE_ECR_REGWIRE_KO_MSG));
}

TEST_P(EveryLanguageFile, GivesTheCauseOfACommunicationErrorALineOfItsOwn) {
  read(name());
  const std::string& text = message(Key::FRM_PRINCIPALE_COMUNICATION_ERROR_MSG);
  ASSERT_GE(text.size(), 2U);
  EXPECT_EQ(text.back(), '\r');
  EXPECT_NE(text[text.size() - 2], '\r');
}

class EnglishFile : public LanguageFiles {
 protected:
  void SetUp() override { read("FrmDescEng.txt"); }
};

TEST_F(EnglishFile, ReplacesTheSixBuiltInTexts) {
  carica_messaggi_default();
  EXPECT_EQ(MsgValueTooHigh, message(Key::FRM_ALL_MASSIMO_SUPERATO_MSG));
  EXPECT_EQ(MsgProgramKo, message(Key::FRM_ALL_PROGRAM_KO_MSG));
  EXPECT_EQ(MsgErrorCopyMode, message(Key::FRM_ALL_ERROR_COPY_PRG_MODE_MSG));
  EXPECT_EQ(MsgErrorCopyPlu, message(Key::FRM_ALL_ERROR_COPY_PRG_PLU_MSG));
  EXPECT_EQ(MsgFileLangKo, message(Key::FRM_ALL_FILE_LANG_KO_MSG));
  EXPECT_EQ(MsgOptionNoZ300, message(Key::FRM_ALL_OPTION_NO_Z300_MSG));
}

TEST_F(EnglishFile, OffersOpenNormalAndPresetAsPriceTypesOfADepartment) {
  EXPECT_EQ(choice("0. ", Key::FRM_ALL_OPEN, Key::FRM_ALL_NORMAL, "0. OPEN"), "0. Open");
  EXPECT_EQ(choice("1. ", Key::FRM_ALL_NORMAL, Key::FRM_ALL_OPEN, "1. NORMAL"), "1. Normal");
  EXPECT_EQ(choice("2. ", Key::FRM_ALL_PRESET, "2. PRESET"), "2. Preset");
}

TEST_F(EnglishFile, SaysOpenOrClosedOfTheDrawerWithTheWordOfThePriceType) {
  EXPECT_EQ(choice("0. ", Key::FRM_ALL_OPEN, "0. OPEN"), "0. Open");
  EXPECT_EQ(choice("1. ", Key::FRM_ALL_CLOSED, "1. CLOSED"), "1. Closed");
}

TEST_F(EnglishFile, ReadsAddOnFirstOnTheFirstPercentageKeyAndDiscountFirstOnTheSecond) {
  const Key add_on = Key::FRM_ALL_ADDON;
  const Key discount = Key::FRM_ALL_DISCOUNT;
  EXPECT_EQ(choice("0.", add_on, "1. DISCOUNT"), "0.Add-on");
  EXPECT_EQ(choice("1.", discount, "0. ADD ON"), "1.Discount");
  EXPECT_EQ(choice("0.", discount, add_on, "1. DISCOUNT"), "0.Discount");
  EXPECT_EQ(choice("1.", add_on, discount, "0. ADD ON"), "1.Add-on");
}

TEST_F(EnglishFile, ReadsDiscountFirstOnThePlusMinusKeys) {
  EXPECT_EQ(choice("0. ", Key::FRM_ALL_DISCOUNT, "0. DISCOUNT"), "0. Discount");
  EXPECT_EQ(choice("1. ", Key::FRM_ALL_ADDON, "1. ADD ON"), "1. Add-on");
}

TEST_F(EnglishFile, OffersTheDayFirstAndThenTheMonthFirstAsDateFormats) {
  const Key zero = Key::FRM_INITIAL_MENU_CMB_DATA_FORMAT0_MSG;
  const Key one = Key::FRM_INITIAL_MENU_CMB_DATA_FORMAT1_MSG;
  EXPECT_EQ(choice("0. ", one, zero, "0. DD-MM-YY"), "0. DD-MM-YY");
  EXPECT_EQ(choice("1. ", zero, one, "1. MM-DD-YY"), "1. MM-DD-YY");
}

TEST_F(EnglishFile, OffersTheEightLanguagesOfTheRegisterInTheirOrder) {
  const auto language = [](std::size_t number) {
    return static_cast<Key>(static_cast<std::size_t>(Key::FRM_INITIAL_MENU_CMB_LINGUA0_MSG) + number);
  };
  const std::array<std::string_view, 8> names = {"English", "Spanish",    "French", "German",
                                                 "Dutch",   "Portuguese", "Danish", "Norwegian"};
  for (std::size_t number = 0; number < names.size(); ++number) {
    const std::string prefix = std::to_string(number) + ". ";
    const Key deciding = language(number < 3 ? number : number - 1);
    EXPECT_EQ(choice(prefix, language(number), deciding, "default"), prefix + std::string{names[number]});
  }
}

TEST_F(EnglishFile, OffersVatFirstAndThenAddOnTaxAsCalculations) {
  EXPECT_EQ(choice("0. ", Key::FRM_WORKING_MODE_CMB_VAT_CALCULATION1_MSG, "0. VAT"), "0. VAT");
  EXPECT_EQ(choice("1. ", Key::FRM_WORKING_MODE_CMB_VAT_CALCULATION0_MSG, "1. ADD ON TAX"), "1. Add-on tax");
}

TEST_F(EnglishFile, OffersTwoDifferentStoresOfTheJournal) {
  EXPECT_EQ(choice("0. ", Key::FRM_EJ_SETUP_CMB_EJ_STORE0_MSG, "0. SALES ONLY"), "0. Sales only");
  EXPECT_EQ(choice("1. ", Key::FRM_EJ_SETUP_CMB_EJ_STORE1_MSG, "0. SALES ONLY"), "1. Everything");
}

// The two words serve straight elsewhere, so that here the crossing shows.
TEST_F(EnglishFile, ReadsActiveFirstOnTheLoginDisplayAndInactiveFirstOnTheClerkSystem) {
  EXPECT_EQ(choice("0. ", Key::FRM_ALL_ACTIVE, "0. INACTIVE"), "0. Active");
  EXPECT_EQ(choice("1. ", Key::FRM_ALL_INACTIVE, "1. ACTIVE"), "1. Inactive");
  EXPECT_EQ(choice("0. ", Key::FRM_ALL_INACTIVE, "0. INACTIVE"), "0. Inactive");
  EXPECT_EQ(choice("1. ", Key::FRM_ALL_ACTIVE, "1. ACTIVE"), "1. Active");
}

TEST_F(EnglishFile, NamesTheUsesOfTheSerialPortsFromOne) {
  EXPECT_EQ(choice("1. ", Key::FRM_SYSTEM_OPTION_COM_PORT_1_MSG, "1. PC"), "1. PC");
  EXPECT_EQ(choice("2. ", Key::FRM_SYSTEM_OPTION_COM_PORT_2_MSG, "2. BCR"), "2. Barcode reader");
  EXPECT_EQ(choice("3. ", Key::FRM_SYSTEM_OPTION_COM_PORT_3_MSG, "3. EFT"), "3. Card terminal");
}

TEST_F(EnglishFile, NamesTheThirdTabOfThePrintSettingsByTheKeyOfTheFifth) {
  EXPECT_EQ(message(Key::FRM_PRINT_MODE_TAB_PRINT_TAB5), "On report/PRG");
}

TEST_F(EnglishFile, HeadsTheStockColumnWithAWordOfItsOwn) {
  EXPECT_EQ(message(Key::FRM_PRG_PLU_COL_TAKE_OUT_TAX_MSG), "T.O. tax");
  EXPECT_EQ(message(Key::FRM_PRG_PLU_COL_STOCK_MSG), "Stock");
}

TEST_F(EnglishFile, NumbersTheRowsOfPopUpListsAndOfReceiptLines) {
  EXPECT_EQ(message(Key::FRM_ALL_PLU_MSG) + " " + std::to_string(0), "PLU 0");
  EXPECT_EQ(message(Key::FRM_CAPTION_HEADER_N) + "1", "Header #1");
  EXPECT_EQ(message(Key::FRM_CAPTION_EXTRA_OTHER_N) + "23", "Other #23");
}

TEST_F(EnglishFile, JoinsTheTitleOfTheMainMenuWithTheModel) {
  EXPECT_EQ(message(Key::FRM_PRINCIPALE_TITLE) + "   ECRZ320", "Vermanto ECR Programming Tool -   ECRZ320");
}

TEST_F(EnglishFile, KeepsAnEqualsSignThatBeginsAText) {
  EXPECT_EQ(message(Key::FRM_ADVANCED_SETTING_CHK_PAYMENT_MSG), "= Payment");
}

/// The tool, run on small files of the test's own folder.
class TextToCodePage : public InstallationTest {
 protected:
  bool turn(std::string_view utf8) {
    write("in.txt", utf8);
    return run(host("in.txt"));
  }

  bool run(const std::string& in) {
    const std::string command =
        "\"" VERMANTO_TEXT_TO_CODE_PAGE "\" \"" + in + "\" \"" + host("out.txt") + "\" 2> \"" + host("told.txt") + '"';
    return std::system(command.c_str()) == 0;
  }

  [[nodiscard]] std::vector<std::string> told() const {
    const std::string content = bytes("told.txt");
    std::vector<std::string> lines;
    for (const std::string_view line : lines_of(content)) lines.emplace_back(line);
    return lines;
  }
};

TEST_F(TextToCodePage, WritesOneByteACharacterAndCarriageReturnLineFeedAtEachLineEnd) {
  ASSERT_TRUE(turn("Größe § ÿ\n\n€ „“ Š\nlast"));
  EXPECT_EQ(bytes("out.txt"),
            "Gr\xF6\xDF"
            "e \xA7 \xFF\r\n\r\n\x80 \x84\x93 \x8A\r\nlast\r\n");
  EXPECT_TRUE(told().empty());
}

TEST_F(TextToCodePage, TakesAnyLineEnd) {
  ASSERT_TRUE(turn("a\r\nb\rc\n"));
  EXPECT_EQ(bytes("out.txt"), "a\r\nb\r\nc\r\n");
}

TEST_F(TextToCodePage, WritesAnEmptyFileForAnEmptyOne) {
  ASSERT_TRUE(turn(""));
  EXPECT_TRUE(exists("out.txt"));
  EXPECT_EQ(bytes("out.txt"), "");
}

TEST_F(TextToCodePage, RefusesACharacterThatThePageLacksAndTellsItsLine) {
  EXPECT_FALSE(turn("; heading\nKEY=A → B\n"));
  EXPECT_EQ(told(), std::vector<std::string>{host("in.txt") + ":2: \"→\" (U+2192) is not in the code page"});
  EXPECT_FALSE(exists("out.txt"));
}

TEST_F(TextToCodePage, TellsOfEachLineThatItRefuses) {
  EXPECT_FALSE(turn("ő\ngood\n😀\n"));
  EXPECT_EQ(told(), (std::vector<std::string>{host("in.txt") + ":1: \"ő\" (U+0151) is not in the code page",
                                              host("in.txt") + ":3: \"😀\" (U+1F600) is not in the code page"}));
}

TEST_F(TextToCodePage, RefusesTheCharactersOfTheCodesThatThePageLeavesUndefined) {
  for (const std::string_view character : {"\xC2\x81", "\xC2\x8D", "\xC2\x8F", "\xC2\x90", "\xC2\x9D", "\xC2\x80"}) {
    EXPECT_FALSE(turn(character)) << std::string{character};
  }
}

TEST_F(TextToCodePage, RefusesAByteOrderMark) {
  EXPECT_FALSE(
      turn("\xEF\xBB\xBF"
           "KEY=text\n"));
}

TEST_F(TextToCodePage, RefusesWhatIsNotUtf8AndTellsItsLine) {
  const std::vector<std::pair<std::string_view, std::string_view>> faults = {
      {"\x80", "80"},              // a following byte without a leading one
      {"\xE9t\xE9", "E9"},         // the code page itself
      {"\xC3", "C3"},              // cut short
      {"\xE2\x82", "E2"},          // cut short
      {"\xC0\xAF", "C0"},          // longer than need be
      {"\xE0\x80\xAF", "E0"},      // longer than need be
      {"\xED\xA0\x80", "ED"},      // half a surrogate pair
      {"\xF4\x90\x80\x80", "F4"},  // above the last character
      {"\xFF", "FF"}};
  for (const auto& [bytes, first] : faults) {
    EXPECT_FALSE(turn("good\n" + std::string{bytes} + "\n"));
    EXPECT_EQ(told(), std::vector<std::string>{host("in.txt") + ":2: byte " + std::string{first} + " is not UTF-8"});
    EXPECT_FALSE(exists("out.txt"));
  }
}

TEST_F(TextToCodePage, LeavesAnEarlierFileAloneWhenItRefuses) {
  write("out.txt", "earlier");
  EXPECT_FALSE(turn("→"));
  EXPECT_EQ(bytes("out.txt"), "earlier");
}

TEST_F(TextToCodePage, FailsOnAFileThatIsNotThere) {
  EXPECT_FALSE(run(host("absent.txt")));
  EXPECT_EQ(told(), std::vector<std::string>{host("absent.txt") + ": cannot be read"});
  EXPECT_FALSE(exists("out.txt"));
}

}  // namespace
}  // namespace ecr::test

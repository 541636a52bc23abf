#include "lang/register_language.h"

#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "core/catalogue.h"
#include "core/register_text.h"
#include "core/text.h"
#include "image/prg_mode.h"
#include "support/installation.h"
#include "support/random.h"

namespace ecr::test {
namespace {

constexpr const char* missing_text = "Warning! The Language file definition is not present";
constexpr std::size_t texts_begin = offsetof(PrgModeImage, DeptGroupName);
constexpr std::size_t texts_end = offsetof(PrgModeImage, KeyLayout);

class RegisterLanguage : public InstallationTest {
 protected:
  RegisterLanguage() {
    // Something that no file brings.
    std::memset(&PrgMode, 'x', sizeof PrgMode);
    before_ = image();
  }

  [[nodiscard]] static std::string image() { return std::string{bytes_of_image(PrgMode)}; }
  [[nodiscard]] const std::string& before() const { return before_; }

  /// `count` lines "line 0", "line 1" and so on, each with the line end.
  [[nodiscard]] static std::string numbered(std::size_t count, std::string_view line_end = "\r\n") {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) text += "line " + std::to_string(i) + std::string{line_end};
    return text;
  }

  void write_english(std::string_view bytes) const { write("Setup/English.txt", bytes); }

 private:
  std::string before_;
};

TEST_F(RegisterLanguage, EachNumberHasItsFileSpelledAsItStands) {
  const std::vector<std::string> names = {"English.txt", "Spanish.txt",    "French.txt", "German.txt",
                                          "dutch.txt",   "Purtoguese.txt", "danish.txt", "Norwegian.txt"};
  for (std::size_t number = 0; number < names.size(); ++number) {
    write("Setup/" + names[number], "group of " + names[number].substr(0, 3));
    EXPECT_TRUE(Setta_Lingua(static_cast<std::uint8_t>(number)));
    EXPECT_EQ(PrgMode.DeptGroupName[0].view(), "group of " + names[number].substr(0, 3));
    remove("Setup/" + names[number]);
  }
  EXPECT_TRUE(log().empty());
}

TEST_F(RegisterLanguage, PutsEachLineIntoItsPlace) {
  write_english(numbered(148));
  EXPECT_TRUE(Setta_Lingua(0));
  EXPECT_EQ(PrgMode.DeptGroupName[0].view(), "line 0      ");
  EXPECT_EQ(PrgMode.DeptGroupName[9].view(), "line 9      ");
  EXPECT_EQ(PrgMode.ReceiptHeader[0].view(), padded("line 10", 24));
  EXPECT_EQ(PrgMode.ReceiptHeader[9].view(), padded("line 19", 24));
  EXPECT_EQ(PrgMode.ReceiptFooter[0].view(), padded("line 20", 24));
  EXPECT_EQ(PrgMode.ReceiptFooter[9].view(), padded("line 29", 24));
  EXPECT_EQ(PrgMode.OffModeScrollMessage.view(), padded("line 30", 42));
  EXPECT_EQ(PrgMode.PrgXZ_ModeScrollMessage.view(), padded("line 31", 42));
  EXPECT_EQ(PrgMode.RegModeSalesScrollMessage.view(), padded("line 32", 42));
  EXPECT_EQ(PrgMode.IdleAMScrollMessage.view(), padded("line 33", 42));
  EXPECT_EQ(PrgMode.IdlePMScrollMessage.view(), padded("line 34", 42));
  EXPECT_EQ(PrgMode.Abr[0].view(), padded("line 35", 24));
  EXPECT_EQ(PrgMode.Abr[6].view(), padded("line 41", 24));
  EXPECT_EQ(PrgMode.ExtraInvoice[0].view(), padded("line 42", 24));
  EXPECT_EQ(PrgMode.ExtraInvoice[4].view(), padded("line 46", 24));
  EXPECT_EQ(PrgMode.Caption[0].view(), "line 47   ");
  EXPECT_EQ(PrgMode.Caption[77].view(), "line 124  ");
  EXPECT_EQ(PrgMode.Other[0].view(), padded("line 125", 24));
  EXPECT_EQ(PrgMode.Other[22].view(), padded("line 147", 24));
  // Every text, and nothing else.
  EXPECT_EQ(image().find('x', texts_begin), texts_end);
  EXPECT_EQ(image().substr(0, texts_begin), before().substr(0, texts_begin));
  EXPECT_EQ(image().substr(texts_end), before().substr(texts_end));
  EXPECT_FALSE(exists("Dati/PRG_MODE.BIN"));
}

TEST_F(RegisterLanguage, AFileOfTenLinesChangesTheDepartmentGroupsOnly) {
  write_english(numbered(10));
  EXPECT_TRUE(Setta_Lingua(0));
  for (std::size_t i = 0; i < 10; ++i)
    EXPECT_EQ(trim_end(PrgMode.DeptGroupName[i].view()), "line " + std::to_string(i));
  const std::size_t groups_end = offsetof(PrgModeImage, ReceiptHeader);
  EXPECT_EQ(image().substr(0, texts_begin), before().substr(0, texts_begin));
  EXPECT_EQ(image().substr(groups_end), before().substr(groups_end));
}

TEST_F(RegisterLanguage, AnEmptyFileChangesNothing) {
  write_english("");
  EXPECT_TRUE(Setta_Lingua(0));
  EXPECT_EQ(image(), before());
}

TEST_F(RegisterLanguage, AnEmptyLineBlanksItsText) {
  write_english("\r\nsecond\r\n");
  EXPECT_TRUE(Setta_Lingua(0));
  EXPECT_EQ(PrgMode.DeptGroupName[0].view(), std::string(12, ' '));
  EXPECT_EQ(PrgMode.DeptGroupName[1].view(), "second      ");
}

TEST_F(RegisterLanguage, LinesMayEndWithALineFeedAloneAndTheLastOneNeedNotEnd) {
  write_english(numbered(9, "\n") + "last");
  EXPECT_TRUE(Setta_Lingua(0));
  EXPECT_EQ(PrgMode.DeptGroupName[8].view(), "line 8      ");
  EXPECT_EQ(PrgMode.DeptGroupName[9].view(), "last        ");
}

TEST_F(RegisterLanguage, ALongTextIsCutAtItsWidthAndDoesNotReachTheNext) {
  write_english("ABCDEFGHIJKLMNOP\r\nnext\r\n");
  EXPECT_TRUE(Setta_Lingua(0));
  EXPECT_EQ(PrgMode.DeptGroupName[0].view(), "ABCDEFGHIJKL");
  EXPECT_EQ(PrgMode.DeptGroupName[1].view(), "next        ");
}

TEST_F(RegisterLanguage, BlanksInFrontOfATextStay) {
  write_english("  middle\r\n");
  EXPECT_TRUE(Setta_Lingua(0));
  EXPECT_EQ(PrgMode.DeptGroupName[0].view(), "  middle    ");
}

TEST_F(RegisterLanguage, TextsAreConvertedToTheRegistersCharacters) {
  write_english("CAF\xC9\r\n\x80 \xE5\r\n");
  EXPECT_TRUE(Setta_Lingua(0));
  EXPECT_EQ(PrgMode.DeptGroupName[0].view(), padded("CAF\xDA", 12));
  EXPECT_EQ(PrgMode.DeptGroupName[1].view(), padded("\xF8 \x7F", 12));
}

TEST_F(RegisterLanguage, ALetterOfTwoBytesBecomesOneCharacterAndIsCountedAsOne) {
  write_english(
      "\xC3\xB6\xC3\x96\xC3\x85\xC3\xA4\xC3\x84"
      "ABCDEFGHI\r\n");
  EXPECT_TRUE(Setta_Lingua(0));
  EXPECT_EQ(PrgMode.DeptGroupName[0].view(),
            "\x9A\xE4\xD5\xEE\xD8"
            "ABCDEFG");
}

TEST_F(RegisterLanguage, AnUnknownLetterOfTwoBytesEndsTheProgram) {
  write_english("first\r\n\xC3\xA5\r\nthird\r\n");
  EXPECT_TRUE(ends_program([] { static_cast<void>(Setta_Lingua(0)); }));
  EXPECT_EQ(PrgMode.DeptGroupName[0].view(), "first       ");
  EXPECT_EQ(PrgMode.DeptGroupName[2].view(), std::string(12, 'x'));
}

TEST_F(RegisterLanguage, LinesBehindTheLastPlaceAreReadAndIgnored) {
  write_english(numbered(148) + "\xC3\xA5\r\n" + numbered(107));
  EXPECT_TRUE(Setta_Lingua(0));
  EXPECT_EQ(PrgMode.Other[22].view(), padded("line 147", 24));
  EXPECT_EQ(image().substr(texts_end), before().substr(texts_end));
  EXPECT_TRUE(log().empty());
}

TEST_F(RegisterLanguage, MoreThan256LinesEndWithAnOverflowOnceAllTextsAreFilled) {
  write_english(numbered(257));
  EXPECT_FALSE(Setta_Lingua(0));
  EXPECT_EQ(PrgMode.Other[22].view(), padded("line 147", 24));
  EXPECT_EQ(log(), std::vector<std::string>{"Setta ligua: Overflow"});
}

TEST_F(RegisterLanguage, AMissingFileIsToldAndLoggedAndChangesNothing) {
  shell.expect_box(BoxKind::warning, missing_text);
  EXPECT_FALSE(Setta_Lingua(5));
  EXPECT_EQ(log(), std::vector<std::string>{"The file language 5 is not present"});
  EXPECT_EQ(image(), before());
}

TEST_F(RegisterLanguage, TheCatalogueHasItsOwnWordsForAMissingFile) {
  set_message(Key::MSG_FILE_LANG_NOT_PRESET_STR, "gone");
  shell.expect_box(BoxKind::warning, "gone");
  EXPECT_FALSE(Setta_Lingua(0));
}

TEST_F(RegisterLanguage, ANumberBeyondTheLanguagesCountsAsAMissingFile) {
  for (const int number : {8, 9, 255}) {
    shell.expect_box(BoxKind::warning, missing_text);
    EXPECT_FALSE(Setta_Lingua(static_cast<std::uint8_t>(number)));
    EXPECT_EQ(log().back(), "The file language " + std::to_string(number) + " is not present");
  }
  EXPECT_EQ(image(), before());
}

TEST_F(RegisterLanguage, AFolderInTheFilesPlaceCountsAsAMissingFile) {
  make_folder("Setup/English.txt");
  shell.expect_box(BoxKind::warning, missing_text);
  EXPECT_FALSE(Setta_Lingua(0));
}

TEST_F(RegisterLanguage, AnyBytesFillTheTextsOrEndTheProgramAndTouchNothingElse) {
  Random random{20261121};
  for (int round = 0; round < 200; ++round) {
    std::string bytes = random.bytes(random.below(6000));
    if (random.coin()) {
      for (char& c : bytes) {
        if (c == '\xC3') c = '\n';
      }
    }
    write_english(bytes);
    static_cast<void>(ends_program([] { static_cast<void>(Setta_Lingua(0)); }));
    ASSERT_EQ(image().substr(0, texts_begin), before().substr(0, texts_begin));
    ASSERT_EQ(image().substr(texts_end), before().substr(texts_end));
  }
}

}  // namespace
}  // namespace ecr::test

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "core/catalogue.h"
#include "lang/language.h"
#include "support/installation.h"
#include "support/random.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

class LanguageParser : public InstallationTest {
 protected:
  static std::string title() { return message(Key::FRM_ALL_TITLE); }
};

TEST_F(LanguageParser, TakesTheTextBehindTheFirstEqualsSign) {
  parse_language("FRM_ALL_TITLE=a title\n");
  EXPECT_EQ(title(), "a title");
  parse_language("FRM_ALL_TITLE=a=b==c=");
  EXPECT_EQ(title(), "a=b==c=");
  parse_language("FRM_ALL_TITLE==");
  EXPECT_EQ(title(), "=");
  EXPECT_TRUE(log().empty());
}

TEST_F(LanguageParser, TrimsNothingButTheBlanksAtTheEndOfTheLine) {
  parse_language("FRM_ALL_TITLE=  a title   \n");
  EXPECT_EQ(title(), "  a title");
  parse_language("FRM_ALL_TITLE=a title\t\n");
  EXPECT_EQ(title(), "a title\t");
  parse_language("FRM_ALL_TITLE=a title \t \n");
  EXPECT_EQ(title(), "a title \t");
  parse_language("FRM_ALL_TITLE=a title\xA0\n");
  EXPECT_EQ(title(), "a title\xA0");
}

TEST_F(LanguageParser, ALineWithItsEqualsSignAtPosition1IsIgnored) {
  parse_language("=text\n=\n=FRM_ALL_TITLE=x\n");
  EXPECT_EQ(title(), "");
  EXPECT_TRUE(log().empty());
}

TEST_F(LanguageParser, ALineWithItsEqualsSignAtPosition2Counts) {
  parse_language("X=text\n");
  EXPECT_EQ(log(), Lines{"Voce X Non presente"});
}

TEST_F(LanguageParser, LinesThatBeginWithASemicolonOrABracketAreIgnored) {
  parse_language(";FRM_ALL_TITLE=x\n[FRM_ALL_TITLE=x\n[section]=y\n; a comment = z\n");
  EXPECT_EQ(title(), "");
  EXPECT_TRUE(log().empty());
}

TEST_F(LanguageParser, ASemicolonOrABracketFurtherInIsPartOfTheKey) {
  parse_language(" ;A=x\nB[=y\n");
  EXPECT_EQ(log(), (Lines{"Voce  ;A Non presente", "Voce B[ Non presente"}));
}

TEST_F(LanguageParser, LinesWithoutAnEqualsSignAreIgnoredWithoutAMessage) {
  parse_language("FRM_ALL_TITLE\n\n   \nsome text\n");
  EXPECT_TRUE(log().empty());
}

TEST_F(LanguageParser, AKeyWithNothingBehindItHasAnEmptyText) {
  parse_language("FRM_ALL_TITLE=text\n");
  parse_language("FRM_ALL_TITLE=\n");
  EXPECT_EQ(title(), "") << "and so the control keeps its default";
  EXPECT_EQ(message_or(Key::FRM_ALL_TITLE, "default"), "default");
  parse_language("FRM_ALL_TITLE=    \n");
  EXPECT_EQ(title(), "") << "blanks alone are trimmed with the line's end";
}

TEST_F(LanguageParser, ABlankBetweenKeyAndEqualsSignBelongsToTheKey) {
  parse_language("FRM_ALL_TITLE =x\n FRM_ALL_TITLE=y\n");
  EXPECT_EQ(title(), "");
  EXPECT_EQ(log(), (Lines{"Voce FRM_ALL_TITLE  Non presente", "Voce  FRM_ALL_TITLE Non presente"}));
}

TEST_F(LanguageParser, TheCaseOfAKeyCounts) {
  parse_language("frm_all_title=x\n");
  EXPECT_EQ(title(), "");
  EXPECT_EQ(log(), Lines{"Voce frm_all_title Non presente"});
}

TEST_F(LanguageParser, EachSectionSignOfATextIsALineBreak) {
  parse_language("FRM_ALL_TITLE=one\xA7two\xA7\xA7three\xA7\n");
  EXPECT_EQ(title(), "one\rtwo\r\rthree\r");
  parse_language("FRM_ALL_TITLE\xA7=x\n");
  EXPECT_EQ(log(), Lines{"Voce FRM_ALL_TITLE\xA7 Non presente"}) << "in a key it is a character like any other";
}

TEST_F(LanguageParser, TheLastEntryOfAKeyWins) {
  parse_language("FRM_ALL_TITLE=first\nFRM_ALL_C_SALVA=Save\nFRM_ALL_TITLE=second\n");
  EXPECT_EQ(title(), "second");
}

TEST_F(LanguageParser, AnUnknownKeyIsLoggedAndParsingGoesOn) {
  parse_language("NO_SUCH_KEY=x\nFRM_ALL_TITLE=title\nNO_SUCH_KEY=y\n");
  EXPECT_EQ(title(), "title");
  EXPECT_EQ(log(), (Lines{"Voce NO_SUCH_KEY Non presente", "Voce NO_SUCH_KEY Non presente"}));
}

TEST_F(LanguageParser, TheTitleOfTheFirmwareUpgradeIsKnownAndDropped) {
  parse_language("FRM_FW_UPGRADE_TITLE=text\n");
  EXPECT_EQ(message(Key::FRM_FW_UPGRADE_TITLE), "");
  EXPECT_TRUE(log().empty());
}

TEST_F(LanguageParser, TakesEveryOtherKey) {
  std::string file;
  for (std::size_t i = 0; i < key_count; ++i) {
    file += std::string{name_of(static_cast<Key>(i))} + "=text " + std::to_string(i) + "\r\n";
  }
  parse_language(file);
  for (std::size_t i = 0; i < key_count; ++i) {
    const auto key = static_cast<Key>(i);
    EXPECT_EQ(message(key), key == Key::FRM_FW_UPGRADE_TITLE ? "" : "text " + std::to_string(i)) << name_of(key);
  }
  EXPECT_TRUE(log().empty());
}

TEST_F(LanguageParser, WhatAFileDoesNotNameKeepsItsText) {
  set_message(Key::FRM_ALL_C_SALVA, "Save");
  parse_language("FRM_ALL_TITLE=title\n");
  EXPECT_EQ(message(Key::FRM_ALL_C_SALVA), "Save");
}

TEST_F(LanguageParser, LinesMayEndInAnyCustomaryWayAndTheLastOneNeedNot) {
  parse_language("FRM_ALL_TITLE=a\r\nFRM_ALL_C_SALVA=b\nFRM_ALL_C_ANNULLA=c\rFRM_ALL_C_INVIA_ECR=d");
  EXPECT_EQ(title(), "a");
  EXPECT_EQ(message(Key::FRM_ALL_C_SALVA), "b");
  EXPECT_EQ(message(Key::FRM_ALL_C_ANNULLA), "c");
  EXPECT_EQ(message(Key::FRM_ALL_C_INVIA_ECR), "d");
}

TEST_F(LanguageParser, TextsAreBytesOfTheCodePage) {
  parse_language(
      "FRM_ALL_TITLE=Gr\xFC\xDF"
      "e 5 \x80\n");
  EXPECT_EQ(title(),
            "Gr\xFC\xDF"
            "e 5 \x80");
}

TEST_F(LanguageParser, AnEmptyFileChangesNothing) {
  set_message(Key::FRM_ALL_TITLE, "kept");
  parse_language("");
  EXPECT_EQ(title(), "kept");
}

TEST_F(LanguageParser, SurvivesAnyBytes) {
  Random random{91001};
  for (int round = 0; round < 50; ++round) parse_language(random.bytes(random.below(5000)));
  parse_language(std::string(100000, '='));
  parse_language(std::string(100000, 'K').append("=x"));
  parse_language("FRM_ALL_TITLE=" + std::string(100000, 't'));
  EXPECT_EQ(title(), std::string(100000, 't'));
}

/// The rules as they are told, a character at a time, without the catalogue's own search.
struct PlainReading {
  std::map<std::string, std::string> texts;
  Lines log;

  void take_line(std::string line) {
    while (!line.empty() && line.back() == ' ') line.pop_back();
    if (line.empty() || line[0] == ';' || line[0] == '[') return;
    std::string key;
    std::size_t i = 0;
    while (i < line.size() && line[i] != '=') key += line[i++];
    if (i == line.size() || i == 0) return;
    std::string text;
    for (++i; i < line.size(); ++i) text += line[i] == '\xA7' ? '\r' : line[i];
    const auto known = texts.find(key);
    if (known == texts.end()) {
      log.push_back("Voce " + key + " Non presente");
    } else if (key != "FRM_FW_UPGRADE_TITLE") {
      known->second = text;
    }
  }
};

TEST_F(LanguageParser, RandomLinesAreReadByTheRules) {
  Random random{91002};
  PlainReading plain;
  for (std::size_t i = 0; i < key_count; ++i) plain.texts[std::string{name_of(static_cast<Key>(i))}] = "";
  const std::string_view pieces[] = {"=",  "=",    " ",    "  ",   ";", "[",    "]",
                                     "\t", "\xA7", "text", "\xE9", "A", "FRM_", "\x01"};
  std::string file;
  for (int round = 0; round < 4000; ++round) {
    std::string line;
    if (random.below(4) != 0) line += name_of(static_cast<Key>(random.below(random.coin() ? key_count : 5)));
    if (random.below(8) == 0) line.insert(0, 1, ";[ =x"[random.below(5)]);
    if (random.below(3) != 0) line += "=";
    for (std::uint64_t i = random.below(6); i > 0; --i) line += pieces[random.below(std::size(pieces))];
    plain.take_line(line);
    file += line + (random.coin() ? "\r\n" : "\n");
  }
  parse_language(file);
  for (const auto& [name, text] : plain.texts) {
    const auto key = key_named(name);
    ASSERT_TRUE(key.has_value());
    EXPECT_EQ(message(*key), text) << name;
  }
  EXPECT_FALSE(plain.log.empty());
  EXPECT_EQ(log(), plain.log);
}

}  // namespace
}  // namespace ecr::test

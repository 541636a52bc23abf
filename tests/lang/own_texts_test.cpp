#include "lang/own_texts.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

#include "core/code_page.h"
#include "lang/language.h"

namespace ecr::test {
namespace {

class OwnTexts : public ::testing::Test {
 protected:
  OwnTexts() { LanguageNumber = 0; }
  OwnTexts(const OwnTexts&) = delete;
  OwnTexts& operator=(const OwnTexts&) = delete;
  ~OwnTexts() override { LanguageNumber = 0; }

  /// Every text in one language, in the order of their numbers.
  static std::vector<std::string> all_in(std::uint8_t number) {
    LanguageNumber = number;
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < own_text_count; ++i) texts.emplace_back(own_text(static_cast<OwnText>(i)));
    LanguageNumber = 0;
    return texts;
  }
};

/// The places in a text into which something goes, however often each stands there.
std::multiset<std::string> places_of(const std::string& text) {
  std::multiset<std::string> places;
  for (std::size_t at = text.find('%'); at != std::string::npos; at = text.find('%', at + 1)) {
    places.insert(text.substr(at, 2));
  }
  return places;
}

TEST_F(OwnTexts, FollowTheChosenLanguage) {
  EXPECT_EQ(own_text(OwnText::receipt_of_several), "Receipt %1 of %2");
  LanguageNumber = 3;
  EXPECT_EQ(own_text(OwnText::receipt_of_several), "Bon %1 von %2");
  LanguageNumber = 7;
  EXPECT_EQ(own_text(OwnText::receipt_of_several), "Kvittering %1 av %2");
}

TEST_F(OwnTexts, ANumberOutsideTheTableReadsEnglish) {
  const std::vector<std::string> english = all_in(0);
  for (const int number : {8, 9, 200, 255}) EXPECT_EQ(all_in(static_cast<std::uint8_t>(number)), english) << number;
}

TEST_F(OwnTexts, EachLanguageHasThePlacesThatEnglishHas) {
  const std::vector<std::string> english = all_in(0);
  for (std::size_t number = 1; number < languages.size(); ++number) {
    const std::vector<std::string> texts = all_in(static_cast<std::uint8_t>(number));
    for (std::size_t i = 0; i < texts.size(); ++i) {
      EXPECT_EQ(places_of(texts[i]), places_of(english[i])) << texts[i];
      EXPECT_EQ(texts[i].ends_with('.'), english[i].ends_with('.')) << texts[i];
    }
  }
}

TEST_F(OwnTexts, NoLanguageIsLeftInEnglish) {
  const std::vector<std::string> english = all_in(0);
  for (std::size_t number = 1; number < languages.size(); ++number) {
    const std::vector<std::string> texts = all_in(static_cast<std::uint8_t>(number));
    for (std::size_t i = 0; i < texts.size(); ++i) {
      // A sentence is no word that two languages share.
      if (std::count(english[i].begin(), english[i].end(), ' ') < 3) continue;
      EXPECT_NE(texts[i], english[i]) << languages[number].name;
    }
  }
}

TEST_F(OwnTexts, TheCodePageHasEveryLetter) {
  for (std::size_t number = 0; number < languages.size(); ++number) {
    LanguageNumber = static_cast<std::uint8_t>(number);
    for (std::size_t i = 0; i < own_text_count; ++i) {
      const auto text = static_cast<OwnText>(i);
      const std::string bytes = own_bytes(text);
      EXPECT_EQ(bytes.find('?'), std::string::npos) << own_text(text);
      // One byte for each letter.
      const std::string_view utf8 = own_text(text);
      const auto letters = std::count_if(utf8.begin(), utf8.end(),
                                         [](char byte) { return (static_cast<unsigned char>(byte) >> 6) != 2; });
      EXPECT_EQ(bytes.size(), static_cast<std::size_t>(letters)) << utf8;
    }
  }
}

TEST_F(OwnTexts, WhatGoesOnIsNamedInTheChosenLanguage) {
  struct Row {
    WorkInHand what;
    const char* english;
    const char* german;
  };
  const Row works[] = {
      {{}, "", ""},
      {{Work::looking_for_ports}, "Looking for serial ports", "Serielle Anschl\xFCsse werden gesucht"},
      {{Work::looking_for_register}, "Looking for the register", "Die Kasse wird gesucht"},
      {{Work::asking_release}, "Asking the register for its release", "Die Kasse wird nach ihrer Version gefragt"},
      {{Work::reading_programming},
       "Reading the programming from the register",
       "Die Programmierung wird aus der Kasse gelesen"},
      {{Work::sending_programming},
       "Sending the programming to the register",
       "Die Programmierung wird an die Kasse gesendet"},
      {{Work::reading_items}, "Reading the items from the register", "Die Artikel werden aus der Kasse gelesen"},
      {{Work::sending_items}, "Sending the items to the register", "Die Artikel werden an die Kasse gesendet"},
      {{Work::taking_in_items},
       "The register is taking in the changed items",
       "Die Kasse \xFC"
       "bernimmt die ge\xE4nderten Artikel"},
      {{Work::reading_report, "C-I-D"}, "Reading the report C-I-D", "Der Bericht C-I-D wird gelesen"},
      {{Work::reading_report}, "Reading the report ", "Der Bericht  wird gelesen"},
      {{Work::converting_logo}, "Converting the logo", "Das Logo wird umgewandelt"},
      {{Work::sending_logo}, "Sending the logo to the register", "Das Logo wird an die Kasse gesendet"},
  };
  for (const Row& row : works) {
    LanguageNumber = 0;
    EXPECT_EQ(own_bytes_of_work(row.what), row.english);
    LanguageNumber = 3;
    EXPECT_EQ(own_bytes_of_work(row.what), row.german);
  }
}

TEST_F(OwnTexts, BytesTakeWhatGoesIntoThem) {
  EXPECT_EQ(own_bytes(OwnText::clerk_number, "7"), "Clerk 7");
  EXPECT_EQ(own_bytes(OwnText::clerk_number), "Clerk %1");
  EXPECT_EQ(own_bytes(OwnText::value, "7"), "Value");
  EXPECT_EQ(own_bytes(OwnText::department_number, "%1"), "Department %1") << "what goes in is not looked at";
  LanguageNumber = 5;
  EXPECT_EQ(own_bytes(OwnText::department_number, "12"), "Sec\xE7\xE3o 12");
}

}  // namespace
}  // namespace ecr::test

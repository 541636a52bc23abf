// The register's language files as they stand in the installation.

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/register_text.h"
#include "core/text.h"
#include "image/layout.h"
#include "image/prg_mode.h"
#include "lang/register_language.h"
#include "make_programming/programming.h"
#include "make_programming/source.h"
#include "support/installation.h"

namespace ecr::test::register_language_files_cases {
namespace {

constexpr char lead_byte = '\xC3';
constexpr unsigned char none_in_register = 127;

std::string installed(std::string_view folder, std::string_view name) {
  std::ifstream file{VERMANTO_APP "/" + std::string{folder} + "/" + std::string{name}, std::ios::binary};
  EXPECT_TRUE(file.is_open()) << name;
  return {std::istreambuf_iterator<char>{file}, std::istreambuf_iterator<char>{}};
}

class EveryRegisterLanguage : public InstallationTest, public ::testing::WithParamInterface<std::size_t> {
 protected:
  EveryRegisterLanguage() : file_{installed("Setup", register_language_files[GetParam()])}, lines_{lines_of(file_)} {}

  [[nodiscard]] const std::string& file() const { return file_; }
  [[nodiscard]] const std::vector<std::string_view>& lines() const { return lines_; }

  /// The file's texts in the working image.
  void read() const {
    write("Setup/" + std::string{register_language_files[GetParam()]}, file_);
    ASSERT_TRUE(Setta_Lingua(static_cast<std::uint8_t>(GetParam())));
  }

 private:
  std::string file_;
  std::vector<std::string_view> lines_;
};

INSTANTIATE_TEST_SUITE_P(RegisterLanguages, EveryRegisterLanguage,
                         ::testing::Range<std::size_t>(0, register_language_files.size()), [](const auto& file) {
                           const std::string_view name = register_language_files[file.param];
                           return std::string{name.substr(0, name.find('.'))};
                         });

TEST_P(EveryRegisterLanguage, Has148LinesThatEndWithCarriageReturnAndLineFeed) {
  EXPECT_EQ(lines().size(), register_language_lines);
  std::string rebuilt;
  for (const std::string_view line : lines()) rebuilt += std::string{line} + "\r\n";
  EXPECT_EQ(rebuilt, file());
}

TEST_P(EveryRegisterLanguage, HasNoTextThatWouldBeCut) {
  ASSERT_EQ(lines().size(), register_language_lines);
  for (std::size_t i = 0; i < lines().size(); ++i) {
    EXPECT_LE(lines()[i].size(), register_language_places[i].field().width) << "line " << i << ": " << lines()[i];
    EXPECT_EQ(trim_end(lines()[i]), lines()[i]) << "line " << i;
  }
}

TEST_P(EveryRegisterLanguage, UsesOnlyCharactersThatTheRegisterHas) {
  for (const std::string_view line : lines()) {
    for (const char c : line) {
      EXPECT_GE(static_cast<unsigned char>(c), 32) << line;
      EXPECT_NE(c, lead_byte) << line;
      EXPECT_NE(CharToEcr[static_cast<unsigned char>(c)], none_in_register) << line;
    }
  }
}

TEST_P(EveryRegisterLanguage, ComesToTheRegisterAndBackUnchanged) {
  read();
  for (std::size_t i = 0; i < lines().size(); ++i) {
    const TextPlace& place = register_language_places.at(i);
    const std::string_view stored =
        bytes_of_image(PrgMode).substr(place.field().offset_of(place.number), place.field().width);
    EXPECT_EQ(sostituzione_from_ecr(trim_end(stored)), lines()[i]) << "line " << i;
  }
  EXPECT_TRUE(log().empty());
}

TEST_P(EveryRegisterLanguage, NamesEveryGroupMessageAbbreviationInvoiceLineCaptionAndNotice) {
  ASSERT_EQ(lines().size(), register_language_lines);
  for (std::size_t i = 0; i < lines().size(); ++i) {
    const std::string_view section = register_language_places[i].field().name;
    // A shop adds lines of its own at the end of a receipt's header and footer.
    const bool may_be_empty = section == "ReceiptHeader" || section == "ReceiptFooter";
    if (may_be_empty && register_language_places[i].number > 1) continue;
    EXPECT_FALSE(lines()[i].empty()) << section << ", line " << i;
  }
}

TEST_P(EveryRegisterLanguage, HasNoTwoCaptionsAndNoTwoNoticesAlike) {
  ASSERT_EQ(lines().size(), register_language_lines);
  for (const std::string_view section : {"DeptGroupName", "Caption", "Other"}) {
    std::set<std::string_view> seen;
    for (std::size_t i = 0; i < lines().size(); ++i) {
      if (register_language_places[i].field().name != section) continue;
      EXPECT_TRUE(seen.insert(lines()[i]).second) << section << ": " << lines()[i];
    }
  }
}

TEST_P(EveryRegisterLanguage, PrintsADoubleWidthHeadingWithAMarkInFrontOfEveryLetter) {
  constexpr char mark = '\xB7';
  const std::string_view heading = lines().at(10);
  ASSERT_FALSE(heading.empty());
  for (std::size_t i = 0; i < heading.size(); ++i) {
    if (heading[i] == ' ') continue;
    EXPECT_EQ(heading[i], mark) << heading;
    ASSERT_LT(++i, heading.size()) << heading;
    EXPECT_NE(heading[i], mark) << heading;
  }
}

class RegisterLanguages : public InstallationTest {};

TEST_F(RegisterLanguages, AreEightDifferentOnes) {
  std::set<std::string> files;
  for (const std::string_view name : register_language_files) files.insert(installed("Setup", name));
  EXPECT_EQ(files.size(), register_language_files.size());
}

TEST_F(RegisterLanguages, EnglishHasTheWordsOfTheDefaultProgramming) {
  write("Setup/English.txt", installed("Setup", "English.txt"));
  for (const char* model : {"ECRZ300", "ECRZ320"}) {
    const std::string bytes = installed("Dati/" + std::string{model}, std::string{model} + "_PRG_MODE.BIN");
    ASSERT_EQ(bytes.size(), sizeof PrgMode);
    PrgModeImage image{};
    std::copy(bytes.begin(), bytes.end(), reinterpret_cast<char*>(&image));
    PrgMode = {};
    ASSERT_TRUE(Setta_Lingua(0));
    EXPECT_EQ(PrgMode.Abr, image.Abr);
    EXPECT_EQ(PrgMode.ExtraInvoice, image.ExtraInvoice);
    EXPECT_EQ(PrgMode.Caption, image.Caption);
    EXPECT_EQ(PrgMode.Other, image.Other);
  }
}

// ---- the tool that makes them

std::string made(std::string_view lines) {
  return make_programming(parse_source("file = LANGUAGE\n" + std::string{lines}, "words.txt"));
}

std::string complaint(std::string_view lines) {
  try {
    static_cast<void>(made(lines));
  } catch (const SourceError& error) {
    return error.what();
  }
  return {};
}

TEST_F(RegisterLanguages, WhatASourceDoesNotSayIsAnEmptyLine) {
  std::string expected;
  for (std::size_t i = 0; i < register_language_lines; ++i) expected += "\r\n";
  EXPECT_EQ(made(""), expected);
}

TEST_F(RegisterLanguages, ASourceNamesEachLineByItsSectionAndNumber) {
  const std::string file =
      made("DeptGroupName[2] = \"\xC3\x89T\xC3\x89\"\nOther[23] = \"END\"\nIdlePMScrollMessage = \"PM\"");
  const std::vector<std::string_view> lines = lines_of(file);
  ASSERT_EQ(lines.size(), register_language_lines);
  EXPECT_EQ(lines[1], "\xC9T\xC9");
  EXPECT_EQ(lines[34], "PM");
  EXPECT_EQ(lines[147], "END");
}

TEST_F(RegisterLanguages, ASourceIsRefusedForWhatTheFileCannotHold) {
  EXPECT_EQ(complaint("VatRate = 1 %"), "words.txt:2: this file holds no VatRate");
  EXPECT_NE(complaint("Caption[1] = \"ELEVEN CHAR\"").find("Caption[1]: "), std::string::npos);
  EXPECT_NE(complaint("Caption[1] = \"P\xC3\xA5\"").find("the register has no character"), std::string::npos);
  EXPECT_NE(complaint("Caption[79] = \"NONE\"").find("counts from 1 to 78"), std::string::npos);
}

}  // namespace
}  // namespace ecr::test::register_language_files_cases

// The meanings of the short captions that an installation carries, against the captions of its default files.

#include <cstring>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "core/register_text.h"
#include "core/text.h"
#include "fields/caption_meanings.h"
#include "image/prg_mode.h"

namespace ecr::test {
namespace {

std::string file_bytes(const std::string& path) {
  std::ifstream file{path, std::ios::binary};
  EXPECT_TRUE(file.good()) << path;
  return {std::istreambuf_iterator<char>{file}, std::istreambuf_iterator<char>{}};
}

const std::string& shipped() {
  static const std::string bytes = file_bytes(VERMANTO_CAPTION_DESCRIPTIONS);
  return bytes;
}

PrgModeImage default_image(const std::string& model) {
  const std::string bytes = file_bytes(VERMANTO_APP "/Dati/ECR" + model + "/ECR" + model + "_PRG_MODE.BIN");
  PrgModeImage image{};
  EXPECT_EQ(bytes.size(), sizeof image);
  if (bytes.size() == sizeof image) std::memcpy(&image, bytes.data(), sizeof image);
  return image;
}

std::string shown(std::string_view stored) {
  return std::string{trim_end(sostituzione_from_ecr(stored))};
}

/// The words of four letters and more, in upper case.
std::set<std::string> words_of(std::string_view text) {
  std::set<std::string> words;
  std::string word;
  for (const char c : upper_ascii(text) + ' ') {
    if (c >= 'A' && c <= 'Z') {
      word += c;
    } else {
      if (word.size() >= 4) words.insert(word);
      word.clear();
    }
  }
  return words;
}

TEST(CaptionDescriptionsFile, Has96LinesEachWithATextOfPlainLetters) {
  const std::vector<std::string_view> lines = lines_of(shipped());
  EXPECT_EQ(lines.size(), short_captions + described_others);
  for (const std::string_view line : lines) {
    EXPECT_FALSE(line.empty());
    for (const char c : line) EXPECT_TRUE(c >= ' ' && c <= '~') << line;
  }
}

TEST(CaptionDescriptionsFile, EachDefinitionBeginsWithTheCaptionOfBothModels) {
  const CaptionDescriptions descriptions = descriptions_in(shipped());
  for (const char* model : {"Z300", "Z320"}) {
    const PrgModeImage image = default_image(model);
    for (std::size_t i = 0; i < short_captions; ++i) {
      const std::string& definition = descriptions.captions[i];
      const std::string head = upper_ascii(definition.substr(0, definition.find(':')));
      EXPECT_EQ(head, shown(image.Caption[i].view())) << model << ", caption " << i + 1;
    }
  }
}

TEST(CaptionDescriptionsFile, EachLabelSharesAWordWithItsLine) {
  const CaptionDescriptions descriptions = descriptions_in(shipped());
  const PrgModeImage image = default_image("Z320");
  ASSERT_EQ(descriptions.others.size(), described_others);
  for (std::size_t i = 0; i < described_others; ++i) {
    const std::set<std::string> words = words_of(shown(image.Other[i].view()));
    bool shares_one = false;
    for (const std::string& word : words_of(descriptions.others[i])) shares_one = shares_one || words.count(word) == 1;
    EXPECT_TRUE(shares_one) << descriptions.others[i] << " for " << shown(image.Other[i].view());
  }
}

}  // namespace
}  // namespace ecr::test

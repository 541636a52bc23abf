// The manual as it stands in the installation: every language has every page, and what a page points to is there.

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "lang/language.h"

namespace ecr::test {
namespace {

namespace fs = std::filesystem;

std::string contents_of(const fs::path& path) {
  std::ifstream file{path, std::ios::binary};
  EXPECT_TRUE(file.is_open()) << path;
  return {std::istreambuf_iterator<char>{file}, std::istreambuf_iterator<char>{}};
}

fs::path help_folder(std::size_t language) {
  std::string folder{languages[language].help_folder};
  for (char& c : folder) {
    if (c == '\\') c = '/';
  }
  return fs::path{VERMANTO_APP} / folder;
}

std::set<std::string> pages_of(const fs::path& folder) {
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator{folder}) {
    if (entry.path().extension() == ".html") names.insert(entry.path().filename().string());
  }
  return names;
}

/// What stands between `before` and `after`, each time, in order.
std::vector<std::string> between(const std::string& page, const std::string& before, const std::string& after) {
  std::vector<std::string> texts;
  for (std::size_t at = page.find(before); at != std::string::npos; at = page.find(before, at)) {
    at += before.size();
    const std::size_t end = page.find(after, at);
    EXPECT_NE(end, std::string::npos) << before;
    if (end == std::string::npos) break;
    texts.push_back(page.substr(at, end - at));
  }
  return texts;
}

/// What stands in the quotes of `attribute="..."`, in order.
std::vector<std::string> values_of(const std::string& page, const std::string& attribute) {
  return between(page, ' ' + attribute + "=\"", "\"");
}

class Manual : public ::testing::TestWithParam<std::size_t> {
 protected:
  const fs::path folder = help_folder(GetParam());
};

INSTANTIATE_TEST_SUITE_P(InEveryLanguage, Manual, ::testing::Range<std::size_t>(0, languages.size()),
                         [](const auto& language) {
                           const std::string_view name = languages[language.param].file;
                           return std::string{name.substr(0, name.find('.'))};
                         });

TEST_P(Manual, HasThePagesOfTheEnglishOne) {
  const std::set<std::string> english = pages_of(help_folder(0));
  EXPECT_GT(english.size(), 30U);
  EXPECT_EQ(pages_of(folder), english);
}

TEST_P(Manual, PointsToNothingThatIsNotThere) {
  for (const std::string& name : pages_of(folder)) {
    const std::string page = contents_of(folder / name);
    for (const char* attribute : {"href", "src"}) {
      for (const std::string& target : values_of(page, attribute)) {
        EXPECT_TRUE(fs::exists(folder / target)) << name << " points to " << target;
      }
    }
  }
}

TEST_P(Manual, LeadsToEveryPageFromItsContents) {
  const std::vector<std::string> listed = values_of(contents_of(folder / "contents.html"), "href");
  std::set<std::string> reached{listed.begin(), listed.end()};
  EXPECT_EQ(reached.size(), listed.size()) << "a page stands twice";
  reached.insert("contents.html");
  EXPECT_EQ(reached, pages_of(folder));
}

TEST_P(Manual, NamesEveryPageAndPicturesEveryScreen) {
  std::set<std::string> titles;
  for (const std::string& name : pages_of(folder)) {
    const std::string page = contents_of(folder / name);
    const std::vector<std::string> title = between(page, "<title>", "</title>");
    ASSERT_EQ(title.size(), 1U) << name;
    EXPECT_FALSE(title[0].empty()) << name;
    EXPECT_TRUE(titles.insert(title[0]).second) << name << " has the title of another page: " << title[0];
    if (name.rfind("Frm", 0) == 0) {
      const std::vector<std::string> pictures = values_of(page, "src");
      ASSERT_FALSE(pictures.empty()) << name;
      EXPECT_EQ(pictures.front(), "pictures/" + name.substr(0, name.size() - 5) + ".png");
    }
  }
}

TEST_P(Manual, SaysInItsOwnLanguageWhatTheSearchSays) {
  const std::string contents = contents_of(folder / "contents.html");
  const std::string english = contents_of(help_folder(0) / "contents.html");
  const auto said = values_of(contents, "content");
  ASSERT_EQ(said.size(), 2U);
  for (const std::string& text : said) EXPECT_FALSE(text.empty());
  const bool is_english = GetParam() == 0;
  EXPECT_EQ(said == values_of(english, "content"), is_english);
}

}  // namespace
}  // namespace ecr::test

// Words that belong to the tracker of our work, not into what we hand out: a reader of the code has never seen what
// they point to. The patterns are put together from pieces, so that this file does not find itself.

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "core/text.h"

namespace ecr::test {
namespace {

namespace fs = std::filesystem;

bool is_word_character(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}
bool is_digit(char c) {
  return c >= '0' && c <= '9';
}

/// A word that must not stand in a line, and what may follow it where not every character may.
struct Pattern {
  const char* what;
  std::string word;
  bool any_case = true;
  bool (*goes_on)(std::string_view rest) = [](std::string_view rest) {
    return rest.empty() || !is_word_character(rest[0]);
  };
};

/// "6.2", "12.1": the number of a chapter.
bool begins_with_a_chapter(std::string_view rest) {
  std::size_t digits = 0;
  while (digits < rest.size() && is_digit(rest[digits])) ++digits;
  return digits > 0 && digits + 1 < rest.size() && rest[digits] == '.' && is_digit(rest[digits + 1]);
}

bool anything(std::string_view) {
  return true;
}

const std::vector<Pattern>& patterns() {
  static const std::vector<Pattern> all = {{"a chapter's number",
                                            "Par"
                                            "t ",
                                            false, begins_with_a_chapter},
                                           {"a chapter's number",
                                            "Par"
                                            "ts ",
                                            false, begins_with_a_chapter},
                                           {"a document's file name",
                                            "spec"
                                            ".md"},
                                           {"the document by its short name",
                                            "the "
                                            "spec"},
                                           {"an appeal to the document",
                                            "as "
                                            "specified"},
                                           {"a number of the tracker",
                                            "issue"
                                            " #",
                                            true, anything},
                                           {"a number of the tracker",
                                            "issue"
                                            "#",
                                            true, anything},
                                           {"a folder of the machine it was written on",
                                            "/wor"
                                            "k/main"},
                                           {"a folder of the machine it was written on",
                                            "/wor"
                                            "k/shared"}};
  return all;
}

bool stands_in(const Pattern& pattern, std::string_view line, std::string_view lower_line) {
  const std::string word = pattern.any_case ? lower_ascii(pattern.word) : pattern.word;
  const std::string_view text = pattern.any_case ? lower_line : line;
  for (std::size_t at = text.find(word); at != std::string_view::npos; at = text.find(word, at + 1)) {
    const bool begins = at == 0 || !is_word_character(text[at - 1]) || !is_word_character(word[0]);
    if (begins && pattern.goes_on(text.substr(at + word.size()))) return true;
  }
  return false;
}

/// What is committed, as far as it can be told without asking the version control: everything but what is built.
std::vector<fs::path> committed_files() {
  const fs::path root{VERMANTO_ROOT};
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator{root}) {
    // Where the checkout is a second work tree, .git is a file.
    if (entry.is_regular_file() && entry.path().filename() != ".git") files.push_back(entry.path());
  }
  for (const char* folder : {".ci", "bench", "cmake", "data", "docs", "fuzz", "src", "tests", "tools"}) {
    if (!fs::exists(root / folder)) continue;
    for (const auto& entry : fs::recursive_directory_iterator{root / folder}) {
      if (entry.is_regular_file()) files.push_back(entry.path());
    }
  }
  return files;
}

/// Each line of the text that has one of the words, with its number and what it is.
std::vector<std::string> findings_in(std::string_view text) {
  std::vector<std::string> findings;
  const std::string lower = lower_ascii(text);
  std::size_t number = 1;
  for (std::size_t start = 0; start <= text.size(); ++number) {
    const std::size_t length = std::min(text.find('\n', start), text.size()) - start;
    for (const Pattern& pattern : patterns()) {
      if (stands_in(pattern, text.substr(start, length), std::string_view{lower}.substr(start, length))) {
        findings.push_back("line " + std::to_string(number) + ": " + pattern.what);
      }
    }
    start += length + 1;
  }
  return findings;
}

TEST(Words, NoFileSpeaksOfWhatItsReaderCannotSee) {
  const std::vector<fs::path> files = committed_files();
  EXPECT_GT(files.size(), 100U) << "the folders are not where they were";
  for (const fs::path& file : files) {
    std::ifstream stream{file, std::ios::binary};
    const std::string text{std::istreambuf_iterator<char>{stream}, std::istreambuf_iterator<char>{}};
    // Pictures and other files that are no text hold a zero byte early on.
    if (text.substr(0, 4096).find('\0') != std::string::npos) continue;
    for (const std::string& finding : findings_in(text)) ADD_FAILURE() << file << ", " << finding;
  }
}

TEST(WordsPatterns, FindEachOfTheWords) {
  for (const std::string text : {"see Par"
                                 "t 6.2 for it",
                                 "Par"
                                 "ts 1.1, 2.3",
                                 "in spec"
                                 ".md",
                                 "The "
                                 "Spec says",
                                 "works as "
                                 "specified.",
                                 "see issue"
                                 " #12",
                                 "issue"
                                 "#3",
                                 "/wor"
                                 "k/main/src"}) {
    EXPECT_EQ(findings_in("first\n" + text + "\nlast").size(), 1U) << text;
    EXPECT_TRUE(findings_in("first\n" + text + "\n")[0].starts_with("line 2: ")) << text;
  }
}

TEST(WordsPatterns, LetOrdinaryWordsPass) {
  for (const char* text : {"Part of the frame", "part 3 of 4", "the special case", "specified by the register",
                           "an issue with 12 items", "Part number 12.5", "Parts: 1.1", "at work/main"}) {
    EXPECT_TRUE(findings_in(text).empty()) << text;
  }
}

}  // namespace
}  // namespace ecr::test

#include "core/files.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/global.h"
#include "support/fake_system.h"
#include "support/installation.h"
#include "support/random.h"

namespace ecr::test {
namespace {

using Names = std::vector<std::string>;

class Files : public InstallationTest {
 protected:
  [[nodiscard]] static std::string path(std::string_view name) { return Global::PathDati + std::string{name}; }

  /// All that lies in Dati, folders too.
  [[nodiscard]] Names in_dati() const {
    Names names;
    for (const auto& entry : std::filesystem::directory_iterator{host("Dati")}) {
      if (entry.path().filename() != "Report") names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }
};

TEST_F(Files, PathsTakeTheHostsSeparatorOnlyWhenAFileIsOpened) {
#ifndef _WIN32
  EXPECT_EQ(host_path("a\\b\\c.BIN"), "a/b/c.BIN");
  EXPECT_EQ(host_path("/tmp\\x\\"), "/tmp/x/");
#endif
  EXPECT_EQ(backslash_path("/a/b/c.BIN"), "\\a\\b\\c.BIN");
  EXPECT_EQ(backslash_path(host_path("a\\b")), "a\\b");
}

TEST_F(Files, AFileAndAFolderAreToldApart) {
  write("Dati/file", "x");
  make_folder("Dati/folder");
  EXPECT_TRUE(file_exists(path("file")));
  EXPECT_FALSE(file_exists(path("folder")));
  EXPECT_FALSE(file_exists(path("nothing")));
  EXPECT_FALSE(file_exists(path("file\\"))) << "a path that ends with a separator names a folder";
  EXPECT_FALSE(file_exists(path("")));
  EXPECT_FALSE(file_exists(""));
  EXPECT_TRUE(folder_exists(path("folder")));
  EXPECT_TRUE(folder_exists(path("folder\\")));
  EXPECT_FALSE(folder_exists(path("file")));
  EXPECT_FALSE(folder_exists(path("nothing")));
  EXPECT_FALSE(folder_exists(""));
}

TEST_F(Files, AFileOfAnyLengthIsReadWhole) {
  Random random{71001};
  for (const std::size_t length : {0U, 1U, 35U, 5656U, 65535U, 65536U, 65537U, 200000U}) {
    const std::string content = random.bytes(length);
    write("Dati/file", content);
    std::string read = "before";
    EXPECT_FALSE(read_file(path("file"), read).stands());
    EXPECT_EQ(read, content) << length;
  }
}

TEST_F(Files, AFileIsReadUpToTheLimit) {
  Random random{71002};
  const std::string content = random.bytes(70000);
  write("Dati/file", content);
  for (const std::size_t limit : {0U, 1U, 36U, 65536U, 65537U, 69999U, 70000U, 70001U}) {
    std::string read;
    EXPECT_FALSE(read_file(path("file"), read, limit).stands());
    EXPECT_EQ(read, content.substr(0, limit)) << limit;
  }
}

TEST_F(Files, WhatIsNoFileCannotBeRead) {
  make_folder("Dati/folder");
  std::string read = "before";
  EXPECT_EQ(read_file(path("nothing"), read).code, FaultCode::file_not_found);
  EXPECT_EQ(read, "");
  read = "before";
  EXPECT_EQ(read_file(path("folder"), read).code, FaultCode::path_access);
  EXPECT_EQ(read, "");
  EXPECT_EQ(read_file(path("nowhere\\nothing"), read).code, FaultCode::file_not_found);
  EXPECT_FALSE(exists("Dati/nothing")) << "reading alone creates nothing";
}

TEST_F(Files, AFileIsReadPieceByPiece) {
  write("Dati/file", "0123456789");
  FileReader file{path("file")};
  EXPECT_EQ(file.size(), 10U);
  std::vector<std::uint8_t> piece(4);
  EXPECT_EQ(file.read(piece), 4U);
  EXPECT_EQ(piece, (std::vector<std::uint8_t>{'0', '1', '2', '3'}));
  EXPECT_EQ(file.read(piece), 4U);
  EXPECT_EQ(file.read(piece), 2U);
  EXPECT_EQ(piece, (std::vector<std::uint8_t>{'8', '9', '6', '7'}));
  EXPECT_EQ(file.read(piece), 0U);
}

TEST_F(Files, WhatIsNoFileReadsPieceByPieceAsAnEmptyOne) {
  for (const char* name : {"missing", "Report", ""}) {
    FileReader file{path(name)};
    std::vector<std::uint8_t> piece(4);
    EXPECT_EQ(file.size(), 0U) << name;
    EXPECT_EQ(file.read(piece), 0U) << name;
  }
}

TEST_F(Files, AnAppendCreatesTheFileAndAddsToIt) {
  EXPECT_FALSE(append_file(path("file"), "").stands());
  EXPECT_EQ(bytes("Dati/file"), "");
  EXPECT_FALSE(append_file(path("file"), "one").stands());
  EXPECT_FALSE(append_file(path("file"), "two").stands());
  EXPECT_EQ(bytes("Dati/file"), "onetwo");
  EXPECT_TRUE(append_file(path("Report"), "x").stands());
}

TEST_F(Files, AMissingFileIsCreatedEmptyWhereItIsAskedFor) {
  std::string read = "before";
  EXPECT_FALSE(read_or_create_file(path("fresh"), read).stands());
  EXPECT_EQ(read, "");
  EXPECT_TRUE(exists("Dati/fresh"));
  EXPECT_EQ(bytes("Dati/fresh"), "");

  write("Dati/old", "content");
  EXPECT_FALSE(read_or_create_file(path("old"), read, 4).stands());
  EXPECT_EQ(read, "cont");
  EXPECT_EQ(bytes("Dati/old"), "content");

  make_folder("Dati/folder");
  EXPECT_EQ(read_or_create_file(path("folder"), read).code, FaultCode::path_access);
  EXPECT_TRUE(read_or_create_file(path("nowhere\\fresh"), read).stands());
  EXPECT_FALSE(exists("Dati/nowhere"));
}

TEST_F(Files, ASaveMakesTheFileHoldExactlyTheBytes) {
  for (const char* content : {"longer than the next", "short", "", "grown again"}) {
    EXPECT_FALSE(save_file(path("file"), content).stands());
    EXPECT_EQ(bytes("Dati/file"), content);
    EXPECT_EQ(in_dati(), Names{"file"}) << "nothing else is left behind";
  }
}

TEST_F(Files, ASaveIntoAMissingFolderLeavesNothing) {
  EXPECT_EQ(save_file(path("nowhere\\file"), "x").code, FaultCode::path_not_found);
  EXPECT_FALSE(exists("Dati/nowhere"));
  EXPECT_EQ(in_dati(), Names{});
}

TEST_F(Files, ASaveOverAFolderFailsAndLeavesIt) {
  make_folder("Dati/folder");
  write("Dati/folder/inside", "x");
  EXPECT_EQ(save_file(path("folder"), "x").code, FaultCode::path_access);
  EXPECT_EQ(bytes("Dati/folder/inside"), "x");
  EXPECT_EQ(in_dati(), Names{"folder"});
}

TEST_F(Files, AnOverwriteKeepsWhatStandsBehindTheBytes) {
  struct Row {
    const char* before;
    const char* head;
    const char* after;
  };
  const Row rows[] = {{"0123456789", "abc", "abc3456789"},
                      {"012", "abc", "abc"},
                      {"01", "abc", "abc"},
                      {"", "abc", "abc"},
                      {"0123", "", "0123"}};
  for (const Row& row : rows) {
    write("Dati/file", row.before);
    EXPECT_FALSE(overwrite_file(path("file"), row.head).stands());
    EXPECT_EQ(bytes("Dati/file"), row.after);
  }
  remove("Dati/file");
  EXPECT_FALSE(overwrite_file(path("file"), "fresh").stands());
  EXPECT_EQ(bytes("Dati/file"), "fresh");
  make_folder("Dati/folder");
  EXPECT_EQ(overwrite_file(path("folder"), "x").code, FaultCode::path_access);
  EXPECT_TRUE(overwrite_file(path("nowhere\\file"), "x").stands());
  EXPECT_EQ(in_dati(), (Names{"file", "folder"}));
}

TEST_F(Files, AnOverwriteIsOneStepToo) {
  write("Dati/file", "0123456789");
  FakeSystem system;
  Names replaced;
  system.on_replace = [&replaced](const std::string&, std::string_view whole) {
    replaced.emplace_back(whole);
    return Fault{FaultCode::disk_full};
  };
  EXPECT_EQ(overwrite_file(path("file"), "abc").code, FaultCode::disk_full);
  EXPECT_EQ(replaced, Names{"abc3456789"});
  EXPECT_EQ(bytes("Dati/file"), "0123456789") << "a save that failed leaves the old file";
}

TEST_F(Files, AFileIsDeletedAndNothingElse) {
  write("Dati/file", "x");
  make_folder("Dati/folder");
  EXPECT_FALSE(delete_file(path("file")).stands());
  EXPECT_FALSE(exists("Dati/file"));
  EXPECT_EQ(delete_file(path("file")).code, FaultCode::file_not_found);
  EXPECT_EQ(delete_file(path("folder")).code, FaultCode::path_access);
  EXPECT_TRUE(exists("Dati/folder"));
}

TEST_F(Files, AFolderIsMadeOnceAndNotThroughAMissingOne) {
  EXPECT_FALSE(ecr::make_folder(path("folder")).stands());
  EXPECT_TRUE(folder_exists(path("folder")));
  EXPECT_EQ(ecr::make_folder(path("folder")).code, FaultCode::path_access);
  write("Dati/file", "x");
  EXPECT_EQ(ecr::make_folder(path("file")).code, FaultCode::path_access);
  EXPECT_TRUE(ecr::make_folder(path("a\\b")).stands());
  EXPECT_FALSE(exists("Dati/a"));
}

TEST_F(Files, ACopyReplacesItsTarget) {
  Random random{71003};
  const std::string content = random.bytes(100000);
  write("Dati/from", content);
  write("Dati/to", "old and short");
  EXPECT_FALSE(copy_file(path("from"), path("to")).stands());
  EXPECT_EQ(bytes("Dati/to"), content);
  EXPECT_EQ(bytes("Dati/from"), content);
  EXPECT_FALSE(copy_file(path("from"), path("fresh")).stands());
  EXPECT_EQ(bytes("Dati/fresh"), content);
}

TEST_F(Files, ACopyThatCannotBeMadeChangesNothing) {
  write("Dati/to", "old");
  make_folder("Dati/folder");
  EXPECT_EQ(copy_file(path("nothing"), path("to")).code, FaultCode::file_not_found);
  EXPECT_EQ(copy_file(path("folder"), path("to")).code, FaultCode::path_access);
  EXPECT_EQ(copy_file(path("to"), path("folder")).code, FaultCode::path_access);
  EXPECT_EQ(copy_file(path("to"), path("nowhere\\x")).code, FaultCode::path_not_found);
  EXPECT_EQ(bytes("Dati/to"), "old");
  EXPECT_EQ(in_dati(), (Names{"folder", "to"}));
}

TEST_F(Files, ANameThatIsTakenIsNotGivenAgain) {
  write("Dati/from", "new");
  write("Dati/to", "old");
  EXPECT_EQ(rename_file(path("from"), path("to")).code, FaultCode::file_exists);
  EXPECT_EQ(bytes("Dati/from"), "new");
  EXPECT_EQ(bytes("Dati/to"), "old");
  EXPECT_FALSE(rename_file(path("from"), path("free")).stands());
  EXPECT_EQ(bytes("Dati/free"), "new");
  EXPECT_FALSE(exists("Dati/from"));
  EXPECT_EQ(rename_file(path("nothing"), path("other")).code, FaultCode::file_not_found);
}

TEST_F(Files, PatternsMatchWithoutRegardToCaseAndByName) {
  for (const char* name : {"TIME.bin", "time2.BIN", "Time 3.Bin", "TIME.txt", "xTIME.bin", "FINANCIAL.bin"}) {
    write(std::string{"Dati/"} + name, "x");
  }
  make_folder("Dati/TIME folder.bin");
  EXPECT_EQ(files_matching(Global::PathDati, "TIME*.bin"), (Names{"TIME.bin", "Time 3.Bin", "time2.BIN"}));
  EXPECT_EQ(files_matching(Global::PathDati, "time.???"), (Names{"TIME.bin", "TIME.txt"}));
  EXPECT_EQ(files_matching(Global::PathDati, "nothing*"), Names{});
  EXPECT_EQ(files_matching(path("nowhere\\"), "*"), Names{});
  EXPECT_EQ(files_matching(path("TIME.bin"), "*"), Names{}) << "a file holds no files";
}

TEST_F(Files, APatternHasStarsAndQuestionMarks) {
  struct Row {
    const char* name;
    const char* pattern;
    bool matches;
  };
  const Row rows[] = {
      {"", "", true},
      {"", "*", true},
      {"", "?", false},
      {"a", "", false},
      {"abc", "abc", true},
      {"abc", "ABC", true},
      {"abc", "ab", false},
      {"ab", "abc", false},
      {"abc", "a?c", true},
      {"ac", "a?c", false},
      {"abc", "*", true},
      {"abc", "a*", true},
      {"abc", "*c", true},
      {"abc", "*b*", true},
      {"abc", "*b", false},
      {"aab", "*ab", true},
      {"abab", "*ab", true},
      {"ababx", "*ab", false},
      {"abcabd", "*ab?", true},
      {"a.b", "a.*", true},
      {"a", "a*", true},
      {"a", "a**", true},
      {"mississippi", "m*is*ip*", true},
      {"mississippi", "m*is*ix*", false},
      {"aaaaaaaaaaaaaaaaaaaaaaaa", "*a*a*a*a*a*a*a*a*b", false},
  };
  for (const Row& row : rows) EXPECT_EQ(matches_pattern(row.name, row.pattern), row.matches) << row.name << row.pattern;
}

/// The meaning of a pattern, told recursively.
bool plainly_matches(std::string_view name, std::string_view pattern) {
  if (pattern.empty()) return name.empty();
  if (pattern.front() == '*') {
    for (std::size_t i = 0; i <= name.size(); ++i) {
      if (plainly_matches(name.substr(i), pattern.substr(1))) return true;
    }
    return false;
  }
  return !name.empty() && (pattern.front() == '?' || pattern.front() == name.front()) &&
         plainly_matches(name.substr(1), pattern.substr(1));
}

TEST_F(Files, RandomPatternsMatchByTheirMeaning) {
  Random random{71004};
  int matched = 0;
  for (int round = 0; round < 20000; ++round) {
    const std::string name = random.text(random.below(8), "ab.");
    const std::string pattern = random.text(random.below(7), "ab.*?*");
    SCOPED_TRACE(name + " and " + pattern);
    const bool expected = plainly_matches(name, pattern);
    matched += expected ? 1 : 0;
    ASSERT_EQ(matches_pattern(name, pattern), expected);
  }
  EXPECT_GT(matched, 1000);
}

}  // namespace
}  // namespace ecr::test

// State that the whole program shares and one routine alone writes.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <string>
#include <vector>

namespace ecr::test {
namespace {

namespace fs = std::filesystem;

/// The lines of src/ in which a variable of Global is assigned, as "file: line". global.cpp itself sets the values from
/// before the start.
std::vector<std::string> writers_of(const std::string& variable) {
  const fs::path src = fs::path{VERMANTO_ROOT} / "src";
  const std::regex assignment{"Global::" + variable + R"(\s*=[^=])"};
  std::vector<std::string> found;
  for (const auto& entry : fs::recursive_directory_iterator{src}) {
    const std::string extension = entry.path().extension().string();
    if (extension != ".h" && extension != ".cpp") continue;
    std::ifstream text{entry.path()};
    for (std::string line; std::getline(text, line);) {
      if (std::regex_search(line, assignment)) found.push_back(fs::relative(entry.path(), src).generic_string());
    }
  }
  std::sort(found.begin(), found.end());
  return found;
}

TEST(Owners, OneRoutineWritesThePortAndOneTheDecimals) {
  EXPECT_EQ(writers_of("ComPort"), std::vector<std::string>{"link/ports.cpp"});
  // The copy puts back what a save that failed had taken over.
  EXPECT_EQ(writers_of("DecimalPoint"), (std::vector<std::string>{"image/prg_mode.cpp", "image/programming_copy.cpp"}));
}

}  // namespace
}  // namespace ecr::test

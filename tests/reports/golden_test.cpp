// Reports of many records: the pairs in tests/data/reports were made by the script that lies beside them.

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

#include "report_test.h"

namespace ecr::test {
namespace {

std::string golden(const std::string& name) {
  std::ifstream file{test_data("reports/" + name), std::ios::binary};
  EXPECT_TRUE(file.good()) << name;
  return {std::istreambuf_iterator<char>{file}, {}};
}

class GoldenReports : public ReportTest, public ::testing::WithParamInterface<int> {};

TEST_P(GoldenReports, BecomeTheirCsvFilesByteForByte) {
  const auto number = static_cast<std::uint8_t>(GetParam());
  const std::string csv = exported(number, golden(name_of(number) + ".bin"));
  const std::string expected = golden(name_of(number) + ".csv");
  EXPECT_FALSE(expected.empty());
  const auto [found, wanted] = std::mismatch(csv.begin(), csv.end(), expected.begin(), expected.end());
  EXPECT_EQ(csv.size(), expected.size());
  EXPECT_TRUE(found == csv.end() && wanted == expected.end())
      << "from byte " << found - csv.begin()
      << " on: " << std::string{found, found + std::min<std::ptrdiff_t>(40, csv.end() - found)};
  EXPECT_TRUE(log().empty());
}

INSTANTIATE_TEST_SUITE_P(Of, GoldenReports, ::testing::Values(4, 7, 9, 10, 11, 13, 14, 16, 17, 18, 19, 20, 21),
                         [](const auto& number) { return "Report" + std::to_string(number.param); });

}  // namespace
}  // namespace ecr::test

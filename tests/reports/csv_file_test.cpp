#include "reports/csv_file.h"

#include <gtest/gtest.h>

#include "support/random.h"

namespace ecr::test {
namespace {

using Cells = std::vector<std::string>;

TEST(CsvFile, AnExportIsAHeaderAndItsLines) {
  const auto exports = read_csv("A;B\r\n1;2\r\n3;\r\n", false);
  ASSERT_EQ(exports.size(), 1U);
  EXPECT_EQ(exports[0].heading, (Cells{"A", "B"}));
  EXPECT_EQ(exports[0].rows, (std::vector<Cells>{{"1", "2"}, {"3", ""}}));
}

TEST(CsvFile, ExportsThatWereAppendedArePartedByTheirHeaders) {
  const auto exports = read_csv("A;B\r\n1;2\r\nA;B\r\nA;B\r\n5;6\r\n7;8\r\n", false);
  ASSERT_EQ(exports.size(), 3U);
  EXPECT_EQ(exports[0].rows.size(), 1U);
  EXPECT_TRUE(exports[1].rows.empty());
  EXPECT_EQ(exports[2].rows.size(), 2U);
}

TEST(CsvFile, AJournalLineIsOneCellWhateverStandsInIt) {
  const auto exports = read_csv("LineFromEj\r\nTOTAL; 1;50\nx\r\n", true);
  ASSERT_EQ(exports.size(), 1U);
  EXPECT_EQ(exports[0].rows, (std::vector<Cells>{{"TOTAL; 1;50\nx"}}));
}

TEST(CsvFile, AnyBytesAreRead) {
  EXPECT_TRUE(read_csv("", false).empty());
  EXPECT_EQ(read_csv("A", false).size(), 1U);
  EXPECT_EQ(read_csv("\r\n\r\n", false).size(), 2U);
  Random random{12};
  for (int i = 0; i < 300; ++i) {
    const std::string bytes = random.text(random.below(200), "A;\r\n1");
    const auto exports = read_csv(bytes, false);
    EXPECT_EQ(exports.empty(), bytes.empty());
    for (const CsvExport& one : exports) EXPECT_FALSE(one.heading.empty());
  }
}

TEST(CsvFile, TheReportIsKnownByTheLongestNameThatFits) {
  EXPECT_EQ(report_of_file("FINANCIAL.csv"), 4);
  EXPECT_EQ(report_of_file("FINANCIAL2.csv"), 14);
  EXPECT_EQ(report_of_file("financial2 of May.csv"), 14);
  EXPECT_EQ(report_of_file("ALL PLU.csv"), 7);
  EXPECT_EQ(report_of_file("ALL T-CLERK.csv"), 10);
  EXPECT_EQ(report_of_file("C-I-D.csv"), 3);
  EXPECT_EQ(report_of_file("MSK.csv"), 21);
  EXPECT_EQ(report_of_file("RELEASE.csv"), 0);
  EXPECT_EQ(report_of_file("other.csv"), 0);
  EXPECT_EQ(report_of_file(""), 0);
}

}  // namespace
}  // namespace ecr::test

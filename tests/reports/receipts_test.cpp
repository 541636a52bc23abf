#include "reports/receipts.h"

#include <gtest/gtest.h>

namespace ecr::test {
namespace {

CsvExport journal(std::initializer_list<const char*> lines) {
  CsvExport result{{"LineFromEj"}, {}};
  for (const char* line : lines) result.rows.push_back({line});
  return result;
}

TEST(Receipts, EndAtLinesOfBlanks) {
  const CsvExport lines = journal({"", "ONE", "TOTAL 1", "    ", "  ", "TWO", "", "THREE"});
  const auto receipts = receipts_of(lines);
  ASSERT_EQ(receipts.size(), 3U);
  EXPECT_EQ(receipt_text(lines, receipts[0]), "ONE\nTOTAL 1\n");
  EXPECT_EQ(receipt_text(lines, receipts[1]), "TWO\n");
  EXPECT_EQ(receipt_text(lines, receipts[2]), "THREE\n");
}

TEST(Receipts, AJournalWithoutBlankLinesIsCutIntoPages) {
  CsvExport lines = journal({});
  for (std::size_t i = 0; i < 2 * lines_a_page + 1; ++i) lines.rows.push_back({"x"});
  const auto receipts = receipts_of(lines);
  ASSERT_EQ(receipts.size(), 3U);
  EXPECT_EQ(receipts[2].first, 2 * lines_a_page);
  EXPECT_EQ(receipts[2].end, 2 * lines_a_page + 1);
}

TEST(Receipts, AnEmptyJournalHasNone) {
  EXPECT_TRUE(receipts_of(journal({})).empty());
  EXPECT_TRUE(receipts_of(journal({"", " "})).empty());
}

TEST(Receipts, AreFoundByAnyOfTheirText) {
  const CsvExport lines = journal({"COFFEE", "TOTAL 2.50", "", "TEA", "TOTAL 1.80", ""});
  EXPECT_EQ(receipts_with(lines, "").size(), 2U);
  EXPECT_EQ(receipts_with(lines, "total").size(), 2U);
  ASSERT_EQ(receipts_with(lines, "tea").size(), 1U);
  EXPECT_EQ(receipts_with(lines, "tea")[0].first, 3U);
  EXPECT_TRUE(receipts_with(lines, "milk").empty());
}

}  // namespace
}  // namespace ecr::test

#include "logo/journal_file.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <string>

#include "core/global.h"
#include "support/installation.h"
#include "support/random.h"

namespace ecr::test {
namespace {

class Journal : public InstallationTest {
 protected:
  ~Journal() override { reset_journal(); }
  void read(std::string_view content) {
    write("journal.bin", content);
    Read_EJ(Global::PathApp + "journal.bin");
  }
  static std::string head() { return {Ej.Head.begin(), Ej.Head.end()}; }
  static std::string records() {
    std::string all;
    for (const EjRecord& record : Ej.Records) {
      all.append(record.Head.begin(), record.Head.end());
      all += record.Line.view();
    }
    return all;
  }
};

TEST_F(Journal, HasAHeadAndRecordsOf26Bytes) {
  Random random{83003};
  for (int round = 0; round < 100; ++round) {
    const std::string content = random.bytes(26 + 26 * random.below(200));
    read(content);
    ASSERT_EQ(head(), content.substr(0, 26));
    ASSERT_EQ(Ej.Records.size(), content.size() / 26 - 1);
    ASSERT_EQ(records(), content.substr(26));
  }
}

TEST_F(Journal, ARecordHasTwoBytesAndALineOf24Characters) {
  read(std::string(26, 'h') + "ab" + "a line of 24 characters." + "cd" + "another line            ");
  ASSERT_EQ(Ej.Records.size(), 2U);
  EXPECT_EQ(Ej.Records[0].Head, (std::array<std::uint8_t, 2>{'a', 'b'}));
  EXPECT_EQ(Ej.Records[0].Line.view(), "a line of 24 characters.");
  EXPECT_EQ(Ej.Records[1].Line.view(), "another line            ");
}

TEST_F(Journal, TheNumberOfRecordsIsRoundedToAWholeNumber) {
  struct Row {
    std::size_t behind_head;
    std::size_t records;
  };
  // Half a record is rounded to the even number of records.
  const Row rows[] = {{0, 0},  {1, 0},  {12, 0}, {13, 0}, {14, 1}, {25, 1}, {26, 1},
                      {38, 1}, {39, 2}, {40, 2}, {64, 2}, {65, 2}, {66, 3}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.behind_head);
    const std::string content = std::string(26, 'h') + std::string(row.behind_head, 'r');
    read(content);
    ASSERT_EQ(Ej.Records.size(), row.records);
    std::string expected(std::min(row.behind_head, row.records * 26), 'r');
    expected.resize(row.records * 26, '\0');
    EXPECT_EQ(records(), expected) << "what the file does not reach is zero";
  }
}

TEST_F(Journal, AFileShorterThanItsHeadFillsWhatItReachesAndHasNoRecords) {
  read(std::string(26, 'h') + std::string(52, 'r'));
  for (const std::size_t length : {0U, 1U, 25U}) {
    read(std::string(length, 's'));
    EXPECT_EQ(head(), std::string(length, 's') + std::string(26 - length, 'h')) << length;
    EXPECT_TRUE(Ej.Records.empty());
    Ej.Head.fill('h');
  }
}

TEST_F(Journal, AMissingFileIsCreatedEmptyAndHasNoRecords) {
  read(std::string(26, 'h') + std::string(52, 'r'));
  Read_EJ(Global::PathApp + "missing.bin");
  EXPECT_TRUE(exists("missing.bin"));
  EXPECT_EQ(bytes("missing.bin"), "");
  EXPECT_EQ(head(), std::string(26, 'h')) << "the head stays as it was";
  EXPECT_TRUE(Ej.Records.empty());
}

TEST_F(Journal, AFolderOrAnEmptyNameDeliversNothing) {
  make_folder("folder");
  Read_EJ(Global::PathApp + "folder");
  EXPECT_TRUE(Ej.Records.empty());
  Read_EJ("");
  EXPECT_TRUE(Ej.Records.empty());
  Read_EJ(Global::PathApp + "nowhere\\journal.bin");
  EXPECT_FALSE(exists("nowhere"));
  EXPECT_TRUE(log().empty());
}

}  // namespace
}  // namespace ecr::test

#include "image/prg_plu.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/files.h"
#include "core/global.h"
#include "support/fake_system.h"
#include "support/installation.h"
#include "support/random.h"

namespace ecr::test {
namespace {

constexpr std::size_t head = 802;
constexpr std::size_t record = 44;
constexpr std::size_t old_record = 38;
constexpr std::size_t rows = 3000;

template <typename Object>
std::string bytes_of_object(const Object& object) {
  return {static_cast<const char*>(static_cast<const void*>(&object)), sizeof object};
}

template <typename Object>
void fill(Object& object, char with) {
  std::memset(static_cast<void*>(&object), with, sizeof object);
}

std::string count_bytes(int count) {
  const auto bits = static_cast<unsigned>(count);
  return {static_cast<char>(bits & 0xFF), static_cast<char>(bits >> 8 & 0xFF)};
}

/// A row as the reader empties it, with what it leaves alone.
std::string emptied(std::size_t length, char list_link, char send_flag) {
  std::string row(length, '\0');
  row.replace(8, 16, 16, ' ');
  row[36] = list_link;
  row[37] = send_flag;
  return row;
}

class ItemTable : public InstallationTest {
 protected:
  ItemTable() { Global::choose_model(Global::model_z320); }

  static constexpr const char* file = "Dati/PRG_PLU.BIN";

  static std::string row(std::size_t index) { return bytes_of_object(PrgPlu.Row[index]); }
  static std::string old_row(std::size_t index) { return bytes_of_object(PrgPluOld.Row[index]); }

  static std::string whole_file(Random& random, std::size_t count, std::size_t length = record) {
    return count_bytes(static_cast<int>(count)) + random.bytes(head - 2 + count * length);
  }
};

// The layout

template <typename Record>
struct FieldOf {
  const char* name;
  std::size_t offset;
  std::size_t length;
  void* place;
  std::size_t size;
};

template <typename Record>
std::vector<FieldOf<Record>> common_fields(Record& row) {
  return {{"Code", 0, 8, &row.Code, sizeof row.Code},
          {"Name", 8, 16, &row.Name, sizeof row.Name},
          {"Flags1", 24, 1, &row.Flags1, sizeof row.Flags1},
          {"LinkDept", 25, 1, &row.LinkDept, sizeof row.LinkDept},
          {"Tax", 26, 1, &row.Tax, sizeof row.Tax},
          {"TakeOutTax", 27, 1, &row.TakeOutTax, sizeof row.TakeOutTax},
          {"Price1", 28, 4, &row.Price1, sizeof row.Price1},
          {"Price2", 32, 4, &row.Price2, sizeof row.Price2},
          {"PluListLink", 36, 1, &row.PluListLink, sizeof row.PluListLink},
          {"SendFlag", 37, 1, &row.SendFlag, sizeof row.SendFlag}};
}

TEST_F(ItemTable, EachFieldIsWrittenToItsBytesOfItsRecord) {
  PrgPlu.PluCount = 3;
  PluRecord& second = PrgPlu.Row[1];
  auto fields = common_fields(second);
  fields.push_back({"Stock", 38, 6, &second.Stock, sizeof second.Stock});
  for (const auto& field : fields) {
    SCOPED_TRACE(field.name);
    ASSERT_EQ(field.size, field.length);
    std::memset(field.place, 0x7E, field.size);
    Write_PrgPlu();
    std::string expected = count_bytes(3) + std::string(head - 2 + 3 * record, '\0');
    expected.replace(head + record + field.offset, field.length, field.length, '\x7E');
    EXPECT_EQ(bytes(file), expected);
    std::memset(field.place, 0, field.size);
  }
}

TEST_F(ItemTable, EachFieldOfTheOldFormatIsReadFromItsBytes) {
  for (const auto& field : common_fields(PrgPluOld.Row[1])) {
    SCOPED_TRACE(field.name);
    std::string content = count_bytes(3) + std::string(head - 2 + 3 * old_record, '\0');
    content.replace(head + old_record + field.offset, field.length, field.length, '\x7E');
    write(file, content);
    EXPECT_TRUE(Read_PrgPlu(true));
    EXPECT_EQ((std::string{static_cast<const char*>(field.place), field.size}), std::string(field.length, '\x7E'));
    EXPECT_EQ(old_row(0), std::string(old_record, '\0'));
    EXPECT_EQ(old_row(2), std::string(old_record, '\0'));
  }
}

TEST_F(ItemTable, TheCountIsSignedAndLittleEndian) {
  for (const auto& [first, second, count] : {std::tuple{0x01, 0x00, 1},
                                             {0x00, 0x01, 256},
                                             {0xB8, 0x0B, 3000},
                                             {0xFF, 0xFF, -1},
                                             {0x00, 0x80, -32768},
                                             {0xFF, 0x7F, 32767}}) {
    std::string content(head, '\0');
    content[0] = static_cast<char>(first);
    content[1] = static_cast<char>(second);
    write(file, content);
    EXPECT_TRUE(Read_PrgPlu());
    EXPECT_EQ(PrgPlu.PluCount, count);
    EXPECT_TRUE(Read_PrgPlu(true));
    EXPECT_EQ(PrgPluOld.PluCount, count);
  }
}

TEST_F(ItemTable, TheListsAreFiveOfTwentyCodesOfEightBytes) {
  PrgPlu.Lists[3][7].bytes.fill(0x42);
  Write_PrgPlu();
  std::string expected(head, '\0');
  expected.replace(2 + 3 * 160 + 7 * 8, 8, 8, '\x42');
  EXPECT_EQ(bytes(file), expected);
  EXPECT_EQ(PrgPlu.Lists.size(), 5U);
  EXPECT_EQ(PrgPlu.Lists[0].size(), 20U);
}

// Reading and writing

TEST_F(ItemTable, WithoutItemsTheFileHas802BytesAndAllRowsAreEmptyAfterReading) {
  for (PluRecord& item : PrgPlu.Row) fill(item, 'x');
  PrgPlu.PluCount = 0;
  Write_PrgPlu();
  EXPECT_EQ(bytes(file).size(), 802U);
  EXPECT_TRUE(Read_PrgPlu());
  EXPECT_EQ(PrgPlu.PluCount, 0);
  for (std::size_t i = 0; i < rows; ++i) ASSERT_EQ(row(i), emptied(record, 'x', 'x')) << i;
  EXPECT_EQ(row(rows), std::string(record, 'x')) << "the row behind the last is not the reader's";
}

TEST_F(ItemTable, WithAllItemsTheFileHas132802BytesAndTheLastRowIsFilled) {
  Random random{82001};
  const std::string content = whole_file(random, rows);
  EXPECT_EQ(content.size(), 132802U);
  write(file, content);
  EXPECT_TRUE(Read_PrgPlu());
  EXPECT_EQ(PrgPlu.PluCount, 3000);
  EXPECT_EQ(row(2999), content.substr(head + 2999 * record));
  EXPECT_EQ(row(3000), std::string(record, '\0'));
  remove(file);
  Write_PrgPlu();
  EXPECT_EQ(bytes(file), content);
}

TEST_F(ItemTable, FilesOfRandomCountsAreReadAndRewrittenByteForByte) {
  Random random{82002};
  for (int round = 0; round < 60; ++round) {
    const std::size_t count = random.below(round < 40 ? 50 : rows + 1);
    SCOPED_TRACE(count);
    const std::string content = whole_file(random, count);
    write(file, content);
    ASSERT_TRUE(Read_PrgPlu());
    ASSERT_EQ(PrgPlu.PluCount, static_cast<int>(count));
    ASSERT_EQ(bytes_of_object(PrgPlu.Lists), content.substr(2, 800));
    for (std::size_t i = 0; i < rows; ++i) {
      if (i < count) {
        ASSERT_EQ(row(i), content.substr(head + i * record, record)) << i;
      } else {
        const std::string now = row(i);
        ASSERT_EQ(now, emptied(record, now[36], now[37])) << i;
      }
    }
    Write_PrgPlu();
    ASSERT_EQ(bytes(file), content);
  }
}

TEST_F(ItemTable, AWriteAndAReadWithNoEditGiveTheSameBytes) {
  Random random{82003};
  write(file, whole_file(random, 17));
  ASSERT_TRUE(Read_PrgPlu());
  Write_PrgPlu();
  const std::string once = bytes(file);
  ASSERT_TRUE(Read_PrgPlu());
  Write_PrgPlu();
  EXPECT_EQ(bytes(file), once);
}

TEST_F(ItemTable, AnEmptiedRowKeepsItsListLinkAndItsSendFlag) {
  fill(PrgPlu.Row[5], 'x');
  PrgPlu.Row[5].PluListLink = 3;
  PrgPlu.Row[5].SendFlag = 1;
  fill(PrgPluOld.Row[5], 'x');
  PrgPluOld.Row[5].PluListLink = 4;
  PrgPluOld.Row[5].SendFlag = 2;
  write(file, std::string(head, '\0'));
  Read_PrgPlu();
  Read_PrgPlu(true);
  EXPECT_EQ(row(5), emptied(record, 3, 1));
  EXPECT_EQ(old_row(5), emptied(old_record, 4, 2));
}

TEST_F(ItemTable, AMissingFileIsCreatedEmptyAndKeepsTheCountInMemory) {
  PrgPlu.PluCount = 2;
  fill(PrgPlu.Lists, 'L');
  fill(PrgPlu.Row[1], 'x');
  fill(PrgPlu.Row[2], 'x');
  EXPECT_TRUE(Read_PrgPlu());
  EXPECT_TRUE(exists(file));
  EXPECT_EQ(bytes(file), "");
  EXPECT_EQ(PrgPlu.PluCount, 2);
  EXPECT_EQ(bytes_of_object(PrgPlu.Lists), std::string(800, 'L'));
  EXPECT_EQ(row(1), std::string(record, 'x')) << "a counted row that the file does not reach stays";
  EXPECT_EQ(row(2), emptied(record, 'x', 'x'));
  EXPECT_TRUE(log().empty());
}

TEST_F(ItemTable, AFileOfAnyLengthFillsWhatItReaches) {
  Random random{82004};
  const std::string whole = whole_file(random, 3);
  for (const std::size_t length : {0U, 1U, 2U, 3U, 400U, 801U, 802U, 803U, 845U, 846U, 847U, 933U, 934U}) {
    SCOPED_TRACE(length);
    PrgPlu.PluCount = 3;
    fill(PrgPlu.Lists, 'L');
    for (PluRecord& item : PrgPlu.Row) fill(item, 'x');
    write(file, whole.substr(0, length));
    EXPECT_TRUE(Read_PrgPlu());
    EXPECT_EQ(PrgPlu.PluCount, 3);
    const std::string before = std::string(800, 'L') + std::string(3 * record, 'x');
    const std::size_t reached = length < 2 ? 0 : length - 2;
    const std::string in_memory = bytes_of_object(PrgPlu.Lists) + row(0) + row(1) + row(2);
    EXPECT_EQ(in_memory, whole.substr(2, reached) + before.substr(reached));
    EXPECT_EQ(row(3), emptied(record, 'x', 'x'));
    EXPECT_EQ(bytes(file), whole.substr(0, length));
  }
}

TEST_F(ItemTable, ACountAboveAllRowsReadsAllRowsAndNothingBehindThem) {
  Random random{82005};
  fill(PrgPlu.Row[rows], 'k');
  std::string content = whole_file(random, rows) + random.bytes(10 * record);
  content.replace(0, 2, count_bytes(32767));
  write(file, content);
  EXPECT_TRUE(Read_PrgPlu());
  EXPECT_EQ(PrgPlu.PluCount, 32767);
  EXPECT_EQ(row(2999), content.substr(head + 2999 * record, record));
  EXPECT_EQ(row(rows), std::string(record, 'k'));
}

TEST_F(ItemTable, ANegativeCountReadsAndWritesNoRow) {
  write(file, count_bytes(-5) + std::string(800, 'L') + std::string(5 * record, 'x'));
  fill(PrgPlu.Row[0], 'y');
  EXPECT_TRUE(Read_PrgPlu());
  EXPECT_EQ(PrgPlu.PluCount, -5);
  EXPECT_EQ(row(0), emptied(record, 'y', 'y'));
  Write_PrgPlu();
  EXPECT_EQ(bytes(file), count_bytes(-5) + std::string(800, 'L'));
}

TEST_F(ItemTable, ACountAboveMemoryWritesTheRowsThatThereAre) {
  for (const int count : {3001, 3002, 32767}) {
    PrgPlu.PluCount = static_cast<std::int16_t>(count);
    Write_PrgPlu();
    EXPECT_EQ(bytes(file).size(), head + 3001 * record) << count;
    EXPECT_EQ(bytes(file).substr(0, 2), count_bytes(count));
  }
}

TEST_F(ItemTable, AWriteKeepsNothingOfALongerFile) {
  Random random{82006};
  const std::string content = whole_file(random, 4);
  write(file, content + "what stood behind");
  ASSERT_TRUE(Read_PrgPlu());
  Write_PrgPlu();
  EXPECT_EQ(bytes(file), content);
  PrgPlu.PluCount = 1;
  Write_PrgPlu();
  EXPECT_EQ(bytes(file), count_bytes(1) + content.substr(2, 800 + record));
}

TEST_F(ItemTable, AFolderInPlaceOfTheFileDeliversNothingAndStays) {
  make_folder(file);
  PrgPlu.PluCount = 1;
  fill(PrgPlu.Row[0], 'x');
  EXPECT_TRUE(Read_PrgPlu()) << "the answer is true whatever happened";
  EXPECT_EQ(row(0), std::string(record, 'x'));
  Write_PrgPlu();
  EXPECT_TRUE(folder_exists(Global::PathDati + "PRG_PLU.BIN"));
  EXPECT_TRUE(log().empty());
}

TEST_F(ItemTable, WithoutItsFolderNothingIsReadAndNothingIsLeft) {
  remove("Dati");
  EXPECT_TRUE(Read_PrgPlu());
  EXPECT_TRUE(Read_PrgPlu(true));
  Write_PrgPlu();
  EXPECT_FALSE(exists("Dati"));
  EXPECT_TRUE(log().empty());
}

TEST_F(ItemTable, RandomBytesAreTakenAsTheyCome) {
  Random random{82007};
  for (int round = 0; round < 20; ++round) {
    const std::string content = random.bytes(head + random.below(20000));
    write(file, content);
    EXPECT_TRUE(Read_PrgPlu(random.coin()));
  }
  EXPECT_TRUE(log().empty());
}

TEST_F(ItemTable, AWriteThatFailsIsSilentAndLeavesTheOldFile) {
  write(file, "old");
  FakeSystem system;
  int attempts = 0;
  system.on_replace = [&attempts](const std::string&, std::string_view) {
    ++attempts;
    return Fault{FaultCode::permission_denied};
  };
  Write_PrgPlu();
  EXPECT_EQ(attempts, 1);
  EXPECT_EQ(bytes(file), "old");
  EXPECT_TRUE(log().empty());
}

TEST_F(ItemTable, TheTwoFormatsAreKeptApart) {
  Random random{82008};
  const std::string content = whole_file(random, 2, old_record);
  write(file, content);
  EXPECT_TRUE(Read_PrgPlu(true));
  EXPECT_EQ(PrgPlu.PluCount, 0);
  EXPECT_EQ(row(0), std::string(record, '\0'));
  EXPECT_EQ(PrgPluOld.PluCount, 2);
  EXPECT_EQ(bytes_of_object(PrgPluOld.Lists), content.substr(2, 800));
  EXPECT_EQ(old_row(0) + old_row(1), content.substr(head));
  EXPECT_EQ(old_row(2), emptied(old_record, 0, 0));
}

// From the old format to the current one

TEST_F(ItemTable, AConversionTakesItemsOverExceptTheLastCountedOne) {
  Random random{82009};
  write(file, whole_file(random, 4, old_record));
  ASSERT_TRUE(Read_PrgPlu(true));
  for (PluRecord& item : PrgPlu.Row) fill(item, 'x');
  fill(PrgPlu.Lists, 'L');
  Convert_OldPlu();
  EXPECT_EQ(PrgPlu.PluCount, 4);
  for (std::size_t i = 0; i < 3; ++i) {
    std::string expected = old_row(i) + std::string(6, 'x');
    expected.replace(36, 2, 2, 'x');
    EXPECT_EQ(row(i), expected) << i;
  }
  EXPECT_EQ(row(3), std::string(record, 'x')) << "the last counted one stays as it was";
  EXPECT_EQ(row(4), std::string(record, 'x'));
  EXPECT_EQ(bytes_of_object(PrgPlu.Lists), std::string(800, 'L')) << "the lists are not converted";
}

TEST_F(ItemTable, AConversionOfFewOrImpossiblyManyItemsTouchesNoRowItShouldNot) {
  for (const int count : {-32768, -1, 0, 1}) {
    for (PluRecord& item : PrgPlu.Row) fill(item, 'x');
    PrgPluOld.PluCount = static_cast<std::int16_t>(count);
    Convert_OldPlu();
    EXPECT_EQ(PrgPlu.PluCount, count);
    EXPECT_EQ(row(0), std::string(record, 'x')) << count;
  }
  for (const int count : {3000, 3001, 32767}) {
    for (PluRecord& item : PrgPlu.Row) fill(item, 'x');
    PrgPluOld.PluCount = static_cast<std::int16_t>(count);
    Convert_OldPlu();
    EXPECT_EQ(row(2998).substr(0, 36), std::string(36, '\0')) << count;
    EXPECT_EQ(row(2999).substr(0, 36), std::string(36, count == 3000 ? 'x' : '\0')) << count;
    EXPECT_EQ(row(3000), std::string(record, 'x')) << count;
  }
}

// What a send counts

TEST_F(ItemTable, OnlyFlagsOf1AreCountedAndClearedWhenAsked) {
  const int flags[] = {1, 0, 2, 1, 255, 1};
  for (std::size_t i = 0; i < std::size(flags); ++i) PrgPlu.Row[i].SendFlag = static_cast<std::uint8_t>(flags[i]);
  EXPECT_EQ(Count_PluToSend(false), 3);
  EXPECT_EQ(Count_PluToSend(true), 3);
  EXPECT_EQ(Count_PluToSend(false), 0);
  const int left[] = {0, 0, 2, 0, 255, 0};
  for (std::size_t i = 0; i < std::size(left); ++i) EXPECT_EQ(PrgPlu.Row[i].SendFlag, left[i]) << i;
}

TEST_F(ItemTable, AllRowsOfTheModelAreCountedWhateverTheCountSays) {
  PrgPlu.PluCount = 0;
  PrgPlu.Row[0].SendFlag = 1;
  PrgPlu.Row[2999].SendFlag = 1;
  PrgPlu.Row[3000].SendFlag = 1;
  EXPECT_EQ(Count_PluToSend(false), 2) << "the row behind the last is not counted";
  Global::MaxPlu = 2999;
  EXPECT_EQ(Count_PluToSend(true), 1);
  EXPECT_EQ(PrgPlu.Row[2999].SendFlag, 1);
  Global::MaxPlu = 0;
  EXPECT_EQ(Count_PluToSend(true), 0);
}

}  // namespace
}  // namespace ecr::test

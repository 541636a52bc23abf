#include "emulator/memory.h"

#include <gtest/gtest.h>
#include <string>

#include "emulator/emulator_test.h"

namespace ecr::test {
namespace {

TEST(RegisterMemory, TakesAnImageOfOneLengthOnly) {
  EXPECT_TRUE(RegisterMemory::fits(0, std::string(5656, 'x')));
  EXPECT_FALSE(RegisterMemory::fits(0, std::string(5655, 'x')));
  EXPECT_FALSE(RegisterMemory::fits(0, std::string(5657, 'x')));
  EXPECT_FALSE(RegisterMemory::fits(0, ""));
}

TEST(RegisterMemory, TakesAnItemTableAsLongAsItsCountTells) {
  for (const unsigned count : {0U, 1U, 255U, 256U, 2999U, 3000U}) {
    const std::string table = bytes_for_items(1, count);
    EXPECT_TRUE(RegisterMemory::fits(1, table)) << count;
    EXPECT_FALSE(RegisterMemory::fits(1, table + "x")) << count;
    EXPECT_FALSE(RegisterMemory::fits(1, table.substr(1))) << count;
  }
}

TEST(RegisterMemory, TakesNoItemTableThatItCannotHold) {
  EXPECT_FALSE(RegisterMemory::fits(1, bytes_for_items(1, 3001)));
  EXPECT_FALSE(RegisterMemory::fits(1, bytes_for_items(1, 0xFFFF)));
  EXPECT_FALSE(RegisterMemory::fits(1, ""));
  EXPECT_FALSE(RegisterMemory::fits(1, std::string(1, '\0')));
  EXPECT_FALSE(RegisterMemory::fits(1, std::string(2, '\0')));
  EXPECT_FALSE(RegisterMemory::fits(1, std::string(801, '\0')));
}

TEST(RegisterMemory, TakesALogoOfAnyLengthUpToTheLongest) {
  EXPECT_FALSE(RegisterMemory::fits(2, ""));
  EXPECT_TRUE(RegisterMemory::fits(2, "x"));
  EXPECT_TRUE(RegisterMemory::fits(2, std::string(65536, 'x')));
  EXPECT_FALSE(RegisterMemory::fits(2, std::string(65537, 'x')));
}

TEST(RegisterMemory, KnowsTheLongestFileOfEachKind) {
  EXPECT_EQ(RegisterMemory::longest(0), 5656U);
  EXPECT_EQ(RegisterMemory::longest(1), 802U + 44U * 3000U);
  EXPECT_EQ(RegisterMemory::longest(2), 65536U);
}

}  // namespace
}  // namespace ecr::test

#include <gtest/gtest.h>

#include "fields/caption_meanings.h"
#include "support/installation.h"
#include "support/random.h"

namespace ecr::test {
namespace {

std::string lines(int count) {
  std::string bytes;
  for (int i = 1; i <= count; ++i) bytes += "line " + std::to_string(i) + "\r\n";
  return bytes;
}

class DescriptionsTest : public InstallationTest {
 protected:
  CaptionDescriptions read;
};

TEST_F(DescriptionsTest, TheFirst78LinesAreOfTheCaptionsAndTheNext18OfTheOtherLines) {
  write("Setup/DescCaption.ini", lines(96));
  EXPECT_TRUE(Read_DescCaption(read));
  EXPECT_EQ(read.captions.front(), "line 1");
  EXPECT_EQ(read.captions.back(), "line 78");
  ASSERT_EQ(read.others.size(), 18U);
  EXPECT_EQ(read.others.front(), "line 79");
  EXPECT_EQ(read.others.back(), "line 96");
  EXPECT_TRUE(log().empty());
}

TEST_F(DescriptionsTest, Line97StopsTheReadingWithOneLineInTheLog) {
  write("Setup/DescCaption.ini", lines(200));
  EXPECT_TRUE(Read_DescCaption(read));
  EXPECT_EQ(read.others.size(), 18U);
  EXPECT_EQ(log(), std::vector<std::string>{"Number of caption description to High"});
}

TEST_F(DescriptionsTest, AFileOf78LinesDescribesNoOtherLine) {
  write("Setup/DescCaption.ini", lines(78));
  EXPECT_TRUE(Read_DescCaption(read));
  EXPECT_EQ(read.captions.back(), "line 78");
  EXPECT_TRUE(read.others.empty());
}

TEST_F(DescriptionsTest, AShorterFileDescribesWhatItReaches) {
  write("Setup/DescCaption.ini", lines(3));
  EXPECT_TRUE(Read_DescCaption(read));
  EXPECT_EQ(read.captions[2], "line 3");
  EXPECT_EQ(read.captions[3], "");
}

TEST_F(DescriptionsTest, AnEmptyFileIsThereAndDescribesNothing) {
  write("Setup/DescCaption.ini", "");
  EXPECT_TRUE(Read_DescCaption(read));
  EXPECT_EQ(read.captions.front(), "");
}

TEST_F(DescriptionsTest, AMissingFileIsTold) {
  read.captions[0] = "from before";
  read.others = {"from before"};
  EXPECT_FALSE(Read_DescCaption(read));
  EXPECT_EQ(read.captions[0], "");
  EXPECT_TRUE(read.others.empty());
  EXPECT_TRUE(log().empty());
}

TEST_F(DescriptionsTest, AFolderOfThatNameIsNoFile) {
  make_folder("Setup/DescCaption.ini");
  EXPECT_FALSE(Read_DescCaption(read));
}

TEST_F(DescriptionsTest, AnEmptyLineIsAnEmptyDescription) {
  const CaptionDescriptions found = descriptions_in("a\n\nc");
  EXPECT_EQ(found.captions[0], "a");
  EXPECT_EQ(found.captions[1], "");
  EXPECT_EQ(found.captions[2], "c");
}

TEST_F(DescriptionsTest, LinesOfAnyBytesAndLengthAreTakenAsTheyAre) {
  Random random{3};
  std::string line = random.bytes(100'000);
  for (char& c : line) {
    if (c == '\r' || c == '\n') c = ' ';
  }
  EXPECT_EQ(descriptions_in(line + "\nnext").captions[0], line);
}

}  // namespace
}  // namespace ecr::test

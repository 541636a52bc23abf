#include "emulator/bitmap.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

#include "support/bitmap_file.h"
#include "support/random.h"

namespace ecr::test::bitmap_cases {
namespace {

constexpr std::int32_t no_bitmap = 0x10010000;
constexpr std::int32_t not_black_and_white = 0x10020000;
constexpr std::int32_t unknown_type = 0x10030000;
constexpr std::int32_t too_many_dots = 0x10040000;
constexpr std::int32_t not_made = 0x08030000;

std::int32_t code_of(const std::string& bytes) {
  DotPicture picture{1, 1, "x"};
  const std::int32_t code = read_bitmap(bytes, picture);
  EXPECT_EQ(code == 0, picture.lines != 0) << "a picture comes with a good bitmap and with no other";
  return code;
}
std::int32_t code_of(const BitmapFile& file) {
  return code_of(file.bytes());
}

DotPicture picture_of(const BitmapFile& file) {
  DotPicture picture;
  EXPECT_EQ(read_bitmap(file.bytes(), picture), 0);
  return picture;
}

/// Two lines of ten dots: the upper one has its first and its last dot printed, the lower one the second.
BitmapFile small_file() {
  BitmapFile file;
  file.width = 10;
  file.height = 2;
  file.rows = std::string{"\x40\x00\x00\x00\x80\x40\x00\x00", 8};
  return file;
}
const DotPicture small{10, 2, std::string{"\x80\x40\x40\x00", 4}};

TEST(Bitmap, ADotIsABitFromTheLeftAndRowsGoFromTheTop) {
  EXPECT_EQ(picture_of(small_file()), small);
  EXPECT_TRUE(small.is_printed(0, 0));
  EXPECT_FALSE(small.is_printed(1, 0));
  EXPECT_TRUE(small.is_printed(9, 0));
  EXPECT_TRUE(small.is_printed(1, 1));
  EXPECT_FALSE(small.is_printed(9, 1));
}

TEST(Bitmap, ANegativeHeightTurnsTheRowsRound) {
  BitmapFile file = small_file();
  file.height = -2;
  std::rotate(file.rows.begin(), file.rows.begin() + 4, file.rows.end());
  EXPECT_EQ(picture_of(file), small);
}

TEST(Bitmap, ThePaletteTellsWhichValueIsBlack) {
  BitmapFile file = small_file();
  file.palette = std::string{"\0\0\0\x99\xFF\xFF\xFF\x99", 8};
  for (char& byte : file.rows) byte = static_cast<char>(~byte);
  EXPECT_EQ(picture_of(file), small) << "and what fills a row up is no dot";
}

TEST(Bitmap, DescriptionsOfEachKnownLengthAreRead) {
  for (const std::uint32_t length : {40U, 52U, 56U, 108U, 124U}) {
    BitmapFile file = small_file();
    file.description = length;
    EXPECT_EQ(picture_of(file), small) << length;
  }
}

TEST(Bitmap, DotsMayBeginFurtherBackAndMoreMayFollow) {
  BitmapFile file = small_file();
  file.between = 7;
  file.rows += "more";
  EXPECT_EQ(picture_of(file), small);
  file.colours_used = 0;
  EXPECT_EQ(picture_of(file), small) << "no number of colours stands for all of them";
}

TEST(Bitmap, ThreeHundredEightyFourBy162DotsHaveTheLengthOfALogo) {
  EXPECT_EQ(BitmapFile{}.bytes().size(), 7838U);
  EXPECT_EQ(code_of(BitmapFile{}), 0);
}

TEST(Bitmap, WhatDoesNotBeginAsABitmapIsNone) {
  for (const std::string bytes : {"", "B", "BM", "bm and more", "\x89PNG\r\n"}) EXPECT_EQ(code_of(bytes), no_bitmap);
  EXPECT_EQ(code_of(std::string(7838, '\0')), no_bitmap);
  BitmapFile file;
  file.mark = "BA";
  EXPECT_EQ(code_of(file), no_bitmap);
}

TEST(Bitmap, ImpossibleSizesAreNoBitmap) {
  for (const auto& [width, height] : {std::pair{0, 5}, {-8, 5}, {8, 0}}) {
    BitmapFile file = small_file();
    file.width = width;
    file.height = height;
    EXPECT_EQ(code_of(file), no_bitmap) << width << " x " << height;
  }
  BitmapFile file = small_file();
  file.planes = 2;
  EXPECT_EQ(code_of(file), no_bitmap);
  file = small_file();
  file.colours_used = 3;
  EXPECT_EQ(code_of(file), no_bitmap);
}

TEST(Bitmap, OneThatIsCutShortIsNone) {
  const std::string whole = small_file().bytes();
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_EQ(code_of(whole.substr(0, length)), no_bitmap) << length;
  }
  EXPECT_EQ(code_of(whole), 0);
}

TEST(Bitmap, DotsThatBeginInsideTheHeadOrBehindTheEndAreNone) {
  std::string bytes = small_file().bytes();
  bytes[10] = 61;
  EXPECT_EQ(code_of(bytes), no_bitmap);
  bytes.replace(10, 4, "\xFF\xFF\xFF\xFF");
  EXPECT_EQ(code_of(bytes), no_bitmap);
}

TEST(Bitmap, ADescriptionOfAnotherKindIsUnknown) {
  std::string bytes = BitmapFile{}.bytes();
  for (const int length : {12, 16, 39, 41, 64}) {
    bytes[14] = static_cast<char>(length);
    EXPECT_EQ(code_of(bytes), unknown_type) << length;
  }
}

TEST(Bitmap, ACompressedOneIsUnknown) {
  for (const std::uint32_t packing : {1U, 2U, 3U, 0xFFFFFFFFU}) {
    BitmapFile file;
    file.packing = packing;
    EXPECT_EQ(code_of(file), unknown_type) << packing;
  }
}

TEST(Bitmap, MoreThanOneBitForADotIsNotBlackAndWhite) {
  for (const int bits : {0, 2, 4, 8, 16, 24, 32}) {
    BitmapFile file = small_file();
    file.bits = static_cast<std::uint16_t>(bits);
    EXPECT_EQ(code_of(file), not_black_and_white) << bits;
  }
  BitmapFile coloured;
  coloured.bits = 8;
  coloured.packing = 1;
  coloured.width = 3000;
  EXPECT_EQ(code_of(coloured), not_black_and_white) << "that it is compressed and too wide comes second";
}

TEST(Bitmap, TwoColoursThatAreNotBlackAndWhiteAreRefused) {
  for (const std::string& palette : {std::string{"\xFF\xFF\xFF\0\x01\0\0\0", 8}, std::string{"\0\0\xFF\0\0\0\0\0", 8},
                                     std::string(8, '\0'), std::string(8, '\xFF')}) {
    BitmapFile file;
    file.palette = palette;
    EXPECT_EQ(code_of(file), not_black_and_white);
  }
}

TEST(Bitmap, ALineHas2048DotsAtMost) {
  BitmapFile file;
  file.height = 3;
  file.width = 2048;
  EXPECT_EQ(code_of(file), 0);
  file.width = 2049;
  EXPECT_EQ(code_of(file), too_many_dots);
  std::string huge = BitmapFile{}.bytes();
  huge.replace(18, 4, "\xFF\xFF\xFF\x7F");
  EXPECT_EQ(code_of(huge), too_many_dots);
}

TEST(Bitmap, MoreLinesThanTheRegisterHasRoomForMakeNoLogo) {
  BitmapFile file;
  file.width = 8;
  file.height = 65532;
  EXPECT_EQ(code_of(file), 0);
  file.height = 65533;
  EXPECT_EQ(code_of(file), not_made);
  for (const std::string& height : {std::string{"\0\0\0\x80", 4}, std::string{"\xFF\xFF\xFF\x7F", 4}}) {
    std::string bytes = BitmapFile{}.bytes();
    bytes.replace(22, 4, height);
    EXPECT_EQ(code_of(bytes), not_made);
  }
}

TEST(Bitmap, BytesOverwrittenAtRandomDoNoHarm) {
  Random random{11};
  const std::string whole = BitmapFile{}.bytes();
  int good = 0;
  for (int round = 0; round < 3000; ++round) {
    std::string bytes = whole;
    for (std::uint64_t i = random.below(4); i < 4; ++i) {
      bytes[random.below(62)] = static_cast<char>(random.byte());
    }
    if (code_of(bytes) == 0) ++good;
  }
  EXPECT_GT(good, 0);
  EXPECT_LT(good, 3000);
}

}  // namespace
}  // namespace ecr::test::bitmap_cases

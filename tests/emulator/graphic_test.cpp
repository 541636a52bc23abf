#include "emulator/graphic.h"

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "emulator/receipt.h"

namespace ecr::test::graphic_cases {
namespace {

const DotPicture small{10, 2, std::string{"\x80\x40\x40\x00", 4}};

DotPicture all_of(std::size_t dots, std::size_t lines, char byte) {
  return {dots, lines, std::string((dots + 7) / 8 * lines, byte)};
}

TEST(Graphic, IsTheTwoSizesAndTheRows) {
  EXPECT_EQ(graphic_of(small), (std::string{"\x0A\0\x02\0\x80\x40\x40\x00", 8}));
  EXPECT_EQ(graphic_of(all_of(384, 162, '\0')).substr(0, 4), (std::string{"\x80\x01\xA2\x00", 4}));
  EXPECT_EQ(graphic_of(all_of(384, 162, '\0')).size(), 7780U);
}

TEST(Graphic, ReadsBackWhatItIs) {
  EXPECT_EQ(picture_in_graphic(graphic_of(small)), small);
  EXPECT_EQ(picture_in_graphic(graphic_of(all_of(2048, 255, '\xA5'))), all_of(2048, 255, '\xA5'));
}

TEST(Graphic, HasRoomFor65536Bytes) {
  EXPECT_TRUE(fits_graphic(all_of(2048, 255, '\0')));
  EXPECT_FALSE(fits_graphic(all_of(2048, 256, '\0')));
  EXPECT_FALSE(fits_graphic(all_of(2049, 1, '\0')));
  EXPECT_FALSE(fits_graphic(all_of(0, 1, '\0')));
  EXPECT_FALSE(fits_graphic(all_of(8, 0, '\0')));
}

TEST(Graphic, OtherBytesHoldNoPicture) {
  const std::string whole = graphic_of(small);
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_EQ(picture_in_graphic(whole.substr(0, length)), std::nullopt) << length;
  }
  EXPECT_EQ(picture_in_graphic(whole + "x"), std::nullopt);
  EXPECT_EQ(picture_in_graphic("logo"), std::nullopt);
  EXPECT_EQ(picture_in_graphic(std::string(100, '\0')), std::nullopt);
}

TEST(Graphic, TheCodeTellsHowFullItIs) {
  EXPECT_EQ(code_of_fullness(all_of(384, 162, '\0')), 0x01000000);
  EXPECT_EQ(code_of_fullness(all_of(384, 162, '\xFF')), 0x01006464);
  EXPECT_EQ(code_of_fullness(small), 0x01000000 + 20 * 256 + 15) << "two dots of ten, three of twenty";
}

// The receipt

std::size_t number_at(const std::string& bytes, std::size_t place) {
  std::size_t number = 0;
  for (std::size_t i = 4; i-- > 0;) number = 256 * number + static_cast<unsigned char>(bytes.at(place + i));
  return number;
}

/// The colour number of a dot of a receipt, counted from the top left.
int dot_of(const std::string& picture, std::size_t x, std::size_t y) {
  const std::size_t width = number_at(picture, 18);
  const std::size_t height = number_at(picture, 22);
  return picture.at(number_at(picture, 10) + (height - 1 - y) * ((width + 3) / 4 * 4) + x);
}

constexpr int paper = 1;
constexpr int ink = 2;

TEST(Receipt, IsABitmapOfTheLengthThatItSays) {
  const std::string picture = receipt_picture(small, {});
  EXPECT_EQ(picture.substr(0, 2), "BM");
  EXPECT_EQ(number_at(picture, 2), picture.size());
  EXPECT_EQ(number_at(picture, 18), 464U);
}

TEST(Receipt, ShowsTheLogoDotForDotInTheMiddleOfThePaper) {
  const std::string picture = receipt_picture(small, {});
  constexpr std::size_t left = 16 + 24 + (384 - 10) / 2;
  constexpr std::size_t top = 16 + 28;
  for (std::size_t y = 0; y < 2; ++y) {
    for (std::size_t x = 0; x < 10; ++x) {
      EXPECT_EQ(dot_of(picture, left + x, top + y), small.is_printed(x, y) ? ink : paper) << x << ", " << y;
    }
  }
  EXPECT_EQ(dot_of(picture, left - 1, top), paper);
  EXPECT_EQ(dot_of(picture, left, top - 1), paper);
}

TEST(Receipt, ThePaperIsAsWideAsAWiderLogo) {
  const std::string picture = receipt_picture(all_of(2047, 3, '\xFF'), {});
  EXPECT_EQ(number_at(picture, 18), 2047U + 80);
  EXPECT_EQ(dot_of(picture, 40, 44), ink);
  EXPECT_EQ(dot_of(picture, 40 + 2046, 46), ink);
  EXPECT_EQ(dot_of(picture, 40 + 2047, 46), paper);
}

/// How many dots of ink there are below the logo.
std::size_t ink_below(const std::string& picture, std::size_t y) {
  std::size_t dots = 0;
  for (; y < number_at(picture, 22); ++y) {
    for (std::size_t x = 0; x < number_at(picture, 18); ++x) {
      if (dot_of(picture, x, y) == ink) ++dots;
    }
  }
  return dots;
}

TEST(Receipt, BarsStandForLinesThatAreNotThere) {
  EXPECT_EQ(ink_below(receipt_picture(small, {}), 60), 0U);
  EXPECT_GT(ink_below(receipt_picture(small, {"x"}), 60), 0U);
}

TEST(Receipt, EveryPrintableCharacterIsDrawnAndNoTwoAlike) {
  std::map<std::string, char> seen;
  for (char character = '!'; character <= '~'; ++character) {
    const std::string picture = receipt_picture(small, {std::string(1, character)});
    const auto [place, is_new] = seen.emplace(picture, character);
    EXPECT_TRUE(is_new) << character << " looks like " << place->second;
  }
  EXPECT_EQ(seen.count(receipt_picture(small, {" "})), 0U);
}

TEST(Receipt, ALetterWithAMarkIsDrawnWithout) {
  EXPECT_EQ(receipt_picture(small, {"Caf\xE9"}), receipt_picture(small, {"Cafe"}));
  EXPECT_EQ(receipt_picture(small, {"\xC4\xD6\xDC\xFF"}), receipt_picture(small, {"AOUy"}));
}

TEST(Receipt, AnyCharactersAreTaken) {
  std::vector<std::string> lines(100);
  for (int code = 0; code < 256; ++code) lines.at(static_cast<std::size_t>(code) % 100) += static_cast<char>(code);
  EXPECT_EQ(receipt_picture(small, lines), receipt_picture(small, {lines.begin(), lines.begin() + 60}));
}

TEST(Receipt, ALineHas24CharactersThatFillItExactly) {
  const std::string full = receipt_picture(small, {std::string(24, '#')});
  EXPECT_EQ(receipt_picture(small, {std::string(25, '#')}), full);
  EXPECT_NE(receipt_picture(small, {std::string(23, '#')}), full);
  for (std::size_t y = 60; y < number_at(full, 22); ++y) {
    for (std::size_t x = 0; x < number_at(full, 18); ++x) {
      if (dot_of(full, x, y) == ink) {
        ASSERT_TRUE(x >= 40 && x < 40 + 384) << x;
      }
    }
  }
}

TEST(Receipt, AJournalsLastReceiptBeginsAtItsMark) {
  const auto record = [](std::string text, char mark) {
    text.resize(24, ' ');
    return text + mark + '\0';
  };
  using Lines = std::vector<std::string>;
  EXPECT_EQ(last_receipt(""), Lines{});
  EXPECT_EQ(last_receipt(record("one", '\x02') + record("two", '\0')), (Lines{"one", "two"}));
  EXPECT_EQ(last_receipt(record("one", '\x02') + record("", '\0') + record("two", '\x02') + record("", '\0')),
            Lines{"two"});
  EXPECT_EQ(last_receipt(record("one", '\x02') + "a piece of a record"), Lines{"one"});
}

TEST(Receipt, AVeryLongLogoIsCut) {
  EXPECT_EQ(receipt_picture(all_of(8, 65532, '\xFF'), {}), receipt_picture(all_of(8, 2048, '\xFF'), {}));
  EXPECT_NE(receipt_picture(all_of(8, 2047, '\xFF'), {}), receipt_picture(all_of(8, 2048, '\xFF'), {}));
}

}  // namespace
}  // namespace ecr::test::graphic_cases

#include "logo/paper_preview.h"

#include <gtest/gtest.h>

#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

class PaperPreviewTest : public ScreenTest {
 protected:
  PaperPreview preview{QStringLiteral("I_Anteprima"), QStringLiteral("hint"), nullptr};

  [[nodiscard]] QImage seen() { return preview.grab().toImage(); }

  /// Where the logo's upper left dot is.
  static constexpr QPoint corner{29, 25};
};

/// Every third dot is black, so that no other place looks the same.
QImage striped(int width, int height) {
  QImage picture{width, height, QImage::Format_Mono};
  picture.setColorTable({qRgb(255, 255, 255), qRgb(0, 0, 0)});
  picture.fill(0);
  for (int y = 0; y < height; ++y) {
    for (int x = y % 3; x < width; x += 3) picture.setPixel(x, y, 1);
  }
  return picture;
}

TEST_F(PaperPreviewTest, ALogoOfTheUsualSizeIsShownDotForDot) {
  const QImage logo = striped(384, 162);
  preview.show_picture(logo);
  const QImage shown = seen();
  for (int y = 0; y < 162; ++y) {
    for (int x = 0; x < 384; ++x) {
      const bool black = qGray(shown.pixel(corner + QPoint{x, y})) < 128;
      ASSERT_EQ(black, logo.pixelIndex(x, y) == 1) << x << ", " << y;
    }
  }
}

TEST_F(PaperPreviewTest, ASmallerOneStandsInTheMiddle) {
  preview.show_picture(striped(100, 60));
  const QImage shown = seen();
  EXPECT_EQ(qGray(shown.pixel(corner + QPoint{142, 51})), 0);
  EXPECT_GT(qGray(shown.pixel(corner)), 240);
}

TEST_F(PaperPreviewTest, AWiderOneIsMadeToFit) {
  QImage wide{2048, 30, QImage::Format_Mono};
  wide.setColorTable({qRgb(255, 255, 255), qRgb(0, 0, 0)});
  wide.fill(1);
  preview.show_picture(wide);
  const QImage shown = seen();
  const int middle = corner.y() + 81;
  EXPECT_EQ(qGray(shown.pixel(corner.x(), middle)), 0);
  EXPECT_EQ(qGray(shown.pixel(corner.x() + 383, middle)), 0);
  EXPECT_GT(qGray(shown.pixel(corner.x() - 1, middle)), 240);
  EXPECT_GT(qGray(shown.pixel(corner.x() + 384, middle)), 240);
}

TEST_F(PaperPreviewTest, NoPictureLeavesThePlaceEmpty) {
  const QImage empty = seen();
  preview.show_picture(striped(384, 162));
  EXPECT_NE(seen(), empty);
  EXPECT_FALSE(preview.pixmap(Qt::ReturnByValue).isNull());
  preview.show_picture({});
  EXPECT_EQ(seen(), empty);
  EXPECT_TRUE(preview.pixmap(Qt::ReturnByValue).isNull());
}

/// A bitmap of 8 x 4 dots that names two colours and uses others.
std::string bitmap_with_too_few_colours(char bits) {
  const auto number = [](std::size_t value, std::size_t bytes) {
    std::string text;
    for (std::size_t i = 0; i < bytes; ++i) text += static_cast<char>(value >> (8 * i) & 0xFF);
    return text;
  };
  const std::string dots(32, '\xFF');
  return "BM" + number(62 + dots.size(), 4) + number(0, 4) + number(62, 4) + number(40, 4) + number(8, 4) +
         number(4, 4) + number(1, 2) + bits + '\0' + number(0, 4) + number(dots.size(), 4) + number(0, 8) +
         number(2, 4) + number(2, 4) + std::string(8, '\0') + dots;
}

TEST_F(PaperPreviewTest, EveryDotOfABitmapHasAColourHoweverFewItNames) {
  const QImage bytes_wide = picture_of_bitmap(bitmap_with_too_few_colours('\x08'));
  ASSERT_FALSE(bytes_wide.isNull());
  EXPECT_EQ(bytes_wide.colorCount(), 256);
  for (int x = 0; x < bytes_wide.width(); ++x) EXPECT_LT(bytes_wide.pixelIndex(x, 0), bytes_wide.colorCount());
  const QImage dots_wide = picture_of_bitmap(bitmap_with_too_few_colours('\x01'));
  ASSERT_FALSE(dots_wide.isNull());
  EXPECT_EQ(dots_wide.colorCount(), 2);
  preview.show_picture(bytes_wide);
  EXPECT_FALSE(seen().isNull());
}

TEST_F(PaperPreviewTest, WhatIsNoBitmapIsNoPicture) {
  EXPECT_TRUE(picture_of_bitmap("BM and nothing else").isNull());
  EXPECT_TRUE(picture_of_bitmap({}).isNull());
}

}  // namespace
}  // namespace ecr::test

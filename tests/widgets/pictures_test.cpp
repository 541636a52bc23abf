#include "widgets/pictures.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>

#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

class PicturesTest : public ScreenTest {
 protected:
  static void write_picture(const QString& name, int side, const QColor& colour) {
    QImage image{side, side, QImage::Format_RGB32};
    image.fill(colour);
    ASSERT_TRUE(image.save(setup_file(name)));
  }
  static QColor colour_of(const QString& name, qreal ratio) {
    return setup_pixmap(name, {10, 10}, ratio).toImage().pixelColor(3, 3);
  }
};

TEST_F(PicturesTest, AFinerScreenTakesTheFinerPicture) {
  write_picture(QStringLiteral("x.png"), 10, Qt::red);
  write_picture(QStringLiteral("x@2x.png"), 20, Qt::blue);
  EXPECT_EQ(colour_of(QStringLiteral("x.png"), 1), QColor(Qt::red));
  EXPECT_EQ(colour_of(QStringLiteral("x.png"), 2), QColor(Qt::blue));
  EXPECT_EQ(setup_pixmap(QStringLiteral("x.png"), {10, 10}, 2).deviceIndependentSize(), QSizeF(10, 10));
  ASSERT_TRUE(QFile::remove(setup_file(QStringLiteral("x@2x.png"))));
  EXPECT_EQ(colour_of(QStringLiteral("x.png"), 2), QColor(Qt::red)) << "without the finer one the other is enlarged";
}

TEST_F(PicturesTest, APictureOfTheRightSizeIsShownPixelByPixel) {
  QImage image{10, 10, QImage::Format_ARGB32};
  image.fill(Qt::transparent);
  image.setPixelColor(9, 4, QColor{1, 2, 3});
  ASSERT_TRUE(image.save(setup_file(QStringLiteral("x.png"))));
  EXPECT_EQ(setup_pixmap(QStringLiteral("x.png"), {10, 10}, 1).toImage().convertToFormat(QImage::Format_ARGB32), image);
}

TEST_F(PicturesTest, WhatWasReadAheadIsShownOnceAndThenReadAgain) {
  write_picture(QStringLiteral("x.png"), 10, Qt::red);
  write_picture(QStringLiteral("y.png"), 10, Qt::yellow);
  read_pictures_ahead({"x.png", "none.png"}, 1);
  EXPECT_EQ(colour_of(QStringLiteral("y.png"), 1), QColor(Qt::yellow)) << "others are read as ever";
  write_picture(QStringLiteral("x.png"), 10, Qt::blue);
  EXPECT_EQ(colour_of(QStringLiteral("x.png"), 1), QColor(Qt::red));
  EXPECT_EQ(colour_of(QStringLiteral("x.png"), 1), QColor(Qt::blue));
  EXPECT_TRUE(setup_pixmap(QStringLiteral("none.png"), {10, 10}, 1).isNull());
}

}  // namespace
}  // namespace ecr::test

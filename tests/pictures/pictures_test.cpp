// The pictures as the program finds them in Setup/ of the installation.

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <string_view>

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QImage>
#include <QImageReader>
#include <QSet>
#include <QtEndian>

#include "lang/language.h"

namespace ecr::test {
namespace {

QString in_setup(std::string_view name) {
  return QString(VERMANTO_SETUP "/") + QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

struct Picture {
  const char* name;
  const char* format;
  QSize size;
  bool opaque;
};

// GoogleTest's own name for the function.
void PrintTo(const Picture& picture, std::ostream* out) {
  *out << picture.name;
}

constexpr QSize flag_size{48, 32};

const std::array<Picture, 23> pictures = {{
    {"Logo_Angolo.gif", "gif", {160, 100}, true},
    {"Logo_Angolo.jpg", "jpeg", {112, 70}, true},
    {"Logo_Angolo@2x.jpg", "jpeg", {224, 140}, true},
    {"vermanto.bmp", "bmp", {172, 38}, true},
    {"vermanto@2x.bmp", "bmp", {344, 76}, true},
    {"UK.gif", "gif", flag_size, true},
    {"Spain.gif", "gif", flag_size, true},
    {"France.gif", "gif", flag_size, true},
    {"Germany.gif", "gif", flag_size, true},
    {"Netherlands.gif", "gif", flag_size, true},
    {"Portugal.gif", "gif", flag_size, true},
    {"Denmark.gif", "gif", flag_size, true},
    {"Norway.gif", "gif", flag_size, true},
    {"ECRZ300.png", "png", {320, 240}, false},
    {"ECRZ300@2x.png", "png", {640, 480}, false},
    {"ECRZ320.png", "png", {320, 240}, false},
    {"ECRZ320@2x.png", "png", {640, 480}, false},
    {"help.png", "png", {24, 24}, false},
    {"help@2x.png", "png", {48, 48}, false},
    {"vermanto.png", "png", {256, 256}, false},
    {"vermanto-48.png", "png", {48, 48}, false},
    {"vermanto-32.png", "png", {32, 32}, false},
    {"vermanto-16.png", "png", {16, 16}, false},
}};

/// Whether the last bytes are those that end a file of the format: some readers make up for what is cut off, silently.
bool ends_properly(const QByteArray& bytes, const QByteArray& format) {
  if (format == "gif") return bytes.endsWith(';');
  if (format == "jpeg") return bytes.endsWith("\xFF\xD9");
  if (format == "png") return bytes.endsWith("IEND\xAE\x42\x60\x82");
  return format == "bmp" && bytes.size() > 6 && qFromLittleEndian<quint32>(bytes.constData() + 2) == bytes.size();
}

/// The image plugins are looked for by the application object.
class Pictures : public testing::Test {
 protected:
  static QImage read(std::string_view name) {
    QImageReader reader(in_setup(name));
    reader.setDecideFormatFromContent(true);
    return reader.read();
  }

 private:
  std::string program_ = "pictures_test";
  std::array<char*, 2> arguments_ = {program_.data(), nullptr};
  int argument_count_ = 1;
  QCoreApplication application_{argument_count_, arguments_.data()};
};

class EachPicture : public Pictures, public testing::WithParamInterface<Picture> {};

TEST_P(EachPicture, IsInSetupUnderItsExactName) {
  EXPECT_TRUE(QFile::exists(in_setup(GetParam().name)));
}

TEST_P(EachPicture, HoldsTheFormatThatItsNameSays) {
  EXPECT_EQ(QImageReader::imageFormat(in_setup(GetParam().name)), QByteArray(GetParam().format));
}

TEST_P(EachPicture, ReadsWholeInItsSize) {
  QImageReader reader(in_setup(GetParam().name));
  reader.setDecideFormatFromContent(true);
  const QImage image = reader.read();
  EXPECT_EQ(reader.error(), QImageReader::ImageReaderError(0)) << reader.errorString().toStdString();
  EXPECT_EQ(image.size(), GetParam().size);
}

TEST_P(EachPicture, EndsWhereItsFormatSays) {
  QFile file(in_setup(GetParam().name));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(ends_properly(file.readAll(), GetParam().format));
}

// A flag of two colours has three with its edge, and no drawing has fewer. The commonest colour may fill much of a
// drawing, but not nearly all of it.
TEST_P(EachPicture, ShowsSomething) {
  const QImage image = read(GetParam().name).convertToFormat(QImage::Format_ARGB32);
  ASSERT_FALSE(image.isNull());
  QHash<QRgb, int> counts;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) ++counts[image.pixel(x, y)];
  }
  EXPECT_GE(counts.size(), 3);
  EXPECT_LT(*std::max_element(counts.begin(), counts.end()), image.width() * image.height() * 9 / 10);
}

TEST_P(EachPicture, LetsTheWindowThroughAtItsCornersOnlyWhereItHasNoGroundOfItsOwn) {
  const QImage image = read(GetParam().name).convertToFormat(QImage::Format_ARGB32);
  ASSERT_FALSE(image.isNull());
  const int right = image.width() - 1;
  const int bottom = image.height() - 1;
  for (const QPoint corner : {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)}) {
    const int alpha = qAlpha(image.pixel(corner));
    if (GetParam().opaque) {
      EXPECT_EQ(alpha, 255);
    } else {
      EXPECT_LT(alpha, 128);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Setup, EachPicture, testing::ValuesIn(pictures), [](const auto& each) {
  std::string name = each.param.name;
  std::replace_if(
      name.begin(), name.end(), [](char c) { return std::string_view(".-@").find(c) != std::string_view::npos; }, '_');
  return name;
});

TEST_F(Pictures, EveryLanguageHasAFlagOfItsOwn) {
  QSet<QByteArray> seen;
  for (const Language& language : languages) {
    const QImage flag = read(language.flag).convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(flag.size(), flag_size) << language.flag;
    seen.insert(QByteArray(reinterpret_cast<const char*>(flag.constBits()), flag.sizeInBytes()));
  }
  EXPECT_EQ(static_cast<std::size_t>(seen.size()), languages.size());
}

TEST_F(Pictures, AFinerPictureShowsTheSameAsItsCoarseOne) {
  for (const std::string name : {"ECRZ300.png", "ECRZ320.png", "help.png", "vermanto.bmp", "Logo_Angolo.jpg"}) {
    const QImage coarse = read(name).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage fine =
        read(std::string{name}.insert(name.find('.'), "@2x")).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    ASSERT_EQ(fine.size(), coarse.size() * 2) << name;
    const QImage shrunk = fine.scaled(coarse.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    qint64 difference = 0;
    for (int y = 0; y < coarse.height(); ++y) {
      for (int x = 0; x < coarse.width(); ++x) {
        difference += std::abs(qGreen(coarse.pixel(x, y)) - qGreen(shrunk.pixel(x, y)));
        difference += std::abs(qAlpha(coarse.pixel(x, y)) - qAlpha(shrunk.pixel(x, y)));
      }
    }
    EXPECT_LT(difference, coarse.width() * coarse.height() * 2) << name;  // on average, of 510 for a pixel
  }
}

TEST_F(Pictures, TheSampleLogoIsOneThatTheRegisterTakes) {
  const QString path = QStringLiteral(VERMANTO_SETUP "/../Logo/sample_logo.bmp");
  EXPECT_EQ(QFileInfo(path).size(), 7838);
  QImageReader reader(path);
  EXPECT_EQ(reader.format(), QByteArray("bmp"));
  const QImage logo = reader.read();
  EXPECT_EQ(logo.size(), QSize(384, 162));
  EXPECT_EQ(logo.depth(), 1);
  int black = 0;
  for (int y = 0; y < logo.height(); ++y) {
    for (int x = 0; x < logo.width(); ++x) black += qGray(logo.pixel(x, y)) == 0 ? 1 : 0;
  }
  EXPECT_GT(black, 384 * 162 / 20) << "something is drawn";
  EXPECT_LT(black, 384 * 162 / 2);
}

TEST_F(Pictures, TheTwoModelsLookDifferent) {
  EXPECT_NE(read("ECRZ300.png"), read("ECRZ320.png"));
}

}  // namespace
}  // namespace ecr::test

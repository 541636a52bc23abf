#include "keyboard/key_face.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <string_view>

#include <QApplication>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include "fields/key_codes.h"
#include "support_qt/printing.h"
#include "widgets/look.h"

namespace ecr::test {
namespace {

double widest_line(const FittedText& text) {
  double widest = 0;
  for (const QString& line : text.lines) {
    widest = std::max(widest, QFontMetricsF{text.font}.horizontalAdvance(line) * text.narrowing);
  }
  return widest;
}

// No key is ever smaller.
constexpr QSize small_key{46, 40};

TEST(KeyFace, EachFunctionHasRoomOnTheSmallestKey) {
  for (int code = 0; code < 256; ++code) {
    const std::string_view name = key_name(static_cast<std::uint8_t>(code));
    if (name.empty()) continue;
    const QString text = QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
    const QSize needed = smallest_cap(text);
    EXPECT_LE(needed.width(), small_key.width()) << name;
    EXPECT_LE(needed.height(), small_key.height()) << name;
    const QSize place = text_place({{}, small_key}).size();
    const FittedText fitted = fit_text(text, place);
    EXPECT_LE(widest_line(fitted), place.width()) << name;
    EXPECT_LE(QFontMetricsF{fitted.font}.height() * static_cast<double>(fitted.lines.size()), place.height()) << name;
    EXPECT_EQ(fitted.lines.join(QString{}).remove(u' '), QString{text}.remove(u' '));
  }
}

TEST(KeyFace, LinesEndAtBlanksAndBehindSigns) {
  const QSize narrow{56, 60};
  EXPECT_EQ(fit_text("TAKE OUT", {50, 60}).lines, QStringList({"TAKE", "OUT"}));
  EXPECT_EQ(fit_text("TABLE#NEW BAL", narrow).lines, QStringList({"TABLE#", "NEW BAL"}));
  EXPECT_EQ(fit_text("#NS, NEXT", narrow).lines, QStringList({"#NS,", "NEXT"}));
  EXPECT_EQ(fit_text("+/-1", narrow).lines, QStringList{"+/-1"});
}

TEST(KeyFace, ATextWithRoomStandsInOneLineOfWideLetters) {
  const FittedText fitted = fit_text("TAKE OUT", {200, 40});
  EXPECT_EQ(fitted.lines, QStringList{"TAKE OUT"});
  EXPECT_EQ(fitted.narrowing, 1);
  EXPECT_EQ(fit_text({}, {40, 40}).lines, QStringList{});
}

TEST(KeyFace, WhatHasNoRoomAnywhereIsDrawnSmall) {
  const FittedText fitted = fit_text("PAYMENT TRANSFER", {5, 5});
  EXPECT_EQ(fitted.lines, QStringList({"PAYMENT", "TRANSFER"}));
  EXPECT_LT(fitted.narrowing, 1);
}

TEST(KeyFace, AChosenKeyAndAFixedOneLookLikeNoOther) {
  const auto drawn = [](const KeyFace& face) {
    QImage image{40, 40, QImage::Format_RGB32};
    image.fill(Qt::white);
    QPainter painter{&image};
    draw_key(painter, image.rect(), QPalette{}, face);
    return image;
  };
  const QImage plain = drawn({});
  EXPECT_NE(drawn({.chosen = true}), plain);
  EXPECT_NE(drawn({.fixed = true}), plain);
  EXPECT_NE(drawn({.hovered = true}), plain);
  EXPECT_NE(drawn({.pressed = true}), plain);
  EXPECT_NE(drawn({.focused = true}), plain);
  EXPECT_EQ(drawn({}), plain);
}

double luminance(const QColor& colour) {
  const auto linear = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

TEST(KeyFace, LettersOfEachColourCanBeReadOnEachFace) {
  auto& application = *static_cast<QApplication*>(QCoreApplication::instance());
  for (const Scheme scheme : {Scheme::light, Scheme::dark}) {
    apply_look(application, scheme);
    const auto contrast = [](const KeyFace& face, const QColor& ink) {
      QImage image{40, 40, QImage::Format_RGB32};
      QPainter painter{&image};
      draw_key(painter, image.rect(), QApplication::palette(), face);
      const double ground = luminance(image.pixelColor(20, 20));
      const double text = luminance(ink);
      return (std::max(ground, text) + 0.05) / (std::min(ground, text) + 0.05);
    };
    for (const KeyFace& face : {KeyFace{}, KeyFace{.chosen = true}, KeyFace{.chosen = true, .hovered = true}}) {
      EXPECT_GE(contrast(face, text_plain()), 4.5);
      EXPECT_GE(contrast(face, text_red()), 4.4);
    }
    EXPECT_GE(contrast({.fixed = true}, fixed_print(QApplication::palette())), 4.5);
  }
  apply_look(application, Scheme::light);
}

}  // namespace
}  // namespace ecr::test

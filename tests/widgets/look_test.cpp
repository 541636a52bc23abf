#include "widgets/look.h"

#include <cmath>
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPalette>
#include <QStyleOption>
#include <QTabBar>

namespace ecr::test {
namespace {

double luminance(const QColor& colour) {
  const auto linear = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

/// From 1, the same, to 21, black on white; texts are readable from 4.5 on.
double contrast(const QColor& one, const QColor& other) {
  const double lighter = std::max(luminance(one), luminance(other));
  const double darker = std::min(luminance(one), luminance(other));
  return (lighter + 0.05) / (darker + 0.05);
}

class LookTest : public ::testing::TestWithParam<Scheme> {
 protected:
  LookTest() { apply_look(*static_cast<QApplication*>(QCoreApplication::instance()), GetParam()); }
  ~LookTest() override {
    apply_look(*static_cast<QApplication*>(QCoreApplication::instance()), Scheme::light);
    qunsetenv("VERMANTO_LOOK");
  }
};

TEST_P(LookTest, ColoursWithAMeaningAreDistinct) {
  EXPECT_NE(text_green(), text_red());
  EXPECT_NE(text_green(), text_plain());
  EXPECT_NE(text_red(), text_plain());
  EXPECT_GT(text_green().green(), text_green().red()) << "green is green";
  EXPECT_GT(text_red().red(), text_red().green()) << "red is red";
}

TEST_P(LookTest, TextsCanBeRead) {
  const QPalette palette = QApplication::palette();
  const QColor field = palette.color(QPalette::Base);
  for (const QColor& text : {text_green(), text_red(), text_plain(), palette.color(QPalette::Text),
                             palette.color(QPalette::PlaceholderText)}) {
    EXPECT_GE(contrast(text, field), 4.5) << qPrintable(text.name());
  }
  EXPECT_GE(contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Window)), 4.5);
  EXPECT_GE(contrast(palette.color(QPalette::ButtonText), palette.color(QPalette::Button)), 4.5);
  EXPECT_GE(contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), 4.5);
}

TEST_P(LookTest, TheSchemeIsTheOneThatIsSeen) {
  const QPalette palette = QApplication::palette();
  const bool is_dark = palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
  EXPECT_EQ(is_dark, GetParam() == Scheme::dark);
  EXPECT_EQ(wanted_scheme(), GetParam()) << "without a word of its own the program follows what it finds";
}

TEST_P(LookTest, TheEnvironmentCanNameTheScheme) {
  qputenv("VERMANTO_LOOK", "dark");
  EXPECT_EQ(wanted_scheme(), Scheme::dark);
  qputenv("VERMANTO_LOOK", "light");
  EXPECT_EQ(wanted_scheme(), Scheme::light);
  qputenv("VERMANTO_LOOK", "neither");
  EXPECT_EQ(wanted_scheme(), GetParam());
}

TEST_P(LookTest, TheStyleSheetNamesNoColourThatIsNotThere) {
  const QString sheet = static_cast<QApplication*>(QCoreApplication::instance())->styleSheet();
  EXPECT_FALSE(sheet.isEmpty());
  EXPECT_FALSE(sheet.contains(u'@'));
}

TEST_P(LookTest, AHeadingIsLargerThanItsTextAndAHintPaler) {
  QLabel plain;
  QLabel heading;
  QLabel hint;
  make_heading(heading);
  make_hint(hint);
  EXPECT_GT(heading.font().pointSizeF(), plain.font().pointSizeF() * 1.5);
  EXPECT_GT(heading.font().weight(), plain.font().weight());
  const QColor window = plain.palette().color(QPalette::Window);
  EXPECT_LT(contrast(hint.palette().color(QPalette::WindowText), window),
            contrast(plain.palette().color(QPalette::WindowText), window));
}

TEST_P(LookTest, ACardFillsItsPlaceUpToItsRoundCorners) {
  for (const qreal ratio : {1.0, 2.0}) {
    QImage image{QSize{60, 40} * ratio, QImage::Format_ARGB32_Premultiplied};
    image.setDevicePixelRatio(ratio);
    const auto drawn = [&](QStyle::State state) {
      image.fill(Qt::transparent);
      QPainter painter{&image};
      QStyleOption card;
      card.rect = {0, 0, 60, 40};
      card.state = state;
      draw_card(painter, card);
    };
    const auto at = [&](int x, int y) { return image.pixelColor(QPoint{x, y} * ratio); };
    drawn(QStyle::State_Enabled);
    const QPalette palette = QApplication::palette();
    EXPECT_EQ(at(30, 20), palette.color(QPalette::Button));
    EXPECT_EQ(at(3, 20), palette.color(QPalette::Button)) << "beside the edge";
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(image.pixelColor(image.width() - 1, image.height() - 1).alpha(), 0);
    const QColor edge = at(0, 20);
    EXPECT_NE(edge, palette.color(QPalette::Button));
    EXPECT_EQ(at(59, 20), edge);
    EXPECT_EQ(at(30, 0), edge);
    EXPECT_EQ(at(30, 39), edge);
    drawn(QStyle::State_Enabled | QStyle::State_HasFocus);
    EXPECT_EQ(at(1, 20), palette.color(QPalette::Highlight));
    EXPECT_EQ(at(30, 20), palette.color(QPalette::Button));
    drawn(QStyle::State_Enabled | QStyle::State_MouseOver);
    const QColor hovered = at(30, 20);
    drawn(QStyle::State_Enabled | QStyle::State_Sunken);
    EXPECT_NE(hovered, palette.color(QPalette::Button));
    EXPECT_NE(at(30, 20), hovered);
  }
}

TEST_P(LookTest, TheTabInFrontAloneIsUnderlined) {
  QTabBar tabs;
  tabs.addTab(QStringLiteral("First"));
  tabs.addTab(QStringLiteral("Second"));
  tabs.resize(tabs.sizeHint());
  const QRgb accent = QApplication::palette().color(QPalette::Highlight).rgb();
  for (const int front : {0, 1}) {
    tabs.setCurrentIndex(front);
    const QImage seen = tabs.grab().toImage();
    for (const int tab : {0, 1}) {
      const QPoint foot{tabs.tabRect(tab).center().x(), tabs.tabRect(tab).bottom()};
      EXPECT_EQ(seen.pixel(foot * seen.devicePixelRatio()) == accent, tab == front) << "tab " << tab;
    }
  }
}

TEST_P(LookTest, BoxesAndOptionsAreSeenAndShowHowTheyStand) {
  const QPalette palette = QApplication::palette();
  for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton}) {
    const auto drawn = [&](QStyle::State state) {
      QImage image{16, 16, QImage::Format_RGB32};
      image.fill(palette.color(QPalette::Window));
      QPainter painter{&image};
      QStyleOptionButton box;
      box.rect = image.rect();
      box.palette = palette;
      box.state = state;
      QApplication::style()->drawPrimitive(element, &box, &painter, nullptr);
      return image;
    };
    const QImage off = drawn(QStyle::State_Enabled | QStyle::State_Off);
    const QImage on = drawn(QStyle::State_Enabled | QStyle::State_On);
    EXPECT_GE(contrast(off.pixelColor(0, 8), palette.color(QPalette::Window)), 3) << "its edge";
    EXPECT_EQ(on.pixelColor(8, 3), palette.color(QPalette::Highlight));
    EXPECT_EQ(off.pixelColor(8, 3), palette.color(QPalette::Base));
    EXPECT_NE(drawn(QStyle::State_Off), off) << "disabled";
    EXPECT_NE(drawn(QStyle::State_On), drawn(QStyle::State_Off));
    EXPECT_NE(drawn(QStyle::State_Enabled | QStyle::State_Off | QStyle::State_HasFocus), off);
  }
}

INSTANTIATE_TEST_SUITE_P(InBothSchemes, LookTest, ::testing::Values(Scheme::light, Scheme::dark));

}  // namespace
}  // namespace ecr::test

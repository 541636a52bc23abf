#include "widgets/look.h"

#include <cmath>
#include <gtest/gtest.h>

#include <QApplication>
#include <QPalette>

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

INSTANTIATE_TEST_SUITE_P(InBothSchemes, LookTest, ::testing::Values(Scheme::light, Scheme::dark));

}  // namespace
}  // namespace ecr::test

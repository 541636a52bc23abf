#include "reports/chart_painter.h"

#include <cmath>
#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include "support_qt/printing.h"

namespace ecr::test {
namespace {

const QRectF place{10, 20, 600, 300};
ChartLook look() {
  return {Qt::black, Qt::gray, Qt::lightGray, Qt::blue, Qt::red, QFont{}};
}

Chart chart(Chart::Kind kind, const std::vector<double>& values) {
  Chart result{"Sales", kind, {}};
  for (const double value : values) {
    result.points.push_back({"P" + std::to_string(result.points.size()), value, std::to_string(value)});
  }
  return result;
}

QImage drawn(const Chart& what) {
  QImage image{620, 340, QImage::Format_RGB32};
  image.fill(Qt::white);
  QPainter painter{&image};
  draw_chart(painter, what, place, look());
  return image;
}

int count_of(const QImage& image, QColor colour) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == colour ? 1 : 0;
  }
  return count;
}

TEST(ChartPainter, StepsAreRound) {
  const std::pair<double, double> rows[] = {{5, 1},   {6, 2},   {10, 2},    {11, 5},     {25, 5},
                                            {26, 10}, {50, 10}, {0.5, 0.1}, {4321, 1000}};
  for (const auto& [range, step] : rows) EXPECT_DOUBLE_EQ(round_step(range, 5), step) << range;
  EXPECT_EQ(round_step(0, 5), 1);
  EXPECT_EQ(round_step(-3, 5), 1);
  EXPECT_EQ(round_step(NAN, 5), 1);
}

TEST(ChartPainter, BarsAreAsLongAsTheirValuesAreLarge) {
  const ChartPlan plan = plan_chart(chart(Chart::Kind::bars, {100, 50, 0, -25}), place, QFont{});
  ASSERT_EQ(plan.bars.size(), 4U);
  EXPECT_NEAR(plan.bars[1].width() * 2, plan.bars[0].width(), 1e-6);
  EXPECT_NEAR(plan.bars[3].width() * 4, plan.bars[0].width(), 1e-6);
  EXPECT_EQ(plan.bars[2].width(), 0);
  EXPECT_DOUBLE_EQ(plan.bars[0].left(), plan.zero);
  EXPECT_NEAR(plan.bars[3].right(), plan.zero, 1e-6) << "what is below zero lies on the other side";
  for (const QRectF& bar : plan.bars) {
    EXPECT_GE(bar.left(), plan.plot.left() - 1e-6);
    EXPECT_LE(bar.right(), plan.plot.right() + 1e-6);
    EXPECT_GE(bar.top(), plan.plot.top());
    EXPECT_LE(bar.bottom(), plan.plot.bottom());
  }
}

TEST(ChartPainter, ColumnsStandOnTheZeroLineInTheirOrder) {
  const ChartPlan plan = plan_chart(chart(Chart::Kind::columns, {1, 4, 2}), place, QFont{});
  ASSERT_EQ(plan.bars.size(), 3U);
  EXPECT_NEAR(plan.bars[0].height() * 4, plan.bars[1].height(), 1e-6);
  for (const QRectF& bar : plan.bars) EXPECT_NEAR(bar.bottom(), plan.zero, 1e-6);
  EXPECT_LT(plan.bars[0].right(), plan.bars[1].left());
  EXPECT_LT(plan.bars[1].right(), plan.bars[2].left());
  EXPECT_EQ(plan.scale.size(), 5U) << "0 to 4";
}

TEST(ChartPainter, ALineHasACornerForEachValue) {
  const ChartPlan plan = plan_chart(chart(Chart::Kind::line, {0, 10, 5}), place, QFont{});
  ASSERT_EQ(plan.line.size(), 3);
  EXPECT_TRUE(plan.bars.empty());
  EXPECT_DOUBLE_EQ(plan.line[0].y(), plan.zero);
  EXPECT_NEAR(plan.zero - plan.line[1].y(), 2 * (plan.zero - plan.line[2].y()), 1e-6);
}

TEST(ChartPainter, TextsStayInThePlaceAndApart) {
  for (const Chart::Kind kind : {Chart::Kind::bars, Chart::Kind::columns, Chart::Kind::line}) {
    const ChartPlan plan = plan_chart(chart(kind, std::vector<double>(24, 1234.5)), place, QFont{});
    ASSERT_GT(plan.texts.size(), 5U);
    EXPECT_EQ(plan.texts[0].text, QStringLiteral("Sales"));
    const QFontMetricsF metrics{QFont{}};
    for (const ChartPlan::Text& text : plan.texts) {
      EXPECT_TRUE(place.adjusted(-12, -12, 12, 12).contains(text.place)) << text.text.toStdString();
    }
    for (std::size_t i = 1; i < plan.texts.size(); ++i) {
      EXPECT_LE(metrics.horizontalAdvance(plan.texts[i].text), plan.texts[i].place.width() + 0.5)
          << plan.texts[i].text.toStdString();
    }
  }
}

TEST(ChartPainter, NothingToShowIsATitleAlone) {
  for (const Chart::Kind kind : {Chart::Kind::bars, Chart::Kind::columns, Chart::Kind::line}) {
    const ChartPlan plan = plan_chart(chart(kind, {}), place, QFont{});
    EXPECT_EQ(plan.texts.size(), 1U);
    EXPECT_TRUE(plan.bars.empty());
    EXPECT_GT(count_of(drawn(chart(kind, {})), Qt::black), 0);
    EXPECT_TRUE(plan_chart(chart(kind, {1}), QRectF{0, 0, 5, 5}, QFont{}).bars.empty()) << "there is no room";
  }
}

TEST(ChartPainter, AllZeroIsDrawnOnTheZeroLine) {
  const ChartPlan plan = plan_chart(chart(Chart::Kind::columns, {0, 0}), place, QFont{});
  for (const QRectF& bar : plan.bars) EXPECT_EQ(bar.height(), 0);
}

TEST(ChartPainter, WhatIsPlannedIsDrawn) {
  const Chart what = chart(Chart::Kind::bars, {100, -50});
  const ChartPlan plan = plan_chart(what, place, QFont{});
  const QImage image = drawn(what);
  EXPECT_EQ(image.pixelColor(plan.bars[0].center().toPoint()), QColor{Qt::blue});
  EXPECT_EQ(image.pixelColor(plan.bars[1].center().toPoint()), QColor{Qt::red});
  EXPECT_GT(count_of(drawn(chart(Chart::Kind::line, {1, 2, 3})), Qt::blue), 50);
}

TEST(ChartPainter, AChartOfBarsGrowsWithThem) {
  const double few = chart_height(chart(Chart::Kind::bars, {1, 2}), QFont{});
  const double many = chart_height(chart(Chart::Kind::bars, {1, 2, 3, 4}), QFont{});
  EXPECT_GT(many, few + 2 * QFontMetricsF{QFont{}}.height());
  EXPECT_EQ(chart_height(chart(Chart::Kind::columns, {1}), QFont{}),
            chart_height(chart(Chart::Kind::columns, {1, 2, 3}), QFont{}));
}

}  // namespace
}  // namespace ecr::test

#include "reports/chart_painter.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr int most_steps = 5;

QFont title_font(QFont font) {
  // A font has its size in points or in pixels, never in both.
  constexpr double larger = 1.2;
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * larger);
  } else {
    font.setPixelSize(static_cast<int>(font.pixelSize() * larger));
  }
  font.setWeight(QFont::DemiBold);
  return font;
}

struct Range {
  double least = 0;
  double most = 0;
  double step = 1;
};

/// From zero, or the least value below it, to the largest one.
Range values_of(const Chart& chart) {
  Range range;
  for (const Chart::Point& point : chart.points) {
    range.least = std::min(range.least, point.value);
    range.most = std::max(range.most, point.value);
  }
  if (range.least == range.most) range.most = 1;
  return range;
}

/// The same, as far as the lines of the scale that no value passes.
Range range_of(const Chart& chart) {
  Range range = values_of(chart);
  range.step = round_step(range.most - range.least, most_steps);
  range.least = std::floor(range.least / range.step) * range.step;
  range.most = std::ceil(range.most / range.step) * range.step;
  return range;
}

std::vector<double> steps_of(const Range& range) {
  std::vector<double> steps;
  const auto count = static_cast<int>(std::lround((range.most - range.least) / range.step));
  for (int i = 0; i <= count; ++i) steps.push_back(range.least + i * range.step);
  return steps;
}

QString scale_text(double value, double step) {
  const int decimals = step >= 1 ? 0 : static_cast<int>(std::ceil(-std::log10(step)));
  return QString::number(value == 0 ? 0 : value, 'f', decimals);
}

/// Lying bars: names at the left, values behind the bars, room for both found from their texts.
void plan_bars(ChartPlan& plan, const Chart& chart, const QRectF& place, const QFontMetricsF& metrics) {
  double names = 0;
  double values = 0;
  for (const Chart::Point& point : chart.points) {
    names = std::max(names, metrics.horizontalAdvance(screen_text(point.name)));
    values = std::max(values, metrics.horizontalAdvance(screen_text(point.text)));
  }
  const double gap = metrics.averageCharWidth();
  names = std::min(names, place.width() / 3);
  plan.plot = place.adjusted(names + gap, 0, -(values + 2 * gap), 0);
  // No scale is shown, so the longest bar takes all the room.
  const Range range = values_of(chart);
  const auto x_of = [&](double value) {
    return plan.plot.left() + (value - range.least) / (range.most - range.least) * plan.plot.width();
  };
  plan.zero = x_of(0);
  const double each = plan.plot.height() / static_cast<double>(chart.points.size());
  const double thick = std::min(each * 0.68, metrics.height() * 1.2);
  for (std::size_t i = 0; i < chart.points.size(); ++i) {
    const Chart::Point& point = chart.points[i];
    const double middle = plan.plot.top() + each * (static_cast<double>(i) + 0.5);
    const double end = x_of(point.value);
    plan.bars.emplace_back(std::min(plan.zero, end), middle - thick / 2, std::abs(end - plan.zero), thick);
    const QRectF line{place.left(), middle - each / 2, names, each};
    plan.texts.push_back(
        {line, metrics.elidedText(screen_text(point.name), Qt::ElideRight, names), Qt::AlignRight | Qt::AlignVCenter});
    plan.texts.push_back({QRectF{std::max(end, plan.zero) + gap, line.top(), values + gap, each},
                          screen_text(point.text), Qt::AlignLeft | Qt::AlignVCenter});
  }
}

/// Upright bars or a line: the scale at the left, names below.
void plan_upright(ChartPlan& plan, const Chart& chart, const QRectF& place, const QFontMetricsF& metrics) {
  const Range range = range_of(chart);
  double scale = 0;
  for (const double step : steps_of(range)) {
    scale = std::max(scale, metrics.horizontalAdvance(scale_text(step, range.step)));
  }
  const double gap = metrics.averageCharWidth();
  plan.plot = place.adjusted(scale + gap, metrics.height() / 2, 0, -metrics.height() * 1.4);
  const auto y_of = [&](double value) {
    return plan.plot.bottom() - (value - range.least) / (range.most - range.least) * plan.plot.height();
  };
  plan.zero = y_of(0);
  for (const double step : steps_of(range)) {
    plan.scale.push_back(y_of(step));
    plan.texts.push_back({QRectF{place.left(), y_of(step) - metrics.height() / 2, scale, metrics.height()},
                          scale_text(step, range.step), Qt::AlignRight | Qt::AlignVCenter});
  }
  const double each = plan.plot.width() / static_cast<double>(chart.points.size());
  double widest = 0;
  for (const Chart::Point& point : chart.points) {
    widest = std::max(widest, metrics.horizontalAdvance(screen_text(point.name)));
  }
  // Names that would run into each other are left out at even distances.
  const auto every = static_cast<std::size_t>(std::max(1.0, std::ceil((widest + gap) / each)));
  for (std::size_t i = 0; i < chart.points.size(); ++i) {
    const Chart::Point& point = chart.points[i];
    const double middle = plan.plot.left() + each * (static_cast<double>(i) + 0.5);
    const double end = y_of(point.value);
    if (chart.kind == Chart::Kind::line) {
      plan.line << QPointF{middle, end};
    } else {
      plan.bars.emplace_back(middle - each * 0.36, std::min(plan.zero, end), each * 0.72, std::abs(end - plan.zero));
    }
    if (i % every != 0) continue;
    const double width = each * static_cast<double>(every);
    plan.texts.push_back(
        {QRectF{middle - width / 2, plan.plot.bottom() + metrics.height() * 0.2, width, metrics.height()},
         screen_text(point.name), Qt::AlignCenter});
  }
}

}  // namespace

double round_step(double range, int most) {
  if (!(range > 0) || !std::isfinite(range)) return 1;
  const double rough = range / most;
  const double power = std::pow(10.0, std::floor(std::log10(rough)));
  for (const double times : {1.0, 2.0, 5.0}) {
    // A hair of room, so that rounding in the division does not skip a step.
    if (rough <= times * power * (1 + 1e-9)) return times * power;
  }
  return 10 * power;
}

ChartPlan plan_chart(const Chart& chart, const QRectF& place, const QFont& font) {
  ChartPlan plan;
  const QFontMetricsF title{title_font(font)};
  plan.texts.push_back({QRectF{place.left(), place.top(), place.width(), title.height()}, screen_text(chart.title),
                        Qt::AlignLeft | Qt::AlignVCenter});
  const QRectF rest = place.adjusted(0, title.height() * 1.6, 0, 0);
  plan.plot = rest;
  if (chart.points.empty() || rest.width() <= 0 || rest.height() <= 0) return plan;
  const QFontMetricsF metrics{font};
  if (chart.kind == Chart::Kind::bars) {
    plan_bars(plan, chart, rest, metrics);
  } else {
    plan_upright(plan, chart, rest, metrics);
  }
  return plan;
}

double chart_height(const Chart& chart, const QFont& font) {
  const double title = QFontMetricsF{title_font(font)}.height() * 1.6;
  const double line = QFontMetricsF{font}.height();
  return title + (chart.kind == Chart::Kind::bars ? static_cast<double>(chart.points.size()) * line * 1.7 : line * 10);
}

void draw_chart(QPainter& painter, const Chart& chart, const QRectF& place, const ChartLook& look) {
  const ChartPlan plan = plan_chart(chart, place, look.font);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen{look.grid, 1});
  for (const double y : plan.scale) painter.drawLine(QPointF{plan.plot.left(), y}, QPointF{plan.plot.right(), y});
  for (std::size_t i = 0; i < plan.bars.size(); ++i) {
    painter.fillRect(plan.bars[i], chart.points[i].value < 0 ? look.negative : look.bar);
  }
  painter.setPen(QPen{look.bar, 2});
  painter.drawPolyline(plan.line);
  painter.setBrush(look.bar);
  for (const QPointF& corner : plan.line) painter.drawEllipse(corner, 2.5, 2.5);
  painter.setPen(QPen{look.muted, 1});
  if (!plan.bars.empty() && chart.kind == Chart::Kind::bars) {
    painter.drawLine(QPointF{plan.zero, plan.plot.top()}, QPointF{plan.zero, plan.plot.bottom()});
  } else if (!chart.points.empty()) {
    painter.drawLine(QPointF{plan.plot.left(), plan.zero}, QPointF{plan.plot.right(), plan.zero});
  }
  painter.setPen(look.text);
  for (std::size_t i = 0; i < plan.texts.size(); ++i) {
    painter.setFont(i == 0 ? title_font(look.font) : look.font);
    painter.drawText(plan.texts[i].place, static_cast<int>(plan.texts[i].alignment) | Qt::TextSingleLine,
                     plan.texts[i].text);
  }
  painter.restore();
}

}  // namespace ecr

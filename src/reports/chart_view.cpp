#include "reports/chart_view.h"

#include <cmath>
#include <utility>

#include <QPainter>

#include "reports/chart_painter.h"
#include "widgets/look.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

constexpr int margin = 16;
constexpr int between = 28;

}  // namespace

ChartView::ChartView(const QString& name, QWidget* parent) : QWidget{parent} {
  setObjectName(name);
}

void ChartView::show_charts(std::vector<Chart> charts) {
  charts_ = std::move(charts);
  double height = 2 * margin;
  QStringList spoken;
  for (const Chart& chart : charts_) {
    height += chart_height(chart, font()) + between;
    spoken << screen_text(chart.title);
  }
  setAccessibleName(spoken.join(QStringLiteral(", ")));
  setMinimumHeight(charts_.empty() ? 0 : static_cast<int>(std::ceil(height)) - between);
  update();
}

void ChartView::paintEvent(QPaintEvent*) {
  QPainter painter{this};
  painter.fillRect(rect(), palette().color(QPalette::Base));
  ChartLook look;
  look.text = palette().color(QPalette::Text);
  look.muted = palette().color(QPalette::Disabled, QPalette::Text);
  look.grid = look.muted;
  look.grid.setAlpha(70);
  look.bar = palette().color(QPalette::Highlight);
  look.negative = text_red();
  look.font = font();
  // What is left over makes the pictures higher, all by the same.
  double wanted = 2 * margin - between;
  for (const Chart& chart : charts_) wanted += chart_height(chart, font()) + between;
  double top = margin;
  for (const Chart& chart : charts_) {
    const double height = chart_height(chart, font());
    const double spare = chart.kind == Chart::Kind::bars
                             ? 0
                             : std::max(0.0, (this->height() - wanted) / static_cast<double>(charts_.size()));
    draw_chart(painter, chart, QRectF{margin, top, width() - 2.0 * margin, height + spare}, look);
    top += height + spare + between;
  }
}

}  // namespace ecr

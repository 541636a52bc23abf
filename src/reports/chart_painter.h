#pragma once
// The one place where pictures of numbers are drawn, with the toolkit's painter, on the screen and on paper.

#include <vector>

#include <QColor>
#include <QFont>
#include <QPolygonF>
#include <QRectF>
#include <QString>

#include "reports/charts.h"

class QPainter;

namespace ecr {

/// Where everything of a chart goes. Lengths are in the units of the place it was laid into.
struct ChartPlan {
  struct Text {
    QRectF place;
    QString text;
    Qt::Alignment alignment;
  };
  std::vector<QRectF> bars;   ///< one for each point, from the zero line on; of a line none
  QPolygonF line;             ///< a corner for each point; of bars none
  QRectF plot;                ///< what the values lie in
  double zero = 0;            ///< the zero line: an x for lying bars, a y for the others
  std::vector<Text> texts;    ///< title, names, values, the scale
  std::vector<double> scale;  ///< the lines of the scale, on the same axis as `zero`
};

struct ChartLook {
  QColor text;
  QColor muted;
  QColor grid;
  QColor bar;
  QColor negative;
  QFont font;
};

/// A round step that cuts `range` into at most `most` pieces: 1, 2 or 5 times a power of ten.
[[nodiscard]] double round_step(double range, int most);

[[nodiscard]] ChartPlan plan_chart(const Chart& chart, const QRectF& place, const QFont& font);

void draw_chart(QPainter& painter, const Chart& chart, const QRectF& place, const ChartLook& look);

/// The height that a chart wants: one of lying bars grows with its bars.
[[nodiscard]] double chart_height(const Chart& chart, const QFont& font);

}  // namespace ecr

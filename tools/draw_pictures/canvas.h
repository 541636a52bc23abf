#pragma once
// An image with a painter on it, and the shapes that more than one drawing uses.

#include <string_view>

#include <QImage>
#include <QPainter>
#include <QPainterPath>

namespace ecr {

class Canvas {
 public:
  /// `width` and `height` in units of the drawing; transparent unless a ground is given.
  Canvas(int width, int height, int scale, const QColor& ground = Qt::transparent);

  QPainter& painter() { return painter_; }

  void fill(const QPainterPath& path, const QColor& colour) { painter_.fillPath(path, colour); }
  void fill(const QPolygonF& polygon, const QColor& colour);
  void box(const QRectF& rect, const QColor& colour, double radius = 0);
  void disc(QPointF centre, double radius, const QColor& colour);
  void stroke(const QPainterPath& path, const QColor& colour, double width, Qt::PenCapStyle cap = Qt::RoundCap);
  void line(QPointF from, QPointF to, const QColor& colour, double width, Qt::PenCapStyle cap = Qt::RoundCap);

  /// Ends the drawing.
  QImage image();

 private:
  QImage image_;
  QPainter painter_;
};

QPainterPath rounded(const QRectF& rect, double radius);

/// A strip of receipt paper whose upper edge is torn off in `teeth` teeth of the given depth.
QPainterPath torn_strip(const QRectF& rect, int teeth, double depth);

/// An amount, digits and points, in seven segments, right-aligned in `rect`.
void draw_amount(Canvas& canvas, const QRectF& rect, std::string_view amount, const QColor& colour);

}  // namespace ecr

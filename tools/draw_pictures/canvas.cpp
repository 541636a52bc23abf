#include "canvas.h"

#include <array>
#include <cstddef>

namespace ecr {
namespace {

// The drawing is made this many times larger and brought down at the end: where shapes meet or overlap inside a pixel,
// the smoothing of single shapes alone leaves light seams and dark bumps.
constexpr int oversize = 4;

}  // namespace

Canvas::Canvas(int width, int height, int scale, const QColor& ground)
    : image_(width * scale * oversize, height * scale * oversize, QImage::Format_ARGB32_Premultiplied) {
  image_.fill(ground);
  painter_.begin(&image_);
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.scale(scale * oversize, scale * oversize);
}

void Canvas::fill(const QPolygonF& polygon, const QColor& colour) {
  QPainterPath path;
  path.addPolygon(polygon);
  path.closeSubpath();
  fill(path, colour);
}

void Canvas::box(const QRectF& rect, const QColor& colour, double radius) {
  fill(rounded(rect, radius), colour);
}

void Canvas::disc(QPointF centre, double radius, const QColor& colour) {
  QPainterPath path;
  path.addEllipse(centre, radius, radius);
  fill(path, colour);
}

void Canvas::stroke(const QPainterPath& path, const QColor& colour, double width, Qt::PenCapStyle cap) {
  painter_.strokePath(path, QPen(colour, width, Qt::SolidLine, cap, Qt::RoundJoin));
}

void Canvas::line(QPointF from, QPointF to, const QColor& colour, double width, Qt::PenCapStyle cap) {
  QPainterPath path(from);
  path.lineTo(to);
  stroke(path, colour, width, cap);
}

QImage Canvas::image() {
  painter_.end();
  return image_.scaled(image_.size() / oversize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QPainterPath rounded(const QRectF& rect, double radius) {
  QPainterPath path;
  if (radius > 0) {
    path.addRoundedRect(rect, radius, radius);
  } else {
    path.addRect(rect);
  }
  return path;
}

QPainterPath torn_strip(const QRectF& rect, int teeth, double depth) {
  const double tooth = rect.width() / teeth;
  QPainterPath path(rect.bottomLeft());
  path.lineTo(rect.left(), rect.top() + depth);
  for (int i = 0; i < teeth; ++i) {
    path.lineTo(rect.left() + (i + 0.5) * tooth, rect.top());
    path.lineTo(rect.left() + (i + 1) * tooth, rect.top() + depth);
  }
  path.lineTo(rect.bottomRight());
  path.closeSubpath();
  return path;
}

namespace {

// Segments in the order top, upper right, lower right, bottom, lower left, upper left, middle; bit 0 is the top.
constexpr std::array<unsigned, 10> segments_of_digit = {0x3F, 0x06, 0x5B, 0x4F, 0x66, 0x6D, 0x7D, 0x07, 0x7F, 0x6F};

void draw_digit(Canvas& canvas, const QRectF& cell, unsigned lit, const QColor& colour) {
  const double width = cell.width() / 4;
  const QRectF middles = cell.adjusted(width / 2, width / 2, -width / 2, -width / 2);
  const double gap = width / 4;
  const double waist = middles.center().y();
  const auto across = [&](double y) { return QLineF(middles.left() + gap, y, middles.right() - gap, y); };
  const auto down = [&](double x, double from, double to) { return QLineF(x, from + gap, x, to - gap); };
  const std::array<QLineF, 7> segments = {
      across(middles.top()),
      down(middles.right(), middles.top(), waist),
      down(middles.right(), waist, middles.bottom()),
      across(middles.bottom()),
      down(middles.left(), waist, middles.bottom()),
      down(middles.left(), middles.top(), waist),
      across(waist),
  };
  for (std::size_t i = 0; i < segments.size(); ++i) {
    if ((lit >> i & 1U) != 0) canvas.line(segments[i].p1(), segments[i].p2(), colour, width, Qt::FlatCap);
  }
}

}  // namespace

void draw_amount(Canvas& canvas, const QRectF& rect, std::string_view amount, const QColor& colour) {
  const double width = rect.height() / 2;
  const double gap = width * 0.375;
  const double point = width / 4;
  double right = rect.right();
  for (std::size_t i = amount.size(); i-- > 0;) {
    if (amount[i] == '.') {
      canvas.box({right - point, rect.bottom() - point, point, point}, colour);
      right -= point + gap;
      continue;
    }
    const QRectF cell(right - width, rect.top(), width, rect.height());
    draw_digit(canvas, cell, segments_of_digit.at(static_cast<std::size_t>(amount[i] - '0')), colour);
    right -= width + gap;
  }
}

}  // namespace ecr

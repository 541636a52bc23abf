// The flags, drawn on a common field of 3 to 2. Each keeps the proportions of its own parts, moved to whole pixels so
// that every stripe has a sharp edge. All measures are pixels.

#include <QLineF>

#include "canvas.h"
#include "palette.h"
#include "pictures.h"

namespace ecr {
namespace {

constexpr int width = 48;
constexpr int height = 32;

constexpr QColor white{0xFF, 0xFF, 0xFF};

/// The thin edge that keeps a white field apart from a light window, and a dark one from a dark window.
QImage framed(Canvas& canvas) {
  canvas.box({0, 0, width, 1}, palette::shade);
  canvas.box({0, height - 1, width, 1}, palette::shade);
  canvas.box({0, 0, 1, height}, palette::shade);
  canvas.box({width - 1, 0, 1, height}, palette::shade);
  return canvas.image();
}

QImage three_columns(const QColor& hoist, const QColor& middle, const QColor& fly) {
  Canvas canvas(width, height, 1, middle);
  canvas.box({0, 0, 16, height}, hoist);
  canvas.box({32, 0, 16, height}, fly);
  return framed(canvas);
}

QImage three_rows(const QColor& top, const QColor& middle, const QColor& bottom) {
  Canvas canvas(width, height, 1, middle);
  canvas.box({0, 0, width, 11}, top);
  canvas.box({0, 21, width, 11}, bottom);
  return framed(canvas);
}

/// A cross whose arms reach all edges, with its crossing at `centre`.
void cross(Canvas& canvas, QPointF centre, double arm, const QColor& colour) {
  canvas.box({centre.x() - arm / 2, 0, arm, height}, colour);
  canvas.box({0, centre.y() - arm / 2, width, arm}, colour);
}

}  // namespace

QImage draw_flag_uk() {
  constexpr QColor blue{0x01, 0x21, 0x69};
  constexpr QColor red{0xC8, 0x10, 0x2E};
  constexpr double unit = height / 30.0;
  const QPointF centre(width / 2.0, height / 2.0);
  const QLineF falling(0, 0, width, height);
  const QLineF rising(0, height, width, 0);

  Canvas canvas(width, height, 1, blue);
  canvas.line(falling.p1(), falling.p2(), white, 6 * unit, Qt::SquareCap);
  canvas.line(rising.p1(), rising.p2(), white, 6 * unit, Qt::SquareCap);

  // The red arms lie on one side of each diagonal only, turning round the centre: in each quarter a triangle between
  // the diagonal and an edge lets through half of a line of double width.
  QPainterPath sides;
  sides.addPolygon(QPolygonF({centre, {width, centre.y()}, {width, height}, centre}));
  sides.addPolygon(QPolygonF({centre, {centre.x(), height}, {0, height}, centre}));
  sides.addPolygon(QPolygonF({centre, {0, centre.y()}, {0, 0}, centre}));
  sides.addPolygon(QPolygonF({centre, {centre.x(), 0}, {width, 0}, centre}));
  canvas.painter().save();
  canvas.painter().setClipPath(sides);
  canvas.line(falling.p1(), falling.p2(), red, 4 * unit, Qt::SquareCap);
  canvas.line(rising.p1(), rising.p2(), red, 4 * unit, Qt::SquareCap);
  canvas.painter().restore();

  cross(canvas, centre, 10, white);
  cross(canvas, centre, 6, red);
  return framed(canvas);
}

QImage draw_flag_france() {
  return three_columns({0x00, 0x32, 0x8F}, white, {0xE1, 0x1D, 0x2E});
}

QImage draw_flag_germany() {
  return three_rows({0x00, 0x00, 0x00}, {0xDD, 0x00, 0x00}, {0xFF, 0xCE, 0x00});
}

QImage draw_flag_netherlands() {
  return three_rows({0xAE, 0x1C, 0x28}, white, {0x21, 0x46, 0x8B});
}

QImage draw_flag_spain() {
  constexpr QColor red{0xAA, 0x15, 0x1B};
  constexpr QColor yellow{0xF1, 0xBF, 0x00};
  constexpr QColor gold{0xB5, 0x7A, 0x0A};
  Canvas canvas(width, height, 1, yellow);
  canvas.box({0, 0, width, 8}, red);
  canvas.box({0, 24, width, 8}, red);

  // The arms: a quartered shield under a crown, between two pillars.
  for (const double x : {9.0, 20.0}) {
    canvas.box({x, 13, 2, 7}, white);
    canvas.box({x - 0.5, 12, 3, 1}, gold);
    canvas.box({x - 0.5, 20, 3, 1}, gold);
    canvas.box({x - 0.5, 16, 3, 1}, red);
  }
  QPainterPath shield(QPointF{12, 13});
  shield.lineTo(19, 13);
  shield.lineTo(19, 18.5);
  shield.cubicTo(19, 20.5, 17, 21.5, 15.5, 22);
  shield.cubicTo(14, 21.5, 12, 20.5, 12, 18.5);
  shield.closeSubpath();
  canvas.painter().save();
  canvas.painter().setClipPath(shield);
  canvas.box({12, 13, 7, 10}, red);
  canvas.box({16, 13, 3, 4}, white);
  canvas.box({12, 17, 4, 6}, {0xE8, 0x8A, 0x1A});
  canvas.painter().restore();
  canvas.stroke(shield, {0x8A, 0x10, 0x14}, 0.7);
  canvas.box({12, 11, 7, 1.5}, gold);
  canvas.disc({15.5, 10}, 1.5, red);
  canvas.disc({13, 10.5}, 1, gold);
  canvas.disc({18, 10.5}, 1, gold);
  return framed(canvas);
}

QImage draw_flag_portugal() {
  constexpr QColor green{0x04, 0x6A, 0x38};
  constexpr QColor red{0xDA, 0x29, 0x1C};
  constexpr QColor yellow{0xFF, 0xE9, 0x00};
  constexpr QColor blue{0x00, 0x2D, 0x72};
  constexpr double divide = 19;
  const QPointF centre(divide, height / 2.0);
  Canvas canvas(width, height, 1, red);
  canvas.box({0, 0, divide, height}, green);

  // The sphere of rings, and on it the shield with five blue marks.
  QPainterPath sphere;
  sphere.addEllipse(centre, 7.2, 7.2);
  canvas.stroke(sphere, yellow, 1.5);
  canvas.painter().save();
  canvas.painter().setClipPath(sphere);
  QPainterPath rings;
  rings.addEllipse(centre, 7.2, 2.6);
  rings.moveTo(centre.x() - 7, centre.y() - 6);
  rings.lineTo(centre.x() + 7, centre.y() + 6);
  rings.moveTo(centre.x() - 7, centre.y() + 6);
  rings.lineTo(centre.x() + 7, centre.y() - 6);
  canvas.stroke(rings, yellow, 1);
  canvas.painter().restore();

  const auto shield = [&](double half, double up, double down) {
    QPainterPath path(QPointF{centre.x() - half, centre.y() - up});
    path.lineTo(centre.x() + half, centre.y() - up);
    path.lineTo(centre.x() + half, centre.y() + down - half);
    path.cubicTo(centre.x() + half, centre.y() + down, centre.x() - half, centre.y() + down, centre.x() - half,
                 centre.y() + down - half);
    path.closeSubpath();
    return path;
  };
  canvas.fill(shield(4.5, 4.5, 5.7), red);
  canvas.fill(shield(3, 3, 4), white);
  for (const QPointF& mark : {QPointF{0, 0}, QPointF{-1.9, 0}, QPointF{1.9, 0}, QPointF{0, -2}, QPointF{0, 2}})
    canvas.disc(centre + mark, 0.8, blue);
  return framed(canvas);
}

QImage draw_flag_denmark() {
  Canvas canvas(width, height, 1, {0xC8, 0x10, 0x2E});
  cross(canvas, {18, 16}, 4, white);
  return framed(canvas);
}

QImage draw_flag_norway() {
  Canvas canvas(width, height, 1, {0xBA, 0x0C, 0x2F});
  cross(canvas, {17, 16}, 8, white);
  cross(canvas, {17, 16}, 4, {0x00, 0x20, 0x5B});
  return framed(canvas);
}

}  // namespace ecr

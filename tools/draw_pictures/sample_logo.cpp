// The logo that comes with the program, for a receipt: a cup and a word, in black and white.

#include "canvas.h"
#include "pictures.h"

namespace ecr {
namespace {

constexpr int width = 384;
constexpr int height = 162;
const QColor black = Qt::black;
const QColor white = Qt::white;

/// One curl of steam, rising from `foot`.
void draw_steam(Canvas& canvas, QPointF foot) {
  QPainterPath curl(foot);
  curl.cubicTo(foot + QPointF(-9, -9), foot + QPointF(9, -17), foot + QPointF(0, -28));
  canvas.stroke(curl, black, 4);
}

void draw_cup(Canvas& canvas, QPointF centre) {
  QPainterPath bowl(centre + QPointF(-44, -14));
  bowl.lineTo(centre + QPointF(44, -14));
  bowl.cubicTo(centre + QPointF(44, 22), centre + QPointF(28, 40), centre + QPointF(0, 40));
  bowl.cubicTo(centre + QPointF(-28, 40), centre + QPointF(-44, 22), centre + QPointF(-44, -14));
  canvas.fill(bowl, black);
  QPainterPath handle;
  handle.addEllipse(centre + QPointF(46, 6), 16, 14);
  canvas.stroke(handle, black, 6);
  canvas.fill(bowl, black);
  // The light on the bowl.
  QPainterPath light(centre + QPointF(-33, -3));
  light.cubicTo(centre + QPointF(-32, 14), centre + QPointF(-25, 24), centre + QPointF(-14, 30));
  canvas.stroke(light, white, 4);
  canvas.line(centre + QPointF(-58, 48), centre + QPointF(58, 48), black, 6);
  for (const double x : {-20.0, 0.0, 20.0}) draw_steam(canvas, centre + QPointF(x, -22));
}

/// "CAFE" in lines of one width, each letter `size` high, with an accent on the last one.
void draw_word(Canvas& canvas, QPointF place, double size) {
  constexpr double pen = 9;
  const double letter = size * 0.72;
  const double step = letter + 11;
  const QRectF c(place, QSizeF(letter * 1.25, size));
  QPainterPath round;
  round.arcMoveTo(c, 50);
  round.arcTo(c, 50, 260);
  canvas.stroke(round, black, pen);

  const double a = place.x() + step;
  const double top = place.y();
  const double foot = top + size;
  canvas.line({a, foot}, {a + letter / 2, top}, black, pen);
  canvas.line({a + letter / 2, top}, {a + letter, foot}, black, pen);
  canvas.line({a + letter * 0.2, foot - size * 0.3}, {a + letter * 0.8, foot - size * 0.3}, black, pen);

  for (const int place_of_letter : {2, 3}) {
    const double x = place.x() + place_of_letter * step + 4;
    canvas.line({x, top}, {x, foot}, black, pen);
    canvas.line({x, top}, {x + letter * 0.8, top}, black, pen);
    canvas.line({x, top + size / 2}, {x + letter * 0.66, top + size / 2}, black, pen);
    if (place_of_letter == 3) {
      canvas.line({x, foot}, {x + letter * 0.8, foot}, black, pen);
      canvas.line({x + letter * 0.3, top - 13}, {x + letter * 0.55, top - 24}, black, 6);
    }
  }
}

}  // namespace

QImage draw_sample_logo() {
  Canvas canvas(width, height, 1, white);
  QPainterPath frame = rounded({3.5, 3.5, width - 7.0, height - 7.0}, 12);
  canvas.stroke(frame, black, 3);
  canvas.stroke(rounded({9.5, 9.5, width - 19.0, height - 19.0}, 8), black, 1);
  draw_cup(canvas, {88, 84});
  draw_word(canvas, {177, 52}, 50);
  canvas.line({177, 126}, {243, 126}, black, 2, Qt::FlatCap);
  canvas.line({283, 126}, {349, 126}, black, 2, Qt::FlatCap);
  QPainterPath bean;
  bean.addEllipse(QPointF(263, 126), 10, 6);
  canvas.fill(bean, black);
  canvas.line({256, 126}, {270, 126}, white, 1.5);

  // No shades: a dot is printed or not. White is the first of the two colours.
  const QImage drawn = canvas.image().convertToFormat(QImage::Format_Grayscale8);
  QImage dots(drawn.size(), QImage::Format_Mono);
  dots.setColorTable({qRgb(255, 255, 255), qRgb(0, 0, 0)});
  for (int y = 0; y < dots.height(); ++y) {
    for (int x = 0; x < dots.width(); ++x) dots.setPixel(x, y, qGray(drawn.pixel(x, y)) < 128 ? 1 : 0);
  }
  return dots;
}

}  // namespace ecr

// The maker's mark and what is made from it: the program's icon, the word mark; and the corner picture and help sign of
// the screens. The mark is a V folded from receipt paper, its far end torn off.

#include "canvas.h"
#include "palette.h"
#include "pictures.h"

namespace ecr {
namespace {

struct MarkDetail {
  int teeth = 0;       ///< of the torn end; 0 for a straight one
  bool print = false;  ///< lines of print on the near arm
};

/// The V in `rect`. Both arms lean by the same slope; the near one, on the left, runs to the foot.
void draw_mark(Canvas& canvas, const QRectF& rect, MarkDetail detail) {
  QPainter& painter = canvas.painter();
  painter.save();
  painter.translate(rect.topLeft());
  painter.scale(rect.width() / 100, rect.height() / 100);

  constexpr double arm = 34;                        // width of an arm along the top
  constexpr double lean = 33;                       // how far an arm moves inwards on its way down
  constexpr double meet = 100 * (50 - arm) / lean;  // where the inner edges meet

  QPolygonF far({{50, meet}, {100 - arm, 0}});
  for (int i = 0; i < detail.teeth; ++i) {
    const double tooth = arm / detail.teeth;
    far << QPointF(100 - arm + (i + 0.5) * tooth, -tooth * 0.62) << QPointF(100 - arm + (i + 1) * tooth, 0);
  }
  if (detail.teeth == 0) far << QPointF(100, 0);
  far << QPointF(lean + arm, 100) << QPointF(lean, 100);
  canvas.fill(far, palette::accent_light);

  // The near arm's shadow on the far one.
  canvas.fill(QPolygonF({{50, meet}, {59, meet - 18 / lean * 9}, {lean + arm + 3.6, 89}, {lean + arm, 100}}),
              palette::accent_mid);

  canvas.fill(QPolygonF({{0, 0}, {arm, 0}, {lean + arm, 100}, {lean, 100}}), palette::paper);
  if (detail.print) {
    const auto print = [&](double y, double from, double to, const QColor& colour) {
      const double x = lean * y / 100;
      canvas.line({x + from, y}, {x + to, y}, colour, 4.5, Qt::FlatCap);
    };
    print(14, 8, 26, palette::slate);
    print(26, 8, 20, palette::shade);
    print(36, 8, 26, palette::shade);
    print(46, 8, 17, palette::shade);
    print(60, 8, 26, palette::amber);
  }
  painter.restore();
}

// The letters of the word mark are single lines of one width. Lengths are in x-heights, measured on the middle of the
// line; the pen stands on the base line at the left of the letter, and each letter moves it on by its own width.
class Lettering {
 public:
  Lettering(Canvas& canvas, QPointF base, double x_height, double width)
      : canvas_(canvas), pen_(base), size_(x_height), width_(width) {}

  void write_e() {
    QPainterPath path(at(0.02, bowl));
    path.lineTo(at(2 * bowl, bowl));
    path.arcTo(circle(bowl), 0, 312);
    finish(path, 2 * bowl);
  }

  void write_r() {
    QPainterPath path(at(0, 0));
    path.lineTo(at(0, 1));
    path.moveTo(at(0, 0.56));
    path.cubicTo(at(0, 0.84), at(0.2, 1.02), at(0.5, 0.99));
    finish(path, 0.44);
  }

  void write_n() {
    QPainterPath path;
    stem(path, 0);
    arch(path, 0, 0.78);
    finish(path, 0.78);
  }

  void write_m() {
    QPainterPath path;
    stem(path, 0);
    arch(path, 0, 0.68);
    arch(path, 0.68, 0.68);
    finish(path, 1.36);
  }

  void write_a() {
    QPainterPath path;
    path.addEllipse(circle(bowl));
    path.moveTo(at(2 * bowl, 1));
    path.lineTo(at(2 * bowl, 0));
    finish(path, 2 * bowl);
  }

  void write_t() {
    QPainterPath path(at(0.24, 1.42));
    path.lineTo(at(0.24, 0.3));
    path.cubicTo(at(0.24, 0.06), at(0.36, -0.02), at(0.6, 0.01));
    path.moveTo(at(0, 1));
    path.lineTo(at(0.58, 1));
    finish(path, 0.56);
  }

  void write_o() {
    QPainterPath path;
    path.addEllipse(circle(bowl));
    finish(path, 2 * bowl);
  }

  /// Moves on beyond the last letter; letters with round sides stand closer than stems do.
  void space(double gap) { pen_.rx() += gap * size_; }

 private:
  static constexpr double bowl = 0.5;  // half the height of a round letter

  [[nodiscard]] QPointF at(double x, double y) const { return {pen_.x() + x * size_, pen_.y() - y * size_}; }
  [[nodiscard]] QRectF circle(double radius) const {
    return {at(0, 2 * radius), QSizeF(2 * radius * size_, 2 * radius * size_)};
  }

  void stem(QPainterPath& path, double x) const {
    path.moveTo(at(x, 0));
    path.lineTo(at(x, 1));
  }

  void arch(QPainterPath& path, double x, double span) const {
    const double radius = span / 2;
    path.moveTo(at(x, 1 - radius - 0.04));
    path.arcTo({at(x, 1), QSizeF(span * size_, span * size_)}, 180, -180);
    path.lineTo(at(x + span, 0));
  }

  void finish(const QPainterPath& path, double advance) {
    canvas_.stroke(path, palette::paper, width_);
    pen_.rx() += advance * size_;
  }

  Canvas& canvas_;
  QPointF pen_;
  double size_;
  double width_;
};

}  // namespace

QImage draw_icon(int side) {
  Canvas canvas(side, side, 1);
  const double unit = side / 16.0;
  canvas.box({0, 0, side * 1.0, side * 1.0}, palette::accent, 3.5 * unit);
  if (side <= 16) {
    draw_mark(canvas, {2, 3, 12, 10}, {});
  } else if (side <= 32) {
    draw_mark(canvas, {2.5 * unit, 3.5 * unit, 11 * unit, 9 * unit}, {});
  } else if (side <= 48) {
    draw_mark(canvas, {3 * unit, 4 * unit, 10 * unit, 8.67 * unit}, {.teeth = 3});
  } else {
    draw_mark(canvas, {2.75 * unit, 4 * unit, 10.5 * unit, 9 * unit}, {.teeth = 4, .print = true});
  }
  return canvas.image();
}

QImage draw_help(int scale) {
  Canvas canvas(24, 24, scale);
  canvas.disc({12, 12}, 11, palette::accent);
  QPainterPath hook(QPointF{8.7, 9.6});
  hook.cubicTo({8.7, 7.5}, {10.1, 6.2}, {12.1, 6.2});
  hook.cubicTo({14.1, 6.2}, {15.5, 7.5}, {15.5, 9.3});
  hook.cubicTo({15.5, 11.9}, {12, 11.7}, {12, 14.4});
  canvas.stroke(hook, palette::paper, 2.2);
  canvas.disc({12, 18}, 1.45, palette::paper);
  return canvas.image();
}

QImage draw_word_mark(int scale) {
  Canvas canvas(172, 38, scale, palette::accent);
  canvas.painter().scale(0.5, 0.5);
  draw_mark(canvas, {20, 16, 50, 44}, {.teeth = 4});
  Lettering letters(canvas, {79, 56.75}, 28, 6.5);
  letters.write_e();
  letters.space(0.48);
  letters.write_r();
  letters.space(0.42);
  letters.write_m();
  letters.space(0.44);
  letters.write_a();
  letters.space(0.54);
  letters.write_n();
  letters.space(0.36);
  letters.write_t();
  letters.space(0.33);
  letters.write_o();
  return canvas.image();
}

QImage draw_corner(int width, int scale) {
  Canvas canvas(width, width * 5 / 8, scale, palette::accent);
  QPainter& painter = canvas.painter();
  painter.scale(width / 160.0, width / 160.0);

  canvas.disc({128, 8}, 62, palette::accent_deep);

  // The receipt, on its way out of the slot.
  painter.save();
  painter.translate(112, 64);
  painter.rotate(6);
  canvas.fill(torn_strip({-22, -52, 44, 60}, 8, 4), palette::paper);
  canvas.line({-14, -40}, {4, -40}, palette::slate, 3, Qt::FlatCap);
  for (const double y : {-32.0, -25.0, -18.0}) {
    canvas.line({-14, y}, {y == -25.0 ? -1.0 : 2.0, y}, palette::shade, 2, Qt::FlatCap);
    canvas.line({8, y}, {14, y}, palette::shade, 2, Qt::FlatCap);
  }
  canvas.line({-14, -9}, {-4, -9}, palette::slate, 3, Qt::FlatCap);
  canvas.line({4, -9}, {14, -9}, palette::amber, 3, Qt::FlatCap);
  painter.restore();

  // The register below it.
  canvas.fill(rounded({16, 62, 160, 60}, 8), palette::ink);
  canvas.box({82, 62, 62, 4}, palette::steel, 2);
  canvas.box({16, 24, 62, 26}, palette::ink, 4);
  canvas.box({42, 50, 10, 12}, palette::steel);
  draw_amount(canvas, {22, 29, 50, 16}, "12.50", palette::accent_light);
  for (int row = 0; row < 2; ++row) {
    for (int column = 0; column < 8; ++column) {
      const QRectF key(25 + column * 16, 74 + row * 14, 12, 10);
      const bool total = row == 1 && column == 7;
      canvas.box(key, total ? palette::amber : column < 3 ? palette::accent_mid : palette::mist, 2.5);
    }
  }
  return canvas.image();
}

}  // namespace ecr

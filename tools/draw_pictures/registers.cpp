// The two register models, seen from the front and a little from above.

#include <array>
#include <cstddef>
#include <string_view>

#include <QTransform>

#include "canvas.h"
#include "palette.h"
#include "pictures.h"

namespace ecr {
namespace {

// A keyboard is rows of letters of equal length: n number, c clear, f function, d department, p payment, s subtotal,
// t total. A key may be wider or higher than one place: "<" continues the key to its left, "^" the one above.
constexpr std::array<std::string_view, 5> keys_z300 = {
    "ddffffp",  //
    "ddcnnnp",  //
    "ddfnnnp",  //
    "ddfnnnt",  //
    "ddfn<n^",
};
constexpr std::array<std::string_view, 6> keys_z320 = {
    "dddddfffffpp",  //
    "dddddfffffpp",  //
    "dddddcnnnfpp",  //
    "dddddfnnnfpp",  //
    "dddddfnnnfs<",  //
    "dddddfn<nft<",
};

template <std::size_t Rows>
constexpr int count_keys(const std::array<std::string_view, Rows>& rows) {
  int count = 0;
  for (const std::string_view row : rows) {
    for (const char place : row) count += place != '<' && place != '^' ? 1 : 0;
  }
  return count;
}
static_assert(count_keys(keys_z300) == 33);
static_assert(count_keys(keys_z320) == 69);

struct KeyColour {
  QColor face;
  QColor side;
};

KeyColour colour_of(char kind) {
  switch (kind) {
    case 'd':
      return {palette::accent_mid, palette::accent_deep};
    case 'f':
      return {palette::shade, palette::slate};
    case 'p':
      return {palette::accent_light, palette::accent};
    case 'c':
      return {palette::red_light, palette::red};
    case 's':
    case 't':
      return {palette::amber_light, palette::amber};
    default:
      return {palette::paper, palette::shade};
  }
}

/// A plane that leans back: narrower at its far edge, which is drawn higher up.
struct Slope {
  double middle;
  double far_y, far_half;    ///< far edge: where, and half its width
  double near_y, near_half;  ///< near edge

  [[nodiscard]] QPolygonF corners() const {
    return QPolygonF({{middle - far_half, far_y},
                      {middle + far_half, far_y},
                      {middle + near_half, near_y},
                      {middle - near_half, near_y}});
  }
};

template <std::size_t Rows>
void draw_keys(Canvas& canvas, const Slope& field, const std::array<std::string_view, Rows>& rows, double gap) {
  const auto columns = static_cast<double>(rows[0].size());
  const QPolygonF flat({{0, 0}, {columns, 0}, {columns, Rows}, {0, Rows}});
  QTransform lay;
  QTransform::quadToQuad(flat, field.corners(), lay);
  for (std::size_t row = 0; row < Rows; ++row) {
    for (std::size_t column = 0; column < rows[row].size(); ++column) {
      const char kind = rows[row][column];
      if (kind == '<' || kind == '^') continue;
      const bool wide = column + 1 < rows[row].size() && rows[row][column + 1] == '<';
      const bool high = row + 1 < Rows && rows[row + 1][column] == '^';
      const QRectF place(static_cast<double>(column), static_cast<double>(row), wide ? 2 : 1, high ? 2 : 1);
      QPainterPath key;
      key.addRoundedRect(place.adjusted(gap, gap, -gap, -gap), 0.18, 0.18);
      const QPainterPath base = lay.map(key);
      const KeyColour colour = colour_of(kind);
      canvas.fill(base, colour.side);
      canvas.fill(base.translated(0, -1.5), colour.face);
    }
  }
}

/// A box with the thin edge that sets the light parts of the housing apart from each other and from a light window.
void draw_shell(Canvas& canvas, const QPainterPath& shape, const QColor& colour) {
  canvas.fill(shape, colour);
  canvas.stroke(shape, palette::shade, 1);
}

/// The slot of a printer and the receipt that stands in it, `rect` being what is seen of the paper.
void draw_printer(Canvas& canvas, const QRectF& rect) {
  canvas.box({rect.left() - 6, rect.bottom() - 4, rect.width() + 12, 8}, palette::ink, 4);
  const QPainterPath strip = torn_strip(rect, 8, 4);
  canvas.stroke(strip, palette::shade, 2);
  canvas.fill(strip, palette::paper);

  const double left = rect.left() + 8;
  const double right = rect.right() - 8;
  double y = rect.top() + 13.5;
  canvas.line({rect.center().x() - 12, y}, {rect.center().x() + 12, y}, palette::slate, 3, Qt::FlatCap);
  for (const double length : {20.0, 14.0, 18.0}) {
    y += 7.5;
    canvas.line({left, y}, {left + length, y}, palette::shade, 2, Qt::FlatCap);
    canvas.line({right - 9, y}, {right, y}, palette::shade, 2, Qt::FlatCap);
  }
  y += 8;
  canvas.line({left, y}, {left + 11, y}, palette::slate, 3, Qt::FlatCap);
  canvas.line({right - 12, y}, {right, y}, palette::amber, 3, Qt::FlatCap);
}

void draw_drawer(Canvas& canvas, const QRectF& rect) {
  canvas.box(rect, palette::slate, 6);
  canvas.box({rect.left() + 6, rect.top() + 6, rect.width() - 12, rect.height() - 12}, palette::steel, 4);
  const QPointF middle = rect.center();
  canvas.box({middle.x() - 34, rect.bottom() - 14, 68, 4}, palette::ink, 2);
  canvas.disc({middle.x(), middle.y() - 4}, 5, palette::shade);
  canvas.box({middle.x() - 1, middle.y() - 7, 2, 6}, palette::ink, 1);
}

void draw_display(Canvas& canvas, const QRectF& rect, std::string_view amount) {
  canvas.box(rect, palette::ink, 4);
  const double inset = rect.height() / 4;
  draw_amount(canvas, rect.adjusted(inset, inset, -inset, -inset), amount, palette::accent_light);
}

/// The leaning front with its keyboard, and the lip below it.
template <std::size_t Rows>
void draw_deck(Canvas& canvas, const Slope& deck, const Slope& field, const std::array<std::string_view, Rows>& rows,
               double gap) {
  QPainterPath front;
  front.addPolygon(deck.corners());
  front.closeSubpath();
  draw_shell(canvas, front, palette::paper);
  QPainterPath bed;
  bed.addPolygon(field.corners());
  bed.closeSubpath();
  canvas.fill(bed, palette::ink);
  canvas.stroke(bed, palette::ink, 8);
  draw_keys(canvas, field, rows, gap);
  const QRectF lip(deck.middle - deck.near_half, deck.near_y, 2 * deck.near_half, 9);
  canvas.box(lip, palette::shade, 2);
  canvas.box({lip.left(), lip.top(), lip.width(), 3}, palette::accent, 1);
}

}  // namespace

QImage draw_register_z300(int scale) {
  Canvas canvas(320, 240, scale);
  draw_shell(canvas, rounded({64.5, 56.5, 191, 60}, 10), palette::mist);
  draw_printer(canvas, {84, 18, 52, 66});
  draw_display(canvas, {156, 68, 88, 32}, "12.50");
  draw_drawer(canvas, {48, 194, 224, 38});
  draw_deck(canvas, {160, 108.5, 99, 186, 111.5}, {160, 121, 86, 176, 93}, keys_z300, 0.08);
  return canvas.image();
}

QImage draw_register_z320(int scale) {
  Canvas canvas(320, 240, scale);

  // The display for the customer stands on a pole behind the housing.
  canvas.box({66, 44, 10, 16}, palette::slate);
  draw_shell(canvas, rounded({30.5, 14.5, 81, 33}, 6), palette::mist);
  draw_display(canvas, {35, 19, 72, 24}, "42.80");

  draw_shell(canvas, rounded({28.5, 56.5, 263, 56}, 10), palette::mist);
  draw_printer(canvas, {222, 18, 52, 64});
  draw_display(canvas, {44, 66, 128, 32}, "42.80");
  draw_drawer(canvas, {8, 196, 304, 36});
  draw_deck(canvas, {160, 106.5, 132, 188, 151.5}, {160, 117, 123, 179, 137}, keys_z320, 0.07);
  return canvas.image();
}

}  // namespace ecr

#include "keyboard/key_face.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

#include <QApplication>
#include <QFontMetricsF>
#include <QPainter>

namespace ecr {
namespace {

// Room around a cap's text, for its rim and the side that is seen below the face.
constexpr QMargins text_margins{3, 3, 3, 5};
constexpr int face_depth = 3;
constexpr double corner = 5;

struct Letters {
  QFont font;
  double narrowing;
  QFontMetricsF metrics;

  Letters(double points, double narrowing_by) : font{made(points)}, narrowing{narrowing_by}, metrics{font} {}

 private:
  static QFont made(double points) {
    QFont font = QApplication::font();
    font.setPointSizeF(points);
    return font;
  }
};

/// From the largest letters to the smallest. Narrow letters read better than small ones.
const std::vector<Letters>& all_letters() {
  static const std::vector<Letters> letters = {{9, 1},      {9, 0.93}, {9, 0.87},   {8.5, 0.87},
                                               {8.5, 0.82}, {8, 0.82}, {7.5, 0.78}, {7, 0.74}};
  return letters;
}

/// The parts between which a line may end; a blank stays at the end of its part.
QStringList parts_of(const QString& text) {
  QStringList parts;
  QString part;
  for (const QChar c : text) {
    part += c;
    if (c == u' ' || c == u'/' || c == u'#') {
      parts.append(part);
      part.clear();
    }
  }
  if (!part.isEmpty()) parts.append(part);
  // A name that begins with the sign goes on in the same line.
  if (parts.size() > 1 && parts.front().size() == 1) parts[1].prepend(parts.takeFirst());
  return parts;
}

double width_of(const Letters& letters, const QString& line) {
  return letters.metrics.horizontalAdvance(line.trimmed()) * letters.narrowing;
}

QStringList broken(const QStringList& parts, const Letters& letters, double width) {
  QStringList lines;
  QString line;
  for (const QString& part : parts) {
    if (!line.isEmpty() && width_of(letters, line + part) > width) {
      lines.append(line.trimmed());
      line.clear();
    }
    line += part;
  }
  lines.append(line.trimmed());
  return lines;
}

QSizeF size_of(const QStringList& lines, const Letters& letters) {
  double widest = 0;
  for (const QString& line : lines) widest = std::max(widest, width_of(letters, line));
  return {widest, letters.metrics.height() * static_cast<double>(lines.size())};
}

}  // namespace

QRect text_place(const QRect& cap) {
  return cap.marginsRemoved(text_margins);
}

FittedText fit_text(const QString& text, QSize place) {
  const QStringList parts = parts_of(text);
  if (parts.isEmpty()) return {};
  // One line in slightly narrow letters reads better than two in wide ones.
  constexpr std::size_t slightly_narrow = 3;
  for (std::size_t i = 0; i < slightly_narrow; ++i) {
    const Letters& letters = all_letters()[i];
    if (width_of(letters, text) <= place.width()) return {letters.font, letters.narrowing, {text}};
  }
  for (const Letters& letters : all_letters()) {
    QStringList lines = broken(parts, letters, place.width());
    const QSizeF needed = size_of(lines, letters);
    if (needed.width() <= place.width() && needed.height() <= place.height())
      return {letters.font, letters.narrowing, std::move(lines)};
  }
  const Letters& smallest = all_letters().back();
  return {smallest.font, smallest.narrowing, broken(parts, smallest, place.width())};
}

QSize smallest_cap(const QString& text) {
  const Letters& letters = all_letters().back();
  const QStringList parts = parts_of(text);
  double widest = 0;
  for (const QString& part : parts) widest = std::max(widest, width_of(letters, part));
  const QSizeF needed = size_of(broken(parts, letters, widest), letters);
  return QSize{static_cast<int>(std::ceil(needed.width())), static_cast<int>(std::ceil(needed.height()))}.grownBy(
      text_margins);
}

QColor fixed_print(const QPalette& palette) {
  return between(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.76);
}

QColor between(const QColor& from, const QColor& to, double share) {
  const auto mixed = [share](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * share)); };
  return {mixed(from.red(), to.red()), mixed(from.green(), to.green()), mixed(from.blue(), to.blue())};
}

void draw_key(QPainter& painter, const QRect& cap, const QPalette& palette, const KeyFace& face) {
  const QColor ground = palette.color(QPalette::Window);
  const QColor ink = palette.color(QPalette::WindowText);
  const QColor accent = palette.color(QPalette::Highlight);
  // On a dark ground what is raised is lighter, on a light one what lies low is darker.
  const bool is_dark = ground.lightness() < 128;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF whole = QRectF{cap}.adjusted(0.5, 0.5, -0.5, -0.5);
  if (face.fixed) {
    painter.setPen(between(ground, ink, 0.2));
    painter.setBrush(between(ground, ink, is_dark ? 0.03 : 0.13));
    painter.drawRoundedRect(whole, corner, corner);
    painter.restore();
    return;
  }
  const QColor button = palette.color(QPalette::Button);
  QColor top = face.hovered ? between(button, accent, is_dark ? 0.06 : 0.12) : button;
  QColor side = between(ground, ink, 0.3);
  if (face.chosen) {
    // Red letters have to be read on it too.
    top = is_dark ? between(ground, accent, 0.13) : between(button, accent, 0.22);
    side = accent;
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(side);
  painter.drawRoundedRect(whole, corner, corner);
  const int sunk = face.pressed ? 2 : 0;
  painter.setBrush(top);
  painter.drawRoundedRect(whole.adjusted(1, 1 + sunk, -1, -face_depth + sunk), corner - 1, corner - 1);
  if (face.focused) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen{face.chosen ? ink : accent, 2});
    painter.drawRoundedRect(whole.adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
  }
  painter.restore();
}

void draw_key_text(QPainter& painter, const QRect& cap, const FittedText& text, const QColor& colour, bool pressed) {
  painter.save();
  painter.setFont(text.font);
  painter.setPen(colour);
  const QRectF place = text_place(cap).translated(0, pressed ? 2 : 0);
  painter.translate(place.center());
  painter.scale(text.narrowing, 1);
  const QSizeF wide{place.width() / text.narrowing, place.height()};
  painter.drawText(QRectF{{-wide.width() / 2, -wide.height() / 2}, wide}, Qt::AlignCenter, text.lines.join(u'\n'));
  painter.restore();
}

}  // namespace ecr

#include "widgets/glyphs.h"

#include <QPainter>
#include <QPixmap>
#include <QPolygonF>

namespace ecr {
namespace {

constexpr int side = 16;

QPixmap drawn(Glyph which, const QColor& colour, int ratio) {
  QPixmap picture{side * ratio, side * ratio};
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::transparent);
  QPainter painter{&picture};
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen{colour, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
  painter.drawPolyline(QPolygonF{{{2.5, 10.5}, {2.5, 13.5}, {13.5, 13.5}, {13.5, 10.5}}});
  painter.drawLine(QPointF{8, 2.5}, QPointF{8, 10});
  if (which == Glyph::to_file) {
    painter.drawPolyline(QPolygonF{{{4.8, 6.8}, {8, 10}, {11.2, 6.8}}});
  } else {
    painter.drawPolyline(QPolygonF{{{4.8, 5.7}, {8, 2.5}, {11.2, 5.7}}});
  }
  return picture;
}

}  // namespace

QIcon glyph(Glyph which, const QColor& colour) {
  QColor pale = colour;
  pale.setAlphaF(0.45F);
  QIcon icon;
  for (const int ratio : {1, 2}) {
    icon.addPixmap(drawn(which, colour, ratio), QIcon::Normal);
    icon.addPixmap(drawn(which, pale, ratio), QIcon::Disabled);
  }
  return icon;
}

}  // namespace ecr

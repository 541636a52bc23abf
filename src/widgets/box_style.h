#pragma once
// How check boxes and option buttons are drawn: the toolkit's own all but vanish on a dark ground.

#include <QProxyStyle>

namespace ecr {

class BoxStyle : public QProxyStyle {
  Q_OBJECT

 public:
  /// Draws all else as `base`, which it takes over.
  explicit BoxStyle(QStyle* base) : QProxyStyle{base} {}

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace ecr

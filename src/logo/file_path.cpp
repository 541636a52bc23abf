#include "logo/file_path.h"

#include <utility>

#include <QPainter>

namespace ecr {

FilePath::FilePath(const QString& name, QString hint, QWidget* parent) : QLabel{parent}, hint_{std::move(hint)} {
  setObjectName(name);
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void FilePath::show_path(const QString& path) {
  setText(path);
  setToolTip(path);
}

QSize FilePath::sizeHint() const {
  return minimumSizeHint();
}

QSize FilePath::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * 12, fontMetrics().height() + 4};
}

void FilePath::paintEvent(QPaintEvent*) {
  QPainter painter{this};
  const bool empty = text().isEmpty();
  painter.setPen(palette().color(empty ? QPalette::Disabled : QPalette::Active, QPalette::WindowText));
  const QString shown = fontMetrics().elidedText(empty ? hint_ : text(), Qt::ElideMiddle, width());
  painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
}

}  // namespace ecr

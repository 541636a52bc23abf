#include "robot/agent/picture.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QPixmap>

#include "robot/agent/refusal.h"
#include "robot/agent/screens.h"

namespace ecr::robot {
namespace {

/// The screen's window first, then what stands over it.
QList<QWidget*> layers() {
  const QWidget* screen = active_screen();
  QWidget* ground = screen != nullptr ? screen->window() : nullptr;
  QList<QWidget*> stacked;
  if (ground != nullptr) stacked.append(ground);
  for (QWidget* window : windows_on_show()) {
    const bool over = window->isModal() || window->windowType() == Qt::Popup;
    if (window == ground || (ground != nullptr && !over) || shows_screen(window)) continue;
    stacked.append(window);
  }
  return stacked;
}

}  // namespace

QImage picture() {
  const QList<QWidget*> stacked = layers();
  if (stacked.isEmpty()) return {};
  const QWidget* ground = stacked.first();
  QRect seen;
  for (const QWidget* window : stacked) seen |= window->geometry();
  const qreal scale = ground->devicePixelRatioF();
  QImage image{(QSizeF{seen.size()} * scale).toSize(), QImage::Format_RGB32};
  image.setDevicePixelRatio(scale);
  image.fill(ground->palette().color(QPalette::Dark));
  QPainter painter{&image};
  for (QWidget* window : stacked) {
    const QRect place = window->geometry().translated(-seen.topLeft());
    painter.drawPixmap(place.topLeft(), window->grab());
    if (window == ground) continue;
    // Without a window manager a box has no frame of its own to stand out by.
    painter.setPen(window->palette().color(QPalette::Shadow));
    painter.drawRect(place.adjusted(0, 0, -1, -1));
  }
  return image;
}

void save_picture(const QString& path) {
  const QImage image = picture();
  if (image.isNull()) throw not_possible(QStringLiteral("a screen to take a picture of"), what_is_up());
  if (!QDir{}.mkpath(QFileInfo{path}.absolutePath()) || !image.save(path, "PNG")) {
    throw script_fault(QStringLiteral("a picture in %1").arg(path), QStringLiteral("it cannot be written"));
  }
}

}  // namespace ecr::robot

#include "keyboard/key_drag.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include "fields/key_codes.h"
#include "keyboard/key_face.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

const QString function_kind = QStringLiteral("application/x-vermanto-key-function");
constexpr QSize cap_size{84, 46};

QPixmap picture_of(const QWidget& from, const QString& name) {
  const QSize size = cap_size;
  const qreal ratio = from.devicePixelRatioF();
  QPixmap picture{size * ratio};
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::transparent);
  QPainter painter{&picture};
  const QRect cap{{}, size};
  draw_key(painter, cap, from.palette(), KeyFace{.chosen = true});
  draw_key_text(painter, cap, fit_text(name, text_place(cap).size()), from.palette().color(QPalette::WindowText),
                false);
  return picture;
}

}  // namespace

std::function<void(QDrag&)> carry_drag;

void drag_function(QWidget& from, std::uint8_t code) {
  auto* data = new QMimeData;
  data->setData(function_kind, QByteArray(1, static_cast<char>(code)));
  auto* drag = new QDrag{&from};
  drag->setMimeData(data);
  const QPixmap picture = picture_of(from, screen_text(key_name(code)));
  drag->setPixmap(picture);
  drag->setHotSpot(QRect{{}, cap_size}.center());
  if (carry_drag) {
    carry_drag(*drag);
    drag->deleteLater();
  } else {
    drag->exec(Qt::CopyAction);
  }
}

std::optional<std::uint8_t> dragged_function(const QDropEvent& event) {
  const QByteArray data = event.mimeData()->data(function_kind);
  if (data.size() != 1) return std::nullopt;
  const auto code = static_cast<std::uint8_t>(data.front());
  if (key_name(code).empty()) return std::nullopt;
  return code;
}

}  // namespace ecr

#include "keyboard/key_cap.h"

#include <utility>

#include <QDragEnterEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "fields/key_codes.h"
#include "keyboard/key_drag.h"
#include "widgets/look.h"
#include "widgets/screen_text.h"

namespace ecr {

KeyCap::KeyCap(const QString& name, std::uint8_t key, QWidget* parent) : QAbstractButton{parent}, key_{key} {
  setObjectName(name);
  setAccessibleName(QStringLiteral("Key %1").arg(key));
  setFocusPolicy(Qt::ClickFocus);
  setAcceptDrops(true);
  setAttribute(Qt::WA_Hover);
}

void KeyCap::show_function(std::uint8_t code, KeyColour colour) {
  code_ = code;
  setText(screen_text(key_name(code)));
  setAccessibleName(QStringLiteral("Key %1 %2").arg(key_).arg(text()).trimmed());
  const QColor ink = colour == KeyColour::red ? text_red() : text_plain();
  if (palette().color(QPalette::ButtonText) != ink) {
    QPalette colours = palette();
    colours.setColor(QPalette::ButtonText, ink);
    setPalette(colours);
  }
}

void KeyCap::mark(std::uint8_t chosen) {
  const bool marked = chosen != 0 && code_ == chosen;
  if (marked == marked_) return;
  marked_ = marked;
  update();
}

QSize KeyCap::sizeHint() const {
  return smallest_cap(text());
}

bool KeyCap::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), accessibleName(), this);
    return true;
  }
  return QAbstractButton::event(event);
}

void KeyCap::paintEvent(QPaintEvent*) {
  QPainter painter{this};
  const KeyFace face{
      .chosen = marked_, .hovered = underMouse() || dropping_, .pressed = isDown(), .focused = hasFocus()};
  draw_key(painter, rect(), palette(), face);
  if (drawn_.text != text() || drawn_.size != size()) {
    drawn_ = {text(), size(), fit_text(text(), text_place(rect()).size())};
  }
  draw_key_text(painter, rect(), drawn_.fitted, palette().color(QPalette::ButtonText), isDown());
}

void KeyCap::mouseMoveEvent(QMouseEvent* event) {
  // A function leaves with the pointer. One without a name cannot be given to a key, and an empty key has nothing to
  // give.
  const bool can_leave = !text().isEmpty() && code_ != no_operation;
  if (isDown() && can_leave && !rect().contains(event->position().toPoint())) {
    setDown(false);
    drag_function(*this, code_);
    return;
  }
  QAbstractButton::mouseMoveEvent(event);
}

void KeyCap::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    click();
  } else if (!key_stroke_ || !key_stroke_(event->key())) {
    QAbstractButton::keyPressEvent(event);
  }
}

void KeyCap::focusInEvent(QFocusEvent* event) {
  QAbstractButton::focusInEvent(event);
  if (focus_) focus_();
}

void KeyCap::dragEnterEvent(QDragEnterEvent* event) {
  if (event->source() == this || !dragged_function(*event)) return;
  event->acceptProposedAction();
  dropping_ = true;
  update();
}

void KeyCap::dragLeaveEvent(QDragLeaveEvent*) {
  dropping_ = false;
  update();
}

void KeyCap::dropEvent(QDropEvent* event) {
  dropping_ = false;
  update();
  const auto code = dragged_function(*event);
  if (!code || event->source() == this) return;
  event->acceptProposedAction();
  setFocus(Qt::MouseFocusReason);
  if (drop_) drop_(*code);
}

}  // namespace ecr

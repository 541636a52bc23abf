#include "keyboard/function_list.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include "core/codecs.h"
#include "fields/key_codes.h"
#include "keyboard/key_drag.h"
#include "keyboard/key_face.h"
#include "widgets/screen_text.h"

namespace ecr {

FunctionList::FunctionList(const QString& name, QWidget* parent) : ChoiceList{name, parent} {}

void FunctionList::fill_functions() {
  QStringList lines;
  for (int code = 0; code <= 255; ++code) {
    const std::string_view function = key_name(static_cast<std::uint8_t>(code));
    if (!function.empty()) lines.append(QString::number(code) + QStringLiteral(". ") + screen_text(function));
  }
  fill(lines);
}

void FunctionList::showPopup() {
  pressed_ = -1;
  view()->viewport()->installEventFilter(this);
  // The style sheet lets this long list drop down below its box, where others lie over it and scroll by themselves.
  view()->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  ChoiceList::showPopup();
}

bool FunctionList::eventFilter(QObject* watched, QEvent* event) {
  if (watched == view()->viewport()) {
    if (event->type() == QEvent::MouseButtonPress) {
      pressed_ = view()->indexAt(static_cast<QMouseEvent*>(event)->position().toPoint()).row();
    } else if (event->type() == QEvent::MouseButtonRelease) {
      pressed_ = -1;
    } else if (event->type() == QEvent::MouseMove && pressed_ >= 0) {
      // A line that is pulled out of the list is chosen, and goes along with the pointer.
      const QPoint there = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
      const QWidget& list = *view()->window();
      if (list.rect().contains(list.mapFromGlobal(there))) return false;
      const int row = pressed_;
      pressed_ = -1;
      hidePopup();
      setCurrentIndex(row);
      emit activated(row);
      drag_function(*this, number());
      return true;
    }
  }
  return ChoiceList::eventFilter(watched, event);
}

FunctionTag::FunctionTag(const QString& name, QWidget* parent) : QLabel{parent} {
  setObjectName(name);
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignCenter);
  setMargin(6);
  setFixedHeight(34);
  setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("PAYMENT TRANSFER")) + 28);
}

void FunctionTag::show_line(const QString& line) {
  code_ = ottieni_numero(page_bytes(line), ".");
  const QString function = line.mid(line.indexOf(u'.') + 2);
  setText(function);
  setToolTip(function);
  setCursor(code_ == 0 ? Qt::ArrowCursor : Qt::OpenHandCursor);
}

void FunctionTag::paintEvent(QPaintEvent*) {
  if (text().isEmpty()) return;
  QPainter painter{this};
  draw_key(painter, rect(), palette(), KeyFace{.chosen = true});
  painter.drawText(text_place(rect()), Qt::AlignCenter, text());
}

void FunctionTag::mousePressEvent(QMouseEvent* event) {
  // The press is for this label, or else the move behind it goes to the screen.
  event->accept();
}

void FunctionTag::mouseMoveEvent(QMouseEvent* event) {
  if (code_ != 0 && event->buttons().testFlag(Qt::LeftButton) && !rect().contains(event->position().toPoint())) {
    drag_function(*this, code_);
  }
}

}  // namespace ecr

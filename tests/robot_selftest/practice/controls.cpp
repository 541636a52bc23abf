#include "practice/controls.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QKeySequence>

namespace ecr::practice {
namespace {

QString name_of(const QKeyEvent* event) {
  const bool modifier = event->key() == Qt::Key_Shift || event->key() == Qt::Key_Control || event->key() == Qt::Key_Alt;
  const QKeySequence keys = modifier ? QKeySequence{event->key()} : QKeySequence{event->keyCombination()};
  return keys.toString(QKeySequence::PortableText);
}

}  // namespace

KeyField::KeyField(QLabel* shown, QWidget* parent) : QLineEdit{parent}, shown_{shown} {}

bool KeyField::event(QEvent* event) {
  // The tabulator would lead to the next field.
  if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Backtab) {
    keyPressEvent(static_cast<QKeyEvent*>(event));
    event->accept();
    return true;
  }
  return QLineEdit::event(event);
}

void KeyField::keyPressEvent(QKeyEvent* event) {
  shown_->setText(shown_->text() + QLatin1Char('[') + name_of(event) + QLatin1Char(']'));
  QLineEdit::keyPressEvent(event);
}

void KeyField::keyReleaseEvent(QKeyEvent* event) {
  shown_->setText(shown_->text() + QLatin1Char('(') + name_of(event) + QLatin1Char(')'));
  QLineEdit::keyReleaseEvent(event);
}

void FocusField::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (entered && event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) entered();
}

void FocusField::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (left && event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) left();
}

void ClickLabel::mousePressEvent(QMouseEvent*) {
  if (clicked) clicked();
}

void ClickLabel::mouseDoubleClickEvent(QMouseEvent*) {
  if (double_clicked) double_clicked();
}

InputStop::InputStop(QWidget* window) : QWidget{window} {
  setObjectName(QStringLiteral("WaitPanel"));
  QCoreApplication::instance()->installEventFilter(this);
}

bool InputStop::eventFilter(QObject*, QEvent* event) {
  return event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress;
}

}  // namespace ecr::practice

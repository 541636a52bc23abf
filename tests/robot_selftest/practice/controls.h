#pragma once
// Controls of the practice program's own making, as a program has them: fields with handlers, labels that take clicks.

#include <functional>

#include <QLabel>
#include <QLineEdit>

namespace ecr::practice {

/// Notes each key stroke that reaches it: "[A] " pressed, "(A) " let go.
class KeyField : public QLineEdit {
 public:
  KeyField(QLabel* shown, QWidget* parent);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  QLabel* shown_;
};

/// Says what happens to its focus.
class FocusField : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;
  std::function<void()> entered;
  std::function<void()> left;

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};

/// A label that takes clicks, and keys as a key cap does: its caption is a property.
class ClickLabel : public QLabel {
 public:
  using QLabel::QLabel;
  std::function<void()> clicked;
  std::function<void()> double_clicked;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
};

/// Swallows all input for as long as it lives; nobody sees it.
class InputStop : public QWidget {
 public:
  explicit InputStop(QWidget* window);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace ecr::practice

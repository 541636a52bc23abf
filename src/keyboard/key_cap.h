#pragma once
// One key of the keyboard: a button that shows the function it holds, and takes another one by a click or a drop.

#include <cstdint>
#include <functional>

#include <QAbstractButton>

#include "keyboard/free_layout.h"
#include "keyboard/key_face.h"

namespace ecr {

class KeyCap : public QAbstractButton {
  Q_OBJECT

 public:
  KeyCap(const QString& name, std::uint8_t key, QWidget* parent);

  /// Runs when another function is dropped on the key.
  void on_drop(std::function<void(std::uint8_t code)> handler) { drop_ = std::move(handler); }
  /// Runs when the key gets the focus.
  void on_focus(std::function<void()> handler) { focus_ = std::move(handler); }
  /// Runs for a key stroke that the cap has no use for itself; it answers whether it had one.
  void on_key_stroke(std::function<bool(int key)> handler) { key_stroke_ = std::move(handler); }

  /// Shows a function: its name, empty for a code that has none.
  void show_function(std::uint8_t code, KeyColour colour);
  /// Marks the key while it holds the function that is chosen.
  void mark(std::uint8_t chosen);

  [[nodiscard]] std::uint8_t key() const { return key_; }
  [[nodiscard]] bool is_marked() const { return marked_; }

  /// The smallest size in which the name has room.
  [[nodiscard]] QSize sizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  std::uint8_t key_;
  std::uint8_t code_ = 0;
  bool marked_ = false;
  bool dropping_ = false;
  std::function<void(std::uint8_t)> drop_;
  std::function<void()> focus_;
  std::function<bool(int)> key_stroke_;

  // The name as it was last fitted.
  struct Fitted {
    QString text;
    QSize size;
    FittedText fitted;
  };
  Fitted drawn_;
};

}  // namespace ecr

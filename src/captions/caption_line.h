#pragma once
// A field that holds one line of fixed width, with characters that print at double width.
//
// Entering it trims the text at its end and puts the cursor there, leaving it fills the text with blanks and cuts it at
// the width. In between it takes any number of characters: a mark in front of a character pushes the last ones out, and
// they are lost when the field is left.

#include <functional>
#include <string>

#include <QCheckBox>

#include "widgets/field.h"

namespace ecr {

class CaptionLine : public Field {
  Q_OBJECT

 public:
  /// `width` is the line's number of characters, marks included.
  CaptionLine(const QString& name, int width, QWidget* parent);

  /// Puts a mark in front of every character that is typed while `is_on` answers true, and takes the mark away with its
  /// character at a Backspace. `log_prefix` stands in front of a fault.
  void print_double_while(std::function<bool()> is_on, std::string log_prefix);

  /// Runs when the field is entered, behind the trimming.
  void on_line_entered(std::function<void()> handler) { line_entered_ = std::move(handler); }

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;

 private:
  [[nodiscard]] bool prints_double() const { return is_on_ && is_on_(); }
  void put_mark();
  void select_mark_too();

  std::function<bool()> is_on_;
  std::string log_prefix_;
  std::function<void()> line_entered_;
  bool press_enters_ = false;   ///< the focus has come by a press that is on its way
  bool press_entered_ = false;  ///< the button that is held down is the one that entered the line
};

/// Lets Ctrl+D switch the box while a field of the page keeps the focus, and says so beside it.
void add_double_key(QCheckBox& box, QWidget& page);

}  // namespace ecr

#pragma once
// Text fields with the handlers of the frame: entering, typing, changing, leaving.
//
// Entering and leaving are moves of the focus between controls. A message box, a busy wait or another program in front
// is neither. A change handler runs on every change of the text, also when the program sets it.

#include <functional>
#include <string>

#include <QLineEdit>
#include <QString>

#include "core/decimal.h"

namespace ecr {

class Field : public QLineEdit {
  Q_OBJECT

 public:
  /// `name` is the control's name; it also names it in the run log, behind `screen`.
  Field(const QString& name, QWidget* parent);

  enum class Keys { any, digits };

  /// Which typed or composed characters are let in. Editing keys, shortcuts, selection and paste always work;
  /// `on_change` judges the result.
  void let_in(Keys keys) { keys_ = keys; }
  /// How many characters can be typed or pasted. A longer text that the program shows stands whole, and can be made
  /// shorter only.
  void limit_typing(int characters);
  /// Enter gives the focus to this widget; without one it does nothing.
  void enter_goes_to(QWidget* widget) { enter_target_ = widget; }

  void on_entered(std::function<void()> handler) { entered_ = std::move(handler); }
  void on_change(std::function<void()> handler) { change_ = std::move(handler); }
  void on_left(std::function<void()> handler) { left_ = std::move(handler); }

  /// Puts a text in as the program does; change handlers run.
  void show_text(const QString& text);

  /// The same with a number as the programming holds it. An empty text says that it could not be read: no number is
  /// shown as one. The field is unread then, until its text changes; entering and leaving it leave it so.
  void show_stored(const QString& text);
  /// Whether the field stands empty because what is stored could not be read. A save leaves the bytes of such a field
  /// alone: nobody has decided what they should be.
  [[nodiscard]] bool is_unread() const { return unread_; }

  /// Drops the last character and keeps the cursor where it was, or at the end.
  void cut_last();

  /// For change handlers: whether a key was pressed in this field since the change before this one.
  [[nodiscard]] bool key_typed() const { return change_was_typed_; }

  /// "Screen Control", for the run log.
  [[nodiscard]] std::string log_name() const;

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;

 private:
  void run(const std::function<void()>& handler);

  Keys keys_ = Keys::any;
  int limit_ = 0;  ///< of typing; 0 for none
  QWidget* enter_target_ = nullptr;
  std::function<void()> entered_;
  std::function<void()> change_;
  std::function<void()> left_;
  bool key_pressed_ = false;
  bool change_was_typed_ = false;
  bool inside_ = false;
  bool select_behind_press_ = false;
  bool unread_ = false;
};

/// The number field of the frame: digits only; a value above `maximum` shows MsgValueTooHigh and loses its last
/// character; raw digits while the focus is inside, the display form outside.
struct NumberRules {
  Decimal maximum;
  /// Whether a text that was not typed is let pass unchecked.
  bool check_typing_only = false;
  /// The display form as whole units, and back. A fault leaves the text as it is and goes to the run log.
  std::function<Decimal(const QString& shown)> to_raw;
  std::function<QString(const QString& raw)> to_shown;
  QWidget* enter_goes_to = nullptr;
  /// What the screen does behind the check.
  std::function<void()> changed;
};
void make_number_field(Field& field, NumberRules rules);

/// An amount in smallest units, shown with Global::DecimalPoint decimals.
[[nodiscard]] NumberRules amount_rules(const Decimal& maximum);

/// The box that tells of a value above the maximum, and the cut of the last character.
void refuse_value(Field& field);

/// A name field: at most `width` characters; entering it cuts trailing blanks and selects all.
void make_name_field(Field& field, int width);

/// The number that a field's text begins with; 0 if it begins with none.
[[nodiscard]] Decimal value_of(const QString& text);

}  // namespace ecr

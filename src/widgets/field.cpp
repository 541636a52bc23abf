#include "widgets/field.h"

#include <algorithm>
#include <utility>

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>

#include "core/amount_text.h"
#include "core/catalogue.h"
#include "core/fault.h"
#include "core/global.h"
#include "core/run_log.h"
#include "core/shell.h"
#include "widgets/screen.h"
#include "widgets/screen_text.h"
#include "widgets/typing.h"

namespace ecr {
namespace {

bool is_move_between_controls(const QFocusEvent& event) {
  switch (event.reason()) {
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
      return false;
    default:
      return true;
  }
}

}  // namespace

Field::Field(const QString& name, QWidget* parent) : QLineEdit{parent} {
  setObjectName(name);
  connect(this, &QLineEdit::textChanged, this, [this] {
    change_was_typed_ = std::exchange(key_pressed_, false);
    unread_ = false;
    run(change_);
  });
}

void Field::limit_typing(int characters) {
  if (limit_ == 0) {
    connect(this, &QLineEdit::textEdited, this,
            [this](const QString& edited) { setMaxLength(std::max(limit_, static_cast<int>(edited.size()))); });
  }
  limit_ = characters;
  setMaxLength(std::max(limit_, static_cast<int>(text().size())));
}

void Field::show_text(const QString& text) {
  if (limit_ > 0) setMaxLength(std::max(limit_, static_cast<int>(text.size())));
  setText(text);
}

void Field::show_stored(const QString& text) {
  show_text(text);
  unread_ = text.isEmpty();
}

void Field::cut_last() {
  const int cursor = cursorPosition();
  setText(text().chopped(text().isEmpty() ? 0 : 1));
  setCursorPosition(std::min<int>(cursor, static_cast<int>(text().size())));
}

std::string Field::log_name() const {
  const Screen* screen = Screen::of(this);
  return page_bytes((screen != nullptr ? screen->objectName() + u' ' : QString{}) + objectName());
}

void Field::run(const std::function<void()>& handler) {
  if (handler) guarded(log_name() + ": ", handler);
}

void Field::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (inside_ || !is_move_between_controls(*event)) return;
  inside_ = true;
  if (!unread_) run(entered_);
  // The press that brought the focus would put the cursor in the middle of what was just selected.
  select_behind_press_ = event->reason() == Qt::MouseFocusReason && hasSelectedText();
}

void Field::mousePressEvent(QMouseEvent* event) {
  QLineEdit::mousePressEvent(event);
  if (std::exchange(select_behind_press_, false)) selectAll();
}

void Field::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  const Screen* screen = Screen::of(this);
  if (!inside_ || !is_move_between_controls(*event) || (screen != nullptr && screen->is_unloading())) return;
  inside_ = false;
  // Who merely passes through has not decided on the 0 that an empty field stands for.
  if (!unread_) run(left_);
}

void Field::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (enter_target_ != nullptr) {
      enter_target_->setFocus(Qt::OtherFocusReason);
      event->accept();
      return;
    }
  } else if (!event->text().isEmpty() && event->key() != Qt::Key_Tab && event->key() != Qt::Key_Backtab) {
    const QString typed = typed_text(*event);
    const bool is_command = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    if (!typed.isEmpty() || !is_command) key_pressed_ = true;
    if (keys_ == Keys::digits && !all_digits(typed)) {
      event->accept();
      return;
    }
  }
  QLineEdit::keyPressEvent(event);
}

void Field::inputMethodEvent(QInputMethodEvent* event) {
  if (changes_text(*event)) key_pressed_ = true;
  if (keys_ == Keys::any) {
    QLineEdit::inputMethodEvent(event);
    return;
  }
  const auto digits = digits_alone(*event);
  QLineEdit::inputMethodEvent(digits.get());
  event->setAccepted(digits->isAccepted());
}

void refuse_value(Field& field) {
  tell(BoxKind::critical, MsgValueTooHigh);
  field.cut_last();
}

Decimal value_of(const QString& text) {
  return Decimal::leading(page_bytes(text));
}

void make_number_field(Field& field, NumberRules rules) {
  field.let_in(Field::Keys::digits);
  field.enter_goes_to(rules.enter_goes_to);
  field.on_entered([&field, to_raw = rules.to_raw] {
    const Decimal raw = to_raw(field.text());
    field.show_text(raw.is_zero() ? QString{} : screen_text(raw.text(0)));
  });
  field.on_left([&field, to_shown = rules.to_shown] {
    if (field.text().isEmpty()) field.show_text(QStringLiteral("0"));
    field.show_text(to_shown(field.text()));
  });
  field.on_change([&field, maximum = rules.maximum, typing_only = rules.check_typing_only, changed = rules.changed] {
    if ((!typing_only || field.key_typed()) && value_of(field.text()) > maximum) refuse_value(field);
    if (changed) changed();
  });
}

NumberRules amount_rules(const Decimal& maximum) {
  NumberRules rules;
  rules.maximum = maximum;
  rules.to_raw = [](const QString& shown) {
    return Decimal::from_text(page_bytes(shown)).scaled(Global::DecimalPoint);
  };
  rules.to_shown = [](const QString& raw) {
    const std::string text = page_bytes(raw);
    // What is no amount stays for the person to see, where Amount_Text would give nothing and a save would store zero.
    static_cast<void>(Decimal::from_text(text).scaled(-Global::DecimalPoint));
    return screen_text(Amount_Text(text, Global::DecimalPoint));
  };
  return rules;
}

void make_name_field(Field& field, int width) {
  field.setMaxLength(width);
  field.on_entered([&field] {
    field.show_text(trim_end(field.text()));
    field.selectAll();
  });
}

}  // namespace ecr

#include "captions/caption_line.h"

#include <utility>

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QShortcut>

#include "captions/double_width.h"
#include "core/run_log.h"
#include "widgets/screen_text.h"
#include "widgets/typing.h"

namespace ecr {
namespace {

bool is_backspace(const QKeyEvent& event) {
  return event.key() == Qt::Key_Backspace && (event.modifiers() & ~Qt::ShiftModifier) == Qt::NoModifier;
}

}  // namespace

CaptionLine::CaptionLine(const QString& name, int width, QWidget* parent) : Field{name, parent} {
  on_entered([this] {
    show_text(trim_end(text()));
    end(false);
    if (line_entered_) line_entered_();
  });
  on_left([this, width] { show_text(text().leftJustified(width, u' ', true)); });
}

void CaptionLine::print_double_while(std::function<bool()> is_on, std::string log_prefix) {
  is_on_ = std::move(is_on);
  log_prefix_ = std::move(log_prefix);
}

void CaptionLine::focusInEvent(QFocusEvent* event) {
  press_enters_ = event->reason() == Qt::MouseFocusReason;
  Field::focusInEvent(event);
}

void CaptionLine::mousePressEvent(QMouseEvent* event) {
  Field::mousePressEvent(event);
  // The press that brought the focus leaves the cursor at the end; the next one places it.
  press_entered_ = std::exchange(press_enters_, false);
  if (press_entered_) end(false);
}

void CaptionLine::mouseMoveEvent(QMouseEvent* event) {
  // Else a hand that is not quite still would select all from there to the end.
  if (!press_entered_) Field::mouseMoveEvent(event);
}

void CaptionLine::mouseReleaseEvent(QMouseEvent* event) {
  press_entered_ = false;
  Field::mouseReleaseEvent(event);
}

void CaptionLine::keyPressEvent(QKeyEvent* event) {
  if (!is_on_) {
    Field::keyPressEvent(event);
    return;
  }
  bool done = false;
  guarded(log_prefix_, [&] {
    if (event->matches(QKeySequence::DeleteStartOfWord)) {
      if (!hasSelectedText()) cursorWordBackward(true);
      select_mark_too();
      del();
      done = true;
    } else if (is_backspace(*event)) {
      if (!hasSelectedText()) cursorBackward(true);
      select_mark_too();
    } else if (!typed_text(*event).isEmpty() && prints_double()) {
      put_mark();
    }
  });
  if (done) {
    event->accept();
  } else {
    Field::keyPressEvent(event);
  }
}

void CaptionLine::inputMethodEvent(QInputMethodEvent* event) {
  bool marks = false;
  if (!event->commitString().isEmpty()) guarded(log_prefix_, [&] { marks = prints_double(); });
  if (!marks) {
    Field::inputMethodEvent(event);
    return;
  }
  QString marked;
  for (const QChar character : event->commitString()) {
    marked += QChar{double_mark};
    marked += character;
  }
  QInputMethodEvent with_marks{event->preeditString(), event->attributes()};
  with_marks.setCommitString(marked, event->replacementStart(), event->replacementLength());
  Field::inputMethodEvent(&with_marks);
  event->setAccepted(with_marks.isAccepted());
}

void CaptionLine::put_mark() {
  // What is selected stays in the text; the mark and its character come in front of it.
  if (hasSelectedText()) setCursorPosition(selectionStart());
  insert(QChar{double_mark});
}

void CaptionLine::select_mark_too() {
  if (!hasSelectedText()) return;
  const Places deleted{static_cast<std::size_t>(selectionStart()), static_cast<std::size_t>(selectionEnd())};
  const std::u16string line = text().toStdU16String();
  const Places all = with_mark(line, deleted);
  setSelection(static_cast<int>(all.begin), static_cast<int>(all.end - all.begin));
}

void add_double_key(QCheckBox& box, QWidget& page) {
  const QKeySequence key{Qt::CTRL | Qt::Key_D};
  box.setToolTip(own_words(OwnText::while_you_type).arg(key.toString(QKeySequence::NativeText)));
  auto* shortcut = new QShortcut{key, &page};
  shortcut->setContext(Qt::WidgetWithChildrenShortcut);
  QObject::connect(shortcut, &QShortcut::activated, &box, [&box] {
    if (box.isEnabled()) box.toggle();
  });
}

}  // namespace ecr

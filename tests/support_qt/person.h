#pragma once
// What a person does with a keyboard and a mouse. Everything enters where the system's own events do, so that focus,
// popups and shortcuts come about as they would.

#include <functional>

#include <QString>
#include <QStringList>
#include <QWidget>

#include "support_qt/printing.h"

class QComboBox;
class QTableView;

namespace ecr::test {

/// A key stroke to whatever has the focus, `times` times.
void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, int times = 1);

/// The characters one after another to whatever has the focus. What is `held` beside them still gives these characters,
/// as Ctrl+Alt does where it is AltGr.
void type(const QString& text, Qt::KeyboardModifiers held = Qt::NoModifier);

/// What an input method tells whatever has the focus: a text that is being composed, or the final one.
void compose(const QString& composed);
void finish_composing(const QString& final_text);

/// A click into the middle of a control. Fails the test if something else lies there or the control can't be used.
void click(QWidget& control);
/// A click at a place of a control.
void click_at(QWidget& control, QPoint place);

/// One notch of the wheel over a control: up for a positive number.
void turn_wheel(QWidget& control, int notches);

/// Presses Tab until the control has the focus.
void tab_to(QWidget& control);

/// Selects all of the field that has the focus and pastes over it.
void paste_over(const QString& text);

/// Opens a list with the pointer and clicks on the entry at this position.
void pick(QComboBox& list, int position);

/// Clicks on a cell of a grid, 1 for the first record.
void click_row(QTableView& grid, int row, int column = 1);

/// Lets the screens handle what has come in, deferred deletions included.
void let_screens_settle();

/// Lets the screens work until `reached` answers true; fails the test if that takes more than ten seconds.
void work_until(const std::function<bool()>& reached);

[[nodiscard]] QStringList entries_of(const QComboBox& list);

}  // namespace ecr::test

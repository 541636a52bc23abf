#include "support_qt/person.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

namespace ecr::test {
namespace {

// Wherever the keys go is the toolkit's decision.
QWidget* const whoever_has_the_focus = nullptr;

std::string name_of(const QWidget& control) {
  const QString name = control.objectName();
  return name.isEmpty() ? control.metaObject()->className() : name.toStdString();
}

}  // namespace

void press(int key, Qt::KeyboardModifiers modifiers, int times) {
  for (int i = 0; i < times; ++i) QTest::keyClick(whoever_has_the_focus, static_cast<Qt::Key>(key), modifiers);
}

void type(const QString& text, Qt::KeyboardModifiers held) {
  for (const QChar c : text) {
    const ushort code = c.unicode();
    const int key = code < 128 ? QTest::asciiToKey(static_cast<char>(code)) : static_cast<int>(Qt::Key_unknown);
    QTest::sendKeyEvent(QTest::Click, whoever_has_the_focus, static_cast<Qt::Key>(key), QString{c}, held);
  }
}

void compose(const QString& composed) {
  ASSERT_NE(QGuiApplication::focusObject(), nullptr);
  QInputMethodEvent event{composed, {}};
  QApplication::sendEvent(QGuiApplication::focusObject(), &event);
}

void finish_composing(const QString& final_text) {
  ASSERT_NE(QGuiApplication::focusObject(), nullptr);
  QInputMethodEvent event;
  event.setCommitString(final_text);
  QApplication::sendEvent(QGuiApplication::focusObject(), &event);
}

void click(QWidget& control) {
  click_at(control, control.rect().center());
}

void click_at(QWidget& control, QPoint place) {
  QWidget* window = control.window();
  ASSERT_TRUE(control.isVisible()) << name_of(control) << " can't be seen";
  ASSERT_TRUE(control.isEnabled()) << name_of(control) << " can't be used";
  const QPoint in_window = control.mapTo(window, place);
  QWidget* hit = window->childAt(in_window);
  const bool reached = hit == nullptr ? &control == window : hit == &control || control.isAncestorOf(hit);
  ASSERT_TRUE(reached) << "something else lies over " << name_of(control);
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, in_window);
  QCoreApplication::processEvents();
}

void turn_wheel(QWidget& control, int notches) {
  const QPoint place = control.rect().center();
  const QPoint global = control.mapToGlobal(place);
  constexpr int one_notch = 120;
  QWheelEvent event{place, global, {}, {0, notches * one_notch}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                    false};
  QApplication::sendEvent(&control, &event);
}

void tab_to(QWidget& control) {
  constexpr int more_than_any_screen_has = 400;
  for (int i = 0; i < more_than_any_screen_has && !control.hasFocus(); ++i) press(Qt::Key_Tab);
  ASSERT_TRUE(control.hasFocus()) << "Tab does not reach " << name_of(control);
}

void paste_over(const QString& text) {
  QGuiApplication::clipboard()->setText(text);
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_V, Qt::ControlModifier);
}

void pick(QComboBox& list, int position) {
  // A popup takes no click for the length of a double click, so that the one that opened it does not pick as well.
  const int interval = QApplication::doubleClickInterval();
  QApplication::setDoubleClickInterval(0);
  click_at(list, {list.width() - 8, list.height() / 2});
  QAbstractItemView* view = list.view();
  work_until([view] { return view->isVisible(); });
  QApplication::setDoubleClickInterval(interval);
  const QModelIndex index = list.model()->index(position, list.modelColumn(), list.rootModelIndex());
  ASSERT_TRUE(index.isValid()) << name_of(list) << " has no entry " << position;
  view->scrollTo(index);
  const QPoint place = view->visualRect(index).center();
  QTest::mouseMove(view->viewport(), place);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, place);
  work_until([view] { return !view->isVisible(); });
}

void click_row(QTableView& grid, int row, int column) {
  const QModelIndex index = grid.model()->index(row - 1, column);
  grid.scrollTo(index);
  click_at(*grid.viewport(), grid.visualRect(index).center());
}

void let_screens_settle() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

void work_until(const std::function<bool()>& reached) {
  constexpr int patience_ms = 10'000;
  EXPECT_TRUE(QTest::qWaitFor(reached, patience_ms)) << "what was waited for did not come";
}

QStringList entries_of(const QComboBox& list) {
  QStringList entries;
  for (int i = 0; i < list.count(); ++i) entries.append(list.itemText(i));
  return entries;
}

}  // namespace ecr::test

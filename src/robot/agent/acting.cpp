#include "robot/agent/acting.h"

#include <algorithm>
#include <memory>
#include <utility>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QJsonArray>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTabBar>
#include <QTableView>
#include <QTextEdit>
#include <QToolButton>
#include <QWindow>

#include "robot/agent/hand.h"
#include "robot/agent/reading.h"
#include "robot/agent/refusal.h"
#include "robot/agent/screens.h"

namespace ecr::robot {
namespace {

/// Where the steps of one click aim. The first step sets it; the others leave the click be if the target is gone.
struct Target {
  QPointer<QWidget> widget;
  QPoint place;
};
using SharedTarget = std::shared_ptr<Target>;

/// A window manager gives the keys to the window on top; without one the robot has to.
void activate_top_window() {
  if (QApplication::activePopupWidget() != nullptr) return;
  QWidget* top = QApplication::activeModalWidget();
  if (top == nullptr) {
    if (QWidget* screen = active_screen()) top = screen->window();
  }
  if (top != nullptr && !top->isActiveWindow()) top->activateWindow();
}

/// A list left open would swallow the next click.
void close_popups() {
  while (QWidget* popup = QApplication::activePopupWidget()) {
    if (!popup->close()) return;
  }
}

void add_click(Steps& steps, const SharedTarget& target, bool twice = false) {
  steps.push_back([target] {
    if (target->widget != nullptr) move_pointer(target->widget, target->place);
  });
  steps.push_back([target, twice] {
    if (target->widget != nullptr) press_button(target->widget, target->place, twice);
  });
  steps.push_back([target] {
    if (target->widget != nullptr) release_button(target->widget, target->place);
  });
}

/// Aims at a control that a person can reach.
void aim(Target& target, QWidget* control) {
  target.place = aim_at(control);
  require_reachable(control, target.place);
  target.widget = control;
}

/// Aims at an entry of a view, which is brought into sight.
void aim_at_entry(Target& target, QAbstractItemView* view, const QModelIndex& index) {
  view->scrollTo(index);
  target.widget = view->viewport();
  target.place = view->visualRect(index).intersected(view->viewport()->rect()).center();
}

Steps click_steps(const QString& name, bool twice) {
  const auto target = std::make_shared<Target>();
  Steps steps;
  steps.push_back([=] {
    QWidget* control = usable_control(name);
    auto* view = qobject_cast<QAbstractItemView*>(control);
    if (view != nullptr && view->currentIndex().isValid()) {
      aim_at_entry(*target, view, view->currentIndex());
    } else {
      aim(*target, view != nullptr ? view->viewport() : control);
    }
  });
  add_click(steps, target);
  if (twice) add_click(steps, target, true);
  return steps;
}

bool has_focus(const QWidget* control) {
  const QWidget* focus = QApplication::focusWidget();
  return focus != nullptr && (focus == control || control->isAncestorOf(focus));
}

/// Neither selects nor moves the cursor: that is for the program to do.
void give_focus(QWidget* control) {
  const QWidget* taker = control;
  while (taker->focusProxy() != nullptr) taker = taker->focusProxy();
  if (taker->focusPolicy() == Qt::NoFocus) {
    throw not_possible(QStringLiteral("%1 gets the focus").arg(control->objectName()),
                       QStringLiteral("it takes no focus"));
  }
  if (!has_focus(control)) control->setFocus(Qt::OtherFocusReason);
}

void add_strokes(Steps& steps, const QJsonArray& strokes) {
  for (const auto& value : strokes) {
    const QJsonObject object = value.toObject();
    const Stroke stroke{object.value(QLatin1String("key")).toInt(),
                        Qt::KeyboardModifiers{object.value(QLatin1String("modifiers")).toInt()},
                        object.value(QLatin1String("text")).toString()};
    steps.push_back([stroke] { press_key(stroke); });
    steps.push_back([stroke] { release_key(stroke); });
  }
}

void remove_selected(QLineEdit* field) {
  field->del();
}

template <class TextEdit>
void remove_selected(TextEdit* field) {
  field->textCursor().removeSelectedText();
}

template <class Field>
void paste_over(Field* field, const QString& text) {
  if (field->isReadOnly()) {
    throw not_possible(QStringLiteral("%1 can be changed").arg(field->objectName()), QStringLiteral("it is read-only"));
  }
  field->selectAll();
  if (text.isEmpty()) {
    remove_selected(field);
    return;
  }
  QClipboard* clipboard = QGuiApplication::clipboard();
  const QString held = clipboard->text();
  clipboard->setText(text);
  field->paste();
  clipboard->setText(held);
}

void paste(QWidget* control, const QString& text) {
  auto* list = qobject_cast<QComboBox*>(control);
  if (auto* field = list != nullptr ? list->lineEdit() : qobject_cast<QLineEdit*>(control)) {
    paste_over(field, text);
  } else if (auto* plain = qobject_cast<QPlainTextEdit*>(control)) {
    paste_over(plain, text);
  } else if (auto* rich = qobject_cast<QTextEdit*>(control)) {
    paste_over(rich, text);
  } else {
    throw script_fault(QStringLiteral("%1 is a field").arg(control->objectName()),
                       QStringLiteral("nothing can be pasted into it"));
  }
}

Steps paste_steps(const QString& name, const QString& text) {
  Steps steps;
  steps.push_back([=] { give_focus(usable_control(name)); });
  steps.push_back([=] { paste(usable_control(name), text); });
  return steps;
}

/// The row of the entry that a `choose` names, by its text or its position.
int entry_row(QWidget* control, const QJsonObject& request) {
  const Entries entries = entries_of(control);
  const QJsonValue position = request.value(QLatin1String("position"));
  if (position.isDouble()) {
    if (position.toInt() < entries.count()) return position.toInt();
    throw not_possible(
        QStringLiteral("%1 has an entry at position %2").arg(control->objectName()).arg(position.toInt()),
        QStringLiteral("it has %1 entries").arg(entries.count()));
  }
  const QString text = request.value(QLatin1String("text")).toString();
  QStringList found;
  for (int row = 0; row < entries.count(); ++row) {
    if (entries.text(row) == text) return row;
    if (row < 12) found.append(QLatin1Char('"') + entries.text(row) + QLatin1Char('"'));
  }
  if (entries.count() > found.size()) found.append(QStringLiteral("..."));
  throw not_possible(QStringLiteral("%1 has an entry \"%2\"").arg(control->objectName(), text),
                     found.isEmpty() ? QStringLiteral("an empty list") : found.join(QLatin1String(", ")));
}

/// The entry that a `choose` names, which must be one that a person can pick.
QModelIndex entry_index(QWidget* control, const QJsonObject& request) {
  const Entries entries = entries_of(control);
  const QModelIndex index = entries.index(entry_row(control, request));
  if (index.flags().testFlag(Qt::ItemIsEnabled) && index.flags().testFlag(Qt::ItemIsSelectable)) return index;
  throw not_possible(QStringLiteral("the entry of %1 can be chosen").arg(control->objectName()),
                     QStringLiteral("it is disabled"));
}

/// Aims at an entry of a list that has been opened by a click.
void aim_in_popup(Target& target, QComboBox* list, const QJsonObject& request) {
  QAbstractItemView* view = list->view();
  if (!view->isVisible()) list->showPopup();
  if (!view->isVisible()) return;
  aim_at_entry(target, view, entry_index(list, request));
  // A release right behind and right over the click that opened the list is taken for that click's own, and so the
  // pointer first goes elsewhere, as it does on its way from the arrow to the entry.
  move_pointer(view->viewport(), target.place + QPoint{0, 4 * view->viewport()->height()});
}

Steps choose_steps(const QString& name, const QJsonObject& request) {
  const auto arrow = std::make_shared<Target>();
  const auto entry = std::make_shared<Target>();
  Steps steps;
  steps.push_back([=] {
    QWidget* control = usable_control(name);
    const QModelIndex index = entry_index(control, request);
    if (auto* view = qobject_cast<QListView*>(control)) {
      aim_at_entry(*entry, view, index);
    } else {
      aim(*arrow, control);
    }
  });
  add_click(steps, arrow);
  steps.push_back([=] {
    if (auto* list = qobject_cast<QComboBox*>(arrow->widget)) aim_in_popup(*entry, list, request);
  });
  add_click(steps, entry);
  steps.push_back([=] {
    auto* list = qobject_cast<QComboBox*>(arrow->widget);
    if (list != nullptr && list->view()->isVisible()) list->hidePopup();
  });
  return steps;
}

void aim_at_row(Target& target, QTableView* grid, int row) {
  const QAbstractItemModel* model = grid->model();
  const QString wish = QStringLiteral("%1 has a row %2").arg(grid->objectName()).arg(row);
  if (row > model->rowCount()) {
    throw not_possible(wish, QStringLiteral("its last row is %1").arg(model->rowCount()));
  }
  int column = 0;
  while (column < model->columnCount() && grid->isColumnHidden(column)) ++column;
  if (row == 0) {
    QHeaderView* heading = grid->horizontalHeader();
    target.widget = heading->viewport();
    target.place = {heading->sectionViewportPosition(column) + heading->sectionSize(column) / 2, heading->height() / 2};
    return;
  }
  if (grid->isRowHidden(row - 1)) throw not_possible(wish, QStringLiteral("it is hidden"));
  aim_at_entry(target, grid, model->index(row - 1, column));
}

Steps row_steps(const QString& name, int row) {
  const auto target = std::make_shared<Target>();
  Steps steps;
  steps.push_back([=] { aim_at_row(*target, grid_in(usable_control(name)), row); });
  add_click(steps, target);
  return steps;
}

/// Tabs that do not fit are reached by the little arrows beside them.
void scroll_to_tab(QTabBar* bar, int tab) {
  for (int i = 0; i < bar->count(); ++i) {
    const QRect place = bar->tabRect(tab);
    auto* left = bar->findChild<QToolButton*>(QStringLiteral("ScrollLeftButton"));
    auto* right = bar->findChild<QToolButton*>(QStringLiteral("ScrollRightButton"));
    const bool arrows = left != nullptr && right != nullptr && right->isVisible();
    const int end = arrows ? std::min(left->x(), right->x()) : bar->width();
    QToolButton* arrow = nullptr;
    if (place.center().x() < 0) arrow = left;
    if (place.center().x() >= end) arrow = right;
    if (arrow == nullptr || !arrow->isVisible() || !arrow->isEnabled()) return;
    arrow->click();
  }
}

Steps tab_steps(const QString& name, int tab) {
  const auto target = std::make_shared<Target>();
  Steps steps;
  steps.push_back([=] {
    QTabBar* bar = tabs_in(usable_control(name));
    const QString wish = QStringLiteral("%1 has a tab %2").arg(name).arg(tab);
    if (tab >= bar->count()) throw not_possible(wish, QStringLiteral("it has %1 tabs").arg(bar->count()));
    if (!bar->isTabVisible(tab)) throw not_possible(wish, QStringLiteral("the tab is hidden"));
    if (!bar->isTabEnabled(tab)) throw not_possible(wish, QStringLiteral("the tab is disabled"));
    scroll_to_tab(bar, tab);
    target->widget = bar;
    target->place = bar->tabRect(tab).center();
  });
  add_click(steps, target);
  return steps;
}

Steps check_steps(const QString& name, bool on) {
  const auto target = std::make_shared<Target>();
  Steps steps;
  steps.push_back([=] {
    if (checked(control_named(name)) != on) aim(*target, usable_control(name));
  });
  add_click(steps, target);
  return steps;
}

Steps press_steps(const QString& button_name) {
  const auto target = std::make_shared<Target>();
  Steps steps;
  steps.push_back([=] {
    QMessageBox* box = message_box();
    if (box == nullptr) throw not_possible(QStringLiteral("a message box"), what_is_up());
    const QMessageBox::StandardButton standard = button_name == QLatin1String("Ok")    ? QMessageBox::Ok
                                                 : button_name == QLatin1String("Yes") ? QMessageBox::Yes
                                                 : button_name == QLatin1String("No")  ? QMessageBox::No
                                                                                       : QMessageBox::Cancel;
    QAbstractButton* button = box->button(standard);
    if (button == nullptr || !button->isEnabled()) {
      throw not_possible(QStringLiteral("a button %1").arg(button_name), QStringLiteral("the box has none to press"));
    }
    aim(*target, button);
  });
  add_click(steps, target);
  return steps;
}

/// Types the path and presses the button, as a person does who knows where the file is.
void answer_chooser(const QString& path) {
  QFileDialog* chooser = file_chooser();
  if (chooser == nullptr) throw not_possible(QStringLiteral("a file chooser"), what_is_up());
  if (path.isEmpty()) {
    chooser->reject();
    return;
  }
  const auto* buttons = chooser->findChild<QDialogButtonBox*>();
  auto* field = chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  if (buttons == nullptr || field == nullptr) {
    throw not_possible(QStringLiteral("a file chooser that takes a path"), QStringLiteral("one of another kind"));
  }
  field->setText(path);
  const bool saves = chooser->acceptMode() == QFileDialog::AcceptSave;
  QAbstractButton* accept = buttons->button(saves ? QDialogButtonBox::Save : QDialogButtonBox::Open);
  if (accept == nullptr) accept = buttons->button(QDialogButtonBox::Ok);
  if (accept == nullptr || !accept->isEnabled()) {
    throw not_possible(QStringLiteral("the file chooser takes %1").arg(path),
                       QStringLiteral("its button cannot be pressed"));
  }
  accept->click();
}

void close_window(const QWidget* screen) {
  QWidget* window = screen->window();
  if (window->windowHandle() != nullptr) window->windowHandle()->close();
}

void close_screen() {
  require_no_box(QStringLiteral("the screen can be closed"));
  const QWidget* screen = active_screen();
  if (screen == nullptr) throw not_possible(QStringLiteral("a screen to close"), what_is_up());
  close_window(screen);
}

/// One step towards the program's end: answers what is up in the negative, else closes the active screen.
void close_one() {
  close_popups();
  if (QFileDialog* chooser = file_chooser()) {
    chooser->reject();
  } else if (QMessageBox* box = message_box()) {
    for (const auto standard : {QMessageBox::Cancel, QMessageBox::No, QMessageBox::Ok, QMessageBox::Yes}) {
      if (QAbstractButton* button = box->button(standard)) {
        button->click();
        return;
      }
    }
    box->reject();
  } else if (const QWidget* screen = active_screen()) {
    close_window(screen);
  } else {
    QCoreApplication::quit();
  }
}

Steps wanted_steps(const QJsonObject& request) {
  const QString what = request.value(QLatin1String("do")).toString();
  const QString control = request.value(QLatin1String("control")).toString();
  const QString text = request.value(QLatin1String("text")).toString();
  const int number = request.value(QLatin1String("n")).toInt();
  const QJsonArray strokes = request.value(QLatin1String("strokes")).toArray();
  Steps steps;
  if (what == QLatin1String("click")) return click_steps(control, false);
  if (what == QLatin1String("doubleclick")) return click_steps(control, true);
  if (what == QLatin1String("choose")) return choose_steps(control, request);
  if (what == QLatin1String("paste")) return paste_steps(control, text);
  if (what == QLatin1String("row")) return row_steps(control, number);
  if (what == QLatin1String("tab")) return tab_steps(control, number);
  if (what == QLatin1String("check")) return check_steps(control, number != 0);
  if (what == QLatin1String("press")) return press_steps(text);
  if (what == QLatin1String("focus") || what == QLatin1String("type")) {
    steps.push_back([control] { give_focus(usable_control(control)); });
    add_strokes(steps, strokes);
  } else if (what == QLatin1String("keys")) {
    add_strokes(steps, strokes);
  } else if (what == QLatin1String("answer")) {
    steps.push_back([text] { answer_chooser(text); });
  } else if (what == QLatin1String("close")) {
    steps.push_back(close_screen);
  } else if (what == QLatin1String("close-one")) {
    steps.push_back(close_one);
  }
  return steps;
}

}  // namespace

Steps steps_of(const QJsonObject& request) {
  Steps steps = wanted_steps(request);
  if (steps.empty()) return steps;
  const QString what = request.value(QLatin1String("do")).toString();
  if (what != QLatin1String("keys")) steps.push_front(close_popups);
  steps.push_front(activate_top_window);
  return steps;
}

}  // namespace ecr::robot

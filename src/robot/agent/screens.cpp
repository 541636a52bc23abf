#include "robot/agent/screens.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QApplication>
#include <QPointer>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QWindow>

#include "robot/agent/refusal.h"

namespace ecr::robot {
namespace {

/// Windows in the order in which they became active, the latest last.
QList<QPointer<QWindow>>& activations() {
  static QList<QPointer<QWindow>> list;
  return list;
}

bool has_screen_name(const QWidget* widget) {
  return widget->objectName().startsWith(QLatin1String("Frm"));
}

bool is_box(const QWidget* widget) {
  return qobject_cast<const QMessageBox*>(widget) != nullptr || qobject_cast<const QFileDialog*>(widget) != nullptr;
}

/// Walks the widgets inside `root`, not those of other windows that belong to it.
template <class Visit>
void walk(QWidget* root, const Visit& visit) {
  visit(root);
  for (QObject* child : root->children()) {
    auto* widget = qobject_cast<QWidget*>(child);
    if (widget && !widget->isWindow()) walk(widget, visit);
  }
}

/// The innermost screen on show inside a window.
QWidget* screen_in(QWidget* window) {
  QWidget* found = nullptr;
  walk(window, [&](QWidget* widget) {
    if (has_screen_name(widget) && widget->isVisible() && (found == nullptr || found->isAncestorOf(widget)))
      found = widget;
  });
  return found;
}

template <class Dialog>
Dialog* dialog_on_show() {
  if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) return dialog;
  const QList<QWidget*> windows = windows_on_show();
  for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
    if (auto* dialog = qobject_cast<Dialog*>(*window)) return dialog;
  }
  return nullptr;
}

/// How many letters have to be changed, dropped or put in to make one name of the other.
int distance(const QString& a, const QString& b) {
  const auto width = static_cast<std::size_t>(b.size());
  std::vector<int> row(width + 1);
  for (std::size_t i = 0; i <= width; ++i) row[i] = static_cast<int>(i);
  for (qsizetype i = 0; i < a.size(); ++i) {
    int diagonal = row[0];
    row[0] = static_cast<int>(i) + 1;
    for (std::size_t j = 1; j <= width; ++j) {
      const bool same = a[i].toLower() == b[static_cast<qsizetype>(j) - 1].toLower();
      const int replaced = diagonal + (same ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
    }
  }
  return row[width];
}

QString names_like(QWidget* screen, const QString& name) {
  std::vector<std::pair<int, QString>> names;
  walk(screen, [&](QWidget* widget) {
    const QString other = widget->objectName();
    if (!other.isEmpty() && !other.startsWith(QLatin1String("qt_"))) names.emplace_back(distance(name, other), other);
  });
  std::sort(names.begin(), names.end());
  QStringList nearest;
  for (const auto& entry : names) {
    if (nearest.size() == 4) break;
    nearest.append(entry.second);
  }
  return nearest.join(QLatin1String(", "));
}

/// The tab widget whose pages this stack holds, if it is one of a tab widget.
QTabWidget* tabs_around(const QWidget* stack) {
  return qobject_cast<QTabWidget*>(stack->parentWidget());
}

bool is_tab_page(const QWidget* widget) {
  const auto* stack = qobject_cast<const QStackedWidget*>(widget->parentWidget());
  if (stack == nullptr || stack->parentWidget() == nullptr) return false;
  return tabs_around(stack) != nullptr ||
         stack->parentWidget()->findChild<QTabBar*>(QString{}, Qt::FindDirectChildrenOnly) != nullptr;
}

/// Why a person cannot see the control now.
QString why_unseen(QWidget* control) {
  for (QWidget* widget = control; widget != nullptr && !widget->isWindow(); widget = widget->parentWidget()) {
    if (is_tab_page(widget) && widget->isHidden()) return QStringLiteral("it is on a tab that is not in front");
    if (widget->isHidden()) return QStringLiteral("it is hidden");
  }
  return QStringLiteral("it is not on show");
}

}  // namespace

void watch_windows() {
  QObject::connect(qApp, &QGuiApplication::focusWindowChanged, qApp, [](QWindow* window) {
    if (window == nullptr) return;
    activations().removeIf([window](const QPointer<QWindow>& other) { return other == nullptr || other == window; });
    activations().append(window);
  });
}

QList<QWidget*> windows_on_show() {
  QList<QWidget*> windows;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowType() != Qt::ToolTip) windows.append(window);
  }
  const auto turn = [](const QWidget* window) { return activations().indexOf(window->windowHandle()); };
  std::stable_sort(windows.begin(), windows.end(),
                   [&](const QWidget* a, const QWidget* b) { return turn(a) < turn(b); });
  return windows;
}

bool keeps_person_waiting() {
  const QList<QWidget*> windows = QApplication::topLevelWidgets();
  return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
    return window->findChild<QWidget*>(QStringLiteral("WaitPanel"), Qt::FindDirectChildrenOnly) != nullptr;
  });
}

QMessageBox* message_box() {
  return dialog_on_show<QMessageBox>();
}

QFileDialog* file_chooser() {
  return dialog_on_show<QFileDialog>();
}

bool shows_screen(QWidget* window) {
  return window != nullptr && screen_in(window) != nullptr;
}

QWidget* active_screen() {
  // A box belongs to the screen, or to the window with the screen, that it stands before.
  for (QWidget* widget = QApplication::activeModalWidget(); widget != nullptr; widget = widget->parentWidget()) {
    if (widget->isWindow()) {
      if (QWidget* screen = screen_in(widget)) return screen;
    }
    if (has_screen_name(widget) && widget->isVisible()) return widget;
  }
  if (QWidget* window = QApplication::activeWindow()) {
    if (QWidget* screen = screen_in(window)) return screen;
  }
  const QList<QWidget*> windows = windows_on_show();
  for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
    if (is_box(*window)) continue;
    if (QWidget* screen = screen_in(*window)) return screen;
  }
  return nullptr;
}

QWidget* control_named(const QString& name) {
  QWidget* screen = active_screen();
  if (screen == nullptr) throw not_possible(QStringLiteral("a screen with a control %1").arg(name), what_is_up());
  QWidget* found = nullptr;
  walk(screen, [&](QWidget* widget) {
    if (widget->objectName() != name) return;
    if (found == nullptr || (!found->isVisible() && widget->isVisible())) found = widget;
  });
  if (found == nullptr) {
    throw script_fault(QStringLiteral("a control %1 on %2").arg(name, screen->objectName()),
                       QStringLiteral("no such control; nearest are %1").arg(names_like(screen, name)));
  }
  return found;
}

QWidget* usable_control(const QString& name) {
  QWidget* control = control_named(name);
  const QString wish = QStringLiteral("%1 can be used").arg(name);
  require_no_box(wish);
  if (!control->isVisible()) throw not_possible(wish, why_unseen(control));
  if (!control->isEnabled()) throw not_possible(wish, QStringLiteral("it is disabled"));
  for (QWidget* outer = control->parentWidget(); outer != nullptr; outer = outer->parentWidget()) {
    if (auto* area = qobject_cast<QScrollArea*>(outer)) area->ensureWidgetVisible(control);
  }
  return control;
}

void require_no_box(const QString& wish) {
  if (message_box() != nullptr || file_chooser() != nullptr) throw not_possible(wish, what_is_up());
}

bool shown_to_person(const QWidget* control) {
  for (const QWidget* widget = control; !widget->isWindow(); widget = widget->parentWidget()) {
    if (is_tab_page(widget)) {
      const QTabWidget* tabs = tabs_around(widget->parentWidget());
      if (tabs != nullptr && !tabs->isTabVisible(tabs->indexOf(widget))) return false;
    } else if (widget->isHidden()) {
      return false;
    }
  }
  return control->window()->isVisible();
}

QString what_is_up() {
  if (const QMessageBox* box = message_box()) return QStringLiteral("a message box is up: \"%1\"").arg(box->text());
  if (const QFileDialog* chooser = file_chooser()) {
    return QStringLiteral("a file chooser is up: \"%1\"").arg(chooser->windowTitle());
  }
  if (const QWidget* screen = active_screen()) return QStringLiteral("screen %1").arg(screen->objectName());
  return QStringLiteral("no screen");
}

}  // namespace ecr::robot

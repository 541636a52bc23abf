#include "robot/agent/hand.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>
#include <QWindow>

#include "robot/agent/refusal.h"
#include "robot/agent/screens.h"

QT_BEGIN_NAMESPACE
// The toolkit's own entry points for made events; its test library declares them in the same way.
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow* window, const QPointF& local, const QPointF& global,
                                      Qt::MouseButtons state, Qt::MouseButton button, QEvent::Type type,
                                      Qt::KeyboardModifiers mods, int timestamp);
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow* window, QEvent::Type type, int key, Qt::KeyboardModifiers mods,
                                    const QString& text, bool autorep, ushort count);
QT_END_NAMESPACE

namespace ecr::robot {
namespace {

/// The events' own clock, in milliseconds, so that two clicks are one double click only where that is meant.
int mouse_time = 0;

void mouse_event(QWidget* widget, QPoint place, Qt::MouseButtons state, Qt::MouseButton button, QEvent::Type type) {
  QWidget* window = widget->window();
  if (window->windowHandle() == nullptr) return;
  qt_handleMouseEvent(window->windowHandle(), widget->mapTo(window, place), widget->mapToGlobal(place), state, button,
                      type, Qt::NoModifier, mouse_time);
}

void key_event(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  QWindow* window = QGuiApplication::focusWindow();
  if (window == nullptr) {
    const QList<QWidget*> windows = windows_on_show();
    if (windows.isEmpty()) return;
    window = windows.last()->windowHandle();
  }
  qt_handleKeyEvent(window, type, key, modifiers, text, false, 1);
}

struct Modifier {
  Qt::KeyboardModifier flag;
  Qt::Key key;
};
constexpr Modifier modifier_keys[] = {
    {Qt::ShiftModifier, Qt::Key_Shift}, {Qt::ControlModifier, Qt::Key_Control}, {Qt::AltModifier, Qt::Key_Alt}};

template <class Option>
Option option_of(const QWidget* control) {
  Option option;
  option.initFrom(control);
  return option;
}

}  // namespace

QPoint aim_at(QWidget* control) {
  const QStyle* style = control->style();
  if (qobject_cast<QCheckBox*>(control) != nullptr) {
    const auto option = option_of<QStyleOptionButton>(control);
    return style->subElementRect(QStyle::SE_CheckBoxIndicator, &option, control).center();
  }
  if (qobject_cast<QRadioButton*>(control) != nullptr) {
    const auto option = option_of<QStyleOptionButton>(control);
    return style->subElementRect(QStyle::SE_RadioButtonIndicator, &option, control).center();
  }
  if (const auto* frame = qobject_cast<QGroupBox*>(control); frame != nullptr && frame->isCheckable()) {
    auto option = option_of<QStyleOptionGroupBox>(control);
    option.text = frame->title();
    option.lineWidth = 1;
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel | QStyle::SC_GroupBoxCheckBox;
    return style->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxCheckBox, control).center();
  }
  if (const auto* list = qobject_cast<QComboBox*>(control)) {
    auto option = option_of<QStyleOptionComboBox>(control);
    option.editable = list->isEditable();
    option.frame = list->hasFrame();
    option.subControls = QStyle::SC_All;
    return style->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, control).center();
  }
  return control->rect().center();
}

void require_reachable(QWidget* control, QPoint place) {
  const QWidget* window = control->window();
  const QPoint in_window = control->mapTo(window, place);
  const QWidget* top = window->childAt(in_window);
  const bool inside = control == window || (top != nullptr && (top == control || control->isAncestorOf(top))) ||
                      control->testAttribute(Qt::WA_TransparentForMouseEvents);
  if (inside && window->rect().contains(in_window)) return;
  QString found = QStringLiteral("it lies outside what the window shows");
  if (top != nullptr && window->rect().contains(in_window)) {
    const QString name = top->objectName();
    const QString kind = QString::fromLatin1(top->metaObject()->className());
    found = QStringLiteral("%1 lies over it").arg(name.isEmpty() ? QStringLiteral("a ") + kind : name);
  }
  throw not_possible(QStringLiteral("%1 can be clicked").arg(control->objectName()), found);
}

void move_pointer(QWidget* widget, QPoint place) {
  mouse_time += 10;
  mouse_event(widget, place, Qt::NoButton, Qt::NoButton, QEvent::MouseMove);
}

void press_button(QWidget* widget, QPoint place, bool twice) {
  mouse_time += twice ? 10 : 2 * QApplication::doubleClickInterval();
  mouse_event(widget, place, Qt::LeftButton, Qt::LeftButton, QEvent::MouseButtonPress);
}

void release_button(QWidget* widget, QPoint place) {
  mouse_time += 10;
  mouse_event(widget, place, Qt::NoButton, Qt::LeftButton, QEvent::MouseButtonRelease);
}

void press_key(const Stroke& stroke) {
  Qt::KeyboardModifiers held;
  for (const Modifier& modifier : modifier_keys) {
    if (!stroke.modifiers.testFlag(modifier.flag)) continue;
    key_event(QEvent::KeyPress, modifier.key, held, {});
    held |= modifier.flag;
  }
  key_event(QEvent::KeyPress, stroke.key, stroke.modifiers, stroke.text);
}

void release_key(const Stroke& stroke) {
  key_event(QEvent::KeyRelease, stroke.key, stroke.modifiers, stroke.text);
  Qt::KeyboardModifiers held = stroke.modifiers;
  for (const Modifier& modifier : modifier_keys) {
    if (!stroke.modifiers.testFlag(modifier.flag)) continue;
    key_event(QEvent::KeyRelease, modifier.key, held, {});
    held &= ~Qt::KeyboardModifiers{modifier.flag};
  }
}

}  // namespace ecr::robot

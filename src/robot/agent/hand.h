#pragma once
// Mouse and keyboard: events that enter the toolkit where those of the system do, so that whatever a real click or key
// stroke brings about (focus, grabs, popups, double clicks, shortcuts, modal blocking) comes about here too.

#include <QPoint>
#include <QString>
#include <QWidget>

namespace ecr::robot {

/// The place to aim at: the indicator of a check box or option button, else the middle of the control.
[[nodiscard]] QPoint aim_at(QWidget* control);

/// Throws a Refusal if something else lies over the control at that place, or it is out of the window.
void require_reachable(QWidget* control, QPoint place);

void move_pointer(QWidget* widget, QPoint place);

/// A press counts as the second of a double click only where `twice` says so, however soon it comes.
void press_button(QWidget* widget, QPoint place, bool twice = false);
void release_button(QWidget* widget, QPoint place);

struct Stroke {
  int key = 0;
  Qt::KeyboardModifiers modifiers;
  QString text;
};

/// Pressing the modifiers and the key, and letting them go, on whatever window takes keys.
void press_key(const Stroke& stroke);
void release_key(const Stroke& stroke);

}  // namespace ecr::robot

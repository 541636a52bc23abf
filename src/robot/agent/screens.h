#pragma once
// What is on the screen: boxes, choosers, the active screen, and the controls on it by their names.

#include <QFileDialog>
#include <QMessageBox>
#include <QString>
#include <QWidget>

namespace ecr::robot {

/// Begins to note the order in which windows become active. Once, early.
void watch_windows();

/// The message box that is up, nullptr if none is.
[[nodiscard]] QMessageBox* message_box();

/// The file chooser that is up, nullptr if none is.
[[nodiscard]] QFileDialog* file_chooser();

/// The screen that a person works on, also when a box stands before it; nullptr if there is none.
/// A screen is a widget whose name begins with "Frm", a window or a page inside one.
[[nodiscard]] QWidget* active_screen();

/// Whether this modal window is, or shows, a screen.
[[nodiscard]] bool shows_screen(QWidget* window);

/// The windows on show, in the order in which they became active, the latest last. Tool tips are none.
[[nodiscard]] QList<QWidget*> windows_on_show();

/// The control of that name on the active screen, shown or hidden. Throws a Refusal if there is none.
[[nodiscard]] QWidget* control_named(const QString& name);

/// The control of that name, which a person can act on here and now. Throws a Refusal that says why not.
[[nodiscard]] QWidget* usable_control(const QString& name);

/// Whether the program keeps a person waiting and takes no input. A sign of that is a widget named "WaitPanel" directly
/// on a window, shown or not: a wait takes no input from its first moment on, and shows itself only when it has lasted.
[[nodiscard]] bool keeps_person_waiting();

/// Throws a Refusal if a message box or a file chooser keeps a person from the active screen.
void require_no_box(const QString& wish);

/// Whether a person can see the control, or could by bringing tabs to the front.
[[nodiscard]] bool shown_to_person(const QWidget* control);

/// One line about a box or screen, for messages.
[[nodiscard]] QString what_is_up();

}  // namespace ecr::robot

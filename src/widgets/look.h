#pragma once
// The look of the program: one palette, light or dark, and a small style sheet.

#include <QColor>

class QApplication;
class QLabel;
class QPainter;
class QRect;
class QStyleOption;

namespace ecr {

enum class Scheme { light, dark };

/// The scheme of the desktop, or the one that the environment variable VERMANTO_LOOK names ("light", "dark").
[[nodiscard]] Scheme wanted_scheme();

void apply_look(QApplication& application, Scheme scheme);

/// Text colours that carry a meaning, right for the scheme in use.
[[nodiscard]] QColor text_green();
[[nodiscard]] QColor text_red();
[[nodiscard]] QColor text_plain();

/// The colour of thin lines around and between things.
[[nodiscard]] QColor line_colour();

// The labels have no rule in the style sheet: matching it costs each of them more than all else it does.
void make_heading(QLabel& label);
void make_hint(QLabel& label);

/// The edge around what has the focus and no edge of its own.
void draw_focus(QPainter& painter, const QRect& place);

/// The empty surface of a large button, as the style sheet draws smaller ones.
void draw_card(QPainter& painter, const QStyleOption& button);

}  // namespace ecr

#pragma once
// The look of the program: one palette, light or dark, and a small style sheet.

#include <QColor>

class QApplication;

namespace ecr {

enum class Scheme { light, dark };

/// The scheme of the desktop, or the one that the environment variable VERMANTO_LOOK names ("light", "dark").
[[nodiscard]] Scheme wanted_scheme();

void apply_look(QApplication& application, Scheme scheme);

/// Text colours that carry a meaning, right for the scheme in use.
[[nodiscard]] QColor text_green();
[[nodiscard]] QColor text_red();
[[nodiscard]] QColor text_plain();

}  // namespace ecr

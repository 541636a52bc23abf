#pragma once
// Small drawings for buttons, drawn in code, so that they take the colour of the caption beside them.

#include <QColor>
#include <QIcon>

namespace ecr {

enum class Glyph {
  to_file,      ///< an arrow down into a tray: kept on this computer
  to_register,  ///< an arrow out of a tray: sent away
};

/// The drawing at 16 x 16, also for displays with twice the pixels; paler where the button is disabled.
[[nodiscard]] QIcon glyph(Glyph which, const QColor& colour);

}  // namespace ecr

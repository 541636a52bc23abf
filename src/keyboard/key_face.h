#pragma once
// How a key looks: a cap with a raised face, and its text in the largest letters that have room on it.

#include <QFont>
#include <QPalette>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>

class QPainter;

namespace ecr {

/// What a key's face shows besides its text.
struct KeyFace {
  bool fixed = false;    ///< a key that cannot be reassigned lies flat
  bool chosen = false;   ///< it holds the function that is chosen
  bool hovered = false;  ///< the pointer is over it, or something that can be dropped
  bool pressed = false;
  bool focused = false;
};

/// A text broken into lines, in the letters in which it fits.
struct FittedText {
  QFont font;
  double narrowing = 1;  ///< of the letters' width
  QStringList lines;
};

/// The place for the text on a cap of this size.
[[nodiscard]] QRect text_place(const QRect& cap);

/// Breaks the text at blanks and behind "/" and "#" so that it has room in `place`; in the smallest letters if it has
/// no room in any.
[[nodiscard]] FittedText fit_text(const QString& text, QSize place);

/// The smallest cap on which the text has room.
[[nodiscard]] QSize smallest_cap(const QString& text);

void draw_key(QPainter& painter, const QRect& cap, const QPalette& palette, const KeyFace& face);
void draw_key_text(QPainter& painter, const QRect& cap, const FittedText& text, const QColor& colour, bool pressed);

/// The colour of what is printed on a fixed key.
[[nodiscard]] QColor fixed_print(const QPalette& palette);

/// A colour between two, `share` (0 to 1) of the way from the first to the second.
[[nodiscard]] QColor between(const QColor& from, const QColor& to, double share);

}  // namespace ecr

#pragma once
// What a key stroke or composed text would put into a field, or make a list look for. Every control that keeps
// characters out decides by this, whatever modifiers are held: AltGr is Ctrl+Alt on some systems, and Alt or Meta may
// give a character as well.

#include <memory>

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QString>

namespace ecr {

/// The characters that the toolkit's field would insert for this key; empty for a shortcut and for an editing key.
[[nodiscard]] QString typed_text(const QKeyEvent& event);

/// The characters that the toolkit's list would look for, even while Ctrl is held. Control characters are none: no
/// entry begins with one.
[[nodiscard]] QString searched_text(const QKeyEvent& event);

/// Whether there is nothing but "0" to "9" in it; true for an empty text.
[[nodiscard]] bool all_digits(const QString& text);

/// Whether the event changes the text itself, not only what is shown while it is being composed.
[[nodiscard]] bool changes_text(const QInputMethodEvent& event);

/// The same event without a composition and without a final text that are not all digits. What such a final text was to
/// replace stays.
[[nodiscard]] std::unique_ptr<QInputMethodEvent> digits_alone(const QInputMethodEvent& event);

}  // namespace ecr

#include "widgets/typing.h"

#include <algorithm>

namespace ecr {

QString typed_text(const QKeyEvent& event) {
  const QString text = event.text();
  if (text.isEmpty()) return {};
  const QChar first = text.front();
  // Marks that show nothing may be typed with Ctrl+Shift.
  if (first.category() == QChar::Other_Format) return text;
  const Qt::KeyboardModifiers held = event.modifiers();
  if (held == Qt::ControlModifier || held == (Qt::ControlModifier | Qt::ShiftModifier)) return {};
  const bool is_pair = first.isHighSurrogate() && text.size() > 1 && text[1].isLowSurrogate();
  return first.isPrint() || is_pair || first.category() == QChar::Other_PrivateUse ? text : QString{};
}

QString searched_text(const QKeyEvent& event) {
  const QString text = event.text();
  return !text.isEmpty() && text.front().category() != QChar::Other_Control ? text : QString{};
}

bool all_digits(const QString& text) {
  return std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

bool changes_text(const QInputMethodEvent& event) {
  return !event.commitString().isEmpty() || event.replacementLength() > 0;
}

std::unique_ptr<QInputMethodEvent> digits_alone(const QInputMethodEvent& event) {
  const bool final_fits = all_digits(event.commitString());
  const bool composition_fits = all_digits(event.preeditString());
  // What tells of the cursor and the look of a text does not hold without it.
  const auto attributes = final_fits && composition_fits ? event.attributes() : QList<QInputMethodEvent::Attribute>{};
  auto left = std::make_unique<QInputMethodEvent>(composition_fits ? event.preeditString() : QString{}, attributes);
  if (final_fits) left->setCommitString(event.commitString(), event.replacementStart(), event.replacementLength());
  return left;
}

}  // namespace ecr

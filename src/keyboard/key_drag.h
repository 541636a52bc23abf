#pragma once
// A function on its way from the list or from one key to another, under the pointer.

#include <cstdint>
#include <functional>
#include <optional>

class QDrag;
class QDropEvent;
class QWidget;

namespace ecr {

/// What carries a drag out, until it is dropped. Empty: the system, which takes a display that can.
extern std::function<void(QDrag&)> carry_drag;

/// Lets the person drag the function of this code away from `from`, under the picture of a key with its name. Returns
/// when it is dropped.
void drag_function(QWidget& from, std::uint8_t code);

/// The code of the function that is dragged; nothing where it is something else.
[[nodiscard]] std::optional<std::uint8_t> dragged_function(const QDropEvent& event);

}  // namespace ecr

#pragma once
// A function on its way from the list or from one key to another, under the pointer.

#include <cstdint>
#include <optional>

class QDropEvent;
class QWidget;

namespace ecr {

/// Lets the person drag the function of this code away from `from`, under the picture of a key with its name. Returns
/// when it is dropped.
void drag_function(QWidget& from, std::uint8_t code);

/// The code that is dragged; nothing where it is something else, or comes from another program.
[[nodiscard]] std::optional<std::uint8_t> dragged_function(const QDropEvent& event);

}  // namespace ecr

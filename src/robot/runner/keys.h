#pragma once
// Key strokes by their names in a script.

#include <optional>

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace ecr::robot {

/// "Enter", "Shift+Tab", "Ctrl+A" as a stroke for the agent; nothing if there is no such key.
[[nodiscard]] std::optional<QJsonObject> stroke_named(const QString& name);

/// The strokes that type a text. A line break, however written, is one press of Enter.
[[nodiscard]] QJsonArray strokes_of(const QString& text);

}  // namespace ecr::robot

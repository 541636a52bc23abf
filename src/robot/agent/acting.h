#pragma once
// The acting requests, taken apart into the single strokes and clicks that a person would make.

#include <deque>
#include <functional>

#include <QJsonObject>

namespace ecr::robot {

/// A step runs on the screen thread when the program is at rest. It may throw a Refusal before it has done anything.
using Step = std::function<void()>;
using Steps = std::deque<Step>;

/// The steps of an acting request; none if there is no such request.
[[nodiscard]] Steps steps_of(const QJsonObject& request);

}  // namespace ecr::robot

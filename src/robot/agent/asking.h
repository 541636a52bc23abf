#pragma once

#include <optional>

#include <QJsonObject>
#include <QJsonValue>

namespace ecr::robot {

/// The answer to a request that looks and does not act; nothing if there is no such request. Throws a Refusal.
[[nodiscard]] std::optional<QJsonValue> value_of(const QJsonObject& request);

}  // namespace ecr::robot

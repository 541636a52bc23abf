#pragma once
// The records of a table, by the numbers that the screens count them with.

#include <cstddef>

#include "core/fault.h"

namespace ecr {

/// The record with this number, counted from 1; FaultError(out_of_range) where there is none.
template <typename Records>
[[nodiscard]] auto& record_at(Records& records, int number) {
  if (number < 1 || static_cast<std::size_t>(number) > records.size()) throw FaultError{FaultCode::out_of_range};
  return records[static_cast<std::size_t>(number - 1)];
}

}  // namespace ecr

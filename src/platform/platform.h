#pragma once
// The system layer of the host this program was built for.

#include "core/system.h"

namespace ecr {

/// One object for the life of the process.
[[nodiscard]] System& host_system();

}  // namespace ecr

#pragma once
// Loading a library and finding its calls.

#include <memory>
#include <string>

#include "core/system.h"

namespace ecr {

/// See System::load_library. Libraries that this one needs are looked for beside it first. No box of the system comes
/// up, whatever is missing. A call is found under its plain name, and else under the names that 32-bit compilers make
/// of it for callees that clear the stack: "_name@N" and "name@N", N being the bytes of the arguments.
[[nodiscard]] std::unique_ptr<Library> windows_load_library(const std::string& path, std::string& why);

}  // namespace ecr

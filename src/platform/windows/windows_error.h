#pragma once
// The system's error numbers, as the program's faults and as texts.

#include <string>
#include <string_view>

#include "core/fault.h"
#include "platform/windows/windows_api.h"

namespace ecr {

/// The fault that an error number of the system's calls stands for; ERROR_SUCCESS is no fault. A file that another
/// process holds for itself is permission_denied.
[[nodiscard]] Fault fault_of_windows(DWORD error) noexcept;

/// The system's own words for an error number, in the language of the user, as one line without its line end.
/// `subject` stands where the words name what they speak of. Never empty: a number without words is told as a number.
[[nodiscard]] std::string text_of_windows(DWORD error, std::string_view subject);

}  // namespace ecr

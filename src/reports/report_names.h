#pragma once
// What the programming calls the things that reports only number.

#include <map>
#include <string>
#include <string_view>

namespace ecr {

/// In the code page, without the blanks at its end; empty for a number outside 1 to 99.
[[nodiscard]] std::string department_name(int number);

/// Item names by code, as the reports write it. Items without a code are left out.
[[nodiscard]] std::map<std::string, std::string, std::less<>> item_names();

}  // namespace ecr

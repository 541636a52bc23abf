#pragma once
// The system's version.

#include <string>
#include <string_view>

namespace ecr {

struct WindowsVersion {
  int major = 0;
  int minor = 0;
  int build = 0;
};

/// The version of the system itself, not the one it shows to programs that it takes for old. All zero if it is silent.
[[nodiscard]] WindowsVersion windows_version();

/// The version as a number with hundredths, without zeros at its end, as the system writes numbers: with the decimal
/// sign "," version 6.1 is "6,01", 6.0 is "6", 6.10 is "6,1".
[[nodiscard]] std::string windows_version_text(const WindowsVersion& version, std::string_view decimal_sign);

/// The decimal sign that the user has chosen; a point if the system does not tell.
[[nodiscard]] std::string windows_decimal_sign();

}  // namespace ecr

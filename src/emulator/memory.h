#pragma once
// What the emulated register holds: three files in its folder, named as they are in Dati\. They are what was sent last,
// byte for byte; nothing here changes them but a send that fits.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/fault.h"

namespace ecr {

class RegisterMemory {
 public:
  /// `folder` ends with a backslash.
  explicit RegisterMemory(std::string_view folder) : folder_{folder} {}

  // `file` is 0 for the programming image, 1 for the item table, 2 for the logo.

  [[nodiscard]] static std::string_view file_name(std::uint8_t file);

  /// The longest file that the register takes.
  [[nodiscard]] static std::size_t longest(std::uint8_t file);

  /// Whether a file of this kind can look like this: the image has one length, the item table the length that its count
  /// tells, the logo any from 1 up to the longest.
  [[nodiscard]] static bool fits(std::uint8_t file, std::string_view bytes);

  /// Whatever stands there, whether it fits or not.
  [[nodiscard]] Fault fetch(std::uint8_t file, std::string& bytes) const;

  /// Holds `bytes` from now on; on a fault, what it held before.
  [[nodiscard]] Fault hold(std::uint8_t file, std::string_view bytes) const;

 private:
  std::string folder_;
};

}  // namespace ecr

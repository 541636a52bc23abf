#pragma once
// Writing files in one step, and appending to them.

#include <string>
#include <string_view>

#include "core/fault.h"
#include "core/system.h"

namespace ecr {

/// See System::write_beside. The texts in `fresh` are for windows_rename_over alone. A file marked read-only is left
/// alone with permission_denied, and so is one that another process holds for itself; a folder of this name is
/// path_access, a missing folder path_not_found. A link is written through. The new file keeps the old one's
/// attributes; its rights are those that the folder hands down.
[[nodiscard]] Fault windows_write_beside(const std::string& path, std::string_view bytes, FreshFile& fresh);

/// See System::rename_over. It returns when the rename is on the disk.
[[nodiscard]] Fault windows_rename_over(const FreshFile& fresh);

/// See System::append_file. While it writes, others may read the file, but not write it.
[[nodiscard]] Fault windows_append_file(const std::string& path, std::string_view bytes);

}  // namespace ecr

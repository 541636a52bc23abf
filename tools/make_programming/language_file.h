#pragma once
// The file of a register language, read by lang/register_language.h.

#include <string>
#include <string_view>

namespace ecr {

/// The lines of the file that fills the text sections of an image as they stand in `image`, which is a whole one.
[[nodiscard]] std::string language_lines(std::string_view image);

}  // namespace ecr

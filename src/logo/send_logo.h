#pragma once
// A logo on its way to the register: the bitmap becomes GRAPHIC.BIN, and that file is sent.

#include <cstddef>
#include <string>
#include <string_view>

namespace ecr {

/// The length of every bitmap that can be a logo: a head of 62 bytes and 162 lines of 384 dots, one bit each. The
/// length is all that the program looks at; the conversion looks at the rest.
inline constexpr std::size_t logo_bitmap_size = 7838;
inline constexpr int logo_dots = 384;
inline constexpr int logo_lines = 162;

/// The bytes of a bitmap file of that length; empty for a file of any other length, or one that cannot be read.
[[nodiscard]] std::string logo_bitmap(std::string_view path);

/// A path cut behind its last backslash.
struct SplitPath {
  std::string folder;  ///< with the backslash; empty where the path has none
  std::string name;
};
[[nodiscard]] SplitPath split_path(std::string_view path);

/// Converts the bitmap, copies GRAPHIC.BIN from its folder to Dati\ and sends it. Folders are in the form of the folder
/// variables, with a backslash at the end; the link library may rewrite `tool_folder`. Answers whether the logo reached
/// the register; a failure is logged. Where the copy fails, what stands in Dati\ is sent all the same, which is not
/// this logo: the answer is false.
bool Send_LogoToEcr(std::string& tool_folder, const std::string& bitmap_folder, const std::string& bitmap_name);

}  // namespace ecr

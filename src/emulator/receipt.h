#pragma once
// What the emulated register's receipts look like: one of them, with the logo on top, as a picture file.

#include <string>
#include <string_view>
#include <vector>

#include "core/fault.h"
#include "emulator/bitmap.h"

namespace ecr {

/// Name of the picture file in the register's folder.
inline constexpr std::string_view receipt_file = "receipt.bmp";

/// The lines of the last receipt in a journal, in the code page and without blanks at their ends. A journal's record is
/// a line of 24 characters of the register, a mark, which is 2 for the first line of a receipt, and a zero. Takes any
/// bytes; a piece of a record at the end counts for nothing.
[[nodiscard]] std::vector<std::string> last_receipt(std::string_view journal);

/// A receipt as a bitmap file: the logo, dot for dot, in the middle of a strip of paper that is 384 dots wide, or as
/// wide as a wider logo, and below it the lines, of which 24 characters are drawn. Grey bars stand in their place where
/// there are none. At most 2048 lines of a logo are drawn, and 60 of text.
[[nodiscard]] std::string receipt_picture(const DotPicture& logo, const std::vector<std::string>& lines);

/// Draws a receipt anew with what the register holds: its logo, the heading lines of its programming, and the last
/// receipt of `journal`. Where there is no logo, or one of a form that is not known here, there is no picture. `folder`
/// is the register's own and ends with a backslash.
[[nodiscard]] Fault draw_receipt(const std::string& folder, std::string_view journal = {});

}  // namespace ecr

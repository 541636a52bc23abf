#pragma once
// What the emulated register's receipts look like: the head of one, with the logo on top, as a picture file.

#include <string>
#include <string_view>

#include "core/fault.h"
#include "emulator/bitmap.h"

namespace ecr {

/// Name of the picture file in the register's folder.
inline constexpr std::string_view receipt_file = "receipt.bmp";

/// The head of a receipt as a bitmap file of 256 colours: the logo, dot for dot, in the middle of a strip of paper that
/// is 384 dots wide, or as wide as a wider logo; grey bars below it stand for the printed lines. At most 2048 lines of
/// a logo are drawn.
[[nodiscard]] std::string receipt_picture(const DotPicture& logo);

/// Draws the receipt anew for what the register holds as its logo; where that is none, or of a form that is not known
/// here, there is no picture. `folder` is the register's own and ends with a backslash.
[[nodiscard]] Fault draw_receipt(const std::string& folder);

}  // namespace ecr

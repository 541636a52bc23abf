#pragma once
// The letters of the receipts' picture, as strokes of a pen.

#include <string_view>

namespace ecr {

/// The strokes of a character of the code page, empty for a blank. Strokes are divided by blanks; each is a row of
/// points of two digits, the first from the left (0 to 4), the second from the top: capitals reach from 0 to 6, small
/// letters from 2 to 6, and to 8 below the line. A stroke of one point is a dot. Letters with marks are drawn without.
[[nodiscard]] std::string_view strokes_of(char character);

}  // namespace ecr

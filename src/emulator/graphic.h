#pragma once
// GRAPHIC.BIN, the form in which the emulated register holds its logo: docs/formats/graphic.md.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "emulator/bitmap.h"

namespace ecr {

/// Whether a picture of so many dots and lines has room in the register.
[[nodiscard]] bool fits_graphic(const DotPicture& picture);

/// The file of a picture that fits.
[[nodiscard]] std::string graphic_of(const DotPicture& picture);

/// The picture in such a file; nothing where the bytes have another form.
[[nodiscard]] std::optional<DotPicture> picture_in_graphic(std::string_view bytes);

/// The code with which a conversion that went well ends: how full the picture is, in percent, in its lowest byte that
/// of the whole picture, in the next one that of its fullest line.
[[nodiscard]] std::int32_t code_of_fullness(const DotPicture& picture);

}  // namespace ecr

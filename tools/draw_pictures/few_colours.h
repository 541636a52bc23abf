#pragma once
// Brings a drawing down to the colours that a palette holds.

#include <QImage>

namespace ecr {

/// The 256 most frequent colours are kept exactly, so that a plane of one colour keeps it; any other becomes the
/// nearest of them. One byte for each pixel.
[[nodiscard]] QImage few_colours(const QImage& image);

}  // namespace ecr

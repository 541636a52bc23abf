#pragma once
// Writes an opaque image as a GIF file, which Qt reads but does not write.

#include <QImage>
#include <QString>

namespace ecr {

/// The 256 most frequent colours are kept exactly, so that a plane of one colour keeps it; any other becomes the
/// nearest of them. Answers whether the whole file was written.
[[nodiscard]] bool write_gif(const QImage& image, const QString& path);

}  // namespace ecr

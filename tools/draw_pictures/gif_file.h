#pragma once
// Writes an opaque image as a GIF file, which Qt reads but does not write.

#include <QImage>
#include <QString>

namespace ecr {

/// In few colours. Answers whether the whole file was written.
[[nodiscard]] bool write_gif(const QImage& image, const QString& path);

}  // namespace ecr

#pragma once
// The picture files of PathSetup, in the size that this screen needs.

#include <initializer_list>

#include <QPixmap>
#include <QSize>
#include <QString>

namespace ecr {

/// A picture file in `size` units of a screen with `ratio` pixels to the unit: the "@2x" variant where the screen is
/// finer and there is one. Empty where the file is missing or none.
[[nodiscard]] QPixmap setup_pixmap(const QString& file, QSize size, qreal ratio);

/// Begins to read picture files beside the screen thread, for the first setup_pixmap of each: a start has enough to do
/// with its fonts. What is read is held until then.
void read_pictures_ahead(std::initializer_list<const char*> files, qreal ratio);

/// The host's path of a file in PathSetup.
[[nodiscard]] QString setup_file(const QString& name);

}  // namespace ecr

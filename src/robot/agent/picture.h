#pragma once

#include <QImage>
#include <QString>

namespace ecr::robot {

/// The active screen's window as the user sees it, with the boxes that stand over it. Null if nothing is on show.
[[nodiscard]] QImage picture();

/// Saves the picture as PNG, making folders as needed. Throws a Refusal where that is not possible.
void save_picture(const QString& path);

}  // namespace ecr::robot

#pragma once
// Choosing a file: the desktop's own chooser where it has one, else the toolkit's.

#include <QString>

class QWidget;

namespace ecr {

struct FileWish {
  QString name;  ///< the chooser's control name
  QString title;
  QString filter;  ///< "File (*.txt)"; several with ";;" between them
};

/// Lets the person choose a file that exists, from the application folder on, and answers its path in the toolkit's
/// form; empty if none was chosen.
[[nodiscard]] QString choose_file_to_open(QWidget& over, const FileWish& wish);

}  // namespace ecr

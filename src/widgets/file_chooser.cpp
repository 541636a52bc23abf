#include "widgets/file_chooser.h"

#include <QFileDialog>

#include "core/files.h"
#include "core/global.h"
#include "widgets/screen_text.h"

namespace ecr {

QString choose_file_to_open(QWidget& over, const FileWish& wish) {
  QFileDialog chooser{&over, wish.title, path_for_toolkit(host_path(Global::PathApp)), wish.filter};
  chooser.setObjectName(wish.name);
  chooser.setFileMode(QFileDialog::ExistingFile);
  if (chooser.exec() != QDialog::Accepted || chooser.selectedFiles().isEmpty()) return {};
  return chooser.selectedFiles().constFirst();
}

}  // namespace ecr

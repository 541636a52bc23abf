#include "widgets/choose_file.h"

#include <QFileDialog>

#include "core/files.h"
#include "widgets/screen_text.h"

namespace ecr {
namespace {

std::optional<std::string> choose(QWidget* over, const Chooser& chooser, const std::string& offered,
                                  QFileDialog::AcceptMode mode) {
  QFileDialog dialog{over, chooser.title, chooser.folder, chooser.filter};
  dialog.setObjectName(chooser.name);
  dialog.setAcceptMode(mode);
  dialog.setFileMode(chooser.must_be_there ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  if (!offered.empty()) dialog.selectFile(path_for_toolkit(host_path(offered)));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return backslash_path(path_of_toolkit(dialog.selectedFiles().constFirst()));
}

}  // namespace

std::optional<std::string> choose_file_to_open(QWidget* over, const Chooser& chooser, const std::string& offered) {
  return choose(over, chooser, offered, QFileDialog::AcceptOpen);
}

std::optional<std::string> choose_file_to_save(QWidget* over, const Chooser& chooser, const std::string& offered) {
  return choose(over, chooser, offered, QFileDialog::AcceptSave);
}

}  // namespace ecr

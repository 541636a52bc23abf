#pragma once
// The file chooser: it names a file to be opened or to be saved.

#include <optional>
#include <string>

#include <QString>

class QWidget;

namespace ecr {

/// How a chooser looks. The filter is in the toolkit's form, "File (*.txt)".
struct Chooser {
  QString title;
  QString filter;
  QString name = {};           ///< the control's, where the chooser has one
  QString folder = {};         ///< where it opens, in the toolkit's form; empty: where the last one was left
  bool must_be_there = false;  ///< a file to be opened that is not there is refused
};

/// Lets the person name a file that is to be read; `offered` is named at first, if not empty.
/// Paths have backslashes. Nothing if the chooser was cancelled.
[[nodiscard]] std::optional<std::string> choose_file_to_open(QWidget* over, const Chooser& chooser,
                                                             const std::string& offered = {});

/// The same for a file that is to be written. Nobody asks whether one of that name may be lost.
[[nodiscard]] std::optional<std::string> choose_file_to_save(QWidget* over, const Chooser& chooser,
                                                             const std::string& offered);

}  // namespace ecr

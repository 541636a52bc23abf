#pragma once
// The practice program's own folder: what it reads and leaves there.

#include <QString>

namespace ecr::practice {

[[nodiscard]] QString app_folder();

/// One line of the run log, with date and time in front.
void log(const QString& text);

/// Adds a line to a file of the emulated register.
void note_call(const QString& line);

}  // namespace ecr::practice

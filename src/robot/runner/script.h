#pragma once
// A script: commands, one a line, and how a line is written.

#include <vector>

#include <QString>
#include <QStringList>

#include "robot/runner/failure.h"

namespace ecr::robot {

struct Word {
  QString text;
  bool in_quotes = false;
};

struct Command;

/// Where a line stands.
struct Place {
  QString file;    ///< as the user named it, or relative to where the user's file was looked for
  int number = 0;  ///< the first is 1; 0 for a file as a whole
  QString source;  ///< as it stands in the file, without blanks around it
};

/// The place of a line, then that of the `include` that brought it in, and so on up to the user's script.
using Places = std::vector<Place>;

struct ScriptLine {
  Places places;
  std::vector<Word> words;  ///< without those of the command
  const Command* command = nullptr;
};

/// A line that cannot be understood.
struct LineFault {
  Places places;
  ScriptFault fault;
};

/// Reads a whole script, UTF-8, and all that it includes. Throws a LineFault at the first line that is not a command
/// written as it must be, or that includes what cannot be included.
[[nodiscard]] std::vector<ScriptLine> read_script(const QString& file);

/// The words of one line. Throws a ScriptFault.
[[nodiscard]] std::vector<Word> words_of(const QString& line);

}  // namespace ecr::robot

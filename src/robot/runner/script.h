#pragma once
// A script: commands, one a line, and how a line is written.

#include <vector>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "robot/runner/failure.h"

namespace ecr::robot {

struct Word {
  QString text;
  bool in_quotes = false;
};

struct Command;

struct ScriptLine {
  int number = 0;           ///< the first is 1
  QString source;           ///< as it stands in the script, without blanks around it
  std::vector<Word> words;  ///< without those of the command
  const Command* command = nullptr;
};

/// A line that cannot be understood.
struct LineFault {
  int number = 0;
  QString source;
  ScriptFault fault;
};

/// Reads a whole script, UTF-8. Throws a LineFault at the first line that is not a command written as it must be.
[[nodiscard]] std::vector<ScriptLine> read_script(const QByteArray& bytes);

/// The words of one line. Throws a ScriptFault.
[[nodiscard]] std::vector<Word> words_of(const QString& line);

}  // namespace ecr::robot

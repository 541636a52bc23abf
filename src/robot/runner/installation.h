#pragma once
// The installation that a script works on: its own copy of the untouched one, or a folder that the user named.

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include <QString>
#include <QTemporaryDir>

#include "robot/runner/host.h"

namespace ecr::robot {

class Installation {
 public:
  /// `used` is the folder to work in, made there first if it is missing or empty; with an empty text a copy in a
  /// temporary folder is made. Throws a ScriptFault, also if the folder is no installation: whatever runs from it is
  /// ended with the script.
  Installation(const QString& used, const QString& script_folder);
  Installation(const Installation&) = delete;
  Installation& operator=(const Installation&) = delete;
  ~Installation();

  [[nodiscard]] const QString& folder() const { return folder_; }

  /// A private folder beside it for what the toolkit keeps about the user and the session.
  [[nodiscard]] QString private_folder(const char* name) const;

  /// The executable of that name, full path.
  [[nodiscard]] QString executable(const char* name) const;

  /// Where a PATH of a script leads.
  [[nodiscard]] QString path(const QString& words) const;

  /// The same for a path that is going to be changed. Throws a ScriptFault if it leads out of the installation, or,
  /// with "script/" in front, out of the folder with the script.
  [[nodiscard]] QString path_to_change(const QString& words) const;

  /// A folder as the scripts write it: relative to this one, with "/", without the last one.
  [[nodiscard]] QString relative(const QString& folder) const;

  /// Whether a process runs whose executable lies here and whose file name ends in `name`, whatever its case.
  [[nodiscard]] bool runs_process(const QString& name) const;

  /// Ends the processes from here that did not run before.
  void end_processes() const;

  /// Leaves the temporary copy where it is, as a whole installation that shares nothing with the untouched one. Answers
  /// where that is, nothing if it is not temporary.
  std::optional<QString> keep();

 private:
  void require_program() const;
  [[nodiscard]] std::vector<HostProcess> processes() const;

  QTemporaryDir temporary_;
  QString folder_;
  QString real_folder_;  ///< the same as the system knows it, without links
  QString script_folder_;
  std::set<std::int64_t> running_before_;
};

}  // namespace ecr::robot

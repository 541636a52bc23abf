#pragma once
// Runs scripts, one after another, and tells how it went.

#include <QFile>
#include <QString>

#include "robot/runner/script.h"
#include "robot/runner/session.h"

namespace ecr::robot {

struct Settings {
  QString used_folder;  ///< --app; empty: a fresh installation for each script
  bool keep = false;    ///< --keep
  QString log_file;     ///< --log; empty: one beside the robot for each script
  Patience patience;
};

class Runner {
 public:
  explicit Runner(Settings settings) : settings_{std::move(settings)} {}

  /// Runs a script and prints what became of it.
  void run(const QString& script);

  /// Prints the sum over all scripts. Answers the exit status: the worst of all.
  int finish();

 private:
  enum class Status { passed = 0, unmet = 1, fault = 2 };
  struct Trouble {
    Status status = Status::passed;
    Places places;
    QString expected;
    QString found;
  };

  void open_log();
  void log(const QString& text);
  void run_lines(Session& session, const std::vector<ScriptLine>& lines);
  void run_line(Session& session, const ScriptLine& line);
  void end(Session& session, const ScriptLine& last);
  void log_errors(Session& session);
  [[nodiscard]] static Trouble trouble_of(const ScriptLine& line, const Unmet& unmet);
  void tell(const Trouble& trouble, const QString& picture);
  [[nodiscard]] QString picture_of_failure(Session& session, const Trouble& trouble) const;

  Settings settings_;
  QString script_;
  QFile log_;
  Trouble trouble_;
  QByteArray last_errors_;
  int passed_ = 0;
  int failed_ = 0;
  Status worst_ = Status::passed;
};

}  // namespace ecr::robot

#pragma once
// What the program leaves behind while it runs: its run log, and the calls of the link library.

#include <QByteArray>
#include <QStringList>

namespace ecr::robot {

/// The run log, from a mark on.
class RunLog {
 public:
  explicit RunLog(QString file) : file_{std::move(file)} {}

  /// What follows counts from here.
  void mark();

  /// The texts behind date and time since the mark. A line without date and time belongs to the one before it.
  [[nodiscard]] QStringList texts() const;

 private:
  QString file_;
  qsizetype begin_ = 0;
};

class Installation;

/// The calls of the link library as the emulated register notes them.
class Calls {
 public:
  explicit Calls(const Installation& installation) : installation_{installation} {}

  /// From now on calls are noted, and the count begins.
  void begin();

  /// Calls are noted no more, if it was this object that asked for it: a file that nobody looks at must not grow in an
  /// installation that stays.
  void end() const;

  /// The count begins again.
  void forget();

  /// The calls since the count began, written as scripts write them.
  [[nodiscard]] QStringList new_calls() const;

  /// The new calls become the counted ones, and the count begins again.
  void take(const QStringList& calls);

  [[nodiscard]] const QStringList& counted() const { return counted_; }

 private:
  [[nodiscard]] QString file() const;
  [[nodiscard]] QString as_written(const QByteArray& line) const;

  const Installation& installation_;
  bool asked_for_ = false;
  qsizetype seen_ = 0;
  QStringList counted_;
};

}  // namespace ecr::robot

#pragma once
// The program under the robot: a process of its own, so that a hard stop or a crash is seen as what it is.

#include <memory>
#include <optional>
#include <utility>

#include <QByteArray>
#include <QDeadlineTimer>
#include <QHash>
#include <QJsonObject>
#include <QProcess>
#include <QString>

namespace ecr::robot {

class Program {
 public:
  Program() = default;
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program();

  /// Starts it in `folder`. Answers whether that was possible.
  bool start(const QString& executable, const QStringList& arguments, const QString& folder,
             const QProcessEnvironment& environment);

  [[nodiscard]] bool was_started() const { return process_ != nullptr; }
  [[nodiscard]] bool runs();

  /// How it ended, in words; nothing if it ended of its own accord with exit code 0. Only when it runs no more.
  [[nodiscard]] std::optional<QString> wrong_end() const;

  enum class Reply { answered, ended, too_late };
  /// Hands a request to the agent and waits for the answer, until the program's end or the deadline.
  std::pair<Reply, QJsonObject> ask(QJsonObject request, QDeadlineTimer deadline);

  /// Lets it run; returns early when it ends.
  void run_for(QDeadlineTimer deadline);

  /// Ends it at once.
  void kill();

  /// What it wrote to standard error since the last call.
  [[nodiscard]] QByteArray take_errors();

 private:
  void read();

  std::unique_ptr<QProcess> process_;
  QByteArray unread_;
  QHash<int, QJsonObject> answers_;
  QByteArray errors_;
  int last_id_ = 0;
  bool killed_ = false;
};

}  // namespace ecr::robot

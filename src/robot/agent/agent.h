#pragma once
// Takes the robot's requests on the screen thread and answers them.
//
// A handler that opens a message box runs an event loop of its own inside the event that a step made, and further
// requests arrive inside that loop. So a step never waits: each runs from a posted event, and a pulse looks again and
// again whether the program has come to rest.

#include <optional>
#include <vector>

#include <QBasicTimer>
#include <QByteArray>
#include <QJsonObject>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include "robot/agent/acting.h"

namespace ecr::robot {

class Agent final : public QObject {
 public:
  Agent() = default;

  /// One line from the robot.
  void take(const QByteArray& bytes);

 protected:
  bool event(QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  /// An acting line under way.
  struct Line {
    int id = 0;
    Steps steps;
    bool start = false;  ///< waits for the first screen or box and nothing else
  };

  /// A step whose handler has not come back.
  struct Unfinished {
    QPointer<QWidget> modal_before;
  };

  void begin(Line line);
  void look();
  void run_step();
  void pulse(int milliseconds);
  [[nodiscard]] bool at_rest() const;
  [[nodiscard]] QString state() const;

  std::optional<Line> line_;
  std::vector<Unfinished> unfinished_;
  QBasicTimer pulse_;
  int calm_looks_ = 0;
};

}  // namespace ecr::robot

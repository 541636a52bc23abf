#pragma once
// A Shell for tests: it holds the boxes that are expected, in order, with their answers, and fails the test on any
// other. It has a clock of its own that only waiting moves, so no test sleeps.

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/clock.h"
#include "core/shell.h"

namespace ecr::test {

/// Thrown where the program would end at once. Not a std::exception, so no routine's edge can take it for a fault.
struct ProgramEnded {};

class ScriptedShell final : public Shell {
 public:
  ScriptedShell();
  ~ScriptedShell() override;

  /// The next box must be of this kind and read exactly this text; `answer` is given to it.
  void expect_box(BoxKind kind, std::string text, Answer answer = Answer::ok);

  /// The titles of the boxes that were shown, in order.
  std::vector<std::string> box_titles;
  /// What run_beside and wait_until were told they do, in order.
  std::vector<WorkInHand> waits;
  std::vector<Waiting> waiting_kinds;
  std::vector<Pointer> pointers;
  /// The seconds that each wait_until was asked for.
  std::vector<double> seconds_waited;
  /// Called when a box is shown, before it is answered.
  std::function<void()> on_box;
  /// Called at each turn of a wait.
  std::function<void()> on_screens_work;

  Moment moment{20, 11, 2026, 12 * 3600.0};

  Answer box(BoxKind kind, BoxButtons buttons, std::string_view text, std::string_view title) override;
  void let_screens_work() override;
  void pointer(Pointer pointer) override { pointers.push_back(pointer); }
  void run_beside(const WorkInHand& what, Waiting waiting, const std::function<void()>& job) override;
  void wait_until(const WorkInHand& what, double seconds, const std::function<bool()>& done) override;
  [[noreturn]] void end_program() override { throw ProgramEnded{}; }

 private:
  struct ExpectedBox {
    BoxKind kind;
    std::string text;
    Answer answer;
  };
  std::deque<ExpectedBox> expected_;
  int unexpected_boxes_ = 0;
  Shell* before_;
};

/// Runs `body` and answers whether it ended the program.
template <typename Body>
bool ends_program(Body&& body) {
  try {
    body();
  } catch (const ProgramEnded&) {
    return true;
  }
  return false;
}

}  // namespace ecr::test

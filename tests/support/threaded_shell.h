#pragma once
// A Shell that really runs jobs beside the screen thread, while the screens handle what comes in.

#include <atomic>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <thread>

#include "core/shell.h"
#include "support/scripted_shell.h"

namespace ecr::test {

class ThreadedShell final : public Shell {
 public:
  ThreadedShell() : before_{install_shell(this)} {}
  ~ThreadedShell() override { install_shell(before_); }

  /// What the screens do each time they are let work; always on the screen thread.
  std::function<void()> on_screens_work;

  Answer box(BoxKind, BoxButtons, std::string_view text, std::string_view) override {
    ADD_FAILURE() << "no box was expected, but one came: " << text;
    return Answer::ok;
  }
  void let_screens_work() override {
    if (on_screens_work) on_screens_work();
    std::this_thread::yield();
  }
  void pointer(Pointer) override {}
  void run_beside(const WorkInHand&, Waiting, const std::function<void()>& job) override {
    std::atomic<bool> done = false;
    std::thread beside{[&] {
      job();
      done = true;
    }};
    while (!done) let_screens_work();
    beside.join();
  }
  void wait_until(const WorkInHand&, double, const std::function<bool()>& done) override {
    while (!done()) let_screens_work();
  }
  [[noreturn]] void end_program() override { throw ProgramEnded{}; }

 private:
  Shell* before_;
};

}  // namespace ecr::test

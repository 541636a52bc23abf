#include "core/shell.h"

#include <chrono>
#include <cstdlib>
#include <thread>
#include <utility>

namespace ecr {
namespace {

class BareShell final : public Shell {
 public:
  Answer box(BoxKind, BoxButtons buttons, std::string_view, std::string_view) override {
    return buttons == BoxButtons::ok ? Answer::ok : Answer::no;
  }
  void let_screens_work() override { std::this_thread::sleep_for(std::chrono::milliseconds(1)); }
  void pointer(Pointer) override {}
  void run_beside(const WorkInHand&, Waiting, const std::function<void()>& job) override { job(); }
  void wait_until(const WorkInHand&, double, const std::function<bool()>& done) override {
    while (!done()) let_screens_work();
  }
  [[noreturn]] void end_program() override { std::_Exit(0); }
};

BareShell bare_shell;
Shell* installed_shell = &bare_shell;

}  // namespace

Shell& shell() noexcept {
  return *installed_shell;
}

Shell* install_shell(Shell* shell) noexcept {
  return std::exchange(installed_shell, shell != nullptr ? shell : &bare_shell);
}

}  // namespace ecr

#pragma once
// The Shell on the toolkit: message boxes, the pointer, and every wait of the program.

#include <functional>
#include <string_view>

#include <QPointer>

#include "core/shell.h"

class QWidget;

namespace ecr {

class QtShell final : public Shell {
 public:
  /// `window` is the window over which boxes and the wait panel come up; it must outlive this object.
  explicit QtShell(QWidget& window);
  ~QtShell() override;

  Answer box(BoxKind kind, BoxButtons buttons, std::string_view text, std::string_view title) override;
  void let_screens_work() override;
  void pointer(Pointer pointer) override;
  void run_beside(const WorkInHand& what, Waiting waiting, const std::function<void()>& job) override;
  void wait_until(const WorkInHand& what, double seconds, const std::function<bool()>& done) override;
  [[noreturn]] void end_program() override;

 private:
  QWidget& window_;
  int busy_ = 0;
};

}  // namespace ecr

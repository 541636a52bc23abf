#pragma once
// The seam between the logic and whatever shows it to a person.
//
// Logic asks the Shell and nothing else: to show a box and return its answer, to let the screens work, to set the
// pointer, to end the program. The program hands in a Shell on the toolkit (widgets/); tests hand in a scripted one.
//
// All calls come from the screen thread. All texts are bytes of the code page (core/code_page.h); a carriage return
// is a line break.

#include <functional>
#include <string_view>

#include "core/work.h"

namespace ecr {

enum class BoxKind { plain, information, question, warning, critical };
enum class BoxButtons { ok, yes_no, yes_no_cancel };
enum class Answer { ok, yes, no, cancel };
enum class Pointer { normal, busy };

/// How the person is kept waiting while a job runs beside the screen thread.
enum class Waiting {
  modal,      ///< the screens stay painted and take no input; a panel names what is going on
  background  ///< the screens go on taking input
};

class Shell {
 public:
  Shell() = default;
  Shell(const Shell&) = delete;
  Shell& operator=(const Shell&) = delete;
  virtual ~Shell() = default;

  /// Shows a message box and returns when it was answered. `title` may be empty: the program's own name is shown then.
  virtual Answer box(BoxKind kind, BoxButtons buttons, std::string_view text, std::string_view title) = 0;

  /// Lets the screens handle what has come in, and gives the processor away for a moment if nothing has.
  virtual void let_screens_work() = 0;

  virtual void pointer(Pointer pointer) = 0;

  /// Runs `job` beside the screen thread and returns when it is done. `what` names it for the person.
  virtual void run_beside(const WorkInHand& what, Waiting waiting, const std::function<void()>& job) = 0;

  /// Holds the screens for `seconds`, painted and alive, until `done` answers true. `what` names it for the person.
  virtual void wait_until(const WorkInHand& what, double seconds, const std::function<bool()>& done) = 0;

  /// Ends the process at once with exit status 0: nothing of the caller runs on, nothing more is written.
  [[noreturn]] virtual void end_program() = 0;
};

/// The Shell in use. Before one is installed a bare one stands here: it shows nothing, answers Ok or No, runs jobs on
/// the calling thread, and ends the process when it is told to.
[[nodiscard]] Shell& shell() noexcept;

/// Installs a Shell; it must outlive its use. nullptr puts the bare one back. Returns the one that stood before.
Shell* install_shell(Shell* shell) noexcept;

/// A box with an Ok button alone.
inline void tell(BoxKind kind, std::string_view text) {
  shell().box(kind, BoxButtons::ok, text, {});
}

/// The busy pointer for as long as this object lives.
class BusyPointer {
 public:
  BusyPointer() { shell().pointer(Pointer::busy); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;
  ~BusyPointer() { shell().pointer(Pointer::normal); }
};

}  // namespace ecr

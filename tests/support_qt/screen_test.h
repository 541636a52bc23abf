#pragma once
// The base of tests that show screens: an installation of its own, a stage that is on show and has the focus, and the
// scripted shell in place of message boxes.

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QString>

#include "core/shell.h"
#include "image/prg_mode.h"
#include "support/installation.h"
#include "support_qt/images.h"
#include "support_qt/person.h"
#include "widgets/choice_list.h"
#include "widgets/controls.h"
#include "widgets/field.h"
#include "widgets/record_grid.h"
#include "widgets/screen.h"

namespace ecr::test {

/// Stands between the program and the scripted shell: it notes what the screens looked like meanwhile, and ends the
/// process for good where the program ends.
class WatchedShell final : public Shell {
 public:
  explicit WatchedShell(Shell& scripted) : scripted_{scripted}, before_{install_shell(this)} {}
  ~WatchedShell() override { install_shell(before_); }

  struct Box {
    BoxKind kind;
    BoxButtons buttons;
    std::string text;
    std::string title;
  };
  /// The boxes that were shown, in order.
  std::vector<Box> boxes;
  /// If set, answers every box in place of the script.
  std::function<Answer(const Box&)> answer;
  /// Called when the pointer changes.
  std::function<void(Pointer)> on_pointer;
  /// Called when a job is to run beside the screens, before it does.
  std::function<void(Waiting)> on_run_beside;

  Answer box(BoxKind kind, BoxButtons buttons, std::string_view text, std::string_view title) override;
  void let_screens_work() override;
  void pointer(Pointer pointer) override;
  void run_beside(const WorkInHand& what, Waiting waiting, const std::function<void()>& job) override;
  void wait_until(const WorkInHand& what, double seconds, const std::function<bool()>& done) override;
  /// In a copy of the process: status 0, or 1 if something went wrong by then. Else ProgramEnded is thrown.
  [[noreturn]] void end_program() override;

  bool in_copy = false;
  std::size_t expected = 0;  ///< how many boxes the test expects in all

 private:
  Shell& scripted_;
  Shell* before_;
};

class ScreenTest : public InstallationTest {
 protected:
  ScreenTest();

  /// Takes all screens away while the test is still whole: their handlers may run as they go.
  void TearDown() override;

  /// Opens a screen over whatever is there: one that the menus know by name, or FrmPrincipale, FrmSetup.
  Screen& open(const QString& name);
  Screen& open(Screen* screen);

  /// The name of the screen on top; empty if there is none.
  [[nodiscard]] QString top() const;

  /// A control of the active dialog or of the screen on top, by its name. Ends the test if there is none.
  template <typename Control = QWidget>
  [[nodiscard]] Control& control(const QString& name) const {
    auto* found = dynamic_cast<Control*>(find(name));
    if (found == nullptr) throw std::runtime_error{"no such control: " + name.toStdString()};
    return *found;
  }
  [[nodiscard]] Field& field(const QString& name) const { return control<Field>(name); }
  [[nodiscard]] ChoiceList& list(const QString& name) const { return control<ChoiceList>(name); }
  [[nodiscard]] CommandButton& button(const QString& name) const { return control<CommandButton>(name); }
  [[nodiscard]] QString caption(const QString& name) const;

  /// A click on a control, on the one of that name.
  static void click(QWidget& control) { test::click(control); }
  void click(const QString& name) const { test::click(control(name)); }

  /// The next box must be this one; see ScriptedShell.
  void expect_box(BoxKind kind, const std::string& text, Answer answer = Answer::ok);

  /// The image becomes PRG_MODE.BIN and the working image; the item table is empty.
  void lay_down(const PrgModeImage& image) const;
  /// Bytes of PRG_MODE.BIN.
  [[nodiscard]] std::string image_file() const { return bytes("Dati/PRG_MODE.BIN"); }

  /// Chooses the model, lays down a good programming and takes its decimals, as the way to the editors does.
  void start_session(std::uint8_t model);

  /// The pictures and texts of an installation.
  void install_setup() const;
  /// The English texts in the catalogue, or nothing in it again.
  void fill_catalogue() const;

  /// Whether `body` ends the program at once: it runs in a copy of this process, whose files are the same ones. Boxes
  /// that it must show are to be expected inside of it.
  void expect_program_ends(const std::function<void()>& body);

  WatchedShell watched{shell};
  Stage stage;

 private:
  [[nodiscard]] QWidget* find(const QString& name) const;
};

}  // namespace ecr::test

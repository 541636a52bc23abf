#include "core/shell.h"

#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include "core/system.h"
#include "support/scripted_shell.h"

namespace ecr::test {
namespace {

/// The Shell that stands before any is installed.
class BareShell : public ::testing::Test {
 protected:
  BareShell() : before_{install_shell(nullptr)} {}
  ~BareShell() override { install_shell(before_); }

 private:
  Shell* before_;
};

TEST_F(BareShell, AnswersOkOrNo) {
  EXPECT_EQ(shell().box(BoxKind::plain, BoxButtons::ok, "text", ""), Answer::ok);
  EXPECT_EQ(shell().box(BoxKind::question, BoxButtons::yes_no, "text", ""), Answer::no);
  EXPECT_EQ(shell().box(BoxKind::question, BoxButtons::yes_no_cancel, "text", ""), Answer::no);
}

TEST_F(BareShell, RunsAJobOnTheCallingThreadAndReturnsBehindIt) {
  std::thread::id ran_on;
  shell().run_beside({}, Waiting::modal, [&ran_on] { ran_on = std::this_thread::get_id(); });
  EXPECT_EQ(ran_on, std::this_thread::get_id());
}

TEST_F(BareShell, WaitsUntilItIsTold) {
  int asked = 0;
  shell().wait_until({}, 0.1, [&asked] { return ++asked == 3; });
  EXPECT_EQ(asked, 3);
}

using BareShellDeathTest = BareShell;

TEST_F(BareShellDeathTest, EndsTheProcessAtOnceWithStatus0) {
  EXPECT_EXIT(shell().end_program(), ::testing::ExitedWithCode(0), "");
}

TEST(ShellInUse, IsTheOneInstalledLastUntilItIsPutBack) {
  Shell* bare = &shell();
  {
    ScriptedShell first;
    EXPECT_EQ(&shell(), &first);
    {
      ScriptedShell second;
      EXPECT_EQ(&shell(), &second);
      EXPECT_EQ(install_shell(&first), &second);
      EXPECT_EQ(install_shell(&second), &first);
    }
    EXPECT_EQ(&shell(), &first);
  }
  EXPECT_EQ(&shell(), bare);
}

TEST(ShellInUse, TellsInABoxWithAnOkButtonAlone) {
  ScriptedShell scripted;
  scripted.expect_box(BoxKind::warning, "told");
  tell(BoxKind::warning, "told");
  EXPECT_EQ(scripted.box_titles, std::vector<std::string>{""});
}

TEST(ShellInUse, HasTheBusyPointerForAsLongAsItsObjectLives) {
  ScriptedShell scripted;
  {
    const BusyPointer busy;
    EXPECT_EQ(scripted.pointers, std::vector<Pointer>{Pointer::busy});
  }
  EXPECT_EQ(scripted.pointers, (std::vector<Pointer>{Pointer::busy, Pointer::normal}));
}

TEST(SystemLayerDeathTest, EndsTheProgramWithAMessageWhereNoneWasInstalled) {
  EXPECT_DEATH(
      {
        install_system(nullptr);
        static_cast<void>(system_layer());
      },
      "no system layer was installed");
}

}  // namespace
}  // namespace ecr::test

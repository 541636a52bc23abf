// Processes for real: programs that this test starts, under names that nothing else has. These tests run alone.

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "core/files.h"
#include "core/global.h"
#include "link/process.h"
#include "platform/platform.h"
#include "support/installation.h"

namespace ecr::test {
namespace {

namespace fs = std::filesystem;

class RealProcesses : public InstallationTest {
 protected:
  RealProcesses() {
    // Programs that were started are nobody's children; this process takes them in, so that their end can be awaited.
    EXPECT_EQ(::prctl(PR_SET_CHILD_SUBREAPER, 1), 0);
  }
  ~RealProcesses() override {
    for (const ProcessEntry& process : mine()) host_system().end_process(process.id);
    while (::wait(nullptr) > 0) {
    }
    ::prctl(PR_SET_CHILD_SUBREAPER, 0);
  }

  /// A name that no other process of the machine ends with.
  [[nodiscard]] static std::string odd_name(const std::string& what) {
    return what + "-" + std::to_string(::getpid()) + ".exe";
  }

  /// Makes a program of this name that runs until it is ended.
  void make(const std::string& name) const {
    fs::copy_file(WAITING_PROCESS, host(name), fs::copy_options::overwrite_existing);
  }
  void start(const std::string& name) const {
    make(name);
    const Fault fault = host_system().start_minimised(host(name), {"an argument", ""});
    ASSERT_FALSE(fault.stands()) << fault.description();
  }

  [[nodiscard]] static std::vector<ProcessEntry> mine() {
    std::vector<ProcessEntry> processes = host_system().processes();
    std::erase_if(processes, [](const ProcessEntry& process) {
      return process.executable.find("-" + std::to_string(::getpid()) + ".exe") == std::string::npos;
    });
    return processes;
  }
};

TEST_F(RealProcesses, AStartedProgramRunsUntilItIsKilledByItsName) {
  const std::string name = odd_name("vermanto-odd");
  EXPECT_FALSE(Process_Exists(name));
  start(name);
  EXPECT_TRUE(Process_Exists(name));
  ASSERT_EQ(mine().size(), 1U);
  EXPECT_EQ(mine()[0].executable, name);
  EXPECT_TRUE(Process_Kill(name));
  int status = 0;
  EXPECT_GT(::wait(&status), 0);
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_FALSE(Process_Exists(name));
  EXPECT_FALSE(Process_Kill(name));
}

TEST_F(RealProcesses, AProcessIsFoundByTheEndOfItsNameWhateverTheCase) {
  const std::string name = odd_name("My-Vermanto-Odd");
  start(name);
  const std::string end = odd_name("vermanto-ODD");
  EXPECT_TRUE(Process_Exists(end));
  EXPECT_FALSE(Process_Exists("x" + name));
  EXPECT_TRUE(Process_Kill(end));
  EXPECT_GT(::wait(nullptr), 0);
  EXPECT_FALSE(Process_Exists(end));
}

TEST_F(RealProcesses, OneOfTwoIsEndedByEachKill) {
  const std::string name = odd_name("vermanto-twin");
  start(name);
  ASSERT_FALSE(host_system().start_minimised(host(name), {}).stands());
  EXPECT_EQ(mine().size(), 2U);
  EXPECT_TRUE(Process_Kill(name));
  EXPECT_GT(::wait(nullptr), 0);
  EXPECT_EQ(mine().size(), 1U);
  EXPECT_TRUE(Process_Exists(name));
  EXPECT_TRUE(Process_Kill(name));
  EXPECT_GT(::wait(nullptr), 0);
  EXPECT_FALSE(Process_Exists(name));
}

TEST_F(RealProcesses, AWaitEndsWithTheProcess) {
  const std::string name = odd_name("vermanto-awaited");
  start(name);
  int turns = 0;
  shell.on_screens_work = [&] {
    EXPECT_TRUE(turns > 0 || Process_Exists(name));
    if (++turns == 3) {
      EXPECT_TRUE(Process_Kill(name));
    }
  };
  Process_Wait(name);
  EXPECT_GE(turns, 3);
  EXPECT_FALSE(Process_Exists(name));
}

TEST_F(RealProcesses, AProgramWhoseFileIsGoneKeepsItsName) {
  const std::string name = odd_name("vermanto-gone");
  start(name);
  remove(name);
  EXPECT_TRUE(Process_Exists(name));
  ASSERT_EQ(mine().size(), 1U);
  EXPECT_EQ(mine()[0].executable, name);
}

TEST_F(RealProcesses, AProgramIsStartedInASessionOfItsOwn) {
  const std::string name = odd_name("vermanto-apart");
  start(name);
  ASSERT_EQ(mine().size(), 1U);
  const auto id = static_cast<pid_t>(mine()[0].id);
  EXPECT_EQ(::getsid(id), id);
  EXPECT_NE(::getsid(id), ::getsid(0));
}

TEST_F(RealProcesses, AnIdThatIsNobodysIsNotEnded) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(0);
  ASSERT_GT(child, 0);
  ASSERT_EQ(::waitpid(child, nullptr, 0), child);
  EXPECT_FALSE(host_system().end_process(static_cast<std::uint64_t>(child)));
}

}  // namespace
}  // namespace ecr::test

// The run log and a file that another process holds for itself.

#include <chrono>
#include <condition_variable>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <mutex>
#include <string>
#include <sys/file.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>
#include <vector>

#include "core/run_log.h"
#include "support/fake_system.h"
#include "support/installation.h"
#include "support/unprivileged_linux.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

class HeldRunLog : public InstallationTest {
 protected:
  HeldRunLog() {
    system_.on_append = [this](const std::string& path, std::string_view line) {
      const Fault fault = host_system().append_file(path, line);
      const std::lock_guard lock{mutex_};
      if (fault.code == FaultCode::permission_denied) ++refused_;
      changed_.notify_all();
      if (refused_ >= 3) {
        if (const auto action = std::exchange(on_refusal_, {})) action();
      }
      return fault;
    };
  }

  /// Whether so many appends were refused, before much more time went by than that can take.
  [[nodiscard]] bool await_refusals(int count) {
    std::unique_lock lock{mutex_};
    return changed_.wait_for(lock, std::chrono::seconds{20}, [&] { return refused_ >= count; });
  }

  FakeSystem system_;
  /// Called once, at the third refusal.
  std::function<void()> on_refusal_;
  int refused_ = 0;

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
};

TEST_F(HeldRunLog, WaitsWhileAnotherDescriptorHoldsTheLog) {
  memo_log("first");
  const int holder = ::open(host("Log/memo_log.txt").c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_GE(holder, 0);
  ASSERT_EQ(::flock(holder, LOCK_EX), 0);
  std::thread writer{[] { memo_log("second"); }};
  EXPECT_TRUE(await_refusals(3));
  EXPECT_EQ(log(), Lines{"first"}) << "nothing is written past the lock";
  ::flock(holder, LOCK_UN);
  writer.join();
  ::close(holder);
  EXPECT_EQ(log(), (Lines{"first", "second"}));
}

TEST_F(HeldRunLog, WaitsUntilAnotherProcessLetsGo) {
  memo_log("first");
  int held[2];
  int release[2];
  ASSERT_EQ(::pipe(held), 0);
  ASSERT_EQ(::pipe(release), 0);
  const std::string file = host("Log/memo_log.txt");
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    ::close(release[1]);
    const int holder = ::open(file.c_str(), O_RDWR);
    char byte = ::flock(holder, LOCK_EX) == 0 ? 'h' : 'x';
    const bool told = ::write(held[1], &byte, 1) == 1;
    // Ends with the first byte, or with the end of its parent.
    ::_exit(told && ::read(release[0], &byte, 1) >= 0 ? 0 : 1);
  }
  ::close(release[0]);
  ::close(held[1]);
  char byte = 0;
  ASSERT_EQ(::read(held[0], &byte, 1), 1);
  ASSERT_EQ(byte, 'h');
  on_refusal_ = [&] {
    EXPECT_EQ(log(), Lines{"first"});
    EXPECT_EQ(::write(release[1], "r", 1), 1);
  };
  memo_log("second");
  EXPECT_GE(refused_, 3);
  EXPECT_EQ(log(), (Lines{"first", "second"}));
  ::close(release[1]);
  int status = -1;
  EXPECT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  ::close(held[0]);
}

TEST_F(HeldRunLog, ASharedHoldBarsTheLogToo) {
  memo_log("first");
  const int holder = ::open(host("Log/memo_log.txt").c_str(), O_RDONLY | O_CLOEXEC);
  ASSERT_GE(holder, 0);
  ASSERT_EQ(::flock(holder, LOCK_SH), 0);
  on_refusal_ = [&] { ::close(holder); };
  memo_log("second");
  EXPECT_GE(refused_, 3);
  EXPECT_EQ(log(), (Lines{"first", "second"}));
}

class UnwritableRunLog : public InstallationTest {};

TEST_F(UnwritableRunLog, AFullDiskLosesTheLineAndEnds) {
  std::filesystem::create_symlink("/dev/full", host("Log/memo_log.txt"));
  FakeSystem system;
  Lines attempts;
  system.on_append = [&attempts](const std::string& path, std::string_view line) {
    const Fault fault = host_system().append_file(path, line);
    EXPECT_EQ(fault.code, FaultCode::disk_full);
    attempts.emplace_back(line.substr(18));
    return fault;
  };
  memo_log("lost");
  EXPECT_EQ(attempts, (Lines{"lost\n", "NELLA SCRITTURA FILE:--->  61 Disk full\n"}));
}

TEST_F(UnwritableRunLog, AFolderInItsPlaceIsWaitedForLikeAHeldLog) {
  make_folder("Log/memo_log.txt");
  FakeSystem system;
  int attempts = 0;
  system.on_append = [&](const std::string& path, std::string_view line) {
    const Fault fault = host_system().append_file(path, line);
    if (++attempts == 3) remove("Log/memo_log.txt");
    EXPECT_EQ(fault.code, attempts <= 3 ? FaultCode::path_access : FaultCode::none);
    return fault;
  };
  memo_log("written");
  EXPECT_EQ(attempts, 4);
  EXPECT_EQ(log(), Lines{"written"});
}

TEST_F(UnwritableRunLog, ALinkThatLeadsNowhereLosesTheLine) {
  std::filesystem::create_symlink(host("nowhere/at/all"), host("Log/memo_log.txt"));
  memo_log("lost");
  EXPECT_FALSE(exists("nowhere"));
}

TEST_F(UnwritableRunLog, ALinkToItselfLosesTheLine) {
  std::filesystem::create_symlink(host("Log/memo_log.txt"), host("Log/memo_log.txt"));
  memo_log("lost");
  EXPECT_TRUE(std::filesystem::is_symlink(host("Log/memo_log.txt")));
}

TEST_F(UnwritableRunLog, ALogThatMayNotBeWrittenIsWaitedForLikeAHeldOne) {
  namespace fs = std::filesystem;
  write("Log/memo_log.txt", "");
  fs::permissions(host("Log/memo_log.txt"), fs::perms::owner_read);
  FakeSystem system;
  int attempts = 0;
  auto nobody = std::make_unique<Unprivileged>();
  system.on_append = [&](const std::string& path, std::string_view line) {
    const Fault fault = host_system().append_file(path, line);
    EXPECT_EQ(fault.code, ++attempts <= 3 ? FaultCode::permission_denied : FaultCode::none);
    if (attempts == 3) {
      nobody.reset();
      fs::permissions(host("Log/memo_log.txt"), fs::perms::owner_all);
    }
    return fault;
  };
  memo_log("written");
  EXPECT_EQ(attempts, 4);
  EXPECT_EQ(log(), Lines{"written"});
}

}  // namespace
}  // namespace ecr::test

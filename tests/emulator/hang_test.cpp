// A hanging exchange tool is a process, so these run alone; each ends exactly the process that it caused.

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

#include "core/system.h"
#include "emulator/emulator_test.h"

namespace ecr::test {
namespace {
namespace fs = std::filesystem;

class HangTest : public EmulatorTest {
 protected:
  /// Puts the tool into the application folder under a name of this test's own, with a link of the proper name on it:
  /// the system lists the process under the former, so that no other process can be taken for it.
  HangTest() : own_name_{fs::path{host("")}.parent_path().filename().string() + "-regwire.exe"} {
    fs::copy_file(EMULATOR_REGWIRE, host(own_name_));
    fs::create_symlink(own_name_, host("regwire.exe"));
  }
  ~HangTest() override {
    for (const std::uint64_t id : tools()) system_layer().end_process(id);
    EXPECT_TRUE(await_end());
  }

  [[nodiscard]] std::vector<std::uint64_t> tools() const {
    std::vector<std::uint64_t> ids;
    for (const ProcessEntry& process : system_layer().processes()) {
      if (process.executable == own_name_) ids.push_back(process.id);
    }
    return ids;
  }

  /// Lets the system take the ended process out of its list.
  [[nodiscard]] bool await_end() const {
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds{20};
    while (!tools().empty()) {
      if (std::chrono::steady_clock::now() > limit) return false;
      std::this_thread::yield();
    }
    return true;
  }

 private:
  std::string own_name_;
};

TEST_F(HangTest, TheNextCallLeavesTheExchangeToolRunning) {
  set("hang = next");
  EXPECT_TRUE(tools().empty());
  EXPECT_EQ(send_cmd(upload, 0), ends_with(9999));
  const std::vector<std::uint64_t> running = tools();
  ASSERT_EQ(running.size(), 1U);
  EXPECT_FALSE(exists("Dati/PRG_MODE.BIN"));
  EXPECT_EQ(bytes("register/register.txt"), fresh_register + "hang = no\n");

  EXPECT_EQ(send_cmd(upload, 0), done);
  EXPECT_EQ(tools(), running) << "a second call starts nothing and ends nothing";

  EXPECT_TRUE(system_layer().end_process(running.front()));
  EXPECT_TRUE(await_end());
}

TEST_F(HangTest, OnlyTheCallForTheNamedFileLeavesItRunning) {
  set("hang = 12");
  EXPECT_EQ(send_cmd(upload, 0), done);
  EXPECT_TRUE(tools().empty());
  EXPECT_EQ(range_report(12), ends_with(9999));
  ASSERT_EQ(tools().size(), 1U);
  EXPECT_FALSE(exists("Dati/TIME.bin"));
  EXPECT_TRUE(system_layer().end_process(tools().front()));
  EXPECT_TRUE(await_end());
}

TEST_F(HangTest, ATimeoutThatIsMerelyAnsweredLeavesNothingRunning) {
  set("answer = 9999");
  EXPECT_EQ(send_cmd(upload, 0), ends_with(9999));
  EXPECT_TRUE(tools().empty());
}

}  // namespace
}  // namespace ecr::test

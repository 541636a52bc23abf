// Files that open and cannot be read, of a kind that only this system has.

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "emulator/emulator_test.h"

namespace ecr::test {
namespace {

using UnreadableTest = EmulatorTest;

TEST_F(UnreadableTest, AFileThatOpensButCannotBeReadHasItsOwnCode) {
  // A process's own memory, read from address 0, is such a file.
  constexpr const char* unreadable = "/proc/self/mem";
  make_folder("register/reports");
  for (const std::string name :
       {"Dati/PRG_MODE.BIN", "Dati/LOGO.BMP", "register/PRG_PLU.BIN", "register/reports/5.bin"}) {
    remove(name);
    std::filesystem::create_symlink(unreadable, host(name));
  }
  EXPECT_EQ(send_cmd(download, 0), ends_with(2050));
  EXPECT_EQ(send_logo("LOGO.BMP"), ends_with(0x08020000));
  EXPECT_EQ(send_cmd(upload, 1), ends_with(2050));
  EXPECT_EQ(send_cmd(upload, 5), ends_with(2050));
}

}  // namespace
}  // namespace ecr::test

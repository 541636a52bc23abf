// The library as the program loads it, from its file.

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/system.h"
#include "emulator/emulator_test.h"

namespace ecr::test {
namespace {

class LibraryTest : public EmulatorTest {
 protected:
  void load() {
    std::string why;
    library_ = system_layer().load_library(EMULATOR_LIBRARY, why);
    ASSERT_NE(library_, nullptr) << why;
    calls.send_cmd = reinterpret_cast<util_send_cmd_to_ecr_t>(library_->symbol("util_send_cmd_to_ecr"));
    calls.range_report = reinterpret_cast<util_get_range_report_t>(library_->symbol("util_get_range_report"));
    calls.send_logo = reinterpret_cast<util_send_logo_to_ecr_t>(library_->symbol("util_send_logo_to_ecr"));
    ASSERT_NE(calls.send_cmd, nullptr);
    ASSERT_NE(calls.range_report, nullptr);
    ASSERT_NE(calls.send_logo, nullptr);
  }
  void unload() {
    calls = {};
    library_.reset();
  }

 private:
  std::unique_ptr<Library> library_;
};

TEST_F(LibraryTest, HasTheNameThatTheProgramLooksFor) {
  EXPECT_TRUE(std::string{EMULATOR_LIBRARY}.ends_with("/" + std::string{system_layer().link_library_name()}));
}

TEST_F(LibraryTest, MakesAllThreeCalls) {
  load();
  write("Dati/LOGO.BMP", "BM");
  EXPECT_EQ(send_cmd(upload, 0), done);
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), bytes_for_image(1));
  EXPECT_EQ(range_report(12), done);
  EXPECT_TRUE(exists("Dati/TIME.bin"));
  EXPECT_EQ(send_logo("LOGO.BMP"), ends_with(0x10010000));
  set("fails = yes");
  EXPECT_EQ(send_cmd(upload, 0), not_made);
}

TEST_F(LibraryTest, HoldsWhatItWasSentAcrossItsUnloading) {
  const std::vector<std::pair<std::string, std::string>> files = {{"PRG_MODE.BIN", bytes_for_image(21)},
                                                                  {"PRG_PLU.BIN", bytes_for_items(22, 3000)},
                                                                  {"GRAPHIC.BIN", random_bytes(23, 700)}};
  load();
  for (std::uint8_t file = 0; file < 3; ++file) {
    write("Dati/" + files[file].first, files[file].second);
    EXPECT_EQ(send_cmd(download, file), done);
  }
  set("port = 7");
  unload();
  const auto held = register_files();
  remove("Dati");
  make_folder("Dati");
  load();
  for (std::uint8_t file = 0; file < 3; ++file) {
    EXPECT_EQ(send_cmd(upload, file, 4), ends_with(1025));
    EXPECT_EQ(send_cmd(upload, file, 7), done);
    EXPECT_EQ(bytes("Dati/" + files[file].first), files[file].second);
  }
  EXPECT_TRUE(register_files() == held);
}

TEST_F(LibraryTest, KeepsApartFromTheProgramThatLoadsIt) {
  load();
  // Without a system layer the program itself could write no file.
  System* const before = install_system(nullptr);
  EXPECT_EQ(send_cmd(upload, 0), done);
  EXPECT_EQ(install_system(before), nullptr) << "the library put its system layer into the program";
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), bytes_for_image(1));
  remove("Dati");
  EXPECT_EQ(send_cmd(upload, 0), ends_with(2051));
  EXPECT_FALSE(exists("Log/memo_log.txt"));
}

TEST_F(LibraryTest, TakesBadArguments) {
  load();
  std::int32_t code = Outcome::untouched;
  EXPECT_EQ(calls.send_cmd(nullptr, upload, 0, &code, 60, 4), 0);
  EXPECT_EQ(calls.range_report(nullptr, 12, &code, 60, 1, 99, 4), 0);
  EXPECT_EQ(calls.send_logo(nullptr, nullptr, nullptr, &code, 60), 0);
  EXPECT_EQ(code, Outcome::untouched);
}

TEST_F(LibraryTest, TakesADamagedFile) {
  load();
  write("register/register.txt", random_bytes(77, 2000));
  EXPECT_EQ(send_cmd(upload, 0), done);
}

}  // namespace
}  // namespace ecr::test

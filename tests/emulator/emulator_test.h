#pragma once
// An application folder with an emulated register in it, and its three calls as a C program makes them.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/system.h"
#include "link/tilbridge2.h"
#include "platform/platform.h"
#include "support/installation.h"

namespace ecr::test {

/// What a call came to.
struct Outcome {
  std::int32_t returned = 0;
  std::int32_t code = untouched;
  bool operator==(const Outcome&) const = default;

  /// What stands in the place for the result code before the call.
  static constexpr std::int32_t untouched = -77;
};
std::ostream& operator<<(std::ostream& out, const Outcome& outcome);

/// The call was made and ended with this code.
[[nodiscard]] constexpr Outcome ends_with(std::int32_t code) {
  return {1, code};
}
inline constexpr Outcome done{1, 0};
inline constexpr Outcome not_made{0, Outcome::untouched};

/// The calls, of the room itself or of a loaded library.
struct Calls {
  util_send_cmd_to_ecr_t send_cmd = nullptr;
  util_get_range_report_t range_report = nullptr;
  util_send_logo_to_ecr_t send_logo = nullptr;
};
[[nodiscard]] Calls calls_of_room();

/// The bytes of every file below a folder of the host, by its path there.
[[nodiscard]] std::map<std::string, std::string> all_files(const std::string& folder);

/// The text of register.txt as a fresh register has it, but for the line that makes it trade.
extern const std::string fresh_register;

[[nodiscard]] std::string bytes_for_image(unsigned seed);
[[nodiscard]] std::string bytes_for_items(unsigned seed, unsigned count);
[[nodiscard]] std::string random_bytes(unsigned seed, std::size_t length);

/// The host's system, but every file that is written meets this fault.
class SystemThatCannotWrite final : public System {
 public:
  explicit SystemThatCannotWrite(FaultCode code) : code_{code}, before_{install_system(this)} {}
  ~SystemThatCannotWrite() override { install_system(before_); }

  Fault write_beside(const std::string&, std::string_view, FreshFile&) override { return {code_}; }
  Fault rename_over(const FreshFile&) override { return {code_}; }
  Fault flush_folder_of(const std::string&) override { return {code_}; }
  Fault append_file(const std::string&, std::string_view) override { return {code_}; }
  std::vector<ProcessEntry> processes() override { return host_system().processes(); }
  bool end_process(std::uint64_t) override { return false; }
  Fault start_minimised(const std::string&, const std::vector<std::string>&) override { return {code_}; }
  [[nodiscard]] bool driver_tools_apply() const override { return false; }
  std::optional<std::vector<std::string>> device_captions() override { return {}; }
  [[nodiscard]] std::string version_text() const override { return {}; }
  [[nodiscard]] int build_number() const override { return 0; }
  [[nodiscard]] std::string_view link_library_name() const override { return {}; }
  std::unique_ptr<Library> load_library(const std::string&, std::string&) override { return nullptr; }

 private:
  FaultCode code_;
  System* before_;
};

class EmulatorTest : public InstallationTest {
 protected:
  static constexpr std::uint8_t upload = 0;
  static constexpr std::uint8_t download = 1;

  /// A fresh register: image, three items, no logo.
  EmulatorTest();

  /// register.txt becomes that of a fresh register with this line behind it.
  void set(std::string_view line) const { write("register/register.txt", fresh_register + std::string{line} + "\n"); }

  Outcome send_cmd(std::uint8_t direction, std::uint8_t file, std::uint8_t port = 4) const;
  Outcome range_report(std::uint8_t file, std::int32_t from = 1, std::int32_t to = 99, std::uint8_t port = 4) const;
  Outcome send_logo(const std::string& name) const;

  /// Each of the three kinds of call, on files that it takes.
  [[nodiscard]] std::vector<std::pair<std::string, std::function<Outcome()>>> each_kind() const;

  /// The call leaves the register's folder as it is, to the byte.
  template <typename Call>
  Outcome changing_nothing(const Call& call) const {
    const auto before = register_files();
    const Outcome outcome = call();
    EXPECT_TRUE(register_files() == before) << "the register's folder was changed";
    return outcome;
  }

  [[nodiscard]] std::string application_folder() const { return host(""); }
  [[nodiscard]] std::map<std::string, std::string> register_files() const { return all_files(host("register")); }

  Calls calls = calls_of_room();
};

}  // namespace ecr::test

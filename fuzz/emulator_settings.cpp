// The emulated register's settings are any bytes: every question to them has an answer, and every call ends with one.

#include <array>
#include <optional>

#include "core/files.h"
#include "core/global.h"
#include "core/text.h"
#include "emulator/emulated_register.h"
#include "emulator/settings.h"
#include "support/installation.h"

namespace ecr::fuzz::emulator_settings_target {
namespace {

constexpr std::string_view file_name = "register/register.txt";
constexpr std::array<std::string_view, 11> keys = {"model", "port",  "banner", "release", "delay", "answer",
                                                   "logo",  "fails", "hang",   "trade",   "seed"};

constexpr std::array<std::uint8_t, 6> files = {0, 1, 2, 12, 22, 23};
constexpr std::array<std::uint8_t, 2> directions = {0, 1};

void edit(const std::string& file, std::string_view key) {
  const SettingsText before{file};
  SettingsText after{file};
  after.set(key, "value");
  require(after.value(key) == "value", "a key that was set has its value");
  for (const std::string_view other : keys) {
    if (other != key) require(after.value(other) == before.value(other), "the other keys keep theirs");
  }
  SettingsText again{after.bytes()};
  again.set(key, "value");
  require(again.bytes() == after.bytes(), "setting it again changes nothing");
  if (const auto stood = before.value(key)) {
    after.set(key, *stood);
    require(after.bytes() == file, "put back, the file is as it was");
  } else {
    require(after.bytes().starts_with(file), "a new key goes behind all that stands");
  }
}

void ask(const RegisterSettings& settings) {
  require(settings.banner().size() == 36, "the banner has its width");
  const std::string_view release = settings.release_file();
  require(release.empty() || release == "RELEASE.BIN" || release == "RELEA.BIN",
          "the release file is one of the three");
  require(settings.delay().count() >= 0 && settings.delay() <= std::chrono::hours{1}, "a call takes an hour at most");
  require(settings.days_to_trade() >= 0 && settings.days_to_trade() <= 366, "a year is traded at most");
  static_cast<void>(settings.seed());
}

void call(const Installation& installation, const std::string& folder) {
  const EmulatedRegister machine{folder};
  RegisterSettings settings{Global::PathApp + "register\\"};
  const std::uint8_t port = settings.port();
  for (const std::uint8_t file : files) {
    const bool fails = settings.fails(file);
    const bool hangs = settings.hangs(file);
    const std::int32_t answer = settings.answer(file);
    for (const std::uint8_t direction : directions) {
      const auto result = machine.send_cmd(direction, file, 1, port);
      require(result.has_value() == !fails, "a call is made unless it is set to fail");
      if (fails) continue;
      if (hangs && direction == 0) {
        require(*result == 9999, "a call that hangs times out");
        settings = RegisterSettings{Global::PathApp + "register\\"};
        require(!settings.hangs(file), "and the next one does not");
      } else if (answer != 0) {
        require(*result == answer, "the answer is the one that was set");
      } else if (port == 0) {
        require(*result == 1025, "a register without a port does not answer");
      } else if (file == 22 && direction == 0 && !settings.release_file().empty()) {
        require(*result == 0, "the release is handed over");
        require(installation.bytes("Dati/" + std::string{settings.release_file()}) == settings.banner(),
                "it is the banner");
      }
    }
  }
  static_cast<void>(machine.range_report(12, 1, 1, 9, port));
  static_cast<void>(machine.send_logo("/", "none.bmp", 1));
  settings = RegisterSettings{Global::PathApp + "register\\"};
  require(settings.days_to_trade() == 0, "what was to be traded is not traded again");
}

}  // namespace

FUZZ_TARGET(emulator_settings) {
  static Installation installation;
  const std::string file = file_of(data, size);
  edit(file, keys[size % keys.size()]);
  installation.reset();
  installation.write(file_name, file);
  const RegisterSettings settings{Global::PathApp + "register\\"};
  ask(settings);
  // Waiting would show nothing.
  if (settings.delay().count() == 0) call(installation, host_path(Global::PathApp));
  installation.remove("register");
  installation.remove("Dati");
  Global::crea_cartelle();
  return 0;
}

}  // namespace ecr::fuzz::emulator_settings_target

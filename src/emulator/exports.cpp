#include "emulator/exports.h"

#include <mutex>
#include <optional>

#include "core/system.h"
#include "emulator/emulated_register.h"
#include "platform/platform.h"

namespace {

/// One register on one cable.
std::mutex one_call_at_a_time;

/// The library has a copy of its own of everything that it links, so the program's system layer is not in it.
void install_system_once() {
  static const bool installed = [] {
    if (ecr::System* before = ecr::install_system(&ecr::host_system())) ecr::install_system(before);
    return true;
  }();
  static_cast<void>(installed);
}

template <typename Call>
std::int32_t make_call(char** folder, std::int32_t* result_code, const Call& call) noexcept {
  if (folder == nullptr || *folder == nullptr || **folder == '\0' || result_code == nullptr) return 0;
  try {
    const std::lock_guard alone{one_call_at_a_time};
    install_system_once();
    const std::optional<std::int32_t> code = call(ecr::EmulatedRegister{*folder});
    if (!code) return 0;
    *result_code = *code;
    return 1;
  } catch (...) {
    // Nothing may cross into a caller that knows the C interface only. What is left to be thrown is want of memory.
    return 0;
  }
}

}  // namespace

std::int32_t TILBRIDGE_CALL util_send_cmd_to_ecr(char** folder, std::uint8_t direction, std::uint8_t file_number,
                                                 std::int32_t* result_code, std::int32_t timeout, std::uint8_t port) {
  return make_call(folder, result_code, [=](const ecr::EmulatedRegister& emulated) {
    return emulated.send_cmd(direction, file_number, timeout, port);
  });
}

std::int32_t TILBRIDGE_CALL util_get_range_report(char** folder, std::uint8_t file_number, std::int32_t* result_code,
                                                  std::int32_t timeout, std::int32_t range_from, std::int32_t range_to,
                                                  std::uint8_t port) {
  return make_call(folder, result_code, [=](const ecr::EmulatedRegister& emulated) {
    return emulated.range_report(file_number, timeout, range_from, range_to, port);
  });
}

std::int32_t TILBRIDGE_CALL util_send_logo_to_ecr(char** source, const char* target1, const char* target2,
                                                  std::int32_t* result_code, std::int32_t timeout) {
  return make_call(source, result_code, [=](const ecr::EmulatedRegister& emulated) {
    return emulated.send_logo(target1, target2, timeout);
  });
}

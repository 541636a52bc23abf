#pragma once
// The three calls that the shared library exports; link/tilbridge2.h tells their arguments.
//
// They take any arguments and throw nothing. A call without a folder, or without a place for its result code, could not
// be made and returns 0. They may be made on any thread; those made at once go one after another.

#include <cstdint>
#include <type_traits>

#include "link/tilbridge2.h"

// On Windows the module definition file tilbridge2.def tells what is exported.
#if defined(_WIN32)
#define EMULATOR_EXPORT
#else
#define EMULATOR_EXPORT [[gnu::visibility("default")]]
#endif

extern "C" {
EMULATOR_EXPORT std::int32_t TILBRIDGE_CALL util_send_cmd_to_ecr(char** folder, std::uint8_t direction,
                                                                 std::uint8_t file_number, std::int32_t* result_code,
                                                                 std::int32_t timeout, std::uint8_t port);
EMULATOR_EXPORT std::int32_t TILBRIDGE_CALL util_get_range_report(char** folder, std::uint8_t file_number,
                                                                  std::int32_t* result_code, std::int32_t timeout,
                                                                  std::int32_t range_from, std::int32_t range_to,
                                                                  std::uint8_t port);
EMULATOR_EXPORT std::int32_t TILBRIDGE_CALL util_send_logo_to_ecr(char** source, const char* target1,
                                                                  const char* target2, std::int32_t* result_code,
                                                                  std::int32_t timeout);
}

static_assert(std::is_same_v<decltype(&util_send_cmd_to_ecr), util_send_cmd_to_ecr_t>);
static_assert(std::is_same_v<decltype(&util_get_range_report), util_get_range_report_t>);
static_assert(std::is_same_v<decltype(&util_send_logo_to_ecr), util_send_logo_to_ecr_t>);

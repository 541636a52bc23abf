#pragma once
// Result codes that the emulated register answers with, and the names of what it moves. They are those of the real link
// library; its description of each code stands in the program's own tables, which this library does not see.

#include <array>
#include <cstdint>
#include <string_view>

namespace ecr {

/// Codes of the two calls that reach the register.
namespace ToolCode {
inline constexpr std::int32_t done = 0;
inline constexpr std::int32_t illegal_direction = 514;
inline constexpr std::int32_t range_reversed = 515;
inline constexpr std::int32_t no_such_number = 517;
inline constexpr std::int32_t report_download = 519;
inline constexpr std::int32_t port_not_opened = 1025;
inline constexpr std::int32_t file_not_opened = 2049;
inline constexpr std::int32_t file_not_read = 2050;
inline constexpr std::int32_t file_not_made = 2051;
inline constexpr std::int32_t file_not_written = 2052;
inline constexpr std::int32_t refused = 4098;  ///< by the register itself
inline constexpr std::int32_t timeout = 9999;
}  // namespace ToolCode

/// Codes of the call that converts a picture.
namespace PictureCode {
inline constexpr std::int32_t done = 0;  ///< of a step; the call itself never ends with it
inline constexpr std::int32_t converted = 0x01000000;
inline constexpr std::int32_t converted_most = 0x01006464;
inline constexpr std::int32_t missing_argument = 0x04010000;
inline constexpr std::int32_t not_opened = 0x08010000;
inline constexpr std::int32_t not_read = 0x08020000;
inline constexpr std::int32_t not_made = 0x08030000;
inline constexpr std::int32_t not_written = 0x08040000;
inline constexpr std::int32_t no_bitmap = 0x10010000;
inline constexpr std::int32_t not_black_and_white = 0x10020000;
inline constexpr std::int32_t unknown_type = 0x10030000;
inline constexpr std::int32_t too_many_dots = 0x10040000;
}  // namespace PictureCode

/// File numbers: 0 to 2 are what the register holds, 3 to 21 its reports.
namespace ToolFile {
inline constexpr std::uint8_t image = 0;
inline constexpr std::uint8_t plu = 1;
inline constexpr std::uint8_t logo = 2;
inline constexpr std::uint8_t first_report = 3;
inline constexpr std::uint8_t cash_in_drawer = 3;
inline constexpr std::uint8_t financial = 4;
inline constexpr std::uint8_t departments = 5;
inline constexpr std::uint8_t department_groups = 6;
inline constexpr std::uint8_t all_items = 7;
inline constexpr std::uint8_t items_in_range = 8;
inline constexpr std::uint8_t clerks = 9;
inline constexpr std::uint8_t training_clerks = 10;
inline constexpr std::uint8_t both_clerks = 11;
inline constexpr std::uint8_t time = 12;
inline constexpr std::uint8_t training = 13;
inline constexpr std::uint8_t financial2 = 14;
inline constexpr std::uint8_t open_tables = 15;
inline constexpr std::uint8_t full_journal = 16;
inline constexpr std::uint8_t oldest_journal = 17;
inline constexpr std::uint8_t latest_journal = 18;
inline constexpr std::uint8_t daily_journal = 19;
inline constexpr std::uint8_t all_stock = 20;
inline constexpr std::uint8_t stock_in_range = 21;
inline constexpr std::uint8_t last_report = 21;
inline constexpr std::uint8_t release = 22;
}  // namespace ToolFile

/// What a report's file is called, without ".bin"; the first is that of file number 3.
inline constexpr std::array<std::string_view, 19> report_file_names = {
    "C-I-D",       "FINANCIAL", "RANGE DEPT", "DEPT GROUP", "ALL PLU",    "RANGE PLU", "ALL CLERK",
    "ALL T-CLERK", "NT-CLERK",  "TIME",       "TRAINING",   "FINANCIAL2", "OPEN TBL",  "FULL EJ",
    "OLD EJ",      "LATE EJ",   "DAILY EJ",   "ASK",        "MSK"};
static_assert(report_file_names.size() == ToolFile::last_report - ToolFile::first_report + 1);

}  // namespace ecr

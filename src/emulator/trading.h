#pragma once
// The emulated register trades: a day of receipts on what it is programmed with, after which its totals, its journal,
// its stock and the counters that are its own have moved on. It never does so by itself.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "emulator/day_reports.h"

namespace ecr::trading {

enum class TradedDay : std::uint8_t {
  next,  ///< the day that follows: stock and counters move
  last,  ///< the day just over, for a register whose stock and counters stand as that day left them
};

/// Trades one day with what is held in `folder`, which ends with a backslash. Answers what kept it from doing so, in
/// words, which is empty if nothing did: programming that is missing, cannot be read or has a wrong length, or a file
/// that cannot be written.
[[nodiscard]] std::string trade(std::string_view folder, std::uint64_t seed, TradedDay which);

/// The bytes of report `number`, 3 to 21, of the register in `folder`; all totals are zero where it never traded. What
/// a range means to which report, DayReports::report and stock_report tell; a stock report of number 21 without a range
/// is that of 0 to 9999.
[[nodiscard]] std::string report_of(std::string_view folder, std::uint8_t number, const std::optional<Range>& range);

/// The records of the journal that the register in `folder` keeps, see journal.h; empty where it never traded.
[[nodiscard]] std::string journal_in(std::string_view folder);

}  // namespace ecr::trading

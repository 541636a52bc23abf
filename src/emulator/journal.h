#pragma once
// The electronic journal of a day: what was printed on each receipt, line for line, in the register's own characters
// and with the words that it is programmed with.
//
// A record has 26 bytes: 24 characters, a mark and a zero. No line begins with a zero byte.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "emulator/day.h"
#include "emulator/shop.h"

namespace ecr::trading {

namespace JournalForm {
inline constexpr std::size_t line_width = 24;
inline constexpr std::size_t record_size = 26;

// The mark of a line.
inline constexpr char plain_mark = 0;
inline constexpr char day_mark = 1;      ///< the first line of a day
inline constexpr char receipt_mark = 2;  ///< the first line of a receipt

/// The journal's memory. When it is full the oldest days go.
inline constexpr std::size_t lines_max = 30000;
}  // namespace JournalForm

/// The date of a day: day 1 is 1 January 2024.
[[nodiscard]] std::string date_of_day(std::uint64_t number);

/// The journal records of a day. `receipt_number` is that of the last receipt before it.
[[nodiscard]] std::string journal_of(const Day& day, const Shop& shop, std::uint64_t receipt_number);

/// The records of the days before and of this one, without those days, from the oldest on, for which there is no room.
[[nodiscard]] std::string journal_with(std::string_view before, std::string_view day);

/// The number of the next receipt: seven digits, then from 1 again.
[[nodiscard]] std::uint64_t next_receipt(std::uint64_t number);

}  // namespace ecr::trading

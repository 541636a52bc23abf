#pragma once
// The reports that the register hands over, made of the totals of a day, and the file TOTALS.BIN in which it keeps them
// until the next day. docs/formats/emulated-register.md has the layout of each record.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "emulator/shop.h"
#include "emulator/totals.h"

namespace ecr::trading {

/// A range of records as a report is asked for it, both ends included.
struct Range {
  std::int64_t from = 0;
  std::int64_t to = 0;

  [[nodiscard]] bool holds(std::int64_t number) const noexcept { return from <= number && number <= to; }
};

/// What the register has added up over all days.
struct GrandTotals {
  std::uint64_t total = 0;
  std::uint64_t gross = 0;    ///< total and refunds
  std::uint64_t refunds = 0;  ///< taken back since the first traded day
};

/// All that the register has counted, in the form in which it hands it over. The stock is not among it: that stands in
/// the item table.
class DayReports {
 public:
  /// Of a day's totals. `item_table` gives the codes of the items; `journal` are journal records, see journal.h.
  DayReports(const DayTotals& totals, const GrandTotals& grand, const Shop& shop, std::string_view item_table,
             std::string_view journal);

  /// As they stand in TOTALS.BIN; nothing if the bytes are too few.
  [[nodiscard]] static std::optional<DayReports> from(std::string_view bytes);

  [[nodiscard]] std::string_view bytes() const noexcept { return bytes_; }

  /// The bytes of report `number`, one of 3 to 19. `range` counts in departments (5), groups (6), item codes (8) and
  /// clerks (11); the other reports have none. Without a range, report 6 is its first group, 8 the first item, and 11
  /// the sum of all clerks.
  [[nodiscard]] std::string report(std::uint8_t number, const std::optional<Range>& range) const;

  [[nodiscard]] std::string_view journal() const noexcept;

  /// The refunds since the first traded day.
  [[nodiscard]] std::uint64_t refunds() const;

 private:
  explicit DayReports(std::string_view bytes) : bytes_{bytes} {}

  std::string bytes_;
};

/// The stock report of an item table: with a range, the items whose stock, in whole pieces, lies in it; without, a
/// record for each of the 3000 rows.
[[nodiscard]] std::string stock_report(std::string_view item_table, const std::optional<Range>& range);

}  // namespace ecr::trading

#pragma once
// The records of the reports, byte for byte: packed decimal fields in fixed places, without any head.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "emulator/totals.h"

namespace ecr::trading {

namespace RecordSize {
inline constexpr std::size_t clerk_body = 544;       ///< the totals of a clerk, behind his number
inline constexpr std::size_t short_financial = 552;  ///< the same and the grand total
inline constexpr std::size_t financial = 568;        ///< the same, its gross and the refunds
inline constexpr std::size_t clerk = 1 + clerk_body;
inline constexpr std::size_t department = 16;
inline constexpr std::size_t item = 36;
inline constexpr std::size_t hour = 10;
inline constexpr std::size_t table = 5;
inline constexpr std::size_t stock = 30;
}  // namespace RecordSize

/// Writes one field behind the other.
class RecordWriter {
 public:
  /// A number of one byte.
  RecordWriter& byte(std::size_t number);
  /// Four digits in two bytes.
  RecordWriter& count(std::int64_t number);
  /// Smallest units with a sign, in eight bytes.
  RecordWriter& amount(std::int64_t units);
  /// Ten-thousandths with a sign, in six bytes.
  RecordWriter& quantity(std::int64_t ten_thousandths);
  RecordWriter& counted(const Counted& counted) { return count(counted.count).amount(counted.total); }
  /// A binary number of four bytes, the least significant first.
  RecordWriter& binary(std::int64_t number);
  RecordWriter& bytes(std::string_view raw);

  [[nodiscard]] std::string take() { return std::move(record_); }

 private:
  std::string record_;
};

/// The 544 bytes that a clerk's record and the financial reports have in common.
[[nodiscard]] std::string totals_body(const Totals& totals);

}  // namespace ecr::trading

#pragma once
// What the register's report files look like, one layout for each report number, and what their CSV files look like.
//
// A report file has no head: it is a row of records of one size. Numbers in it are packed decimal, least significant
// pair first, but where the column's kind says otherwise.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace ecr {

enum class ColumnKind : std::uint8_t {
  value,   ///< signed packed decimal through Bcds_To_Stock: 8 bytes are an amount, any other width is a quantity
  count,   ///< unsigned packed decimal, without leading zeros
  byte,    ///< one binary byte
  int32,   ///< binary, signed, little-endian, never scaled
  text,    ///< register text, every character of it
  line,    ///< register text in which code 255 becomes a blank
  marked,  ///< register text in which the digits 255 become " 55"
};

struct ReportColumn {
  std::string_view heading;
  std::size_t offset = 0;  ///< bytes from the start of the record
  std::size_t width = 0;   ///< bytes
  ColumnKind kind = ColumnKind::value;
};

/// Where the number of records comes from.
enum class RecordCount : std::uint8_t {
  fixed,    ///< `records`, whatever the file holds; what it lacks reads as zeros
  by_size,  ///< the file's size over the record's, rounded to the nearest, halves to the even one
  journal,  ///< up to the first record that begins with a zero byte
};

struct ReportLayout {
  std::size_t record_size = 0;
  RecordCount count = RecordCount::fixed;
  std::size_t records = 0;                ///< of a fixed count
  std::span<const ReportColumn> columns;  ///< none: the report writes neither header nor lines
  const char* other_header = nullptr;     ///< the header, where it is not that of the columns
};

/// The layout of a report; nullptr for a number that has none.
[[nodiscard]] const ReportLayout* report_layout(std::uint8_t number);

/// The first line of a report's CSV file, without its end.
[[nodiscard]] std::string report_header(const ReportLayout& layout);

inline constexpr std::size_t financial_size = 568;
inline constexpr std::size_t short_financial_size = 552;
inline constexpr std::size_t clerk_size = 545;
inline constexpr std::size_t double_clerk_size = 1089;
inline constexpr std::size_t journal_record_size = 26;
inline constexpr std::size_t journal_line_width = 24;

extern const std::array<ReportColumn, 89> financial_columns;
extern const std::array<ReportColumn, 87> short_financial_columns;
extern const std::array<ReportColumn, 81> clerk_columns;
extern const std::array<ReportColumn, 64> double_clerk_columns;
extern const char double_clerk_header[];

/// Whether every column lies inside its record and has a width that its kind can have.
template <std::size_t N>
[[nodiscard]] constexpr bool columns_fit(const std::array<ReportColumn, N>& columns, std::size_t record_size) {
  for (const ReportColumn& column : columns) {
    const bool width_fits = column.kind == ColumnKind::byte    ? column.width == 1
                            : column.kind == ColumnKind::int32 ? column.width == 4
                                                               : column.width > 0;
    if (!width_fits || column.offset + column.width > record_size || column.heading.empty()) return false;
  }
  return true;
}

}  // namespace ecr

#pragma once
// The register's reports: one row for each, with everything that is known of it but the form of its file, which is in
// reports/layout.h. Whoever asks what a report is called, how long it may take or what is made of it asks here.
//
// The emulated register reads the names here, so that this header needs no more than core and tilbridge2.h.

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "core/catalogue.h"
#include "core/model.h"
#include "link/tilbridge2.h"

namespace ecr {

/// What a report tells of, and so how its table and its charts are made.
enum class ReportKind : std::uint8_t {
  none,  ///< of a number that is no report's
  drawer,
  financial,
  departments,
  department_group,
  items,
  item_range,  ///< its CSV file stays empty
  clerks,
  hours,
  open_tables,
  journal,
  stock,
  release,  ///< the firmware's banner: no report, but fetched like one
};

/// The records that a report is asked for, both ends included.
struct RecordRange {
  std::int32_t first = 0;
  std::int32_t last = 0;
  bool first_is_typed = false;  ///< the person types the first one; `first` stands in where nobody does
};

struct Report {
  std::uint8_t number = 0;  ///< one of TilbridgeFile
  std::string_view name{};  ///< the names of its files begin with it
  ReportKind kind = ReportKind::none;
  std::int32_t timeout = 0;  ///< seconds
  const char* caption = "";  ///< of its check box on the report screen
  std::optional<Key>
      caption_key{};  ///< without one the box is never shown: a tick in the file alone asks for the report
  std::optional<RecordRange> range{};  ///< none: it is asked for whole
  Models models = Models::both;
};

// clang-format off
inline constexpr std::array<Report, 20> report_rows = {{
    {.number = TILBRIDGE_FILE_CASH_IN_DRAWER, .name = "C-I-D", .kind = ReportKind::drawer, .timeout = 60,
     .caption = "Cash In Drawer Report", .caption_key = Key::FRM_REPORT_EXPORT_CHK_REPORT_3},
    {.number = TILBRIDGE_FILE_FINANCIAL, .name = "FINANCIAL", .kind = ReportKind::financial, .timeout = 60,
     .caption = "Financial (Z1) Report", .caption_key = Key::FRM_REPORT_EXPORT_CHK_REPORT_4},
    {.number = TILBRIDGE_FILE_DEPARTMENTS, .name = "RANGE DEPT", .kind = ReportKind::departments, .timeout = 120,
     .caption = "Range Department Report", .caption_key = Key::FRM_REPORT_EXPORT_CHK_REPORT_5,
     .range = RecordRange{.first = 1, .last = 99}},
    {.number = TILBRIDGE_FILE_DEPARTMENT_GROUP, .name = "DEPT GROUP", .kind = ReportKind::department_group, .timeout = 60,
     .caption = "Department Group Report"},
    {.number = TILBRIDGE_FILE_ALL_PLU, .name = "ALL PLU", .kind = ReportKind::items, .timeout = 180,
     .caption = "All PLU Report", .caption_key = Key::FRM_REPORT_EXPORT_CHK_REPORT_7},
    {.number = TILBRIDGE_FILE_PLU_RANGE, .name = "RANGE PLU", .kind = ReportKind::item_range, .timeout = 60,
     .caption = "Range PLU Report"},
    {.number = TILBRIDGE_FILE_CLERKS, .name = "ALL CLERK", .kind = ReportKind::clerks, .timeout = 60,
     .caption = "All Normal CLERK Report", .caption_key = Key::FRM_REPORT_EXPORT_CHK_REPORT_9},
    {.number = TILBRIDGE_FILE_TRAINING_CLERKS, .name = "ALL T-CLERK", .kind = ReportKind::clerks, .timeout = 60,
     .caption = "All Training CLERK Report", .caption_key = Key::FRM_REPORT_EXPORT_CHK_REPORT_10},
    {.number = TILBRIDGE_FILE_BOTH_CLERKS, .name = "NT-CLERK", .kind = ReportKind::clerks, .timeout = 60,
     .caption = "Normal + Training CLERK Report"},
    {.number = TILBRIDGE_FILE_TIME, .name = "TIME", .kind = ReportKind::hours, .timeout = 2,
     .caption = "Time Report", .caption_key = Key::FRM_REPORT_EXPORT_CHK_REPORT_12},
    {.number = TILBRIDGE_FILE_TRAINING, .name = "TRAINING", .kind = ReportKind::financial, .timeout = 60,
     .caption = "Training Report", .caption_key = Key::FRM_REPORT_EXPORT_CHK_REPORT_13},
    {.number = TILBRIDGE_FILE_FINANCIAL2, .name = "FINANCIAL2", .kind = ReportKind::financial, .timeout = 60,
     .caption = "Financial (Z2) Report", .caption_key = Key::FRM_REPORT_EXPORT_CHK_REPORT_14},
    {.number = TILBRIDGE_FILE_OPEN_TABLES, .name = "OPEN TBL", .kind = ReportKind::open_tables, .timeout = 60,
     .caption = "Open Table Report", .models = Models::z320_only},
    {.number = TILBRIDGE_FILE_FULL_JOURNAL, .name = "FULL EJ", .kind = ReportKind::journal, .timeout = 360,
     .caption = "Full Report for EJ", .caption_key = Key::FRM_REPORT_EXPORT_CHK_REPORT_16},
    {.number = TILBRIDGE_FILE_OLDEST_JOURNAL, .name = "OLD EJ", .kind = ReportKind::journal, .timeout = 360,
     .caption = "Oldest Report for EJ"},
    // Shorter than the other journals', on purpose.
    {.number = TILBRIDGE_FILE_LATEST_JOURNAL, .name = "LATE EJ", .kind = ReportKind::journal, .timeout = 60,
     .caption = "Lastest Report for EJ"},
    {.number = TILBRIDGE_FILE_DAILY_JOURNAL, .name = "DAILY EJ", .kind = ReportKind::journal, .timeout = 360,
     .caption = "Daily Report for EJ"},
    {.number = TILBRIDGE_FILE_ALL_STOCK, .name = "ASK", .kind = ReportKind::stock, .timeout = 60,
     .caption = "All PLU Stock Report", .caption_key = Key::FRM_REPORT_EXPORT_CHK_REPORT_20},
    {.number = TILBRIDGE_FILE_STOCK_RANGE, .name = "MSK", .kind = ReportKind::stock, .timeout = 120,
     .caption = "Mini PLU Stock Report", .caption_key = Key::FRM_REPORT_EXPORT_CHK_REPORT_21,
     .range = RecordRange{.first = 0, .last = 9999, .first_is_typed = true}},
    {.number = TILBRIDGE_FILE_RELEASE, .name = "RELEASE", .kind = ReportKind::release, .timeout = 60},
}};
// clang-format on

/// The rows that have a check box and become CSV files: all but the release.
inline constexpr std::span<const Report> exported_reports{report_rows.data(), report_rows.size() - 1};

/// The row of a file number; nullptr for a number that is no report's.
[[nodiscard]] constexpr const Report* report_numbered(std::uint8_t number) {
  for (const Report& report : report_rows) {
    if (report.number == number) return &report;
  }
  return nullptr;
}

/// Empty for a number that is no report's.
[[nodiscard]] constexpr std::string_view report_name(std::uint8_t number) {
  const Report* report = report_numbered(number);
  return report == nullptr ? std::string_view{} : report->name;
}

[[nodiscard]] constexpr ReportKind report_kind(std::uint8_t number) {
  const Report* report = report_numbered(number);
  return report == nullptr ? ReportKind::none : report->kind;
}

[[nodiscard]] constexpr bool is_journal(std::uint8_t number) {
  return report_kind(number) == ReportKind::journal;
}

namespace report_rows_proof {

/// Whether the numbers go up by one, each row has a name and a kind, and the release alone, at the end, has no box.
consteval bool are_sound() {
  for (std::size_t i = 0; i < report_rows.size(); ++i) {
    const Report& report = report_rows[i];
    if (report.number != report_rows.front().number + i || report.name.empty() || report.timeout <= 0) return false;
    if (report.kind == ReportKind::none) return false;
    if ((report.kind == ReportKind::release) != (i + 1 == report_rows.size())) return false;
    if ((*report.caption == '\0') != (report.kind == ReportKind::release)) return false;
    if (report.range && report.range->first > report.range->last) return false;
  }
  return true;
}
static_assert(are_sound());

}  // namespace report_rows_proof

}  // namespace ecr

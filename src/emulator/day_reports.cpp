#include "emulator/day_reports.h"

#include <array>
#include <cstring>
#include <utility>

#include "emulator/bcd.h"
#include "emulator/journal.h"
#include "emulator/report_records.h"
#include "image/prg_plu.h"
#include "link/tilbridge2.h"

namespace ecr::trading {
namespace {

constexpr std::size_t rows = plu_records_max;

/// A part of TOTALS.BIN. The journal follows behind the last one.
struct Section {
  std::size_t start;
  std::size_t size;

  [[nodiscard]] constexpr std::size_t end() const { return start + size; }
};

constexpr Section behind(const Section& other, std::size_t size) {
  return {other.end(), size};
}

constexpr Section financial{0, RecordSize::financial};
constexpr Section departments = behind(financial, department_count* RecordSize::department);
constexpr Section groups = behind(departments, group_count* RecordSize::department);
constexpr Section items = behind(groups, rows* RecordSize::item);
constexpr Section clerks = behind(items, clerk_count* RecordSize::clerk);
constexpr Section training_clerks = behind(clerks, clerk_count* RecordSize::clerk);
constexpr Section hours = behind(training_clerks, 24 * RecordSize::hour);
constexpr Section training = behind(hours, RecordSize::short_financial);
constexpr Section tables = behind(training, table_count* RecordSize::table);

constexpr std::size_t drawer_in_financial = 364;
constexpr std::size_t media_of_drawer_report = 5;
constexpr std::size_t amount_size = 8;
constexpr std::size_t refunds_in_financial = 560;

std::span<const std::uint8_t> field_of(std::string_view bytes, std::size_t start, std::size_t size) {
  return {reinterpret_cast<const std::uint8_t*>(bytes.data()) + start, size};
}

std::string records_of_departments(const DayTotals& totals, const Shop& shop) {
  RecordWriter record;
  for (std::size_t i = 0; i < department_count; ++i) {
    const Sold& sold = totals.departments.at(i);
    record.byte(static_cast<std::size_t>(shop.departments.at(i).group)).byte(i + 1);
    record.quantity(sold.quantity).amount(sold.total);
  }
  return record.take();
}

std::string records_of_groups(const DayTotals& totals, const Shop& shop) {
  RecordWriter record;
  for (std::size_t group = 1; group <= group_count; ++group) {
    Sold sum;
    for (std::size_t i = 0; i < department_count; ++i) {
      if (shop.departments.at(i).group != static_cast<int>(group)) continue;
      sum.quantity += totals.departments.at(i).quantity;
      sum.total += totals.departments.at(i).total;
    }
    record.byte(group).byte(0).quantity(sum.quantity).amount(sum.total);
  }
  return record.take();
}

std::string records_of_items(const DayTotals& totals, std::string_view item_table) {
  RecordWriter record;
  const std::size_t counted = item_count(item_table);
  for (std::size_t row = 0; row < rows; ++row) {
    if (row >= counted) {
      record.bytes(std::string(RecordSize::item, '\0'));
      continue;
    }
    const std::size_t start = plu_head_size + row * sizeof(PluRecord) + offsetof(PluRecord, Code);
    const DayTotals::Item sold = row < totals.items.size() ? totals.items[row] : DayTotals::Item{};
    record.bytes(item_table.substr(start, sizeof(PluRecord::Code)));
    record.quantity(sold.first.quantity).amount(sold.first.total);
    record.quantity(sold.second.quantity).amount(sold.second.total);
  }
  return record.take();
}

std::string records_of_clerks(const std::array<Totals, clerk_count>& clerks_of) {
  RecordWriter record;
  for (std::size_t i = 0; i < clerk_count; ++i) record.byte(i + 1).bytes(totals_body(clerks_of.at(i)));
  return record.take();
}

/// The records of a section whose number lies in the range.
template <typename Number>
std::string chosen(std::string_view records, std::size_t size, const Range& range, const Number& number_of) {
  std::string found;
  for (std::size_t start = 0; start + size <= records.size(); start += size) {
    const std::string_view record = records.substr(start, size);
    const std::optional<std::int64_t> number = number_of(record);
    if (number && range.holds(*number)) found += record;
  }
  return found;
}

std::optional<std::int64_t> byte_in(std::string_view record, std::size_t place) {
  return static_cast<unsigned char>(record[place]);
}

/// The code of an item; nothing where there is no item.
std::optional<std::int64_t> code_in(std::string_view record) {
  const std::uint64_t code = read_bcd(field_of(record, 0, amount_size)).value_or(0);
  return code == 0 ? std::nullopt : std::optional{static_cast<std::int64_t>(code)};
}

std::string first_records(std::string_view records, std::size_t size) {
  return std::string{records.substr(0, size)};
}

/// The journal of the oldest day that it holds, or of the newest: a day's first record is marked.
std::string_view day_in(std::string_view journal, bool newest) {
  std::size_t start = 0;
  for (std::size_t place = JournalForm::record_size; place + JournalForm::record_size <= journal.size();
       place += JournalForm::record_size) {
    if (journal[place + JournalForm::line_width] != JournalForm::day_mark) continue;
    if (!newest) return journal.substr(0, place);
    start = place;
  }
  return journal.substr(start);
}

}  // namespace

DayReports::DayReports(const DayTotals& totals, const GrandTotals& grand, const Shop& shop, std::string_view item_table,
                       std::string_view journal) {
  RecordWriter bytes;
  bytes.bytes(totals_body(totals.all));
  for (const std::uint64_t sum : {grand.total, grand.gross, grand.refunds}) {
    bytes.amount(static_cast<std::int64_t>(sum));
  }
  bytes.bytes(records_of_departments(totals, shop)).bytes(records_of_groups(totals, shop));
  bytes.bytes(records_of_items(totals, item_table));
  bytes.bytes(records_of_clerks(totals.clerks)).bytes(records_of_clerks(totals.training_clerks));
  for (const Counted& hour : totals.hours) bytes.counted(hour);
  bytes.bytes(totals_body(totals.training)).amount(0);
  for (std::size_t i = 0; i < table_count; ++i) bytes.byte(i + 1).binary(totals.open_tables.at(i));
  bytes.bytes(journal);
  bytes_ = bytes.take();
}

std::optional<DayReports> DayReports::from(std::string_view bytes) {
  if (bytes.size() < tables.end()) return std::nullopt;
  return DayReports{bytes};
}

std::string_view DayReports::journal() const noexcept {
  return std::string_view{bytes_}.substr(tables.end());
}

std::uint64_t DayReports::refunds() const {
  return read_bcd(field_of(bytes_, refunds_in_financial, amount_size)).value_or(0);
}

std::string DayReports::report(std::uint8_t number, const std::optional<Range>& range) const {
  const auto part = [this](const Section& section) {
    return std::string_view{bytes_}.substr(section.start, section.size);
  };
  const auto clerk_in = [](std::string_view record) { return byte_in(record, 0); };
  switch (number) {
    case TILBRIDGE_FILE_CASH_IN_DRAWER:
      return std::string{part(financial).substr(drawer_in_financial, media_of_drawer_report * amount_size)};
    case TILBRIDGE_FILE_FINANCIAL:
      return std::string{part(financial)};
    case TILBRIDGE_FILE_DEPARTMENTS:
      if (!range) return std::string{part(departments)};
      return chosen(part(departments), RecordSize::department, *range,
                    [](std::string_view record) { return byte_in(record, 1); });
    case TILBRIDGE_FILE_DEPARTMENT_GROUP:
      if (!range) return first_records(part(groups), RecordSize::department);
      return chosen(part(groups), RecordSize::department, *range, clerk_in);
    case TILBRIDGE_FILE_ALL_PLU:
      return std::string{part(items)};
    case TILBRIDGE_FILE_PLU_RANGE:
      if (!range) return first_records(part(items), RecordSize::item);
      return chosen(part(items), RecordSize::item, *range, code_in);
    case TILBRIDGE_FILE_CLERKS:
      return std::string{part(clerks)};
    case TILBRIDGE_FILE_TRAINING_CLERKS:
      return std::string{part(training_clerks)};
    case TILBRIDGE_FILE_BOTH_CLERKS: {
      if (!range) {
        const std::string_view normal = part(financial).substr(0, RecordSize::clerk_body);
        return RecordWriter{}.byte(0).bytes(normal).bytes(part(training).substr(0, RecordSize::clerk_body)).take();
      }
      std::string both;
      for (std::size_t i = 0; i < clerk_count; ++i) {
        if (!range->holds(static_cast<std::int64_t>(i) + 1)) continue;
        both += part(clerks).substr(i * RecordSize::clerk, RecordSize::clerk);
        both += part(training_clerks).substr(i * RecordSize::clerk + 1, RecordSize::clerk_body);
      }
      return both;
    }
    case TILBRIDGE_FILE_TIME:
      return std::string{part(hours)};
    case TILBRIDGE_FILE_TRAINING:
      return std::string{part(training)};
    case TILBRIDGE_FILE_FINANCIAL2:
      return std::string{part(financial).substr(0, RecordSize::short_financial)};
    case TILBRIDGE_FILE_OPEN_TABLES:
      return std::string{part(tables)};
    case TILBRIDGE_FILE_OLDEST_JOURNAL:
      return std::string{day_in(journal(), false)};
    case TILBRIDGE_FILE_LATEST_JOURNAL:
    case TILBRIDGE_FILE_DAILY_JOURNAL:
      return std::string{day_in(journal(), true)};
    default:
      return std::string{journal()};
  }
}

std::string stock_report(std::string_view item_table, const std::optional<Range>& range) {
  RecordWriter report;
  const std::size_t counted = item_count(item_table);
  for (std::size_t row = 0; row < rows; ++row) {
    PluRecord item{};
    item.Name.set({});
    if (row < counted) {
      std::memcpy(&item, item_table.data() + plu_head_size + row * sizeof item, sizeof item);
    }
    if (range) {
      const std::optional<std::int64_t> stock = read_signed_bcd(item.Stock);
      const bool there = read_bcd(item.Code).value_or(0) != 0 && stock;
      if (!there || *stock < range->from * one_piece || *stock > range->to * one_piece) continue;
    }
    const auto raw = [](std::span<const std::uint8_t> field) {
      return std::string_view{reinterpret_cast<const char*>(field.data()), field.size()};
    };
    report.bytes(raw(item.Code)).bytes(item.Name.view()).bytes(raw(item.Stock));
  }
  return report.take();
}

}  // namespace ecr::trading

#include "reports/export_report.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <string_view>
#include <vector>

#include "core/amount_text.h"
#include "core/codecs.h"
#include "core/files.h"
#include "core/global.h"
#include "core/register_text.h"
#include "core/run_log.h"
#include "link/report_rows.h"

namespace ecr {
namespace {

constexpr std::string_view line_end = "\r\n";

// Pieces in which a report passes through memory, in bytes.
constexpr std::size_t read_step = 64 * 1024;
constexpr std::size_t write_step = 64 * 1024;

/// A quotient rounded to the nearest whole number, halves to the even one.
std::uint64_t rounded_quotient(std::uint64_t number, std::uint64_t divisor) {
  const std::uint64_t whole = number / divisor;
  const std::uint64_t rest = number % divisor;
  const bool up = 2 * rest > divisor || (2 * rest == divisor && whole % 2 == 1);
  return whole + (up ? 1 : 0);
}

/// How many records are read at the most.
std::uint64_t records_to_read(const ReportLayout& layout, std::uint64_t file_size) {
  switch (layout.count) {
    case RecordCount::fixed:
      return layout.records;
    case RecordCount::by_size:
      return rounded_quotient(file_size, layout.record_size);
    case RecordCount::journal: {
      // Counted by the width of the text, not of the record, and in 16 bits: one that does not fit counts as none. One
      // record more than was counted is read.
      const std::uint64_t counted = rounded_quotient(file_size, journal_line_width);
      return (counted > static_cast<std::uint64_t>(std::numeric_limits<std::int16_t>::max()) ? 0 : counted) + 1;
    }
  }
  return 0;
}

/// Puts a blank over the first character of each place at which `mark` is found. The search goes on behind each place
/// only while that is in front of the last character.
void blank_out(std::span<char> line, std::string_view mark) {
  const std::string_view text{line.data(), line.size()};
  std::size_t place = text.find(mark);
  while (place != std::string_view::npos) {
    line[place] = ' ';
    if (place + 2 >= line.size()) return;
    place = text.find(mark, place + 1);
  }
}

/// Appends register text as text of the page, without `mark` where it has one.
void append_text(std::string& out, std::span<const std::uint8_t> field, std::string_view mark = {}) {
  const std::size_t before = out.size();
  out.append(reinterpret_cast<const char*>(field.data()), field.size());
  const std::span<char> text{out.data() + before, field.size()};
  if (!mark.empty()) blank_out(text, mark);
  from_ecr_in_place(text);
}

void append_field(std::string& out, ColumnKind kind, std::span<const std::uint8_t> field) {
  switch (kind) {
    case ColumnKind::value:
      append_stock(out, field);
      break;
    case ColumnKind::count:
      append_number(out, field);
      break;
    case ColumnKind::byte:
      out += std::to_string(field[0]);
      break;
    case ColumnKind::int32: {
      const std::uint32_t number = static_cast<std::uint32_t>(field[0]) | static_cast<std::uint32_t>(field[1]) << 8 |
                                   static_cast<std::uint32_t>(field[2]) << 16 |
                                   static_cast<std::uint32_t>(field[3]) << 24;
      out += std::to_string(std::bit_cast<std::int32_t>(number));
      break;
    }
    case ColumnKind::text:
      append_text(out, field);
      break;
    case ColumnKind::line:
      append_text(out, field, "\xFF");
      break;
    case ColumnKind::marked:
      append_text(out, field, "255");
      break;
  }
}

/// The output file: bytes are appended in large pieces. From the first piece on that cannot be written nothing is.
class Output {
 public:
  explicit Output(std::string path) : path_{std::move(path)}, fault_{append_file(path_, {})} {
    text.reserve(write_step + write_step / 4);
  }

  void write_if_large() {
    if (text.size() >= write_step) write();
  }

  /// Writes what is left. Answers the fault that ended the writing, if there was one.
  Fault finish() {
    write();
    return fault_;
  }

  std::string text;

 private:
  void write() {
    if (!text.empty() && !fault_.stands()) fault_ = append_file(path_, text);
    text.clear();
  }

  std::string path_;
  Fault fault_;
};

void write_lines(const ReportLayout& layout, FileReader& file, Output& out) {
  const std::size_t size = layout.record_size;
  std::vector<std::uint8_t> buffer(read_step / size * size);
  std::uint64_t left = records_to_read(layout, file.size());
  while (left > 0) {
    const std::size_t records = static_cast<std::size_t>(std::min<std::uint64_t>(left, buffer.size() / size));
    const std::span<std::uint8_t> piece{buffer.data(), records * size};
    const std::size_t filled = file.read(piece);
    std::fill(piece.begin() + static_cast<std::ptrdiff_t>(filled), piece.end(), std::uint8_t{0});
    for (std::size_t i = 0; i < records; ++i) {
      const std::span<const std::uint8_t> record = piece.subspan(i * size, size);
      if (layout.count == RecordCount::journal && record[0] == 0) return;
      append_report_line(out.text, layout, record);
      out.write_if_large();
    }
    left -= records;
  }
}

/// The name of the report's file in PathDati, empty if there is none.
std::string report_file(std::uint8_t number) {
  const Report* report = report_numbered(number);
  if (report == nullptr) return {};
  const std::vector<std::string> names = files_matching(Global::PathDati, std::string{report->name} + "*.bin");
  return names.empty() ? std::string{} : names.front();
}

}  // namespace

void append_report_line(std::string& out, const ReportLayout& layout, std::span<const std::uint8_t> record) {
  bool first = true;
  for (const ReportColumn& column : layout.columns) {
    if (!first) out += ';';
    first = false;
    append_field(out, column.kind, record.subspan(column.offset, column.width));
  }
  out += line_end;
}

CsvOutcome export_ReportEcr(std::uint8_t number) {
  const std::string name = report_file(number);
  if (name.empty()) {
    memo_log("export_ReportEcr. file per report " + std::to_string(number) + " non trovato");
    return {};
  }
  FileReader file{Global::PathDati + name};
  const std::string csv_name = name.substr(0, name.size() - 3) + "csv";
  Output out{Global::PathReport + csv_name};
  const ReportLayout* layout = report_layout(number);
  if (layout != nullptr && !layout->columns.empty()) {
    out.text = report_header(*layout);
    out.text += line_end;
    write_lines(*layout, file, out);
  }
  return {csv_name, out.finish()};
}

}  // namespace ecr

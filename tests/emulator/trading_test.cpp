#include "emulator/trading_test.h"

#include <cstring>
#include <fstream>
#include <iterator>

#include "core/codecs.h"
#include "core/global.h"
#include "core/register_text.h"
#include "core/text.h"
#include "link/report_rows.h"
#include "reports/export_report.h"

namespace ecr::test {
namespace {

std::string installed(const std::string& name) {
  std::ifstream file{VERMANTO_APP "/" + name, std::ios::binary};
  EXPECT_TRUE(file.is_open()) << name;
  return {std::istreambuf_iterator<char>{file}, std::istreambuf_iterator<char>{}};
}

std::vector<std::string> parts_of(const std::string& text) {
  std::vector<std::string> parts{""};
  for (const char c : text) {
    if (c == ';') {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  return parts;
}

std::int64_t scaled(const std::string& text, std::size_t decimals) {
  const std::size_t point = text.find('.');
  std::string digits = text.substr(0, point);
  std::string behind = point == std::string::npos ? "" : text.substr(point + 1);
  EXPECT_LE(behind.size(), decimals) << text;
  behind.resize(decimals, '0');
  return std::stoll(digits + behind);
}

}  // namespace

std::int64_t units(const std::string& amount) {
  return scaled(amount, 2);
}

std::int64_t ten_thousandths(const std::string& quantity) {
  return scaled(quantity, 4);
}

std::int64_t sum_of(const ReportTable& table, const std::string& heading) {
  std::int64_t sum = 0;
  for (const auto& line : table) sum += units(line.at(heading));
  return sum;
}

std::int64_t quantity_of(const ReportTable& table, const std::string& heading) {
  std::int64_t sum = 0;
  for (const auto& line : table) sum += ten_thousandths(line.at(heading));
  return sum;
}

std::int64_t count_of(const ReportTable& table, const std::string& heading) {
  std::int64_t sum = 0;
  for (const auto& line : table) sum += std::stoll(line.at(heading));
  return sum;
}

std::string JournalEntry::right_of(const std::string& left) const {
  for (const std::string& line : lines) {
    if (line.starts_with(left + " ")) return line.substr(line.rfind(' ') + 1);
  }
  return {};
}

bool JournalEntry::has(const std::string& left) const {
  for (const std::string& line : lines) {
    if (line == left || line.starts_with(left + " ")) return true;
  }
  return false;
}

void TradingTest::become(std::string_view model) {
  const std::string samples = "register/samples/" + std::string{model} + "/";
  write("register/PRG_MODE.BIN", installed(samples + "PRG_MODE.BIN"));
  write("register/PRG_PLU.BIN", installed(samples + "PRG_PLU.BIN"));
  if (exists("register/TOTALS.BIN")) remove("register/TOTALS.BIN");
  make_folder("Report");
  Global::DecimalPoint = 2;
}

void TradingTest::trade(int days) {
  set("trade = " + std::to_string(days));
  EXPECT_EQ(send_cmd(upload, 12), done);
}

std::string TradingTest::fetched(std::uint8_t number) const {
  EXPECT_EQ(send_cmd(upload, number), done) << int{number};
  return bytes("Dati/" + std::string{report_name(number)} + ".bin");
}

std::string TradingTest::fetched(std::uint8_t number, std::int32_t from, std::int32_t to) const {
  EXPECT_EQ(range_report(number, from, to), done) << int{number};
  return bytes("Dati/" + std::string{report_name(number)} + ".bin");
}

ReportTable TradingTest::table(std::uint8_t number) const {
  // The decoder takes the first file whose name begins with the report's.
  remove("Dati");
  make_folder("Dati");
  static_cast<void>(fetched(number));
  const std::string csv = "Report/" + std::string{report_name(number)} + ".csv";
  if (exists(csv)) remove(csv);
  static_cast<void>(export_ReportEcr(number));
  const std::string text = bytes(csv);
  ReportTable table;
  std::vector<std::string> headings;
  for (const std::string_view line : lines_of(text)) {
    const std::vector<std::string> values = parts_of(std::string{line});
    if (headings.empty()) {
      headings = values;
      continue;
    }
    auto& row = table.emplace_back();
    for (std::size_t i = 0; i < values.size(); ++i) row[headings.at(i)] = values[i];
  }
  return table;
}

std::vector<std::string> TradingTest::journal_lines(std::uint8_t number) const {
  std::vector<std::string> lines;
  for (const auto& row : table(number)) lines.push_back(row.at("LineFromEj"));
  return lines;
}

std::vector<JournalEntry> TradingTest::journal(std::uint8_t number) const {
  std::vector<JournalEntry> entries;
  bool behind_blank = true;
  bool in_head = true;
  for (const std::string& line : journal_lines(number)) {
    EXPECT_EQ(line.size(), 24U) << line;
    const std::string text{trim_end(line)};
    if (text.empty()) {
      behind_blank = true;
      in_head = false;
      continue;
    }
    if (in_head) continue;
    if (behind_blank) entries.emplace_back();
    behind_blank = false;
    entries.back().lines.push_back(text);
  }
  return entries;
}

PrgModeImage TradingTest::image() const {
  const std::string held = bytes("register/PRG_MODE.BIN");
  PrgModeImage image{};
  EXPECT_EQ(held.size(), sizeof image);
  std::memcpy(&image, held.data(), std::min(held.size(), sizeof image));
  return image;
}

std::vector<PluRecord> TradingTest::items() const {
  const std::string held = bytes("register/PRG_PLU.BIN");
  std::vector<PluRecord> items((held.size() - plu_head_size) / sizeof(PluRecord));
  std::memcpy(items.data(), held.data() + plu_head_size, items.size() * sizeof(PluRecord));
  return items;
}

std::string TradingTest::word(std::size_t caption) const {
  return std::string{trim_end(sostituzione_from_ecr(image().Caption.at(caption - 1).view()))};
}

std::int64_t packed_number(std::string_view field) {
  std::int64_t number = 0;
  for (std::size_t i = field.size(); i-- > 0;) {
    const auto byte = static_cast<unsigned char>(field[i]);
    if (byte >> 4U > 9 || (byte & 15U) > 9) return -1;
    number = number * 100 + (byte >> 4U) * 10 + (byte & 15U);
  }
  return number;
}

std::int64_t signed_number(std::string_view field) {
  std::int64_t sign = 1;
  for (std::size_t i = 1; i < 2 * field.size(); ++i) sign *= 10;
  const std::int64_t number = packed_number(field);
  return number > sign ? -(number % sign) : number;
}

}  // namespace ecr::test

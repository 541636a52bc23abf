// The emulated register trades on programming of any bytes, with totals of any bytes before it: whatever comes out, the
// reports have their lengths and agree with each other.

#include "emulator/trading.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/files.h"
#include "core/global.h"
#include "emulator/bcd.h"
#include "emulator/journal.h"
#include "image/prg_mode.h"
#include "image/prg_plu.h"
#include "link/report_rows.h"
#include "link/tilbridge2.h"
#include "support/installation.h"

namespace ecr::fuzz::trading_target {
namespace {
using trading::Range;

std::int64_t amount_at(std::string_view report, std::size_t place) {
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(report.data()) + place;
  const auto amount = trading::read_signed_bcd({bytes, 8});
  require(amount.has_value(), "an amount has digits only");
  return *amount;
}

/// The item table of as many whole records as `bytes` has.
std::string item_table(std::string_view bytes) {
  const std::size_t count = std::min<std::size_t>(bytes.size() / sizeof(PluRecord), plu_records_max);
  std::string table(plu_head_size, '\0');
  table[0] = static_cast<char>(count & 0xFF);
  table[1] = static_cast<char>(count >> 8U);
  return table.append(bytes.substr(0, count * sizeof(PluRecord)));
}

/// Every report by itself takes a file to read, so each round asks for one of them, and for one with a range.
void expect_lengths(std::string_view folder, std::size_t round) {
  const std::uint8_t number = exported_reports[round % exported_reports.size()].number;
  static_cast<void>(trading::report_of(folder, number, Range{-1, 7}));
  require(trading::report_of(folder, TILBRIDGE_FILE_FINANCIAL, std::nullopt).size() == 568,
          "the financial report is whole");
  require(trading::report_of(folder, TILBRIDGE_FILE_ALL_STOCK, std::nullopt).size() == 90000, "so is the stock");
}

void expect_agreement(std::string_view folder) {
  const std::string financial = trading::report_of(folder, TILBRIDGE_FILE_FINANCIAL, std::nullopt);
  const std::string departments = trading::report_of(folder, TILBRIDGE_FILE_DEPARTMENTS, std::nullopt);
  std::int64_t sold = 0;
  for (std::size_t record = 0; record < departments.size(); record += 16) sold += amount_at(departments, record + 8);
  require(sold == amount_at(financial, 0), "the departments sum to the financial report");
  std::int64_t paid = 0;
  for (std::size_t medium = 0; medium < 9; ++medium) paid += amount_at(financial, 254 + 10 * medium);
  require(paid == amount_at(financial, 228), "so do the media");
  const std::string hours = trading::report_of(folder, TILBRIDGE_FILE_TIME, std::nullopt);
  std::int64_t day = 0;
  for (std::size_t hour = 0; hour < 24; ++hour) day += amount_at(hours, hour * 10 + 2);
  require(day == paid, "and the hours");
  const std::string journal = trading::report_of(folder, TILBRIDGE_FILE_DAILY_JOURNAL, std::nullopt);
  require(!journal.empty() && journal.size() % trading::JournalForm::record_size == 0, "the journal is of whole lines");
  for (std::size_t line = 0; line < journal.size(); line += trading::JournalForm::record_size) {
    require(journal[line] != '\0', "and no line ends it");
  }
}

}  // namespace

FUZZ_TARGET(trading) {
  static const Installation installation;
  const std::string file = file_of(data, size);
  const std::string folder = Global::PathApp + "register\\";
  std::string image = file.substr(0, prg_mode_size);
  image.resize(prg_mode_size, '\0');
  installation.write("register/PRG_MODE.BIN", image);
  installation.write("register/PRG_PLU.BIN",
                     item_table(std::string_view{file}.substr(std::min(file.size(), prg_mode_size))));
  installation.write("register/TOTALS.BIN", file);
  expect_lengths(folder, size);

  // Totals long enough to be taken, with the input for what they hold.
  std::string totals;
  while (totals.size() < 130000) totals += file.empty() ? std::string(130000, '\0') : file;
  installation.write("register/TOTALS.BIN", totals);
  expect_lengths(folder, size);
  require(trading::trade(folder, size, trading::TradedDay::next).empty(), "any programming can be traded on");
  expect_agreement(folder);
  installation.remove("register");
  return 0;
}

}  // namespace ecr::fuzz::trading_target

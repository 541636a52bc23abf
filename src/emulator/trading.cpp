#include "emulator/trading.h"

#include <cstring>
#include <string>
#include <vector>

#include "core/files.h"
#include "emulator/bcd.h"
#include "emulator/day.h"
#include "emulator/journal.h"
#include "emulator/memory.h"
#include "emulator/shop.h"
#include "emulator/totals.h"
#include "image/prg_mode.h"
#include "image/prg_plu.h"
#include "link/tilbridge2.h"

namespace ecr::trading {
namespace {

constexpr std::string_view totals_name = "TOTALS.BIN";
constexpr std::uint64_t grand_total_end = 1'000'000'000'000'000;  ///< a report has fifteen digits and a sign

/// The day's number, and that of a close: four digits, then from 1 again.
std::uint64_t next_close(std::uint64_t number) {
  constexpr std::uint64_t highest = 9999;
  return number % highest + 1;
}

/// The number of the receipt that came `count` receipts before this one.
std::uint64_t receipt_before(std::uint64_t number, std::uint64_t count) {
  constexpr std::uint64_t highest = 9'999'999;
  return number > count ? number - count : number + highest - count;
}

std::uint64_t receipt_after(std::uint64_t number, std::uint64_t count) {
  for (; count > 0; --count) number = next_receipt(number);
  return number;
}

std::uint64_t added(std::uint64_t total, std::int64_t amount) {
  const auto sum = static_cast<std::int64_t>(total % grand_total_end) + amount;
  return sum < 0 ? 0 : static_cast<std::uint64_t>(sum) % grand_total_end;
}

std::optional<DayReports> kept(std::string_view folder) {
  std::string bytes;
  if (read_file(std::string{folder} + std::string{totals_name}, bytes).stands()) return std::nullopt;
  return DayReports::from(bytes);
}

/// What sold goes off the stock of each item that keeps one. A stock that is no number stays as it is.
void take_from_stock(std::string& item_table, const DayTotals& totals) {
  constexpr unsigned stock_used = 5;
  for (std::size_t row = 0; row < totals.items.size(); ++row) {
    const std::int64_t sold = totals.items[row].first.quantity + totals.items[row].second.quantity;
    char* place = item_table.data() + plu_head_size + row * sizeof(PluRecord);
    PluRecord item{};
    std::memcpy(&item, place, sizeof item);
    const std::optional<std::int64_t> stock = read_signed_bcd(item.Stock);
    if (sold == 0 || !stock || (item.Flags1 >> stock_used & 1U) == 0) continue;
    write_signed_bcd(item.Stock, *stock - sold);
    std::memcpy(place, &item, sizeof item);
  }
}

struct Programming {
  PrgModeImage image{};
  std::string items;
};

std::string words_for(std::string_view file, const Fault& fault) {
  return fault.stands() ? std::string{file} + ": " + std::string{fault.description()} : std::string{};
}

/// Answers what is wrong with one of the files, in words.
std::string fetch(const RegisterMemory& memory, std::uint8_t file, std::string& bytes) {
  const std::string_view name = RegisterMemory::file_name(file);
  if (const Fault fault = memory.fetch(file, bytes); fault.stands()) return words_for(name, fault);
  return RegisterMemory::fits(file, bytes) ? std::string{} : std::string{name} + ": wrong length";
}

std::string fetch(const RegisterMemory& memory, Programming& programming) {
  std::string bytes;
  if (std::string wrong = fetch(memory, TILBRIDGE_FILE_IMAGE, bytes); !wrong.empty()) return wrong;
  std::memcpy(&programming.image, bytes.data(), sizeof programming.image);
  return fetch(memory, TILBRIDGE_FILE_PLU, programming.items);
}

std::string hold(const RegisterMemory& memory, std::uint8_t file, std::string_view bytes) {
  return words_for(RegisterMemory::file_name(file), memory.hold(file, bytes));
}

/// The records are there, and all totals zero.
DayReports never_traded(const RegisterMemory& memory) {
  Programming programming;
  // What cannot be read is as good as nothing programmed.
  if (!fetch(memory, programming).empty()) programming = {};
  const Shop shop = shop_of(programming.image, programming.items);
  GrandTotals grand;
  grand.total = shop.grand_total % grand_total_end;
  grand.gross = grand.total;
  return DayReports{DayTotals{}, grand, shop, programming.items, {}};
}

}  // namespace

std::string trade(std::string_view folder, std::uint64_t seed, TradedDay which) {
  const RegisterMemory memory{folder};
  Programming programming;
  if (std::string wrong = fetch(memory, programming); !wrong.empty()) return wrong;
  const Shop shop = shop_of(programming.image, programming.items);
  const bool moves = which == TradedDay::next;
  const Day day = trade_day(shop, seed, moves ? next_close(shop.z1) : shop.z1);
  const DayTotals totals = totals_of(day, shop, item_count(programming.items));

  const std::uint64_t receipts = day.numbered_entries();
  const std::uint64_t last_before = moves ? shop.receipt_number : receipt_before(shop.receipt_number, receipts);
  const std::optional<DayReports> before = kept(folder);
  GrandTotals grand;
  grand.total = moves ? added(shop.grand_total, totals.all.net) : shop.grand_total % grand_total_end;
  grand.refunds = added(before ? before->refunds() : 0, totals.all.refunds.total);
  grand.gross = (grand.total + grand.refunds) % grand_total_end;
  const DayReports reports{
      totals, grand, shop, programming.items,
      journal_with(before ? before->journal() : std::string_view{}, journal_of(day, shop, last_before))};

  if (moves) {
    take_from_stock(programming.items, totals);
    write_bcd(programming.image.SysOpt3, receipt_after(shop.receipt_number, receipts));
    write_bcd(programming.image.SysOpt5, day.number);
    write_bcd(programming.image.SysOpt6, next_close(shop.z2));
    write_bcd(programming.image.SysOpt7, grand.total);
    if (std::string wrong = hold(memory, TILBRIDGE_FILE_PLU, programming.items); !wrong.empty()) return wrong;
    const std::string_view image = bytes_of_image(programming.image);
    if (std::string wrong = hold(memory, TILBRIDGE_FILE_IMAGE, image); !wrong.empty()) return wrong;
  }
  return words_for(totals_name, save_file(std::string{folder} + std::string{totals_name}, reports.bytes()));
}

std::string report_of(std::string_view folder, std::uint8_t number, const std::optional<Range>& range) {
  const RegisterMemory memory{folder};
  if (number == TILBRIDGE_FILE_ALL_STOCK || number == TILBRIDGE_FILE_STOCK_RANGE) {
    std::string items;
    // A table that cannot be read holds no items.
    static_cast<void>(memory.fetch(TILBRIDGE_FILE_PLU, items));
    if (number == TILBRIDGE_FILE_ALL_STOCK) return stock_report(items, std::nullopt);
    constexpr Range any_stock{0, 9999};
    return stock_report(items, range.value_or(any_stock));
  }
  if (const std::optional<DayReports> reports = kept(folder)) return reports->report(number, range);
  return never_traded(memory).report(number, range);
}

std::string journal_in(std::string_view folder) {
  const std::optional<DayReports> reports = kept(folder);
  return reports ? std::string{reports->journal()} : std::string{};
}

}  // namespace ecr::trading

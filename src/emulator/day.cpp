#include "emulator/day.h"

#include <algorithm>
#include <span>

#include "emulator/basket.h"
#include "emulator/chance.h"

namespace ecr::trading {
namespace {

// How busy each hour of the day is.
// clang-format off
constexpr std::array<int, 24> hours_of_cafe = {
    0, 0, 0, 0, 0, 0, 0, 0, 6, 8, 6, 7, 13, 12, 6, 4, 5, 8, 9, 9, 6, 3, 0, 0};
constexpr std::array<int, 24> hours_of_bakery = {
    0, 0, 0, 0, 0, 0, 9, 14, 13, 9, 8, 7, 8, 5, 4, 5, 7, 8, 4, 0, 0, 0, 0, 0};
// clang-format on

constexpr std::int64_t minutes_of_hour = 60;

/// Those who work, in training or not; where nobody has a password, the first clerk who fits works alone.
std::vector<std::size_t> staff(const Shop& shop, bool training) {
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < clerk_count; ++i) {
    if (shop.clerks.at(i).works && shop.clerks.at(i).training == training) found.push_back(i);
  }
  for (std::size_t i = 0; !training && found.empty() && i < clerk_count; ++i) {
    if (!shop.clerks.at(i).training) found.push_back(i);
  }
  // Where all are in training, the day has to be worked by one of them.
  if (!training && found.empty()) found.push_back(0);
  return found;
}

std::size_t any_of(const std::vector<std::size_t>& places, Chance& chance) {
  return places.at(static_cast<std::size_t>(chance.from(0, static_cast<std::int64_t>(places.size()) - 1)));
}

/// Writes the day's entries one after another; trade_day brings them into the order of time.
class DayBook {
 public:
  DayBook(const Shop& shop, std::uint64_t seed, std::uint64_t number)
      : shop_{shop}, chance_{seed * 1'000'003 + number}, goods_{shop, seed}, clerks_{staff(shop, false)} {}

  void sales() {
    const std::int64_t count = chance_.from(90, 130);
    for (std::int64_t i = 0; i < count; ++i) {
      Entry entry = begun(Entry::Kind::sale);
      constexpr int table_chance = 30;
      constexpr int take_out_chance = 25;
      constexpr int full_void_chance = 2;
      constexpr int copy_chance = 2;
      if (shop_.has_tables && chance_.percent(table_chance)) {
        sit_down(entry);
        entry.proforma = chance_.percent(50);
      } else {
        entry.take_out = chance_.percent(take_out_chance);
      }
      fill_basket(entry, shop_, goods_, chance_);
      if (entry.total <= 0) continue;
      if (entry.table == 0 && shop_.clerks.at(entry.clerk).voids && chance_.percent(full_void_chance)) {
        entry.kind = Entry::Kind::full_void;
      } else {
        pay(entry, shop_, chance_);
        entry.copied = chance_.percent(copy_chance);
      }
      day_.entries.push_back(std::move(entry));
    }
  }

  void training() {
    const std::vector<std::size_t> trainees = staff(shop_, true);
    if (trainees.empty()) return;
    const std::int64_t count = chance_.from(3, 6);
    for (std::int64_t i = 0; i < count; ++i) {
      Entry entry = begun(Entry::Kind::training);
      entry.clerk = any_of(trainees, chance_);
      fill_basket(entry, shop_, goods_, chance_);
      if (entry.total <= 0) continue;
      pay(entry, shop_, chance_);
      day_.entries.push_back(std::move(entry));
    }
  }

  /// Tables that nobody has paid for yet when the day is read.
  void open_tables() {
    if (!shop_.has_tables) return;
    const std::int64_t count = chance_.from(3, 6);
    for (std::int64_t i = 0; i < count; ++i) {
      Entry entry = begun(Entry::Kind::open_table);
      entry.minute = static_cast<int>(chance_.from(21 * minutes_of_hour, 22 * minutes_of_hour - 1));
      sit_down(entry);
      fill_basket(entry, shop_, goods_, chance_);
      const auto taken = [&](const Entry& other) { return other.kind == entry.kind && other.table == entry.table; };
      if (entry.total <= 0 || std::any_of(day_.entries.begin(), day_.entries.end(), taken)) continue;
      day_.entries.push_back(std::move(entry));
    }
  }

  void money_in_and_out() {
    add_amount(Entry::Kind::received_on_account, shop_.received_limit);
    add_amount(Entry::Kind::paid_out, shop_.paid_out_limit);
    const std::int64_t count = chance_.from(1, 4);
    for (std::int64_t i = 0; i < count; ++i) day_.entries.push_back(begun(Entry::Kind::no_sale));
  }

  Day finished(std::uint64_t number) {
    day_.number = number;
    day_.petty_cash = 100 * shop_.unit();
    std::stable_sort(day_.entries.begin(), day_.entries.end(),
                     [](const Entry& one, const Entry& other) { return one.minute < other.minute; });
    return std::move(day_);
  }

 private:
  Entry begun(Entry::Kind kind) {
    Entry entry;
    entry.kind = kind;
    const auto hour = chance_.pick(shop_.has_tables ? hours_of_cafe : hours_of_bakery);
    entry.minute = static_cast<int>(static_cast<std::int64_t>(hour) * minutes_of_hour + chance_.from(0, 59));
    entry.clerk = any_of(clerks_, chance_);
    return entry;
  }

  void sit_down(Entry& entry) {
    entry.table = static_cast<std::uint8_t>(chance_.from(1, 24));
    entry.guests = static_cast<std::uint8_t>(chance_.from(1, 5));
  }

  void add_amount(Entry::Kind kind, std::int64_t limit) {
    const std::int64_t count = chance_.from(1, 2);
    for (std::int64_t i = 0; i < count; ++i) {
      Entry entry = begun(kind);
      entry.total = std::clamp<std::int64_t>(chance_.from(5, 40) * shop_.unit(), 1, limit);
      const bool allowed = kind != Entry::Kind::paid_out || shop_.clerks.at(entry.clerk).pays_out;
      if (allowed) day_.entries.push_back(std::move(entry));
    }
  }

  const Shop& shop_;
  Chance chance_;
  Goods goods_;
  std::vector<std::size_t> clerks_;
  Day day_;
};

}  // namespace

std::int64_t Entry::tax_amount(const Shop& shop, std::size_t tax) const {
  constexpr std::int64_t whole = 100'000;
  const std::int64_t rate = shop.rates.at(tax - 1);
  return shop.rounded(taxable.at(tax), rate, whole + rate);
}

std::uint64_t Day::numbered_entries() const {
  return static_cast<std::uint64_t>(
      std::count_if(entries.begin(), entries.end(), [](const Entry& entry) { return entry.is_numbered(); }));
}

Day trade_day(const Shop& shop, std::uint64_t seed, std::uint64_t number) {
  DayBook book{shop, seed, number};
  book.sales();
  book.training();
  book.open_tables();
  book.money_in_and_out();
  return book.finished(number);
}

}  // namespace ecr::trading

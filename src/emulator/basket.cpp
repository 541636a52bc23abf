#include "emulator/basket.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace ecr::trading {
namespace {

/// A price keyed in, one to fifteen whole ones in steps of a tenth, as far as the key's limit allows.
std::int64_t keyed_price(const Shop& shop, Chance& chance, std::int64_t limit) {
  const std::int64_t price = chance.from(10, 150) * shop.unit() / 10;
  return std::clamp<std::int64_t>(price, 1, limit);
}

Line priced(const Shop& shop, Line line) {
  line.amount = shop.rounded(line.price, line.quantity, one_piece);
  return line;
}

bool is_percentage(Modifier modifier) {
  return modifier >= Modifier::item_percent1;
}

/// The key of a modifier, 0 or 1: the kinds stand in the order item 1, subtotal 1, item 2, subtotal 2.
std::size_t key_of(Modifier modifier) {
  return static_cast<std::size_t>(modifier) / 2 % 2;
}

/// One of the keys, drawn step by step: a call's arguments would be drawn in an order of the compiler's own.
Modifier any_modifier(Chance& chance, bool subtotal) {
  constexpr int percentage_chance = 60;
  const unsigned percentage = chance.percent(percentage_chance) ? 4 : 0;
  const unsigned second = chance.percent(50) ? 2 : 0;
  return static_cast<Modifier>(percentage + second + (subtotal ? 1 : 0));
}

/// What the key makes of an amount above zero; 0 if it is not programmed, or would leave nothing.
std::int64_t modification(const Shop& shop, Chance& chance, Modifier modifier, std::int64_t amount) {
  std::int64_t change = 0;
  bool discount = true;
  if (is_percentage(modifier)) {
    constexpr std::int64_t whole = 10000;
    const Shop::Percentage& key = shop.percentages.at(key_of(modifier));
    change = shop.rounded(amount, key.rate, whole);
    discount = key.discount;
  } else {
    const Shop::PlusMinus& key = shop.plus_minus.at(key_of(modifier));
    change = std::clamp<std::int64_t>(chance.from(2, 10) * shop.unit() / 10, 1, key.limit);
    discount = key.discount;
  }
  if (change >= amount) return 0;
  return discount ? -change : change;
}

/// Shares `change` out over what was sold at each rate; the last share takes what rounding leaves.
void share_out(Entry& entry, const Shop& shop, std::int64_t change) {
  std::int64_t left = change;
  std::size_t last = 0;
  const std::int64_t whole = entry.total;
  const std::array<std::int64_t, tax_count + 1> before = entry.taxable;
  for (std::size_t tax = 0; tax < before.size(); ++tax) {
    if (before.at(tax) <= 0) continue;
    last = tax;
    const std::int64_t share = whole == 0 ? 0 : shop.rounded(before.at(tax), change, whole);
    entry.taxable.at(tax) += share;
    left -= share;
  }
  entry.taxable.at(last) += left;
  entry.total += change;
}

/// The clerk takes a line out again, or takes back what was bought another day.
void take_back(Entry& entry, const Shop& shop, const Goods& goods, Chance& chance) {
  constexpr int void_chance = 6;
  constexpr int refund_chance = 8;
  const Shop::Clerk& clerk = shop.clerks.at(entry.clerk);
  if (clerk.voids && entry.lines.size() > 1 && chance.percent(void_chance)) {
    const auto place = static_cast<std::size_t>(chance.from(0, static_cast<std::int64_t>(entry.lines.size()) - 1));
    entry.lines.at(place).kind = Line::Kind::voided;
  }
  if (clerk.refunds && chance.percent(refund_chance)) {
    Line line = goods.pick(chance, false, entry.take_out);
    if (line.amount > 0) {
      line.kind = Line::Kind::refund;
      line.amount = -line.amount;
      entry.lines.push_back(line);
    }
  }
}

void modify(Entry& entry, const Shop& shop, Chance& chance) {
  constexpr int item_chance = 5;
  constexpr int subtotal_chance = 6;
  if (!shop.clerks.at(entry.clerk).discounts) return;
  for (Line& line : entry.lines) {
    if (line.kind != Line::Kind::sale || line.amount <= 0 || !chance.percent(item_chance)) continue;
    const Modifier modifier = any_modifier(chance, false);
    line.modified_by = modification(shop, chance, modifier, line.amount);
    if (line.modified_by != 0) line.modifier = modifier;
  }
  add_up(entry, shop);
  if (entry.total <= 0 || !chance.percent(subtotal_chance)) return;
  const Modifier modifier = any_modifier(chance, true);
  entry.modified_by = modification(shop, chance, modifier, entry.total);
  if (entry.modified_by != 0) entry.modifier = modifier;
}

/// How many things are in a receipt.
std::int64_t basket_size(const Entry& entry, Chance& chance) {
  const std::int64_t guests = entry.guests;
  if (guests > 0) return guests + chance.from(1, 2 * guests);
  constexpr std::array<int, 6> weights = {22, 30, 22, 14, 8, 4};
  return 1 + static_cast<std::int64_t>(chance.pick(weights));
}

bool can_pay(const Shop::Medium& medium, std::int64_t amount) {
  return !medium.name.empty() && amount <= medium.limit;
}

/// The money that a guest hands over: what is to be paid, or the next note.
std::int64_t handed_over(const Shop& shop, Chance& chance, std::int64_t due) {
  if (chance.percent(25)) return due;
  for (const std::int64_t note : {5, 10, 20, 50, 100, 200}) {
    if (note * shop.unit() >= due) return note * shop.unit();
  }
  return due;
}

}  // namespace

Goods::Goods(const Shop& shop, std::uint64_t seed) : shop_{&shop} {
  constexpr int liked_most = 40;
  Chance chance{seed};
  std::array<bool, department_count> has_items{};
  for (const Shop::Item& item : shop.items) {
    has_items.at(item.department) = true;
    weights_.push_back(1 + liked_most / static_cast<int>(chance.from(1, 20)));
  }
  for (std::size_t i = 0; i < department_count; ++i) {
    const Shop::Department& department = shop.departments.at(i);
    if (has_items.at(i) || department.price == 0) continue;
    (department.negative ? negative_keys_ : keys_).push_back(i);
  }
  if (!shop.items.empty()) return;
  departments_ = keys_;
  constexpr std::size_t few = 8;
  for (std::size_t i = 0; departments_.size() < few && i < department_count; ++i) {
    if (shop.departments.at(i).price == 0 && !shop.departments.at(i).negative) departments_.push_back(i);
  }
}

Line Goods::pick(Chance& chance, bool second, bool take_out) const {
  if (weights_.empty()) {
    // A register on which every department is a negative one can still ring up its first.
    const auto last = static_cast<std::int64_t>(departments_.size()) - 1;
    return from_department(chance, last < 0 ? 0 : departments_.at(static_cast<std::size_t>(chance.from(0, last))),
                           take_out);
  }
  const Shop::Item& item = shop_->items.at(chance.pick(weights_));
  Line line;
  line.item = item.row;
  line.name = item.name;
  line.department = item.department;
  line.tax = take_out ? item.take_out_tax : item.tax;
  line.second_price = second && item.price2 > 0;
  line.price = line.second_price ? item.price2 : item.price1;
  if (line.price == 0) line.price = keyed_price(*shop_, chance, shop_->departments.at(item.department).limit);
  if (item.by_weight) {
    line.quantity = chance.from(80, 650) * (one_piece / 1000);
  } else {
    constexpr std::array<int, 4> pieces = {76, 16, 5, 3};
    line.quantity = one_piece * (1 + static_cast<std::int64_t>(chance.pick(pieces)));
  }
  if (shop_->departments.at(item.department).negative) line.price = -line.price;
  return priced(*shop_, std::move(line));
}

std::vector<std::size_t> Goods::extras(bool negative) const {
  return negative ? negative_keys_ : keys_;
}

Line Goods::from_department(Chance& chance, std::size_t number, bool take_out) const {
  const Shop::Department& department = shop_->departments.at(number);
  Line line;
  line.name = department.name;
  line.department = number;
  line.tax = take_out ? department.take_out_tax : department.tax;
  line.price = department.price > 0 ? department.price : keyed_price(*shop_, chance, department.limit);
  if (department.negative) line.price = -line.price;
  return priced(*shop_, std::move(line));
}

void fill_basket(Entry& entry, const Shop& shop, const Goods& goods, Chance& chance) {
  constexpr int first_hour_of_second_price = 17;
  constexpr int extra_chance = 12;
  const int hour = entry.minute / 60;
  const bool second = hour == first_hour_of_second_price || hour == first_hour_of_second_price + 1;
  const std::int64_t size = basket_size(entry, chance);
  for (std::int64_t i = 0; i < size; ++i) entry.lines.push_back(goods.pick(chance, second, entry.take_out));
  for (const bool negative : {false, true}) {
    const std::vector<std::size_t> extras = goods.extras(negative);
    const bool allowed = !negative || shop.clerks.at(entry.clerk).negative;
    if (extras.empty() || !allowed || !chance.percent(extra_chance)) continue;
    const auto place = static_cast<std::size_t>(chance.from(0, static_cast<std::int64_t>(extras.size()) - 1));
    entry.lines.push_back(goods.from_department(chance, extras.at(place), entry.take_out));
  }
  take_back(entry, shop, goods, chance);
  modify(entry, shop, chance);
  add_up(entry, shop);
  if (entry.total > 0) return;
  // More was taken back than sold: the sale is rung up without.
  std::erase_if(entry.lines, [](const Line& line) { return line.amount < 0; });
  for (Line& line : entry.lines) line.kind = Line::Kind::sale;
  entry.modifier.reset();
  entry.modified_by = 0;
  add_up(entry, shop);
}

void add_up(Entry& entry, const Shop& shop) {
  entry.taxable.fill(0);
  for (const Line& line : entry.lines) {
    if (line.kind == Line::Kind::voided) continue;
    entry.taxable.at(static_cast<std::size_t>(line.tax)) += line.amount + line.modified_by;
  }
  entry.total = std::accumulate(entry.taxable.begin(), entry.taxable.end(), std::int64_t{0});
  if (entry.modified_by != 0) share_out(entry, shop, entry.modified_by);
}

void pay(Entry& entry, const Shop& shop, Chance& chance) {
  constexpr std::size_t cash = 0;
  constexpr std::size_t voucher = 5;
  constexpr int split_chance = 5;
  constexpr std::array<int, media_count> likely = {46, 3, 3, 24, 12, 3, 4, 4, 1};
  std::int64_t due = entry.total;
  const auto pay_with = [&](std::size_t medium, std::int64_t amount) {
    entry.payments.push_back({medium, amount, 0});
    due -= amount;
  };
  const std::int64_t part = 5 * shop.unit();
  if (due > part && can_pay(shop.media.at(voucher), part) && chance.percent(split_chance)) pay_with(voucher, part);
  const std::size_t medium = chance.pick(likely);
  pay_with(can_pay(shop.media.at(medium), due) ? medium : cash, due);
  Payment& last = entry.payments.back();
  if (last.medium == cash && shop.media.at(cash).gives_change) {
    last.change = handed_over(shop, chance, last.amount) - last.amount;
  }
}

}  // namespace ecr::trading

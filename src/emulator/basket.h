#pragma once
// What goes into one receipt of a traded day: the things sold, what is taken off them, and how they are paid.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "emulator/chance.h"
#include "emulator/day.h"
#include "emulator/shop.h"

namespace ecr::trading {

/// The goods of a shop and how often each of them is asked for, which the seed decides for all days.
class Goods {
 public:
  Goods(const Shop& shop, std::uint64_t seed);

  /// Any thing, by its weight. `second` is whether it is sold at its second price, if it has one.
  [[nodiscard]] Line pick(Chance& chance, bool second, bool take_out) const;

  /// What stands on its own key: a department with a price, or taken back. Nothing if there is none.
  [[nodiscard]] std::vector<std::size_t> extras(bool negative) const;

  [[nodiscard]] Line from_department(Chance& chance, std::size_t number, bool take_out) const;

 private:
  const Shop* shop_;
  std::vector<int> weights_;                // by place among the shop's items
  std::vector<std::size_t> departments_;    // sold by their keys where there are no items
  std::vector<std::size_t> keys_;           // with a price of their own and no item, positive ones
  std::vector<std::size_t> negative_keys_;  // the same, negative ones
};

/// Fills the entry's lines, and what its clerk may take off or back; adds up its total, which is above zero.
void fill_basket(Entry& entry, const Shop& shop, const Goods& goods, Chance& chance);

/// Adds up the lines and modifiers of an entry by tax.
void add_up(Entry& entry, const Shop& shop);

/// Pays the total.
void pay(Entry& entry, const Shop& shop, Chance& chance);

}  // namespace ecr::trading

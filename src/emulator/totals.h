#pragma once
// What the register adds up in a day: the totals of its financial reports, of each clerk, department, item and hour.
// Amounts are in smallest units, quantities in ten-thousandths.

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "emulator/day.h"
#include "emulator/shop.h"

namespace ecr::trading {

/// How often, and how much in all.
struct Counted {
  std::int64_t count = 0;
  std::int64_t total = 0;

  void add(std::int64_t amount) {
    ++count;
    total += amount;
  }
};

/// The totals of a financial report; each clerk has the same for what he rang up. Members stand in the order of the
/// report.
struct Totals {
  struct Tax {
    std::int64_t amount = 0;
    std::int64_t without = 0;
    std::int64_t with = 0;
  };

  std::int64_t departments = 0;  ///< all that was sold, refunds taken off
  std::int64_t untaxed = 0;
  std::array<Tax, tax_count> taxes{};
  std::array<std::int64_t, modifier_count> modifiers{};  ///< below zero what was taken off
  Counted refunds;
  std::int64_t voids = 0;
  Counted full_voids;
  std::int64_t net = 0;    ///< departments and modifiers: what was paid
  std::int64_t gross = 0;  ///< net without the refunds taken off
  std::array<Counted, media_count> media{};
  Counted received;
  Counted paid_out;
  std::int64_t no_sales = 0;
  std::array<std::int64_t, media_count> in_drawer{};
  Counted new_balances;     ///< tables put away: those closed since, and those that are open
  Counted closed_balances;  ///< tables that were paid
  Counted open_tables;
  std::int64_t guests = 0;
  std::int64_t petty_cash = 0;
  std::int64_t drawer_openings = 0;
  Counted training;
  Counted copies;
  Counted proformas;

  [[nodiscard]] Tax all_taxes() const;
};

struct Sold {
  std::int64_t quantity = 0;
  std::int64_t total = 0;
};

struct DayTotals {
  Totals all;
  Totals training;  ///< as if the training receipts had been real
  std::array<Totals, clerk_count> clerks;
  std::array<Totals, clerk_count> training_clerks;
  std::array<Sold, department_count> departments;
  struct Item {
    Sold first;   ///< at price 1
    Sold second;  ///< at price 2
  };
  std::vector<Item> items;  ///< by row of the item table
  std::array<Counted, 24> hours;
  std::array<std::int64_t, table_count> open_tables{};  ///< from table 1
};

/// `rows` is the number of items in the table.
[[nodiscard]] DayTotals totals_of(const Day& day, const Shop& shop, std::size_t rows);

}  // namespace ecr::trading

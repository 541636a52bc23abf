#pragma once
// One day of trading: what was rung up, from the first receipt to the last. It follows from the seed, the number of the
// day and the programming alone, so that the same register with the same seed has the same day on every machine.
//
// All that is reported of the day is drawn from these entries.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "emulator/shop.h"

namespace ecr::trading {

/// What takes off an amount or adds to it, in the order in which the reports hold their totals.
enum class Modifier : std::uint8_t {
  item_plus_minus1,
  subtotal_plus_minus1,
  item_plus_minus2,
  subtotal_plus_minus2,
  item_percent1,
  subtotal_percent1,
  item_percent2,
  subtotal_percent2,
};
inline constexpr std::size_t modifier_count = 8;

/// One thing sold, or taken back. Amounts are in smallest units, tax included, below zero where money goes back.
struct Line {
  enum class Kind : std::uint8_t { sale, refund, voided };  ///< voided: sold and taken out again, counts for nothing

  Kind kind = Kind::sale;
  std::optional<std::size_t> item;  ///< its row in the item table; nothing for a sale on the department's key
  std::string name;
  std::size_t department = 0;  ///< from 0
  int tax = 0;
  bool second_price = false;
  std::int64_t quantity = one_piece;  ///< in ten-thousandths, always above zero
  std::int64_t price = 0;             ///< of one
  std::int64_t amount = 0;
  std::optional<Modifier> modifier;  ///< of this line alone
  std::int64_t modified_by = 0;
};

struct Payment {
  std::size_t medium = 0;
  std::int64_t amount = 0;  ///< that went to the sale
  std::int64_t change = 0;  ///< that was given back, always cash
};

struct Entry {
  enum class Kind : std::uint8_t {
    sale,
    full_void,            ///< cancelled as a whole
    open_table,           ///< put away, not paid when the day is read; no receipt yet
    training,             ///< counts for nothing but the training totals
    received_on_account,  ///< the last two and no_sale have no lines, only an amount
    paid_out,
    no_sale,
  };

  Kind kind = Kind::sale;
  int minute = 0;  ///< of the day
  std::size_t clerk = 0;
  std::vector<Line> lines;
  std::optional<Modifier> modifier;  ///< of the subtotal
  std::int64_t modified_by = 0;
  std::array<std::int64_t, tax_count + 1> taxable{};  ///< by rate, tax included; first what is without tax
  std::int64_t total = 0;
  std::vector<Payment> payments;
  std::uint8_t table = 0;  ///< 0: none
  std::uint8_t guests = 0;
  bool take_out = false;
  bool proforma = false;  ///< the bill was shown before it was paid
  bool copied = false;    ///< the receipt was printed twice

  /// The tax that is in what was sold at rate `tax`, 1 to 4.
  [[nodiscard]] std::int64_t tax_amount(const Shop& shop, std::size_t tax) const;

  /// Whether the register numbers it.
  [[nodiscard]] bool is_numbered() const {
    return kind != Kind::training && kind != Kind::no_sale && kind != Kind::open_table;
  }
};

struct Day {
  std::uint64_t number = 0;     ///< days before it were closed with numbers up to this less one
  std::int64_t petty_cash = 0;  ///< put into the drawer in the morning by the first clerk of the day
  std::vector<Entry> entries;   ///< by time

  [[nodiscard]] std::uint64_t numbered_entries() const;
};

[[nodiscard]] Day trade_day(const Shop& shop, std::uint64_t seed, std::uint64_t number);

}  // namespace ecr::trading

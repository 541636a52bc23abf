#pragma once
// What a day of trading needs to know of the programming: items, departments, clerks, payment media, rates and words,
// as plain numbers and texts. The register may have been sent any bytes; what makes no sense in them cannot be traded
// with and is left out here.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "image/prg_mode.h"

namespace ecr::trading {

inline constexpr std::size_t department_count = 99;
inline constexpr std::size_t group_count = 10;
inline constexpr std::size_t clerk_count = 15;
inline constexpr std::size_t media_count = 9;
inline constexpr std::size_t table_count = 70;
inline constexpr std::size_t tax_count = 4;

/// Quantities are counted in ten-thousandths, as in the stock.
inline constexpr std::int64_t one_piece = 10000;

struct Shop {
  struct Department {
    std::string name;
    int group = 0;  ///< 0 none, 1 to 10
    int tax = 0;    ///< 0 none, 1 to 4 the rate; so is the next
    int take_out_tax = 0;
    std::int64_t price = 0;  ///< 0: keyed in
    std::int64_t limit = 0;  ///< the highest price that can be keyed in
    bool negative = false;
  };
  struct Item {
    std::size_t row = 0;  ///< in the item table, from 0
    std::string name;
    std::size_t department = 0;  ///< from 0
    int tax = 0;
    int take_out_tax = 0;
    std::int64_t price1 = 0;  ///< 0: keyed in
    std::int64_t price2 = 0;  ///< 0: it has no second price
    bool by_weight = false;
  };
  struct Clerk {
    std::string name;
    bool works = false;  ///< has a password to sign on with
    bool training = false;
    bool voids = true, refunds = true, discounts = true, pays_out = true, negative = true;
  };
  struct Medium {
    std::string name;
    std::int64_t limit = 0;
    bool gives_change = true;
    bool opens_drawer = true;
  };
  /// A key that takes off or adds to an amount; with a rate of 0, or a limit of 0, it is not used.
  struct Percentage {
    std::int64_t rate = 0;  ///< hundredths of a percent
    bool discount = true;
  };
  struct PlusMinus {
    std::int64_t limit = 0;
    bool discount = true;
  };
  enum class Rounding : std::uint8_t { down, nearest, up };

  bool has_tables = false;  ///< a Z320
  int decimals = 2;         ///< of amounts
  Rounding rounding = Rounding::nearest;
  std::array<std::int64_t, tax_count> rates{};  ///< thousandths of a percent
  std::array<Percentage, 2> percentages;
  std::array<PlusMinus, 2> plus_minus;
  std::int64_t received_limit = 0;
  std::int64_t paid_out_limit = 0;
  std::array<Department, department_count> departments;
  std::vector<Item> items;  ///< those that can be sold, in the order of the table
  std::array<Clerk, clerk_count> clerks;
  std::array<Medium, media_count> media;
  std::vector<std::string> header;    ///< the lines that are not blank
  std::array<std::string, 78> words;  ///< the captions, from 0
  std::uint64_t receipt_number = 0;   ///< of the last receipt
  std::uint64_t z1 = 0, z2 = 0;       ///< daily and periodic closes so far
  std::uint64_t grand_total = 0;

  /// The smallest units of a whole one: 100 with two decimals.
  [[nodiscard]] std::int64_t unit() const;

  /// Of a product of an amount by `numerator` / `denominator`, as the programming says how to round. Halves are rounded
  /// away from zero; down is towards zero, up away from it.
  [[nodiscard]] std::int64_t rounded(std::int64_t amount, std::int64_t numerator, std::int64_t denominator) const;
};

/// Reads the shop from the programming image and the bytes of the item table. A table of wrong length has the items
/// that it holds in full.
[[nodiscard]] Shop shop_of(const PrgModeImage& image, std::string_view item_table);

/// The number of records that the item table counts and holds in full, 0 to 3000.
[[nodiscard]] std::size_t item_count(std::string_view item_table);

/// The department of an item, from 1; 0 if its byte names none.
[[nodiscard]] std::size_t linked_department(std::uint8_t link);

}  // namespace ecr::trading

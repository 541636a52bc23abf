#include "emulator/shop.h"

#include <algorithm>
#include <cstring>

#include "core/global.h"
#include "core/text.h"
#include "emulator/bcd.h"
#include "image/prg_plu.h"

namespace ecr::trading {
namespace {

constexpr std::int64_t no_limit = 9'999'999;

/// Register text as it can be printed: a code below the blank would end a journal.
std::string printable(std::string_view text) {
  std::string line{trim_end(text)};
  std::replace_if(
      line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < 32; }, ' ');
  return std::string{trim_end(line)};
}

/// What a digit limit allows: one more digit than its number, 0 any.
std::int64_t highest(std::uint8_t limit) {
  constexpr std::array<std::int64_t, 5> amounts = {no_limit, 99, 999, 9999, 99999};
  return limit < amounts.size() ? amounts.at(limit) : no_limit;
}

bool bit(std::uint8_t flags, unsigned number) {
  return ((static_cast<unsigned>(flags) >> number) & 1U) != 0;
}

int tax_of(std::uint8_t byte) {
  return byte <= tax_count ? byte : 0;
}

std::int64_t amount_in(std::span<const std::uint8_t> field) {
  return static_cast<std::int64_t>(read_bcd(field).value_or(0));
}

/// A price as the register can be given one.
std::int64_t price_in(std::span<const std::uint8_t> field) {
  return std::min(amount_in(field), no_limit);
}

Shop::Department department_of(const DeptRecord& record) {
  constexpr std::uint8_t group_ten = 16;
  Shop::Department department;
  department.name = printable(record.Name.view());
  department.group = record.Group == group_ten ? 10 : record.Group < 10 ? record.Group : 0;
  department.tax = tax_of(record.Tax);
  department.take_out_tax = tax_of(record.TakeOutTax);
  department.limit = highest(record.Status1 >> 4U);
  department.negative = bit(record.Status1, 0);
  if ((record.Status2 & 3U) != 0) department.price = price_in(record.Price);
  return department;
}

Shop::Clerk clerk_of(const ClerkRecord& record) {
  Shop::Clerk clerk;
  clerk.name = printable(record.Name.view());
  clerk.works = read_bcd(record.Password).value_or(0) != 0;
  clerk.voids = !bit(record.Rights, 0);
  clerk.refunds = !bit(record.Rights, 1);
  clerk.discounts = !bit(record.Rights, 2);
  clerk.pays_out = !bit(record.Rights, 3);
  clerk.negative = !bit(record.Rights, 4);
  clerk.training = bit(record.Rights, 7);
  return clerk;
}

/// Nothing where the record is no item that can be sold.
std::optional<Shop::Item> item_of(const PluRecord& record, std::size_t row) {
  const std::size_t department = linked_department(record.LinkDept);
  if (department == 0 || read_bcd(record.Code).value_or(0) == 0) return std::nullopt;
  constexpr unsigned normal = 1;
  Shop::Item item;
  item.row = row;
  item.name = printable(record.Name.view());
  item.department = department - 1;
  item.tax = tax_of(record.Tax);
  item.take_out_tax = tax_of(record.TakeOutTax);
  const unsigned type = record.Flags1 & 3U;
  if (type != 0) {
    item.price1 = price_in(record.Price1);
    item.price2 = price_in(record.Price2);
  }
  // What is sold by weight has a stock of fractions.
  item.by_weight = type == normal && read_signed_bcd(record.Stock).value_or(0) % one_piece != 0;
  return item;
}

}  // namespace

std::int64_t Shop::unit() const {
  constexpr std::array<std::int64_t, 4> units = {1, 10, 100, 1000};
  return units.at(static_cast<std::size_t>(decimals));
}

std::int64_t Shop::rounded(std::int64_t amount, std::int64_t numerator, std::int64_t denominator) const {
  const std::int64_t product = amount * numerator;
  const std::int64_t size = product < 0 ? -product : product;
  const std::int64_t more = rounding == Rounding::down ? 0
                            : rounding == Rounding::up ? denominator - 1
                                                       : denominator / 2;
  const std::int64_t result = (size + more) / denominator;
  return product < 0 ? -result : result;
}

std::size_t item_count(std::string_view item_table) {
  if (item_table.size() < plu_head_size) return 0;
  const auto low = static_cast<unsigned char>(item_table[0]);
  const auto high = static_cast<unsigned char>(item_table[1]);
  const std::size_t counted = low + std::size_t{256} * high;
  return std::min({counted, (item_table.size() - plu_head_size) / sizeof(PluRecord), std::size_t{plu_records_max}});
}

std::size_t linked_department(std::uint8_t link) {
  return read_bcd({&link, 1}).value_or(0);
}

Shop shop_of(const PrgModeImage& image, std::string_view item_table) {
  Shop shop;
  shop.has_tables = !keypad_matches(image, Global::model_z300);
  shop.decimals = image.SysOpt0 <= 3 ? image.SysOpt0 : 2;
  shop.rounding = image.SysOpt1 <= 2 ? static_cast<Shop::Rounding>(image.SysOpt1) : Shop::Rounding::nearest;
  for (std::size_t i = 0; i < tax_count; ++i) shop.rates.at(i) = amount_in(image.VatRate.at(i));
  shop.percentages = {Shop::Percentage{amount_in(image.PercentA[0]), bit(image.KeyOpt4, 0)},
                      Shop::Percentage{amount_in(image.PercentB[0]), !bit(image.KeyOpt4, 1)}};
  shop.plus_minus = {Shop::PlusMinus{highest(image.KeyOpt2), !bit(image.KeyOpt4, 2)},
                     Shop::PlusMinus{highest(image.KeyOpt3), !bit(image.KeyOpt4, 3)}};
  shop.received_limit = highest(image.KeyOpt0);
  shop.paid_out_limit = highest(image.KeyOpt1);
  std::transform(image.Dept.begin(), image.Dept.end(), shop.departments.begin(), department_of);
  std::transform(image.Clerk.begin(), image.Clerk.end(), shop.clerks.begin(), clerk_of);
  std::transform(image.Tender.begin(), image.Tender.end(), shop.media.begin(), [](const TenderRecord& record) {
    return Shop::Medium{printable(record.Name.view()), highest(record.Halo), !bit(record.Options, 1),
                        !bit(record.Options, 2)};
  });
  std::transform(image.Caption.begin(), image.Caption.end(), shop.words.begin(),
                 [](const auto& caption) { return printable(caption.view()); });
  for (const auto& line : image.ReceiptHeader) {
    if (std::string text = printable(line.view()); !text.empty()) shop.header.push_back(std::move(text));
  }
  shop.receipt_number = read_bcd(image.SysOpt3).value_or(0);
  shop.z1 = read_bcd(image.SysOpt5).value_or(0);
  shop.z2 = read_bcd(image.SysOpt6).value_or(0);
  shop.grand_total = read_bcd(image.SysOpt7).value_or(0);
  for (std::size_t row = 0; row < item_count(item_table); ++row) {
    PluRecord record{};
    std::memcpy(&record, item_table.data() + plu_head_size + row * sizeof record, sizeof record);
    if (auto item = item_of(record, row)) shop.items.push_back(std::move(*item));
  }
  return shop;
}

}  // namespace ecr::trading

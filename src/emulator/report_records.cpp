#include "emulator/report_records.h"

#include <array>

#include "emulator/bcd.h"

namespace ecr::trading {
namespace {

template <std::size_t N>
std::string_view text_of(const std::array<std::uint8_t, N>& field) {
  return {reinterpret_cast<const char*>(field.data()), N};
}

}  // namespace

RecordWriter& RecordWriter::byte(std::size_t number) {
  record_ += static_cast<char>(static_cast<unsigned char>(number));
  return *this;
}

RecordWriter& RecordWriter::count(std::int64_t number) {
  std::array<std::uint8_t, 2> field{};
  write_bcd(field, static_cast<std::uint64_t>(number));
  return bytes(text_of(field));
}

RecordWriter& RecordWriter::amount(std::int64_t units) {
  std::array<std::uint8_t, 8> field{};
  write_signed_bcd(field, units);
  return bytes(text_of(field));
}

RecordWriter& RecordWriter::quantity(std::int64_t ten_thousandths) {
  std::array<std::uint8_t, 6> field{};
  write_signed_bcd(field, ten_thousandths);
  return bytes(text_of(field));
}

RecordWriter& RecordWriter::binary(std::int64_t number) {
  for (unsigned shift = 0; shift < 32; shift += 8) byte(static_cast<std::uint64_t>(number) >> shift & 255U);
  return *this;
}

RecordWriter& RecordWriter::bytes(std::string_view raw) {
  record_ += raw;
  return *this;
}

std::string totals_body(const Totals& totals) {
  RecordWriter record;
  record.amount(totals.departments).amount(totals.untaxed);
  for (const Totals::Tax& tax : totals.taxes) record.amount(tax.amount).amount(tax.without).amount(tax.with);
  const Totals::Tax taxes = totals.all_taxes();
  record.amount(taxes.amount).amount(taxes.without).amount(taxes.with);
  for (const std::int64_t modifier : totals.modifiers) record.amount(modifier);
  record.counted(totals.refunds).amount(totals.voids).counted(totals.full_voids);
  record.amount(totals.net).amount(totals.gross).amount(0);  // nothing is ever adjusted
  for (const Counted& medium : totals.media) record.counted(medium);
  record.counted(totals.received).counted(totals.paid_out).count(totals.no_sales);
  for (const std::int64_t medium : totals.in_drawer) record.amount(medium);
  for (int foreign = 0; foreign < 4; ++foreign) record.amount(0);  // nobody pays with foreign money
  record.counted(totals.new_balances).counted(totals.closed_balances).counted(totals.open_tables);
  record.count(totals.guests).count(0);  // and nobody asks for an invoice
  record.amount(totals.petty_cash);
  record.count(0);  // changes of price
  record.count(totals.drawer_openings);
  record.counted(totals.training).counted(totals.copies).counted(totals.proformas);
  return record.take();
}

}  // namespace ecr::trading

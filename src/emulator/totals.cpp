#include "emulator/totals.h"

#include <algorithm>

namespace ecr::trading {
namespace {

constexpr std::size_t cash = 0;

void add_lines(Totals& totals, const Entry& entry) {
  for (const Line& line : entry.lines) {
    if (line.kind == Line::Kind::voided) {
      totals.voids += line.amount;
      continue;
    }
    totals.departments += line.amount;
    if (line.kind == Line::Kind::refund) totals.refunds.add(-line.amount);
    if (line.modifier) totals.modifiers.at(static_cast<std::size_t>(*line.modifier)) += line.modified_by;
  }
  if (entry.modifier) totals.modifiers.at(static_cast<std::size_t>(*entry.modifier)) += entry.modified_by;
}

void add_taxes(Totals& totals, const Entry& entry, const Shop& shop) {
  totals.untaxed += entry.taxable[0];
  for (std::size_t tax = 1; tax <= tax_count; ++tax) {
    const std::int64_t amount = entry.tax_amount(shop, tax);
    Totals::Tax& sums = totals.taxes.at(tax - 1);
    sums.amount += amount;
    sums.with += entry.taxable.at(tax);
    sums.without += entry.taxable.at(tax) - amount;
  }
}

void add_payments(Totals& totals, const Entry& entry, const Shop& shop) {
  bool opened = false;
  for (const Payment& payment : entry.payments) {
    totals.media.at(payment.medium).add(payment.amount);
    totals.in_drawer.at(payment.medium) += payment.amount;
    opened = opened || shop.media.at(payment.medium).opens_drawer;
  }
  if (opened) ++totals.drawer_openings;
}

/// A receipt that was paid.
void add_sale(Totals& totals, const Entry& entry, const Shop& shop) {
  const std::int64_t refunds_before = totals.refunds.total;
  add_lines(totals, entry);
  add_taxes(totals, entry, shop);
  add_payments(totals, entry, shop);
  totals.net += entry.total;
  totals.gross += entry.total + totals.refunds.total - refunds_before;
  if (entry.copied) totals.copies.add(entry.total);
  if (entry.table == 0) return;
  totals.new_balances.add(entry.total);
  totals.closed_balances.add(entry.total);
  totals.guests += entry.guests;
  if (entry.proforma) totals.proformas.add(entry.total);
}

void add_money(Totals& totals, Counted& counted, std::int64_t amount, std::int64_t direction) {
  counted.add(amount);
  totals.in_drawer[cash] += direction * amount;
  ++totals.drawer_openings;
}

void add_entry(Totals& totals, const Entry& entry, const Shop& shop) {
  switch (entry.kind) {
    case Entry::Kind::sale:
      return add_sale(totals, entry, shop);
    case Entry::Kind::full_void:
      return totals.full_voids.add(entry.total);
    case Entry::Kind::open_table:
      totals.new_balances.add(entry.total);
      return totals.open_tables.add(entry.total);
    case Entry::Kind::training:
      return totals.training.add(entry.total);
    case Entry::Kind::received_on_account:
      return add_money(totals, totals.received, entry.total, 1);
    case Entry::Kind::paid_out:
      return add_money(totals, totals.paid_out, entry.total, -1);
    case Entry::Kind::no_sale:
      ++totals.no_sales;
      ++totals.drawer_openings;
  }
}

void add_training(Totals& totals, const Entry& entry, const Shop& shop) {
  add_sale(totals, entry, shop);
  totals.training.add(entry.total);
}

/// Where the goods of a paid receipt belong.
void add_goods(DayTotals& totals, const Entry& entry) {
  for (const Line& line : entry.lines) {
    if (line.kind == Line::Kind::voided) continue;
    const std::int64_t quantity = line.kind == Line::Kind::refund ? -line.quantity : line.quantity;
    const auto add = [&](Sold& sold) {
      sold.quantity += quantity;
      sold.total += line.amount;
    };
    add(totals.departments.at(line.department));
    if (!line.item) continue;
    DayTotals::Item& item = totals.items.at(*line.item);
    add(line.second_price ? item.second : item.first);
  }
  totals.hours.at(static_cast<std::size_t>(entry.minute / 60)).add(entry.total);
}

void put_petty_cash(DayTotals& totals, const Day& day) {
  const auto first = std::find_if(day.entries.begin(), day.entries.end(),
                                  [](const Entry& entry) { return entry.kind == Entry::Kind::sale; });
  if (first == day.entries.end()) return;
  for (Totals* who : {&totals.all, &totals.clerks.at(first->clerk)}) {
    who->petty_cash = day.petty_cash;
    who->in_drawer[cash] += day.petty_cash;
  }
}

}  // namespace

Totals::Tax Totals::all_taxes() const {
  Tax sums;
  for (const Tax& tax : taxes) {
    sums.amount += tax.amount;
    sums.without += tax.without;
    sums.with += tax.with;
  }
  return sums;
}

DayTotals totals_of(const Day& day, const Shop& shop, std::size_t rows) {
  DayTotals totals;
  totals.items.resize(rows);
  for (const Entry& entry : day.entries) {
    add_entry(totals.all, entry, shop);
    add_entry(totals.clerks.at(entry.clerk), entry, shop);
    if (entry.kind == Entry::Kind::sale) add_goods(totals, entry);
    if (entry.kind == Entry::Kind::open_table) totals.open_tables.at(entry.table - 1U) += entry.total;
    if (entry.kind != Entry::Kind::training) continue;
    add_training(totals.training, entry, shop);
    add_training(totals.training_clerks.at(entry.clerk), entry, shop);
  }
  put_petty_cash(totals, day);
  return totals;
}

}  // namespace ecr::trading

#include "emulator/journal.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "core/text.h"

namespace ecr::trading {
namespace {

/// Places of the words among the captions, from 0.
enum class Word : std::uint8_t {
  total = 0,
  subtotal = 1,
  change = 6,
  discount = 9,
  add_on = 10,
  refund = 11,
  voided = 12,
  full_void = 13,
  received = 16,
  paid_out = 17,
  no_sale = 18,
  clerk = 23,
  receipt = 25,
  table = 27,
  guests = 28,
  tax = 29,
  second_price = 41,
  take_out = 42,
  new_balance = 46,
  proforma = 48,
  z1 = 57,
  training = 67,
  copy = 74,
};

std::string two_digits(int number) {
  std::string text = std::to_string(number);
  return text.size() < 2 ? "0" + text : text;
}

/// `number` of 1 / 10^decimals, with all its decimals.
std::string decimal_text(std::int64_t number, int decimals) {
  std::string digits = std::to_string(std::llabs(number));
  const auto behind = static_cast<std::size_t>(decimals);
  if (digits.size() <= behind) digits.insert(0, behind + 1 - digits.size(), '0');
  if (behind > 0) digits.insert(digits.size() - behind, ".");
  return number < 0 ? "-" + digits : digits;
}

/// The same without zeros at its end.
std::string short_decimal_text(std::int64_t number, int decimals) {
  std::string text = decimal_text(number, decimals);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.ends_with('.')) text.pop_back();
  return text;
}

std::string seven_digits(std::uint64_t number) {
  const std::string text = std::to_string(number);
  return text.size() < 7 ? std::string(7 - text.size(), '0') + text : text;
}

class Journal {
 public:
  Journal(const Shop& shop, std::uint64_t receipt_number) : shop_{shop}, number_{receipt_number} {}

  void begin_day(const Day& day) {
    date_ = date_of_day(day.number);
    next_mark_ = JournalForm::day_mark;
    for (const std::string& line : shop_.header) put(line);
    put(word(Word::z1), std::to_string(day.number));
    put("");
  }

  void write(const Entry& entry) {
    next_mark_ = JournalForm::receipt_mark;
    if (entry.is_numbered()) {
      number_ = next_receipt(number_);
      put(word(Word::receipt), seven_digits(number_));
    } else {
      put(std::string(JournalForm::line_width, '-'));
    }
    put(date_, two_digits(entry.minute / 60) + ":" + two_digits(entry.minute % 60));
    const std::string& name = shop_.clerks.at(entry.clerk).name;
    put(word(Word::clerk), name.empty() ? two_digits(static_cast<int>(entry.clerk) + 1) : name);
    if (entry.table != 0) {
      put(word(Word::table), std::to_string(entry.table));
      put(word(Word::guests), std::to_string(entry.guests));
    }
    if (entry.take_out) put(word(Word::take_out));
    write_body(entry);
    put("");
  }

  [[nodiscard]] std::string take() { return std::move(records_); }

 private:
  [[nodiscard]] const std::string& word(Word which) const { return shop_.words.at(static_cast<std::size_t>(which)); }

  [[nodiscard]] std::string money(std::int64_t amount) const { return decimal_text(amount, shop_.decimals); }

  /// A line with a text on each side; of the left one what the right one leaves.
  void put(std::string_view left, std::string_view right = {}) {
    right = right.substr(0, JournalForm::line_width);
    const std::size_t room = JournalForm::line_width - right.size();
    records_ += padded(right.empty() ? left : left.substr(0, room == 0 ? 0 : room - 1), room);
    records_ += right;
    records_ += next_mark_;
    records_ += '\0';
    next_mark_ = JournalForm::plain_mark;
  }

  void write_body(const Entry& entry) {
    switch (entry.kind) {
      case Entry::Kind::sale:
        return write_sale(entry);
      case Entry::Kind::training:
        put(word(Word::training));
        return write_sale(entry);
      case Entry::Kind::full_void:
        write_lines(entry);
        return put(word(Word::full_void), money(entry.total));
      case Entry::Kind::open_table:
        write_lines(entry);
        return put(word(Word::new_balance), money(entry.total));
      case Entry::Kind::received_on_account:
        return put(word(Word::received), money(entry.total));
      case Entry::Kind::paid_out:
        return put(word(Word::paid_out), money(entry.total));
      case Entry::Kind::no_sale:
        put(word(Word::no_sale));
    }
  }

  void write_sale(const Entry& entry) {
    write_lines(entry);
    put(word(Word::total), money(entry.total));
    for (std::size_t tax = 1; tax <= tax_count; ++tax) {
      if (entry.taxable.at(tax) == 0) continue;
      const std::string rate = short_decimal_text(shop_.rates.at(tax - 1), 3) + " %";
      put(word(Word::tax) + " " + rate, money(entry.tax_amount(shop_, tax)));
    }
    std::int64_t change = 0;
    for (const Payment& payment : entry.payments) {
      put(shop_.media.at(payment.medium).name, money(payment.amount + payment.change));
      change += payment.change;
    }
    if (change != 0) put(word(Word::change), money(change));
    if (entry.proforma) put(word(Word::proforma));
    if (entry.copied) put(word(Word::copy));
  }

  void write_lines(const Entry& entry) {
    for (const Line& line : entry.lines) write_line(line);
    if (!entry.modifier) return;
    put(word(Word::subtotal), money(entry.total - entry.modified_by));
    write_modifier(entry.modified_by);
  }

  void write_line(const Line& line) {
    constexpr int decimals_of_quantity = 4;
    if (line.kind == Line::Kind::refund) put(word(Word::refund));
    if (line.second_price) put(word(Word::second_price));
    if (line.quantity != one_piece) {
      put("  " + short_decimal_text(line.quantity, decimals_of_quantity) + " x " + money(line.price));
    }
    put(line.name, money(line.amount));
    if (line.kind == Line::Kind::voided) {
      put(word(Word::voided));
      put(line.name, money(-line.amount));
    }
    if (line.modifier) write_modifier(line.modified_by);
  }

  void write_modifier(std::int64_t amount) { put(word(amount < 0 ? Word::discount : Word::add_on), money(amount)); }

  const Shop& shop_;
  std::uint64_t number_;
  std::string date_;
  char next_mark_ = JournalForm::plain_mark;
  std::string records_;
};

bool is_leap(std::uint64_t year) {
  return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

}  // namespace

std::string date_of_day(std::uint64_t number) {
  std::uint64_t year = 2024;
  std::uint64_t left = number == 0 ? 0 : number - 1;
  while (left >= (is_leap(year) ? 366U : 365U)) left -= is_leap(year++) ? 366U : 365U;
  const std::array<std::uint64_t, 12> months = {31, is_leap(year) ? 29U : 28U, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  std::size_t month = 0;
  while (left >= months.at(month)) left -= months.at(month++);
  return two_digits(static_cast<int>(left) + 1) + "." + two_digits(static_cast<int>(month) + 1) + "." +
         std::to_string(year);
}

std::string journal_of(const Day& day, const Shop& shop, std::uint64_t receipt_number) {
  Journal journal{shop, receipt_number};
  journal.begin_day(day);
  for (const Entry& entry : day.entries) journal.write(entry);
  return journal.take();
}

std::string journal_with(std::string_view before, std::string_view day) {
  const auto lines = [](std::string_view records) { return records.size() / JournalForm::record_size; };
  before = before.substr(0, lines(before) * JournalForm::record_size);
  while (!before.empty() && lines(before) + lines(day) > JournalForm::lines_max) {
    std::size_t next = JournalForm::record_size;
    while (next < before.size() && before[next + JournalForm::line_width] != JournalForm::day_mark)
      next += JournalForm::record_size;
    before.remove_prefix(std::min(next, before.size()));
  }
  return std::string{before}.append(day);
}

std::uint64_t next_receipt(std::uint64_t number) {
  constexpr std::uint64_t highest = 9'999'999;
  return number % highest + 1;
}

}  // namespace ecr::trading

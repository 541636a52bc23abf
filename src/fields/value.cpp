#include "fields/value.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <span>

#include "core/register_text.h"
#include "core/text.h"
#include "fields/book.h"
#include "fields/coding.h"
#include "fields/key_codes.h"
#include "fields/names.h"

namespace ecr::fields {
namespace {

constexpr std::string_view percent_sign = " %";
constexpr int most_decimals = 3;
constexpr std::size_t widest_value = 42;
constexpr std::int64_t group_ten = 10;
constexpr std::int64_t group_ten_stored = 16;

/// A value's bytes on their way.
struct NewBytes {
  std::array<std::uint8_t, widest_value> bytes{};
  Refusal refusal = {};
};

enum class From : std::uint8_t { plain, person };

bool is_number(Coding coding) {
  switch (coding) {
    case Coding::number:
    case Coding::amount:
    case Coding::rate:
    case Coding::percent:
    case Coding::quantity:
    case Coding::code:
      return true;
    case Coding::text:
    case Coding::choice:
    case Coding::flag:
    case Coding::key:
    case Coding::raw:
      return false;
  }
  return false;
}

int sane(int decimals) {
  return decimals <= most_decimals ? decimals : 0;
}

NumberForm form_of(ProgrammingView programming, ValueRef value, char decimal_sign) {
  return {.decimals = decimals_of(programming, value),
          .digits = value.field->limits.digits,
          .shortest = value.field->coding == Coding::quantity,
          .decimal_sign = decimal_sign};
}

/// What stands in the bytes for a number that people use.
std::int64_t number_to_store(const Field& field, std::int64_t number) {
  return field.oddity == Oddity::ten_is_sixteen && number == group_ten ? group_ten_stored : number;
}

/// Whether exactly these bytes come of the number; other bits of a shared byte aside.
bool comes_back(const Field& field, std::span<const std::uint8_t> bytes, std::int64_t number) {
  NewBytes again;
  const std::span<std::uint8_t> target = std::span{again.bytes}.first(bytes.size());
  std::copy(bytes.begin(), bytes.end(), target.begin());
  store_number(field.place, target, number_to_store(field, number));
  return std::equal(bytes.begin(), bytes.end(), target.begin());
}

std::string bytes_text(const Field& field, std::span<const std::uint8_t> bytes) {
  if (bytes.size() > 1) return hexadecimal(bytes);
  const auto own_bits = static_cast<std::uint8_t>(bytes.front() & field.place.mask);
  return hexadecimal({&own_bits, 1});
}

std::string word_of(const Field& field, std::int64_t number, From whom) {
  if (field.coding == Coding::key) {
    const std::string_view name = number <= 255 ? key_name(static_cast<std::uint8_t>(number)) : std::string_view{};
    return name.empty() ? std::to_string(number) : std::string{name};
  }
  const Choice* choice = choice_of(field, static_cast<int>(number));
  if (choice == nullptr || (choice->token.empty() && whom == From::plain)) return {};
  return whom == From::plain ? std::string{choice->token} : choice_words(*choice);
}

std::string text_bytes(ProgrammingView programming, ValueRef value) {
  const std::span<const std::uint8_t> bytes = bytes_of(programming, value);
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

Refusal too_long(std::size_t length, std::size_t width) {
  return {.why = Why::too_long, .what = std::to_string(length), .first = std::to_string(width)};
}

void read_text(const Field& field, std::string_view text, From whom, NewBytes& out) {
  const RegisterText read = register_text_of(text, whom == From::plain);
  if (!read.fault.empty()) {
    out.refusal = {.why = Why::no_such_character, .what = read.fault};
    return;
  }
  // Blanks at the end are what fills the field anyway.
  const std::string_view wanted = trim_end(read.text);
  if (wanted.size() > field.place.width) {
    out.refusal = too_long(wanted.size(), field.place.width);
    return;
  }
  const std::string filled = padded(wanted, field.place.width);
  std::copy(filled.begin(), filled.end(), out.bytes.begin());
}

/// All choices that plain text or the screen has words for, with commas.
std::string list_of_choices(const Field& field, From whom) {
  std::string list;
  for (const Choice& choice : choices_of(field)) {
    const std::string word = word_of(field, choice.digit, whom);
    if (word.empty()) continue;
    if (!list.empty()) list += ", ";
    list += word;
  }
  return list;
}

std::optional<std::int64_t> read_choice(const Field& field, std::string_view text, From whom) {
  const std::string wanted = lower_ascii(trim_both(text));
  const auto says = [&](const Choice& choice, auto&& word) { return wanted == lower_ascii(word(choice)); };
  const auto find = [&](auto&& word) -> const Choice* {
    for (const Choice& choice : choices_of(field)) {
      const bool has_words = !choice.token.empty();
      if (has_words && says(choice, word)) return &choice;
    }
    return nullptr;
  };
  const Choice* found = nullptr;
  if (whom == From::person) {
    found = find([](const Choice& choice) { return choice_words(choice); });
    if (found == nullptr) found = find([](const Choice& choice) { return entry_text(choice); });
  }
  if (found == nullptr) found = find([](const Choice& choice) { return std::string{choice.token}; });
  if (found == nullptr) found = find([](const Choice& choice) { return std::to_string(choice.digit); });
  if (found == nullptr) return std::nullopt;
  return found->digit;
}

std::optional<std::int64_t> read_key(std::string_view text) {
  const std::string wanted = lower_ascii(trim_both(text));
  for (int code = 0; code <= 255; ++code) {
    const std::string_view name = key_name(static_cast<std::uint8_t>(code));
    if (!name.empty() && wanted == lower_ascii(name)) return code;
  }
  const ReadNumber number = read_number(text, {});
  if (number.fault != ReadNumber::Fault::none || number.number < 0 || number.number > 255) return std::nullopt;
  return number.number;
}

/// The number that a text says for a field of numbers, or why there is none.
std::optional<std::int64_t> read_limited(ProgrammingView programming, ValueRef value, std::string_view text,
                                         char decimal_sign, Refusal& refusal) {
  const Field& field = *value.field;
  const NumberForm form = form_of(programming, value, decimal_sign);
  std::string_view digits = trim_both(text);
  if (field.coding == Coding::percent && digits.ends_with('%')) digits.remove_suffix(1);
  const ReadNumber read = read_number(digits, form);
  const ShownLimits limits = limits_of(programming, value, {decimal_sign});
  refusal = {.what = std::string{text}, .first = limits.lowest, .second = limits.highest};
  switch (read.fault) {
    case ReadNumber::Fault::no_number:
      refusal.why = Why::no_number;
      return std::nullopt;
    case ReadNumber::Fault::too_many_decimals:
      refusal = {.why = Why::too_many_decimals, .what = std::string{text}, .first = std::to_string(form.decimals)};
      return std::nullopt;
    case ReadNumber::Fault::too_long:
    case ReadNumber::Fault::none:
      break;
  }
  const bool is_long = read.fault == ReadNumber::Fault::too_long;
  if (read.number < field.limits.lowest) {
    refusal.why = Why::too_low;
  } else if (is_long || read.number > field.limits.highest) {
    refusal.why = Why::too_high;
  } else {
    refusal = {};
    return read.number;
  }
  return std::nullopt;
}

void read_bytes(const Field& field, std::string_view text, NewBytes& out) {
  if (!read_hexadecimal(trim_both(text), std::span{out.bytes}.first(field.place.width))) {
    out.refusal = {.why = Why::not_its_bytes, .what = std::string{text}, .first = std::to_string(field.place.width)};
  } else if (field.place.width == 1 && (out.bytes.front() & ~field.place.mask) != 0) {
    out.refusal = {.why = Why::not_its_bits, .what = std::string{text}};
  }
}

/// What the text makes of the value, other bits of a shared byte included.
NewBytes new_bytes(ProgrammingView programming, ValueRef value, std::string_view text, From whom, char decimal_sign) {
  const Field& field = *value.field;
  NewBytes result;
  if (field.coding == Coding::text) {
    read_text(field, text, whom, result);
    return result;
  }
  if (field.coding == Coding::raw || (whom == From::plain && trim_both(text).starts_with('<'))) {
    read_bytes(field, text, result);
    return result;
  }
  std::optional<std::int64_t> number;
  if (is_number(field.coding)) {
    number = read_limited(programming, value, text, decimal_sign, result.refusal);
  } else if (field.coding == Coding::key) {
    number = read_key(text);
    if (!number) result.refusal = {.why = Why::no_such_choice, .what = std::string{text}, .first = "SUBTOTAL, DEPT 1"};
  } else {
    number = read_choice(field, text, whom);
    if (!number) {
      result.refusal = {.why = Why::no_such_choice, .what = std::string{text}, .first = list_of_choices(field, whom)};
    }
  }
  if (number)
    store_number(field.place, std::span{result.bytes}.first(field.place.width), number_to_store(field, *number));
  return result;
}

/// Puts the bits of a new value into its place.
void put(ProgrammingRef programming, ValueRef value, std::span<const std::uint8_t> bytes) {
  const std::span<std::uint8_t> target = bytes_of(programming, value);
  if (target.size() > 1) {
    std::memcpy(target.data(), bytes.data(), target.size());
    return;
  }
  const std::uint8_t mask = value.field->place.mask;
  target.front() = static_cast<std::uint8_t>((target.front() & ~mask) | (bytes.front() & mask));
}

bool holds(ProgrammingView programming, ValueRef value, std::span<const std::uint8_t> bytes) {
  const std::span<const std::uint8_t> held = bytes_of(programming, value);
  if (held.size() == 1) return ((held.front() ^ bytes.front()) & value.field->place.mask) == 0;
  return std::memcmp(held.data(), bytes.data(), held.size()) == 0;
}

void set_bit_above_zero(ProgrammingRef programming, ValueRef value) {
  if (!value.field->bit_above_zero) return;
  const Place& place = *value.field->bit_above_zero;
  const std::span<const std::uint8_t> bytes = bytes_of(ProgrammingView{programming}, value);
  const bool above = std::any_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte != 0; });
  const Field owner{.id = {}, .place = place};
  store_number(place, bytes_of(programming, {&owner, value.record}), above ? 1 : 0);
}

Refusal set(ProgrammingRef programming, ValueRef value, std::string_view text, From whom, char decimal_sign) {
  if (!has_record(programming, value)) return no_such_record(programming, *value.field);
  const Field& field = *value.field;
  NewBytes wanted = new_bytes(programming, value, text, whom, decimal_sign);
  if (wanted.refusal.refused()) return std::move(wanted.refusal);
  if (holds(programming, value, wanted.bytes)) return {};
  if (!is_on_model(field, programming.model)) return {.why = Why::not_on_this_model};
  put(programming, value, wanted.bytes);
  set_bit_above_zero(programming, value);
  if (field.oddity == Oddity::one_for_all) {
    for (std::size_t i = 0; i < field.place.count; ++i) put(programming, {&field, field.place.first + i}, wanted.bytes);
  }
  return {};
}

}  // namespace

std::optional<std::int64_t> number_of(ProgrammingView programming, ValueRef value) {
  const Field& field = *value.field;
  const std::optional<std::int64_t> number = stored_number(field.place, bytes_of(programming, value));
  if (field.oddity == Oddity::ten_is_sixteen && number == group_ten_stored) return group_ten;
  return number;
}

int decimals_of(ProgrammingView programming, ValueRef value) {
  switch (value.field->coding) {
    case Coding::amount:
      return sane(programming.image->SysOpt0);
    case Coding::rate:
      return sane(programming.image->ForeignCurrency.at(value.record - 1).DecimalPositionForExchangedRate);
    default:
      return value.field->limits.decimals;
  }
}

std::string shown_text(ProgrammingView programming, ValueRef value, Manner manner) {
  const Field& field = *value.field;
  if (field.coding == Coding::text) return sostituzione_from_ecr(trim_end(text_bytes(programming, value)));
  const std::optional<std::int64_t> number = number_of(programming, value);
  if (!number) return bytes_text(field, bytes_of(programming, value));
  if (!is_number(field.coding)) {
    std::string word = word_of(field, *number, From::person);
    return word.empty() ? std::to_string(*number) : word;
  }
  std::string text = number_text(*number, form_of(programming, value, manner.decimal_sign));
  if (field.coding == Coding::percent) text += percent_sign;
  return text;
}

std::string plain_text(ProgrammingView programming, ValueRef value) {
  const Field& field = *value.field;
  const std::span<const std::uint8_t> bytes = bytes_of(programming, value);
  if (field.coding == Coding::text) return escaped_text(text_bytes(programming, value));
  const std::optional<std::int64_t> number = number_of(programming, value);
  if (!number || !comes_back(field, bytes, *number)) return bytes_text(field, bytes);
  if (is_number(field.coding)) {
    const bool fits = *number >= field.limits.lowest && *number <= field.limits.highest;
    return fits ? number_text(*number, form_of(programming, value, '.')) : bytes_text(field, bytes);
  }
  std::string word = word_of(field, *number, From::plain);
  return word.empty() ? bytes_text(field, bytes) : word;
}

Refusal set_plain(ProgrammingRef programming, ValueRef value, std::string_view text) {
  return set(programming, value, text, From::plain, '.');
}

Refusal set_typed(ProgrammingRef programming, ValueRef value, std::string_view text, Manner manner) {
  return set(programming, value, text, From::person, manner.decimal_sign);
}

ShownLimits limits_of(ProgrammingView programming, ValueRef value, Manner manner) {
  const Field& field = *value.field;
  if (!is_number(field.coding)) return {};
  NumberForm form = form_of(programming, value, manner.decimal_sign);
  form.digits = 1;
  return {number_text(field.limits.lowest, form), number_text(field.limits.highest, form)};
}

Refusal no_such_record(ProgrammingView programming, const Field& field) {
  const std::size_t first = field.place.first;
  const std::size_t records = record_count(programming, field.place);
  return {.why = Why::no_such_record,
          .what = std::string{field.id},
          .first = std::to_string(first),
          .second = std::to_string(first + records - (records > 0 ? 1 : 0))};
}

void mark_changed(ProgrammingRef programming, ValueRef value) {
  if (value.field->place.where == Where::item) {
    programming.items->Row.at(value.record - 1).SendFlag = 1;
  } else if (value.field->id.starts_with("dept.")) {
    constexpr unsigned saved_bit = 1U << 3;
    DeptRecord& department = programming.image->Dept.at(value.record - 1);
    department.Changed = 1;
    department.Status1 = static_cast<Flags>(department.Status1 | saved_bit);
  }
}

}  // namespace ecr::fields

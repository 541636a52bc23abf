#include "fields/reference.h"

#include <algorithm>

#include "core/text.h"
#include "fields/book.h"
#include "fields/coding.h"
#include "fields/value.h"

namespace ecr::fields {
namespace {

/// A reference in its pieces: "plu", '{', "5901234123457", "price1".
struct Pieces {
  std::string id;       ///< with the field's part: "plu.price1"
  char bracket = '\0';  ///< '[', '{', or none
  std::string_view record;
};

std::optional<Pieces> split(std::string_view text) {
  Pieces pieces;
  const std::size_t open = text.find_first_of("[{");
  if (open == std::string_view::npos) {
    pieces.id = text;
    return pieces;
  }
  pieces.bracket = text[open];
  const std::size_t close = text.find(pieces.bracket == '[' ? ']' : '}', open);
  if (close == std::string_view::npos || close + 1 >= text.size() || text[close + 1] != '.') return std::nullopt;
  pieces.record = trim_both(text.substr(open + 1, close - open - 1));
  pieces.id = std::string{text.substr(0, open)} + std::string{text.substr(close + 1)};
  return pieces;
}

/// A whole number of digits alone.
std::optional<std::int64_t> digits_of(std::string_view text) {
  const ReadNumber read = read_number(text, {});
  const bool is_plain = !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
  if (!is_plain || read.fault != ReadNumber::Fault::none) return std::nullopt;
  return read.number;
}

const Field& code_field() {
  static const Field& field = fields::field("plu.code");
  return field;
}

std::size_t items_with(ProgrammingView programming, std::int64_t code) {
  std::size_t items = 0;
  for (std::size_t row = 1; row <= item_count(programming); ++row) {
    if (number_of(programming, {&code_field(), row}) == code) ++items;
  }
  return items;
}

Found refused(Refusal refusal) {
  return {.value = std::nullopt, .refusal = std::move(refusal)};
}

Found item_with_code(ProgrammingView programming, const Field& field, std::string_view text) {
  const std::optional<std::int64_t> code = digits_of(text);
  const std::size_t items = code && *code != 0 ? items_with(programming, *code) : 0;
  if (items == 0) return refused({.why = Why::no_such_item, .what = std::string{text}});
  if (items > 1) {
    return refused({.why = Why::several_items, .what = std::string{text}, .first = std::to_string(items)});
  }
  return {.value = ValueRef{&field, *row_of_code(programming, *code)}};
}

}  // namespace

std::optional<std::size_t> row_of_code(ProgrammingView programming, std::int64_t code) {
  for (std::size_t row = 1; row <= item_count(programming); ++row) {
    if (number_of(programming, {&code_field(), row}) == code) return row;
  }
  return std::nullopt;
}

Found find_value(ProgrammingView programming, std::string_view text) {
  const std::string wanted = lower_ascii(trim_both(text));
  const std::optional<Pieces> pieces = split(wanted);
  if (!pieces) return refused({.why = Why::not_a_reference, .what = std::string{text}});
  const Field* field = field_with_id(pieces->id);
  if (field == nullptr) return refused({.why = Why::no_such_field, .what = pieces->id});
  const bool stands_alone = field->place.where != Where::item && field->place.count == 1;
  if (stands_alone) {
    if (pieces->bracket != '\0') return refused({.why = Why::stands_alone, .what = pieces->id});
    return {.value = ValueRef{field, field->place.first}};
  }
  if (pieces->bracket == '{' && field->place.where == Where::item) {
    return item_with_code(programming, *field, pieces->record);
  }
  const std::optional<std::int64_t> record =
      pieces->bracket == '[' ? digits_of(pieces->record) : std::optional<std::int64_t>{};
  if (record && has_record(programming, {field, static_cast<std::size_t>(*record)})) {
    return {.value = ValueRef{field, static_cast<std::size_t>(*record)}};
  }
  return refused(no_such_record(programming, *field));
}

References::References(ProgrammingView programming) : programming_{programming} {
  for (std::size_t row = 1; row <= item_count(programming); ++row) {
    codes_.push_back(number_of(programming, {&code_field(), row}).value_or(0));
  }
  std::sort(codes_.begin(), codes_.end());
}

std::string References::text(ValueRef value) const {
  const Field& field = *value.field;
  if (field.place.where != Where::item && field.place.count == 1) return std::string{field.id};
  const std::size_t point = field.id.find('.');
  const std::string family{field.id.substr(0, point)};
  const std::string rest{field.id.substr(point)};
  if (field.place.where == Where::item) {
    const std::int64_t code = number_of(programming_, {&code_field(), value.record}).value_or(0);
    const auto [first, last] = std::equal_range(codes_.begin(), codes_.end(), code);
    if (code != 0 && last - first == 1) return family + "{" + std::to_string(code) + "}" + rest;
  }
  return family + "[" + std::to_string(value.record) + "]" + rest;
}

std::string reference_text(ProgrammingView programming, ValueRef value) {
  return References{programming}.text(value);
}

}  // namespace ecr::fields

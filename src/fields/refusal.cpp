#include "fields/refusal.h"

#include <optional>
#include <string_view>

#include "lang/own_texts.h"

namespace ecr::fields {
namespace {

std::optional<OwnText> text_of(Why why) {
  switch (why) {
    case Why::taken:
      return std::nullopt;
    case Why::no_number:
      return OwnText::refused_no_number;
    case Why::too_low:
      return OwnText::refused_too_low;
    case Why::too_high:
      return OwnText::refused_too_high;
    case Why::too_many_decimals:
      return OwnText::refused_decimals;
    case Why::too_long:
      return OwnText::refused_too_long;
    case Why::no_such_character:
      return OwnText::refused_character;
    case Why::no_such_choice:
      return OwnText::refused_choice;
    case Why::not_its_bytes:
      return OwnText::refused_bytes;
    case Why::not_its_bits:
      return OwnText::refused_bits;
    case Why::not_on_this_model:
      return OwnText::refused_model;
    case Why::no_such_field:
      return OwnText::refused_field;
    case Why::not_a_reference:
      return OwnText::refused_reference;
    case Why::no_such_record:
      return OwnText::refused_record;
    case Why::stands_alone:
      return OwnText::refused_alone;
    case Why::no_such_item:
      return OwnText::refused_item;
    case Why::several_items:
      return OwnText::refused_items;
  }
  return std::nullopt;
}

}  // namespace

std::string words(const Refusal& refusal) {
  const std::optional<OwnText> text = text_of(refusal.why);
  if (!text) return {};
  // Marks in what goes in are no places: the pattern is walked once.
  const std::string pattern = own_bytes(*text);
  std::string result;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const char number = pattern[i] == '%' && i + 1 < pattern.size() ? pattern[i + 1] : '\0';
    if (number < '1' || number > '3') {
      result += pattern[i];
      continue;
    }
    result += number == '1' ? refusal.what : number == '2' ? refusal.first : refusal.second;
    ++i;
  }
  return result;
}

}  // namespace ecr::fields

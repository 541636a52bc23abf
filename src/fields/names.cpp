#include "fields/names.h"

#include <algorithm>

#include "core/register_text.h"
#include "core/text.h"
#include "fields/book.h"
#include "fields/caption_meanings.h"
#include "fields/key_codes.h"
#include "fields/key_matrix.h"
#include "fields/rows/choices.h"
#include "fields/value.h"

namespace ecr::fields {
namespace {

/// The text of a choice without its digit; its literal where its keys have none.
std::string words_after_digit(std::string_view entry) {
  const std::size_t blank = entry.find(' ');
  return std::string{blank == std::string_view::npos ? entry : entry.substr(blank + 1)};
}

bool takes_catalogue(const Choice& choice) {
  return choice.text.has_value() && !message(choice.decides.value_or(*choice.text)).empty();
}

std::string with_brackets(std::string name, const std::string& inside) {
  if (inside.empty()) return name;
  return name + " (" + inside + ")";
}

std::string with_word(std::string number, const std::string& word) {
  if (word.empty()) return number;
  return number + " " + word;
}

/// What the field `id` shows of this record; characters that print nothing are blanks.
std::string shown(ProgrammingView programming, std::string_view id, std::size_t record) {
  std::string text = shown_text(programming, {field_with_id(id), record});
  const auto prints_nothing = [](char c) { return static_cast<unsigned char>(c) < ' '; };
  std::replace_if(text.begin(), text.end(), prints_nothing, ' ');
  return std::string{trim_both(text)};
}

std::string key_record(ProgrammingView programming, std::size_t position) {
  const std::uint8_t key = position_map(programming.model).at(position);
  return key == 0 ? own_bytes(OwnText::field_position_number, std::to_string(position))
                  : own_bytes(OwnText::field_key_number, std::to_string(key));
}

/// What DescCaption.ini says of a line; empty if it says nothing.
std::string meaning(Section section, std::size_t record) {
  const CaptionDescriptions& all = caption_descriptions();
  if (section == Section::short_captions) return all.captions.at(record - 1);
  return record <= all.others.size() ? all.others[record - 1] : std::string{};
}

/// The first key of a family of five, which are called as the records are.
std::string family_member(std::uint8_t first_code, std::size_t record) {
  return std::string{key_name(static_cast<std::uint8_t>(first_code + record - 1))};
}

}  // namespace

std::string caption_text(const Caption& caption) {
  std::string text{caption.built_in};
  if (caption.own.has_value()) {
    text = own_bytes(*caption.own);
  } else if (caption.key.has_value() && !message(*caption.key).empty()) {
    text = message(*caption.key);
  }
  return caption.number > 0 ? text + " " + std::to_string(caption.number) : text;
}

std::string plain_caption(const Caption& caption) {
  std::string text = Replace_Text(caption_text(caption), "\r", " ");
  for (std::size_t place = text.find("&&"); place != std::string::npos; place = text.find("&&", place + 1)) {
    text.erase(place, 1);
  }
  std::string_view name = trim_both(text);
  if (name.ends_with(':')) name = trim_end(name.substr(0, name.size() - 1));
  return std::string{name};
}

std::string name_of(const Field& field) {
  return plain_caption(field.name);
}

std::string name_of(Section section) {
  return plain_caption(section_row(section).name);
}

std::string record_name(ProgrammingView programming, ValueRef value) {
  const Place& place = value.field->place;
  if (place.where != Where::item && place.count == 1) return {};
  const std::size_t record = value.record;
  const std::string number = std::to_string(record);
  // Bits of a record that nobody understands are named as what the record is.
  const std::string_view family = value.field->id.substr(0, value.field->id.find('.'));
  const auto own_name = [&](std::string_view id) { return with_word(number, shown(programming, id, record)); };
  const auto caption = [&](Section section) { return plain_caption(section_row(section).records[record - 1]); };
  const auto prefixed = [&](Section section) { return caption_text(section_row(section).record_prefix) + number; };
  if (family == "vat") return with_brackets(caption(Section::vat), shown(programming, "vat.rate", record));
  if (family == "dept") return own_name("dept.name");
  if (family == "group") return own_name("group.name");
  if (family == "clerk") return own_name("clerk.name");
  if (family == "currency") return own_name("currency.name");
  if (family == "plu") {
    return with_word(shown(programming, "plu.code", record), shown(programming, "plu.name", record));
  }
  if (family == "plu-page") return caption(Section::plu_pages);
  if (family == "tender") return with_brackets(caption(Section::tenders), shown(programming, "tender.name", record));
  if (family == "pop-plu") return own_bytes(OwnText::list_number, number);
  if (family == "chain") return family_member(first_chain_code, record);
  if (family == "pop-key") return family_member(first_pop_list_code, record);
  if (family == "key") return key_record(programming, record);
  if (family == "caption") return with_word(number, meaning(Section::short_captions, record));
  if (family == "header") return prefixed(Section::header);
  if (family == "footer") return prefixed(Section::footer);
  if (family == "invoice-line") return prefixed(Section::invoice_lines);
  if (family == "abbreviation") return prefixed(Section::abbreviations);
  if (family == "other-line") {
    const std::string words = meaning(Section::other_lines, record);
    return words.empty() ? prefixed(Section::other_lines) : with_word(number, words);
  }
  return number;
}

std::span<const Choice> choices_of(const Field& field) {
  return field.coding == Coding::flag ? std::span<const Choice>{no_yes} : field.choices;
}

const Choice* choice_of(const Field& field, int number) {
  const std::span<const Choice> choices = choices_of(field);
  const auto found =
      std::find_if(choices.begin(), choices.end(), [&](const Choice& choice) { return choice.digit == number; });
  return found == choices.end() ? nullptr : &*found;
}

std::string entry_text(const Choice& choice) {
  if (!takes_catalogue(choice)) return std::string{choice.literal};
  const std::string_view prefix = choice.prefix == Prefix::point ? "." : ". ";
  return std::to_string(choice.digit) + std::string{prefix} + message(*choice.text);
}

std::string choice_words(const Choice& choice) {
  if (takes_catalogue(choice) && !message(*choice.text).empty()) return message(*choice.text);
  return words_after_digit(choice.literal);
}

}  // namespace ecr::fields

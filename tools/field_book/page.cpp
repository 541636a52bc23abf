#include "field_book/page.h"

#include <bit>
#include <cstddef>
#include <cstdint>

#include "core/code_page.h"
#include "fields/book.h"
#include "fields/coding.h"
#include "fields/names.h"
#include "lang/language.h"

namespace ecr {
namespace {

using namespace fields;

constexpr std::string_view head = R"(# The fields of a programming

Every value that can be programmed, in the order of the menus. This page is written by `tools/field_book` from the
book of fields, `src/fields/`; a test compares the two.

A value is named by its id, with the number of its record in square brackets where there are several:
`print.tax-rate`, `dept[12].price`. An item also goes by its code: `plu{5901234123457}.price1`.

In plain text, for files and scripts, numbers have a point as their decimal sign, amounts as many decimals as
`system.decimals` says, and choices the words given here. What has no such form is its bytes, as in `<1a00>`, and in a
text `\x7f`; so every value can be read back without loss.

Offsets count bytes from the start of PRG_MODE.BIN, those of items and pop-up lists from the start of the item or of
the first list in PRG_PLU.BIN. Bit 0 is the least significant.
)";

void append_utf8(std::string& out, char16_t letter) {
  if (letter < 0x80) {
    out += static_cast<char>(letter);
  } else if (letter < 0x800) {
    out += static_cast<char>(0xC0 | letter >> 6);
    out += static_cast<char>(0x80 | (letter & 0x3F));
  } else {
    out += static_cast<char>(0xE0 | letter >> 12);
    out += static_cast<char>(0x80 | (letter >> 6 & 0x3F));
    out += static_cast<char>(0x80 | (letter & 0x3F));
  }
}

std::string utf8(std::string_view page_bytes) {
  std::string text;
  for (const char16_t letter : unicode_of(page_bytes)) append_utf8(text, letter);
  return text;
}

/// Letters of up to three bytes, as bytes of the code page.
std::string page_bytes(std::string_view utf8_text) {
  std::u16string letters;
  for (std::size_t i = 0; i < utf8_text.size(); ++i) {
    const auto lead = static_cast<unsigned char>(utf8_text[i]);
    const int more = lead < 0x80 ? 0 : lead < 0xE0 ? 1 : 2;
    unsigned letter = more == 0 ? lead : more == 1 ? lead & 0x1FU : lead & 0x0FU;
    for (int j = 0; j < more && i + 1 < utf8_text.size(); ++j) {
      letter = letter << 6 | (static_cast<unsigned char>(utf8_text[++i]) & 0x3FU);
    }
    letters += static_cast<char16_t>(letter);
  }
  return bytes_of(letters);
}

/// A table's cell cannot hold a bar.
std::string cell(std::string text) {
  for (std::size_t place = text.find('|'); place != std::string::npos; place = text.find('|', place + 2)) {
    text.insert(place, 1, '\\');
  }
  return text;
}

std::string place_of(const Place& place) {
  std::string text = std::to_string(place.offset);
  if (place.width > 1) text += ", " + std::to_string(place.width) + " bytes";
  if (place.mask != 0xFF) {
    const int first = std::countr_zero(place.mask);
    const int last = first + std::popcount(place.mask) - 1;
    text += place.is_bit() ? ", bit " + std::to_string(first)
                           : ", bits " + std::to_string(first) + "-" + std::to_string(last);
  }
  return text;
}

std::string_view name_of_coding(Coding coding) {
  switch (coding) {
    case Coding::text:
      return "text";
    case Coding::number:
      return "number";
    case Coding::amount:
      return "amount";
    case Coding::rate:
      return "rate of exchange";
    case Coding::percent:
      return "percent";
    case Coding::quantity:
      return "quantity";
    case Coding::choice:
      return "";
    case Coding::flag:
      return "yes, no";
    case Coding::code:
      return "item code";
    case Coding::key:
      return "function of a key, or its code";
    case Coding::raw:
      return "bytes";
  }
  return "";
}

std::string value_of(const Field& field) {
  std::string text{name_of_coding(field.coding)};
  for (const Choice& choice : field.choices) {
    if (choice.token.empty()) continue;
    if (!text.empty()) text += ", ";
    text += "`" + std::string{choice.token} + "` " + std::to_string(choice.digit);
  }
  if (field.coding == Coding::text) text += " of " + std::to_string(field.place.width);
  if (field.limits.highest > 0 && field.coding != Coding::key) {
    const bool is_open = field.coding == Coding::amount || field.coding == Coding::rate;
    const NumberForm form{.decimals = field.limits.decimals, .shortest = field.coding == Coding::quantity};
    text += " " + number_text(field.limits.lowest, form) + " to " + number_text(field.limits.highest, form);
    if (is_open) text += " without its point";
  }
  return text;
}

std::string_view note_of(Oddity oddity) {
  switch (oddity) {
    case Oddity::none:
      return "";
    case Oddity::words_crossed:
      return "without a catalogue the screen's words are crossed";
    case Oddity::never_shown:
      return "the control is never shown";
    case Oddity::ten_is_sixteen:
      return "10 is stored as 16";
    case Oddity::one_for_all:
      return "one setting for all records";
    case Oddity::shows_bit_of_po:
      return "the box shows the bit of `pop-key.po` when it is loaded";
    case Oddity::cannot_be_changed:
      return "the box is disabled";
    case Oddity::takes_any_text:
      return "the control takes any text";
    case Oddity::empty_is_a_fault:
      return "an empty control brings the stored value back";
    case Oddity::trimmed_by_loading:
      return "loading trims it in memory";
    case Oddity::cut_while_typing:
      return "a longer text is cut while it is typed";
    case Oddity::invoice_lines_kept:
      return "on the Z300 it can be typed and is not saved";
  }
  return "";
}

std::string_view note_of(OptionLoad load) {
  switch (load) {
    case OptionLoad::plain:
      return "";
    case OptionLoad::other_way_round:
      return "the list shows the other entry when it is loaded";
    case OptionLoad::mends_unknown:
      return "another byte becomes 0 when the screen is opened";
    case OptionLoad::zero_or_second:
      return "any byte but 0 shows the second entry";
  }
  return "";
}

std::string_view note_of(Owner owner) {
  switch (owner) {
    case Owner::shop:
    case Owner::nobody:
      return "";
    case Owner::register_itself:
      return "counted by the register";
    case Owner::program:
      return "a mark of the program";
  }
  return "";
}

std::string notes_of(const Field& field) {
  std::string text;
  const auto add = [&text](std::string_view note) {
    if (note.empty()) return;
    if (!text.empty()) text += "; ";
    text += note;
  };
  const Edited& edited = field.edited;
  if (!edited.control.empty()) {
    std::string control = "`" + std::string{edited.control};
    if (edited.reach == Reach::array_from_0) control += "(0)";
    if (edited.reach == Reach::array_from_1) control += "(1)";
    if (edited.reach == Reach::array_for_each) control += "1(" + std::to_string(edited.member) + ")";
    add(control + "`");
  }
  if (field.models == Models::z320_only) add("Z320 only");
  add(note_of(field.owner));
  add(note_of(field.load));
  if (!field.saved_from.empty()) add("saved from `" + std::string{field.saved_from} + "`");
  add(note_of(field.oddity));
  return text;
}

std::string records_of(const Place& place) {
  if (place.where == Where::item) return "a record for each item";
  if (place.count == 1) return {};
  return std::to_string(place.count) + " records, " + std::to_string(place.stride) + " bytes apart, from " +
         std::to_string(place.first);
}

std::string section_page(const SectionRow& section) {
  std::string text = "\n## " + utf8(name_of(section.section)) + "\n\n";
  if (!section.screen.empty()) text += "Screen `" + std::string{section.screen} + "`";
  if (!section.record_control.empty()) text += ", records by `" + std::string{section.record_control} + "`";
  if (section.models == Models::z320_only) text += ", Z320 only";
  const std::string records = records_of(section.fields.front().place);
  if (section.section != Section::carried && !records.empty()) text += "; " + records;
  if (section.section == Section::carried)
    text += "What nobody here understands, and what differs between registers all the same";
  text += ".\n\n| Id | Name | Place | Value | |\n|---|---|---|---|---|\n";
  for (const Field& field : section.fields) {
    std::string place = place_of(field.place);
    if (section.section == Section::carried && field.place.count > 1) place += "; " + records_of(field.place);
    text += "| `" + std::string{field.id} + "` | " + cell(utf8(name_of(field))) + " | " + place + " | " +
            cell(value_of(field)) + " | " + cell(notes_of(field)) + " |\n";
  }
  return text;
}

}  // namespace

std::string field_book_page(std::string_view english) {
  parse_language(page_bytes(english));
  std::string page{head};
  for (const SectionRow& section : sections()) page += section_page(section);
  return page;
}

}  // namespace ecr

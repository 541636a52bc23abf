#pragma once
// What a row of the book of fields says: one row for each value that can be programmed, and one for each piece of the
// programming that is only carried along. Whatever else the program knows of a value is asked here.
//
// Texts are bytes of the code page, as everywhere inside the program.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "core/catalogue.h"
#include "core/model.h"
#include "lang/own_texts.h"

namespace ecr::fields {

/// The menu entry to which a value belongs, in the order of the menus.
enum class Section : std::uint8_t {
  vat,
  departments,
  groups,
  items,
  plu_pages,
  percent_keys,
  amount_keys,
  tenders,
  no_sale,
  currencies,
  clerks,
  passwords,
  barcodes,
  system_options,
  pop_up_plus,
  initial_setup,
  working_mode,
  print_mode,
  report_setup,
  journal_setup,
  hospitality,
  clerk_setup,
  header,
  footer,
  invoice_lines,
  other_lines,
  abbreviations,
  short_captions,
  messages,
  chains,
  key_layout,
  pop_up_keys,
  carried,
};
inline constexpr std::size_t section_count = static_cast<std::size_t>(Section::carried) + 1;

/// A text on the screen: the catalogue's where the key has one, else the built-in one. `own` is for what no control
/// shows; it is a text in all languages, and comes before the other two. A number above 0 follows the text.
struct Caption {
  std::optional<Key> key = {};
  std::string_view built_in = {};
  std::optional<OwnText> own = {};
  int number = 0;
};

/// In which part of a programming a value lies.
enum class Where : std::uint8_t {
  image,
  item,          ///< offsets count from the item's start
  pop_up_lists,  ///< offsets count from the first list's start
};

/// How the bytes of a value are to be read.
enum class Stored : std::uint8_t {
  text,      ///< register characters, padded with blanks
  binary,    ///< a number in one byte, or in some of its bits
  packed,    ///< packed decimal, least significant pair first
  quantity,  ///< the same with a sign in the first digit: above 10^(2n-1) for n bytes it is negative
  raw,       ///< not read
};

/// Where a value lies: in one record, or in each record of a table.
struct Place {
  Where where = Where::image;
  Stored stored = Stored::binary;
  std::size_t offset = 0;    ///< bytes, of the first record's value
  std::size_t width = 1;     ///< bytes
  std::uint8_t mask = 0xFF;  ///< the value's bits, next to each other; all of them where it is wider than a byte
  std::size_t count = 1;     ///< records
  std::size_t stride = 0;    ///< bytes from one record to the next
  std::size_t first = 1;     ///< the first record's number: 0 for the positions of the keyboard, else 1

  [[nodiscard]] constexpr std::size_t offset_of(std::size_t record) const { return offset + (record - first) * stride; }
  [[nodiscard]] constexpr bool has(std::size_t record) const { return record >= first && record - first < count; }
  [[nodiscard]] constexpr bool is_bit() const { return (mask & (mask - 1)) == 0; }

  friend constexpr bool operator==(const Place&, const Place&) = default;
};

/// What a value means, and so how it reads.
enum class Coding : std::uint8_t {
  text,
  number,    ///< a whole number, or one with as many decimals as its limits say
  amount,    ///< smallest units of money; the programming says how many decimals
  rate,      ///< of exchange; the record says how many decimals
  percent,   ///< with as many decimals as its limits say
  quantity,  ///< of stock, with four decimals
  choice,
  flag,  ///< a bit that stands for yes where it is set
  code,  ///< of an item; 0 is none
  key,   ///< the function of a key
  raw,   ///< nobody knows: the bytes themselves
};

/// How the digit of an entry stands in front of a catalogue text.
enum class Prefix : std::uint8_t {
  point_blank,  ///< "1. TEXT"
  point,        ///< "1.TEXT"
};

/// One value of a choice, and the entry of a list that stands for it. With a text in the deciding key the entry reads
/// digit, prefix and the text of the text key; without one it is the literal, which carries a digit of its own. A
/// choice without keys is always its literal; one without either is an entry that says nothing.
struct Choice {
  int digit = 0;                ///< the value
  std::string_view token = {};  ///< the value in plain text
  std::string_view literal = {};
  std::optional<Key> text = {};
  std::optional<Key> decides = {};  ///< none: the text key itself
  Prefix prefix = Prefix::point_blank;
};

/// What a number may be, in units of its last decimal.
struct Limits {
  std::int64_t lowest = 0;
  std::int64_t highest = 0;
  int decimals = 0;
  int digits = 1;  ///< so many are shown at least, zeros in front
};

enum class Owner : std::uint8_t {
  shop,
  register_itself,  ///< a counter: the register goes on from it, and brings its own with each reading
  program,          ///< a mark that this program keeps for itself, or works out from another value
  nobody,           ///< carried along; nobody here understands it
};

/// How a person gets from the screen to the record of a value.
enum class Reach : std::uint8_t {
  directly,        ///< the screen has the one control
  record_list,     ///< the section's list of record numbers, or its grid, brings the record into the control
  array_from_0,    ///< a control array: member 0 is the first record
  array_from_1,    ///< the same, from 1
  array_for_each,  ///< a control array for each record, which ends in the record's number: E_Plu2(7)
  tab,             ///< the section's tabs, from 0, bring the record into the control
  key_cap,         ///< the cap of the key at that position
};

/// Where a person edits the value. Without a control nowhere.
struct Edited {
  std::string_view control = {};
  std::string_view label = {};
  Reach reach = Reach::directly;
  int member = 0;  ///< of the control array for each record
};

/// How the list of a choice is filled from the image.
enum class OptionLoad : std::uint8_t {
  plain,
  other_way_round,  ///< a set bit shows the first entry, a clear one the second; saving is as ever
  mends_unknown,    ///< a byte that is no entry's digit becomes 0 in the working image, and 0 is shown
  zero_or_second,   ///< every byte but 0 shows the second entry
};

/// What a screen does with this one value that it does with no other.
enum class Oddity : std::uint8_t {
  none,
  words_crossed,       ///< the built-in entries say the opposite of the catalogue's words for the same value
  never_shown,         ///< the control is out of sight on both models; it is loaded and saved all the same
  ten_is_sixteen,      ///< 10 is stored as 16
  one_for_all,         ///< one setting of the whole table, kept in each record: it is stored into all of them
  shows_bit_of_po,     ///< the box shows the bit of PO when it is loaded
  cannot_be_changed,   ///< the box is disabled
  takes_any_text,      ///< the field lets any text be typed; one that is no number ends a save
  empty_is_a_fault,    ///< an empty field is not taken for 0: the stored value comes back
  trimmed_by_loading,  ///< the working image keeps the name without the blanks in front of it as soon as it is shown
  cut_while_typing,    ///< a longer text can be typed or pasted and is cut at once
  invoice_lines_kept,  ///< on a Z300 it can be typed, and is not saved
};

/// A row of the book.
struct Field {
  /// Lower-case words: what it belongs to, a point, what it is. It never changes.
  std::string_view id;
  Section section = Section::carried;  ///< filled in by in_section
  Caption name = {};
  Place place = {};
  Coding coding = Coding::choice;
  std::span<const Choice> choices = {};
  Limits limits = {};
  Models models = Models::both;  ///< a Z300 keeps the value of a Z320 and does nothing with it; its screens hide it
  Owner owner = Owner::shop;
  Edited edited = {};
  OptionLoad load = OptionLoad::plain;
  /// The control whose number is saved at this row's place. Empty: the row's own.
  std::string_view saved_from = {};
  Oddity oddity = Oddity::none;
  /// A bit of the same record that goes with this value: set where it is above 0.
  std::optional<Place> bit_above_zero = {};
  bool secret = false;  ///< a password: it is not for paper
};

/// A value: a field, and the number of a record; 1 for a field that stands alone.
struct ValueRef {
  const Field* field = nullptr;
  std::size_t record = 1;

  friend constexpr bool operator==(const ValueRef&, const ValueRef&) = default;
};

}  // namespace ecr::fields

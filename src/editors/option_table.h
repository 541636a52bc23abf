#pragma once
// Option screens as tables: one row for each choice list that stands for a bit or a byte of the image.
//
// A row says everything about its list: its name, its label, its choices, its place, and by name whatever is odd about
// it. option_list.h puts rows on a screen, fills them and reads them back. `sound` and `owned_bits` check tables while
// they are compiled.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "core/catalogue.h"
#include "core/model.h"

namespace ecr {

/// How the digit of an entry stands in front of a catalogue text.
enum class Prefix : std::uint8_t {
  point_blank,  ///< "1. TEXT"
  point,        ///< "1.TEXT"
};

/// One entry of a list. With a text in the deciding key it reads digit, prefix and the text of the text key; without
/// one it is the literal, which carries a digit of its own. A choice without keys is always its literal.
struct Choice {
  int digit = 0;
  std::string_view literal = {};
  std::optional<Key> text = {};
  std::optional<Key> decides = {};  ///< none: the text key itself
  Prefix prefix = Prefix::point_blank;
};

enum class Stored : std::uint8_t {
  bit,       ///< set shows the second entry, clear the first; a number above 0 sets it
  byte,      ///< the entry whose digit it is; the number as it stands
  bcd_byte,  ///< the same with two packed decimal digits
};

/// Where an option lies. `offset` counts bytes from the start of the image, or of the record in tables that stand for
/// records.
struct OptionPlace {
  std::size_t offset = 0;
  Stored stored = Stored::byte;
  std::uint8_t bit = 0;  ///< 0 the least significant

  friend constexpr bool operator==(const OptionPlace&, const OptionPlace&) = default;
};

constexpr OptionPlace byte_at(std::size_t offset) {
  return {offset, Stored::byte, 0};
}
constexpr OptionPlace bcd_byte_at(std::size_t offset) {
  return {offset, Stored::bcd_byte, 0};
}
constexpr OptionPlace bit_at(std::size_t offset, std::uint8_t bit) {
  return {offset, Stored::bit, bit};
}

enum class OptionLoad : std::uint8_t {
  plain,
  other_way_round,  ///< a set bit shows the first entry, a clear one the second; saving is as ever
  mends_unknown,    ///< a byte that is no entry's digit becomes 0 in the working image, and 0 is shown
};

struct OptionRow {
  std::string_view control;
  std::string_view label;
  Key key{};
  std::string_view caption = {};
  std::span<const Choice> choices = {};
  OptionPlace place = {};
  OptionLoad load = OptionLoad::plain;
  /// On the other model the list is out of sight; it is loaded and saved there all the same.
  Models models = Models::both;
  /// The list whose number is saved at this row's place. Empty: this row's own.
  std::string_view saved_from = {};
};

/// What is wrong with a table, nullptr if nothing is: places inside of `size` bytes, no bit owned twice, no control or
/// label named twice, literals that begin with a digit and a point, a bit with its two entries, `saved_from` naming a
/// row of the table. An empty literal is an entry that says nothing.
[[nodiscard]] constexpr const char* complaint_about(std::span<const OptionRow> rows, std::size_t size);

/// The bits of one byte that the rows own.
[[nodiscard]] constexpr std::uint8_t owned_bits(std::span<const OptionRow> rows, std::size_t offset) {
  std::uint8_t bits = 0;
  for (const OptionRow& row : rows) {
    if (row.place.offset != offset) continue;
    bits = static_cast<std::uint8_t>(bits | (row.place.stored == Stored::bit ? 1U << row.place.bit : 0xFFU));
  }
  return bits;
}

[[nodiscard]] constexpr const char* complaint_about(std::span<const OptionRow> rows, std::size_t size) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const OptionRow& row = rows[i];
    if (row.control.empty() || row.label.empty()) return "a control without a name";
    if (row.place.offset >= size) return "a place outside of the image or the record";
    if (row.place.bit > 7) return "a byte has bits 0 to 7";
    if (row.choices.empty()) return "a list without entries";
    if (row.place.stored == Stored::bit && row.choices.size() != 2) return "a bit has two entries";
    if (row.place.stored != Stored::bit && row.load == OptionLoad::other_way_round) return "only a bit can be turned";
    for (const Choice& choice : row.choices) {
      const bool says_nothing = choice.literal.empty() && !choice.text.has_value();
      if (choice.digit < 0 || choice.digit > 9) return "an entry has one digit";
      if (!says_nothing && (choice.literal.size() < 2 || choice.literal[0] < '0' || choice.literal[0] > '9' ||
                            choice.literal[1] != '.')) {
        return "a literal begins with a digit and a point";
      }
    }
    bool saved_from_known = row.saved_from.empty();
    for (std::size_t j = 0; j < rows.size(); ++j) {
      const OptionRow& other = rows[j];
      if (other.control == row.saved_from) saved_from_known = true;
      if (j == i) continue;
      if (other.control == row.control || other.label == row.label) return "two controls of one name";
      if (other.place.offset != row.place.offset) continue;
      const bool both_bits = other.place.stored == Stored::bit && row.place.stored == Stored::bit;
      if (!both_bits || other.place.bit == row.place.bit) return "two lists own one bit";
    }
    if (!saved_from_known) return "saved from a list that is not there";
  }
  return nullptr;
}

/// For static_assert.
[[nodiscard]] consteval bool sound(std::span<const OptionRow> rows, std::size_t size) {
  return complaint_about(rows, size) == nullptr;
}

}  // namespace ecr

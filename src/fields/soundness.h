#pragma once
// What the compiler checks of rows: that each makes sense in itself, and that together they own every bit once.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "fields/field.h"

namespace ecr::fields {

/// Lower-case letters, digits and hyphens that begin with a letter and end with no hyphen.
[[nodiscard]] constexpr bool is_word(std::string_view word) {
  if (word.empty() || word.front() < 'a' || word.front() > 'z' || word.back() == '-') return false;
  for (const char c : word) {
    if ((c < 'a' || c > 'z') && (c < '0' || c > '9') && c != '-') return false;
  }
  return true;
}

/// Two such words with a point between them.
[[nodiscard]] constexpr bool is_id(std::string_view id) {
  const std::size_t point = id.find('.');
  return point != std::string_view::npos && is_word(id.substr(0, point)) && is_word(id.substr(point + 1));
}

/// How high a number the place has room for.
[[nodiscard]] constexpr std::int64_t room_of(const Place& place) {
  if (place.stored == Stored::binary) {
    unsigned bits = place.mask;
    while (bits != 0 && (bits & 1U) == 0) bits >>= 1;
    return bits;
  }
  std::int64_t room = 0;
  for (std::size_t i = 0; i < 2 * place.width && i < 18; ++i) room = room * 10 + 9;
  return room;
}

/// What is wrong with a field's place, nullptr if nothing is. `size` is what the offsets count in.
[[nodiscard]] constexpr const char* complaint_about(const Place& place, std::size_t size) {
  if (place.width == 0 || place.count == 0 || place.mask == 0) return "a place without bits";
  if (place.count > 1 && place.stride < place.width) return "records that lie over each other";
  if (place.offset_of(place.first + place.count - 1) + place.width > size) return "a place outside of its part";
  if (place.width > 1 && place.mask != 0xFF) return "bits of more than a byte";
  if (place.width > 1 && place.stored == Stored::binary) return "a number in more than a byte";
  unsigned bits = place.mask;
  while ((bits & 1U) == 0) bits >>= 1;
  if ((bits & (bits + 1)) != 0) return "bits that do not lie next to each other";
  return nullptr;
}

/// What is wrong with the choices of a field, nullptr if nothing is. An empty literal is an entry that says nothing,
/// and has no token either.
[[nodiscard]] constexpr const char* complaint_about_choices(const Field& field) {
  if (field.coding != Coding::choice) return field.choices.empty() ? nullptr : "choices of what is no choice";
  if (field.choices.empty()) return "a list without entries";
  if (field.place.is_bit() && field.choices.size() != 2) return "a bit has two entries";
  if (field.load == OptionLoad::other_way_round && !field.place.is_bit()) return "only a bit can be turned";
  for (const Choice& choice : field.choices) {
    if (choice.digit < 0 || choice.digit > 9 || choice.digit > room_of(field.place)) return "an entry has one digit";
    const bool says_nothing = choice.literal.empty() && !choice.text.has_value();
    if (says_nothing != choice.token.empty()) return "an entry without a plain text";
    if (says_nothing) continue;
    const std::string_view literal = choice.literal;
    if (literal.size() < 2 || literal[0] < '0' || literal[0] > '9' || literal[1] != '.') {
      return "a literal begins with a digit and a point";
    }
    for (const Choice& other : field.choices) {
      if (&other == &choice) continue;
      if (other.digit == choice.digit || other.token == choice.token) return "two entries for one value";
      // A number is taken for the digit.
      if (choice.token.size() == 1 && choice.token[0] - '0' == other.digit) return "a token that is another's digit";
    }
  }
  return nullptr;
}

/// What is wrong with a field, nullptr if nothing is.
[[nodiscard]] constexpr const char* complaint_about(const Field& field, std::size_t size) {
  if (!is_id(field.id)) return "an id of other letters";
  if (field.name.built_in.empty() && !field.name.own.has_value()) return "a field without a name";
  if (const char* complaint = complaint_about(field.place, size)) return complaint;
  if (const char* complaint = complaint_about_choices(field)) return complaint;
  if ((field.coding == Coding::text) != (field.place.stored == Stored::text)) return "a text is stored as text";
  if ((field.coding == Coding::raw) != (field.place.stored == Stored::raw)) return "raw bytes are nobody's";
  if ((field.coding == Coding::quantity) != (field.place.stored == Stored::quantity)) return "a quantity has a sign";
  if (field.coding == Coding::flag && !field.place.is_bit()) return "a flag is a bit";
  if (field.limits.lowest > field.limits.highest || field.limits.highest > room_of(field.place)) {
    if (field.place.stored != Stored::text && field.place.stored != Stored::raw) return "limits without room";
  }
  if ((field.owner == Owner::nobody) != (field.coding == Coding::raw)) return "what is not read is nobody's";
  return nullptr;
}

/// What is wrong with the rows of one screen, nullptr if nothing is: controls and labels named twice, a bit owned
/// twice, `saved_from` naming no row.
[[nodiscard]] constexpr const char* complaint_about(std::span<const Field> rows, std::size_t size) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const Field& row = rows[i];
    if (const char* complaint = complaint_about(row, size)) return complaint;
    bool saved_from_known = row.saved_from.empty();
    for (std::size_t j = 0; j < rows.size(); ++j) {
      const Field& other = rows[j];
      if (other.edited.control == row.saved_from) saved_from_known = true;
      if (j >= i) continue;
      if (other.id == row.id) return "two fields of one id";
      const bool same_member = other.edited.member == row.edited.member;
      const bool same_control = other.edited.control == row.edited.control && same_member;
      if (!row.edited.control.empty() && same_control) return "two controls of one name";
      const bool same_label = other.edited.label == row.edited.label && same_member;
      if (!row.edited.label.empty() && same_label) return "two labels of one name";
      const bool same_byte = other.place.where == row.place.where && other.place.offset == row.place.offset;
      if (same_byte && (other.place.mask & row.place.mask) != 0) {
        return "two fields own one bit";
      }
    }
    if (!saved_from_known) return "saved from a list that is not there";
  }
  return nullptr;
}

/// The bits of one byte that the rows own.
[[nodiscard]] constexpr std::uint8_t owned_bits(std::span<const Field> rows, std::size_t offset) {
  std::uint8_t bits = 0;
  for (const Field& row : rows) {
    if (row.place.offset == offset) bits = static_cast<std::uint8_t>(bits | row.place.mask);
  }
  return bits;
}

/// For static_assert.
[[nodiscard]] consteval bool sound(std::span<const Field> rows, std::size_t size) {
  return complaint_about(rows, size) == nullptr;
}

}  // namespace ecr::fields

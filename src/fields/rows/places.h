#pragma once
// Places of the rows, taken from the layout of the image and of the item by the names that their structs have.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "fields/field.h"
#include "image/layout.h"

namespace ecr::fields {

namespace places_detail {

consteval const FieldPlace& named(std::span<const FieldPlace> table, std::string_view name) {
  for (const FieldPlace& row : table) {
    if (row.name == name) return row;
  }
  throw "no such field in the layout";
}

constexpr Stored stored_as(FieldKind kind) {
  switch (kind) {
    case FieldKind::text:
      return Stored::text;
    case FieldKind::bcd:
      return Stored::packed;
    case FieldKind::byte:
      return Stored::binary;
    case FieldKind::opaque:
      return Stored::raw;
  }
  throw "no such kind";
}

constexpr Place whole(Where where, const FieldPlace& row) {
  return {.where = where,
          .stored = stored_as(row.kind),
          .offset = row.offset,
          .width = row.width,
          .count = row.count,
          .stride = row.stride,
          .first = row.first};
}

/// One byte of it, from 0, and of that the bits of the mask.
constexpr Place part(Place place, std::size_t byte, std::uint8_t mask) {
  if (byte >= place.width || mask == 0) throw "a place outside of its field";
  place.offset += byte;
  place.width = 1;
  place.mask = mask;
  return place;
}

constexpr std::uint8_t mask_of(int bit) {
  if (bit < 0 || bit > 7) throw "a byte has bits 0 to 7";
  return static_cast<std::uint8_t>(1U << bit);
}

}  // namespace places_detail

/// A field of the image, in all of its records.
consteval Place image_place(std::string_view name) {
  return places_detail::whole(Where::image, places_detail::named(image_fields, name));
}

/// One of a row of equal fields, as a value of its own.
consteval Place image_element(std::string_view name, std::size_t number) {
  Place place = image_place(name);
  if (!place.has(number)) throw "no such element";
  place.offset = place.offset_of(number);
  place.count = 1;
  place.first = 1;
  return place;
}

/// Some bits of a byte of the image, next to each other.
consteval Place image_bits(std::string_view name, std::uint8_t mask, std::size_t byte = 0) {
  return places_detail::part(image_place(name), byte, mask);
}
consteval Place image_bit(std::string_view name, int bit, std::size_t byte = 0) {
  return image_bits(name, places_detail::mask_of(bit), byte);
}

consteval Place in_items(Place place) {
  place.where = Where::item;
  place.count = plu_records_max;
  place.stride = sizeof(PluRecord);
  return place;
}

/// A field of the item, in all items.
consteval Place item_place(std::string_view name) {
  return in_items(places_detail::whole(Where::item, places_detail::named(item_fields, name)));
}
consteval Place item_bits(std::string_view name, std::uint8_t mask) {
  return places_detail::part(item_place(name), 0, mask);
}
consteval Place item_bit(std::string_view name, int bit) {
  return item_bits(name, places_detail::mask_of(bit));
}

/// The same place, read in another way.
consteval Place read_as(Stored stored, Place place) {
  place.stored = stored;
  return place;
}

/// The rows of one section.
template <std::size_t Count>
consteval std::array<Field, Count> in_section(Section section, const Field (&rows)[Count]) {
  std::array<Field, Count> result{};
  for (std::size_t i = 0; i < Count; ++i) {
    result[i] = rows[i];
    result[i].section = section;
  }
  return result;
}

}  // namespace ecr::fields

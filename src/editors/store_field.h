#pragma once
// From a field on the screen into the packed bytes of the programming.
//
// An unread field stores nothing: what is stored could not be shown, and nobody has put something else there.

#include <cstdint>
#include <span>

#include "core/codecs.h"
#include "widgets/field.h"
#include "widgets/screen_text.h"

namespace ecr {

/// Stores the number that `number_of` makes of the field's text, and lets a fault of it through.
template <typename NumberOf>
void store_number(const Field& field, std::span<std::uint8_t> bytes, NumberOf&& number_of) {
  if (!field.is_unread()) number_to_bcds(bytes, number_of(field.text()));
}

/// Stores the field's text as it stands, as number_to_bcds does; an empty one is 0.
inline void store_digits(const Field& field, std::span<std::uint8_t> bytes) {
  if (!field.is_unread()) number_to_bcds(bytes, page_bytes(field.text()));
}

}  // namespace ecr

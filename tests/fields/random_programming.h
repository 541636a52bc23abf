#pragma once
// Programmings of any bytes whatever.

#include <cstdint>
#include <cstring>
#include <memory>

#include "fields/programming.h"
#include "support/random.h"

namespace ecr::test {

/// A programming whose every byte is random, with a count of items that its table has.
inline std::unique_ptr<fields::Programming> random_programming(std::uint8_t model, int items, Random& random) {
  auto programming = std::make_unique<fields::Programming>();
  const std::string image = random.bytes(sizeof programming->image);
  std::memcpy(&programming->image, image.data(), image.size());
  const std::string lists = random.bytes(sizeof programming->items.Lists);
  std::memcpy(&programming->items.Lists, lists.data(), lists.size());
  programming->items.PluCount = static_cast<std::int16_t>(items);
  for (int i = 0; i < items; ++i) {
    PluRecord& record = programming->items.Row[static_cast<std::size_t>(i)];
    const std::string bytes = random.bytes(sizeof record);
    std::memcpy(&record, bytes.data(), bytes.size());
  }
  programming->model = model;
  return programming;
}

/// The same, but with digits where numbers are packed, so that many values have an ordinary form.
inline void put_digits(fields::Programming& programming, const fields::ValueRef& value, Random& random) {
  if (value.field->place.stored != fields::Stored::packed && value.field->place.stored != fields::Stored::quantity)
    return;
  for (std::uint8_t& byte : bytes_of(fields::ProgrammingRef{programming}, value)) {
    byte = static_cast<std::uint8_t>(random.below(10) * 16 + random.below(10));
  }
}

inline bool same_bytes(const fields::Programming& one, const fields::Programming& other) {
  return std::memcmp(&one.image, &other.image, sizeof one.image) == 0 &&
         std::memcmp(&one.items, &other.items, sizeof one.items) == 0;
}

}  // namespace ecr::test

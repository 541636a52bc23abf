#include "fields/programming.h"

#include <cstring>

namespace ecr::fields {
namespace {

const std::uint8_t* start_of(ProgrammingView programming, Where where) noexcept {
  // Any object may be looked at as the bytes it is made of.
  switch (where) {
    case Where::image:
      break;
    case Where::item:
      return reinterpret_cast<const std::uint8_t*>(programming.items->Row.data());
    case Where::pop_up_lists:
      return reinterpret_cast<const std::uint8_t*>(programming.items->Lists.data());
  }
  return reinterpret_cast<const std::uint8_t*>(programming.image);
}

}  // namespace

std::span<const std::uint8_t> bytes_of(ProgrammingView programming, ValueRef value) noexcept {
  const Place& place = value.field->place;
  return {start_of(programming, place.where) + place.offset_of(value.record), place.width};
}

std::span<std::uint8_t> bytes_of(ProgrammingRef programming, ValueRef value) noexcept {
  const std::span<const std::uint8_t> bytes = bytes_of(ProgrammingView{programming}, value);
  // The programming can be changed: it was handed over so.
  return {const_cast<std::uint8_t*>(bytes.data()), bytes.size()};
}

bool same_value(ProgrammingView one, ValueRef its_value, ProgrammingView other, ValueRef other_value) {
  const std::span<const std::uint8_t> left = bytes_of(one, its_value);
  const std::span<const std::uint8_t> right = bytes_of(other, other_value);
  if (left.size() == 1) return ((left[0] ^ right[0]) & its_value.field->place.mask) == 0;
  return std::memcmp(left.data(), right.data(), left.size()) == 0;
}

void copy_value(ProgrammingView from, ValueRef its_value, ProgrammingRef to, ValueRef other_value) {
  const std::span<const std::uint8_t> source = bytes_of(from, its_value);
  const std::span<std::uint8_t> target = bytes_of(to, other_value);
  if (source.size() > 1) {
    std::memcpy(target.data(), source.data(), source.size());
    return;
  }
  const std::uint8_t mask = its_value.field->place.mask;
  target[0] = static_cast<std::uint8_t>((target[0] & ~mask) | (source[0] & mask));
}

}  // namespace ecr::fields

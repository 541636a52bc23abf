#pragma once
// One value of a programming source: its written form and the bytes of its field.
//
// The written form follows from the field: a text in quotes, a number (with the decimals that the field implies), flags
// as words joined by "+", a key by its name in quotes or its code. Any field can also be written as its bytes, in
// hexadecimal and file order, between "<" and ">"; the way back uses that form where no other says the same bytes.

#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "image/layout.h"

namespace ecr {

/// A value that its field cannot take; the message says why.
class ValueError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The written form as bytes; `bytes` is as wide as the field. Throws ValueError.
void set_value(const FieldPlace& field, std::string_view written, std::span<std::uint8_t> bytes);

/// The bytes in written form. set_value makes exactly these bytes of it.
[[nodiscard]] std::string written_value(const FieldPlace& field, std::span<const std::uint8_t> bytes);

}  // namespace ecr

#pragma once
// Numbers as these screens show and read them.

#include <QString>

#include "core/decimal.h"

namespace ecr {

class Field;

/// The number that a text begins with, decimals included; 0 if it begins with none.
[[nodiscard]] Decimal numeric_value(const QString& text);

/// A whole number with at least `digits` digits: "42" with 4 gives "0042". A text that is no number stays as it is.
[[nodiscard]] QString with_zeros(const QString& text, int digits);

/// The number that a text begins with as double precision holds it, in its shortest form of 15 digits at most:
/// "0000012" gives "12", "1234567890123456" gives "1.23456789012346E+15".
[[nodiscard]] QString through_double(const QString& text);

/// The amount that a field shows, in smallest units; an empty field is 0. A fault for a text that is no number, and for
/// any text with more decimals in force than amounts can have.
[[nodiscard]] Decimal amount_in(const Field& field);

/// A field of a plain whole number: digits only; entering it empties a zero and leaves every other text; a value above
/// `maximum` is refused, however it got there.
void make_whole_number_field(Field& field, int maximum);

}  // namespace ecr

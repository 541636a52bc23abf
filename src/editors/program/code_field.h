#pragma once
// Fields for the code of an item: a bare whole number, inside the field as outside of it.

#include "core/decimal.h"

namespace ecr {

class Field;

/// Digits only; a code above `maximum` shows MsgValueTooHigh and loses its last digit. A zero is gone while the field
/// is entered; an empty field that is left becomes "0".
void make_code_field(Field& field, const Decimal& maximum);

}  // namespace ecr

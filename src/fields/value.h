#pragma once
// Values as texts, and texts as values.
//
// Plain text is for files and scripts: it is the same in every language, and what it says of any bytes is read back to
// the same bytes. Texts for people are those of the screens: catalogue words, the decimals of the programming.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "fields/field.h"
#include "fields/programming.h"
#include "fields/refusal.h"

namespace ecr::fields {

/// How numbers are written for a person.
struct Manner {
  char decimal_sign = '.';
};

/// The value as a number, in units of its last decimal: a price in smallest units, the digit of a choice. Nothing for a
/// text and for what nobody understands, and where the bytes hold no number.
[[nodiscard]] std::optional<std::int64_t> number_of(ProgrammingView programming, ValueRef value);

/// How many decimals its number has: of an amount those of the programming, of an exchange rate those of its record.
/// More than three, which no screen can set, count as none.
[[nodiscard]] int decimals_of(ProgrammingView programming, ValueRef value);

/// For people: "4.20", "22.000 %", "Preset", "Bread". Bytes that hold no number are shown as such: "<1a00>".
[[nodiscard]] std::string shown_text(ProgrammingView programming, ValueRef value, Manner manner = {});

/// For files and scripts: "4.20", "22.000", "preset", "Bread". What has no such form is its bytes: "<1a00>", of a
/// shared byte the field's bits at their places; a character without a form is "\x7f".
[[nodiscard]] std::string plain_text(ProgrammingView programming, ValueRef value);

/// Takes a plain text. A choice is also taken by its number. Refused texts change nothing; so does one that says what
/// the value is already, whatever its model or limits. The value's own bits change and no others, but for a bit that
/// goes with the value (Field::bit_above_zero), and for a setting that all records share (Oddity::one_for_all).
Refusal set_plain(ProgrammingRef programming, ValueRef value, std::string_view text);

/// Takes what a person typed: as plain text, but without the forms for bytes; a choice also by its words on the screen,
/// and a number with the decimal sign of its manner and, where there is one, the sign of its unit.
Refusal set_typed(ProgrammingRef programming, ValueRef value, std::string_view text, Manner manner = {});

/// The lowest and the highest number that are taken, as people write them; empty texts for what is no number.
struct ShownLimits {
  std::string lowest;
  std::string highest;
};
[[nodiscard]] ShownLimits limits_of(ProgrammingView programming, ValueRef value, Manner manner = {});

/// That the field has other records than the one that was asked for.
[[nodiscard]] Refusal no_such_record(ProgrammingView programming, const Field& field);

/// What a save by the editor of a record leaves beside the values: the marks by which a send finds what is new. To be
/// called after a change of an item or a department.
void mark_changed(ProgrammingRef programming, ValueRef value);

}  // namespace ecr::fields

#pragma once
// What fields, records and choices are called, in the user's language. All are bytes of the code page.

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "fields/field.h"
#include "fields/programming.h"

namespace ecr::fields {

/// A caption as a screen has it: with its colon, and with "&&" for "&".
[[nodiscard]] std::string caption_text(const Caption& caption);

/// A caption as a name among others: without colon and blanks around it, "&&" as "&", a line break as a blank.
[[nodiscard]] std::string plain_caption(const Caption& caption);

/// "Price", "Tax rate", "Key %1 rate".
[[nodiscard]] std::string name_of(const Field& field);
/// "Departments", "Print mode".
[[nodiscard]] std::string name_of(Section section);

/// The record of a value by what a person knows it by: "12 Wine", "VAT rate 2 (10.000 %)", "Card 1 (VISA)",
/// "5901234123457 Bread", "10 Discount: taken off"; empty for a value that stands alone.
[[nodiscard]] std::string record_name(ProgrammingView programming, ValueRef value);

/// The choices of a field; a flag has no and yes.
[[nodiscard]] std::span<const Choice> choices_of(const Field& field);
/// The choice with this number; nullptr if there is none.
[[nodiscard]] const Choice* choice_of(const Field& field, int number);

/// The entry of a list that stands for the choice: "1. NORMAL". It can be empty.
[[nodiscard]] std::string entry_text(const Choice& choice);
/// The same without digit and point.
[[nodiscard]] std::string choice_words(const Choice& choice);

}  // namespace ecr::fields

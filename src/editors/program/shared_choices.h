#pragma once
// Choices that several editors share.

#include <QStringList>

#include "editors/option_table.h"

namespace ecr {

/// The digit limits, for option tables.
inline constexpr Choice digit_limits[] = {{.digit = 0, .literal = "0. NO LIMIT", .text = Key::FRM_ALL_NO_LIMIT},
                                          {.digit = 1, .literal = "1. (0 - 0.99)", .text = Key::FRM_ALL_1DIGITS},
                                          {.digit = 2, .literal = "2. (0 - 9.99)", .text = Key::FRM_ALL_2DIGITS},
                                          {.digit = 3, .literal = "3. (0 - 99.99)", .text = Key::FRM_ALL_3DIGITS},
                                          {.digit = 4, .literal = "4. (0 - 999.99)", .text = Key::FRM_ALL_4DIGITS}};

/// Whether something is printed, for option tables.
inline constexpr Choice printing[] = {{.digit = 0, .literal = "0. PRINT", .text = Key::FRM_ALL_PRINT},
                                      {.digit = 1, .literal = "1. NOT PRINT", .text = Key::FRM_ALL_NOTPRINT}};

/// "0. NO LIMIT" and the four digit limits.
[[nodiscard]] QStringList limit_choices();
/// "0. NON TAXABLE" and the four VAT rates.
[[nodiscard]] QStringList tax_choices();

}  // namespace ecr

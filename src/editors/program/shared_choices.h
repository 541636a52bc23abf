#pragma once
// Choices that several editors share.

#include <QStringList>

namespace ecr {

/// "0. NO LIMIT" and the four digit limits.
[[nodiscard]] QStringList limit_choices();
/// "0. NON TAXABLE" and the four VAT rates.
[[nodiscard]] QStringList tax_choices();

}  // namespace ecr

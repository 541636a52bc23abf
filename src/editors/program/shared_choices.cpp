#include "editors/program/shared_choices.h"

#include "editors/option_list.h"
#include "widgets/captions.h"

namespace ecr {

QStringList limit_choices() {
  return entries_of(digit_limits);
}

QStringList tax_choices() {
  return {choice(0, Key::FRM_ALL_TAX_0_MSG, "0. NON TAXABLE"), choice(1, Key::FRM_ALL_TAX_1_MSG, "1. TAX1 TAXABLE"),
          choice(2, Key::FRM_ALL_TAX_2_MSG, "2. TAX2 TAXABLE"), choice(3, Key::FRM_ALL_TAX_3_MSG, "3. TAX3 TAXABLE"),
          choice(4, Key::FRM_ALL_TAX_4_MSG, "4. TAX4 TAXABLE")};
}

}  // namespace ecr

#include "image/programming_copy.h"

#include "core/global.h"

namespace ecr {

ProgrammingCopy::ProgrammingCopy()
    : image_{PrgMode}, items_{std::make_unique<const PluTable<PluRecord>>(PrgPlu)}, decimals_{Global::DecimalPoint} {}

void ProgrammingCopy::put_back() const {
  PrgMode = image_;
  PrgPlu = *items_;
  Global::DecimalPoint = decimals_;
}

}  // namespace ecr

#pragma once
// Values by their names: "dept[12].price", "plu{5901234123457}.price1", "plu[3].price1" for the third row of the item
// table, "print.tax-rate".

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "fields/field.h"
#include "fields/programming.h"
#include "fields/refusal.h"

namespace ecr::fields {

struct Found {
  std::optional<ValueRef> value;
  Refusal refusal = {};  ///< why there is none
};

/// The value that the text names. Blanks around the text do not count, nor does upper case.
[[nodiscard]] Found find_value(ProgrammingView programming, std::string_view text);

/// The names of the values of one programming, which must outlive this and stay as it is.
class References {
 public:
  explicit References(ProgrammingView programming);

  /// An item goes by its code, or by its row where the code is 0, no number, or not its own alone.
  [[nodiscard]] std::string text(ValueRef value) const;

 private:
  ProgrammingView programming_;
  std::vector<std::int64_t> codes_;  ///< of all items, rising
};

/// The same for a single value.
[[nodiscard]] std::string reference_text(ProgrammingView programming, ValueRef value);

/// The row of the first item with this code, from 1; nothing if there is none.
[[nodiscard]] std::optional<std::size_t> row_of_code(ProgrammingView programming, std::int64_t code);

}  // namespace ecr::fields

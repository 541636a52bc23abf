#pragma once
// The order of the item table: rising codes, empty rows at the end. The table is sorted from the row that was saved on,
// as passes over neighbours do that begin there and go up with what they exchange.

#include <cstdint>
#include <string_view>
#include <vector>

#include "image/prg_plu.h"

namespace ecr {

/// Sorts the working table and sets PluCount. `codes` are the codes of its rows from the first one on, 0 for an empty
/// row, as many rows as take part; what stands in the records themselves is not looked at. `row` is the index of the
/// record that was saved. Equal codes keep their order.
///
/// Rows above the one in front of `row` stay as they are, in order or not, until a smaller code from below comes in
/// among them. PluCount becomes the number of rows in front of the first empty one; without an empty row it stays.
void Ordina_Plu(std::vector<std::uint64_t> codes, int row);

/// The number that the text of a code says: its leading digits, 0 for none.
[[nodiscard]] std::uint64_t code_number(std::string_view text);

}  // namespace ecr

#include "image/plu_order.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <limits>
#include <numeric>
#include <system_error>

#include "core/decimal.h"

namespace ecr {
namespace {

/// An empty row comes behind every code.
constexpr std::uint64_t key_of(std::uint64_t code) {
  return code == 0 ? std::numeric_limits<std::uint64_t>::max() : code;
}

/// The first row that takes part: passes that begin at `start` go on above it only while some row below has a smaller
/// code than theirs.
std::size_t first_to_move(const std::vector<std::uint64_t>& codes, std::size_t start) {
  std::uint64_t least = std::numeric_limits<std::uint64_t>::max();
  for (std::size_t i = codes.size(); i-- > start + 1;) least = std::min(least, key_of(codes[i]));
  while (start > 0 && key_of(codes[start]) > least) {
    least = std::min(least, key_of(codes[start]));
    --start;
  }
  return start;
}

/// Puts the rows from `first` on into rising order, and their codes along with them.
void sort_rows(std::vector<std::uint64_t>& codes, std::size_t first) {
  const auto before = [&codes](std::size_t left, std::size_t right) {
    return key_of(codes[left]) < key_of(codes[right]);
  };
  std::vector<std::size_t> order(codes.size() - first);
  std::iota(order.begin(), order.end(), first);
  if (std::is_sorted(order.begin(), order.end(), before)) return;
  std::stable_sort(order.begin(), order.end(), before);
  const std::vector<PluRecord> records(PrgPlu.Row.begin() + static_cast<std::ptrdiff_t>(first),
                                       PrgPlu.Row.begin() + static_cast<std::ptrdiff_t>(codes.size()));
  const std::vector<std::uint64_t> stood = codes;
  for (std::size_t i = 0; i < order.size(); ++i) {
    PrgPlu.Row[first + i] = records[order[i] - first];
    codes[first + i] = stood[order[i]];
  }
}

}  // namespace

void Ordina_Plu(std::vector<std::uint64_t> codes, int row) {
  codes.resize(std::min(codes.size(), plu_rows));
  if (codes.empty()) return;
  const std::size_t above = row > 0 ? static_cast<std::size_t>(row) - 1 : 0;
  sort_rows(codes, first_to_move(codes, std::min(above, codes.size() - 1)));
  const auto empty = std::find(codes.begin(), codes.end(), std::uint64_t{0});
  if (empty != codes.end()) PrgPlu.PluCount = static_cast<std::int16_t>(empty - codes.begin());
}

std::uint64_t code_number(std::string_view text) {
  std::uint64_t number = 0;
  const auto [rest, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (fault == std::errc{} && rest == text.data() + text.size()) return number;
  const std::int64_t leading = leading_number(text);
  return leading < 0 ? 0 : static_cast<std::uint64_t>(leading);
}

}  // namespace ecr

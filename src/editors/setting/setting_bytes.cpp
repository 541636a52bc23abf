// The map of the setting bytes over the seven screens, proved while this is compiled: no bit has two owners, and each
// screen owns of the shared bytes just the bits that are its own.

#include <array>
#include <bit>
#include <span>

#include "editors/setting/clerk_menu_setup_rows.h"
#include "editors/setting/ej_setup_rows.h"
#include "editors/setting/hospitality_setup_rows.h"
#include "editors/setting/initial_menu_rows.h"
#include "editors/setting/print_mode_rows.h"
#include "editors/setting/report_setup_rows.h"
#include "editors/setting/working_mode_rows.h"

namespace ecr::setting {
namespace {

constexpr std::size_t byte_9 = offsetof(PrgModeImage, Set09_ClerkMenu);
constexpr std::size_t byte_10 = offsetof(PrgModeImage, Set10_Report);
constexpr std::size_t byte_11 = offsetof(PrgModeImage, Set11_Shared);

// Date and time format, key tone. Nobody writes bit 3.
static_assert(owned_bits(initial_menu_rows, byte_9) == 0b0000'0111);
static_assert(owned_bits(clerk_menu_setup_rows, byte_9) == 0b1111'0000);

// Winding motor; the resets; tender behind the sale and zero price; tax details.
static_assert(owned_bits(initial_menu_rows, byte_10) == 0b0000'0001);
static_assert(owned_bits(report_setup_rows, byte_10) == 0b0001'1110);
static_assert(owned_bits(working_mode_rows, byte_10) == 0b0110'0000);
static_assert(owned_bits(print_mode_rows, byte_10) == 0b1000'0000);

// Percentage result and currency; multiple receipts; duplicate Z and zero skip; register mode; table and guest.
static_assert(owned_bits(working_mode_rows, byte_11) == 0b0000'0011);
static_assert(owned_bits(print_mode_rows, byte_11) == 0b0000'0100);
static_assert(owned_bits(report_setup_rows, byte_11) == 0b0001'1000);
static_assert(owned_bits(initial_menu_rows, byte_11) == 0b0010'0000);
static_assert(owned_bits(hospitality_setup_rows, byte_11) == 0b1100'0000);

constexpr std::array<std::span<const OptionRow>, 7> tables = {
    initial_menu_rows, working_mode_rows,      print_mode_rows,      report_setup_rows,
    ej_setup_rows,     hospitality_setup_rows, clerk_menu_setup_rows};

/// How many bits of the setting bytes the screens own; -1 if one is owned twice, or lies outside of those bytes.
consteval int bits_owned_once() {
  constexpr std::size_t setting_bytes = offsetof(PrgModeImage, Spare4);
  int count = 0;
  std::size_t inside = 0;
  for (std::size_t byte = 0; byte < setting_bytes; ++byte) {
    unsigned taken = 0;
    for (const std::span<const OptionRow> rows : tables) {
      const unsigned own = owned_bits(rows, byte);
      if ((taken & own) != 0) return -1;
      taken |= own;
      for (const OptionRow& row : rows) inside += row.place.offset == byte ? 1U : 0U;
    }
    count += std::popcount(taken);
  }
  std::size_t all = 0;
  for (const std::span<const OptionRow> rows : tables) all += rows.size();
  return inside == all ? count : -1;
}

// Nine whole bytes; bytes 9, 10 and 11; five bits of 12, six of 13, two of 14, five of 15, four of 16, all of 17 to 19,
// seven of 20.
static_assert(bits_owned_once() == 9 * 8 + 7 + 8 + 8 + 5 + 6 + 2 + 5 + 4 + 3 * 8 + 7);

}  // namespace
}  // namespace ecr::setting

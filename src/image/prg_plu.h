#pragma once
// The register's item table: up to 3000 PLU records and the five pop-up lists, in memory and in the file PRG_PLU.BIN.
// Memory always holds every row; the file holds those up to the count.
//
// File: count (2 bytes, signed, little-endian), five lists of 20 codes of 8 bytes, then the records. An older register
// has records of 38 bytes, which end in front of the stock.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include "image/fields.h"

namespace ecr {

struct PluRecord {
  Bcd<8> Code;  ///< 0 marks an empty row
  Text<16> Name;
  Flags Flags1;  ///< bits 0-1 type, bit 5 stock used, bits 6 and 7 price 1 and 2 above zero
  std::uint8_t LinkDept;
  std::uint8_t Tax;
  std::uint8_t TakeOutTax;
  Bcd<4> Price1;
  Bcd<4> Price2;
  std::uint8_t PluListLink;  ///< pop-up list that holds the item, 0 none
  std::uint8_t SendFlag;     ///< 1: to be counted by the next send
  Bcd<6> Stock;
};

struct PluOldRecord {
  Bcd<8> Code;
  Text<16> Name;
  Flags Flags1;
  std::uint8_t LinkDept;
  std::uint8_t Tax;
  std::uint8_t TakeOutTax;
  Bcd<4> Price1;
  Bcd<4> Price2;
  std::uint8_t PluListLink;
  std::uint8_t SendFlag;
};

static_assert(sizeof(PluRecord) == 44 && sizeof(PluOldRecord) == 38);
static_assert(alignof(PluRecord) == 1 && alignof(PluOldRecord) == 1);
static_assert(std::is_trivially_copyable_v<PluRecord> && std::is_trivially_copyable_v<PluOldRecord>);
// clang-format off
static_assert(offsetof(PluRecord, Code) == 0         && offsetof(PluOldRecord, Code) == 0);
static_assert(offsetof(PluRecord, Name) == 8         && offsetof(PluOldRecord, Name) == 8);
static_assert(offsetof(PluRecord, Flags1) == 24      && offsetof(PluOldRecord, Flags1) == 24);
static_assert(offsetof(PluRecord, LinkDept) == 25    && offsetof(PluOldRecord, LinkDept) == 25);
static_assert(offsetof(PluRecord, Tax) == 26         && offsetof(PluOldRecord, Tax) == 26);
static_assert(offsetof(PluRecord, TakeOutTax) == 27  && offsetof(PluOldRecord, TakeOutTax) == 27);
static_assert(offsetof(PluRecord, Price1) == 28      && offsetof(PluOldRecord, Price1) == 28);
static_assert(offsetof(PluRecord, Price2) == 32      && offsetof(PluOldRecord, Price2) == 32);
static_assert(offsetof(PluRecord, PluListLink) == 36 && offsetof(PluOldRecord, PluListLink) == 36);
static_assert(offsetof(PluRecord, SendFlag) == 37    && offsetof(PluOldRecord, SendFlag) == 37);
static_assert(offsetof(PluRecord, Stock) == 38);
// clang-format on

inline constexpr std::size_t plu_rows = 3001;          ///< rows in memory; the editors use the first Global::MaxPlu
inline constexpr int plu_records_max = 3000;           ///< records that are ever read from a file
inline constexpr std::size_t pop_up_lists_size = 800;  ///< bytes of the five lists
inline constexpr std::size_t plu_head_size = 2 + pop_up_lists_size;

/// One pop-up list: 20 item codes, 0 for a free entry.
using PopUpList = std::array<Bcd<8>, 20>;

template <typename Record>
struct PluTable {
  std::int16_t PluCount;
  std::array<PopUpList, 5> Lists;
  std::array<Record, plu_rows> Row;
};
static_assert(sizeof(std::array<PopUpList, 5>) == pop_up_lists_size);

extern PluTable<PluRecord> PrgPlu;        ///< the working table
extern PluTable<PluOldRecord> PrgPluOld;  ///< filled only by the import from an old register

/// Reads PRG_PLU.BIN from PathDati into the working table, or as the old format into the old one. A missing file is
/// created empty and leaves count and lists as they were; a short one fills what it reaches. Rows above the count are
/// emptied, but keep PluListLink and SendFlag. Always true.
bool Read_PrgPlu(bool oldFormat = false);

/// Writes count, lists and the counted rows of the working table. A failure is silent.
void Write_PrgPlu();

/// Takes the old table's count and items over. The last counted row stays as it was, and so do Stock, PluListLink and
/// SendFlag everywhere.
void Convert_OldPlu();

/// How many of the first MaxPlu rows have SendFlag 1; with `clear` each of them becomes 0.
int Count_PluToSend(bool clear);

/// The linked department as text: two decimal digits in one byte, so that its hexadecimal text is the number.
[[nodiscard]] std::string link_dept_text(std::uint8_t byte);

/// The other way: the hexadecimal digits with which the text begins. FaultError(overflow) above one byte.
[[nodiscard]] std::uint8_t link_dept_of(std::string_view text);

/// Both tables as before any read.
void reset_prg_plu() noexcept;

}  // namespace ecr

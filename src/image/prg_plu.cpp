#include "image/prg_plu.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <string>
#include <string_view>
#include <system_error>

#include "core/fault.h"
#include "core/files.h"
#include "core/global.h"
#include "core/text.h"

namespace ecr {
namespace {

std::string plu_file() {
  return Global::PathDati + "PRG_PLU.BIN";
}

/// Copies the next bytes of a file into an object, as many as are left.
template <typename Object>
void take(std::string_view& bytes, Object& object) {
  const std::size_t length = std::min(bytes.size(), sizeof object);
  if (length > 0) std::memcpy(&object, bytes.data(), length);
  bytes.remove_prefix(length);
}

template <typename Object>
void put(std::string& bytes, const Object& object) {
  bytes.append(reinterpret_cast<const char*>(&object), sizeof object);
}

std::int16_t read_count(std::string_view two_bytes) {
  const auto low = static_cast<unsigned char>(two_bytes[0]);
  const auto high = static_cast<unsigned char>(two_bytes[1]);
  return static_cast<std::int16_t>(low | high << 8);
}

/// Empties a row as the reader does: what a pop-up list or a send knows of it stays.
template <typename Record>
void empty_row(Record& row) {
  const std::uint8_t list_link = row.PluListLink;
  const std::uint8_t send_flag = row.SendFlag;
  row = {};
  row.Name.set({});
  row.PluListLink = list_link;
  row.SendFlag = send_flag;
}

template <typename Record>
void read_table(PluTable<Record>& table) {
  std::string bytes;
  static_cast<void>(read_or_create_file(plu_file(), bytes, plu_head_size + plu_records_max * sizeof(Record)));
  std::string_view rest = bytes;
  if (rest.size() >= 2) {
    table.PluCount = read_count(rest);
    rest.remove_prefix(2);
  } else {
    rest = {};
  }
  take(rest, table.Lists);
  for (int i = 0; i < plu_records_max; ++i) {
    Record& row = table.Row[static_cast<std::size_t>(i)];
    if (i < table.PluCount) {
      take(rest, row);
    } else {
      empty_row(row);
    }
  }
}

}  // namespace

PluTable<PluRecord> PrgPlu{};
PluTable<PluOldRecord> PrgPluOld{};

bool Read_PrgPlu(bool oldFormat) {
  if (oldFormat) {
    read_table(PrgPluOld);
  } else {
    read_table(PrgPlu);
  }
  return true;
}

void Write_PrgPlu() {
  const auto rows = static_cast<std::size_t>(std::clamp<int>(PrgPlu.PluCount, 0, plu_rows));
  std::string bytes;
  bytes.reserve(plu_head_size + rows * sizeof(PluRecord));
  const auto count = static_cast<std::uint16_t>(PrgPlu.PluCount);
  bytes += static_cast<char>(count & 0xFF);
  bytes += static_cast<char>(count >> 8);
  put(bytes, PrgPlu.Lists);
  for (std::size_t i = 0; i < rows; ++i) put(bytes, PrgPlu.Row[i]);
  static_cast<void>(save_file(plu_file(), bytes));
}

void Convert_OldPlu() {
  PrgPlu.PluCount = PrgPluOld.PluCount;
  // Rows 1 to count-1, counted from 1: the last counted row is left out, and that is how it stays.
  const int converted = std::min<int>(PrgPluOld.PluCount - 1, plu_records_max);
  for (int i = 0; i < converted; ++i) {
    const PluOldRecord& from = PrgPluOld.Row[static_cast<std::size_t>(i)];
    PluRecord& to = PrgPlu.Row[static_cast<std::size_t>(i)];
    to.Code = from.Code;
    to.LinkDept = from.LinkDept;
    to.Name = from.Name;
    to.Price1 = from.Price1;
    to.Price2 = from.Price2;
    to.Flags1 = from.Flags1;
    to.TakeOutTax = from.TakeOutTax;
    to.Tax = from.Tax;
  }
}

int Count_PluToSend(bool clear) {
  int flagged = 0;
  for (int i = 0; i < Global::MaxPlu; ++i) {
    std::uint8_t& flag = PrgPlu.Row[static_cast<std::size_t>(i)].SendFlag;
    if (flag != 1) continue;
    ++flagged;
    if (clear) flag = 0;
  }
  return flagged;
}

std::string link_dept_text(std::uint8_t byte) {
  return hex_text(byte);
}

std::uint8_t link_dept_of(std::string_view text) {
  text = text.substr(std::min(text.find_first_not_of(' '), text.size()));
  unsigned number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number, 16);
  if (result.ec == std::errc::result_out_of_range || number > 255) throw FaultError{FaultCode::overflow};
  return static_cast<std::uint8_t>(number);
}

void reset_prg_plu() noexcept {
  PrgPlu = {};
  PrgPluOld = {};
}

}  // namespace ecr

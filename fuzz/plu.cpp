// PRG_PLU.BIN holds any bytes: read in both formats, written back, converted, counted.

#include <algorithm>
#include <array>
#include <cstring>

#include "core/global.h"
#include "image/prg_plu.h"
#include "support/installation.h"

namespace ecr::fuzz::plu_target {
namespace {

constexpr std::string_view file_name = "Dati/PRG_PLU.BIN";

template <typename Object>
std::string_view bytes_of(const Object& object) {
  return {reinterpret_cast<const char*>(&object), sizeof object};
}

/// Before the read: rows that can be told apart, so that whatever stays is seen to.
template <typename Record>
void mark(PluTable<Record>& table) {
  table.PluCount = 1234;
  for (std::size_t list = 0; list < table.Lists.size(); ++list) {
    std::memset(static_cast<void*>(&table.Lists[list]), static_cast<int>(0xB0 + list), sizeof table.Lists[list]);
  }
  for (std::size_t row = 0; row < table.Row.size(); ++row) {
    std::memset(static_cast<void*>(&table.Row[row]), static_cast<int>(row % 251), sizeof(Record));
  }
}

/// What the rows hold after the read.
template <typename Record>
void read_rows(std::array<Record, plu_rows>& rows, const std::string& file, int count) {
  for (int i = 0; i < plu_records_max; ++i) {
    Record& row = rows[static_cast<std::size_t>(i)];
    const std::size_t from = plu_head_size + static_cast<std::size_t>(i) * sizeof(Record);
    if (i >= count) {
      Record empty{};
      empty.Name.set({});
      empty.PluListLink = row.PluListLink;
      empty.SendFlag = row.SendFlag;
      row = empty;
    } else if (from < file.size()) {
      std::memcpy(static_cast<void*>(&row), file.data() + from, std::min(file.size() - from, sizeof row));
    }
  }
}

template <typename Record>
void check_table(const PluTable<Record>& table, const std::string& file) {
  static PluTable<Record> expected;
  mark(expected);
  if (file.size() >= 2) {
    const auto byte = [&file](std::size_t at) { return static_cast<unsigned char>(file[at]); };
    expected.PluCount = static_cast<std::int16_t>(byte(0) | byte(1) << 8);
    file.copy(reinterpret_cast<char*>(&expected.Lists), sizeof expected.Lists, 2);
  }
  read_rows(expected.Row, file, expected.PluCount);
  require(table.PluCount == expected.PluCount, "the count is the first two bytes, or what it was");
  require(bytes_of(table.Lists) == bytes_of(expected.Lists), "the lists are the file's as far as it reaches");
  require(bytes_of(table.Row) == bytes_of(expected.Row),
          "counted rows are the file's as far as it reaches, others are empty but for their list and their flag");
}

void read_new_format(Installation& installation, const std::string& file) {
  installation.reset();
  Global::choose_model(Global::model_z320);
  mark(PrgPlu);
  installation.write(file_name, file);
  require(Read_PrgPlu(), "a read always answers true");
  check_table(PrgPlu, file);

  Write_PrgPlu();
  const std::string written = installation.bytes(file_name);
  const auto rows = static_cast<std::size_t>(std::clamp<int>(PrgPlu.PluCount, 0, plu_rows));
  require(written.size() == plu_head_size + rows * sizeof(PluRecord), "the file holds the counted rows");
  const std::string read{bytes_of(PrgPlu)};
  Read_PrgPlu();
  require(bytes_of(PrgPlu) == read, "what was written is read again");
  Write_PrgPlu();
  require(installation.bytes(file_name) == written, "and written again, byte for byte");

  const int flagged = Count_PluToSend(true);
  require(flagged >= 0 && flagged <= Global::MaxPlu, "no more rows are flagged than there are");
  require(Count_PluToSend(false) == 0, "cleared flags stay cleared");

  const std::string cleared{bytes_of(PrgPlu)};
  installation.put_folder(file_name);
  Write_PrgPlu();
  installation.remove(file_name);
  require(bytes_of(PrgPlu) == cleared, "a write changes nothing in memory, wherever it goes");
}

void read_old_format(Installation& installation, const std::string& file) {
  installation.reset();
  mark(PrgPlu);
  mark(PrgPluOld);
  installation.write(file_name, file);
  Read_PrgPlu(true);
  check_table(PrgPluOld, file);

  Convert_OldPlu();
  require(PrgPlu.PluCount == PrgPluOld.PluCount, "the count goes over");
  const int converted = std::min<int>(PrgPluOld.PluCount - 1, plu_records_max);
  for (int i = 0; i < static_cast<int>(plu_rows); ++i) {
    const PluOldRecord& from = PrgPluOld.Row[static_cast<std::size_t>(i)];
    const PluRecord& to = PrgPlu.Row[static_cast<std::size_t>(i)];
    const auto stood = static_cast<std::uint8_t>(i % 251);
    if (i < converted) {
      require(to.Code == from.Code && to.Name == from.Name && to.Price1 == from.Price1 && to.Price2 == from.Price2 &&
                  to.Flags1 == from.Flags1 && to.LinkDept == from.LinkDept && to.Tax == from.Tax &&
                  to.TakeOutTax == from.TakeOutTax,
              "a converted row is the old one");
    } else {
      require(to.Code.bytes[0] == stood && to.Price2.bytes[3] == stood, "the other rows stay");
    }
    require(to.PluListLink == stood && to.SendFlag == stood && to.Stock.bytes[5] == stood,
            "what the old format does not say stays");
  }
  installation.remove(file_name);
}

}  // namespace

FUZZ_TARGET(plu) {
  static Installation installation;
  const std::string file = file_of(data, size);
  read_new_format(installation, file);
  read_old_format(installation, file);
  return 0;
}

}  // namespace ecr::fuzz::plu_target

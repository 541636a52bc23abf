// Each of the small state files holds any bytes; so does a journal.

#include <algorithm>
#include <cstring>
#include <span>

#include "core/global.h"
#include "image/prg_mode.h"
#include "keyboard/key_default.h"
#include "lang/language.h"
#include "link/ports.h"
#include "logo/journal_file.h"
#include "reports/export_option.h"
#include "support/installation.h"

namespace ecr::fuzz::side_files_target {
namespace {

struct SideFile {
  std::string_view name;
  std::span<std::uint8_t> fact;
  void (*read)();
  void (*write)();
  std::uint8_t model = Global::model_z300;
};

/// The saved keyboard is written from the working image, so the image gets it first.
void write_keyboard() {
  PrgMode.KeyLayout = KeyDefault;
  Write_Key_Default();
}

void read_and_write(const Installation& installation, const SideFile& side, const std::string& file) {
  Global::choose_model(side.model);
  constexpr std::uint8_t before = 0x5A;
  std::fill(side.fact.begin(), side.fact.end(), before);
  std::string expected(side.fact.size(), static_cast<char>(before));
  std::copy_n(file.begin(), std::min(file.size(), expected.size()), expected.begin());
  const auto fact = [&side] { return std::string{reinterpret_cast<const char*>(side.fact.data()), side.fact.size()}; };

  installation.write(side.name, file);
  side.read();
  require(fact() == expected, "the fact is the head of the file");
  side.write();
  const std::string tail = file.size() > expected.size() ? file.substr(expected.size()) : std::string{};
  require(installation.bytes(side.name) == expected + tail, "a write keeps what stands behind the fact");
  side.read();
  require(fact() == expected, "what was written is read again");
  installation.remove(side.name);
}

void read_journal(const Installation& installation, const std::string& file) {
  constexpr std::size_t piece = sizeof(EjRecord);
  Ej.Head.fill(0x5A);
  Ej.Records.assign(3, {});
  installation.write("Dati/EJ.bin", file);
  Read_EJ(Global::PathDati + "EJ.bin");
  require(std::equal(Ej.Head.begin(), Ej.Head.begin() + std::min(file.size(), piece), file.begin(),
                     [](std::uint8_t byte, char c) { return byte == static_cast<unsigned char>(c); }),
          "the head is the file's");
  const std::size_t behind_head = file.size() > piece ? file.size() - piece : 0;
  // The nearest count; a remainder of exactly half a record goes to the even one.
  const std::size_t whole = behind_head / piece;
  const std::size_t rest = behind_head % piece;
  const bool one_more = rest > piece / 2 || (rest == piece / 2 && whole % 2 == 1);
  require(Ej.Records.size() == whole + (one_more ? 1 : 0), "the number of records is the rounded quotient");
  std::string records(Ej.Records.size() * piece, '\0');
  if (!records.empty()) std::memcpy(records.data(), Ej.Records.data(), records.size());
  std::string expected = file.size() > piece ? file.substr(piece) : std::string{};
  expected.resize(records.size(), '\0');
  require(records == expected, "the records are the file's, the last one filled with zeros");
  installation.remove("Dati/EJ.bin");
}

}  // namespace

FUZZ_TARGET(side_files) {
  static Installation installation;
  static const SideFile side_files[] = {
      {"Setup/Language.ini", {&LanguageNumber, 1}, Read_Language, Write_Language},
      {"Setup/ExportOption.ini", ExportOption, Read_ExportOption, Write_ExportOption},
      {"Dati/KEY_DEFAULTZ300.BIN", KeyDefault, Read_Key_Default, write_keyboard, Global::model_z300},
      {"Dati/KEY_DEFAULTZ320.BIN", KeyDefault, Read_Key_Default, write_keyboard, Global::model_z320},
  };
  const std::string file = file_of(data, size);
  installation.reset();
  for (const SideFile& side : side_files) {
    read_and_write(installation, side, file);
    // A folder of that name can be neither read nor written.
    const std::string fact{reinterpret_cast<const char*>(side.fact.data()), side.fact.size()};
    installation.put_folder(side.name);
    if (side.read != Read_Language) side.read();
    side.write();
    require(std::equal(fact.begin(), fact.end(), side.fact.begin(),
                       [](char c, std::uint8_t byte) { return static_cast<unsigned char>(c) == byte; }),
            "a read that fails leaves the fact as it stood");
    installation.remove(side.name);
  }
  read_journal(installation, file);

  installation.write("port.ini", file);
  const std::uint8_t port = file.empty() ? std::uint8_t{7} : static_cast<std::uint8_t>(file.back());
  Write_rs232_fw(port);
  const std::string tail = file.empty() ? std::string{} : file.substr(1);
  require(installation.bytes("port.ini") == std::string(1, static_cast<char>(port)) + tail,
          "the port goes over the first byte");
  return 0;
}

}  // namespace ecr::fuzz::side_files_target

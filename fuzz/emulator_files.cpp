// The emulated register is sent files of any bytes: it holds exactly what it took, and hands back what it holds.

#include <array>

#include "core/files.h"
#include "core/global.h"
#include "emulator/emulated_register.h"
#include "emulator/memory.h"
#include "link/tilbridge2.h"
#include "support/installation.h"

namespace ecr::fuzz::emulator_files_target {
namespace {

constexpr std::uint8_t port = 4;

void send_and_fetch(const Installation& installation, const EmulatedRegister& machine, std::uint8_t number,
                    const std::string& file) {
  const std::string name{RegisterMemory::file_name(number)};
  const std::string held = "register/" + name;
  const std::string moved = "Dati/" + name;
  installation.write(held, "what it held before");
  installation.write(moved, file);

  const auto sent = machine.send_cmd(1, number, 1, port);
  require(sent.has_value(), "the call is made");
  require(*sent == (RegisterMemory::fits(number, file) ? TILBRIDGE_CODE_DONE : TILBRIDGE_CODE_REFUSED),
          "what fits is taken, all else refused");
  const bool taken = *sent == TILBRIDGE_CODE_DONE;
  require(installation.bytes(held) == (taken ? file : "what it held before"), "it holds what it took, byte for byte");
  require(installation.bytes(moved) == file, "what was sent stays as it is");
  require(file.size() <= RegisterMemory::longest(number) || !taken, "nothing too long is taken");

  // Whatever stands in its folder is handed over, also what it would not have taken.
  installation.write(held, file);
  installation.remove(moved);
  require(machine.send_cmd(0, number, 1, port) == TILBRIDGE_CODE_DONE, "what it holds can be fetched");
  require(installation.bytes(moved) == file, "and comes byte for byte");
  installation.remove(held);
  installation.remove(moved);
}

}  // namespace

FUZZ_TARGET(emulator_files) {
  static Installation installation;
  static const EmulatedRegister machine{host_path(Global::PathApp)};
  const std::string file = file_of(data, size);
  for (const std::uint8_t number : {TILBRIDGE_FILE_IMAGE, TILBRIDGE_FILE_PLU, TILBRIDGE_FILE_LOGO}) {
    send_and_fetch(installation, machine, number, file);
  }

  // A report is any bytes, a bitmap too.
  installation.write("register/reports/12.bin", file);
  require(machine.send_cmd(0, TILBRIDGE_FILE_TIME, 1, port) == TILBRIDGE_CODE_DONE, "a report can be fetched");
  require(installation.bytes("Dati/TIME.bin") == file, "and comes byte for byte");
  installation.remove("register/reports");
  installation.remove("Dati/TIME.bin");
  installation.write("Dati/logo.bmp", file);
  const auto converted = machine.send_logo(installation.host("Dati/").c_str(), "logo.bmp", 1);
  require(converted.has_value(), "any bitmap has an answer");
  installation.remove("Dati/logo.bmp");
  installation.remove("Dati/GRAPHIC.BIN");
  return 0;
}

}  // namespace ecr::fuzz::emulator_files_target

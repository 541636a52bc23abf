// The release file holds any bytes, under either of its names and as the register delivers it.

#include <algorithm>

#include "core/global.h"
#include "link/firmware.h"
#include "link/tilbridge2.h"
#include "support/installation.h"

namespace ecr::fuzz::release_banner_target {
namespace {

constexpr std::size_t banner_width = 36;

std::string banner_of(const std::string& file) {
  std::string banner = file.substr(0, banner_width);
  banner.resize(banner_width, ' ');
  return banner;
}

void read_file_named(const Installation& installation, std::string_view name, const std::string& file) {
  FwBanner.assign(banner_width, '?');
  installation.write(name, file);
  require(Read_release_fw(), "a file that is there is read");
  require(FwBanner == banner_of(file), "the banner is the head of the file, filled with blanks");
  installation.put_folder(name);
  FwBanner.assign(banner_width, '?');
  Read_release_fw();
  require(FwBanner == std::string(banner_width, '?'), "a read that fails leaves the banner as it stood");
  installation.remove(name);
}

void fetch(Installation& installation, const std::string& file) {
  installation.reset();
  Global::ComPort = 4;
  Global::FwLevel = 9;
  std::string told;
  watch_banner([&told](std::string_view banner) { told = banner; });
  Installation::link([&](std::uint8_t number, std::uint8_t) {
    if (number == TILBRIDGE_FILE_RELEASE) installation.write("Dati/RELEASE.BIN", file);
    return TILBRIDGE_CODE_DONE;
  });
  const bool is_family = banner_of(file).starts_with("ECRZ300/ECRZ320F    ");
  require(ends_program([] { Read_Fw_State(); }) == !is_family, "a register of another family ends the program");
  require(told == banner_of(file), "whoever watches is told the banner");
  require(installation.shell.boxes == (is_family ? 0 : 1), "one box tells of it");
  require(Global::FwLevel == 9 || (Global::FwLevel == FirmwareLevel::release_080 && is_family),
          "the level changes for one banner alone");
  watch_banner({});
  installation.remove("Dati/RELEASE.BIN");
}

}  // namespace

FUZZ_TARGET(release_banner) {
  static Installation installation;
  const std::string file = file_of(data, size);
  installation.reset();
  read_file_named(installation, "Dati/RELEASE.BIN", file);
  read_file_named(installation, "Dati/RELEA.BIN", file);
  fetch(installation, file);
  return 0;
}

}  // namespace ecr::fuzz::release_banner_target

#include "link/firmware.h"

#include <cstdint>
#include <utility>

#include "core/catalogue.h"
#include "core/files.h"
#include "core/global.h"
#include "core/run_log.h"
#include "core/shell.h"
#include "core/text.h"
#include "link/link_call.h"
#include "link/process.h"
#include "link/report_fetch.h"
#include "link/tilbridge2.h"

namespace ecr {
namespace {

constexpr std::size_t banner_width = 36;
constexpr std::string_view family_head = "ECRZ300/ECRZ320F    ";
constexpr std::string_view banner_of_080 = "ECRZ300/ECRZ320F    FW rel.0.80     ";
static_assert(family_head.size() == 20 && banner_of_080.size() == banner_width);

std::function<void(std::string_view)> banner_watcher;

std::string older_release_file() {
  return Global::PathDati + "RELEA.BIN";
}
std::string release_file() {
  return Global::PathDati + "RELEASE.BIN";
}

}  // namespace

std::string FwBanner(banner_width, ' ');

bool Get_Release() {
  for (const std::string& file : {older_release_file(), release_file()}) {
    if (file_exists(file)) static_cast<void>(delete_file(file));
  }
  return move_file(LinkCall::read_release, Global::PathApp).is_done();
}

bool Read_release_fw() {
  const std::string file = file_exists(older_release_file()) ? older_release_file() : release_file();
  if (!file_exists(file)) return false;
  std::string bytes;
  if (!read_file(file, bytes, banner_width).stands()) FwBanner = padded(bytes, banner_width);
  return true;
}

bool Get_Fw_Banner() {
  if (!Get_Release()) return false;
  Read_release_fw();
  if (banner_watcher) banner_watcher(FwBanner);
  return true;
}

void Read_Fw_State() {
  if (Get_Fw_Banner()) {
    if (!FwBanner.starts_with(family_head)) {
      tell(BoxKind::plain, FwBanner + "\r" + message(Key::FRM_ALL_WRONG_ECR));
      memo_log("Linked:" + FwBanner);
      shell().end_program();
    }
    // Any other banner leaves the level as it stands.
    if (FwBanner == banner_of_080) Global::FwLevel = FirmwareLevel::release_080;
    return;
  }
  Aspetta(0.5);
  Global::FwLevel = Test_Connection() ? FirmwareLevel::very_old : FirmwareLevel::none_or_current;
}

bool Test_Connection(bool skipLog) {
  return Global::ComPort != 0 && Receive_ReportEcr(TILBRIDGE_FILE_TIME, {.skip_log = skipLog});
}

void watch_banner(std::function<void(std::string_view)> watcher) {
  banner_watcher = std::move(watcher);
}

void reset_firmware() {
  FwBanner.assign(banner_width, ' ');
  banner_watcher = {};
}

}  // namespace ecr

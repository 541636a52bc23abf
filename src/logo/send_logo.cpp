#include "logo/send_logo.h"

#include <cstdint>

#include "core/fault.h"
#include "core/files.h"
#include "core/global.h"
#include "core/run_log.h"
#include "core/text.h"
#include "link/error_tables.h"
#include "link/library.h"
#include "link/process.h"

namespace ecr {
namespace {

constexpr std::int32_t conversion_timeout = 60;
constexpr std::int32_t send_timeout = 60;
/// The exchange tool finds the file a moment after it was copied.
constexpr double seconds_behind_the_copy = 0.1;

bool convert(std::string& tool_folder, const std::string& bitmap_folder, const std::string& bitmap_name) {
  std::int32_t resultCode = 0;
  const std::int32_t answer =
      util_send_logo_to_ecr(tool_folder, bitmap_folder, bitmap_name, resultCode, conversion_timeout);
  if (answer != 1) {
    // The routine that sends the programming is named here, on purpose.
    memo_log("Send_PrgModeToEcr error using regpix");
    return false;
  }
  if (resultCode < TILBRIDGE_LOGO_CONVERTED_FIRST || resultCode > TILBRIDGE_LOGO_CONVERTED_LAST) {
    memo_log("Send_LogoToEcr conversion error. Code: " + hex_text(resultCode) +
             " Desc:" + std::string{NumToDesc_RegPix(resultCode)});
    return false;
  }
  return true;
}

bool send(std::string& tool_folder) {
  std::int32_t resultCode = 0;
  const std::int32_t answer = util_send_cmd_to_ecr(tool_folder, TILBRIDGE_DOWNLOAD, TILBRIDGE_FILE_LOGO, resultCode,
                                                   send_timeout, Global::ComPort);
  if (answer != 1) {
    memo_log("Send_LogoToEcr error using regwire");
    return false;
  }
  if (resultCode != TILBRIDGE_CODE_DONE) {
    memo_log("Send_LogoToEcr error. Code: " + hex_text(resultCode) +
             " Desc: " + std::string{NumToDesc_RegWire(resultCode)});
    if (resultCode == TILBRIDGE_CODE_TIMEOUT) Process_Kill(exchange_tool);
    return false;
  }
  return true;
}

}  // namespace

std::string logo_bitmap(std::string_view path) {
  std::string bytes;
  // One byte more than fits tells a file that is too long.
  const Fault fault = read_file(path, bytes, logo_bitmap_size + 1);
  return fault.stands() || bytes.size() != logo_bitmap_size ? std::string{} : bytes;
}

SplitPath split_path(std::string_view path) {
  const std::size_t behind = path.rfind('\\') + 1;  // 0 where there is none
  return {std::string{path.substr(0, behind)}, std::string{path.substr(behind)}};
}

bool Send_LogoToEcr(std::string& tool_folder, const std::string& bitmap_folder, const std::string& bitmap_name) {
  if (!convert(tool_folder, bitmap_folder, bitmap_name)) return false;
  const std::string name = "GRAPHIC.BIN";
  const Fault not_copied = copy_file(bitmap_folder + name, Global::PathDati + name);
  Aspetta(seconds_behind_the_copy);
  const bool sent = send(tool_folder);
  if (not_copied.stands()) log_fault("FrmSetLogo Invia Ecr: ", not_copied);
  return sent && !not_copied.stands();
}

}  // namespace ecr

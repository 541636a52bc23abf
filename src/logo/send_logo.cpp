#include "logo/send_logo.h"

#include <cstdint>

#include "core/fault.h"
#include "core/files.h"
#include "core/global.h"
#include "core/run_log.h"
#include "link/library.h"
#include "link/link_call.h"
#include "link/process.h"

namespace ecr {
namespace {

constexpr std::int32_t conversion_timeout = 60;
/// The exchange tool finds the file a moment after it was copied.
constexpr double seconds_behind_the_copy = 0.1;

bool convert(std::string& tool_folder, const std::string& bitmap_folder, const std::string& bitmap_name) {
  const auto ask = [&](std::int32_t& resultCode) {
    return util_send_logo_to_ecr(tool_folder, bitmap_folder, bitmap_name, resultCode, conversion_timeout);
  };
  return make_link_call(LinkCall::convert_logo, TILBRIDGE_FILE_LOGO, ask).is_done();
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
  const bool sent = move_file(LinkCall::send_logo, tool_folder).is_done();
  if (not_copied.stands()) log_fault("FrmSetLogo Invia Ecr: ", not_copied);
  return sent && !not_copied.stands();
}

}  // namespace ecr

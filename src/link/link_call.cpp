#include "link/link_call.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <string_view>

#include "core/global.h"
#include "core/run_log.h"
#include "core/text.h"
#include "link/error_tables.h"
#include "link/library.h"
#include "link/process.h"

namespace ecr {
namespace {

struct FileMove {
  std::uint8_t direction = TILBRIDGE_UPLOAD;
  std::uint8_t file = TILBRIDGE_FILE_IMAGE;
  std::int32_t timeout = 0;  ///< seconds
};

/// What the library returns where the tool was run.
enum class Ran : std::uint8_t { one, any_but_zero };

struct GoodCodes {
  std::int32_t first = TILBRIDGE_CODE_DONE;
  std::int32_t last = TILBRIDGE_CODE_DONE;
};
constexpr GoodCodes any_code = {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()};
constexpr GoodCodes codes_of_a_conversion = {TILBRIDGE_LOGO_CONVERTED_FIRST, TILBRIDGE_LOGO_CONVERTED_LAST};

/// The codes after which the exchange tool is ended.
enum class EndsTool : std::uint8_t { never, after_timeout, after_timeout_or_refusal };

/// In the log's words %1 is the file number, %2 the code in hexadecimal, %3 the code's text.
struct Row {
  LinkCall call;
  std::optional<FileMove> moves;
  std::string_view not_run;
  std::string_view failed;
  EndsTool ends_tool = EndsTool::after_timeout;
  Ran ran = Ran::one;
  GoodCodes good = {};
  std::string_view (*text_of)(std::int32_t code) = NumToDesc_RegWire;
};

// clang-format off
constexpr std::array<Row, link_call_count> link_calls = {{
    // The two reads are told apart by the text at the end.
    {.call = LinkCall::read_image, .moves = FileMove{TILBRIDGE_UPLOAD, TILBRIDGE_FILE_IMAGE, 120},
     .not_run = "Errore nella chiamata di REGWIRE. File %1",
     .failed = "REGWIRE return error: %2 . File %1",
     .ran = Ran::any_but_zero},
    {.call = LinkCall::read_items, .moves = FileMove{TILBRIDGE_UPLOAD, TILBRIDGE_FILE_PLU, 180},
     .not_run = "Errore nella chiamata di REGWIRE. File %1",
     .failed = "REGWIRE return error: %2 . File %1 Desc: %3",
     .ran = Ran::any_but_zero},
    // Whatever the code, what came is merged.
    {.call = LinkCall::merge_image, .moves = FileMove{TILBRIDGE_UPLOAD, TILBRIDGE_FILE_IMAGE, 120},
     .not_run = "Send_PrgModeToEcr: Errore nella chiamata di REGWIRE. File %1",
     .failed = "",
     .ends_tool = EndsTool::never, .ran = Ran::any_but_zero, .good = any_code},
    {.call = LinkCall::send_image, .moves = FileMove{TILBRIDGE_DOWNLOAD, TILBRIDGE_FILE_IMAGE, 120},
     .not_run = "Send_PrgModeToEcr error using regwire",
     .failed = "Send_PrgModeToEcr error. Code: %2 Desc: %3"},
    {.call = LinkCall::send_items, .moves = FileMove{TILBRIDGE_DOWNLOAD, TILBRIDGE_FILE_PLU, 180},
     .not_run = "Send_PrgPluToEcr error using regwire",
     .failed = "Send_PrgPluToEcr error. Code: %2 Desc: %3",
     // A refusal leaves the tool running here too.
     .ends_tool = EndsTool::after_timeout_or_refusal},
    {.call = LinkCall::read_release, .moves = FileMove{TILBRIDGE_UPLOAD, TILBRIDGE_FILE_RELEASE, 3},
     // The words of the report fetch are this line's own.
     .not_run = "Receive_ReportEcr error using regwire",
     .failed = "Get_Release error. Code: %2 Desc: %3"},
    {.call = LinkCall::read_report, .moves = {},
     .not_run = "Receive_ReportEcr error using regwire",
     .failed = "Receive_ReportEcr error. File %1 Code: %2 Desc: %3"},
    {.call = LinkCall::read_report_range, .moves = {},
     .not_run = "Receive_ReportEcr error using regwire",
     .failed = "Receive_ReportEcr error. File %1 Code: %2 Desc: %3",
     .ends_tool = EndsTool::never},
    {.call = LinkCall::convert_logo, .moves = {},
     // The routine that sends the programming is named here, on purpose.
     .not_run = "Send_PrgModeToEcr error using regpix",
     .failed = "Send_LogoToEcr conversion error. Code: %2 Desc:%3",
     .ends_tool = EndsTool::never, .good = codes_of_a_conversion, .text_of = NumToDesc_RegPix},
    {.call = LinkCall::send_logo, .moves = FileMove{TILBRIDGE_DOWNLOAD, TILBRIDGE_FILE_LOGO, 60},
     .not_run = "Send_LogoToEcr error using regwire",
     .failed = "Send_LogoToEcr error. Code: %2 Desc: %3"},
}};
// clang-format on

consteval bool are_in_order() {
  for (std::size_t i = 0; i < link_calls.size(); ++i) {
    if (static_cast<std::size_t>(link_calls[i].call) != i || link_calls[i].not_run.empty()) return false;
  }
  return true;
}
static_assert(are_in_order());

const Row& row_of(LinkCall call) {
  return link_calls[static_cast<std::size_t>(call)];
}

std::string log_line(const Row& row, std::string_view words, std::uint8_t number, std::int32_t code) {
  std::string line;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (words[i] != '%') {
      line += words[i];
      continue;
    }
    switch (words[++i]) {
      case '1':
        line += std::to_string(number);
        break;
      case '2':
        line += hex_text(code);
        break;
      default:
        line += row.text_of(code);
    }
  }
  return line;
}

LinkOutcome outcome_of(const Row& row, std::int32_t answer, std::int32_t code) {
  const bool was_run = row.ran == Ran::one ? answer == 1 : answer != 0;
  if (!was_run) return {LinkEnd::not_run, 0};
  const bool is_good = row.good.first <= code && code <= row.good.last;
  return {is_good ? LinkEnd::done : LinkEnd::failed, code};
}

bool ends_tool(EndsTool when, std::int32_t code) {
  switch (when) {
    case EndsTool::never:
      return false;
    case EndsTool::after_timeout:
      return code == TILBRIDGE_CODE_TIMEOUT;
    case EndsTool::after_timeout_or_refusal:
      return code == TILBRIDGE_CODE_TIMEOUT || code == TILBRIDGE_CODE_REFUSED;
  }
  return false;
}

}  // namespace

LinkOutcome make_link_call(LinkCall call, std::uint8_t number, const LibraryCall& library_call, const TellOutcome& tell,
                           CallLog log) {
  const Row& row = row_of(call);
  std::int32_t resultCode = 0;
  const std::int32_t answer = library_call(resultCode);
  const LinkOutcome outcome = outcome_of(row, answer, resultCode);
  if (outcome.is_done()) return outcome;
  const bool was_run = outcome.end == LinkEnd::failed;
  if (log == CallLog::failures) memo_log(log_line(row, was_run ? row.failed : row.not_run, number, outcome.code));
  if (tell) tell(outcome);
  if (was_run && ends_tool(row.ends_tool, outcome.code)) Process_Kill(exchange_tool);
  return outcome;
}

LinkOutcome move_file(LinkCall call, std::string& folder, const TellOutcome& tell) {
  const FileMove& move = row_of(call).moves.value();
  const LibraryCall library_call = [&](std::int32_t& resultCode) {
    return util_send_cmd_to_ecr(folder, move.direction, move.file, resultCode, move.timeout, Global::ComPort);
  };
  return make_link_call(call, move.file, library_call, tell);
}

}  // namespace ecr

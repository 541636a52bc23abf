#include "link/report_fetch.h"

#include <array>
#include <vector>

#include "core/decimal.h"
#include "core/files.h"
#include "core/global.h"
#include "core/run_log.h"
#include "core/text.h"
#include "link/error_tables.h"
#include "link/library.h"
#include "link/process.h"

namespace ecr {
namespace {

// Seconds, by report number. Those of the two range reports are never used.
constexpr std::array<std::int32_t, 23> report_timeout = {0, 0,  0,  60, 60,  60,  60, 180, 60, 60,  60, 60,
                                                         2, 60, 60, 60, 360, 360, 60, 360, 60, 360, 60};
constexpr std::int32_t range_timeout = 120;

/// Moves an older file of this report out of the way. Each step is tried, whatever became of the one before it.
Fault displace_older(std::string_view report) {
  const std::vector<std::string> names = files_matching(Global::PathDati, std::string{report} + "*.bin");
  if (names.empty()) return {};
  const std::string& name = names.front();
  Fault fault = copy_file(Global::PathDati + name, Global::PathReportDati + name);
  const Fault second = delete_file(Global::PathDati + name);
  return second.stands() ? second : fault;
}

}  // namespace

std::string Txt_MPS_Min;

bool Receive_ReportEcr(std::uint8_t number, bool skipLog) {
  const Fault pending = displace_older(number < ReportName.size() ? ReportName[number] : std::string_view{});

  std::int32_t resultCode = 0;
  std::int32_t answer = 0;
  const bool by_range = number == FileNumber::range_dept || number == FileNumber::msk;
  if (number == FileNumber::range_dept) {
    answer = util_get_range_report(Global::PathApp, number, resultCode, range_timeout, 1, 99, Global::ComPort);
  } else if (number == FileNumber::msk) {
    const auto from = static_cast<std::int32_t>(std::clamp<std::int64_t>(leading_number(Txt_MPS_Min), 0, INT32_MAX));
    answer = util_get_range_report(Global::PathApp, number, resultCode, range_timeout, from, 9999, Global::ComPort);
  } else {
    const std::int32_t timeout = number < report_timeout.size() ? report_timeout[number] : 0;
    answer = util_send_cmd_to_ecr(Global::PathApp, Direction::upload, number, resultCode, timeout, Global::ComPort);
  }

  const bool delivered = answer == 1 && resultCode == ResultCode::done;
  if (answer == 1 && !by_range && resultCode == ResultCode::timeout) Process_Kill(exchange_tool);
  if (skipLog) return delivered;
  if (answer != 1) {
    memo_log("Receive_ReportEcr error using regwire");
  } else if (!delivered) {
    memo_log("Receive_ReportEcr error. File " + std::to_string(number) + " Code: " + hex_text(resultCode) +
             " Desc: " + std::string{NumToDesc_RegWire(resultCode)});
  }
  if (pending.stands()) log_fault("Receive_ReportEcr " + std::to_string(number) + ": ", pending);
  return delivered;
}

}  // namespace ecr

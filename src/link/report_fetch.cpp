#include "link/report_fetch.h"

#include <vector>

#include "core/files.h"
#include "core/global.h"
#include "core/run_log.h"
#include "core/text.h"
#include "link/error_tables.h"
#include "link/library.h"
#include "link/process.h"
#include "link/report_rows.h"

namespace ecr {
namespace {

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

bool Receive_ReportEcr(std::uint8_t number, const ReportFetch& fetch) {
  const Report* report = report_numbered(number);
  if (report == nullptr) return false;
  const Fault pending = displace_older(report->name);

  std::int32_t resultCode = 0;
  std::int32_t answer = 0;
  if (const auto& range = report->range) {
    answer =
        util_get_range_report(Global::PathApp, number, resultCode, report->timeout,
                              range->first_is_typed ? fetch.first_record : range->first, range->last, Global::ComPort);
  } else {
    answer =
        util_send_cmd_to_ecr(Global::PathApp, TILBRIDGE_UPLOAD, number, resultCode, report->timeout, Global::ComPort);
  }

  const bool delivered = answer == 1 && resultCode == TILBRIDGE_CODE_DONE;
  if (answer == 1 && !report->range && resultCode == TILBRIDGE_CODE_TIMEOUT) Process_Kill(exchange_tool);
  if (fetch.skip_log) return delivered;
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

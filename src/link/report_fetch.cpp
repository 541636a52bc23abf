#include "link/report_fetch.h"

#include <string>
#include <vector>

#include "core/files.h"
#include "core/global.h"
#include "core/run_log.h"
#include "link/library.h"
#include "link/link_call.h"
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

  const auto& range = report->range;
  const auto ask = [&](std::int32_t& resultCode) {
    if (!range) {
      return util_send_cmd_to_ecr(Global::PathApp, TILBRIDGE_UPLOAD, number, resultCode, report->timeout,
                                  Global::ComPort);
    }
    const std::int32_t first = range->first_is_typed ? fetch.first_record : range->first;
    return util_get_range_report(Global::PathApp, number, resultCode, report->timeout, first, range->last,
                                 Global::ComPort);
  };
  const LinkCall call = range ? LinkCall::read_report_range : LinkCall::read_report;
  const CallLog log = fetch.skip_log ? CallLog::nothing : CallLog::failures;
  const bool delivered = make_link_call(call, number, ask, {}, log).is_done();
  if (pending.stands() && !fetch.skip_log) log_fault("Receive_ReportEcr " + std::to_string(number) + ": ", pending);
  return delivered;
}

}  // namespace ecr

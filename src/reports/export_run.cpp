#include "reports/export_run.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <string>
#include <utility>

#include "core/clock.h"
#include "core/decimal.h"
#include "core/run_log.h"
#include "link/report_fetch.h"
#include "link/tilbridge2.h"

namespace ecr {
namespace {

constexpr double seconds_of_a_day = 86400;

/// Seconds in their shortest form, with a point whatever the system's own sign is.
std::string seconds_text(double seconds) {
  constexpr int digits = 7;
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), seconds, std::chars_format::general, digits);
  return {text.data(), end.ptr};
}

CsvOutcome export_one(std::uint8_t number, std::int32_t lowest_quantity) {
  const double begun = now().second_of_day;
  if (!Receive_ReportEcr(number, {.first_record = lowest_quantity})) return {};
  CsvOutcome outcome = export_ReportEcr(number);
  double passed = now().second_of_day - begun;
  if (passed < 0) passed += seconds_of_a_day;
  memo_log("Time for download report " + std::to_string(number) + " is:" + seconds_text(passed));
  return outcome;
}

}  // namespace

std::int32_t lowest_quantity_of(std::string_view typed) {
  return static_cast<std::int32_t>(
      std::clamp<std::int64_t>(leading_number(typed), 0, std::numeric_limits<std::int32_t>::max()));
}

std::vector<CsvOutcome> export_reports(const std::vector<std::uint8_t>& numbers, std::int32_t lowest_quantity,
                                       const std::function<void(std::uint8_t)>& begins) {
  // Dealers look at the release that is left behind in this way.
  std::vector<std::uint8_t> all = numbers;
  all.push_back(TILBRIDGE_FILE_RELEASE);
  std::vector<CsvOutcome> unwritten;
  for (const std::uint8_t number : all) {
    begins(number);
    CsvOutcome outcome = export_one(number, lowest_quantity);
    if (outcome.fault.stands()) unwritten.push_back(std::move(outcome));
  }
  if (!unwritten.empty()) {
    const Fault& last = unwritten.back().fault;
    std::string line = "C_Export_click err: " + std::to_string(last.number()) + " Desc: ";
    line += last.description();
    memo_log(line);
  }
  return unwritten;
}

}  // namespace ecr

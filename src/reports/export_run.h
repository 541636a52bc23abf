#pragma once
// One run over several reports: each is fetched from the register and turned into its CSV file.

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "reports/export_report.h"

namespace ecr {

/// The lower limit of a stock report, as it was typed: digits; anything else counts as 0.
[[nodiscard]] std::int32_t lowest_quantity_of(std::string_view typed);

/// Fetches each of `numbers` and exports those that the register delivered, with a line in the log that tells how long
/// it took. The release follows at the end of every run, whatever was asked for. `begins` is told each number before
/// its turn; `lowest_quantity` is where the range of the stock report begins. Failures reach the log; that of a CSV file,
/// the last one if there are several, at the run's end. Returns the files that could not be written.
[[nodiscard]] std::vector<CsvOutcome> export_reports(const std::vector<std::uint8_t>& numbers,
                                                     std::int32_t lowest_quantity,
                                                     const std::function<void(std::uint8_t)>& begins);

}  // namespace ecr

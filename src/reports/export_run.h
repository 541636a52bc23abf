#pragma once
// One run over several reports: each is fetched from the register and turned into its CSV file.

#include <cstdint>
#include <functional>
#include <vector>

#include "reports/export_report.h"

namespace ecr {

/// Fetches each of `numbers` and exports those that the register delivered, with a line in the log that tells how long
/// it took. The release follows at the end of every run, whatever was asked for. `begins` is told each number before
/// its turn. Failures reach the log; that of a CSV file, the last one if there are several, at the run's end. Answers
/// the files that could not be written.
[[nodiscard]] std::vector<CsvOutcome> export_reports(const std::vector<std::uint8_t>& numbers,
                                                     const std::function<void(std::uint8_t)>& begins);

}  // namespace ecr

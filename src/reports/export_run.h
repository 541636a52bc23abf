#pragma once
// One run over several reports: each is fetched from the register and turned into its CSV file.

#include <cstdint>
#include <functional>
#include <vector>

namespace ecr {

/// Fetches each of `numbers` and exports those that the register delivered, with a line in the log that tells how long
/// it took. The release follows at the end of every run, whatever was asked for. `begins` is told each number before
/// its turn. Failures reach the log only.
void export_reports(const std::vector<std::uint8_t>& numbers, const std::function<void(std::uint8_t)>& begins);

}  // namespace ecr

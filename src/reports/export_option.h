#pragma once
// Which reports are exported, as it is kept between two runs in Setup\ExportOption.ini.

#include <array>
#include <cstdint>

namespace ecr {

/// One byte for each report number, 0 or 1, whether it is exported. Numbers that are no report's keep what the file
/// has.
extern std::array<std::uint8_t, 24> ExportOption;

/// A read that fails leaves the bytes as they were; a missing file is created empty.
void Read_ExportOption();
/// A failure is silent.
void Write_ExportOption();

void reset_export_option();

}  // namespace ecr

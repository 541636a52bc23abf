#pragma once
// What is worth a picture in a report: a few numbers with their names.

#include <cstdint>
#include <string>
#include <vector>

#include "reports/csv_file.h"

namespace ecr {

struct Chart {
  enum class Kind {
    columns,  ///< upright bars in the order of time
    bars,     ///< lying bars, each with its name
    line,
  };
  struct Point {
    std::string name;
    double value = 0;
    std::string text;  ///< the value as the report writes it
  };
  std::string title;
  Kind kind = Kind::bars;
  std::vector<Point> points;
};

inline constexpr std::size_t most_bars = 20;
inline constexpr std::size_t sellers_shown = 10;

/// The pictures of an export: sales by hour, by department, by clerk, by payment medium, VAT by rate, the best and the
/// worst sellers. None for a report that has none, or for a file that is not what its name says. Texts are bytes of
/// the code page.
[[nodiscard]] std::vector<Chart> report_charts(std::uint8_t number, const CsvExport& exported);

}  // namespace ecr

#pragma once
// Report files put together by hand, and what became of them.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/files.h"
#include "core/global.h"
#include "link/report_rows.h"
#include "reports/export_report.h"
#include "support/installation.h"

namespace ecr::test {

/// The bytes that a text of hexadecimal digits stands for; blanks part them.
inline std::string hex(std::string_view text) {
  const auto nibble = [](char c) { return c <= '9' ? c - '0' : c - 'A' + 10; };
  std::string bytes;
  for (std::size_t i = 0; i < text.size();) {
    if (text[i] == ' ') {
      ++i;
      continue;
    }
    bytes += static_cast<char>(nibble(text[i]) * 16 + nibble(text[i + 1]));
    i += 2;
  }
  return bytes;
}

/// Decimal digits, highest first, as a packed field of `width` bytes.
inline std::string packed(std::string_view digits, std::size_t width) {
  std::string all(2 * width - digits.size(), '0');
  all += digits;
  std::string bytes;
  for (std::size_t i = 0; i < width; ++i) {
    const std::size_t place = all.size() - 2 - 2 * i;
    bytes += static_cast<char>((all[place] - '0') * 16 + (all[place + 1] - '0'));
  }
  return bytes;
}

class ReportTest : public InstallationTest {
 protected:
  ReportTest() {
    make_folder("Dati/Report");
    make_folder("Report");
    Global::DecimalPoint = 2;
  }

  [[nodiscard]] static std::string name_of(std::uint8_t number) { return std::string{report_name(number)}; }

  /// What becomes of a report file with these bytes.
  std::string exported(std::uint8_t number, std::string_view file) {
    const std::string csv = "Report/" + name_of(number) + ".csv";
    if (exists(csv)) remove(csv);
    write("Dati/" + name_of(number) + ".bin", file);
    EXPECT_FALSE(export_ReportEcr(number).fault.stands());
    return bytes(csv);
  }

  /// The lines of what becomes of it, without their ends.
  std::vector<std::string> lines(std::uint8_t number, std::string_view file) {
    const std::string csv = exported(number, file);
    std::vector<std::string> result;
    for (std::size_t place = 0; place < csv.size();) {
      const std::size_t end = csv.find("\r\n", place);
      if (end == std::string::npos) {
        ADD_FAILURE() << "a line without an end";
        break;
      }
      result.push_back(csv.substr(place, end - place));
      place = end + 2;
    }
    return result;
  }
};

}  // namespace ecr::test

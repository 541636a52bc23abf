#pragma once
// A register that trades, what it then answers, and what our own decoder makes of it.

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "emulator/emulator_test.h"
#include "image/prg_mode.h"
#include "image/prg_plu.h"

namespace ecr::test {

/// A report as a table: each line by the headings of its columns. Amounts and quantities are as the decoder writes
/// them.
using ReportTable = std::vector<std::map<std::string, std::string>>;

/// A text of the decoder as a whole number: "-12.34" as an amount with two decimals is -1234, "1.5" as a quantity
/// 15000.
[[nodiscard]] std::int64_t units(const std::string& amount);
[[nodiscard]] std::int64_t ten_thousandths(const std::string& quantity);

/// The sum of a column of amounts, of quantities, of counters.
[[nodiscard]] std::int64_t sum_of(const ReportTable& table, const std::string& heading);
[[nodiscard]] std::int64_t quantity_of(const ReportTable& table, const std::string& heading);
[[nodiscard]] std::int64_t count_of(const ReportTable& table, const std::string& heading);

/// A receipt, or another entry, as the journal has it.
struct JournalEntry {
  std::vector<std::string> lines;  ///< without the blanks at their ends

  /// What stands at the right of the line that begins with this text; empty if there is none.
  [[nodiscard]] std::string right_of(const std::string& left) const;
  [[nodiscard]] bool has(const std::string& left) const;
};

class TradingTest : public EmulatorTest {
 protected:
  /// An untraded register with the sample programming of `model`.
  void become(std::string_view model);

  /// The next day, by the line in register.txt and a call.
  void trade(int days = 1);

  /// The bytes of a report, fetched by a call.
  [[nodiscard]] std::string fetched(std::uint8_t number) const;
  [[nodiscard]] std::string fetched(std::uint8_t number, std::int32_t from, std::int32_t to) const;

  /// The report, fetched by a call and decoded into its CSV file.
  [[nodiscard]] ReportTable table(std::uint8_t number) const;
  [[nodiscard]] std::map<std::string, std::string> line(std::uint8_t number) const { return table(number).at(0); }

  /// The lines of a journal report, decoded; then its entries without the head of the day.
  [[nodiscard]] std::vector<std::string> journal_lines(std::uint8_t number) const;
  [[nodiscard]] std::vector<JournalEntry> journal(std::uint8_t number) const;

  [[nodiscard]] PrgModeImage image() const;
  [[nodiscard]] std::vector<PluRecord> items() const;
  /// A word that the register prints, as text of the code page.
  [[nodiscard]] std::string word(std::size_t caption) const;
};

/// The same for both models.
class EachShop : public TradingTest, public ::testing::WithParamInterface<const char*> {
 protected:
  EachShop() { become(GetParam()); }
};

[[nodiscard]] inline std::string model_in_name(const ::testing::TestParamInfo<const char*>& test) {
  return test.param;
}

/// The number in a packed field; -1 if it is none.
[[nodiscard]] std::int64_t packed_number(std::string_view field);
/// The same with a sign in the first digit.
[[nodiscard]] std::int64_t signed_number(std::string_view field);

}  // namespace ecr::test

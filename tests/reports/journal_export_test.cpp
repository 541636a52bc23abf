#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "report_test.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

class JournalExport : public ReportTest {
 protected:
  static std::string record(std::string_view text) {
    std::string bytes{text};
    bytes.resize(24, ' ');
    return bytes + "\x01\x02";
  }

  static std::string padded_line(std::string_view text) {
    std::string line(24, ' ');
    line.replace(0, text.size(), text);
    return line;
  }
};

constexpr std::uint8_t journals[] = {16, 17, 18, 19};

TEST_F(JournalExport, EachRecordIsALineOf24Characters) {
  for (const std::uint8_t number : journals) {
    EXPECT_EQ(lines(number, record("COFFEE             1.50") + record("TOTAL;  1.50")),
              (Lines{"LineFromEj", "COFFEE             1.50 ", padded_line("TOTAL;  1.50")}));
  }
}

TEST_F(JournalExport, ARecordThatBeginsWithZeroEndsTheJournal) {
  for (const std::uint8_t number : journals) {
    const std::string end = std::string(1, '\0') + std::string(25, 'x');
    EXPECT_EQ(lines(number, record("A") + end + record("B")), (Lines{"LineFromEj", padded_line("A")}));
    EXPECT_EQ(lines(number, end), Lines{"LineFromEj"});
  }
}

TEST_F(JournalExport, ItEndsWithItsFile) {
  for (const std::uint8_t number : journals) {
    EXPECT_EQ(lines(number, ""), Lines{"LineFromEj"});
    for (const std::size_t count : {1U, 2U, 11U, 12U, 13U, 100U, 5000U}) {
      std::string file;
      for (std::size_t i = 0; i < count; ++i) file += record("LINE " + std::to_string(i));
      const Lines text = lines(number, file);
      ASSERT_EQ(text.size(), count + 1);
      EXPECT_EQ(text.back(), padded_line("LINE " + std::to_string(count - 1)));
    }
  }
}

TEST_F(JournalExport, APieceOfARecordIsFilledWithZeros) {
  EXPECT_EQ(lines(16, record("A") + "TAIL").back(), "TAIL" + std::string(20, '\0'));
}

TEST_F(JournalExport, TheFullJournalBlanksTheCode255) {
  EXPECT_EQ(lines(16, record("A\xFF"
                             "B\xFF\xFF"
                             "C"))[1],
            padded_line("A B  C"));
  EXPECT_EQ(lines(16, record("\xFFTOT 255.00"))[1], padded_line(" TOT 255.00"));
}

TEST_F(JournalExport, TheOthersBlankTheFirstDigitOf255) {
  for (const std::uint8_t number : {std::uint8_t{17}, std::uint8_t{18}, std::uint8_t{19}}) {
    EXPECT_EQ(lines(number, record("TOT 255.00"))[1], padded_line("TOT  55.00"));
    EXPECT_EQ(lines(number, record("255255 2255 25"))[1], padded_line(" 55 55 2 55 25"));
    // Code 255 itself stays, and is the register's own way of writing code 183.
    EXPECT_EQ(lines(number, record("A\xFF"
                                   "B"))[1],
              padded_line("A\xB7"
                          "B"));
  }
}

TEST_F(JournalExport, TheSearchStopsInFrontOfTheLastCharacter) {
  const std::string head(22, '.');
  // A mark at 23 ends the search, so the one at 24 stays; one at 24 alone is found.
  EXPECT_EQ(lines(16, record(head + "\xFF\xFF"))[1], head + " \xB7");
  EXPECT_EQ(lines(16, record(head + ".\xFF"))[1], head + ". ");
  EXPECT_EQ(lines(16, record(head + "\xFF."))[1], head + " .");
  EXPECT_EQ(lines(16, record(std::string(21, '.') + "\xFF.\xFF"))[1], std::string(21, '.') + " . ");
  EXPECT_EQ(lines(16, record(std::string(21, '.') + "\xFF\xFF\xFF"))[1], std::string(21, '.') + "  \xB7");
  // Three digits end at 24 at the latest.
  EXPECT_EQ(lines(17, record(std::string(21, '.') + "255"))[1], std::string(21, '.') + " 55");
  EXPECT_EQ(lines(17, record(std::string(22, '.') + "25"))[1], std::string(22, '.') + "25");
  EXPECT_EQ(lines(19, record(std::string(18, '.') + "255255"))[1], std::string(18, '.') + " 55 55");
}

TEST_F(JournalExport, ABlankedFirstCharacterIsNoEnd) {
  EXPECT_EQ(lines(16, record("\xFF") + record("B")), (Lines{"LineFromEj", std::string(24, ' '), padded_line("B")}));
}

TEST_F(JournalExport, RegisterTextBecomesTextOfThePage) {
  EXPECT_EQ(lines(18, record("\x94\x8A"))[1], padded_line("\xFC\xC1"));
}

TEST_F(JournalExport, AJournalTooLongToBeCountedKeepsItsFirstLineOnly) {
  // 786,419 bytes count 32,767 lines of 24; one more byte counts half a line more, which rounds to the even 32,768.
  std::string file;
  while (file.size() < 786440) file += record("LINE");
  const std::size_t whole = 786419 / 26;
  EXPECT_EQ(lines(16, file.substr(0, 786419)).size(), 1 + whole + 1);
  EXPECT_EQ(lines(16, file.substr(0, 786420)), (Lines{"LineFromEj", padded_line("LINE")}));
  EXPECT_EQ(lines(16, std::string(1, '\0') + file), Lines{"LineFromEj"});
  EXPECT_TRUE(log().empty());
}

}  // namespace
}  // namespace ecr::test

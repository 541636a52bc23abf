#include "link/error_tables.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string_view>
#include <vector>

#include "support/random.h"

namespace ecr::test {
namespace {

struct Row {
  std::int32_t code;
  std::string_view text;
};

const std::vector<Row> wire_rows = {
    {1, "It was discontinued while processing it."},
    {513, "The parameter number is illegal."},
    {514, "The UPLOAD/DOWNLOAD parameter is illegal."},
    {515, "The RANGE1 parameter is larger than RANGE2."},
    {516, "It is not in the folder that RegWire.ini is the same as RegWire.exe."},
    {517, "Specified File number doesn't exist in the setting of RegWire.ini."},
    {518, "The value of REPORT FLAG of RegWire.ini is illegal."},
    {519, "The Download operation was specified for the report."},
    {520, "The Number of range parameter is illegal."},
    {1025, "The USB-COM port cannot be opened."},
    {1026, "The writing error occurred by the communication."},
    {2049, "The specified file cannot be opened."},
    {2050, "The specified file cannot be read."},
    {2051, "The specified file cannot be made."},
    {2052, "The specified file cannot be written."},
    {4097, "The ECR side is in the state of BUSY."},
    {4098, "The error was returned from the ECR side."},
    {9999, "Timeout Error"},
};

const std::vector<Row> pix_rows = {
    {0x02010000, "Quit execution before completion."},
    {0x04010000, "Invalid the numbers of parameters."},
    {0x04020000, "Invalid the parameter of the rotation."},
    {0x04030000, "Invalide the parameter of 'Dot resolution check'"},
    {0x04040000, "Invalid the parameter of the contnued lines."},
    {0x04050000, "Invalid the parameter of the ratio of the continued line areas."},
    {0x04060000, "Invalid the parameter of the ratio of all area."},
    {0x08010000, "Impossible to open the entered file."},
    {0x08020000, "Impossible to read the entered file."},
    {0x08030000, "Impossible to generate the entered file."},
    {0x08040000, "Impossible to write into the entered file."},
    {0x10010000, "The original BMP file is not a proper BMP type file."},
    {0x10020000, "The original BMP file has not been prepared as a black-and-white data."},
    {0x10030000, "Unknown file type."},
    {0x10040000, "The numbers of dots in the line is over 2048 dots."},
};

template <typename Table>
void expect_rows(const Table& table, const std::vector<Row>& rows) {
  ASSERT_EQ(table.size(), rows.size() + 1) << "row 0 is not used";
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(table[i + 1].code, rows[i].code) << i;
    EXPECT_EQ(table[i + 1].text, rows[i].text) << i;
  }
}

TEST(ErrorTables, TheExchangeToolHas18Codes) {
  expect_rows(RegWireError, wire_rows);
  EXPECT_EQ(wire_rows.size(), 18U);
}

TEST(ErrorTables, TheConversionHas15Codes) {
  expect_rows(RegPixError, pix_rows);
  EXPECT_EQ(pix_rows.size(), 15U);
}

TEST(ErrorTables, EveryCodeHasItsTextInItsOwnTableAlone) {
  for (const Row& row : wire_rows) {
    EXPECT_EQ(NumToDesc_RegWire(row.code), row.text);
    EXPECT_EQ(NumToDesc_RegPix(row.code), "No description") << row.code;
  }
  for (const Row& row : pix_rows) {
    EXPECT_EQ(NumToDesc_RegPix(row.code), row.text);
    EXPECT_EQ(NumToDesc_RegWire(row.code), "No description") << row.code;
  }
}

TEST(ErrorTables, CodesThatNoTableHoldsHaveNoDescription) {
  EXPECT_EQ(NumToDesc_RegWire(0), "No description");
  EXPECT_EQ(NumToDesc_RegPix(0), "No description");
  EXPECT_EQ(NumToDesc_RegPix(1), "No description") << "code 1 is only in the other table";
  for (const std::int32_t code : {-1, 2, 512, 521, 1024, 4096, 4099, 9998, 10000, 0x10050000,
                                  std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
    EXPECT_EQ(NumToDesc_RegWire(code), "No description") << code;
    EXPECT_EQ(NumToDesc_RegPix(code), "No description") << code;
  }
}

}  // namespace
}  // namespace ecr::test

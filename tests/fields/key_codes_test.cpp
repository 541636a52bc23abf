#include "fields/key_codes.h"

#include <gtest/gtest.h>
#include <map>
#include <string>

namespace ecr::test {
namespace {

// Written out once more, from the register's side.
const std::map<int, std::string> single_names = {{20, "DEPT SHIFT, CODE"},
                                                 {21, "#NS, NEXT"},
                                                 {22, "CLERK, ESC"},
                                                 {23, "RECEIPT ON/OFF"},
                                                 {24, "SUBTOTAL"},
                                                 {25, "CHECK"},
                                                 {26, "CHARGE"},
                                                 {27, "CREDIT1"},
                                                 {28, "CREDIT2"},
                                                 {29, "CREDIT3"},
                                                 {30, "CREDIT4"},
                                                 {31, "CREDIT5"},
                                                 {32, "CREDIT6"},
                                                 {33, "FC"},
                                                 {34, "%1"},
                                                 {35, "%2"},
                                                 {36, "+/-1"},
                                                 {37, "+/-2"},
                                                 {38, "RA"},
                                                 {40, "EC"},
                                                 {41, "VOID"},
                                                 {42, "FULL VOID"},
                                                 {43, "REFUND"},
                                                 {44, "PLU CODE"},
                                                 {45, "PLU PRICE"},
                                                 {46, "ADD PLU"},
                                                 {47, "PLU INQUIRY"},
                                                 {48, "HOLD"},
                                                 {49, "PAYMENT TRANSFER"},
                                                 {50, "TAKE OUT"},
                                                 {51, "ABR"},
                                                 {52, "CHAIN FUNC 1"},
                                                 {53, "CHAIN FUNC 2"},
                                                 {54, "CHAIN FUNC 3"},
                                                 {55, "CHAIN FUNC 4"},
                                                 {56, "CHAIN FUNC 5"},
                                                 {57, "POP LIST 1"},
                                                 {58, "POP LIST 2"},
                                                 {59, "POP LIST 3"},
                                                 {60, "POP LIST 4"},
                                                 {61, "POP LIST 5"},
                                                 {62, "TABLE#NEW BAL"},
                                                 {63, "GUEST"},
                                                 {64, "REVIEW"},
                                                 {65, "TABLE ADD"},
                                                 {66, "TABLE SEPARATE"},
                                                 {67, "TABLE CHANGE"},
                                                 {68, "PROFORMA"},
                                                 {69, "TRAY/TRAY TL"},
                                                 {70, "EXTRA INVOICE"},
                                                 {71, "=PAYMENT"},
                                                 {72, "PRICE1"},
                                                 {73, "PRICE2"},
                                                 {74, "PLU PAGE 1"},
                                                 {75, "PLU PAGE 2"},
                                                 {76, "PLU PAGE 3"},
                                                 {77, "PLU LIST 1"},
                                                 {78, "PLU LIST 2"},
                                                 {79, "PLU LIST 3"},
                                                 {80, "PLU LIST 4"},
                                                 {81, "PLU LIST 5"},
                                                 {255, "NO OPERATION"}};

std::string expected_name(int code) {
  if (code >= 82 && code <= 101) return "DEPT " + std::to_string(code - 81);
  if (code >= 102 && code <= 151) return "PLU " + std::to_string(code - 101);
  const auto found = single_names.find(code);
  return found == single_names.end() ? "" : found->second;
}

TEST(KeyCodes, EachOfThe256CodesHasItsNameOrNone) {
  int named = 0;
  for (int code = 0; code < 256; ++code) {
    EXPECT_EQ(key_name(static_cast<std::uint8_t>(code)), expected_name(code)) << code;
    named += key_name(static_cast<std::uint8_t>(code)).empty() ? 0 : 1;
  }
  EXPECT_EQ(named, 132);
}

TEST(KeyCodes, EachNameLeadsBackToItsCode) {
  for (int code = 0; code < 256; ++code) {
    const std::string name = expected_name(code);
    if (!name.empty()) {
      EXPECT_EQ(key_code(name), static_cast<std::uint8_t>(code)) << name;
    }
  }
}

TEST(KeyCodes, NoCodeIsNamedPaidOut) {
  EXPECT_EQ(key_code("PO"), std::nullopt);
  EXPECT_EQ(key_name(39), "");
  EXPECT_EQ(key_name(49), "PAYMENT TRANSFER");
}

TEST(KeyCodes, ANameThatIsNotExactHasNoCode) {
  for (const char* name : {"", "DEPT 0", "DEPT 21", "DEPT 01", "dept 1", "PLU 51", "PLU", " DEPT 1", "DEPT 1 "}) {
    EXPECT_EQ(key_code(name), std::nullopt) << name;
  }
}

}  // namespace
}  // namespace ecr::test

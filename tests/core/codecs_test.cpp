#include "core/codecs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "support/installation.h"
#include "support/random.h"

namespace ecr::test {
namespace {

using Bytes = std::vector<std::uint8_t>;

class Codecs : public InstallationTest {
 protected:
  static Bytes packed(std::string_view value, std::size_t width) {
    Bytes field(width, 0xEE);
    number_to_bcds(field, value);
    return field;
  }
};

/// The field that holds these digits, most significant first; built digit by digit.
Bytes field_of(const std::string& digits) {
  Bytes field;
  for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
    if (field.empty() || (digit - digits.rbegin()) % 2 == 0) {
      field.push_back(static_cast<std::uint8_t>(*digit - '0'));
    } else {
      field.back() = static_cast<std::uint8_t>(field.back() + 16 * (*digit - '0'));
    }
  }
  return field;
}

std::string without_leading_zeros(const std::string& digits) {
  return digits.substr(std::min(digits.find_first_not_of('0'), digits.size() - 1));
}

/// Adds two numbers written in digits, as on paper.
std::string sum_on_paper(std::string a, std::string b) {
  if (a.size() < b.size()) std::swap(a, b);
  b.insert(0, a.size() - b.size(), '0');
  int carry = 0;
  for (std::size_t i = a.size(); i-- > 0;) {
    const int digit = (a[i] - '0') + (b[i] - '0') + carry;
    a[i] = static_cast<char>('0' + digit % 10);
    carry = digit / 10;
  }
  if (carry > 0) a.insert(0, "1");
  return without_leading_zeros(a);
}

std::string two_hex_digits(int byte) {
  char text[3];
  std::snprintf(text, sizeof text, "%X", static_cast<unsigned>(byte));
  return text;
}

/// The leading digits of a text as a number.
int read_leniently(const std::string& text) {
  int number = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') break;
    number = number * 10 + (c - '0');
  }
  return number;
}

// Numbers into fields

TEST_F(Codecs, ANumberIsStoredLeastSignificantPairFirst) {
  EXPECT_EQ(packed("123456", 3), (Bytes{0x56, 0x34, 0x12}));
}

TEST_F(Codecs, AShortNumberIsPaddedWithZeroBytes) {
  EXPECT_EQ(packed("5", 4), (Bytes{0x05, 0, 0, 0}));
}

TEST_F(Codecs, AThirdDigitStartsTheSecondByte) {
  EXPECT_EQ(packed("100", 2), (Bytes{0x00, 0x01}));
}

TEST_F(Codecs, AnEmptyNumberGivesZeroBytes) {
  EXPECT_EQ(packed("", 5), (Bytes{0, 0, 0, 0, 0}));
  EXPECT_TRUE(log().empty());
}

TEST_F(Codecs, ANumberWithMoreDigitsThanTheFieldHoldsKeepsTheLowOnesAndIsLogged) {
  EXPECT_EQ(packed("12345", 2), (Bytes{0x45, 0x23}));
  EXPECT_EQ(log(), (std::vector<std::string>{"number_to_bcds : Index out of range"}));
}

TEST_F(Codecs, AFieldWithoutBytesTakesNoDigit) {
  Bytes none;
  number_to_bcds(none, "");
  EXPECT_TRUE(log().empty());
  number_to_bcds(none, "7");
  EXPECT_EQ(log(), (std::vector<std::string>{"number_to_bcds : Index out of range"}));
}

TEST_F(Codecs, ATextThatIsNoNumberIsWrittenUpToItsFirstStrangerFromTheRight) {
  EXPECT_EQ(packed("9x123", 4), (Bytes{0x23, 0x01, 0, 0}));
  EXPECT_EQ(log(), (std::vector<std::string>{"number_to_bcds : Type mismatch"}));
}

TEST_F(Codecs, AMinusSignIsNoDigitOfAField) {
  EXPECT_EQ(packed("-12", 2), (Bytes{0x12, 0}));
  EXPECT_EQ(log(), (std::vector<std::string>{"number_to_bcds : Type mismatch"}));
}

TEST_F(Codecs, DecimalsOfANumberAreRoundedHalfAwayFromZero) {
  EXPECT_EQ(packed("12.4999", 2), (Bytes{0x12, 0}));
  EXPECT_EQ(packed("12.5", 2), (Bytes{0x13, 0}));
  EXPECT_EQ(packed("99.5", 2), (Bytes{0x00, 0x01}));
}

TEST_F(Codecs, ANumberOfMoreThan28DigitsLeavesAClearedFieldAndALine) {
  EXPECT_EQ(packed(std::string(29, '9'), 16), Bytes(16, 0));
  EXPECT_EQ(log(), (std::vector<std::string>{"number_to_bcds : Overflow"}));
}

TEST_F(Codecs, ATextOfMoreThan255CharactersOverflowsItsLength) {
  EXPECT_EQ(packed("x" + std::string(255, '1'), 2), (Bytes{0, 0}));
  EXPECT_EQ(log(), (std::vector<std::string>{"number_to_bcds : Overflow"}));
}

TEST_F(Codecs, BlanksAroundANumberDoNotCountAndOtherWhiteSpaceIsNoNumber) {
  EXPECT_EQ(packed(" 42 ", 2), (Bytes{0x42, 0}));
  EXPECT_TRUE(log().empty());
  packed("42\t", 2);
  EXPECT_EQ(log(), (std::vector<std::string>{"number_to_bcds : Type mismatch"}));
}

TEST_F(Codecs, ADecimalGoesIntoAFieldAsItsTextDoes) {
  Bytes field(3, 0xEE);
  number_to_bcds(field, Decimal{1234});
  EXPECT_EQ(field, (Bytes{0x34, 0x12, 0}));
  number_to_bcds(field, Decimal::from_text("0.5"));
  EXPECT_EQ(field, (Bytes{0x01, 0, 0}));
}

// Fields into numbers

TEST_F(Codecs, AFieldReadsAsANumberWithoutLeadingZeros) {
  EXPECT_EQ(bcds_to_number(Bytes{0x56, 0x34, 0x12}), "123456");
  EXPECT_EQ(bcds_to_number(Bytes{0x06, 0x00, 0x00}), "6");
  EXPECT_EQ(bcds_to_number(Bytes{0x00, 0x10, 0x00}), "1000");
  EXPECT_EQ(bcds_to_number(Bytes{0x00, 0x00}), "0");
}

TEST_F(Codecs, AFieldWithoutBytesReadsAsAnEmptyTextOrAsZero) {
  EXPECT_EQ(bcds_to_number({}), "");
  EXPECT_EQ(bcds_to_number_str({}), "0");
  EXPECT_TRUE(log().empty());
}

TEST_F(Codecs, AFieldOf28DigitsIsExact) {
  EXPECT_EQ(bcds_to_number(Bytes(14, 0x99)), std::string(28, '9'));
  EXPECT_EQ(bcds_to_number(field_of("1234567890123456789012345678")), "1234567890123456789012345678");
  EXPECT_TRUE(log().empty());
}

TEST_F(Codecs, A29thDigitEndsTheWalkWithWhatWasReadSoFar) {
  Bytes field = field_of("1234567890123456789012345678");
  field.push_back(0x01);
  EXPECT_EQ(bcds_to_number(field), "1234567890123456789012345678");
  EXPECT_EQ(log(), (std::vector<std::string>{"bcds_to_number Overflow"}));
}

TEST_F(Codecs, ZeroBytesBehind28DigitsAreNoOverflow) {
  Bytes field(14, 0x77);
  field.resize(40, 0x00);
  EXPECT_EQ(bcds_to_number(field), std::string(28, '7'));
  EXPECT_TRUE(log().empty());
}

TEST_F(Codecs, AnInvalidNibbleEndsTheWalkAndTheTextBuiltSoFarIsReturned) {
  struct Row {
    Bytes field;
    std::string text;
  };
  const Row rows[] = {
      {{0x1A, 0x22}, ""},         {{0xA1, 0x22}, ""},           {{0xFF}, ""},
      {{0x12, 0x3F, 0x44}, "12"}, {{0x12, 0x34, 0xC0}, "3412"}, {{0x00, 0x00, 0x0B}, "0"},
      {{0x05, 0x00, 0xB0}, "5"},  {{0x00, 0x01, 0xDD}, "100"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    remove("Log/memo_log.txt");
    EXPECT_EQ(bcds_to_number(row.field), row.text);
    EXPECT_EQ(log(), (std::vector<std::string>{"bcds_to_number Type mismatch"}));
  }
}

TEST_F(Codecs, EveryByteReadsAsItsTwoDigitsOrAsInvalid) {
  for (int byte = 0; byte < 256; ++byte) {
    SCOPED_TRACE(byte);
    const Bytes field{static_cast<std::uint8_t>(byte)};
    const bool valid = byte / 16 <= 9 && byte % 16 <= 9;
    EXPECT_EQ(bcds_to_number(field), valid ? std::to_string(byte / 16 * 10 + byte % 16) : "");
  }
}

TEST_F(Codecs, RandomNumbersOfEveryWidthComeBack) {
  Random random{20261};
  for (std::size_t width = 1; width <= 14; ++width) {
    for (int round = 0; round < 200; ++round) {
      const std::string digits = random.digits(1 + random.below(2 * width));
      SCOPED_TRACE(digits + " in " + std::to_string(width) + " bytes");
      Bytes expected = field_of(digits);
      expected.resize(width, 0);
      const Bytes field = packed(digits, width);
      ASSERT_EQ(field, expected);
      ASSERT_EQ(bcds_to_number(field), without_leading_zeros(digits));
    }
  }
  EXPECT_TRUE(log().empty());
}

TEST_F(Codecs, RandomFieldsOfEveryWidthAreWrittenBack) {
  Random random{20262};
  for (std::size_t width = 1; width <= 14; ++width) {
    for (int round = 0; round < 200; ++round) {
      const Bytes field = field_of(random.digits(2 * width));
      ASSERT_EQ(packed(bcds_to_number(field), width), field);
    }
  }
}

// The lenient walk

TEST_F(Codecs, EveryByteIsReadLenientlyByItsLeadingDigits) {
  for (int byte = 0; byte < 256; ++byte) {
    SCOPED_TRACE(two_hex_digits(byte));
    const int expected = read_leniently(two_hex_digits(byte));
    EXPECT_EQ(bcd_to_number(static_cast<std::uint8_t>(byte)), expected);
    EXPECT_EQ(bcds_to_number_str(Bytes{static_cast<std::uint8_t>(byte)}), std::to_string(expected));
  }
  EXPECT_TRUE(log().empty());
}

TEST_F(Codecs, TheLenientWalkGoesOnBehindAnInvalidNibble) {
  EXPECT_EQ(bcds_to_number_str(Bytes{0x1A, 0x02}), "201");
  EXPECT_EQ(bcds_to_number_str(Bytes{0xFF, 0x02}), "200");
  EXPECT_TRUE(log().empty());
}

TEST_F(Codecs, TheLenientWalkAgreesWithTheExactOneUpToTenBytesOfDigits) {
  Random random{20263};
  for (int round = 0; round < 2000; ++round) {
    // In the tenth byte and below every product of two digits fits a double.
    const Bytes field = field_of(random.digits(1 + random.below(20)));
    ASSERT_EQ(bcds_to_number_str(field), bcds_to_number(field));
  }
}

TEST_F(Codecs, TheLenientWalkFormsEachProductInDoublePrecision) {
  Random random{20264};
  int different = 0;
  for (int round = 0; round < 2000; ++round) {
    const std::string digits = random.digits(21 + random.below(6));
    SCOPED_TRACE(digits);
    const Bytes field = field_of(digits);
    std::string expected = "0";
    for (std::size_t i = 0; i < field.size(); ++i) {
      double weight = 1;
      for (std::size_t k = 0; k < i; ++k) weight *= 100;
      char product[64];
      std::snprintf(product, sizeof product, "%.0f", (field[i] / 16 * 10 + field[i] % 16) * weight);
      expected = sum_on_paper(expected, product);
    }
    ASSERT_EQ(bcds_to_number_str(field), expected);
    different += expected != bcds_to_number(field) ? 1 : 0;
  }
  EXPECT_GT(different, 0) << "the two walks must differ for some long fields";
}

TEST_F(Codecs, TheLenientWalkEndsWhereTheNumberOverflows) {
  Bytes field(15, 0x00);
  field[0] = 0x12;
  field[14] = 0x99;
  EXPECT_EQ(bcds_to_number_str(field), "12");
  EXPECT_EQ(log(), (std::vector<std::string>{"bcds_to_number_str : Overflow"}));
}

TEST_F(Codecs, ANumberGoesIntoOneByteByItsFirstTwoDigits) {
  for (int number = 0; number < 256; ++number) {
    SCOPED_TRACE(number);
    char text[8];
    std::snprintf(text, sizeof text, "%02d", number);
    std::uint8_t out = 0xEE;
    number_to_bcd(out, static_cast<std::uint8_t>(number));
    EXPECT_EQ(out, (text[0] - '0') * 16 + (text[1] - '0'));
  }
  std::uint8_t out = 0;
  number_to_bcd(out, 123);
  EXPECT_EQ(out, 0x12) << "the last of three digits is lost";
}

// List entries

TEST_F(Codecs, ANumberIsTakenFromInFrontOfTheSeparator) {
  struct Row {
    std::string_view text;
    std::string_view separator;
    int number;
  };
  const Row rows[] = {
      {"12 - Twelve", " ", 12}, {"7-Seven", "-", 7},  {"3 x", "X", 3},       {"3 X", "x", 3},
      {"  9 nine", "n", 9},     {"12", " ", 0},       {"", " ", 0},          {"abc def", " ", 0},
      {"1a2-b", "-", 1},        {"255-", "-", 255},   {"000255-", "-", 255}, {"4to5to6", "to", 4},
      {"1.9-x", "-", 1},        {" 5 6 7 -", "-", 5}, {"1234", "3", 123},    {"12", "1", 1},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(ottieni_numero(row.text, row.separator), row.number) << row.text;
  }
  EXPECT_TRUE(log().empty());
}

TEST_F(Codecs, ANumberAbove255InAListEntryGives0AndALine) {
  for (const char* text : {"256-x", "99999999999999999999999999999999-x", "-1.x"}) {
    SCOPED_TRACE(text);
    remove("Log/memo_log.txt");
    EXPECT_EQ(ottieni_numero(text, text[0] == '-' ? "." : "-"), 0);
    EXPECT_EQ(log(), (std::vector<std::string>{"ottieni_numero : Overflow"}));
  }
}

TEST_F(Codecs, WhatStandsBehindTheFirstBlankIsReturned) {
  EXPECT_EQ(testo_dopo_spazio("12 - Twelve"), "- Twelve");
  EXPECT_EQ(testo_dopo_spazio("a  b"), " b");
  EXPECT_EQ(testo_dopo_spazio("a "), "");
  EXPECT_EQ(testo_dopo_spazio(""), "");
}

TEST_F(Codecs, WithoutABlankTheWholeTextIsReturned) {
  EXPECT_EQ(testo_dopo_spazio("Twelve"), "Twelve");
  EXPECT_EQ(testo_dopo_spazio("a\tb"), "a\tb") << "only a blank counts";
}

// Bits

TEST_F(Codecs, EveryBitOfEveryByteIsSetClearedAndTestedAlone) {
  for (int byte = 0; byte < 256; ++byte) {
    for (std::uint8_t bit = 0; bit < 8; ++bit) {
      int weight = 1;
      for (int i = 0; i < bit; ++i) weight *= 2;
      const bool was_set = byte / weight % 2 == 1;
      EXPECT_EQ(byte_bit_tst(static_cast<std::uint8_t>(byte), bit), was_set);
      auto on = static_cast<std::uint8_t>(byte);
      byte_bit_change(on, bit, true);
      EXPECT_EQ(on, was_set ? byte : byte + weight);
      auto off = static_cast<std::uint8_t>(byte);
      byte_bit_change(off, bit, false);
      EXPECT_EQ(off, was_set ? byte - weight : byte);
    }
  }
  EXPECT_TRUE(log().empty());
}

TEST_F(Codecs, ABitNumberAbove7ChangesNothingAndIsLogged) {
  std::uint8_t byte = 0x5A;
  byte_bit_change(byte, 8, true);
  EXPECT_EQ(byte, 0x5A);
  EXPECT_FALSE(byte_bit_tst(0xFF, 8));
  EXPECT_EQ(log(), (std::vector<std::string>{"byte_bit_change : Overflow", "byte_bit_tst : Overflow"}));
}

// Keys

TEST_F(Codecs, OnlyDigitsAndBackspacePassTheKeyFilter) {
  for (int code = -1; code <= 1000; ++code) {
    int key = code;
    const int passed = code == 8 || (code >= 48 && code <= 57) ? code : 0;
    EXPECT_EQ(solo_numeri(key), passed) << code;
    EXPECT_EQ(key, passed) << code;
  }
}

}  // namespace
}  // namespace ecr::test

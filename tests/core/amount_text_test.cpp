#include "core/amount_text.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <locale>
#include <string>
#include <vector>

#include "core/global.h"
#include "support/installation.h"
#include "support/random.h"

namespace ecr::test {
namespace {

using Bytes = std::vector<std::uint8_t>;

class AmountText : public InstallationTest {
 protected:
  static Bytes stored(std::string_view text, std::size_t width) {
    Bytes field(width, 0xEE);
    Stock_To_Bcds(text, field);
    return field;
  }
};

std::int64_t power_of_ten(std::size_t exponent) {
  std::int64_t power = 1;
  for (std::size_t i = 0; i < exponent; ++i) power *= 10;
  return power;
}

/// A stored number, digit by digit, lowest pair first.
Bytes field_of(std::int64_t number, std::size_t width) {
  Bytes field;
  for (std::size_t i = 0; i < width; ++i, number /= 100) {
    field.push_back(static_cast<std::uint8_t>(number / 10 % 10 * 16 + number % 10));
  }
  return field;
}

/// A number of ten-thousandths in its shortest form, by whole-number arithmetic.
std::string quantity_text(std::int64_t ten_thousandths) {
  const std::int64_t magnitude = ten_thousandths < 0 ? -ten_thousandths : ten_thousandths;
  std::string text = (ten_thousandths < 0 ? "-" : "") + std::to_string(magnitude / 10000);
  std::string decimals = std::to_string(10000 + magnitude % 10000).substr(1);
  decimals.erase(decimals.find_last_not_of('0') + 1);
  return decimals.empty() ? text : text + "." + decimals;
}

std::string amount_text(std::int64_t amount, std::size_t decimals) {
  const std::int64_t magnitude = amount < 0 ? -amount : amount;
  const std::int64_t unit = power_of_ten(decimals);
  return (amount < 0 ? "-" : "") + std::to_string(magnitude / unit) + "." +
         std::to_string(unit + magnitude % unit).substr(1);
}

// Amounts

TEST_F(AmountText, AnAmountShowsItsDecimals) {
  EXPECT_EQ(Amount_Text("1234", 2), "12.34");
  EXPECT_EQ(Amount_Text("5", 3), "0.005");
  EXPECT_EQ(Amount_Text("0", 2), "0.00");
  EXPECT_EQ(Amount_Text("100", 1), "10.0");
  EXPECT_EQ(Amount_Text("-5", 2), "-0.05");
  EXPECT_EQ(Amount_Text("000150", 2), "1.50");
  EXPECT_EQ(Amount_Text("9999999999999999999999999999", 3), "9999999999999999999999999.999");
  EXPECT_TRUE(log().empty());
}

TEST_F(AmountText, WithoutDecimalsAnAmountIsShownAsItStands) {
  EXPECT_EQ(Amount_Text("1234", 0), "1234");
  EXPECT_EQ(Amount_Text("0012", 0), "0012");
  EXPECT_EQ(Amount_Text("no number", 0), "no number");
  EXPECT_EQ(Amount_Text("", 0), "");
  EXPECT_TRUE(log().empty());
}

TEST_F(AmountText, ATextThatIsNoNumberGivesNoAmountAndALine) {
  EXPECT_EQ(Amount_Text("abc", 2), "");
  EXPECT_EQ(Amount_Text("", 2), "");
  EXPECT_EQ(log(), (std::vector<std::string>{"Amount_Text: Type mismatch", "Amount_Text: Type mismatch"}));
}

TEST_F(AmountText, MoreDecimalsThan28GiveNoAmountAndALine) {
  EXPECT_EQ(Amount_Text("99999999", 28), "0.0000000000000000000099999999");
  EXPECT_TRUE(log().empty());
  EXPECT_EQ(Amount_Text("99999999", 29), "") << "a price of 0 would be a wrong one";
  EXPECT_EQ(Amount_Text("0", 255), "");
  Global::DecimalPoint = 255;
  EXPECT_EQ(Bcds_To_Stock(field_of(1234, 8)), "");
  EXPECT_EQ(log(),
            (std::vector<std::string>{"Amount_Text: Overflow", "Amount_Text: Overflow", "Amount_Text: Overflow"}));
}

TEST_F(AmountText, RandomAmountsAgreeWithWholeNumberArithmetic) {
  Random random{51001};
  for (int round = 0; round < 5000; ++round) {
    const std::int64_t limit = power_of_ten(1 + random.below(18));
    const std::int64_t amount = random.between(-limit, limit);
    const auto decimals = static_cast<std::size_t>(1 + random.below(3));
    SCOPED_TRACE(std::to_string(amount) + " with " + std::to_string(decimals));
    const std::string expected = amount_text(amount, decimals);
    ASSERT_EQ(Amount_Text(std::to_string(amount), static_cast<int>(decimals)), expected);
  }
}

class CommaLocale : public std::numpunct<char> {
 protected:
  [[nodiscard]] char do_decimal_point() const override { return ','; }
};

TEST_F(AmountText, TheDecimalSignIsAPointInEveryLocale) {
  const std::locale before = std::locale::global(std::locale{std::locale::classic(), new CommaLocale});
  EXPECT_EQ(Amount_Text("1234", 2), "12.34");
  EXPECT_EQ(Bcds_To_Stock(field_of(15000, 6)), "1.5");
  EXPECT_EQ(stored("1.5", 3), field_of(15000, 3));
  std::locale::global(before);
}

// Fields into texts

TEST_F(AmountText, AQuantityIsShownInItsShortestForm) {
  EXPECT_EQ(Bcds_To_Stock(Bytes{0x20, 0x02}), "0.022");
  EXPECT_EQ(Bcds_To_Stock(field_of(10000, 6)), "1");
  EXPECT_EQ(Bcds_To_Stock(field_of(15000, 6)), "1.5");
  EXPECT_EQ(Bcds_To_Stock(field_of(1, 6)), "0.0001");
  EXPECT_EQ(Bcds_To_Stock(field_of(0, 6)), "0");
  EXPECT_EQ(Bcds_To_Stock(field_of(99999999999, 6)), "9999999.9999");
}

TEST_F(AmountText, AnyTopDigitFrom1To9CountsAsTheSign) {
  for (int sign = 1; sign <= 9; ++sign) {
    EXPECT_EQ(Bcds_To_Stock(field_of(sign * 100000 + 15000, 3)), "-1.5") << sign;
    EXPECT_EQ(Bcds_To_Stock(field_of(sign * 100000 + 1, 3)), "-0.0001") << sign;
  }
  EXPECT_EQ(Bcds_To_Stock(field_of(200000, 3)), "-0") << "a sign digit other than 1 and nothing behind it";
}

TEST_F(AmountText, TheNumberThatIsTheSignWeightItselfIsNotNegative) {
  EXPECT_EQ(Bcds_To_Stock(field_of(100000, 3)), "10");
  EXPECT_EQ(Bcds_To_Stock(field_of(100001, 3)), "-0.0001");
  EXPECT_EQ(Bcds_To_Stock(field_of(100000000000, 6)), "10000000");
  EXPECT_EQ(Bcds_To_Stock(Bytes{0x10}), "0.001");
  EXPECT_EQ(Bcds_To_Stock(Bytes{0x11}), "-0.0001");
}

TEST_F(AmountText, AFieldOf8BytesIsAnAmountWithTheDecimalsInForce) {
  const std::vector<std::string> texts = {"1234", "123.4", "12.34", "1.234"};
  for (std::uint8_t decimals = 0; decimals < texts.size(); ++decimals) {
    Global::DecimalPoint = decimals;
    EXPECT_EQ(Bcds_To_Stock(field_of(1234, 8)), texts[decimals]);
  }
}

TEST_F(AmountText, ANegativeAmountLosesItsSignDigit) {
  Global::DecimalPoint = 2;
  EXPECT_EQ(Bcds_To_Stock(field_of(1000000000001234, 8)), "-12.34");
  EXPECT_EQ(Bcds_To_Stock(field_of(9000000000001234, 8)), "-12.34");
  EXPECT_EQ(Bcds_To_Stock(field_of(1000000000000000, 8)), "10000000000000.00") << "the sign weight itself";
}

TEST_F(AmountText, WithoutDecimalsAnAmountFieldIsTheNumberAsItStands) {
  Global::DecimalPoint = 0;
  EXPECT_EQ(Bcds_To_Stock(field_of(1234, 8)), "1234");
  EXPECT_EQ(Bcds_To_Stock(field_of(999999999999999, 8)), "999999999999999");
  EXPECT_EQ(Bcds_To_Stock(field_of(1000000000001234, 8)), "-000000000001234")
      << "what stands behind the sign digit keeps its zeros";
}

TEST_F(AmountText, TheDecimalsInForceDoNotTouchQuantities) {
  Global::DecimalPoint = 3;
  EXPECT_EQ(Bcds_To_Stock(field_of(15000, 6)), "1.5");
}

TEST_F(AmountText, AFieldThatCannotBeReadGivesNoTextAndOneLine) {
  EXPECT_EQ(Bcds_To_Stock(Bytes{0xAA, 0x00}), "");
  EXPECT_EQ(log(), std::vector<std::string>{"bcds_to_number Type mismatch"});
  Global::DecimalPoint = 2;
  EXPECT_EQ(Bcds_To_Stock(Bytes{0x0F, 0, 0, 0, 0, 0, 0, 0}), "") << "an amount";
  EXPECT_EQ(Bcds_To_Stock(Bytes{}), "") << "there is nothing to be read";
  EXPECT_EQ(log().size(), 2U);
}

TEST_F(AmountText, AFieldWithAnInvalidHighByteGivesTheNumberBelowIt) {
  EXPECT_EQ(Bcds_To_Stock(Bytes{0x00, 0x50, 0xA1}), "0.5");
}

// Texts into fields

TEST_F(AmountText, AQuantityIsStoredInTenThousandths) {
  EXPECT_EQ(stored("1.5", 3), field_of(15000, 3));
  EXPECT_EQ(stored("0", 3), field_of(0, 3));
  EXPECT_EQ(stored("12", 4), field_of(120000, 4));
  EXPECT_EQ(stored("0.00005", 3), field_of(1, 3)) << "what is below a ten-thousandth is rounded";
  EXPECT_EQ(stored("0.00004", 3), field_of(0, 3));
}

TEST_F(AmountText, ANegativeQuantityCarriesTheSignWeight) {
  EXPECT_EQ(stored("-1.5", 3), field_of(100000 + 15000, 3));
  EXPECT_EQ(stored("-0.0001", 6), field_of(100000000001, 6));
}

TEST_F(AmountText, MinusZeroIsNotNegative) {
  EXPECT_EQ(stored("-0", 3), field_of(0, 3));
}

TEST_F(AmountText, OnlyTheFirstCharacterOfANegativeTextIsDropped) {
  // With a blank in front of the sign, the sign stays and the magnitude is taken off the weight.
  EXPECT_EQ(stored(" -1.5", 3), field_of(100000 - 15000, 3));
}

TEST_F(AmountText, AnEmptyTextStoresZero) {
  EXPECT_EQ(stored("", 3), field_of(0, 3));
  EXPECT_TRUE(log().empty());
}

TEST_F(AmountText, ATextThatIsNoQuantityLeavesTheFieldAndALine) {
  EXPECT_EQ(stored("1,5", 3), Bytes(3, 0xEE));
  EXPECT_EQ(stored("abc", 3), Bytes(3, 0xEE));
  EXPECT_EQ(log(), (std::vector<std::string>{"Stock_To_Bcds: Type mismatch", "Stock_To_Bcds: Type mismatch"}));
}

TEST_F(AmountText, AQuantityTooLargeForItsFieldKeepsItsLowDigitsAndIsLogged) {
  EXPECT_EQ(stored("123.4567", 3), field_of(234567, 3));
  EXPECT_EQ(log(), (std::vector<std::string>{"number_to_bcds : Index out of range"}));
}

TEST_F(AmountText, RandomQuantitiesOfEveryWidthComeBack) {
  Random random{51002};
  for (const std::size_t width : {1U, 2U, 3U, 4U, 5U, 6U, 7U, 9U}) {
    const std::int64_t weight = power_of_ten(2 * width - 1);
    for (int round = 0; round < 500; ++round) {
      const std::int64_t quantity = random.between(1 - weight, weight - 1);
      const std::string text = quantity_text(quantity);
      SCOPED_TRACE(text + " in " + std::to_string(width) + " bytes");
      const Bytes field = stored(text, width);
      ASSERT_EQ(field, field_of(quantity < 0 ? weight - quantity : quantity, width));
      ASSERT_EQ(Bcds_To_Stock(field), text);
    }
  }
  EXPECT_TRUE(log().empty());
}

TEST_F(AmountText, RandomAmountFieldsAgreeWithWholeNumberArithmetic) {
  Random random{51003};
  const std::int64_t weight = power_of_ten(15);
  for (int round = 0; round < 2000; ++round) {
    const auto decimals = static_cast<std::size_t>(1 + random.below(3));
    Global::DecimalPoint = static_cast<std::uint8_t>(decimals);
    const std::int64_t amount = random.between(0, weight - 1);
    const std::int64_t sign = random.between(1, 9);
    ASSERT_EQ(Bcds_To_Stock(field_of(amount, 8)), amount_text(amount, decimals));
    if (amount > 0) {
      ASSERT_EQ(Bcds_To_Stock(field_of(sign * weight + amount, 8)), amount_text(-amount, decimals));
    }
  }
}

TEST_F(AmountText, AFieldCanBeAppendedToAText) {
  Random random{8};
  for (int i = 0; i < 2000; ++i) {
    Global::DecimalPoint = static_cast<std::uint8_t>(random.below(5));
    Bytes field(1 + random.below(10));
    for (std::uint8_t& byte : field) {
      // Mostly digits and zeros, now and then a nibble that is none.
      byte = random.below(40) == 0 ? random.byte()
             : random.coin()       ? std::uint8_t{0}
                                   : field_of(random.between(0, 99), 1)[0];
    }
    std::string text = "x;";
    append_stock(text, field);
    EXPECT_EQ(text, "x;" + Bcds_To_Stock(field));
  }
}

TEST_F(AmountText, WideAndOrdinaryFieldsAgree) {
  // A field of nine bytes goes digit by digit; the same quantity in seven does not. Their signs stand elsewhere.
  Random random{9};
  for (int i = 0; i < 2000; ++i) {
    const std::string digits = random.digits(13);
    Bytes narrow = field_of(std::stoll(digits), 7);
    Bytes wide = field_of(std::stoll(digits), 9);
    EXPECT_EQ(Bcds_To_Stock(narrow), Bcds_To_Stock(wide)) << digits;
    narrow[6] |= 0x20;
    wide[8] |= 0x20;
    EXPECT_EQ(Bcds_To_Stock(narrow), Bcds_To_Stock(wide)) << digits;
  }
}

}  // namespace
}  // namespace ecr::test

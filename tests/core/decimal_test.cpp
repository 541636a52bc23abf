#include "core/decimal.h"

#include <algorithm>
#include <clocale>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <locale>
#include <string>
#include <utility>

#include "core/fault.h"
#include "support/random.h"

namespace ecr::test::decimal_cases {
namespace {

/// A number as digits on paper: sign, whole digits and decimals, without needless zeros.
struct OnPaper {
  bool negative = false;
  std::string whole = "0";
  std::string decimals;

  [[nodiscard]] std::string text() const {
    const bool zero = whole == "0" && decimals.empty();
    return std::string{negative && !zero ? "-" : ""} + whole + (decimals.empty() ? "" : "." + decimals);
  }
};

OnPaper on_paper(bool negative, std::string whole, std::string decimals) {
  whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
  decimals.erase(decimals.find_last_not_of('0') + 1);
  return {negative, whole.empty() ? "0" : whole, decimals};
}

/// Adds one to the last place of a number written in digits.
std::string one_more(std::string digits) {
  for (std::size_t i = digits.size(); i-- > 0;) {
    if (digits[i] != '9') {
      ++digits[i];
      return digits;
    }
    digits[i] = '0';
  }
  return "1" + digits;
}

/// Rounds to a number of decimals, half away from zero, on the digits themselves.
std::string rounded_on_paper(const OnPaper& number, std::size_t decimals) {
  std::string kept = number.decimals;
  kept.resize(std::max(kept.size(), decimals), '0');
  const bool up = kept.size() > decimals && kept[decimals] >= '5';
  kept.resize(decimals);
  std::string digits = number.whole + kept;
  if (up) digits = one_more(digits);
  const std::string whole = digits.substr(0, digits.size() - decimals);
  const std::string fraction = digits.substr(digits.size() - decimals);
  const bool zero = digits.find_first_not_of('0') == std::string::npos;
  return std::string{number.negative && !zero ? "-" : ""} + whole + (decimals == 0 ? "" : "." + fraction);
}

/// Rounds to the 28 digits and 28 decimals that can be kept, and takes needless zeros away.
std::string rounded_to_fit(const OnPaper& number) {
  // In front of the point a zero takes no digit, nor do zeros behind the point in front of the first digit.
  const std::size_t zeros = std::min(number.decimals.find_first_not_of('0'), number.decimals.size());
  const std::size_t room = number.whole == "0" ? 28 + zeros : 28 - number.whole.size();
  std::string text = rounded_on_paper(number, std::min<std::size_t>(room, 28));
  if (text.find('.') != std::string::npos) {
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
  }
  return text;
}

OnPaper random_number(Random& random) {
  const std::size_t length = 1 + random.below(28);
  const std::string digits = random.digits(length);
  const std::size_t whole = random.below(length + 1);
  return on_paper(random.coin(), digits.substr(0, whole), digits.substr(whole));
}

Decimal decimal(const OnPaper& number) {
  return Decimal::from_text(number.text());
}

FaultCode fault_of_parsing(std::string_view text) {
  try {
    static_cast<void>(Decimal::parse(text));
  } catch (const FaultError& error) {
    return error.fault().code;
  }
  return FaultCode::none;
}

TEST(DecimalNumber, ReadsWhatAPersonWrites) {
  struct Row {
    std::string_view text;
    std::string_view number;
  };
  const Row rows[] = {
      {"0", "0"},
      {"-0", "0"},
      {"007", "7"},
      {"+5", "5"},
      {"-5", "-5"},
      {" 12 ", "12"},
      {"   -3.50   ", "-3.5"},
      {".5", "0.5"},
      {"-.5", "-0.5"},
      {"5.", "5"},
      {"1.500", "1.5"},
      {"1.5E+3", "1500"},
      {"1.5e3", "1500"},
      {"15E-1", "1.5"},
      {"1E0", "1"},
      {"0e99999", "0"},
      {"9999999999999999999999999999", "9999999999999999999999999999"},
      {"1e27", "1000000000000000000000000000"},
      {"0.0000000000000000000000000001", "0.0000000000000000000000000001"},
      {"1e-28", "0.0000000000000000000000000001"},
      {"0.000000000000000000000000000000000000000000000000001e50", "0.1"},
  };
  for (const Row& row : rows) {
    const auto number = Decimal::parse(row.text);
    ASSERT_TRUE(number.has_value()) << row.text;
    EXPECT_EQ(number->text(), row.number) << row.text;
  }
}

TEST(DecimalNumber, TakesNothingElseForANumber) {
  for (const char* text : {"",
                           " ",
                           ".",
                           "+",
                           "-",
                           "--1",
                           "+-1",
                           "1 2",
                           "- 1",
                           "1,5",
                           "1.2.3",
                           "12a",
                           "a12",
                           "e5",
                           "1e",
                           "1e+",
                           "1ee2",
                           "1e1.5",
                           "\t1",
                           "1\n",
                           "1\r",
                           "0x10",
                           "\xA0"
                           "1"}) {
    EXPECT_FALSE(Decimal::parse(text).has_value()) << text;
    EXPECT_EQ(fault_of_parsing(text), FaultCode::none) << text;
    try {
      static_cast<void>(Decimal::from_text(text));
      ADD_FAILURE() << "no fault for " << text;
    } catch (const FaultError& error) {
      EXPECT_EQ(error.fault().code, FaultCode::type_mismatch) << text;
    }
  }
}

TEST(DecimalNumber, OverflowsBeyond28DigitsInFrontOfThePoint) {
  for (const char* text : {"10000000000000000000000000000", "-10000000000000000000000000000", "1e28", "1e99999999999",
                           "0.1e29", "9999999999999999999999999999.5"}) {
    EXPECT_EQ(fault_of_parsing(text), FaultCode::overflow) << text;
  }
}

TEST(DecimalNumber, RoundsDecimalsThatDoNotFitOnceAndHalfAwayFromZero) {
  struct Row {
    std::string_view text;
    std::string_view number;
  };
  const Row rows[] = {
      {"4.45e-29", "0"},
      {"4.45e-28", "0.0000000000000000000000000004"},
      {"4.5e-28", "0.0000000000000000000000000005"},
      {"-4.5e-28", "-0.0000000000000000000000000005"},
      {"0.44445e-27", "0.0000000000000000000000000004"},
      {"5e-29", "0.0000000000000000000000000001"},
      {"4.9e-29", "0"},
      {"5e-30", "0"},
      {"1e-400", "0"},
      {"9999999999999999999999999999.4", "9999999999999999999999999999"},
      {"123456789012345678901234567.44444444444", "123456789012345678901234567.4"},
      {"123456789012345678901234567.45", "123456789012345678901234567.5"},
      {"1.00000000000000000000000000004", "1"},
  };
  for (const Row& row : rows) EXPECT_EQ(Decimal::from_text(row.text).text(), row.number) << row.text;
}

TEST(DecimalNumber, HasNoNeedlessZerosAfterACarryThroughAllItsDigits) {
  EXPECT_EQ(Decimal::from_text("0.99999999999999999999999999995").text(), "1");
  EXPECT_EQ(Decimal::from_text("9.99999999999999999999999999995").text(), "10");
  EXPECT_EQ(Decimal::from_text("-199.99999999999999999999999999").text(), "-200");
}

TEST(DecimalNumber, ReadsLenientlyUpToTheFirstStranger) {
  struct Row {
    std::string_view text;
    std::string_view number;
  };
  const Row rows[] = {
      {"12abc", "12"},
      {"  12", "12"},
      {"-7x", "-7"},
      {"+7", "7"},
      {"1A", "1"},
      {"A1", "0"},
      {"", "0"},
      {"   ", "0"},
      {"-", "0"},
      {"1.9", "1"},
      {"1 2", "1"},
      {"00012", "12"},
      {"\t5", "0"},
      {"- 5", "0"},
      {"9999999999999999999999999999", "9999999999999999999999999999"},
      {"00000000000000000000000000000000001", "1"},
      {"10000000000000000000000000000", "9999999999999999999999999999"},
      {"-99999999999999999999999999999999", "-9999999999999999999999999999"},
  };
  for (const Row& row : rows) EXPECT_EQ(Decimal::leading(row.text).text(), row.number) << row.text;
}

TEST(DecimalNumber, ALenientSmallNumberStaysAtTheEndOfItsRange) {
  EXPECT_EQ(leading_number("12abc"), 12);
  EXPECT_EQ(leading_number("-3"), -3);
  EXPECT_EQ(leading_number("x"), 0);
  EXPECT_EQ(leading_number("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(leading_number("9223372036854775808"), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(leading_number("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(leading_number("-99999999999999999999999999999999999"), std::numeric_limits<std::int64_t>::min());
}

TEST(DecimalNumber, ShowsAFixedNumberOfDecimals) {
  struct Row {
    std::string_view number;
    int decimals;
    int digits;
    std::string_view text;
  };
  const Row rows[] = {
      {"12.34", 2, 1, "12.34"},  {"12.34", 3, 1, "12.340"}, {"12.34", 1, 1, "12.3"}, {"12.35", 1, 1, "12.4"},
      {"-12.35", 1, 1, "-12.4"}, {"0.005", 2, 1, "0.01"},   {"0.004", 2, 1, "0.00"}, {"-0.004", 2, 1, "0.00"},
      {"0", 2, 1, "0.00"},       {"0", 0, 1, "0"},          {"0.5", 0, 1, "1"},      {"-0.5", 0, 1, "-1"},
      {"0.49", 0, 1, "0"},       {"7", 0, 4, "0007"},       {"-7", 0, 4, "-0007"},   {"12345", 0, 4, "12345"},
      {"0", 0, 0, ""},           {"0.25", 2, 0, ".25"},     {"9.99", 1, 1, "10.0"},  {"7", 1, 3, "007.0"},
      {"5", -3, 1, "5"},         {"5", 0, -3, "5"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Decimal::from_text(row.number).text(row.decimals, row.digits), row.text)
        << row.number << " with " << row.decimals << " decimals and " << row.digits << " digits";
  }
  EXPECT_EQ(Decimal{1}.text(40), "1." + std::string(28, '0')) << "28 decimals are the most";
  EXPECT_EQ(Decimal{1}.text(0, 40), std::string(27, '0') + "1") << "28 digits are the most";
}

TEST(DecimalNumber, RandomNumbersComeBackAsTheyWereWritten) {
  Random random{31001};
  for (int round = 0; round < 5000; ++round) {
    const OnPaper number = random_number(random);
    ASSERT_EQ(decimal(number).text(), number.text());
  }
}

TEST(DecimalNumber, RandomNumbersAreRoundedAsOnPaper) {
  Random random{31002};
  for (int round = 0; round < 5000; ++round) {
    const OnPaper number = random_number(random);
    const auto decimals = static_cast<std::size_t>(random.below(29));
    SCOPED_TRACE(number.text() + " to " + std::to_string(decimals));
    ASSERT_EQ(decimal(number).text(static_cast<int>(decimals)), rounded_on_paper(number, decimals));
    if (number.whole.size() < 28) {
      ASSERT_EQ(decimal(number).rounded().text(), rounded_on_paper(number, 0));
    }
  }
}

TEST(DecimalNumber, RandomNumbersOfTooManyDecimalsAreRoundedAsOnPaper) {
  Random random{31003};
  for (int round = 0; round < 5000; ++round) {
    // Up to 27 digits in front of the point, so that a carry cannot overflow; 28 digits and 28 decimals can be kept.
    const std::string whole_digits = random.digits(random.below(28));
    const OnPaper number = on_paper(random.coin(), whole_digits, random.digits(random.below(60)));
    SCOPED_TRACE(number.text());
    ASSERT_EQ(Decimal::from_text(number.text()).text(), rounded_to_fit(number));
  }
}

TEST(DecimalNumber, ScalingMovesThePoint) {
  Random random{31004};
  for (int round = 0; round < 5000; ++round) {
    const std::string digits = random.digits(1 + random.below(14));
    const auto down = static_cast<std::size_t>(random.below(15));
    const bool negative = random.coin();
    SCOPED_TRACE((negative ? "-" : "") + digits + " by " + std::to_string(down));
    const Decimal number = Decimal::from_text((negative ? "-" : "") + digits);
    ASSERT_EQ(number.scaled(static_cast<int>(down)).text(),
              on_paper(negative, digits + std::string(down, '0'), "").text());
    const std::string filled = std::string(down, '0') + digits;
    ASSERT_EQ(number.scaled(-static_cast<int>(down)).text(),
              on_paper(negative, filled.substr(0, filled.size() - down), filled.substr(filled.size() - down)).text());
    ASSERT_EQ(number.scaled(-static_cast<int>(down)).scaled(static_cast<int>(down)), number);
  }
}

TEST(DecimalNumber, ScalingOverflowsAndRoundsAtItsEnds) {
  EXPECT_EQ(Decimal{1}.scaled(27).text(), "1" + std::string(27, '0'));
  EXPECT_THROW(static_cast<void>(Decimal{1}.scaled(28)), FaultError);
  EXPECT_EQ(Decimal{0}.scaled(28), Decimal{0});
  EXPECT_EQ(Decimal{445}.scaled(-20).scaled(-10).text(), "0.0000000000000000000000000004");
  EXPECT_EQ(Decimal{9}.scaled(-28).scaled(-1).text(), "0.0000000000000000000000000001");
  EXPECT_EQ(Decimal{4}.scaled(-28).scaled(-1), Decimal{0});
  EXPECT_EQ(Decimal{std::numeric_limits<std::int64_t>::min()}.text(), "-9223372036854775808");
}

TEST(DecimalNumber, ThereIsNoPowerOfTenBeyondThe28th) {
  for (const int exponent : {29, 30, 255, 1000, std::numeric_limits<int>::max()}) {
    for (const std::int64_t number : {0, 1, -1, 99999999}) {
      EXPECT_THROW(static_cast<void>(Decimal{number}.scaled(exponent)), FaultError) << number << ", " << exponent;
      EXPECT_THROW(static_cast<void>(Decimal{number}.scaled(-exponent)), FaultError) << number << ", " << exponent;
    }
  }
  EXPECT_THROW(static_cast<void>(Decimal{1}.scaled(std::numeric_limits<int>::min())), FaultError);
}

TEST(DecimalNumber, WhatIsScaledDownByUpTo28ComesBackWhole) {
  for (int exponent = 0; exponent <= 28; ++exponent) {
    EXPECT_EQ(Decimal{99999999}.scaled(-exponent).scaled(exponent), Decimal{99999999}) << exponent;
  }
}

TEST(DecimalNumber, RandomSumsAgreeWithWholeNumberArithmetic) {
  Random random{31005};
  for (int round = 0; round < 5000; ++round) {
    const std::int64_t a = random.between(-999'999'999'999'999'999, 999'999'999'999'999'999);
    const std::int64_t b = random.between(-999'999'999'999'999'999, 999'999'999'999'999'999);
    const auto scale = static_cast<int>(random.below(10));
    ASSERT_EQ(Decimal{a} + Decimal{b}, Decimal{a + b});
    ASSERT_EQ(Decimal{a}.scaled(-scale) + Decimal{b}.scaled(-scale), Decimal{a + b}.scaled(-scale));
  }
}

TEST(DecimalNumber, SumsOfDifferentScalesAreExact) {
  EXPECT_EQ((Decimal::from_text("1.5") + Decimal::from_text("0.0625")).text(), "1.5625");
  EXPECT_EQ((Decimal::from_text("-1.5") + Decimal::from_text("1.5")).text(), "0");
  EXPECT_EQ((Decimal::from_text("100000") + Decimal::from_text("15000")).text(), "115000");
  EXPECT_EQ((Decimal::from_text("9999999999999999999999999998") + Decimal{1}).text(), std::string(28, '9'));
  EXPECT_THROW(static_cast<void>(Decimal::from_text("9999999999999999999999999999") + Decimal{1}), FaultError);
}

/// Adds two numbers of 60 digits each, of which the last 30 are decimals.
OnPaper sum_on_paper(const OnPaper& a, const OnPaper& b) {
  const auto aligned = [](OnPaper number) {
    number.whole.insert(0, 30 - number.whole.size(), '0');
    number.decimals.resize(30, '0');
    return number.whole + number.decimals;
  };
  std::string large = aligned(a);
  std::string small = aligned(b);
  const bool swapped = large < small;
  if (swapped) std::swap(large, small);
  int carry = 0;
  for (std::size_t i = large.size(); i-- > 0;) {
    const int other = small[i] - '0';
    int digit = large[i] - '0' + carry + (a.negative == b.negative ? other : -other);
    carry = digit > 9 ? 1 : digit < 0 ? -1 : 0;
    digit -= 10 * carry;
    large[i] = static_cast<char>('0' + digit);
  }
  return on_paper(swapped ? b.negative : a.negative, large.substr(0, 30), large.substr(30));
}

TEST(DecimalNumber, RandomSumsOfAnyScaleAreAsOnPaper) {
  Random random{31007};
  int rounded = 0;
  for (int round = 0; round < 5000; ++round) {
    const OnPaper a = random_number(random);
    const OnPaper b = random_number(random);
    const OnPaper sum = sum_on_paper(a, b);
    SCOPED_TRACE(a.text() + " + " + b.text() + " = " + sum.text());
    // Sums at the very end of the range may round beyond it.
    if (sum.whole.size() >= 28) continue;
    const std::string expected = rounded_to_fit(sum);
    rounded += expected != sum.text() ? 1 : 0;
    ASSERT_EQ((decimal(a) + decimal(b)).text(), expected);
    ASSERT_EQ((decimal(b) + decimal(a)).text(), expected);
  }
  EXPECT_GT(rounded, 100);
}

TEST(DecimalNumber, RandomNumbersAreOrderedAsOnPaper) {
  Random random{31006};
  const auto order_on_paper = [](const OnPaper& a, const OnPaper& b) {
    if (a.text() == b.text()) return std::strong_ordering::equal;
    const bool a_negative = a.text()[0] == '-';
    const bool b_negative = b.text()[0] == '-';
    if (a_negative != b_negative) return a_negative ? std::strong_ordering::less : std::strong_ordering::greater;
    const auto aligned = [](OnPaper n) {
      n.whole.insert(0, 30 - n.whole.size(), '0');
      n.decimals.resize(30, '0');
      return n.whole + n.decimals;
    };
    const bool smaller = aligned(a) < aligned(b);
    return smaller != a_negative ? std::strong_ordering::less : std::strong_ordering::greater;
  };
  for (int round = 0; round < 5000; ++round) {
    const OnPaper a = random_number(random);
    // Every other pair differs in the last digit at most.
    OnPaper b = random.coin() ? random_number(random) : a;
    if (b.text() == a.text() && !b.decimals.empty() && random.coin()) b.decimals.back() = '9';
    SCOPED_TRACE(a.text() + " and " + b.text());
    const auto expected = order_on_paper(a, b);
    ASSERT_TRUE((decimal(a) <=> decimal(b)) == expected);
    ASSERT_EQ(decimal(a) == decimal(b), expected == std::strong_ordering::equal);
    ASSERT_EQ(decimal(a) < decimal(b), expected == std::strong_ordering::less);
  }
}

TEST(DecimalNumber, KnowsItsSign) {
  EXPECT_TRUE(Decimal::from_text("-0.1").is_negative());
  EXPECT_FALSE(Decimal::from_text("-0").is_negative());
  EXPECT_TRUE(Decimal::from_text("-0.00").is_zero());
  EXPECT_FALSE(Decimal::from_text("0.0001").is_zero());
  EXPECT_TRUE(Decimal{}.is_zero());
}

/// A locale whose decimal sign is a comma and which groups digits.
class CommaLocale : public std::numpunct<char> {
 protected:
  [[nodiscard]] char do_decimal_point() const override { return ','; }
  [[nodiscard]] char do_thousands_sep() const override { return '.'; }
  [[nodiscard]] std::string do_grouping() const override { return "\3"; }
};

TEST(DecimalNumber, PrintsAPointWhateverTheLocaleSays) {
  const std::locale before = std::locale::global(std::locale{std::locale::classic(), new CommaLocale});
  EXPECT_EQ(Decimal::from_text("1234567.5").text(), "1234567.5");
  EXPECT_EQ(Decimal::from_text("1234567.5").text(2), "1234567.50");
  EXPECT_FALSE(Decimal::parse("1,5").has_value());
  std::locale::global(before);
}

}  // namespace
}  // namespace ecr::test::decimal_cases

#include "editors/program/number_texts.h"

#include <gtest/gtest.h>

namespace ecr::test {
namespace {

std::string value(const char* text) {
  return numeric_value(QString::fromLatin1(text)).text();
}
std::string doubled(const char* text) {
  return through_double(QString::fromLatin1(text)).toStdString();
}
std::string zeros(const char* text, int digits) {
  return with_zeros(QString::fromLatin1(text), digits).toStdString();
}

TEST(NumberTexts, ANumberIsReadAsFarAsItGoesDecimalsIncluded) {
  EXPECT_EQ(value("12.345"), "12.345");
  EXPECT_EQ(value("  7x8"), "7");
  EXPECT_EQ(value("0.29"), "0.29");
  EXPECT_EQ(value("1.2.3"), "1.2");
  EXPECT_EQ(value(".5"), "0.5");
  EXPECT_EQ(value("5."), "5");
  EXPECT_EQ(value("-4.5"), "-4.5");
  EXPECT_EQ(value("9999999999999999"), "9999999999999999");
  for (const char* nothing : {"", " ", "abc", ".", "-", "%"}) EXPECT_EQ(value(nothing), "0") << nothing;
}

TEST(NumberTexts, ZerosAreFilledInFrontOfNumbersOnly) {
  EXPECT_EQ(zeros("42", 4), "0042");
  EXPECT_EQ(zeros("0042", 4), "0042");
  EXPECT_EQ(zeros("12345", 4), "12345");
  EXPECT_EQ(zeros("9999999999999999", 16), "9999999999999999");
  EXPECT_EQ(zeros("abc", 4), "abc");
  EXPECT_EQ(zeros("", 4), "");
}

TEST(NumberTexts, DoublePrecisionKeepsFifteenDigits) {
  EXPECT_EQ(doubled("0000012"), "12");
  EXPECT_EQ(doubled("0000000"), "0");
  EXPECT_EQ(doubled(""), "0");
  EXPECT_EQ(doubled("100000"), "100000");
  EXPECT_EQ(doubled("999999999999999"), "999999999999999");
  EXPECT_EQ(doubled("1000000000000000"), "1E+15");
  EXPECT_EQ(doubled("1234567890123456"), "1.23456789012346E+15");
}

}  // namespace
}  // namespace ecr::test

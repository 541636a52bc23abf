#include "fields/coding.h"

#include <array>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace ecr::test {
namespace {

using namespace fields;
using Bytes = std::vector<std::uint8_t>;
using Fault = ReadNumber::Fault;

Place place(Stored stored, std::size_t width, std::uint8_t mask = 0xFF) {
  return {.stored = stored, .width = width, .mask = mask};
}

TEST(StoredNumber, OfBitsLiesAtTheirPlace) {
  Bytes byte = {0xA5};
  EXPECT_EQ(stored_number(place(Stored::binary, 1, 0xF0), byte), 10);
  EXPECT_EQ(stored_number(place(Stored::binary, 1, 0x02), byte), 0);
  store_number(place(Stored::binary, 1, 0xF0), byte, 3);
  EXPECT_EQ(byte, Bytes{0x35});
  store_number(place(Stored::binary, 1, 0x02), byte, 1);
  EXPECT_EQ(byte, Bytes{0x37});
}

TEST(StoredNumber, OfPackedDigitsHasTheLeastPairFirst) {
  Bytes bytes = {0x56, 0x34, 0x12, 0x00};
  EXPECT_EQ(stored_number(place(Stored::packed, 4), bytes), 123456);
  store_number(place(Stored::packed, 4), bytes, 98765432);
  EXPECT_EQ(bytes, (Bytes{0x32, 0x54, 0x76, 0x98}));
  EXPECT_EQ(stored_number(place(Stored::packed, 2), Bytes{0x1A, 0x00}), std::nullopt);
  EXPECT_EQ(stored_number(place(Stored::packed, 2), Bytes{0xA1, 0x00}), std::nullopt);
  EXPECT_EQ(stored_number(place(Stored::packed, 8), Bytes(8, 0x99)), 9'999'999'999'999'999);
}

TEST(StoredNumber, OfAQuantityHasItsSignInTheFirstDigit) {
  Bytes bytes(6, 0);
  const Place stock = place(Stored::quantity, 6);
  for (const std::int64_t number : {0LL, 12'500LL, -12'500LL, 99'999'999'999LL, -99'999'999'999LL, -1LL}) {
    store_number(stock, bytes, number);
    EXPECT_EQ(stored_number(stock, bytes), number);
  }
  store_number(stock, bytes, -12'500);
  EXPECT_EQ(bytes, (Bytes{0x00, 0x25, 0x01, 0x00, 0x00, 0x10}));
  bytes.back() = 0x70;
  EXPECT_EQ(stored_number(stock, bytes), -12'500) << "whichever the first digit is";
  EXPECT_EQ(stored_number(stock, Bytes{0, 0, 0, 0, 0, 0x10}), 100'000'000'000) << "not above the weight of the sign";
}

TEST(NumberText, HasItsDecimalsAndDigits) {
  EXPECT_EQ(number_text(1250, {.decimals = 2}), "12.50");
  EXPECT_EQ(number_text(5, {.decimals = 2}), "0.05");
  EXPECT_EQ(number_text(-5, {.decimals = 2, .decimal_sign = ','}), "-0,05");
  EXPECT_EQ(number_text(7, {.digits = 3}), "007");
  EXPECT_EQ(number_text(12500, {.decimals = 4, .shortest = true}), "1.25");
  EXPECT_EQ(number_text(10000, {.decimals = 4, .shortest = true}), "1");
  EXPECT_EQ(number_text(0, {.decimals = 4, .shortest = true}), "0");
}

TEST(ReadNumber, TakesWhatPeopleWrite) {
  const auto read = [](std::string_view text, int decimals, char sign = '.') {
    const ReadNumber result = read_number(text, {.decimals = decimals, .decimal_sign = sign});
    EXPECT_EQ(result.fault, Fault::none) << text;
    return result.number;
  };
  EXPECT_EQ(read("12.5", 2), 1250);
  EXPECT_EQ(read(" 12 ", 2), 1200);
  EXPECT_EQ(read(".5", 2), 50);
  EXPECT_EQ(read("5.", 2), 500);
  EXPECT_EQ(read("-3,25", 2, ','), -325);
  EXPECT_EQ(read("+7", 0), 7);
  EXPECT_EQ(read("12.5000", 2), 1250) << "zeros say nothing";
  EXPECT_EQ(read("0000000000000000000000004", 0), 4);
}

TEST(ReadNumber, RefusesTheRest) {
  const auto fault = [](std::string_view text, int decimals) {
    return read_number(text, {.decimals = decimals}).fault;
  };
  for (const char* text : {"", " ", ".", "-", "1e3", "1,5", "1.2.3", "1 2", "12x", "--1", "0x10"}) {
    EXPECT_EQ(fault(text, 2), Fault::no_number) << text;
  }
  EXPECT_EQ(fault("1.005", 2), Fault::too_many_decimals);
  EXPECT_EQ(fault("1.5", 0), Fault::too_many_decimals);
  EXPECT_EQ(fault("1234567890123456789", 0), Fault::too_long);
}

TEST(Hexadecimal, GoesThereAndBack) {
  const Bytes bytes = {0x00, 0x1A, 0xFF};
  EXPECT_EQ(hexadecimal(bytes), "<001aff>");
  Bytes read(3);
  EXPECT_TRUE(read_hexadecimal("<001AfF>", read));
  EXPECT_EQ(read, bytes);
  EXPECT_TRUE(read_hexadecimal("< 00 1a ff >", read));
  for (const char* text : {"", "<>", "<00>", "<001aff00>", "<001af>", "<001afg>", "001aff", "<001aff", "<0 0 1 a>"}) {
    EXPECT_FALSE(read_hexadecimal(text, read)) << text;
  }
}

TEST(EscapedText, BringsEveryRegisterCharacterBack) {
  for (int code = 0; code < 256; ++code) {
    const std::string text = {'A', static_cast<char>(code), 'B'};
    const RegisterText back = register_text_of(escaped_text(text), true);
    EXPECT_EQ(back.text, text) << code;
  }
  EXPECT_EQ(escaped_text("CAF\x8A  "), "CAF\xC1") << "the page has the letter elsewhere";
  EXPECT_EQ(escaped_text("A\x01\\"), "A\\x01\\\\");
}

TEST(RegisterText, RefusesWhatTheRegisterLacks) {
  EXPECT_EQ(register_text_of("5 \x80", false).text, "5 \xF8");
  EXPECT_EQ(register_text_of("A\xB1", false).fault, "\xB1");
  EXPECT_EQ(register_text_of("A\xC3\xB6", false).fault, "\xC3");
  EXPECT_EQ(register_text_of("A\tB", false).fault, "\t");
  EXPECT_EQ(register_text_of("A\\x41", false).text, "A\\x41");
  EXPECT_EQ(register_text_of("A\\x4", true).fault, "\\x");
  EXPECT_EQ(register_text_of("A\\", true).fault, "\\");
}

}  // namespace
}  // namespace ecr::test

#include <cstring>
#include <gtest/gtest.h>

#include "captions/text_files.h"
#include "core/files.h"
#include "core/global.h"
#include "image/prg_mode.h"
#include "support/installation.h"
#include "support/random.h"

namespace ecr::test {
namespace {

std::string_view header(int line) {
  return PrgMode.ReceiptHeader[static_cast<std::size_t>(line - 1)].view();
}
std::string_view footer(int line) {
  return PrgMode.ReceiptFooter[static_cast<std::size_t>(line - 1)].view();
}
const DeptRecord& department(int number) {
  return PrgMode.Dept[static_cast<std::size_t>(number - 1)];
}

class ImportTest : public InstallationTest {
 protected:
  // Every byte of the image can be told from a blank, a zero and a letter of the tests.
  ImportTest() { std::memset(&PrgMode, 0x5A, sizeof PrgMode); }

  /// The bytes of the image that differ from the state before the import.
  static std::vector<std::size_t> changed_bytes() {
    std::vector<std::size_t> places;
    const std::string_view bytes = bytes_of_image(PrgMode);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      if (bytes[i] != 0x5A) places.push_back(i);
    }
    return places;
  }
};

TEST_F(ImportTest, AHeaderLineIsAllThatStandsBehindItsTag) {
  import_captions("RHE:01:2:Corner Oven\r\nRHE:10:2: since 1900: still open\r\n");
  EXPECT_EQ(header(1), "Corner Oven             ");
  EXPECT_EQ(header(10), " since 1900: still open ");
  EXPECT_EQ(header(2), std::string(24, 'Z'));
}

TEST_F(ImportTest, AFooterLineHasTheOtherTag) {
  import_captions("RFO:01:3:Thank you\nRFO:10:3:Bye");
  EXPECT_EQ(footer(1), "Thank you               ");
  EXPECT_EQ(footer(10), "Bye                     ");
}

TEST_F(ImportTest, ATagAloneBlanksItsLine) {
  import_captions("RHE:05:2:");
  EXPECT_EQ(header(5), std::string(24, ' '));
  EXPECT_EQ(changed_bytes().size(), 24U);
}

TEST_F(ImportTest, ALineIsCutAt24Characters) {
  import_captions("RHE:03:2:123456789012345678901234567890\r\nRFO:03:3:" + std::string(100'000, 'x'));
  EXPECT_EQ(header(3), "123456789012345678901234");
  EXPECT_EQ(footer(3), std::string(24, 'x'));
  EXPECT_EQ(changed_bytes().size(), 48U);
}

TEST_F(ImportTest, TextBecomesTheRegistersCharacters) {
  import_captions("RHE:01:2:Caf\xE9 \xB7G\xFCt");
  EXPECT_EQ(header(1), "Caf\xF0 \xFFG\x94t" + std::string(15, ' '));
}

TEST_F(ImportTest, ATwoByteLetterIsOneOfTheRegister) {
  import_captions("RHE:01:2:\xC3\xB6l");
  EXPECT_EQ(header(1).substr(0, 3), "\x9Al ");
}

TEST_F(ImportTest, ATwoByteLetterThatTheRegisterLacksEndsTheProgram) {
  EXPECT_TRUE(ends_program([] { import_captions("RHE:01:2:caf\xC3\xA9"); }));
  EXPECT_TRUE(ends_program([] { import_captions("VAR:01:caf\xC3\xA9:1:1:1"); }));
  EXPECT_FALSE(ends_program([] { import_captions("\xC3\xA9: of another kind"); })) << "a line that is passed over";
}

TEST_F(ImportTest, LinesOfAnyOtherBeginningArePassedOver) {
  import_captions(
      "RHE:00:2:x\nRHE:11:2:x\nRHE:1:2:x\nRHE:01:3:x\nRFO:01:2:x\nRFO:11:3:x\nrhe:01:2:x\n RHE:01:2:x\nRHE:01:2\n"
      "RHE:0a:2:x\nvar:01:x:1:1:1\n VAR:01:x:1:1:1\nVAR\nVA\nR\n\n:\nanything at all\n");
  EXPECT_TRUE(changed_bytes().empty());
  EXPECT_TRUE(log().empty());
}

TEST_F(ImportTest, ADepartmentTakesItsFourFields) {
  import_captions("VAR:07:Bread:125:2:3\r\n");
  EXPECT_EQ(department(7).Name.view(), "Bread       ");
  EXPECT_EQ(department(7).Price, (Bcd<4>{{0x25, 0x01, 0, 0}}));
  EXPECT_EQ(department(7).Tax, 2);
  EXPECT_EQ(department(7).TakeOutTax, 3);
  EXPECT_EQ(changed_bytes().size(), 12U + 4U + 2U) << "and nothing else of the record";
}

TEST_F(ImportTest, AnImportOfDepartmentsLeavesTheCaptionsUntouched) {
  import_captions("VAR:01:A:1:1:1\nVAR:99:B:2:2:2\n");
  EXPECT_EQ(department(1).Name.view().front(), 'A');
  EXPECT_EQ(department(99).Name.view().front(), 'B');
  for (const std::size_t place : changed_bytes()) {
    EXPECT_GE(place, 329U);
    EXPECT_LT(place, 329U + 99 * 22);
  }
}

TEST_F(ImportTest, ADepartmentOfNumber00IsPassedOver) {
  import_captions("VAR:00:x:1:1:1\nVAR:ab:x:1:1:1\nVAR::x:1:1:1\nVAR:-1:x:1:1:1\nVAR:");
  EXPECT_TRUE(changed_bytes().empty());
}

TEST_F(ImportTest, ADepartmentAbove99IsPassedOver) {
  import_captions("VAR:100:x:1:1:1\nVAR:999:x:1:1:1\nVAR:9999999999:x:1:1:1\n");
  EXPECT_TRUE(changed_bytes().empty());
}

TEST_F(ImportTest, AbsentFieldsAreEmptyOrZero) {
  import_captions("VAR:05");
  EXPECT_EQ(department(5).Name.view(), std::string(12, ' '));
  EXPECT_EQ(department(5).Price, Bcd<4>{});
  EXPECT_EQ(department(5).Tax, 0);
  EXPECT_EQ(department(5).TakeOutTax, 0);
  import_captions("VAR:06:Milk:80");
  EXPECT_EQ(department(6).Name.view(), "Milk        ");
  EXPECT_EQ(department(6).Price, (Bcd<4>{{0x80, 0, 0, 0}}));
  EXPECT_EQ(department(6).Tax, 0);
  EXPECT_EQ(department(6).TakeOutTax, 0);
}

TEST_F(ImportTest, ANameIsCutAt12Characters) {
  import_captions("VAR:05:1234567890123456:1:1:1");
  EXPECT_EQ(department(5).Name.view(), "123456789012");
  EXPECT_EQ(department(5).Status1, 0x5A);
}

TEST_F(ImportTest, TheLastFieldIsTheRestOfTheLine) {
  import_captions("VAR:05:Milk:80:1:4:and:more");
  EXPECT_EQ(department(5).TakeOutTax, 4);
}

TEST_F(ImportTest, NumbersAreReadLeniently) {
  import_captions("VAR:05:Milk:80: 2 percent:4x");
  EXPECT_EQ(department(5).Tax, 2);
  EXPECT_EQ(department(5).TakeOutTax, 4);
  import_captions("VAR:05:Milk:80:none:");
  EXPECT_EQ(department(5).Tax, 0);
  EXPECT_EQ(department(5).TakeOutTax, 0);
}

TEST_F(ImportTest, ANumberThatAByteCannotHoldIsZero) {
  import_captions("VAR:05:Milk:80:255:256");
  EXPECT_EQ(department(5).Tax, 255);
  EXPECT_EQ(department(5).TakeOutTax, 0);
  import_captions("VAR:05:Milk:80:-1:99999999999999999999999999999999");
  EXPECT_EQ(department(5).Tax, 0);
  EXPECT_EQ(department(5).TakeOutTax, 0);
}

TEST_F(ImportTest, APriceIsInWholeSmallestUnits) {
  import_captions("VAR:05:Milk:99999999:1:1\nVAR:06:Milk:2.5:1:1\nVAR:07:Milk:abc:1:1\nVAR:08:Milk:123456789:1:1");
  EXPECT_EQ(department(5).Price, (Bcd<4>{{0x99, 0x99, 0x99, 0x99}}));
  EXPECT_EQ(department(6).Price, (Bcd<4>{{0x03, 0, 0, 0}})) << "decimals are rounded";
  EXPECT_EQ(department(7).Price, Bcd<4>{}) << "no number is none";
  EXPECT_EQ(department(8).Price, (Bcd<4>{{0x89, 0x67, 0x45, 0x23}})) << "the digits that fit stay";
  EXPECT_EQ(department(8).Tax, 1) << "and the fields behind are taken";
}

TEST_F(ImportTest, TheLaterOfTwoLinesCounts) {
  import_captions("RHE:01:2:first\nRHE:01:2:second\n");
  EXPECT_EQ(header(1), "second                  ");
}

TEST_F(ImportTest, AFileIsReadFromItsPath) {
  write("bakery.txt", "RHE:01:2:Oven\r\n");
  EXPECT_TRUE(Import_Caption(Global::PathApp + "bakery.txt"));
  EXPECT_EQ(header(1).substr(0, 5), "Oven ");
  EXPECT_TRUE(log().empty());
}

TEST_F(ImportTest, TheImagesFileIsNotWritten) {
  write("bakery.txt", "RHE:01:2:Oven\r\nVAR:01:Bread:1:1:1\r\n");
  EXPECT_TRUE(Import_Caption(Global::PathApp + "bakery.txt"));
  EXPECT_FALSE(exists("Dati/PRG_MODE.BIN"));
}

TEST_F(ImportTest, AFileThatIsNotThereIsLogged) {
  EXPECT_FALSE(Import_Caption(Global::PathApp + "none.txt"));
  EXPECT_EQ(log(), std::vector<std::string>{"Import_Caption: File not found"});
  EXPECT_TRUE(changed_bytes().empty());
}

TEST_F(ImportTest, AnEmptyFileChangesNothing) {
  write("empty.txt", "");
  EXPECT_TRUE(Import_Caption(Global::PathApp + "empty.txt"));
  EXPECT_TRUE(changed_bytes().empty());
}

TEST_F(ImportTest, RandomLinesTouchLinesAndDepartmentsAlone) {
  Random random{20};
  for (int round = 0; round < 300; ++round) {
    std::string bytes;
    for (int line = 0; line < 20; ++line) {
      static constexpr const char* tags[] = {"VAR:", "RHE:", "RFO:", ""};
      bytes +=
          tags[random.below(4)] + random.digits(random.below(3)) + random.text(random.below(30), ":0123456789 a.-");
      bytes += random.coin() ? "\r\n" : "\n";
    }
    import_captions(bytes);
  }
  for (const std::size_t place : changed_bytes()) {
    const bool in_departments = place >= 329 && place < 329 + 99 * 22;
    const bool in_lines = place >= 3257 && place < 3737;
    EXPECT_TRUE(in_departments || in_lines) << place;
  }
}

}  // namespace
}  // namespace ecr::test

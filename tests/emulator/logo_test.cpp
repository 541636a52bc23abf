// A logo on its way into the emulated register: converted, sent, and seen on its receipts.

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "core/files.h"
#include "emulator/emulator_test.h"
#include "emulator/logo_conversion.h"
#include "emulator/receipt.h"
#include "support/bitmap_file.h"

namespace ecr::test {
namespace {

class LogoTest : public EmulatorTest {
 protected:
  LogoTest() {
    std::string image(5656, ' ');
    image.replace(3257, 24, "The Shop                ");
    image.replace(3257 + 5 * 24, 24, "  4 Market Square       ");
    write("register/PRG_MODE.BIN", image);
  }

  const std::vector<std::string> heading = {"The Shop", "  4 Market Square"};
  const DotPicture half_black{384, 162, std::string(7776, '\x0F')};

  static std::string logo_file(char byte) {
    BitmapFile file;
    file.rows = std::string(7776, byte);
    return file.bytes();
  }
  static std::string graphic(char byte) { return std::string{"\x80\x01\xA2\x00", 4} + std::string(7776, byte); }
};

TEST_F(LogoTest, TheConversionWritesTheLogoBesideTheBitmap) {
  write("Dati/LOGO.BMP", logo_file('\x0F'));
  EXPECT_EQ(changing_nothing([this] { return send_logo("LOGO.BMP"); }), ends_with(0x01003232)) << "half of it is black";
  EXPECT_EQ(bytes("Dati/GRAPHIC.BIN"), graphic('\x0F'));
  EXPECT_EQ(bytes("Dati/LOGO.BMP"), logo_file('\x0F'));
}

TEST_F(LogoTest, ANewConversionReplacesTheOldOne) {
  write("Dati/GRAPHIC.BIN", "what stood there before");
  write("Dati/LOGO.BMP", logo_file('\0'));
  EXPECT_EQ(send_logo("LOGO.BMP"), ends_with(0x01000000));
  EXPECT_EQ(bytes("Dati/GRAPHIC.BIN"), graphic('\0'));
}

TEST_F(LogoTest, EachFaultHasItsCodeAndWritesNothing) {
  BitmapFile coloured;
  coloured.bits = 8;
  BitmapFile wide;
  wide.width = 2049;
  BitmapFile packed;
  packed.packing = 1;
  BitmapFile tall;
  tall.height = 2000;
  const std::vector<std::pair<std::string, std::int32_t>> faulty = {{"BM", 0x10010000},
                                                                    {"no bitmap", 0x10010000},
                                                                    {logo_file('\0').substr(0, 7837), 0x10010000},
                                                                    {coloured.bytes(), 0x10020000},
                                                                    {packed.bytes(), 0x10030000},
                                                                    {wide.bytes(), 0x10040000},
                                                                    {tall.bytes(), 0x08030000}};
  for (const auto& [file, code] : faulty) {
    write("Dati/LOGO.BMP", file);
    EXPECT_EQ(changing_nothing([this] { return send_logo("LOGO.BMP"); }), ends_with(code));
    EXPECT_FALSE(exists("Dati/GRAPHIC.BIN"));
  }
}

TEST_F(LogoTest, ALogoThatCannotBeWrittenHasItsCode) {
  write("Dati/LOGO.BMP", logo_file('\0'));
  make_folder("Dati/GRAPHIC.BIN");
  EXPECT_EQ(send_logo("LOGO.BMP"), ends_with(0x08030000)) << "a folder has its name";
  remove("Dati/GRAPHIC.BIN");
  {
    const SystemThatCannotWrite system{FaultCode::permission_denied};
    EXPECT_EQ(send_logo("LOGO.BMP"), ends_with(0x08030000)) << "no new file can be made";
  }
  {
    const SystemThatCannotWrite system{FaultCode::disk_full};
    EXPECT_EQ(send_logo("LOGO.BMP"), ends_with(0x08040000));
  }
  write("Dati/GRAPHIC.BIN", "what stood there before");
  const SystemThatCannotWrite system{FaultCode::permission_denied};
  EXPECT_EQ(send_logo("LOGO.BMP"), ends_with(0x08040000)) << "the file that is there is barred";
  EXPECT_EQ(bytes("Dati/GRAPHIC.BIN"), "what stood there before");
}

TEST_F(LogoTest, ACodeOfSuccessThatIsSetIsAnsweredAndTheLogoConvertedAllTheSame) {
  write("Dati/LOGO.BMP", logo_file('\x0F'));
  for (const std::string code : {"0x1000000", "0x1006464"}) {
    remove("Dati/GRAPHIC.BIN");
    set("logo = " + code);
    EXPECT_EQ(send_logo("LOGO.BMP"), ends_with(code == "0x1000000" ? 0x1000000 : 0x1006464));
    EXPECT_EQ(bytes("Dati/GRAPHIC.BIN"), graphic('\x0F'));
  }
  EXPECT_EQ(send_logo("MISSING.BMP"), ends_with(0x1006464)) << "also where there is nothing to convert";
}

TEST_F(LogoTest, ACodeOutsideOfSuccessThatIsSetConvertsNothing) {
  write("Dati/LOGO.BMP", logo_file('\x0F'));
  for (const std::string code : {"0", "0xFFFFFF", "0x1006465", "0x2010000", "-1"}) {
    set("logo = " + code);
    EXPECT_EQ(send_logo("LOGO.BMP").returned, 1);
    EXPECT_FALSE(exists("Dati/GRAPHIC.BIN")) << code;
  }
}

TEST_F(LogoTest, SuccessReachesFromAnEmptyToAFullPicture) {
  EXPECT_FALSE(says_converted(0));
  EXPECT_FALSE(says_converted(0xFFFFFF));
  EXPECT_TRUE(says_converted(0x1000000));
  EXPECT_TRUE(says_converted(0x1006464));
  EXPECT_FALSE(says_converted(0x1006465));
}

TEST_F(LogoTest, TheLogoThatWasSentIsSeenOnTheReceipt) {
  write("Dati/GRAPHIC.BIN", graphic('\x0F'));
  EXPECT_EQ(send_cmd(download, 2), done);
  EXPECT_EQ(bytes("register/GRAPHIC.BIN"), graphic('\x0F'));
  EXPECT_EQ(bytes("register/receipt.bmp"), receipt_picture(half_black, heading));
}

TEST_F(LogoTest, TheLastReceiptOfAJournalStandsBelowTheHeading) {
  const auto record = [](std::string text, char mark) {
    text.resize(24, ' ');
    return text + mark + '\0';
  };
  const std::string journal = record("The Shop", '\x01') + record("RECEIPT 1", '\x02') + record("Tea", '\0') +
                              record("RECEIPT 2", '\x02') + record("Coffee              1.80", '\0') + record("", '\0');
  write("register/GRAPHIC.BIN", graphic('\x0F'));
  EXPECT_FALSE(draw_receipt(backslash_path(host("register/")), journal).stands());
  EXPECT_EQ(bytes("register/receipt.bmp"), receipt_picture(half_black, {"The Shop", "  4 Market Square", "",
                                                                        "RECEIPT 2", "Coffee              1.80"}));
}

TEST_F(LogoTest, AProgrammingWithOtherLinesDrawsTheReceiptAnew) {
  std::string image(5656, ' ');
  image.replace(3257, 24, "Another Shop            ");
  write("Dati/PRG_MODE.BIN", image);
  EXPECT_EQ(send_cmd(download, 0), done);
  EXPECT_FALSE(exists("register/receipt.bmp")) << "there is no logo to show";
  write("register/GRAPHIC.BIN", graphic('\x0F'));
  EXPECT_EQ(send_cmd(download, 0), done);
  EXPECT_EQ(bytes("register/receipt.bmp"), receipt_picture(half_black, {"Another Shop"}));
}

TEST_F(LogoTest, WithoutProgrammingTheReceiptHasNoHeading) {
  write("Dati/GRAPHIC.BIN", graphic('\x0F'));
  for (const std::string& image : {std::string(5655, ' '), std::string(), std::string(5656, ' ')}) {
    write("register/PRG_MODE.BIN", image);
    EXPECT_EQ(send_cmd(download, 2), done);
    EXPECT_EQ(bytes("register/receipt.bmp"), receipt_picture(half_black, {}));
  }
  remove("register/PRG_MODE.BIN");
  EXPECT_EQ(send_cmd(download, 2), done);
  EXPECT_EQ(bytes("register/receipt.bmp"), receipt_picture(half_black, {}));
}

TEST_F(LogoTest, ALogoOfAnotherFormIsHeldAndHasNoPicture) {
  write("Dati/GRAPHIC.BIN", graphic('\x0F'));
  EXPECT_EQ(send_cmd(download, 2), done);
  write("Dati/GRAPHIC.BIN", "of another converter");
  EXPECT_EQ(send_cmd(download, 2), done);
  EXPECT_EQ(bytes("register/GRAPHIC.BIN"), "of another converter");
  EXPECT_FALSE(exists("register/receipt.bmp")) << "the picture of the logo before would be a lie";
}

TEST_F(LogoTest, AReceiptThatCannotBeDrawnDoesNotSpoilTheSend) {
  make_folder("register/receipt.bmp");
  write("Dati/GRAPHIC.BIN", graphic('\x0F'));
  EXPECT_EQ(send_cmd(download, 2), done);
  EXPECT_EQ(bytes("register/GRAPHIC.BIN"), graphic('\x0F'));
}

TEST_F(LogoTest, ARefusedLogoLeavesTheReceiptAsItWas) {
  write("Dati/GRAPHIC.BIN", graphic('\x0F'));
  EXPECT_EQ(send_cmd(download, 2), done);
  write("Dati/GRAPHIC.BIN", "");
  EXPECT_EQ(changing_nothing([this] { return send_cmd(download, 2); }), ends_with(4098));
}

}  // namespace
}  // namespace ecr::test

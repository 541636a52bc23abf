#include "logo/send_logo.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "core/global.h"
#include "link/library.h"
#include "support/bitmap_file.h"
#include "support/fake_system.h"
#include "support/installation.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

constexpr std::int32_t good = 0x1000000;

/// A link library whose conversion writes GRAPHIC.BIN where it is told to, and ends with the code that it is told.
class ConvertingLink final : public LinkLibrary {
 public:
  std::int32_t returned_by_conversion = 1;
  std::int32_t conversion = good;
  std::function<void()> on_conversion;
  std::function<void()> on_send;
  FakeLink rest;

  std::int32_t send_cmd(std::string& folder, std::uint8_t direction, std::uint8_t file, std::int32_t& code,
                        std::int32_t timeout, std::uint8_t port) override {
    if (on_send) on_send();
    return rest.send_cmd(folder, direction, file, code, timeout, port);
  }
  std::int32_t range_report(std::string&, std::uint8_t, std::int32_t&, std::int32_t, std::int32_t, std::int32_t,
                            std::uint8_t) override {
    ADD_FAILURE() << "no report belongs to a logo";
    return 0;
  }
  std::int32_t send_logo(std::string& source, const std::string& target1, const std::string& target2,
                         std::int32_t& code, std::int32_t timeout) override {
    std::int32_t ignored = 0;
    rest.send_logo(source, target1, target2, ignored, timeout);
    if (returned_by_conversion == 1) code = conversion;
    if (on_conversion) on_conversion();
    return returned_by_conversion;
  }
};

class SendLogoTest : public InstallationTest {
 protected:
  SendLogoTest() {
    auto made = std::make_unique<ConvertingLink>();
    link_ = made.get();
    install_link_library(std::move(made));
    Global::ComPort = 4;
    make_folder("Pictures");
    link_->on_conversion = [this] { write("Pictures/GRAPHIC.BIN", "the new logo"); };
  }

  bool send() { return Send_LogoToEcr(Global::PathApp, Global::PathApp + "Pictures\\", "shop.bmp"); }

  /// The conversion ends with this code: what is logged, and whether the logo goes on its way.
  void expect_conversion_error(std::int32_t code, const std::string& line) {
    link_->conversion = code;
    link_->rest.calls.clear();
    const std::size_t before = log().size();
    EXPECT_FALSE(send());
    EXPECT_EQ(link_->rest.calls.size(), 1U) << line;
    ASSERT_EQ(log().size(), before + 1);
    EXPECT_EQ(log().back(), line);
  }

  ConvertingLink* link_ = nullptr;
};

TEST_F(SendLogoTest, ConvertsCopiesWaitsAndSends) {
  write("Dati/GRAPHIC.BIN", "a logo of long ago that is longer");
  link_->on_send = [this] {
    EXPECT_EQ(bytes("Dati/GRAPHIC.BIN"), "the new logo") << "what stood there is replaced";
    ASSERT_EQ(shell.seconds_waited.size(), 1U) << "the wait comes before the send";
    EXPECT_EQ(shell.seconds_waited[0], 0.1);
  };
  EXPECT_TRUE(send());
  EXPECT_EQ(link_->rest.calls, (Lines{"send_logo source=. target1=Pictures target2=shop.bmp timeout=60",
                                      "send_cmd folder=. direction=1 file=2 timeout=60 port=4"}));
  EXPECT_EQ(link_->rest.received[2], "the new logo");
  EXPECT_EQ(log(), Lines{});
  EXPECT_EQ(bytes("Pictures/GRAPHIC.BIN"), "the new logo");
}

TEST_F(SendLogoTest, TheWaitEndsAtMidnight) {
  shell.moment.second_of_day = 24 * 3600.0 - 0.01;
  EXPECT_TRUE(send());
  EXPECT_LT(shell.moment.second_of_day, 0.1) << "it did not wait for a time that never comes";
}

TEST_F(SendLogoTest, AConversionThatCannotBeRunIsLoggedUnderTheOtherRoutinesName) {
  for (const std::int32_t returned : {0, 2, -1}) {
    link_->returned_by_conversion = returned;
    EXPECT_FALSE(send());
    EXPECT_EQ(log().back(), "Send_PrgModeToEcr error using regpix");
  }
  EXPECT_EQ(log().size(), 3U);
  EXPECT_EQ(link_->rest.calls.size(), 3U) << "nothing was sent";
  EXPECT_FALSE(exists("Dati/GRAPHIC.BIN"));
}

TEST_F(SendLogoTest, ACodeBelowOrAboveTheGoodOnesIsAConversionError) {
  expect_conversion_error(0, "Send_LogoToEcr conversion error. Code: 0 Desc:No description");
  expect_conversion_error(1, "Send_LogoToEcr conversion error. Code: 1 Desc:No description");
  expect_conversion_error(16777215, "Send_LogoToEcr conversion error. Code: FFFFFF Desc:No description");
  expect_conversion_error(16802917, "Send_LogoToEcr conversion error. Code: 1006465 Desc:No description");
  expect_conversion_error(-1, "Send_LogoToEcr conversion error. Code: FFFFFFFF Desc:No description");
  expect_conversion_error(
      0x10020000,
      "Send_LogoToEcr conversion error. Code: 10020000 Desc:The original BMP file has not been prepared as a "
      "black-and-white data.");
  EXPECT_FALSE(exists("Dati/GRAPHIC.BIN"));
}

TEST_F(SendLogoTest, TheCodesFrom16777216To16802916AreGood) {
  for (const std::int32_t code : {16777216, 16777217, 16790000, 16802915, 16802916}) {
    link_->conversion = code;
    EXPECT_TRUE(send()) << code;
  }
  EXPECT_EQ(log(), Lines{});
}

TEST_F(SendLogoTest, ASendThatCannotBeRunIsLogged) {
  for (const std::int32_t returned : {0, 2}) {
    link_->rest.answers[2] = {returned, 0};
    EXPECT_FALSE(send());
    EXPECT_EQ(log().back(), "Send_LogoToEcr error using regwire");
  }
  EXPECT_EQ(bytes("Dati/GRAPHIC.BIN"), "the new logo") << "it stays there";
}

TEST_F(SendLogoTest, ARefusedSendIsLoggedWithABlankBehindDesc) {
  FakeSystem system;
  system.running = {{7, "regwire.exe"}};
  link_->rest.answers[2] = {1, 4097};
  EXPECT_FALSE(send());
  link_->rest.answers[2] = {1, 4098};
  EXPECT_FALSE(send());
  link_->rest.answers[2] = {1, 77};
  EXPECT_FALSE(send());
  EXPECT_EQ(log(), (Lines{"Send_LogoToEcr error. Code: 1001 Desc: The ECR side is in the state of BUSY.",
                          "Send_LogoToEcr error. Code: 1002 Desc: The error was returned from the ECR side.",
                          "Send_LogoToEcr error. Code: 4D Desc: No description"}));
  EXPECT_EQ(system.ended, std::vector<std::uint64_t>{}) << "only a timeout leaves the tool hanging";
  EXPECT_EQ(bytes("Dati/GRAPHIC.BIN"), "the new logo");
}

TEST_F(SendLogoTest, ATimeoutEndsTheHangingTool) {
  FakeSystem system;
  system.running = {{7, "other.exe"}, {8, "RegWire.exe"}};
  link_->rest.answers[2] = {1, 9999};
  EXPECT_FALSE(send());
  EXPECT_EQ(log(), Lines{"Send_LogoToEcr error. Code: 270F Desc: Timeout Error"});
  EXPECT_EQ(system.ended, std::vector<std::uint64_t>{8});
}

TEST_F(SendLogoTest, ATimeoutOfTheConversionEndsNoTool) {
  FakeSystem system;
  system.running = {{8, "regwire.exe"}};
  expect_conversion_error(9999, "Send_LogoToEcr conversion error. Code: 270F Desc:No description");
  EXPECT_EQ(system.ended, std::vector<std::uint64_t>{});
}

TEST_F(SendLogoTest, ABitmapInDatiCopiesItsLogoOntoItself) {
  link_->on_conversion = [this] { write("Dati/GRAPHIC.BIN", "the new logo"); };
  EXPECT_TRUE(Send_LogoToEcr(Global::PathApp, Global::PathDati, "shop.bmp"));
  EXPECT_EQ(bytes("Dati/GRAPHIC.BIN"), "the new logo");
  EXPECT_EQ(link_->rest.received[2], "the new logo");
}

TEST_F(SendLogoTest, AFailedCopySendsWhatStandsInDatiAndSaysSo) {
  link_->on_conversion = nullptr;
  write("Dati/GRAPHIC.BIN", "a logo of long ago");
  EXPECT_FALSE(send()) << "the register does not hold the new logo";
  EXPECT_EQ(link_->rest.calls.size(), 2U);
  EXPECT_EQ(link_->rest.received[2], "a logo of long ago");
  EXPECT_EQ(log(), Lines{"FrmSetLogo Invia Ecr: File not found"});
  link_->rest.answers[2] = {1, 2049};
  EXPECT_FALSE(send());
  EXPECT_EQ(log(), (Lines{"FrmSetLogo Invia Ecr: File not found",
                          "Send_LogoToEcr error. Code: 801 Desc: The specified file cannot be opened.",
                          "FrmSetLogo Invia Ecr: File not found"}));
}

TEST_F(SendLogoTest, TheLibraryMayRewriteTheToolsFolder) {
  link_->rest.rewritten_folder = "/elsewhere/";
  EXPECT_TRUE(send());
  EXPECT_EQ(Global::PathApp, "\\elsewhere\\");
  EXPECT_EQ(link_->rest.calls.size(), 2U);
}

TEST_F(SendLogoTest, NoLinkCheckComesFirst) {
  EXPECT_TRUE(send());
  EXPECT_EQ(std::count_if(link_->rest.calls.begin(), link_->rest.calls.end(),
                          [](const std::string& call) { return call.find("file=22") != std::string::npos; }),
            0);
}

// Which files can be a logo

TEST_F(SendLogoTest, ABitmapOfExactly7838BytesCanBeALogo) {
  const std::string bitmap = BitmapFile{}.bytes();
  ASSERT_EQ(bitmap.size(), 7838U);
  write("Pictures/shop.bmp", bitmap);
  EXPECT_EQ(logo_bitmap(Global::PathApp + "Pictures\\shop.bmp"), bitmap);
  write("Pictures/shop.bmp", std::string(7838, '\0'));
  EXPECT_EQ(logo_bitmap(Global::PathApp + "Pictures\\shop.bmp").size(), 7838U) << "its bytes are not looked at";
}

TEST_F(SendLogoTest, NoOtherLengthAndNoOtherThingCan) {
  for (const std::size_t length : {0U, 1U, 7837U, 7839U, 100000U}) {
    write("Pictures/shop.bmp", std::string(length, 'B'));
    EXPECT_EQ(logo_bitmap(Global::PathApp + "Pictures\\shop.bmp"), "") << length;
  }
  EXPECT_EQ(logo_bitmap(Global::PathApp + "Pictures\\missing.bmp"), "");
  EXPECT_EQ(logo_bitmap(Global::PathApp + "Pictures"), "");
  EXPECT_EQ(logo_bitmap(""), "");
}

TEST(SplitPath, CutsBehindTheLastBackslash) {
  EXPECT_EQ(split_path("\\home\\me\\logo.bmp").folder, "\\home\\me\\");
  EXPECT_EQ(split_path("\\home\\me\\logo.bmp").name, "logo.bmp");
  EXPECT_EQ(split_path("C:\\logo.bmp").folder, "C:\\");
  EXPECT_EQ(split_path("logo.bmp").folder, "");
  EXPECT_EQ(split_path("logo.bmp").name, "logo.bmp");
  EXPECT_EQ(split_path("\\folder\\").name, "");
}

}  // namespace
}  // namespace ecr::test

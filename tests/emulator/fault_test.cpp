#include <chrono>
#include <cstdint>
#include <gtest/gtest.h>
#include <initializer_list>
#include <string>

#include "emulator/emulator_test.h"

namespace ecr::test {
namespace {

using Bytes = std::initializer_list<std::uint8_t>;

using FaultTest = EmulatorTest;

// Ports

TEST_F(FaultTest, ItAnswersOnItsPortOnly) {
  for (const std::uint8_t port : Bytes{0, 1, 3, 5, 255}) {
    EXPECT_EQ(changing_nothing([this, port] { return send_cmd(upload, 0, port); }), ends_with(1025)) << int{port};
    EXPECT_EQ(range_report(12, 1, 99, port), ends_with(1025)) << int{port};
  }
  EXPECT_FALSE(exists("Dati/PRG_MODE.BIN"));
  EXPECT_FALSE(exists("Dati/TIME.bin"));
  set("port = 255");
  EXPECT_EQ(send_cmd(upload, 0, 4), ends_with(1025));
  EXPECT_EQ(send_cmd(upload, 0, 255), done);
}

TEST_F(FaultTest, OnPortZeroNothingAnswers) {
  set("port = 0");
  for (const std::uint8_t port : Bytes{0, 4}) {
    EXPECT_EQ(send_cmd(upload, 12, port), ends_with(1025)) << int{port};
    EXPECT_EQ(range_report(12, 1, 99, port), ends_with(1025)) << int{port};
  }
}

TEST_F(FaultTest, ThePortIsLookedAtBeforeAllElse) {
  EXPECT_EQ(send_cmd(2, 255, 5), ends_with(1025));
  EXPECT_EQ(range_report(5, 9, 1, 5), ends_with(1025));
}

TEST_F(FaultTest, TheConversionNeedsNoPort) {
  set("port = 0");
  write("Dati/LOGO.BMP", "no bitmap");
  EXPECT_EQ(send_logo("LOGO.BMP"), ends_with(0x10010000));
}

// Faults that are set

TEST_F(FaultTest, AnAnswerThatIsSetEndsEveryKindOfCallAndMovesNothing) {
  for (const std::int32_t code : {1, 1026, 4097, 4098, 9999}) {
    set("answer = " + std::to_string(code));
    for (const auto& [kind, call] : each_kind()) EXPECT_EQ(changing_nothing(call), ends_with(code)) << kind;
  }
  write("Dati/PRG_MODE.BIN", bytes_for_image(11));
  EXPECT_EQ(changing_nothing([this] { return send_cmd(download, 0); }), ends_with(9999));
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), bytes_for_image(11));
  EXPECT_FALSE(exists("Dati/TIME.bin"));
}

TEST_F(FaultTest, AnAnswerForOneFileLeavesTheOthersAlone) {
  set("answer.12 = 4097");
  EXPECT_EQ(send_cmd(upload, 12), ends_with(4097));
  EXPECT_EQ(range_report(12), ends_with(4097));
  EXPECT_EQ(send_cmd(upload, 0), done);
  set("answer = 4098\nanswer.0 = 0");
  EXPECT_EQ(send_cmd(upload, 0), done);
  EXPECT_EQ(send_cmd(upload, 1), ends_with(4098));
}

TEST_F(FaultTest, AnAnswerGoesBeforeThePort) {
  set("answer = 4097\nport = 0");
  EXPECT_EQ(send_cmd(upload, 0), ends_with(4097));
}

TEST_F(FaultTest, ACallThatFailsReturnsZeroAndTouchesNothing) {
  set("fails = yes\nanswer = 4097\ndelay = 3000\nhang = next");
  for (const auto& [kind, call] : each_kind()) EXPECT_EQ(changing_nothing(call), not_made) << kind;
  EXPECT_FALSE(exists("Dati/PRG_MODE.BIN"));
}

TEST_F(FaultTest, AFailureForOneFileLeavesTheOthersAlone) {
  set("fails.12 = yes");
  EXPECT_EQ(send_cmd(upload, 12), not_made);
  EXPECT_EQ(range_report(12), not_made);
  EXPECT_EQ(send_cmd(upload, 0), done);
}

TEST_F(FaultTest, AnEditOfTheFileActsAtOnce) {
  EXPECT_EQ(send_cmd(upload, 12), done);
  set("answer = 4097");
  EXPECT_EQ(send_cmd(upload, 12), ends_with(4097));
  set("");
  EXPECT_EQ(send_cmd(upload, 12), done);
}

TEST_F(FaultTest, ADelayHoldsEveryKindOfCall) {
  set("delay = 0.03");
  for (const auto& [kind, call] : each_kind()) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(call().returned, 1) << kind;
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds{30}) << kind;
  }
}

TEST_F(FaultTest, AHangingCallWithoutTheToolHasTimedOutAllTheSame) {
  set("# kept\nowner = me\nhang = next");
  EXPECT_EQ(send_cmd(upload, 0), ends_with(9999));
  EXPECT_FALSE(exists("Dati/PRG_MODE.BIN"));
  EXPECT_EQ(bytes("register/register.txt"), fresh_register + "# kept\nowner = me\nhang = no\n");
  EXPECT_EQ(send_cmd(upload, 0), done);
}

TEST_F(FaultTest, OnlyTheCallForTheNamedFileHangs) {
  set("hang = 1\nanswer = 4097");
  EXPECT_EQ(changing_nothing([this] { return send_cmd(upload, 0); }), ends_with(4097));
  EXPECT_EQ(send_cmd(upload, 1, 99), ends_with(9999)) << "the call hangs before its port is looked at";
  EXPECT_EQ(send_cmd(upload, 1), ends_with(4097));
}

TEST_F(FaultTest, TheNextCallHangsWhateverItsKind) {
  for (const auto& [kind, call] : each_kind()) {
    set("hang = next");
    EXPECT_EQ(call(), ends_with(9999)) << kind;
    EXPECT_NE(call(), ends_with(9999)) << kind;
  }
}

TEST_F(FaultTest, AHangThatCannotBeWrittenBackStays) {
  set("hang = next");
  const SystemThatCannotWrite system{FaultCode::disk_full};
  EXPECT_EQ(changing_nothing([this] { return send_cmd(upload, 0); }), ends_with(9999));
  EXPECT_EQ(changing_nothing([this] { return send_cmd(upload, 0); }), ends_with(9999));
}

// The conversion of a logo

TEST_F(FaultTest, TheConversionOpensAndChecksItsFile) {
  EXPECT_EQ(send_logo("LOGO.BMP"), ends_with(0x08010000));
  EXPECT_EQ(send_logo(""), ends_with(0x08010000));
  make_folder("Dati/FOLDER.BMP");
  EXPECT_EQ(send_logo("FOLDER.BMP"), ends_with(0x08010000));
  for (const std::string bytes : {"", "B", "bm", "MB", "PNG"}) {
    write("Dati/LOGO.BMP", bytes);
    EXPECT_EQ(send_logo("LOGO.BMP"), ends_with(0x10010000)) << bytes;
  }
}

TEST_F(FaultTest, TheConversionEndsWithTheCodeThatIsSet) {
  write("Dati/LOGO.BMP", "BM");
  set("logo = 0x10020000");
  EXPECT_EQ(send_logo("LOGO.BMP"), ends_with(0x10020000));
  EXPECT_EQ(send_logo("MISSING.BMP"), ends_with(0x10020000));
  EXPECT_EQ(send_cmd(upload, 0), done);
  set("logo = 0x10020000\nanswer = 9999");
  EXPECT_EQ(send_logo("LOGO.BMP"), ends_with(9999));
  set("logo = normal");
  EXPECT_EQ(send_logo("LOGO.BMP"), ends_with(0x10010000));
}

TEST_F(FaultTest, TheConversionIsNotMeantByAFileNumber) {
  write("Dati/LOGO.BMP", "BM");
  set("answer.2 = 4097\nfails.2 = yes\nhang = 2");
  EXPECT_EQ(changing_nothing([this] { return send_logo("LOGO.BMP"); }), ends_with(0x10010000));
}

TEST_F(FaultTest, TheFoldersMayLackTheirLastSeparator) {
  write("Dati/LOGO.BMP", "BM");
  std::string folder = application_folder();
  folder.pop_back();
  char* pointer = folder.data();
  std::int32_t code = Outcome::untouched;
  EXPECT_EQ(calls.send_cmd(&pointer, upload, 0, &code, 60, 4), 1);
  EXPECT_EQ(code, 0);
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), bytes_for_image(1));
  EXPECT_EQ(calls.send_logo(&pointer, host("Dati").c_str(), "LOGO.BMP", &code, 60), 1);
  EXPECT_EQ(code, 0x10010000);
}

}  // namespace
}  // namespace ecr::test

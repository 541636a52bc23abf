#include <algorithm>
#include <gtest/gtest.h>
#include <string>

#include "emulator/emulator_test.h"

namespace ecr::test {
namespace {

using CallListTest = EmulatorTest;

TEST_F(CallListTest, EveryCallIsNotedWhereTheListExists) {
  write("register/calls.txt", "");
  EXPECT_EQ(send_cmd(upload, 0), done);
  EXPECT_EQ(send_cmd(7, 255, 9), ends_with(1025));
  EXPECT_EQ(range_report(5, -1, 9999), done);
  EXPECT_EQ(send_logo("MY LOGO.BMP"), ends_with(0x08010000));
  const std::string app = application_folder();
  EXPECT_EQ(bytes("register/calls.txt"),
            "send_cmd folder=" + app + " direction=0 file=0 timeout=60 port=4\n" +  //
                "send_cmd folder=" + app + " direction=7 file=255 timeout=60 port=9\n" + "range_report folder=" + app +
                " file=5 timeout=120 from=-1 to=9999 port=4\n" + "send_logo source=" + app + " target1=" + app +
                "Dati/ target2=MY LOGO.BMP timeout=60\n");
}

TEST_F(CallListTest, CallsThatFailAreNotedToo) {
  set("fails = yes");
  write("register/calls.txt", "first\n");
  for (const auto& [kind, call] : each_kind()) EXPECT_EQ(call(), not_made) << kind;
  const std::string list = bytes("register/calls.txt");
  EXPECT_EQ(std::count(list.begin(), list.end(), '\n'), 4);
  EXPECT_TRUE(list.starts_with("first\n"));
}

TEST_F(CallListTest, WithoutTheListNothingIsNoted) {
  for (const auto& [kind, call] : each_kind()) changing_nothing(call);
  EXPECT_FALSE(exists("register/calls.txt"));
}

TEST_F(CallListTest, AListThatCannotBeWrittenDisturbsNoCall) {
  make_folder("register/calls.txt");
  EXPECT_EQ(send_cmd(upload, 0), done);
  remove("register/calls.txt");
  write("register/calls.txt", "first\n");
  const SystemThatCannotWrite system{FaultCode::permission_denied};
  EXPECT_EQ(changing_nothing([this] { return send_cmd(upload, 23); }), ends_with(517));
}

}  // namespace
}  // namespace ecr::test

// The port walk and the driver on the Linux system layer itself.

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/global.h"
#include "link/ports.h"
#include "platform/platform.h"
#include "support/installation.h"

namespace ecr::test {
namespace {

class HostPorts : public InstallationTest {};

TEST_F(HostPorts, DriverToolsNeverRunHere) {
  write("Driver/FTDI_Setup.exe", "#!/bin/sh\n");
  write("Driver/VerPreinstECRx64.exe", "#!/bin/sh\n");
  for (const char* version : {"5,01", "6", "6,01", "6.01"}) {
    OsVersion = version;
    EXPECT_TRUE(Install_Driver(true));
    EXPECT_TRUE(Install_Driver(false));
  }
  EXPECT_TRUE(log().empty());
}

TEST_F(HostPorts, TheSystemsOwnDevicesAreWalkedUnlessTheListSaysOnly) {
  EXPECT_EQ(device_captions(), host_system().device_captions().value());
  write("register/devices.txt", "Emulated register (COM4)\n");
  std::vector<std::string> expected = host_system().device_captions().value();
  expected.emplace_back("Emulated register (COM4)");
  EXPECT_EQ(device_captions(), expected);
}

TEST_F(HostPorts, TheProcessorsBitsAreThoseOfThisProgram) {
  EXPECT_EQ(Get_OsBits(), sizeof(void*) == 8);
}

}  // namespace
}  // namespace ecr::test

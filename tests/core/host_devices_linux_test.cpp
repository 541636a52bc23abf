// Captions of serial devices, on a made-up folder of devices.

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/linux/linux_devices.h"
#include "platform/platform.h"
#include "support/installation.h"

namespace ecr::test {
namespace {

using Captions = std::vector<std::string>;

class HostDevices : public InstallationTest {
 protected:
  /// A device with hardware behind it; built-in ports have a type.
  void device(const std::string& name, const std::string& type = "") const {
    make_folder("tty/" + name + "/device");
    if (!type.empty()) write("tty/" + name + "/type", type + "\n");
  }
  [[nodiscard]] Captions captions() const { return linux_serial_captions(host("tty")); }
};

TEST_F(HostDevices, DevicesOnUsbComeFirstAndBuiltInOnesBehindThem) {
  device("ttyS0", "4");
  device("ttyUSB0");
  device("ttyACM0");
  EXPECT_EQ(captions(), (Captions{"ttyACM0 (COM1)", "ttyUSB0 (COM2)", "ttyS0 (COM3)"}));
}

TEST_F(HostDevices, EachGroupIsOrderedByLettersAndThenByNumber) {
  for (const char* name : {"ttyUSB10", "ttyUSB2", "ttyUSB1", "ttyACM3", "ttyS11", "ttyS9", "ttyAMA0"}) device(name);
  EXPECT_EQ(captions(), (Captions{"ttyACM3 (COM1)", "ttyUSB1 (COM2)", "ttyUSB2 (COM3)", "ttyUSB10 (COM4)",
                                  "ttyAMA0 (COM5)", "ttyS9 (COM6)", "ttyS11 (COM7)"}));
}

TEST_F(HostDevices, ATerminalWithoutHardwareIsNoDevice) {
  make_folder("tty/tty0");
  make_folder("tty/console");
  write("tty/ttyUSB5", "a file");
  device("ttyUSB0");
  EXPECT_EQ(captions(), Captions{"ttyUSB0 (COM1)"});
}

TEST_F(HostDevices, ABuiltInPortOfType0IsNotThere) {
  device("ttyS0", "0");
  device("ttyS1", "4");
  device("ttyS2", "0");
  device("ttyS3");
  EXPECT_EQ(captions(), (Captions{"ttyS1 (COM1)", "ttyS3 (COM2)"}));
}

TEST_F(HostDevices, ATypeThatIsNoNumberDoesNotHideADevice) {
  device("ttyS0", "unknown");
  EXPECT_EQ(captions(), Captions{"ttyS0 (COM1)"});
}

TEST_F(HostDevices, OddNamesAreListedToo) {
  for (const char* name : {"123", "ttyUSB", "ttyUSB99999999999999999999"}) device(name);
  EXPECT_EQ(captions(), (Captions{"ttyUSB (COM1)", "ttyUSB99999999999999999999 (COM2)", "123 (COM3)"}));
}

TEST_F(HostDevices, DevicesAreOftenLinks) {
  device("real");
  std::filesystem::rename(host("tty/real"), host("elsewhere"));
  std::filesystem::create_symlink(host("elsewhere"), host("tty/ttyUSB0"));
  std::filesystem::create_symlink(host("nowhere"), host("tty/ttyUSB1"));
  EXPECT_EQ(captions(), Captions{"ttyUSB0 (COM1)"});
}

TEST_F(HostDevices, WithoutTheFolderThereAreNoDevices) {
  EXPECT_EQ(captions(), Captions{});
  make_folder("tty");
  EXPECT_EQ(captions(), Captions{});
}

TEST_F(HostDevices, TheSystemsOwnListEndsWithTheProcessorsClass) {
  const auto list = host_system().device_captions();
  ASSERT_TRUE(list.has_value());
  ASSERT_FALSE(list->empty());
  EXPECT_EQ(list->back(), sizeof(void*) == 8 ? "Processor x64" : "Processor x86");
  Captions serial = linux_serial_captions("/sys/class/tty");
  serial.push_back(list->back());
  EXPECT_EQ(*list, serial);
}

}  // namespace
}  // namespace ecr::test

#pragma once
// Finding the serial port on which a register answers, and setting up the cable's driver.

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace ecr {

/// The system's version as it is compared for the driver tools: "5,01", "6", "6,01". Set on the start screen.
extern std::string OsVersion;
extern bool Os64Bit;

enum class PortColour { red, green };

/// The test that is on its way: on which port, and the how-manieth it is of those that the walk goes to at most.
struct PortTest {
  int port = 0;
  int nth = 1;
  int of = 1;
};

/// Where the walk shows what it does: the number in the port field, the colour of its text, and each test before it.
struct PortDisplay {
  std::function<void(int)> number = {};
  std::function<void(PortColour)> colour = {};
  std::function<void(const PortTest&)> test = {};
};
void show_ports_on(PortDisplay display);

/// All register traffic goes over this port from now on; 0 is none. The one writer of Global::ComPort.
void use_port(std::uint8_t port) noexcept;

/// Walks the devices whose caption names a COM port and tests the connection on each; the first that answers becomes
/// Global::ComPort. Answers whether one did. A caption whose number is none, or above 255, ends the walk. The screens
/// stay open to input meanwhile. Once `given_up` answers true, which is asked before and after each test, the walk is
/// over and no port was found, whatever the test on its way has answered.
bool Test_Com(bool skipLog, const std::function<bool()>& given_up = {});

/// Sets up the cable's driver with the tools in PathDriver. True where there is nothing to wait for, also where the
/// tools do not apply to this system.
bool Install_Driver(bool force);

/// Whether the processor's caption in the device list says 64 bits.
bool Get_OsBits();

/// The devices whose captions are walked: the system's own, then those in the file "register\devices.txt" of the
/// application folder, one a line, which is how an emulated register shows the port it hangs on. A first line "only"
/// leaves the system's own out.
[[nodiscard]] std::vector<std::string> device_captions();

/// The model of the emulated register that lies in the application folder, as its text file says; empty without one.
[[nodiscard]] std::string emulated_model();

/// Writes `port` to port.ini in the application folder; the exchange tool reads it there. A failure is silent.
void Write_rs232_fw(std::uint8_t port);

void reset_ports();

}  // namespace ecr

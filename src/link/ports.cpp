#include "link/ports.h"

#include <optional>
#include <string_view>
#include <utility>

#include "core/decimal.h"
#include "core/files.h"
#include "core/global.h"
#include "core/run_log.h"
#include "core/shell.h"
#include "core/small_files.h"
#include "core/system.h"
#include "core/text.h"
#include "link/firmware.h"
#include "link/library.h"
#include "link/process.h"

namespace ecr {
namespace {

PortDisplay display;

void show_number(int number) {
  if (display.number) display.number(number);
}
void show_colour(PortColour colour) {
  if (display.colour) display.colour(colour);
}
void show_test(const PortTest& test) {
  if (display.test) display.test(test);
}

/// The port that a caption names, nothing if it names none: "USB Serial Port (COM4)" gives 4.
std::optional<std::uint8_t> port_in(std::string_view caption) {
  const std::size_t com = caption.find("COM");
  if (com == std::string_view::npos || !caption.ends_with(')')) return std::nullopt;
  const std::size_t first = com + 3;
  const Decimal number = Decimal::from_text(caption.substr(first, caption.size() - 1 - first));
  if (number.is_negative() || number > Decimal{255}) throw FaultError{FaultCode::overflow};
  return static_cast<std::uint8_t>(leading_number(number.text(0)));
}

/// The ports to walk, in the devices' order, and what ends the list before all captions were looked at.
struct PortList {
  std::vector<std::uint8_t> numbers;
  Fault end;
};
PortList ports_in(const std::vector<std::string>& captions) {
  PortList ports;
  try {
    for (const std::string& caption : captions) {
      if (const std::optional<std::uint8_t> port = port_in(caption)) ports.numbers.push_back(*port);
    }
  } catch (const FaultError& error) {
    ports.end = error.fault();
  }
  return ports;
}

void debug_log(std::uint8_t port, std::string_view outcome) {
  if (Global::DebugMode) memo_log("Test COM " + std::to_string(port) + std::string{outcome});
}

/// Runs a driver tool on one file and waits for its end.
void run_tool(const std::string& tool, std::string_view file) {
  const std::string program = Global::PathDriver + tool;
  const std::string argument = Global::PathDriver + std::string{file};
  memo_log(program + " " + argument);
  static_cast<void>(system_layer().start_minimised(host_path(program), {host_path(argument)}));
  Process_Wait(tool);
}

}  // namespace

std::string OsVersion;
bool Os64Bit = false;

void show_ports_on(PortDisplay new_display) {
  display = std::move(new_display);
}

std::vector<std::string> device_captions() {
  std::vector<std::string> captions;
  std::string bytes;
  static_cast<void>(read_file(Global::PathApp + "register\\devices.txt", bytes));
  std::vector<std::string_view> lines = lines_of(bytes);
  const bool only_these = !lines.empty() && lines.front() == "only";
  if (only_these) {
    lines.erase(lines.begin());
  } else {
    captions = system_layer().device_captions().value_or(std::vector<std::string>{});
  }
  captions.insert(captions.end(), lines.begin(), lines.end());
  return captions;
}

void use_port(std::uint8_t port) noexcept {
  Global::ComPort = port;
}

bool Test_Com(bool skipLog, const std::function<bool()>& given_up) {
  const BackgroundCalls background;
  bool found = false;
  const auto over = [&given_up] { return given_up && given_up(); };
  const auto walk = [&] {
    use_port(0);
    show_number(0);
    std::vector<std::string> captions;
    // Some systems take their time over the list.
    shell().run_beside({Work::looking_for_ports}, Waiting::background, [&] { captions = device_captions(); });
    const PortList ports = ports_in(captions);
    int nth = 0;
    for (const std::uint8_t port : ports.numbers) {
      if (over()) return;
      show_test({port, ++nth, static_cast<int>(ports.numbers.size())});
      use_port(port);
      found = Test_Connection(skipLog) && !over();
      if (found) {
        show_number(port);
        show_colour(PortColour::green);
        debug_log(port, " OK");
        return;
      }
      show_colour(PortColour::red);
      debug_log(port, " KO");
      use_port(0);
    }
    if (ports.end.stands() && !over()) throw FaultError{ports.end};
  };
  if (skipLog) {
    try {
      walk();
    } catch (const FaultError&) {
      // A caption that stands there for good would fill the log, once every three seconds.
    }
  } else {
    guarded("Test_Com: ", walk);
  }
  return found;
}

bool Install_Driver(bool force) {
  if (!system_layer().driver_tools_apply()) return true;
  if (file_exists(Global::PathDriver + "FTDI_Setup.exe")) {
    static_cast<void>(system_layer().start_minimised(host_path(Global::PathDriver + "FTDI_Setup.exe"), {}));
    memo_log("FTDI_Setup.exe started");
    return false;
  }
  if (!files_matching(Global::PathDriver, "*.inf").empty() && !force) return false;
  std::string tool;
  if (OsVersion == "5,01") {
    tool = "VerPreinstECR.exe";
  } else if (OsVersion == "6,01" || OsVersion == "6") {
    tool = Os64Bit ? "VerPreinstECRx64.exe" : "VerPreinstECRx86.exe";
  } else {
    return true;
  }
  run_tool(tool, "ftdibus.inf");
  run_tool(tool, "ftdiport.inf");
  return true;
}

bool Get_OsBits() {
  for (const std::string& caption : system_layer().device_captions().value_or(std::vector<std::string>{})) {
    if (caption.find("x86") != std::string::npos) return false;
    if (caption.find("x64") != std::string::npos) return true;
  }
  return false;
}

std::string emulated_model() {
  std::string bytes;
  static_cast<void>(read_file(Global::PathApp + "register\\register.txt", bytes));
  constexpr std::string_view key = "model = ";
  for (const std::string_view line : lines_of(bytes)) {
    if (line.starts_with(key)) return std::string{trim_end(line.substr(key.size()))};
  }
  return {};
}

void Write_rs232_fw(std::uint8_t port) {
  write_small_file(Global::PathApp + "port.ini", {&port, 1});
}

void reset_ports() {
  OsVersion.clear();
  Os64Bit = false;
  display = {};
}

}  // namespace ecr

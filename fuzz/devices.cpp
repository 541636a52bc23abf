// The captions of the serial devices are any bytes: in the file that an emulated register brings along, and in the list
// of the system itself.

#include <algorithm>
#include <vector>

#include "core/decimal.h"
#include "core/fault.h"
#include "core/global.h"
#include "core/text.h"
#include "link/ports.h"
#include "link/tilbridge2.h"
#include "support/installation.h"

namespace ecr::fuzz::devices_target {
namespace {

constexpr std::string_view file_name = "register/devices.txt";

/// The ports that a walk without an answer tests: those that the captions name, up to a caption whose number is none or
/// above 255. Port 0 is none that could be tested.
std::vector<int> ports_in(const std::vector<std::string>& captions) {
  std::vector<int> ports;
  try {
    for (const std::string_view caption : captions) {
      const std::size_t com = caption.find("COM");
      if (com == std::string_view::npos || !caption.ends_with(')')) continue;
      const std::string_view between = caption.substr(com + 3, caption.size() - com - 4);
      const std::optional<Decimal> number = Decimal::parse(between);
      if (!number || number->is_negative() || *number > Decimal{255}) return ports;
      if (const std::string port = number->rounded().text(); port != "0") ports.push_back(std::stoi(port));
    }
  } catch (const FaultError&) {
    // A number too large for any port.
  }
  return ports;
}

/// The ports that were tested, in order; the register hangs on `register_port`, or on none if that is 0.
std::vector<int> walk(bool skipLog, int register_port) {
  std::vector<int> tested;
  Installation::link([&tested, register_port](std::uint8_t number, std::uint8_t port) {
    require(number == TILBRIDGE_FILE_TIME, "the link test is report 12");
    require(port != 0, "port 0 is never tried");
    tested.push_back(port);
    return port == register_port ? TILBRIDGE_CODE_DONE : TILBRIDGE_CODE_PORT_NOT_OPENED;
  });
  int shown = -1;
  show_ports_on({[&shown](int number) { shown = number; }, [](PortColour) {}});
  const bool found = Test_Com(skipLog);
  require(found == (!tested.empty() && tested.back() == register_port), "the walk ends where a register answers");
  require(found ? Global::ComPort == register_port && shown == register_port : shown == 0,
          "the port that answers is taken and shown");
  show_ports_on({});
  return tested;
}

void walk_in_all_ways(const Installation& installation, const std::vector<std::string>& captions) {
  require(device_captions() == captions, "the captions are the lines of the file");
  const std::vector<int> all = walk(false, 0);
  require(all == ports_in(captions), "the ports are tested in the order of the captions");
  require(installation.lines_in_log() <= all.size() + 1, "a test that fails and the walk's end leave a line each");
  require(walk(true, 0) == all, "the walk is the same whether it logs or not");
  if (!all.empty()) {
    const int port = all[all.size() / 2];
    const std::vector<int> until = walk(false, port);
    require(until.size() <= all.size() && std::equal(until.begin(), until.end(), all.begin()),
            "a register that answers ends the walk and changes nothing before");
  }
}

}  // namespace

FUZZ_TARGET(devices) {
  static Installation installation;
  const std::string file = file_of(data, size);
  std::vector<std::string> lines;
  for (const std::string_view line : lines_of(file)) lines.emplace_back(line);
  const bool only_these = !lines.empty() && lines.front() == "only";

  installation.reset();
  installation.write(file_name, file);
  std::vector<std::string> of_file{lines.begin() + (only_these ? 1 : 0), lines.end()};
  walk_in_all_ways(installation, of_file);

  // The same captions from the system, which the file may leave out.
  installation.reset();
  installation.system.captions = lines;
  installation.write(file_name, "");
  walk_in_all_ways(installation, lines);
  static_cast<void>(Get_OsBits());
  installation.write(file_name, "only\r\nUSB Serial Port (COM7)\r\n");
  require(device_captions() == std::vector<std::string>{"USB Serial Port (COM7)"}, "the first line leaves them out");

  // The emulated register's own settings name its model.
  installation.write("register/register.txt", file);
  const std::string model = emulated_model();
  require(model.size() <= file.size() && trim_end(model) == model, "a model is part of a line");
  installation.remove("register");
  return 0;
}

}  // namespace ecr::fuzz::devices_target

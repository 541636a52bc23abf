#include "platform/linux/linux_devices.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>
#include <tuple>

namespace ecr {
namespace fs = std::filesystem;
namespace {

struct SerialDevice {
  bool built_in;
  std::string letters;
  int number;
  std::string name;
  auto operator<=>(const SerialDevice&) const = default;
};

/// The kernel's virtual consoles, "tty0" and up: there are dozens, and never a wire behind one.
bool is_console(std::string_view name) {
  return name.starts_with("tty") && name.find_first_not_of("0123456789", 3) == std::string_view::npos;
}

/// A built-in port that the machine does not really have says that its type is 0.
bool port_is_there(const fs::path& device) {
  std::ifstream file{device / "type"};
  int type = 0;
  return !(file >> type) || type != 0;
}

SerialDevice device_named(const std::string& name) {
  const std::size_t digits = std::min(name.find_last_not_of("0123456789") + 1, name.size());
  const std::string number = name.substr(digits, 6);
  const bool built_in = !name.starts_with("ttyUSB") && !name.starts_with("ttyACM");
  return {built_in, name.substr(0, digits), number.empty() ? -1 : std::stoi(number), name};
}

}  // namespace

std::vector<std::string> linux_serial_captions(const std::string& class_folder) {
  std::vector<SerialDevice> devices;
  std::error_code error;
  for (fs::directory_iterator entry{class_folder, error}, end; !error && entry != end; entry.increment(error)) {
    if (is_console(entry->path().filename().native())) continue;
    std::error_code ignored;
    // Terminals without hardware have no device behind them.
    if (!fs::exists(entry->path() / "device", ignored) || !port_is_there(entry->path())) continue;
    devices.push_back(device_named(entry->path().filename().string()));
  }
  std::sort(devices.begin(), devices.end());
  std::vector<std::string> captions;
  captions.reserve(devices.size());
  for (const SerialDevice& device : devices) {
    captions.push_back(device.name + " (COM" + std::to_string(captions.size() + 1) + ")");
  }
  return captions;
}

}  // namespace ecr

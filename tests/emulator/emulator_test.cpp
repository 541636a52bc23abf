#include "emulator/emulator_test.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

#include "emulator/exports.h"

namespace ecr::test {
namespace fs = std::filesystem;

const std::string fresh_register =
    "# The emulated register\n"
    "model = Z320\n"
    "port = 4\n"
    "banner = ECRZ300/ECRZ320F    FW rel.1.04\n"
    "release = RELEASE.BIN\n"
    "delay = 0\n"
    "answer = 0\n"
    "logo = normal\n"
    "fails = no\n"
    "hang = no\n"
    "seed = 1\n";

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
  return out << "returned " << outcome.returned << ", code " << outcome.code;
}

Calls calls_of_room() {
  return {&::util_send_cmd_to_ecr, &::util_get_range_report, &::util_send_logo_to_ecr};
}

std::map<std::string, std::string> all_files(const std::string& folder) {
  std::map<std::string, std::string> files;
  if (!fs::exists(folder)) return files;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator{folder}) {
    const std::string name = fs::relative(entry.path(), folder).generic_string();
    if (entry.is_directory()) {
      files[name + "/"] = {};
      continue;
    }
    std::ifstream file{entry.path(), std::ios::binary};
    files[name] = {std::istreambuf_iterator<char>{file}, std::istreambuf_iterator<char>{}};
  }
  return files;
}

std::string random_bytes(unsigned seed, std::size_t length) {
  std::mt19937 random{seed};
  std::string bytes(length, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random() & 0xFF);
  return bytes;
}

std::string bytes_for_image(unsigned seed) {
  return random_bytes(seed, 5656);
}

std::string bytes_for_items(unsigned seed, unsigned count) {
  std::string bytes = random_bytes(seed, 802 + 44 * std::size_t{count});
  bytes[0] = static_cast<char>(count & 0xFF);
  bytes[1] = static_cast<char>(count >> 8);
  return bytes;
}

EmulatorTest::EmulatorTest() {
  write("register/register.txt", fresh_register);
  write("register/PRG_MODE.BIN", bytes_for_image(1));
  write("register/PRG_PLU.BIN", bytes_for_items(2, 3));
  write("register/samples/Z300/PRG_MODE.BIN", bytes_for_image(3));
  write("register/devices.txt", "USB Serial Port (COM4)\n");
}

Outcome EmulatorTest::send_cmd(std::uint8_t direction, std::uint8_t file, std::uint8_t port) const {
  std::string folder = application_folder();
  char* pointer = folder.data();
  Outcome outcome;
  outcome.returned = calls.send_cmd(&pointer, direction, file, &outcome.code, 60, port);
  EXPECT_EQ(pointer, folder.data());
  EXPECT_EQ(folder, application_folder());
  return outcome;
}

Outcome EmulatorTest::range_report(std::uint8_t file, std::int32_t from, std::int32_t to, std::uint8_t port) const {
  std::string folder = application_folder();
  char* pointer = folder.data();
  Outcome outcome;
  outcome.returned = calls.range_report(&pointer, file, &outcome.code, 120, from, to, port);
  return outcome;
}

Outcome EmulatorTest::send_logo(const std::string& name) const {
  std::string folder = application_folder();
  char* pointer = folder.data();
  const std::string bitmaps = host("Dati/");
  Outcome outcome;
  outcome.returned = calls.send_logo(&pointer, bitmaps.c_str(), name.c_str(), &outcome.code, 60);
  return outcome;
}

std::vector<std::pair<std::string, std::function<Outcome()>>> EmulatorTest::each_kind() const {
  write("Dati/LOGO.BMP", "BM and more");
  return {{"upload", [this] { return send_cmd(upload, 0); }},
          {"range report", [this] { return range_report(12); }},
          {"conversion", [this] { return send_logo("LOGO.BMP"); }}};
}

}  // namespace ecr::test

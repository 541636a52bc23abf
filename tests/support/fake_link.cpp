#include "support/fake_link.h"

#include <gtest/gtest.h>

#include "core/files.h"
#include "core/global.h"

namespace ecr::test {
namespace {

std::string relative(const std::string& folder) {
  const std::string application = host_path(Global::PathApp);
  if (folder == application) return ".";
  std::string rest = folder.starts_with(application) ? folder.substr(application.size()) : folder;
  if (rest.ends_with('/')) rest.pop_back();
  return rest;
}

}  // namespace

std::int32_t FakeLink::send_cmd(std::string& folder, std::uint8_t direction, std::uint8_t fileNumber,
                                std::int32_t& resultCode, std::int32_t timeout, std::uint8_t port) {
  calls.push_back("send_cmd folder=" + relative(folder) + " direction=" + std::to_string(direction) + " file=" +
                  std::to_string(fileNumber) + " timeout=" + std::to_string(timeout) + " port=" + std::to_string(port));
  const LinkAnswer given = answer_for(fileNumber, port);
  if (direction == TILBRIDGE_UPLOAD) {
    deliver(fileNumber, given, folder);
  } else {
    const std::string name = fileNumber == 0 ? "PRG_MODE.BIN" : fileNumber == 1 ? "PRG_PLU.BIN" : "GRAPHIC.BIN";
    std::string bytes;
    static_cast<void>(read_file(backslash_path(folder) + "Dati\\" + name, bytes));
    received[fileNumber] = bytes;
  }
  return finish(given, resultCode, folder);
}

std::int32_t FakeLink::range_report(std::string& folder, std::uint8_t fileNumber, std::int32_t& resultCode,
                                    std::int32_t timeout, std::int32_t rangeFrom, std::int32_t rangeTo,
                                    std::uint8_t port) {
  calls.push_back("range_report folder=" + relative(folder) + " file=" + std::to_string(fileNumber) +
                  " timeout=" + std::to_string(timeout) + " from=" + std::to_string(rangeFrom) +
                  " to=" + std::to_string(rangeTo) + " port=" + std::to_string(port));
  const LinkAnswer given = answer_for(fileNumber, port);
  deliver(fileNumber, given, folder);
  return finish(given, resultCode, folder);
}

std::int32_t FakeLink::send_logo(std::string& source, const std::string& target1, const std::string& target2,
                                 std::int32_t& resultCode, std::int32_t timeout) {
  calls.push_back("send_logo source=" + relative(source) + " target1=" + relative(target1) + " target2=" + target2 +
                  " timeout=" + std::to_string(timeout));
  return finish(answer, resultCode, source);
}

void FakeLink::be_a_register(const std::string& banner) {
  deliveries[22] = {"RELEASE.BIN", banner};
  deliveries[12] = {"TIME.bin", "ping"};
}

LinkAnswer FakeLink::answer_for(int fileNumber, int port) const {
  if (register_port != 0 && port != register_port) return {1, 1025};
  const auto found = answers.find(fileNumber);
  return found == answers.end() ? answer : found->second;
}

void FakeLink::deliver(int fileNumber, const LinkAnswer& given, const std::string& folder) const {
  const auto found = deliveries.find(fileNumber);
  if (found == deliveries.end() || given.returned != 1 || given.result_code != 0) return;
  const Fault fault = save_file(backslash_path(folder) + "Dati\\" + found->second.name, found->second.bytes);
  EXPECT_FALSE(fault.stands()) << fault.description();
}

std::int32_t FakeLink::finish(const LinkAnswer& given, std::int32_t& resultCode, std::string& folder) const {
  if (given.returned == 1) resultCode = given.result_code;
  if (!rewritten_folder.empty()) folder = rewritten_folder;
  if (after_call) after_call();
  return given.returned;
}

}  // namespace ecr::test

#pragma once
// A link library for tests: it notes every call and answers as it was told, delivering files into the folder.

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "link/library.h"

namespace ecr::test {

struct LinkAnswer {
  std::int32_t returned = 1;
  std::int32_t result_code = 0;
};

class FakeLink final : public LinkLibrary {
 public:
  /// What every call answers that has no answer of its own.
  LinkAnswer answer;
  /// Answers for one file number, both directions.
  std::map<int, LinkAnswer> answers;
  /// If not 0: a call on any other port ends with 1025.
  int register_port = 0;
  /// Files that a successful upload or range report delivers: by file number, name in Dati\ and bytes.
  struct Delivery {
    std::string name;
    std::string bytes;
  };
  std::map<int, Delivery> deliveries;
  /// What downloads found on disk, by file number.
  std::map<int, std::string> received;
  /// Written back as the folder, if not empty.
  std::string rewritten_folder;
  /// Called at the end of each call.
  std::function<void()> after_call;

  /// Each call as the robot writes it, with the folder "." for the application folder.
  std::vector<std::string> calls;

  std::int32_t send_cmd(std::string& folder, std::uint8_t direction, std::uint8_t fileNumber, std::int32_t& resultCode,
                        std::int32_t timeout, std::uint8_t port) override;
  std::int32_t range_report(std::string& folder, std::uint8_t fileNumber, std::int32_t& resultCode,
                            std::int32_t timeout, std::int32_t rangeFrom, std::int32_t rangeTo,
                            std::uint8_t port) override;
  std::int32_t send_logo(std::string& source, const std::string& target1, const std::string& target2,
                         std::int32_t& resultCode, std::int32_t timeout) override;

  /// A register that answers every release request and link test.
  void be_a_register(const std::string& banner = "ECRZ300/ECRZ320F    FW rel.1.04     ");

 private:
  [[nodiscard]] LinkAnswer answer_for(int fileNumber, int port) const;
  void deliver(int fileNumber, const LinkAnswer& answer, const std::string& folder) const;
  std::int32_t finish(const LinkAnswer& answer, std::int32_t& resultCode, std::string& folder) const;
};

}  // namespace ecr::test

#pragma once
// The one way to the register: the link library's three calls.
//
// A call runs beside the screen thread while the screens stay painted (Shell::run_beside), and only one runs at a time.
// The library is loaded from the application folder at the first call. Where it is missing, or lacks one of the three,
// a line in the log says so, once, and every call answers 0.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "core/shell.h"
#include "link/tilbridge2.h"

namespace ecr {

/// The three calls as the program sees them. Paths are paths of the host; `folder` is taken back from the library after
/// the call. The return value is 1 when the tool could be run, and then `resultCode` tells the outcome; 0 when not.
class LinkLibrary {
 public:
  LinkLibrary() = default;
  LinkLibrary(const LinkLibrary&) = delete;
  LinkLibrary& operator=(const LinkLibrary&) = delete;
  virtual ~LinkLibrary() = default;

  virtual std::int32_t send_cmd(std::string& folder, std::uint8_t direction, std::uint8_t fileNumber,
                                std::int32_t& resultCode, std::int32_t timeout, std::uint8_t port) = 0;
  virtual std::int32_t range_report(std::string& folder, std::uint8_t fileNumber, std::int32_t& resultCode,
                                    std::int32_t timeout, std::int32_t rangeFrom, std::int32_t rangeTo,
                                    std::uint8_t port) = 0;
  virtual std::int32_t send_logo(std::string& source, const std::string& target1, const std::string& target2,
                                 std::int32_t& resultCode, std::int32_t timeout) = 0;
};

/// Texts are in the form of the folder variables; `timeout` is in seconds. `resultCode` is set to 0 before the call.
std::int32_t util_send_cmd_to_ecr(std::string& folder, std::uint8_t direction, std::uint8_t fileNumber,
                                  std::int32_t& resultCode, std::int32_t timeout, std::uint8_t port);
std::int32_t util_get_range_report(std::string& folder, std::uint8_t fileNumber, std::int32_t& resultCode,
                                   std::int32_t timeout, std::int32_t rangeFrom, std::int32_t rangeTo,
                                   std::uint8_t port);
std::int32_t util_send_logo_to_ecr(std::string& source, const std::string& target1, const std::string& target2,
                                   std::int32_t& resultCode, std::int32_t timeout);

/// Whether a call is on its way.
[[nodiscard]] bool link_call_in_flight() noexcept;

/// Calls made while such an object lives leave the screens open to input.
class BackgroundCalls {
 public:
  BackgroundCalls() noexcept;
  BackgroundCalls(const BackgroundCalls&) = delete;
  BackgroundCalls& operator=(const BackgroundCalls&) = delete;
  ~BackgroundCalls();

 private:
  Waiting before_;
};

/// Puts another library in place of the one in the application folder; nullptr goes back to looking for that one.
void install_link_library(std::unique_ptr<LinkLibrary> library);

}  // namespace ecr

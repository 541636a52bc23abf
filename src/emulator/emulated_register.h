#pragma once
// The emulated register behind the link library's three calls: what it is set to do, it does; otherwise it hands over
// and takes files as a register on a cable would. It remembers nothing between two calls: all of it stands in the
// folder register\ of the application folder, and is read afresh each time.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/fault.h"
#include "emulator/day_reports.h"
#include "emulator/memory.h"
#include "emulator/settings.h"

namespace ecr {

/// Each call answers its result code, or nothing if it could not be made.
class EmulatedRegister {
 public:
  /// `application_folder` is a path of the host; its last separator may be missing.
  explicit EmulatedRegister(std::string_view application_folder);

  /// Moves a file: `direction` 0 from the register into Dati\, 1 from there to the register. `timeout` is only noted.
  [[nodiscard]] std::optional<std::int32_t> send_cmd(std::uint8_t direction, std::uint8_t file, std::int32_t timeout,
                                                     std::uint8_t port) const;

  /// Fetches a report over a range of records.
  [[nodiscard]] std::optional<std::int32_t> range_report(std::uint8_t file, std::int32_t timeout, std::int32_t from,
                                                         std::int32_t to, std::uint8_t port) const;

  /// Converts the bitmap `name` in `bitmap_folder`, a path of the host; nullptr stands for an argument that is missing.
  [[nodiscard]] std::optional<std::int32_t> send_logo(const char* bitmap_folder, const char* name,
                                                      std::int32_t timeout) const;

 private:
  using Work = std::function<std::int32_t(const RegisterSettings&)>;

  [[nodiscard]] std::optional<std::int32_t> call(const std::string& note, std::optional<std::uint8_t> file,
                                                 const Work& work) const;
  void append_to_calls(const std::string& note) const;
  /// Draws a receipt anew, with the logo that is held and the last sale of the journal.
  void draw_a_receipt() const;
  void trade_days(RegisterSettings& settings) const;
  [[nodiscard]] std::int32_t upload(std::uint8_t file, const RegisterSettings& settings) const;
  [[nodiscard]] std::int32_t download(std::uint8_t file) const;
  [[nodiscard]] std::int32_t report(std::uint8_t file, const std::optional<trading::Range>& range) const;
  [[nodiscard]] std::int32_t deliver(std::string_view name, std::string_view bytes) const;

  std::string given_;     // as it came in
  std::string folder_;    // of the application
  std::string register_;  // its own
  RegisterMemory memory_;
};

/// The result codes that stand for a fault of the host's files.
[[nodiscard]] std::int32_t code_of_reading(const Fault& fault);
[[nodiscard]] std::int32_t code_of_writing(const Fault& fault, bool file_was_there);

}  // namespace ecr

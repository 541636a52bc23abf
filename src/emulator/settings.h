#pragma once
// How the emulated register is set: the text file register.txt, which people edit. docs/formats/emulated-register.md
// tells every key.

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace ecr {

/// The text of such a file: "key = value" a line, a line that begins with "#" is a comment, any other line means
/// nothing. Takes any bytes. A key may be written in either case; where one stands twice the last line counts.
class SettingsText {
 public:
  SettingsText() = default;
  explicit SettingsText(std::string bytes) : bytes_{std::move(bytes)} {}

  /// What stands behind "=", without the one blank that may follow it. Nothing if the key has no line.
  [[nodiscard]] std::optional<std::string_view> value(std::string_view key) const;

  /// Gives the key another value, on its own line or, if it has none, on a new last line. Every other byte stays.
  void set(std::string_view key, std::string_view value);

  [[nodiscard]] const std::string& bytes() const noexcept { return bytes_; }

 private:
  struct Span {
    std::size_t start;
    std::size_t length;
  };
  [[nodiscard]] std::optional<Span> find(std::string_view key) const;

  std::string bytes_;
};

/// The settings as one call finds them. A key that is missing, or whose value makes no sense, counts as on a fresh
/// register; so does the whole of a file that is missing, cannot be read or is longer than one mebibyte.
class RegisterSettings {
 public:
  /// Reads register.txt in `folder`, which ends with a backslash.
  explicit RegisterSettings(std::string_view folder);

  /// The port on which the register answers, 1 to 255; 0 for none.
  [[nodiscard]] std::uint8_t port() const;

  /// The firmware banner, 36 bytes.
  [[nodiscard]] std::string banner() const;

  /// The name of the file that carries the banner, empty for a firmware that knows none.
  [[nodiscard]] std::string_view release_file() const;

  /// How long a call takes, up to an hour.
  [[nodiscard]] std::chrono::milliseconds delay() const;

  // A call that moves nothing by number, which is the conversion of a picture, has no `file`.

  /// Whether the call cannot be made at all.
  [[nodiscard]] bool fails(std::optional<std::uint8_t> file) const;

  /// The result code that the call ends with; 0: as it goes.
  [[nodiscard]] std::int32_t answer(std::optional<std::uint8_t> file) const;

  /// The result code that the conversion of a picture ends with; nothing: as it goes.
  [[nodiscard]] std::optional<std::int32_t> logo_answer() const;

  /// Whether this call leaves the exchange tool hanging.
  [[nodiscard]] bool hangs(std::optional<std::uint8_t> file) const;

  /// The number that the days of trading follow.
  [[nodiscard]] std::uint64_t seed() const;

  /// How many days are to be traded now, up to a year.
  [[nodiscard]] int days_to_trade() const;

  /// Writes into the file that no more days are to be traded. Answers whether it says so now.
  [[nodiscard]] bool trade_no_more();

  /// Writes into the file that the next call does not hang. A file that cannot be written stays as it is.
  void hang_no_more();

 private:
  [[nodiscard]] std::optional<std::string_view> word(std::string_view key) const;
  [[nodiscard]] std::optional<std::string_view> word(std::string_view key, std::optional<std::uint8_t> file) const;

  std::string path_;
  SettingsText text_;
};

}  // namespace ecr

#include "emulator/settings.h"

#include <charconv>
#include <limits>
#include <system_error>
#include <utility>

#include "core/files.h"
#include "core/text.h"

namespace ecr {
namespace {

constexpr std::size_t longest_file = 1024 * 1024;
constexpr std::uint8_t fresh_port = 4;
constexpr std::string_view fresh_banner = "ECRZ300/ECRZ320F    FW rel.1.04";
constexpr std::size_t banner_size = 36;
constexpr double longest_delay = 3600;
constexpr std::uint64_t fresh_seed = 1;
constexpr int most_days = 366;

/// Some editors put these bytes in front of a text.
constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

/// People indent and align, so that tabs count as blanks here.
std::string_view without_blanks(std::string_view text) {
  constexpr std::string_view blanks = " \t";
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

bool reads(std::string_view text, std::string_view word) {
  return lower_ascii(text) == word;
}

/// The number that the whole text says; nothing if it is no number or does not fit.
template <typename Number>
std::optional<Number> number_in(std::string_view text) {
  Number number{};
  const auto [rest, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (fault != std::errc{} || rest != text.data() + text.size()) return std::nullopt;
  return number;
}

/// A result code: decimal, or hexadecimal behind "0x" as the codes of the conversion are usually written.
std::optional<std::int32_t> code_in(std::string_view text) {
  if (!reads(text.substr(0, 2), "0x")) return number_in<std::int32_t>(text);
  text.remove_prefix(2);
  std::uint32_t code = 0;
  const auto [rest, fault] = std::from_chars(text.data(), text.data() + text.size(), code, 16);
  if (fault != std::errc{} || rest != text.data() + text.size()) return std::nullopt;
  return static_cast<std::int32_t>(code);
}

SettingsText read_settings(const std::string& path) {
  std::string bytes;
  const Fault fault = read_file(path, bytes, longest_file + 1);
  return fault.stands() || bytes.size() > longest_file ? SettingsText{} : SettingsText{std::move(bytes)};
}

}  // namespace

std::optional<SettingsText::Span> SettingsText::find(std::string_view key) const {
  const std::string wanted = lower_ascii(key);
  std::optional<Span> found;
  for (const std::string_view whole_line : lines_of(bytes_)) {
    std::string_view line = whole_line;
    if (line.data() == bytes_.data() && line.starts_with(byte_order_mark)) line.remove_prefix(byte_order_mark.size());
    const std::size_t sign = line.find('=');
    if (sign == std::string_view::npos || !reads(without_blanks(line.substr(0, sign)), wanted)) continue;
    line.remove_prefix(sign + 1);
    if (line.starts_with(' ')) line.remove_prefix(1);
    found = Span{static_cast<std::size_t>(line.data() - bytes_.data()), line.size()};
  }
  return found;
}

std::optional<std::string_view> SettingsText::value(std::string_view key) const {
  const std::optional<Span> span = find(key);
  if (!span) return std::nullopt;
  return std::string_view{bytes_}.substr(span->start, span->length);
}

void SettingsText::set(std::string_view key, std::string_view value) {
  if (const std::optional<Span> span = find(key)) {
    bytes_.replace(span->start, span->length, value);
    return;
  }
  if (!bytes_.empty() && bytes_.back() != '\n' && bytes_.back() != '\r') bytes_ += '\n';
  bytes_.append(key).append(" = ").append(value).append("\n");
}

RegisterSettings::RegisterSettings(std::string_view folder)
    : path_{std::string{folder} + "register.txt"}, text_{read_settings(path_)} {}

std::uint8_t RegisterSettings::port() const {
  return number_in<std::uint8_t>(word("port").value_or("")).value_or(fresh_port);
}

std::string RegisterSettings::banner() const {
  return padded(text_.value("banner").value_or(fresh_banner), banner_size);
}

std::string_view RegisterSettings::release_file() const {
  const std::string_view name = word("release").value_or("");
  if (reads(name, "none")) return {};
  return reads(name, "relea.bin") ? "RELEA.BIN" : "RELEASE.BIN";
}

std::chrono::milliseconds RegisterSettings::delay() const {
  const double seconds = number_in<double>(word("delay").value_or("")).value_or(0);
  // Also what is no number at all fails this test.
  if (!(seconds > 0 && seconds <= longest_delay)) return {};
  return std::chrono::milliseconds{static_cast<int>(seconds * 1000)};
}

bool RegisterSettings::fails(std::optional<std::uint8_t> file) const {
  return reads(word("fails", file).value_or(""), "yes");
}

std::int32_t RegisterSettings::answer(std::optional<std::uint8_t> file) const {
  return code_in(word("answer", file).value_or("")).value_or(0);
}

std::optional<std::int32_t> RegisterSettings::logo_answer() const {
  return code_in(word("logo").value_or(""));
}

bool RegisterSettings::hangs(std::optional<std::uint8_t> file) const {
  const std::string_view value = word("hang").value_or("");
  return reads(value, "next") || (file && number_in<std::uint8_t>(value) == file);
}

std::uint64_t RegisterSettings::seed() const {
  return number_in<std::uint64_t>(word("seed").value_or("")).value_or(fresh_seed);
}

int RegisterSettings::days_to_trade() const {
  const int days = number_in<int>(word("trade").value_or("")).value_or(0);
  return days > 0 && days <= most_days ? days : 0;
}

bool RegisterSettings::trade_no_more() {
  text_.set("trade", "0");
  return !save_file(path_, text_.bytes()).stands();
}

void RegisterSettings::hang_no_more() {
  text_.set("hang", "no");
  static_cast<void>(save_file(path_, text_.bytes()));
}

std::optional<std::string_view> RegisterSettings::word(std::string_view key) const {
  const std::optional<std::string_view> value = text_.value(key);
  return value ? std::optional{without_blanks(*value)} : std::nullopt;
}

/// The value for this one file number, where there is one, goes before the one for all.
std::optional<std::string_view> RegisterSettings::word(std::string_view key, std::optional<std::uint8_t> file) const {
  if (file) {
    if (const auto own = word(std::string{key} + "." + std::to_string(*file))) return own;
  }
  return word(key);
}

}  // namespace ecr

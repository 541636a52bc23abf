#include "emulator/emulated_register.h"

#include <filesystem>
#include <system_error>
#include <thread>

#include "core/files.h"
#include "core/system.h"
#include "emulator/logo_conversion.h"
#include "emulator/receipt.h"
#include "emulator/trading.h"
#include "link/report_rows.h"
#include "link/tilbridge2.h"

namespace ecr {
namespace {

std::string folder_form(std::string_view host) {
  std::string folder = backslash_path(host);
  if (!folder.empty() && folder.back() != '\\') folder += '\\';
  return folder;
}

bool missing(const Fault& fault) {
  return fault.code == FaultCode::file_not_found || fault.code == FaultCode::path_not_found;
}

bool port_answers(std::uint8_t port, const RegisterSettings& settings) {
  return port != 0 && port == settings.port();
}

bool is_report(std::uint8_t file) {
  return report_numbered(file) != nullptr && file != TILBRIDGE_FILE_RELEASE;
}

std::string_view text_of(const char* text) {
  return text == nullptr ? std::string_view{} : std::string_view{text};
}

}  // namespace

std::int32_t code_of_reading(const Fault& fault) {
  return fault.code == FaultCode::device_error ? TILBRIDGE_CODE_FILE_NOT_READ : TILBRIDGE_CODE_FILE_NOT_OPENED;
}

std::int32_t code_of_writing(const Fault& fault, bool file_was_there) {
  const bool failed_midway = fault.code == FaultCode::disk_full || fault.code == FaultCode::device_error;
  return failed_midway || file_was_there ? TILBRIDGE_CODE_FILE_NOT_WRITTEN : TILBRIDGE_CODE_FILE_NOT_MADE;
}

EmulatedRegister::EmulatedRegister(std::string_view application_folder)
    : given_{application_folder},
      folder_{folder_form(application_folder)},
      register_{folder_ + "register\\"},
      memory_{register_} {}

std::optional<std::int32_t> EmulatedRegister::send_cmd(std::uint8_t direction, std::uint8_t file, std::int32_t timeout,
                                                       std::uint8_t port) const {
  const std::string note = "send_cmd folder=" + given_ + " direction=" + std::to_string(direction) +
                           " file=" + std::to_string(file) + " timeout=" + std::to_string(timeout) +
                           " port=" + std::to_string(port);
  return call(note, file, [this, direction, file, port](const RegisterSettings& settings) -> std::int32_t {
    if (!port_answers(port, settings)) return TILBRIDGE_CODE_PORT_NOT_OPENED;
    if (direction > TILBRIDGE_DOWNLOAD) return TILBRIDGE_CODE_ILLEGAL_DIRECTION;
    if (file > TILBRIDGE_FILE_RELEASE) return TILBRIDGE_CODE_NO_SUCH_FILE_NUMBER;
    return direction == TILBRIDGE_UPLOAD ? upload(file, settings) : download(file);
  });
}

std::optional<std::int32_t> EmulatedRegister::range_report(std::uint8_t file, std::int32_t timeout, std::int32_t from,
                                                           std::int32_t to, std::uint8_t port) const {
  const std::string note = "range_report folder=" + given_ + " file=" + std::to_string(file) +
                           " timeout=" + std::to_string(timeout) + " from=" + std::to_string(from) +
                           " to=" + std::to_string(to) + " port=" + std::to_string(port);
  return call(note, file, [this, file, from, to, port](const RegisterSettings& settings) -> std::int32_t {
    if (!port_answers(port, settings)) return TILBRIDGE_CODE_PORT_NOT_OPENED;
    if (!is_report(file)) return TILBRIDGE_CODE_NO_SUCH_FILE_NUMBER;
    return from > to ? TILBRIDGE_CODE_RANGE_REVERSED : report(file, trading::Range{from, to});
  });
}

std::optional<std::int32_t> EmulatedRegister::send_logo(const char* bitmap_folder, const char* name,
                                                        std::int32_t timeout) const {
  const std::string note = "send_logo source=" + given_ + " target1=" + std::string{text_of(bitmap_folder)} +
                           " target2=" + std::string{text_of(name)} + " timeout=" + std::to_string(timeout);
  return call(note, std::nullopt, [bitmap_folder, name](const RegisterSettings& settings) {
    const std::optional<std::int32_t> set = settings.logo_answer();
    if (set && !says_converted(*set)) return *set;
    if (bitmap_folder == nullptr || name == nullptr) return set.value_or(TILBRIDGE_LOGO_ILLEGAL_PARAMETER_COUNT);
    const std::int32_t code = convert_logo(folder_form(bitmap_folder), name);
    return set.value_or(code);
  });
}

/// What every call goes through before its own work begins, if it comes to that.
std::optional<std::int32_t> EmulatedRegister::call(const std::string& note, std::optional<std::uint8_t> file,
                                                   const Work& work) const {
  append_to_calls(note);
  RegisterSettings settings{register_};
  trade_days(settings);
  if (settings.fails(file)) return std::nullopt;
  std::this_thread::sleep_for(settings.delay());
  if (settings.hangs(file)) {
    settings.hang_no_more();
    // Where there is no such program the call has timed out all the same.
    static_cast<void>(system_layer().start_minimised(host_path(folder_ + "regwire.exe"), {}));
    return TILBRIDGE_CODE_TIMEOUT;
  }
  if (const std::int32_t code = settings.answer(file); code != TILBRIDGE_CODE_DONE) return code;
  return work(settings);
}

/// Trades what it was told to. Where the line that tells it cannot be cleared it would trade at every call: then not at
/// all. What keeps it from trading is no matter of the call.
void EmulatedRegister::trade_days(RegisterSettings& settings) const {
  const int days = settings.days_to_trade();
  if (days == 0 || !settings.trade_no_more()) return;
  for (int day = 0; day < days; ++day) {
    if (!trading::trade(register_, settings.seed(), trading::TradedDay::next).empty()) break;
  }
  draw_a_receipt();
}

void EmulatedRegister::draw_a_receipt() const {
  // The picture is for whoever looks; the register goes on without it.
  static_cast<void>(draw_receipt(register_, trading::journal_in(register_)));
}

void EmulatedRegister::append_to_calls(const std::string& note) const {
  const std::string path = host_path(register_ + "calls.txt");
  std::error_code ignored;
  // Whoever wants the calls noted makes the file.
  if (!std::filesystem::is_regular_file(path, ignored)) return;
  static_cast<void>(system_layer().append_file(path, note + "\n"));
}

std::int32_t EmulatedRegister::upload(std::uint8_t file, const RegisterSettings& settings) const {
  if (is_report(file)) return report(file, std::nullopt);
  if (file == TILBRIDGE_FILE_RELEASE) {
    const std::string_view name = settings.release_file();
    return name.empty() ? TILBRIDGE_CODE_REFUSED : deliver(name, settings.banner());
  }
  std::string bytes;
  const Fault fault = memory_.fetch(file, bytes);
  return fault.stands() ? code_of_reading(fault) : deliver(RegisterMemory::file_name(file), bytes);
}

std::int32_t EmulatedRegister::download(std::uint8_t file) const {
  if (file > TILBRIDGE_FILE_LOGO) return TILBRIDGE_CODE_REPORT_DOWNLOAD;
  const std::string_view name = RegisterMemory::file_name(file);
  std::string bytes;
  // One byte more than fits tells a file that is too long.
  const Fault not_read = read_file(folder_ + "Dati\\" + std::string{name}, bytes, RegisterMemory::longest(file) + 1);
  if (not_read.stands()) return code_of_reading(not_read);
  if (!RegisterMemory::fits(file, bytes)) return TILBRIDGE_CODE_REFUSED;
  const bool held_before = file_exists(register_ + std::string{name});
  const Fault not_held = memory_.hold(file, bytes);
  if (not_held.stands()) return code_of_writing(not_held, held_before);
  if (file == TILBRIDGE_FILE_LOGO || file == TILBRIDGE_FILE_IMAGE) draw_a_receipt();
  return TILBRIDGE_CODE_DONE;
}

std::int32_t EmulatedRegister::report(std::uint8_t file, const std::optional<trading::Range>& range) const {
  std::string bytes;
  const Fault fault = read_file(register_ + "reports\\" + std::to_string(file) + ".bin", bytes);
  if (missing(fault)) {
    bytes = trading::report_of(register_, file, range);
  } else if (fault.stands()) {
    return code_of_reading(fault);
  }
  return deliver(std::string{report_name(file)} + ".bin", bytes);
}

std::int32_t EmulatedRegister::deliver(std::string_view name, std::string_view bytes) const {
  const std::string path = folder_ + "Dati\\" + std::string{name};
  const bool there_before = file_exists(path);
  const Fault fault = save_file(path, bytes);
  return fault.stands() ? code_of_writing(fault, there_before) : TILBRIDGE_CODE_DONE;
}

}  // namespace ecr

#include "platform/windows/windows_error.h"

#include <array>
#include <cstddef>

#include "platform/windows/wide_text.h"

namespace ecr {
namespace {

// Not every compiler's headers name these two.
constexpr DWORD elevation_required = 740;
constexpr DWORD disk_quota_exceeded = 1295;

}  // namespace

Fault fault_of_windows(DWORD error) noexcept {
  switch (error) {
    case ERROR_SUCCESS:
      return {};
    case ERROR_FILE_NOT_FOUND:
      return {FaultCode::file_not_found};
    case ERROR_PATH_NOT_FOUND:
    case ERROR_DIRECTORY:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
      return {FaultCode::path_not_found};
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
    case ERROR_DIR_NOT_EMPTY:
      return {FaultCode::file_exists};
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case disk_quota_exceeded:
      return {FaultCode::disk_full};
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_DELETE_PENDING:
    case elevation_required:
      return {FaultCode::permission_denied};
    case ERROR_WRITE_PROTECT:
      return {FaultCode::path_access};
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_INVALID_PARAMETER:
      return {FaultCode::bad_file_name};
    default:
      return {FaultCode::device_error};
  }
}

std::string text_of_windows(DWORD error, std::string_view subject) {
  // Nobody hands in values for the texts' placeholders: the system must leave them alone.
  constexpr DWORD flags = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
  std::array<wchar_t, 1024> buffer{};
  const DWORD length =
      ::FormatMessageW(flags, nullptr, error, 0, buffer.data(), static_cast<DWORD>(buffer.size()), nullptr);
  std::string text = narrow({buffer.data(), length});
  text.resize(text.find_last_not_of(" \r\n") + 1);
  for (std::size_t at = text.find_first_of("\r\n"); at != std::string::npos; at = text.find_first_of("\r\n", at)) {
    const std::size_t behind = text.find_first_not_of("\r\n", at);
    text.replace(at, behind - at, " ");
  }
  constexpr std::string_view placeholder = "%1";
  if (const std::size_t at = text.find(placeholder); at != std::string::npos) {
    text.replace(at, placeholder.size(), subject);
  }
  return text.empty() ? "System error " + std::to_string(error) : text;
}

}  // namespace ecr

#include "platform/windows/windows_files.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/unfinished_save.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_error.h"
#include "platform/windows/windows_handle.h"

namespace ecr {
namespace {

constexpr DWORD share_all = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Answers ERROR_SUCCESS or the error of the failure.
DWORD write_all(HANDLE file, std::string_view bytes) {
  constexpr std::size_t step = 1U << 20U;
  while (!bytes.empty()) {
    DWORD written = 0;
    if (::WriteFile(file, bytes.data(), static_cast<DWORD>(std::min(bytes.size(), step)), &written, nullptr) == 0) {
      return ::GetLastError();
    }
    bytes.remove_prefix(written);
  }
  return ERROR_SUCCESS;
}

bool is_folder(DWORD attributes) {
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// Where the open file really lies, behind links; `path` itself where the file's system cannot tell.
std::wstring resolved(HANDLE file, const std::wstring& path) {
  const DWORD room = ::GetFinalPathNameByHandleW(file, nullptr, 0, FILE_NAME_NORMALIZED);
  if (room == 0) return path;
  std::wstring target(room, L'\0');
  const DWORD length = ::GetFinalPathNameByHandleW(file, target.data(), room, FILE_NAME_NORMALIZED);
  if (length == 0 || length >= room) return path;
  target.resize(length);
  return target;
}

/// A wide text byte by byte, and back: a link may lead to a name that the code page lacks.
std::string packed(const std::wstring& text) {
  return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)};
}
std::wstring unpacked(const std::string& bytes) {
  std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
  std::memcpy(text.data(), bytes.data(), text.size() * sizeof(wchar_t));
  return text;
}

/// A file that nobody else has, beside `target`, under a name that becomes `name`. When it cannot be made, the error is
/// the thread's last one.
WindowsHandle file_beside(const std::wstring& target, DWORD attributes, std::wstring& name) {
  constexpr int attempts = 100;
  LARGE_INTEGER ticks{};
  ::QueryPerformanceCounter(&ticks);
  auto number =
      static_cast<std::uint32_t>(ticks.QuadPart) ^ (static_cast<std::uint32_t>(::GetCurrentProcessId()) << 16U);
  for (int attempt = 1;; ++attempt, ++number) {
    name = target + wide(unfinished_save_ending(number));
    WindowsHandle file{::CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, attributes, nullptr)};
    if (file.open() || ::GetLastError() != ERROR_FILE_EXISTS || attempt == attempts) return file;
  }
}

/// Gives `fresh` the name `target`, whether that is taken or not. This is one rename for the file system;
/// ReplaceFileW would make two of it, with a moment between them in which no file has the name.
DWORD rename_over(const std::wstring& fresh, const std::wstring& target) {
  // Virus scanners and indexers open a file for a moment as soon as it was written; that is no reason to fail.
  constexpr int attempts = 20;
  constexpr DWORD pause_ms = 10;
  for (int attempt = 1;; ++attempt) {
    if (::MoveFileExW(fresh.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0) {
      return ERROR_SUCCESS;
    }
    const DWORD error = ::GetLastError();
    const bool may_pass = error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION;
    if (!may_pass || attempt == attempts) return error;
    ::Sleep(pause_ms);
  }
}

}  // namespace

Fault windows_write_beside(const std::string& path, std::string_view bytes, FreshFile& fresh) {
  std::wstring target = wide(path);
  DWORD attributes = ::GetFileAttributesW(target.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    attributes = 0;
  } else if (is_folder(attributes)) {
    return {FaultCode::path_access};
  } else if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) {
    return {FaultCode::permission_denied};
  } else {
    // Whoever may not write the old file, or finds it held by another process, must not replace it either.
    const WindowsHandle old{::CreateFileW(target.c_str(), GENERIC_WRITE, share_all, nullptr, OPEN_EXISTING,
                                          FILE_ATTRIBUTE_NORMAL, nullptr)};
    const DWORD error = old.open() ? ERROR_SUCCESS : ::GetLastError();
    const bool link_to_nothing = error == ERROR_FILE_NOT_FOUND;
    if (error != ERROR_SUCCESS && !link_to_nothing) return fault_of_windows(error);
    if (old.open() && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) target = resolved(old.get(), target);
  }

  constexpr DWORD kept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
  std::wstring name;
  WindowsHandle file = file_beside(target, FILE_ATTRIBUTE_ARCHIVE | (attributes & kept), name);
  if (!file.open()) return fault_of_windows(::GetLastError());
  DWORD error = write_all(file.get(), bytes);
  if (error == ERROR_SUCCESS && ::FlushFileBuffers(file.get()) == 0) error = ::GetLastError();
  file.close();
  if (error != ERROR_SUCCESS) ::DeleteFileW(name.c_str());
  fresh = {packed(name), packed(target)};
  return fault_of_windows(error);
}

Fault windows_rename_over(const FreshFile& fresh) {
  const std::wstring name = unpacked(fresh.path);
  const DWORD error = rename_over(name, unpacked(fresh.target));
  if (error != ERROR_SUCCESS) ::DeleteFileW(name.c_str());
  return fault_of_windows(error);
}

Fault windows_append_file(const std::string& path, std::string_view bytes) {
  const std::wstring target = wide(path);
  const WindowsHandle file{::CreateFileW(target.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                                         FILE_ATTRIBUTE_NORMAL, nullptr)};
  if (file.open()) return fault_of_windows(write_all(file.get(), bytes));
  const DWORD error = ::GetLastError();
  return is_folder(::GetFileAttributesW(target.c_str())) ? Fault{FaultCode::path_access} : fault_of_windows(error);
}

}  // namespace ecr

#include "robot/runner/host.h"

#include <windows.h>

// behind windows.h, which it needs
#include <array>
#include <cstdio>
#include <memory>
#include <string_view>
#include <tlhelp32.h>

namespace ecr::robot {
namespace {

struct CloseHandleOf {
  using pointer = HANDLE;
  void operator()(HANDLE handle) const { ::CloseHandle(handle); }
};
using Handle = std::unique_ptr<HANDLE, CloseHandleOf>;

std::string utf8_of(std::wstring_view wide) {
  const int length = static_cast<int>(wide.size());
  const int size = ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
  std::string text(static_cast<std::size_t>(size), '\0');
  ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, text.data(), size, nullptr, nullptr);
  return text;
}

std::string executable_of(DWORD id) {
  const Handle process{::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id)};
  if (!process) return {};
  DWORD code = 0;
  if (::GetExitCodeProcess(process.get(), &code) && code != STILL_ACTIVE) return {};
  std::array<wchar_t, 32768> path{};
  DWORD length = path.size();
  if (!::QueryFullProcessImageNameW(process.get(), 0, path.data(), &length)) return {};
  return utf8_of({path.data(), length});
}

}  // namespace

std::vector<HostProcess> running_processes() {
  std::vector<HostProcess> processes;
  const HANDLE taken = ::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  if (taken == INVALID_HANDLE_VALUE) return processes;
  const Handle snapshot{taken};
  PROCESSENTRY32W entry{};
  entry.dwSize = sizeof entry;
  for (BOOL more = ::Process32FirstW(snapshot.get(), &entry); more; more = ::Process32NextW(snapshot.get(), &entry)) {
    std::string executable = executable_of(entry.th32ProcessID);
    if (!executable.empty()) processes.push_back({entry.th32ProcessID, std::move(executable)});
  }
  return processes;
}

void end_process(std::int64_t id) {
  const Handle process{::OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, static_cast<DWORD>(id))};
  if (!process) return;
  ::TerminateProcess(process.get(), 1);
  // Its files can be removed only when it is really gone.
  constexpr DWORD patience = 5000;
  ::WaitForSingleObject(process.get(), patience);
}

bool paths_ignore_case() {
  return true;
}

std::string executable_suffix() {
  return ".exe";
}

std::string crash_text(int code) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "exception %08X", static_cast<unsigned>(code));
  return text.data();
}

}  // namespace ecr::robot

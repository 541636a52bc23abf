#include "platform/windows/windows_processes.h"

#include <cstddef>
#include <limits>
#include <string_view>

#include "platform/windows/wide_text.h"
#include "platform/windows/windows_error.h"
#include "platform/windows/windows_handle.h"

// It needs what windows_api.h brings in.
#include <tlhelp32.h>

namespace ecr {
namespace {

/// All rights, as the mask that every release of the system takes.
constexpr DWORD all_access = 0x1F0FFF;

/// A word as the receiving program's start code takes it apart again: a backslash counts as itself unless a row of them
/// ends in a quote, where each is doubled.
std::wstring in_quotes(std::wstring_view word) {
  std::wstring text{L'"'};
  std::size_t backslashes = 0;
  for (const wchar_t c : word) {
    if (c == L'"') text.append(backslashes + 1, L'\\');
    backslashes = c == L'\\' ? backslashes + 1 : 0;
    text += c;
  }
  text.append(backslashes, L'\\');
  text += L'"';
  return text;
}

/// Quotes stand only where they must: some old tools take their command line as it is.
std::wstring as_argument(std::wstring_view word) {
  const bool plain = !word.empty() && word.find_first_of(L" \t\n\v\"") == std::wstring_view::npos;
  return plain ? std::wstring{word} : in_quotes(word);
}

}  // namespace

std::vector<ProcessEntry> windows_processes() {
  std::vector<ProcessEntry> entries;
  const WindowsHandle snapshot{::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0)};
  if (!snapshot.open()) return entries;
  PROCESSENTRY32W entry{};
  entry.dwSize = sizeof entry;
  for (BOOL more = ::Process32FirstW(snapshot.get(), &entry); more != 0;
       more = ::Process32NextW(snapshot.get(), &entry)) {
    entries.push_back({entry.th32ProcessID, narrow(static_cast<const wchar_t*>(entry.szExeFile))});
  }
  return entries;
}

bool windows_end_process(std::uint64_t id) {
  if (id > std::numeric_limits<DWORD>::max()) return false;
  const WindowsHandle process{::OpenProcess(all_access, FALSE, static_cast<DWORD>(id))};
  return process.open() && ::TerminateProcess(process.get(), 0) != 0;
}

Fault windows_start_minimised(const std::string& program, const std::vector<std::string>& arguments) {
  const std::wstring executable = wide(program);
  std::wstring command_line = in_quotes(executable);
  for (const std::string& argument : arguments) command_line += L" " + as_argument(wide(argument));

  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_SHOWMINNOACTIVE;
  PROCESS_INFORMATION started{};
  // The program is named apart from its command line: nothing is searched for, and blanks in folders mean nothing.
  if (::CreateProcessW(executable.c_str(), command_line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                       &started) == 0) {
    return fault_of_windows(::GetLastError());
  }
  const WindowsHandle process{started.hProcess};
  const WindowsHandle thread{started.hThread};
  return {};
}

}  // namespace ecr

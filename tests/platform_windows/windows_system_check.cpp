// Checks the system layer on a running system. Each sentence that does not hold is written out; the exit code tells
// whether there was one. The program starts itself a second time, to have a process that it may look at and end.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/unfinished_save.h"
#include "platform/platform.h"
#include "platform/windows/com_pointer.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_api.h"
#include "platform/windows/windows_devices.h"
#include "platform/windows/windows_error.h"
#include "platform/windows/windows_handle.h"
#include "platform/windows/windows_version.h"

// It needs what windows_api.h brings in.
#include <shellapi.h>

namespace ecr::test {
namespace fs = std::filesystem;
namespace {

constexpr DWORD share_all = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr std::string_view child_word = "--child";

int checks = 0;
int failures = 0;

void check(bool holds, std::string_view sentence) {
  ++checks;
  if (holds) return;
  ++failures;
  std::printf("FAILED: %.*s\n", static_cast<int>(sentence.size()), sentence.data());
}

void not_checked(const char* reason, const char* sentence) {
  std::printf("  not checked, %s: %s\n", reason, sentence);
}

/// How many handles this process has; 0 where the system does not count them.
DWORD handles_in_use() {
  DWORD count = 0;
  return ::GetProcessHandleCount(::GetCurrentProcess(), &count) != 0 ? count : 0;
}

void section(const char* name) {
  std::printf("%s\n", name);
}

std::string executable() {
  std::array<wchar_t, 4096> path{};
  const DWORD length = ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
  return narrow({path.data(), length});
}

std::string folder_of(const std::string& path) {
  return path.substr(0, path.rfind('\\') + 1);
}
std::string name_of(const std::string& path) {
  return path.substr(path.rfind('\\') + 1);
}

/// An own folder below the system's temporary one, removed behind.
class Folder {
 public:
  Folder() {
    std::array<wchar_t, MAX_PATH + 1> temporary{};
    ::GetTempPathW(static_cast<DWORD>(temporary.size()), temporary.data());
    path_ = std::wstring{temporary.data()} + L"system-check-" + std::to_wstring(::GetCurrentProcessId());
    fs::create_directories(path_);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }

  [[nodiscard]] std::wstring wide_path(const std::wstring& name) const { return path_ + L"\\" + name; }
  [[nodiscard]] std::string path(std::string_view name) const { return narrow(wide_path(wide(name))); }

  void write(std::string_view name, std::string_view content) const {
    std::ofstream file{fs::path{wide_path(wide(name))}, std::ios::binary};
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
  }
  [[nodiscard]] std::string bytes(std::string_view name) const { return bytes_of_wide(wide(name)); }
  [[nodiscard]] std::string bytes_of_wide(const std::wstring& name) const {
    std::ifstream file{fs::path{wide_path(name)}, std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, std::istreambuf_iterator<char>{}};
  }
  [[nodiscard]] std::size_t files() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator{path_}, fs::directory_iterator{}));
  }
  [[nodiscard]] std::ptrdiff_t files_that(bool (*has_such_a_name)(std::string_view)) const {
    return std::count_if(
        fs::directory_iterator{path_}, fs::directory_iterator{},
        [=](const fs::directory_entry& entry) { return has_such_a_name(narrow(entry.path().filename().wstring())); });
  }
  /// A handle to a file that exists, shared with others in this way.
  [[nodiscard]] WindowsHandle held(std::string_view name, DWORD access, DWORD share) const {
    return WindowsHandle{
        ::CreateFileW(wide_path(wide(name)).c_str(), access, share, nullptr, OPEN_EXISTING, 0, nullptr)};
  }

 private:
  std::wstring path_;
};

void check_replacing(const Folder& folder) {
  section("replacing files");
  System& system = host_system();
  const std::string path = folder.path("image.bin");
  const std::string all_bytes = [] {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    return bytes;
  }();

  check(!system.replace_file(path, all_bytes).stands(), "a new file is made");
  check(folder.bytes("image.bin") == all_bytes, "a new file holds the bytes, line ends and all");
  check(!system.replace_file(path, "short").stands() && folder.bytes("image.bin") == "short",
        "a longer file is replaced whole");
  const std::string large(3'000'000, 'x');
  check(!system.replace_file(path, large).stands() && folder.bytes("image.bin") == large, "a large file is written");
  check(!system.replace_file(path, "").stands() && folder.bytes("image.bin").empty(), "an empty file is written");
  check(folder.files() == 1, "nothing is left beside the file");

  check(!system.replace_file(folder.path("Pr\x80is \xE9.bin"), "euro").stands() &&
            folder.bytes_of_wide(L"Pr\u20ACis \u00E9.bin") == "euro",
        "a path is read in the fixed code page");

  check(system.replace_file(folder.path("none\\image.bin"), "x").code == FaultCode::path_not_found,
        "a missing folder is a path not found");
  fs::create_directory(folder.wide_path(L"below"));
  check(system.replace_file(folder.path("below"), "x").code == FaultCode::path_access,
        "a folder is no file to replace");
  check(system.replace_file(folder.path("a*b"), "x").code == FaultCode::bad_file_name, "a star makes a bad file name");

  FreshFile fresh;
  check(!system.write_beside(path, "half", fresh).stands() && folder.bytes("image.bin").empty(),
        "a save that is cut off before its rename leaves the old file");
  check(folder.files_that(is_unfinished_save) == 1, "what it leaves has the name of an unfinished save");
  check(!system.rename_over(fresh).stands() && folder.bytes("image.bin") == "half", "the rename ends the save");
  check(folder.files_that(is_unfinished_save) == 0, "and leaves nothing beside the file");
  check(system.rename_over(fresh).code == FaultCode::file_not_found, "a new file that is gone is told as such");
  check(!system.flush_folder_of(fresh.target).stands(), "the folder needs no flush of its own");

  folder.write("hidden.bin", "old");
  const std::wstring hidden = folder.wide_path(L"hidden.bin");
  ::SetFileAttributesW(hidden.c_str(), FILE_ATTRIBUTE_HIDDEN);
  const bool was_hidden = (::GetFileAttributesW(hidden.c_str()) & FILE_ATTRIBUTE_HIDDEN) != 0;
  check(!system.replace_file(folder.path("hidden.bin"), "new").stands() && folder.bytes("hidden.bin") == "new",
        "a hidden file is replaced");
  check(was_hidden && (::GetFileAttributesW(hidden.c_str()) & FILE_ATTRIBUTE_HIDDEN) != 0,
        "a hidden file stays hidden");

  folder.write("kept.bin", "old");
  const std::size_t files = folder.files();
  const std::wstring kept = folder.wide_path(L"kept.bin");
  ::SetFileAttributesW(kept.c_str(), FILE_ATTRIBUTE_READONLY);
  check(system.replace_file(folder.path("kept.bin"), "new").code == FaultCode::permission_denied,
        "a read-only file is refused");
  check(folder.bytes("kept.bin") == "old", "a read-only file is left alone");
  check((::GetFileAttributesW(kept.c_str()) & FILE_ATTRIBUTE_READONLY) != 0, "a read-only file stays read-only");
  ::SetFileAttributesW(kept.c_str(), FILE_ATTRIBUTE_NORMAL);
  {
    const WindowsHandle holder = folder.held("kept.bin", GENERIC_READ, 0);
    check(holder.open() && system.replace_file(folder.path("kept.bin"), "new").code == FaultCode::permission_denied,
          "a file that another one holds for itself is refused");
  }
  check(folder.bytes("kept.bin") == "old", "a held file is left alone");
  {
    const WindowsHandle holder = folder.held("kept.bin", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
    check(holder.open() && system.replace_file(folder.path("kept.bin"), "new").code == FaultCode::permission_denied,
          "a file that may be written but not renamed over is refused, behind the writing of the new one");
  }
  check(folder.bytes("kept.bin") == "old", "a file that was not renamed over is untouched");
  check(folder.files() == files, "a refused file leaves no new one behind");
  check(!system.replace_file(folder.path("kept.bin"), "new").stands() && folder.bytes("kept.bin") == "new",
        "the file can be replaced once nobody holds it");

  folder.write("behind.bin", "old");
  // Only some users may make links, and not every system that says so has made one.
  constexpr DWORD without_privilege = 0x2;
  const std::wstring link = folder.wide_path(L"link.bin");
  const auto is_link = [&link] {
    const DWORD attributes = ::GetFileAttributesW(link.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  };
  if (::CreateSymbolicLinkW(link.c_str(), folder.wide_path(L"behind.bin").c_str(), without_privilege) == 0 ||
      !is_link()) {
    not_checked("no link could be made", "a link is written through");
    return;
  }
  check(!system.replace_file(folder.path("link.bin"), "new").stands() && folder.bytes("behind.bin") == "new",
        "a link is written through");
  check(is_link(), "a link stays a link");
}

void check_appending(const Folder& folder) {
  section("appending to files");
  System& system = host_system();
  const std::string path = folder.path("log.txt");
  check(!system.append_file(path, "one\r\n").stands(), "a missing file is made");
  check(!system.append_file(path, "two\r\n").stands() && folder.bytes("log.txt") == "one\r\ntwo\r\n",
        "the bytes stand behind those that were there");
  {
    const WindowsHandle reader = folder.held("log.txt", GENERIC_READ, share_all);
    check(reader.open() && !system.append_file(path, "three\r\n").stands(),
          "a reader that lets others write is no hindrance");
  }
  {
    const WindowsHandle holder = folder.held("log.txt", GENERIC_READ, 0);
    check(holder.open() && system.append_file(path, "lost").code == FaultCode::permission_denied,
          "a file held by a handle that shares nothing is permission denied");
  }
  {
    const WindowsHandle holder = folder.held("log.txt", FILE_APPEND_DATA, FILE_SHARE_READ);
    check(holder.open() && system.append_file(path, "lost").code == FaultCode::permission_denied,
          "two do not append at the same time");
  }
  check(!system.append_file(path, "four\r\n").stands() && folder.bytes("log.txt") == "one\r\ntwo\r\nthree\r\nfour\r\n",
        "what was refused left no trace, and the file takes lines again");
  check(system.append_file(folder.path("none\\log.txt"), "x").code == FaultCode::path_not_found,
        "a missing folder is a path not found");
  check(system.append_file(folder.path("below"), "x").code == FaultCode::path_access,
        "a folder is no file to append to");

  folder.write("fixed.txt", "old");
  const std::wstring fixed = folder.wide_path(L"fixed.txt");
  ::SetFileAttributesW(fixed.c_str(), FILE_ATTRIBUTE_READONLY);
  if (folder.held("fixed.txt", FILE_APPEND_DATA, share_all).open()) {
    // So it is under wine for the machine's superuser.
    not_checked("this user may write everything", "a read-only file is permission denied and untouched");
  } else {
    check(system.append_file(folder.path("fixed.txt"), "x").code == FaultCode::permission_denied &&
              folder.bytes("fixed.txt") == "old",
          "a read-only file is permission denied and untouched");
  }
  ::SetFileAttributesW(fixed.c_str(), FILE_ATTRIBUTE_NORMAL);
}

bool runs(std::uint64_t id, const std::string& name) {
  const std::vector<ProcessEntry> processes = host_system().processes();
  for (const ProcessEntry& process : processes) {
    if (process.id == id) return process.executable == name;
  }
  return false;
}

/// What the started program does: tells what it was given, says that it is there, and stays until its starter ends.
int be_child(const std::vector<std::wstring>& words) {
  if (words.size() < 5) return 1;
  const WindowsHandle ready{::OpenEventW(EVENT_MODIFY_STATE, FALSE, words[2].c_str())};
  const WindowsHandle parent{::OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(std::stoul(words[4])))};
  if (!ready.open() || !parent.open()) return 1;
  STARTUPINFOW startup{};
  ::GetStartupInfoW(&startup);
  {
    std::ofstream report{fs::path{words[3]}, std::ios::binary};
    report << ::GetCurrentProcessId() << '\n';
    report << ((startup.dwFlags & STARTF_USESHOWWINDOW) != 0 && startup.wShowWindow == SW_SHOWMINNOACTIVE) << '\n';
    for (std::size_t word = 5; word < words.size(); ++word) report << narrow(words[word]) << '\n';
  }
  ::SetEvent(ready.get());
  ::WaitForSingleObject(parent.get(), INFINITE);
  return 1;
}

void check_processes(const Folder& folder) {
  section("processes");
  System& system = host_system();
  const std::string own = executable();
  check(runs(::GetCurrentProcessId(), name_of(own)), "this process is listed by its id with its executable's name");

  const std::vector<std::string> odd = {"plain",          "",
                                        "two words",      "a\"quote\"",
                                        "ends in \\",     "C:\\Driver\\a.inf",
                                        "slashes\\\\\"x", "\\\\server\\share\\",
                                        "\x80\xE9"};
  const std::wstring event_name = L"system-check-" + std::to_wstring(::GetCurrentProcessId());
  const WindowsHandle ready{::CreateEventW(nullptr, TRUE, FALSE, event_name.c_str())};
  std::vector<std::string> words = {std::string{child_word}, narrow(event_name), folder.path("child report.txt"),
                                    std::to_string(::GetCurrentProcessId())};
  words.insert(words.end(), odd.begin(), odd.end());
  check(!system.start_minimised(own, words).stands(), "a program is started");
  constexpr DWORD patience_ms = 60'000;
  const bool is_there = ready.open() && ::WaitForSingleObject(ready.get(), patience_ms) == WAIT_OBJECT_0;
  check(is_there, "the started program runs");
  if (!is_there) return;

  std::ifstream report{fs::path{folder.wide_path(L"child report.txt")}, std::ios::binary};
  std::string line;
  std::getline(report, line);
  const std::uint64_t id = std::stoul(line);
  std::getline(report, line);
  check(line == "1", "its window is minimised and takes no focus");
  std::vector<std::string> arrived;
  while (std::getline(report, line)) arrived.push_back(line);
  check(arrived == odd, "the arguments arrive as they were given");

  check(runs(id, name_of(own)), "the started program is listed");
  const WindowsHandle child{
      ::OpenProcess(SYNCHRONIZE | PROCESS_QUERY_LIMITED_INFORMATION, FALSE, static_cast<DWORD>(id))};
  check(child.open() && system.end_process(id), "the started program is ended");
  DWORD exit_code = 99;
  check(::WaitForSingleObject(child.get(), patience_ms) == WAIT_OBJECT_0 &&
            ::GetExitCodeProcess(child.get(), &exit_code) != 0 && exit_code == 0,
        "it ends with the exit code 0");
  check(!runs(id, name_of(own)), "it is not listed any more");

  check(!system.end_process(0xFFFF'FFF0U), "a process that does not exist is not ended");
  check(!system.end_process(id + 0x1'0000'0000U), "an id wider than the system's is not ended");
  check(system.start_minimised(folder.path("none.exe"), {}).code == FaultCode::file_not_found,
        "a missing program is a file not found");
  check(system.start_minimised(folder.path("none\\none.exe"), {}).code == FaultCode::path_not_found,
        "a program in a missing folder is a path not found");
  check(system.start_minimised(folder.path("log.txt"), {}).stands(), "a text is not started");

  const DWORD before = handles_in_use();
  for (int i = 0; i < 20; ++i) static_cast<void>(system.processes());
  if (before == 0) {
    not_checked("the system does not count handles", "listing processes keeps no handle");
  } else {
    check(handles_in_use() <= before, "listing processes keeps no handle");
  }
}

void check_libraries(const Folder& folder) {
  section("libraries");
  System& system = host_system();
  check(system.link_library_name() == "tilbridge2.dll", "the link library has its name");
  const std::string path = folder_of(executable()) + "windows_sample_library.dll";
  std::string why;
  {
    const std::unique_ptr<Library> library = system.load_library(path, why);
    check(library != nullptr && why.empty(), "a library is loaded, and no reason is told");
    if (library != nullptr) {
      using Two = int (*)(int, int);
      using One = int (*)(int);
      const auto plain = reinterpret_cast<Two>(library->symbol("sample_plain"));
      const auto with_line = reinterpret_cast<Two>(library->symbol("sample_with_line"));
      const auto without_line = reinterpret_cast<One>(library->symbol("sample_without_line"));
      check(plain != nullptr && plain(40, 2) == 42, "a call is found under its plain name");
      check(with_line != nullptr && with_line(44, 2) == 42, "a call is found as \"_name@N\"");
      check(without_line != nullptr && without_line(21) == 42, "a call is found as \"name@N\"");
      check(library->symbol("sample_none") == nullptr, "a call that is not there is not found");
      check(library->symbol("sample_with") == nullptr, "the beginning of a name is not the name");
    }
  }
  check(::GetModuleHandleW(L"windows_sample_library.dll") == nullptr, "the library is unloaded with its object");
  std::string slashes = path;
  for (char& c : slashes) c = c == '\\' ? '/' : c;
  check(system.load_library(slashes, why) != nullptr, "slashes serve as well as backslashes");

  why.clear();
  check(system.load_library(folder.path("none.dll"), why) == nullptr && !why.empty(), "a missing library is told");
  std::printf("  missing library: %s\n", why.c_str());
  check(why.find_first_of("\r\n") == std::string::npos, "the reason is one line");
  folder.write("text.dll", "this is no library");
  why.clear();
  check(system.load_library(folder.path("text.dll"), why) == nullptr && !why.empty(),
        "a file that is no library is told");
  std::printf("  no library: %s\n", why.c_str());
  check(why.find("%1") == std::string::npos, "the reason has no gap for a name");
  why.clear();
  check(system.load_library("", why) == nullptr && !why.empty(), "an empty name is told");
  check(!text_of_windows(0x2000'0001U, "x").empty(), "an error number without words is told as a number");
}

void check_devices() {
  section("devices");
  const wchar_t* const every_device = L"Select * from Win32_PnPEntity";
  const auto ids = management_texts(every_device, L"DeviceID");
  check(ids.has_value() && !ids->empty(), "the management service tells the devices");
  const auto processors = management_texts(L"Select * from Win32_Processor", L"Caption");
  check(processors.has_value() && !processors->empty() && !processors->front().empty(), "it tells captions");
  check(!management_texts(L"What is there?", L"Caption"), "a question that it does not take gets no answer");
  const auto numbers = management_texts(every_device, L"ConfigManagerErrorCode");
  check(numbers.has_value() && numbers->empty(), "a property that is no text is left out");

  const auto captions = host_system().device_captions();
  check(captions.has_value(), "the devices' captions can be asked for");
  if (!captions || !ids) return;
  for (const std::string& caption : *captions) std::printf("  %s\n", caption.c_str());
  if (captions->empty()) {
    // wine answers without this property.
    not_checked("the devices here have no captions", "devices have captions");
  }
  check(management_texts(every_device, L"DeviceID") == ids, "the same question gets the same answer");

  check(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)), "the thread becomes one that shows windows");
  check(management_texts(every_device, L"DeviceID") == ids, "such a thread gets the same answer");
  ::CoUninitialize();
  check(SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)), "a question leaves the thread as it was");
  ::CoUninitialize();

  // Threads of the service may come and go; what grows with each question is a leak.
  constexpr DWORD questions = 20;
  const DWORD before = handles_in_use();
  for (DWORD i = 0; i < questions; ++i) static_cast<void>(host_system().device_captions());
  const DWORD after = handles_in_use();
  if (before == 0) {
    not_checked("the system does not count handles", "questions keep no handles");
  } else {
    check(after < before + questions, "questions keep no handles");
  }
}

void check_version() {
  section("version");
  check(windows_version_text({5, 1, 2600}, ",") == "5,01", "5.1 is written with two digits");
  check(windows_version_text({6, 0, 6002}, ",") == "6", "6.0 is written without a sign");
  check(windows_version_text({6, 1, 7601}, ",") == "6,01", "6.1 is written with two digits");
  check(windows_version_text({6, 1, 7601}, ".") == "6.01", "the sign is the one given");
  check(windows_version_text({6, 10, 1}, ",") == "6,1", "a zero at the end is not written");
  check(windows_version_text({10, 0, 19045}, ",") == "10", "10.0 is written without a sign");

  std::array<wchar_t, 32> number{};
  ::GetNumberFormatEx(LOCALE_NAME_USER_DEFAULT, 0, L"1.5", nullptr, number.data(), static_cast<int>(number.size()));
  check(narrow(number.data()).starts_with("1" + windows_decimal_sign() + "5"),
        "the decimal sign is the one in the system's numbers");
  const WindowsVersion version = windows_version();
  check(version.major >= 5, "the system tells its version");
  check(host_system().version_text() == windows_version_text(version, windows_decimal_sign()),
        "the version's text is made of the version and the user's sign");
  check(host_system().build_number() > 0, "the system tells its build");
  check(host_system().driver_tools_apply(), "the driver tools can run here");
  std::printf("  version %s, build %d\n", host_system().version_text().c_str(), host_system().build_number());
}

std::vector<std::wstring> command_line() {
  int count = 0;
  wchar_t** words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  std::vector<std::wstring> line;
  if (words != nullptr) line.assign(words, words + count);
  ::LocalFree(static_cast<void*>(words));
  return line;
}

int check_everything() {
  const std::vector<std::wstring> words = command_line();
  if (words.size() > 1 && words[1] == wide(child_word)) return be_child(words);
  {
    const Folder folder;
    check_replacing(folder);
    check_appending(folder);
    check_processes(folder);
    check_libraries(folder);
    check_devices();
    check_version();
  }
  std::printf("%d checks, %d failed\n", checks, failures);
  return failures == 0 ? 0 : 1;
}

}  // namespace
}  // namespace ecr::test

int main() {
  try {
    return ecr::test::check_everything();
  } catch (const std::exception& error) {
    std::printf("FAILED: %s\n", error.what());
    return 1;
  }
}

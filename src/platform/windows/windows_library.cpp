#include "platform/windows/windows_library.h"

#include "platform/windows/wide_text.h"
#include "platform/windows/windows_api.h"
#include "platform/windows/windows_error.h"

namespace ecr {
namespace {

/// While such an object lives, what fails on this thread comes back as an error and not as a box of the system.
class NoErrorBoxes {
 public:
  NoErrorBoxes() noexcept { ::SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &before_); }
  NoErrorBoxes(const NoErrorBoxes&) = delete;
  NoErrorBoxes& operator=(const NoErrorBoxes&) = delete;
  ~NoErrorBoxes() { ::SetThreadErrorMode(before_, nullptr); }

 private:
  DWORD before_ = 0;
};

/// The complete path, with backslashes: the search beside the library is defined for no other. Empty on a failure,
/// with the thread's last error set.
std::wstring complete_path(const std::wstring& path) {
  const DWORD room = ::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  std::wstring complete(room, L'\0');
  complete.resize(room == 0 ? 0 : ::GetFullPathNameW(path.c_str(), room, complete.data(), nullptr));
  return complete;
}

class WindowsLibrary final : public Library {
 public:
  explicit WindowsLibrary(HMODULE module) noexcept : module_{module} {}
  ~WindowsLibrary() override { ::FreeLibrary(module_); }

  [[nodiscard]] void* symbol(const char* name) const override {
    if (void* plain = exported(name)) return plain;
    constexpr int most_arguments = 32;
    constexpr int argument_size = 4;
    for (int size = 0; size <= most_arguments * argument_size; size += argument_size) {
      const std::string decorated = "_" + std::string{name} + "@" + std::to_string(size);
      if (void* with_line = exported(decorated.c_str())) return with_line;
      if (void* without_line = exported(decorated.c_str() + 1)) return without_line;
    }
    return nullptr;
  }

 private:
  [[nodiscard]] void* exported(const char* name) const {
    return reinterpret_cast<void*>(::GetProcAddress(module_, name));
  }

  HMODULE module_;
};

}  // namespace

std::unique_ptr<Library> windows_load_library(const std::string& path, std::string& why) {
  const NoErrorBoxes quiet;
  const std::wstring complete = complete_path(wide(path));
  HMODULE module =
      complete.empty() ? nullptr : ::LoadLibraryExW(complete.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
  if (module == nullptr) {
    why = text_of_windows(::GetLastError(), path);
    return nullptr;
  }
  return std::make_unique<WindowsLibrary>(module);
}

}  // namespace ecr

#pragma once
// A kernel object's handle that closes itself.

#include <utility>

#include "platform/windows/windows_api.h"

namespace ecr {

class WindowsHandle {
 public:
  /// Takes what a call of the system answered. Some calls answer a failure with nullptr, others with
  /// INVALID_HANDLE_VALUE; both are no handle here.
  explicit WindowsHandle(HANDLE handle) noexcept : handle_{handle == INVALID_HANDLE_VALUE ? nullptr : handle} {}
  WindowsHandle(WindowsHandle&& other) noexcept : handle_{std::exchange(other.handle_, nullptr)} {}
  WindowsHandle(const WindowsHandle&) = delete;
  WindowsHandle& operator=(const WindowsHandle&) = delete;
  WindowsHandle& operator=(WindowsHandle&&) = delete;
  ~WindowsHandle() { close(); }

  [[nodiscard]] HANDLE get() const noexcept { return handle_; }
  [[nodiscard]] bool open() const noexcept { return handle_ != nullptr; }
  void close() noexcept {
    if (handle_ != nullptr) ::CloseHandle(std::exchange(handle_, nullptr));
  }

 private:
  HANDLE handle_;
};

}  // namespace ecr

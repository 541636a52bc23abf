#pragma once
// What the component object model hands out, each released in its own way when it goes out of scope.

#include <optional>
#include <string_view>

#include "platform/windows/windows_api.h"

// They need what windows_api.h brings in.
#include <objbase.h>
#include <oleauto.h>

namespace ecr {

/// The thread's use of the object model. A thread that already uses it in another mode goes on in that mode.
class ComUse {
 public:
  ComUse() noexcept : result_{::CoInitializeEx(nullptr, COINIT_MULTITHREADED)} {}
  ComUse(const ComUse&) = delete;
  ComUse& operator=(const ComUse&) = delete;
  ~ComUse() {
    if (SUCCEEDED(result_)) ::CoUninitialize();
  }
  [[nodiscard]] bool possible() const noexcept { return SUCCEEDED(result_) || result_ == RPC_E_CHANGED_MODE; }

 private:
  HRESULT result_;
};

/// One reference to an object. It must not outlive the ComUse under which it was obtained.
template <typename Interface>
class ComPointer {
 public:
  ComPointer() = default;
  ComPointer(const ComPointer&) = delete;
  ComPointer& operator=(const ComPointer&) = delete;
  ~ComPointer() { reset(); }

  [[nodiscard]] Interface* get() const noexcept { return pointer_; }
  Interface* operator->() const noexcept { return pointer_; }

  /// The place for a call to write a new reference to; the one held before is given up.
  [[nodiscard]] Interface** receive() noexcept {
    reset();
    return &pointer_;
  }

 private:
  void reset() noexcept {
    if (pointer_ != nullptr) pointer_->Release();
    pointer_ = nullptr;
  }

  Interface* pointer_ = nullptr;
};

/// A text in the object model's own allocation.
class ComText {
 public:
  explicit ComText(const wchar_t* text) noexcept : text_{::SysAllocString(text)} {}
  ComText(const ComText&) = delete;
  ComText& operator=(const ComText&) = delete;
  ~ComText() { ::SysFreeString(text_); }
  [[nodiscard]] BSTR get() const noexcept { return text_; }

 private:
  BSTR text_;
};

/// A property's value, of whatever kind.
class ComValue {
 public:
  ComValue() noexcept { ::VariantInit(&value_); }
  ComValue(const ComValue&) = delete;
  ComValue& operator=(const ComValue&) = delete;
  ~ComValue() { ::VariantClear(&value_); }

  /// The place for a call to write a new value to, once.
  [[nodiscard]] VARIANT* receive() noexcept { return &value_; }

  /// The value as a text, which lives as long as this object; nothing if it is of another kind.
  [[nodiscard]] std::optional<std::wstring_view> text() const noexcept {
    if (value_.vt != VT_BSTR) return std::nullopt;
    return std::wstring_view{value_.bstrVal, ::SysStringLen(value_.bstrVal)};
  }

 private:
  VARIANT value_;
};

}  // namespace ecr

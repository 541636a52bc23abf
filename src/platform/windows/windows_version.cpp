#include "platform/windows/windows_version.h"

#include <array>

#include "platform/windows/wide_text.h"
#include "platform/windows/windows_api.h"

namespace ecr {

WindowsVersion windows_version() {
  // No import library carries this call.
  using GetVersion = LONG(WINAPI*)(RTL_OSVERSIONINFOW*);
  const HMODULE module = ::GetModuleHandleW(L"ntdll.dll");
  if (module == nullptr) return {};
  const auto get_version =
      reinterpret_cast<GetVersion>(reinterpret_cast<void*>(::GetProcAddress(module, "RtlGetVersion")));
  RTL_OSVERSIONINFOW version{};
  version.dwOSVersionInfoSize = sizeof version;
  if (get_version == nullptr || get_version(&version) != 0) return {};
  return {static_cast<int>(version.dwMajorVersion), static_cast<int>(version.dwMinorVersion),
          static_cast<int>(version.dwBuildNumber)};
}

std::string windows_version_text(const WindowsVersion& version, std::string_view decimal_sign) {
  std::string text = std::to_string(version.major);
  if (version.minor == 0) return text;
  text += decimal_sign;
  text += static_cast<char>('0' + version.minor / 10 % 10);
  if (version.minor % 10 != 0) text += static_cast<char>('0' + version.minor % 10);
  return text;
}

std::string windows_decimal_sign() {
  std::array<wchar_t, 8> sign{};
  const int length =
      ::GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, sign.data(), static_cast<int>(sign.size()));
  return length > 1 ? narrow(sign.data()) : ".";
}

}  // namespace ecr

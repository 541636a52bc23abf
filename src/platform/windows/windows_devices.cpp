#include "platform/windows/windows_devices.h"

#include "platform/windows/com_pointer.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_api.h"

// It needs what windows_api.h brings in.
#include <wbemidl.h>

namespace ecr {
namespace {

constexpr LONG longest_silence_ms = 20'000;

/// Lets the service act with this user's rights. Where it runs in this very process there is no proxy between, nothing
/// to be set, and a failure that means nothing; where the setting was needed and failed, the service refuses what
/// follows.
void lend_rights(IUnknown* proxy) {
  static_cast<void>(::CoSetProxyBlanket(proxy, RPC_C_AUTHN_WINNT, RPC_C_AUTHZ_NONE, nullptr, RPC_C_AUTHN_LEVEL_CALL,
                                        RPC_C_IMP_LEVEL_IMPERSONATE, nullptr, EOAC_NONE));
}

/// Connects with the service of this machine. Answers whether that went well.
bool connect(ComPointer<IWbemServices>& service) {
  ComPointer<IWbemLocator> locator;
  if (FAILED(::CoCreateInstance(CLSID_WbemLocator, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(locator.receive())))) {
    return false;
  }
  const ComText name_space{L"\\\\.\\root\\cimv2"};
  if (FAILED(locator->ConnectServer(name_space.get(), nullptr, nullptr, nullptr, WBEM_FLAG_CONNECT_USE_MAX_WAIT,
                                    nullptr, nullptr, service.receive()))) {
    return false;
  }
  lend_rights(service.get());
  return true;
}

/// Answers whether the question was taken.
bool ask(const ComPointer<IWbemServices>& service, const wchar_t* question, ComPointer<IEnumWbemClassObject>& found) {
  const ComText language{L"WQL"};
  const ComText text{question};
  if (FAILED(service->ExecQuery(language.get(), text.get(), WBEM_FLAG_FORWARD_ONLY | WBEM_FLAG_RETURN_IMMEDIATELY,
                                nullptr, found.receive()))) {
    return false;
  }
  lend_rights(found.get());
  return true;
}

}  // namespace

std::optional<std::vector<std::string>> management_texts(const wchar_t* question, const wchar_t* property) {
  const ComUse com;
  ComPointer<IWbemServices> service;
  ComPointer<IEnumWbemClassObject> found;
  if (!com.possible() || !connect(service) || !ask(service, question, found)) return std::nullopt;

  std::vector<std::string> texts;
  while (true) {
    ComPointer<IWbemClassObject> object;
    ULONG count = 0;
    const HRESULT result = found->Next(longest_silence_ms, 1, object.receive(), &count);
    if (result == WBEM_S_FALSE) return texts;
    if (result != WBEM_S_NO_ERROR || count != 1) return std::nullopt;
    ComValue value;
    if (FAILED(object->Get(property, 0, value.receive(), nullptr, nullptr))) continue;
    if (const auto text = value.text()) texts.push_back(narrow(*text));
  }
}

std::optional<std::vector<std::string>> windows_device_captions() {
  return management_texts(L"Select * from Win32_PnPEntity", L"Caption");
}

}  // namespace ecr

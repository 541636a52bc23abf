#pragma once
// The one place where the program's bytes, which are of its fixed code page, become the system's wide texts and come
// back. Characters that the page lacks come back as question marks. What the machine has set as its own 8-bit page
// plays no part.

#include <string>
#include <string_view>

#include "core/code_page.h"

namespace ecr {

static_assert(sizeof(wchar_t) == sizeof(char16_t), "the system's wide texts are UTF-16");

[[nodiscard]] inline std::wstring wide(std::string_view bytes) {
  const std::u16string text = unicode_of(bytes);
  return {text.begin(), text.end()};
}

[[nodiscard]] inline std::string narrow(std::wstring_view text) {
  return bytes_of(std::u16string{text.begin(), text.end()});
}

}  // namespace ecr

#pragma once
// The message catalogue: one text for each key, filled from a language file (lang/) and read by whoever shows a text.
// An empty text means that the file did not supply one: the caller then keeps its own default.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace ecr {

enum class Key {
#define ECR_KEY(name) name,
#include "core/catalogue_keys.inc"
#undef ECR_KEY
};

inline constexpr std::size_t key_count = 0
#define ECR_KEY(name) +1
#include "core/catalogue_keys.inc"
#undef ECR_KEY
    ;
static_assert(key_count == 579);

/// The text of the key, bytes of the code page; a carriage return is a line break. Empty if there is none.
[[nodiscard]] const std::string& message(Key key) noexcept;

void set_message(Key key, std::string text);

/// The key with exactly this name, case included.
[[nodiscard]] std::optional<Key> key_named(std::string_view name);
[[nodiscard]] std::string_view name_of(Key key) noexcept;

/// The text of the key, or `fallback` where there is none.
[[nodiscard]] inline std::string_view message_or(Key key, std::string_view fallback) noexcept {
  const std::string& text = message(key);
  return text.empty() ? fallback : std::string_view{text};
}

// Six messages have texts of their own from the very start; a language file may replace each.
extern std::string MsgValueTooHigh;
extern std::string MsgProgramKo;
extern std::string MsgErrorCopyMode;
extern std::string MsgErrorCopyPlu;
extern std::string MsgFileLangKo;
extern std::string MsgOptionNoZ300;

/// Gives each of the six its catalogue text, or its built-in one where the catalogue has none.
void carica_messaggi_default();

/// An empty catalogue and the built-in texts, as before the program's start.
void reset_catalogue();

}  // namespace ecr

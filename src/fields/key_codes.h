#pragma once
// The functions that a key of the register can hold. Each has a code of one byte; the register runs what the code of
// the pressed key says. The names are fixed and not translated.

#include <cstdint>
#include <optional>
#include <string_view>

namespace ecr {

/// The code of a key that does nothing, and the only one that more than one key may hold.
inline constexpr std::uint8_t no_operation = 255;

// The first of the five chain keys, and of the five keys that open a pop-up list of functions.
inline constexpr std::uint8_t first_chain_code = 52;
inline constexpr std::uint8_t first_pop_list_code = 57;

/// The name of a code's function; empty for codes 0 to 19, 39 and 152 to 254. What the digit keys and the other fixed
/// keys hold has no name, and neither has 39 (paid out), so nobody can choose them.
[[nodiscard]] std::string_view key_name(std::uint8_t code);

/// The code of a function, by its exact name; nothing for a name that no code has.
[[nodiscard]] std::optional<std::uint8_t> key_code(std::string_view name);

}  // namespace ecr

#pragma once
// The names of new files that are still to take the place of those that they are saved over.
//
// Such a file has the name of the one that it replaces and an ending behind it: a point, a capital letter, a digit, a
// capital letter, a digit, a capital letter and a small letter, all of them ASCII: "PRG_MODE.BIN.K4W4Se". Nobody who
// keeps a copy of a file names it so, which is why one that is found at the program's start can be removed.

#include <cstdint>
#include <string>
#include <string_view>

namespace ecr {

/// An ending by number. Numbers that differ by less than 26 * 10 * 26 * 10 * 26 * 26 have different ones.
[[nodiscard]] std::string unfinished_save_ending(std::uint32_t number);

/// Whether a file of this name, without folders, can be one that a save has left unfinished.
[[nodiscard]] bool is_unfinished_save(std::string_view name);

}  // namespace ecr

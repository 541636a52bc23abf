#pragma once
// What the register's short captions mean: Setup\DescCaption.ini, bytes of the code page, one meaning a line. The shop
// may write its own.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ecr {

inline constexpr std::size_t short_captions = 78;
inline constexpr std::size_t described_others = 18;  ///< of the 23 other lines, the first ones

/// What DescCaption.ini says.
struct CaptionDescriptions {
  std::array<std::string, short_captions> captions;  ///< by caption; empty where the file has no such line
  std::vector<std::string> others;                   ///< of the other lines from the first on; those that the file has
};

/// Takes the lines of such a file. A line too many is logged and ends the reading.
[[nodiscard]] CaptionDescriptions descriptions_in(std::string_view bytes);

/// Reads Setup\DescCaption.ini. Answers whether the file is there and can be read; without it nothing is described.
bool Read_DescCaption(CaptionDescriptions& descriptions);

/// The descriptions as they were read last; the first question reads them.
[[nodiscard]] const CaptionDescriptions& caption_descriptions();

/// As before the first reading, for tests.
void reset_caption_descriptions() noexcept;

}  // namespace ecr

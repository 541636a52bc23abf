#pragma once
// What the person is kept waiting for. Rooms below say it by these names; lang/own_texts.h has the words in every
// language.

#include <cstdint>
#include <string_view>

namespace ecr {

enum class Work : std::uint8_t {
  unnamed,  ///< nothing that anybody needs to know
  looking_for_ports,
  looking_for_register,
  asking_release,
  reading_programming,
  sending_programming,
  reading_items,
  sending_items,
  taking_in_items,
  reading_report,
  converting_logo,
  sending_logo,
};

/// Work in hand, with the name of what is worked on where its words have a place for one: the report that is read.
struct WorkInHand {
  Work work = Work::unnamed;
  std::string_view name = {};

  friend constexpr bool operator==(const WorkInHand&, const WorkInHand&) = default;
};

}  // namespace ecr

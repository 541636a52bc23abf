#pragma once
// A row of the tables in which the built-in texts stand.

#include <array>
#include <string_view>

#include "lang/own_texts.h"

namespace ecr {

struct OwnTextRow {
  OwnText text;
  /// By language number: English, Spanish, French, German, Dutch, Portuguese, Danish, Norwegian.
  std::array<std::string_view, 8> in;
};

}  // namespace ecr

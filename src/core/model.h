#pragma once
// The two models of the register, as far as the program's tables tell them apart.

#include <cstdint>

#include "core/global.h"

namespace ecr {

/// On which models something is there.
enum class Models : std::uint8_t { both, z320_only };

/// `model` is a value of Global::EcrModel.
[[nodiscard]] constexpr bool is_on(Models models, std::uint8_t model) {
  return models == Models::both || model == Global::model_z320;
}

}  // namespace ecr

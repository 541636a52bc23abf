#pragma once
// The chance that a traded day follows: the same numbers from the same seed, on every machine.

#include <cstddef>
#include <cstdint>
#include <numeric>
#include <random>
#include <span>

namespace ecr::trading {

class Chance {
 public:
  explicit Chance(std::uint64_t seed) : generator_{seed} {}

  /// A number from `low` to `high`, both included. The library's own distributions differ from one to the next.
  [[nodiscard]] std::int64_t from(std::int64_t low, std::int64_t high) {
    const auto span = static_cast<std::uint64_t>(high - low) + 1;
    return low + static_cast<std::int64_t>(generator_() % span);
  }

  [[nodiscard]] bool percent(int chance) { return from(1, 100) <= chance; }

  /// A place in `weights`, each as likely as its weight says; their sum is above zero.
  [[nodiscard]] std::size_t pick(std::span<const int> weights) {
    std::int64_t left = from(1, std::accumulate(weights.begin(), weights.end(), std::int64_t{0}));
    std::size_t place = 0;
    while ((left -= weights[place]) > 0) ++place;
    return place;
  }

 private:
  std::mt19937_64 generator_;
};

}  // namespace ecr::trading

#pragma once
// Random values that are the same in every run: the generator and its use of bits are fixed, and the seed is shown
// beside each failure.

#include <cstdint>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <string_view>

namespace ecr::test {

class Random {
 public:
  explicit Random(std::uint64_t seed)
      : generator_{seed}, trace_{__FILE__, __LINE__, "random values from seed " + std::to_string(seed)} {}

  /// 0 up to, but not including, `limit`, which is at least 1.
  std::uint64_t below(std::uint64_t limit) { return generator_() % limit; }

  /// Both ends included.
  std::int64_t between(std::int64_t least, std::int64_t most) {
    return least + static_cast<std::int64_t>(below(static_cast<std::uint64_t>(most - least) + 1));
  }

  bool coin() { return below(2) == 0; }
  std::uint8_t byte() { return static_cast<std::uint8_t>(below(256)); }

  std::string bytes(std::size_t length) {
    std::string text(length, '\0');
    for (char& c : text) c = static_cast<char>(byte());
    return text;
  }

  /// Characters out of `alphabet`.
  std::string text(std::size_t length, std::string_view alphabet) {
    std::string result(length, '\0');
    for (char& c : result) c = alphabet[below(alphabet.size())];
    return result;
  }

  /// Decimal digits; the first may be 0.
  std::string digits(std::size_t length) { return text(length, "0123456789"); }

 private:
  std::mt19937_64 generator_;
  ::testing::ScopedTrace trace_;
};

}  // namespace ecr::test

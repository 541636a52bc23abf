#pragma once
// The member types of the records that the register and the program share byte for byte. Each is an aggregate of
// bytes: alignment 1, no padding, trivially copyable, so that a struct of them is its file layout.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace ecr {

/// Packed decimal, least significant pair first; read and written through core/codecs.h.
template <std::size_t N>
struct Bcd {
  std::array<std::uint8_t, N> bytes;

  // Conversions to the span that the codecs take.
  operator std::span<const std::uint8_t>() const noexcept { return bytes; }  // NOLINT(google-explicit-constructor)
  operator std::span<std::uint8_t>() noexcept { return bytes; }              // NOLINT(google-explicit-constructor)
  bool operator==(const Bcd&) const = default;
};

/// Fixed-width text in the register's character set, left-aligned and padded with blanks.
template <std::size_t N>
struct Text {
  std::array<char, N> bytes;

  static constexpr std::size_t width = N;
  [[nodiscard]] std::string_view view() const noexcept { return {bytes.data(), N}; }
  /// Takes the text: cut at the width, or filled with blanks.
  void set(std::string_view text) noexcept {
    bytes.fill(' ');
    std::copy_n(text.begin(), std::min(text.size(), N), bytes.begin());
  }
  bool operator==(const Text&) const = default;
};

/// Bytes that no part of the program interprets; carried along unchanged.
template <std::size_t N>
struct Opaque {
  std::array<std::uint8_t, N> bytes;
  bool operator==(const Opaque&) const = default;
};

/// A byte of bit flags; bit 0 is the least significant.
using Flags = std::uint8_t;

}  // namespace ecr

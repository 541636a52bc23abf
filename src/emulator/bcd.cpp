#include "emulator/bcd.h"

#include <cstddef>

namespace ecr::trading {
namespace {

/// The value of the first digit, which is the sign, in a field of `size` bytes.
constexpr std::uint64_t sign_in(std::size_t size) {
  std::uint64_t value = 1;
  for (std::size_t i = 1; i < 2 * size; ++i) value *= 10;
  return value;
}

}  // namespace

std::optional<std::uint64_t> read_bcd(std::span<const std::uint8_t> field) {
  std::uint64_t number = 0;
  for (std::size_t i = field.size(); i-- > 0;) {
    const std::uint64_t tens = field[i] >> 4U;
    const std::uint64_t units = field[i] & 15U;
    if (tens > 9 || units > 9) return std::nullopt;
    number = number * 100 + tens * 10 + units;
  }
  return number;
}

std::optional<std::int64_t> read_signed_bcd(std::span<const std::uint8_t> field) {
  const std::optional<std::uint64_t> number = read_bcd(field);
  if (!number) return std::nullopt;
  const std::uint64_t sign = sign_in(field.size());
  if (*number <= sign) return static_cast<std::int64_t>(*number);
  return -static_cast<std::int64_t>(*number % sign);
}

void write_bcd(std::span<std::uint8_t> field, std::uint64_t number) {
  for (std::uint8_t& byte : field) {
    byte = static_cast<std::uint8_t>((number / 10 % 10) << 4U | number % 10);
    number /= 100;
  }
}

void write_signed_bcd(std::span<std::uint8_t> field, std::int64_t number) {
  const std::uint64_t sign = sign_in(field.size());
  const auto raw = static_cast<std::uint64_t>(number);
  const std::uint64_t amount = (number < 0 ? 0 - raw : raw) % sign;
  write_bcd(field, number < 0 && amount > 0 ? sign + amount : amount);
}

}  // namespace ecr::trading

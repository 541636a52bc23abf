#pragma once
// Files that keep one fact each between two runs: a few bytes without a head. They lie with what they are about; this
// is how all of them are read and written.

#include <cstdint>
#include <span>
#include <string>

namespace ecr {

/// Reads the head of the file into `bytes`. What the file does not reach, and all of it where the file cannot be read,
/// stays as it was. A missing file is created empty.
void read_small_file(const std::string& path, std::span<std::uint8_t> bytes);

/// Writes `bytes` over the head of the file; what follows them stays. A failure is silent.
void write_small_file(const std::string& path, std::span<const std::uint8_t> bytes);

}  // namespace ecr

#include "core/small_files.h"

#include <algorithm>

#include "core/files.h"

namespace ecr {

void read_small_file(const std::string& path, std::span<std::uint8_t> bytes) {
  std::string content;
  static_cast<void>(read_or_create_file(path, content, bytes.size()));
  std::transform(content.begin(), content.end(), bytes.begin(), [](char c) { return static_cast<std::uint8_t>(c); });
}

void write_small_file(const std::string& path, std::span<const std::uint8_t> bytes) {
  static_cast<void>(overwrite_file(path, {reinterpret_cast<const char*>(bytes.data()), bytes.size()}));
}

}  // namespace ecr

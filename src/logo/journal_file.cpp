#include "logo/journal_file.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <string>

#include "core/files.h"

namespace ecr {

EjFile Ej;

void Read_EJ(std::string_view fileName) {
  std::string bytes;
  static_cast<void>(read_or_create_file(fileName, bytes));
  constexpr std::size_t piece = sizeof(EjRecord);
  std::memcpy(Ej.Head.data(), bytes.data(), std::min(bytes.size(), piece));
  Ej.Records.clear();
  if (bytes.size() <= piece) return;
  const std::size_t length = bytes.size() - piece;
  // Rounded to the nearest, halves to the even neighbour.
  const auto count = static_cast<std::size_t>(std::nearbyint(static_cast<double>(length) / piece));
  Ej.Records.resize(count);
  if (count > 0)
    std::memcpy(static_cast<void*>(Ej.Records.data()), bytes.data() + piece, std::min(length, count * piece));
}

void reset_journal() {
  Ej = {};
}

}  // namespace ecr

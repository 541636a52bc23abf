#pragma once
// A journal file that the person opens on the logo's screen.

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "image/fields.h"

namespace ecr {

struct EjRecord {
  std::array<std::uint8_t, 2> Head;
  Text<24> Line;
};
static_assert(sizeof(EjRecord) == 26 && alignof(EjRecord) == 1);

/// The journal that Read_EJ read last.
struct EjFile {
  std::array<std::uint8_t, 26> Head{};
  std::vector<EjRecord> Records;
};
extern EjFile Ej;

/// Reads a journal file: a head of 26 bytes, then records of 26; the number of records is the rounded quotient, so a
/// last piece of more than half a record counts. What a failed read does not deliver of the head stays as it was.
void Read_EJ(std::string_view fileName);

void reset_journal();

}  // namespace ecr

// The sections of the book as the other rooms see them.

#include "fields/rows/all_sections.h"

namespace ecr::fields {

std::span<const SectionRow> sections() noexcept {
  return section_table;
}

const SectionRow& section_row(Section section) noexcept {
  return section_table[static_cast<std::size_t>(section)];
}

std::span<const Field> fields_of(Section section) noexcept {
  return section_row(section).fields;
}

}  // namespace ecr::fields

// The proof of the book, given while it is compiled: every byte of the image, of an item and of the pop-up lists
// belongs to a field or is named as carried along, no bit has two owners, and every row makes sense.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "fields/rows/all_sections.h"
#include "fields/soundness.h"

namespace ecr::fields {
namespace {

/// Whether the fields of a part own each bit of its `Size` bytes exactly once. Of the items one is looked at.
template <std::size_t Size>
consteval bool own_every_bit_once(Where where) {
  std::array<std::uint8_t, Size> owned{};
  for (const SectionRow& section : section_table) {
    for (const Field& field : section.fields) {
      const Place& place = field.place;
      if (place.where != where) continue;
      const std::size_t records = where == Where::item ? 1 : place.count;
      for (std::size_t record = place.first; record < place.first + records; ++record) {
        for (std::size_t byte = 0; byte < place.width; ++byte) {
          std::uint8_t& bits = owned.at(place.offset_of(record) + byte);
          if ((bits & place.mask) != 0) return false;
          bits = static_cast<std::uint8_t>(bits | place.mask);
        }
      }
    }
  }
  return std::all_of(owned.begin(), owned.end(), [](std::uint8_t bits) { return bits == 0xFF; });
}
static_assert(own_every_bit_once<prg_mode_size>(Where::image));
static_assert(own_every_bit_once<sizeof(PluRecord)>(Where::item));
static_assert(own_every_bit_once<pop_up_lists_size>(Where::pop_up_lists));

consteval std::size_t size_of(Where where) {
  switch (where) {
    case Where::image:
      return prg_mode_size;
    case Where::item:
      return sizeof(PluRecord) * plu_records_max;
    case Where::pop_up_lists:
      return pop_up_lists_size;
  }
  throw "no such part";
}

consteval bool sections_are_sound() {
  for (std::size_t i = 0; i < section_table.size(); ++i) {
    const SectionRow& section = section_table[i];
    if (static_cast<std::size_t>(section.section) != i || section.fields.empty()) return false;
    for (const Field& field : section.fields) {
      if (field.section != section.section) return false;
      if (complaint_about(field, size_of(field.place.where)) != nullptr) return false;
      const bool has_control = !field.edited.control.empty();
      if (has_control && section.screen.empty()) return false;
      const bool needs_records = field.edited.reach == Reach::record_list || field.edited.reach == Reach::tab;
      if (has_control && needs_records && section.record_control.empty()) return false;
    }
    // Each field was held against the size of its own part above.
    if (complaint_about(section.fields, size_of(Where::item)) != nullptr) return false;
    const bool has_own_names = !section.records.empty();
    if (has_own_names && section.records.size() != section.fields.front().place.count) return false;
  }
  return true;
}
static_assert(sections_are_sound());

consteval bool ids_are_unique() {
  for (std::size_t i = 0; i < section_table.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      for (const Field& one : section_table[i].fields) {
        for (const Field& other : section_table[j].fields) {
          if (one.id == other.id) return false;
        }
      }
    }
  }
  return true;
}
static_assert(ids_are_unique());

// How the screens of the setting mode share the bytes that are no one screen's.
constexpr std::size_t byte_9 = offsetof(PrgModeImage, Set09_ClerkMenu);
constexpr std::size_t byte_10 = offsetof(PrgModeImage, Set10_Report);
constexpr std::size_t byte_11 = offsetof(PrgModeImage, Set11_Shared);

// Date and time format, key tone. Nobody writes bit 3.
static_assert(owned_bits(initial_setup_fields, byte_9) == 0b0000'0111);
static_assert(owned_bits(clerk_setup_fields, byte_9) == 0b1111'0000);

// Winding motor; the resets; tender after the sale and zero price; tax details.
static_assert(owned_bits(initial_setup_fields, byte_10) == 0b0000'0001);
static_assert(owned_bits(report_setup_fields, byte_10) == 0b0001'1110);
static_assert(owned_bits(working_mode_fields, byte_10) == 0b0110'0000);
static_assert(owned_bits(print_mode_fields, byte_10) == 0b1000'0000);

// Percentage result and currency; multiple receipts; duplicate Z and zero skip; register mode; table and guest.
static_assert(owned_bits(working_mode_fields, byte_11) == 0b0000'0011);
static_assert(owned_bits(print_mode_fields, byte_11) == 0b0000'0100);
static_assert(owned_bits(report_setup_fields, byte_11) == 0b0001'1000);
static_assert(owned_bits(initial_setup_fields, byte_11) == 0b0010'0000);
static_assert(owned_bits(hospitality_fields, byte_11) == 0b1100'0000);

}  // namespace
}  // namespace ecr::fields

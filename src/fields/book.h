#pragma once
// The book of fields: every value that can be programmed, section by section in the order of the menus.
//
// A field has an id ("dept.price"); one value of it is written with the number of its record: "dept[12].price",
// "print.tax-rate" for a field that stands alone. docs/fields.md lists them all.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "fields/field.h"
#include "fields/programming.h"

namespace ecr::fields {

/// A menu entry, and the screen behind it.
struct SectionRow {
  Section section{};
  std::string_view id;
  Caption name = {};
  std::span<const Field> fields;
  std::string_view screen = {};  ///< empty: no screen shows it
  Models models = Models::both;  ///< which menus have the entry
  /// The list of record numbers, or the tabs, by which the screen goes from record to record.
  std::string_view record_control = {};
  /// Names of the records, where they have some of their own.
  std::span<const Caption> records = {};
  /// What stands in front of the number of a record that is named by it: "Header ".
  Caption record_prefix = {};
};

/// All sections, in the order of the enum.
[[nodiscard]] std::span<const SectionRow> sections() noexcept;
[[nodiscard]] const SectionRow& section_row(Section section) noexcept;
[[nodiscard]] std::span<const Field> fields_of(Section section) noexcept;

/// The field with exactly this id; nullptr if there is none.
[[nodiscard]] const Field* field_with_id(std::string_view id) noexcept;

/// The same for code that knows that the field is there. std::logic_error if it is not.
[[nodiscard]] const Field& field(std::string_view id);

/// What owns a bit, 0 the least significant, of a byte of the image, 0 to 5655. Nothing beyond the image's end.
[[nodiscard]] std::optional<ValueRef> value_at_image(std::size_t offset, std::uint8_t bit = 0);
/// The same for a byte of an item; `record` is the item's number, from 1.
[[nodiscard]] std::optional<ValueRef> value_at_item(std::size_t record, std::size_t offset, std::uint8_t bit = 0);
/// The same for a byte of PRG_PLU.BIN. Nothing for the two bytes of the count, which says how many items there are.
[[nodiscard]] std::optional<ValueRef> value_at_item_file(std::size_t offset, std::uint8_t bit = 0);

/// Calls `visit(value)` for every value of a section: record by record, in each record field by field. Fields that
/// have different numbers of records follow each other.
template <typename Visit>
void each_value(ProgrammingView programming, Section section, Visit&& visit) {
  const std::span<const Field> fields = fields_of(section);
  for (std::size_t begin = 0; begin < fields.size();) {
    std::size_t end = begin + 1;
    const auto alike = [&](const Place& place) {
      return place.where == fields[begin].place.where && place.count == fields[begin].place.count;
    };
    while (end < fields.size() && alike(fields[end].place)) ++end;
    const std::size_t first = fields[begin].place.first;
    const std::size_t records = record_count(programming, fields[begin].place);
    for (std::size_t record = first; record < first + records; ++record) {
      for (std::size_t i = begin; i < end; ++i) visit(ValueRef{&fields[i], record});
    }
    begin = end;
  }
}

/// The same for all sections, in the order of the menus.
template <typename Visit>
void each_value(ProgrammingView programming, Visit&& visit) {
  for (const SectionRow& row : sections()) each_value(programming, row.section, visit);
}

/// Whether the model has what the field sets; the other one carries it along.
[[nodiscard]] bool is_on_model(const Field& field, std::uint8_t model) noexcept;

/// The name of the control in which the value is edited, as scripts have it: "E_VatRate(2)"; empty where there is none.
/// On the keyboard it is the key of the programming's model, empty at a position without one.
[[nodiscard]] std::string control_of(ProgrammingView programming, ValueRef value);

}  // namespace ecr::fields

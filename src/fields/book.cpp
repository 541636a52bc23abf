#include "fields/book.h"

#include <array>
#include <limits>
#include <stdexcept>
#include <unordered_map>
#include <vector>

#include "fields/key_matrix.h"

namespace ecr::fields {
namespace {

using FieldNumber = std::uint16_t;
constexpr FieldNumber no_field = std::numeric_limits<FieldNumber>::max();
constexpr std::size_t bits_of_a_byte = 8;

const std::vector<const Field*>& all_fields() {
  static const std::vector<const Field*> fields = [] {
    std::vector<const Field*> all;
    for (const SectionRow& row : sections()) {
      for (const Field& each : row.fields) all.push_back(&each);
    }
    return all;
  }();
  return fields;
}

/// The field of each bit of one part of a programming, by its place in there.
class BitMap {
 public:
  BitMap(Where where, std::size_t size) : fields_(size * bits_of_a_byte, no_field) {
    for (std::size_t i = 0; i < all_fields().size(); ++i) {
      const Place& place = all_fields()[i]->place;
      if (place.where != where) continue;
      // Of the items the map has one.
      const std::size_t records = where == Where::item ? 1 : place.count;
      for (std::size_t record = place.first; record < place.first + records; ++record) {
        mark(place, place.offset_of(record), static_cast<FieldNumber>(i));
      }
    }
  }

  [[nodiscard]] const Field* at(std::size_t offset, std::uint8_t bit) const {
    const std::size_t place = offset * bits_of_a_byte + bit;
    if (bit >= bits_of_a_byte || place >= fields_.size() || fields_[place] == no_field) return nullptr;
    return all_fields()[fields_[place]];
  }

 private:
  void mark(const Place& place, std::size_t offset, FieldNumber number) {
    for (std::size_t byte = 0; byte < place.width; ++byte) {
      for (std::size_t bit = 0; bit < bits_of_a_byte; ++bit) {
        if ((place.mask >> bit & 1U) != 0) fields_[(offset + byte) * bits_of_a_byte + bit] = number;
      }
    }
  }

  std::vector<FieldNumber> fields_;
};

std::optional<ValueRef> value_in_records(const Field* field, std::size_t offset) {
  if (field == nullptr) return std::nullopt;
  const Place& place = field->place;
  return ValueRef{field, place.first + (place.count > 1 ? (offset - place.offset) / place.stride : 0)};
}

std::string member(std::string_view array, std::size_t index) {
  return std::string{array} + "(" + std::to_string(index) + ")";
}

std::string key_cap(std::uint8_t model, std::size_t position) {
  const std::uint8_t key = position_map(model).at(position);
  if (key == 0) return {};
  return member(model == Global::model_z320 ? "L_key2" : "L_key", key);
}

}  // namespace

const Field* field_with_id(std::string_view id) noexcept {
  static const auto index = [] {
    std::unordered_map<std::string_view, const Field*> map;
    for (const Field* each : all_fields()) map.emplace(each->id, each);
    return map;
  }();
  const auto found = index.find(id);
  return found == index.end() ? nullptr : found->second;
}

const Field& field(std::string_view id) {
  const Field* found = field_with_id(id);
  if (found == nullptr) throw std::logic_error{"no such field"};
  return *found;
}

std::optional<ValueRef> value_at_image(std::size_t offset, std::uint8_t bit) {
  static const BitMap map{Where::image, prg_mode_size};
  return value_in_records(map.at(offset, bit), offset);
}

std::optional<ValueRef> value_at_item(std::size_t record, std::size_t offset, std::uint8_t bit) {
  static const BitMap map{Where::item, sizeof(PluRecord)};
  const Field* found = map.at(offset, bit);
  if (found == nullptr || !found->place.has(record)) return std::nullopt;
  return ValueRef{found, record};
}

std::optional<ValueRef> value_at_item_file(std::size_t offset, std::uint8_t bit) {
  static const BitMap lists{Where::pop_up_lists, pop_up_lists_size};
  constexpr std::size_t count_size = plu_head_size - pop_up_lists_size;
  if (offset < count_size) return std::nullopt;
  if (offset < plu_head_size) return value_in_records(lists.at(offset - count_size, bit), offset - count_size);
  const std::size_t in_items = offset - plu_head_size;
  return value_at_item(in_items / sizeof(PluRecord) + 1, in_items % sizeof(PluRecord), bit);
}

bool is_on_model(const Field& field, std::uint8_t model) noexcept {
  return is_on(field.models, model) && is_on(section_row(field.section).models, model);
}

std::string control_of(ProgrammingView programming, ValueRef value) {
  const Edited& edited = value.field->edited;
  if (edited.control.empty()) return {};
  switch (edited.reach) {
    case Reach::directly:
    case Reach::record_list:
    case Reach::tab:
      return std::string{edited.control};
    case Reach::array_from_0:
      return member(edited.control, value.record - 1);
    case Reach::array_from_1:
      return member(edited.control, value.record);
    case Reach::array_for_each:
      return member(std::string{edited.control} + std::to_string(value.record),
                    static_cast<std::size_t>(edited.member));
    case Reach::key_cap:
      return key_cap(programming.model, value.record);
  }
  return {};
}

}  // namespace ecr::fields

#include "image/layout.h"

#include <algorithm>

namespace ecr {

BytePlace place_of_byte(std::span<const FieldPlace> fields, std::size_t offset) {
  for (const FieldPlace& field : fields) {
    if (offset < field.offset) continue;
    const std::size_t index = (offset - field.offset) / field.stride;
    const std::size_t byte = (offset - field.offset) % field.stride;
    if (index < field.count && byte < field.width) return {&field, field.first + index, byte};
  }
  return {};
}

const FieldPlace* field_named(std::span<const FieldPlace> fields, std::string_view name) {
  const auto found =
      std::find_if(fields.begin(), fields.end(), [&](const FieldPlace& field) { return field.name == name; });
  return found == fields.end() ? nullptr : &*found;
}

std::string name_of(const FieldPlace& field, std::size_t number) {
  if (field.count == 1) return std::string{field.name};
  const std::size_t point = std::min(field.name.find('.'), field.name.size());
  return std::string{field.name.substr(0, point)} + "[" + std::to_string(number) + "]" +
         std::string{field.name.substr(point)};
}

std::string describe_image_byte(std::size_t offset) {
  const BytePlace place = place_of_byte(image_fields, offset);
  if (place.field == nullptr) return {};
  std::string text = name_of(*place.field, place.number);
  if (place.field->width > 1) text += ", byte " + std::to_string(place.byte);
  return text;
}

}  // namespace ecr

#pragma once
// One programming as a value: the image, the items with their pop-up lists, and the model that it is for. Nothing in
// this room looks at the program's own working copies unless they are handed to it.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

#include "core/global.h"
#include "fields/field.h"
#include "image/prg_mode.h"
#include "image/prg_plu.h"

namespace ecr::fields {

using ItemTable = PluTable<PluRecord>;

struct Programming {
  PrgModeImage image{};
  ItemTable items{};
  std::uint8_t model = Global::model_z300;  ///< a value of Global::EcrModel
};

/// A programming that somebody else owns, to look at. It must outlive the view.
struct ProgrammingView {
  const PrgModeImage* image;
  const ItemTable* items;
  std::uint8_t model;

  ProgrammingView(const PrgModeImage& its_image, const ItemTable& its_items, std::uint8_t its_model) noexcept
      : image{&its_image}, items{&its_items}, model{its_model} {}
  // NOLINTNEXTLINE(google-explicit-constructor): a programming can be handed over as it is.
  ProgrammingView(const Programming& whole) noexcept : ProgrammingView{whole.image, whole.items, whole.model} {}
};

/// The same, to change.
struct ProgrammingRef {
  PrgModeImage* image;
  ItemTable* items;
  std::uint8_t model;

  ProgrammingRef(PrgModeImage& its_image, ItemTable& its_items, std::uint8_t its_model) noexcept
      : image{&its_image}, items{&its_items}, model{its_model} {}
  // NOLINTNEXTLINE(google-explicit-constructor)
  ProgrammingRef(Programming& whole) noexcept : ProgrammingRef{whole.image, whole.items, whole.model} {}
  // NOLINTNEXTLINE(google-explicit-constructor)
  operator ProgrammingView() const noexcept { return {*image, *items, model}; }
};

/// The program's working copies: PrgMode, PrgPlu and the chosen model.
[[nodiscard]] inline ProgrammingRef working() noexcept {
  return {PrgMode, PrgPlu, Global::EcrModel};
}

/// How many items the table says it holds, 0 to 3000.
[[nodiscard]] inline std::size_t item_count(ProgrammingView programming) noexcept {
  return static_cast<std::size_t>(std::clamp<int>(programming.items->PluCount, 0, plu_records_max));
}

/// How many records of a place there are: all of them, but of the items those that are counted.
[[nodiscard]] inline std::size_t record_count(ProgrammingView programming, const Place& place) noexcept {
  return place.where == Where::item ? item_count(programming) : place.count;
}

[[nodiscard]] inline bool has_record(ProgrammingView programming, ValueRef value) noexcept {
  const Place& place = value.field->place;
  return value.record >= place.first && value.record - place.first < record_count(programming, place);
}

/// The bytes in which a value lies, in file order: a whole byte also where the value has some of its bits. The record
/// must be one of the place's: an item need not be counted.
[[nodiscard]] std::span<const std::uint8_t> bytes_of(ProgrammingView programming, ValueRef value) noexcept;
[[nodiscard]] std::span<std::uint8_t> bytes_of(ProgrammingRef programming, ValueRef value) noexcept;

/// Whether two values of one field hold the same: byte for byte, of a shared byte the field's bits.
[[nodiscard]] bool same_value(ProgrammingView one, ValueRef its_value, ProgrammingView other, ValueRef other_value);

/// Copies a value as it is stored, without a look at what it means. Both are values of one field.
void copy_value(ProgrammingView from, ValueRef its_value, ProgrammingRef to, ValueRef other_value);

}  // namespace ecr::fields

#pragma once
// The boxes of the advanced settings: which reports a chain key runs, and which functions a pop-up key offers. Each box
// stands for one bit of a record; all other bits of the record are left as they are.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "core/catalogue.h"
#include "image/fields.h"

namespace ecr {

inline constexpr int chain_count = 5;
inline constexpr int pop_list_count = 5;
inline constexpr std::size_t chain_record_size = 2;  ///< of PrgModeImage::AdvSet2
inline constexpr std::size_t pop_record_size = 8;    ///< of PrgModeImage::AdvSet8

/// Where a box takes its tick from when a record is loaded. It is always stored in its own bit.
enum class LoadsFrom { own_bit, bit_of_chk_po };

struct OptionBox {
  std::string_view control;
  std::string_view caption;               ///< shown where the key has no text
  std::optional<Key> key = std::nullopt;  ///< nothing: the caption stays as it is
  std::uint8_t byte = 0;                  ///< of the record
  std::uint8_t bit = 0;                   ///< 0 the least significant
  LoadsFrom loads = LoadsFrom::own_bit;
};

/// The reports of a chain; one set of boxes shows one chain at a time.
[[nodiscard]] std::span<const OptionBox> chain_boxes();

/// The functions of a pop-up list; each list has boxes of its own.
[[nodiscard]] std::span<const OptionBox> pop_boxes();

/// Whether the box is ticked when `record` is loaded.
[[nodiscard]] bool is_ticked(std::span<const Flags> record, const OptionBox& box);

/// Sets or clears the box's own bit.
void store_tick(std::span<Flags> record, const OptionBox& box, bool ticked);

/// Whether the box belongs to what C_RestoreDefaultPop ticks in a pop-up list, 0 to 4. `model` is a value of
/// Global::EcrModel.
[[nodiscard]] bool is_default_tick(int list, const OptionBox& box, std::uint8_t model);

}  // namespace ecr

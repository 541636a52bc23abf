#pragma once
// Why a value is not taken, or a reference not understood: a reason with what it is about, and the words for it.

#include <cstdint>
#include <string>

namespace ecr::fields {

enum class Why : std::uint8_t {
  taken,              ///< nothing is wrong
  no_number,          ///< what; lowest and highest
  too_low,            ///< what; lowest and highest
  too_high,           ///< what; lowest and highest
  too_many_decimals,  ///< what; how many there can be
  too_long,           ///< how many characters it has; how many it can have
  no_such_character,  ///< the first that the register lacks
  no_such_choice,     ///< what; the choices
  not_its_bytes,      ///< what; how many bytes the value has
  not_its_bits,       ///< what
  not_on_this_model,
  no_such_field,    ///< what
  not_a_reference,  ///< what
  no_such_record,   ///< the field; its first and its last record
  stands_alone,     ///< the field, which was given a record
  no_such_item,     ///< the code
  several_items,    ///< the code; how many items have it
};

struct Refusal {
  Why why = Why::taken;
  // Bytes of the code page, in the order of the comments above.
  std::string what = {};
  std::string first = {};
  std::string second = {};

  [[nodiscard]] bool refused() const noexcept { return why != Why::taken; }
  friend bool operator==(const Refusal&, const Refusal&) = default;
};

/// The reason as a sentence or two in the chosen language, bytes of the code page. Empty for a value that was taken.
[[nodiscard]] std::string words(const Refusal& refusal);

}  // namespace ecr::fields

#pragma once
// What no screen shows and nobody here understands: bytes and bits that are carried along unchanged. They are named, so
// that a comparison can tell that they differ.

#include "fields/rows/places.h"

namespace ecr::fields {

namespace carried_detail {

consteval Field row(std::string_view id, Place place) {
  place.stored = Stored::raw;
  return {
      .id = id, .name = {.own = OwnText::field_carried}, .place = place, .coding = Coding::raw, .owner = Owner::nobody};
}

}  // namespace carried_detail

inline constexpr auto carried_fields =
    in_section(Section::carried, {carried_detail::row("carried.byte-9", image_bit("Set09_ClerkMenu", 3)),
                                  carried_detail::row("carried.byte-12", image_bits("Set12_Hospitality", 0xE0)),
                                  carried_detail::row("carried.byte-13", image_bits("Set13_EJ", 0xC0)),
                                  carried_detail::row("carried.byte-14", image_bits("Set14_Print", 0xFC)),
                                  carried_detail::row("carried.byte-15", image_bits("Set15_Print", 0xE0)),
                                  carried_detail::row("carried.byte-16", image_bits("Set16_Print", 0xF0)),
                                  carried_detail::row("carried.byte-20", image_bit("Set20_Print", 7)),
                                  carried_detail::row("carried.byte-21", image_place("Spare4")),
                                  carried_detail::row("carried.byte-66", image_bits("KeyOpt4", 0xC0)),
                                  carried_detail::row("carried.byte-69", image_bits("NoSaleOpt", 0xC0)),
                                  carried_detail::row("carried.byte-328", image_element("SysOpt2", 3)),
                                  carried_detail::row("carried.block", image_place("AdvSet20")),
                                  carried_detail::row("chain.carried", image_bits("AdvSet2", 0xFC, 1)),
                                  carried_detail::row("pop-key.carried-3", image_bits("AdvSet8", 0xE0, 3)),
                                  carried_detail::row("pop-key.carried-5", image_bit("AdvSet8", 7, 5)),
                                  carried_detail::row("pop-key.carried-6", image_bits("AdvSet8", 0xFF, 6)),
                                  carried_detail::row("pop-key.carried-7", image_bits("AdvSet8", 0xFF, 7)),
                                  carried_detail::row("dept.carried-12", image_bit("Dept.Status1", 2)),
                                  carried_detail::row("dept.carried-13", image_bits("Dept.Status2", 0xFC)),
                                  carried_detail::row("clerk.carried", image_place("Clerk.Unused")),
                                  carried_detail::row("tender.carried", image_bits("Tender.Options", 0xF8)),
                                  carried_detail::row("plu.carried", item_bits("Plu.Flags1", 0x1C))});

}  // namespace ecr::fields

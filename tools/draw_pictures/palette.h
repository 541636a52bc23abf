#pragma once
// The house colours, and the few tones between them that the drawings need for edges and shade.

#include <QColor>

namespace ecr::palette {

inline constexpr QColor ink{0x1F, 0x29, 0x33};
inline constexpr QColor slate{0x52, 0x60, 0x6D};
inline constexpr QColor mist{0xE4, 0xE7, 0xEB};
inline constexpr QColor paper{0xFA, 0xFB, 0xFC};
inline constexpr QColor accent{0x0F, 0x76, 0x6E};
inline constexpr QColor accent_light{0x5E, 0xEA, 0xD4};
inline constexpr QColor amber{0xD9, 0x77, 0x06};
inline constexpr QColor red{0xB9, 0x1C, 0x1C};
inline constexpr QColor green{0x15, 0x80, 0x3D};

inline constexpr QColor steel{0x3B, 0x48, 0x55};        ///< between ink and slate
inline constexpr QColor shade{0xB4, 0xBD, 0xC7};        ///< between slate and mist; an edge that holds on any ground
inline constexpr QColor accent_deep{0x0B, 0x5A, 0x54};  ///< accent in the shade
inline constexpr QColor accent_mid{0x2F, 0xA8, 0x9A};   ///< between accent and its light
inline constexpr QColor amber_light{0xF2, 0xA0, 0x3D};
inline constexpr QColor red_light{0xE0, 0x5A, 0x4E};

}  // namespace ecr::palette

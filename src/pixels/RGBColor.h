// A colour of 16 bits a component, 0xFFFF being full.
#pragma once
#include <cstdint>

struct RGBColor {
    std::uint16_t red = 0, green = 0, blue = 0;
    bool operator==(const RGBColor&) const = default;
};

inline constexpr RGBColor kColorBlack{0, 0, 0};
inline constexpr RGBColor kColorWhite{0xFFFF, 0xFFFF, 0xFFFF};

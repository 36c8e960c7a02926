// A pixel map: one block of pixels seen without any drawing state. Rows run top-down, `rowBytes`
// apart, the first at `baseAddr`. Who owns the memory is not said here.
#pragma once
#include "util/FourCC.h"
#include "util/XRect.h"

#include <cstdint>

inline constexpr std::uint32_t kPixelFormatGray16 = FourCC("b16g");  // big-endian word, 0 is black
inline constexpr std::uint32_t kPixelFormatGray8 = 40;               // 0 is white, 255 is black
inline constexpr std::uint32_t kPixelFormatIndexed8 = 8;
inline constexpr std::uint32_t kPixelFormatARGB32 = 32;               // bytes A, R, G, B in memory
inline constexpr std::uint32_t kPixelFormatMixed32 = FourCC("DMXD");  // native 32-bit word

struct PixMap {
    std::uint8_t* baseAddr = nullptr;
    std::int32_t rowBytes = 0;
    Rect bounds;
    std::uint32_t pixelFormat = 0;  // 0: `pixelSize` stands in for it
    std::int16_t pixelSize = 0;     // bits a pixel
    std::int16_t cmpCount = 0;      // components; a 32-bit map has 4 of 8 bits
    std::int16_t cmpSize = 0;       // bits a component
    bool locked = false;            // set while an operation uses the pixels
};

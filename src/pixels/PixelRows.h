// Rows of pixels as they stand in memory. Internal to this folder.
#pragma once
#include "pixels/PixView.h"
#include "pixels/PixelFormat.h"

#include <array>
#include <cstdint>

// One pixel's bytes in memory order; below 8 bits the value is in the first byte.
using NativePixel = std::array<std::uint8_t, 4>;

// `count` pixel values of 1, 2, 4 or 8 bits from pixel `first` of a row, one a byte.
void UnpackIndexes(const std::uint8_t* row, int first, int count, int pixelSize,
                   std::uint8_t* values);
// The way back; pixels beside them keep their bits.
void PackIndexes(std::uint8_t* row, int first, int count, int pixelSize,
                 const std::uint8_t* values);
// The first `count` pixels of a row.
void FillPixels(std::uint8_t* row, int count, const PixelLayout& layout, const NativePixel& pixel);

// The bytes of `color` in a view's format: for indexed pixels the entry that comes nearest.
[[nodiscard]] NativePixel NativeColor(const PixView& view, const PixelLayout& layout,
                                      RGBColor color);
// The bytes of an 8-bit colour in a format that is not indexed.
[[nodiscard]] NativePixel NativeFromARGB(const PixelLayout& layout, const NativePixel& argb);

// Weights in 256ths, whose sum is 256: a gray stays what it is.
[[nodiscard]] inline std::uint8_t LumaOf(const std::uint8_t* argb)
{
    return static_cast<std::uint8_t>((argb[1] * 77 + argb[2] * 150 + argb[3] * 29 + 128) >> 8);
}

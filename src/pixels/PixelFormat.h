// What a pixel format number means in memory. Formats are 1, 2, 4, 8 (indexed colour), 33, 34, 36,
// 40 (indexed gray), 16 (one bit unused, then 5 each of red, green, blue, big-endian), 24 (bytes
// R, G, B), 32 (bytes A, R, G, B) and 'b16g' (16-bit gray, big-endian, 0 black).
#pragma once
#include "util/PixMap.h"

#include <array>
#include <cstdint>
#include <optional>

struct PixelLayout {
    std::int16_t pixelSize = 0;     // bits a pixel; below 8 the first pixel is in the high bits
    std::int16_t cmpCount = 0;      // a 32-bit pixel has 4: its alpha byte counts
    std::int16_t cmpSize = 0;       // bits a component
    std::int16_t colorTableId = 0;  // of the system table, 0 when pixels are no indexes
    std::array<std::uint8_t, 4> invert{};  // bytes of a pixel that its inversion turns over
    [[nodiscard]] bool Indexed() const { return colorTableId != 0; }
    [[nodiscard]] int PixelBytes() const { return pixelSize / 8; }  // 0 below 8 bits
};

// nullopt for a number that is no format of the list above.
[[nodiscard]] std::optional<PixelLayout> LayoutOfPixelFormat(std::uint32_t format);
// The same for a map, whose pixel size stands in for a format of 0.
[[nodiscard]] std::optional<PixelLayout> LayoutOfPixMap(const PixMap& map);
// Bytes of a row of `width` pixels of `pixelSize` bits, padded to 16. For any positive 16-bit
// width.
[[nodiscard]] std::int32_t PaddedRowBytes(int width, int pixelSize);
// Bytes that `width` pixels fill, the last one perhaps in part. No padding.
[[nodiscard]] std::int32_t UsedRowBytes(int width, int pixelSize);

[[nodiscard]] inline int WidthOf(const Rect& r) { return r.right - r.left; }
[[nodiscard]] inline int HeightOf(const Rect& r) { return r.bottom - r.top; }

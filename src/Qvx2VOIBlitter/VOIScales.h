// From a window to the bounds between which it spreads the grays, and from the bounds to look-up
// tables. Arithmetic only, but for the copy, which uses it all.
#pragma once
#include "Qvx2VOIBlitter/VOIBlitter.h"
#include <cstdint>
#include <vector>

// The first and last display value of a window, lo below hi. 64 bits, since a width of 32 bits
// around any level reaches beyond 32.
struct VOIBounds {
    std::int64_t lo = 0, hi = 1;
    bool operator==(const VOIBounds&) const = default;
};

// lo = level - width / 2 and hi = lo + width - 1, cut to the pixel bounds if the instance says so;
// if hi then isn't above lo it becomes lo + 1.
// kQvxBadArgument for missing arguments, or pixel bounds wanted but not set; kQvxSeekFailed for an
// instance whose clipping option was never chosen.
[[nodiscard]] QvxStatus VOIBlitterBase_GetVOIBounds(const VOIBlitter* blit, std::int32_t level,
                                                    std::uint32_t width, VOIBounds* bounds);

// Entries of the 16-to-8 table, for the pixel values `first`, `first` + 1 and so on.
struct VOIScale16 {
    std::int64_t first = 0;
    std::vector<std::uint8_t> entries;
};

// The table of the window's n + 1 values, n = hi - lo: value lo + i gives 255 less i / n * 255, in
// single precision, rounded half up. So lo gives 255, the black of format 40, and hi gives 0.
// Only the entries that 16-bit pixels can reach are made, all of them when the window lies within
// 0 to 65535; whatever its width, the table stays small. A window wholly to one side leaves one.
// kQvxBadArgument if hi isn't above lo, kQvxNoMemory.
[[nodiscard]] QvxStatus VOIBlitterBase_GetVOIScale16to8(const VOIBounds& bounds, VOIScale16* scale);

// The scale of 8-bit values, not inverted: 0 up to and with lo, 255 above hi, between them
// float(i - lo) * (255 / float(hi - lo)), truncated, in single precision. Bounds outside 0 to 255
// are right too. kQvxBadArgument if hi isn't above lo.
[[nodiscard]] QvxStatus VOIBlitterBase_GetVOIScale8_256(const VOIBounds& bounds,
                                                        VOIScale256* scale);

// The copy of VOIBlitter.h.
[[nodiscard]] QvxStatus VOIBlitterBase_VOICopyPixels(const VOIBlitter* blit, std::int32_t level,
                                                     std::uint32_t width, PixMap* source,
                                                     PixMap* destination, const Rect* sourceRect,
                                                     const Rect* destinationRect);

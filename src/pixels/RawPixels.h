// What flips and turns share: pixels as runs of bytes, moved without looking at them. Internal.
#pragma once
#include "pixels/PixelRows.h"

#include <array>
#include <cstdint>

// One pixel of whole bytes. It has no alignment, so that a row can be seen as an array of it.
template <std::size_t kBytes>
struct RawPixel {
    std::array<std::uint8_t, kBytes> bytes;
};

template <std::size_t kBytes>
[[nodiscard]] RawPixel<kBytes>* RawRow(const PixMap& map, int row)
{
    void* address = map.baseAddr + std::ptrdiff_t{row} * map.rowBytes;
    return static_cast<RawPixel<kBytes>*>(address);
}

// Calls work.operator()<bytes of a pixel>(); 0 stands for a pixel that is less than a byte.
template <typename Work>
void ForPixelBytes(int pixelSize, Work&& work)
{
    switch (pixelSize) {
        case 8:
            work.template operator()<1>();
            break;
        case 16:
            work.template operator()<2>();
            break;
        case 24:
            work.template operator()<3>();
            break;
        case 32:
            work.template operator()<4>();
            break;
        default:
            work.template operator()<0>();
            break;
    }
}

[[nodiscard]] inline bool CanMoveRawPixels(const PixMap& map)
{
    constexpr std::array kSizes = {1, 2, 4, 8, 16, 24, 32};
    bool known = false;
    for (const int size : kSizes)
        known = known || size == map.pixelSize;
    return known && map.baseAddr && !EmptyRect(map.bounds);
}

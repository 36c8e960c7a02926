// Windowing of contiguous 16-bit words in the host's byte order to 8 bits, not inverted: for data
// that never was in a pixel map.
#pragma once
#include "util/StatusCodes.h"

#include <cstdint>
#include <vector>

struct VOIHostPixels {
    std::int32_t lo = 0, hi = 0;   // first and last value of the window
    const void* source = nullptr;  // 16-bit words, rows without gaps
    std::uint8_t* destination = nullptr;
    std::int32_t width = 0, height = 0;  // pixels
    std::int32_t destinationRowBytes = 0;
};

// The table in whole numbers: n = (hi - lo) cut to 16 bits, n + 1 entries i * 255 / n rounded to
// the nearest. A single 0 when n is 0. kQvxNoMemory, kQvxBadArgument without a destination.
[[nodiscard]] QvxStatus GetVOIScale16to8(std::int32_t lo, std::int32_t hi,
                                         std::vector<std::uint8_t>* table);

// Below lo 0, above hi 255, between them the entry of the table (its last one where cutting n left
// too few). kQvxBadArgument for missing addresses, sizes below 0 or rows shorter than the width;
// kQvxNoMemory before the first pixel.
[[nodiscard]] QvxStatus ApplyVOITransformation_SInt16to8(const VOIHostPixels& pixels);
[[nodiscard]] QvxStatus ApplyVOITransformation_UInt16to8(const VOIHostPixels& pixels);

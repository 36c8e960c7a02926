// Between indexes and colours. Internal to this folder.
#pragma once
#include "pixels/PixelRows.h"
#include "util/ColorTable.h"

#include <array>
#include <cstdint>

// Components of 16 bits to the bytes 255, R, G, B.
[[nodiscard]] inline NativePixel ARGBOf(unsigned red, unsigned green, unsigned blue)
{
    return {0xFF, static_cast<std::uint8_t>(red >> 8), static_cast<std::uint8_t>(green >> 8),
            static_cast<std::uint8_t>(blue >> 8)};
}

// Every entry has one value for its three components.
[[nodiscard]] bool IsGrayTable(const ColorTable& table);
// 256 entries, entry i gray of 0xFFFF - 257 i: what format 40 means.
[[nodiscard]] bool IsGrayRamp(const ColorTable& table);
// The same colours in the same places, whatever the seeds say.
[[nodiscard]] bool SameColors(const ColorTable& a, const ColorTable& b);

// A colour for each byte; black where the table has no entry.
using ColorLookup = std::array<NativePixel, 256>;
[[nodiscard]] ColorLookup LookupOf(const ColorTable& table);

// The first entry with the smallest distance; 0 for an empty table.
[[nodiscard]] std::uint8_t NearestEntry(const ColorTable& table, const NativePixel& argb);

// Finds nearest entries for many pixels and remembers those that it found lately.
class ColorMatcher {
public:
    explicit ColorMatcher(const ColorTable& table) : fTable(table) {}
    [[nodiscard]] std::uint8_t Match(const NativePixel& argb);

private:
    struct Slot {
        std::uint32_t key = 0;  // 0xFFrrggbb, so never 0 when used
        std::uint8_t entry = 0;
    };
    const ColorTable& fTable;
    std::array<Slot, 4096> fSlots{};
};

#include "pixels/ColorMatch.h"

#include <algorithm>
#include <limits>

bool IsGrayTable(const ColorTable& table)
{
    return std::ranges::all_of(table.fEntries, [](const ColorSpec& entry) {
        return entry.red == entry.green && entry.green == entry.blue;
    });
}

bool IsGrayRamp(const ColorTable& table)
{
    if (table.fEntries.size() != 256 || !IsGrayTable(table))
        return false;
    unsigned gray = 0xFFFF;
    for (const ColorSpec& entry : table.fEntries) {
        if (entry.red != gray)
            return false;
        gray -= 257;  // after the last entry it wraps round, unused
    }
    return true;
}

bool SameColors(const ColorTable& a, const ColorTable& b)
{
    return std::ranges::equal(a.fEntries, b.fEntries, [](const ColorSpec& x, const ColorSpec& y) {
        return x.red == y.red && x.green == y.green && x.blue == y.blue;
    });
}

ColorLookup LookupOf(const ColorTable& table)
{
    ColorLookup lookup;
    lookup.fill(ARGBOf(0, 0, 0));
    const std::size_t count = std::min(table.fEntries.size(), lookup.size());
    for (std::size_t i = 0; i < count; ++i) {
        const ColorSpec& entry = table.fEntries[i];
        lookup[i] = ARGBOf(entry.red, entry.green, entry.blue);
    }
    return lookup;
}

std::uint8_t NearestEntry(const ColorTable& table, const NativePixel& argb)
{
    const std::size_t count = std::min<std::size_t>(table.fEntries.size(), 256);
    int best = std::numeric_limits<int>::max();
    std::size_t found = 0;
    for (std::size_t i = 0; i < count && best > 0; ++i) {
        const ColorSpec& entry = table.fEntries[i];
        const int red = (entry.red >> 8) - argb[1];
        const int green = (entry.green >> 8) - argb[2];
        const int blue = (entry.blue >> 8) - argb[3];
        const int distance = red * red + green * green + blue * blue;
        if (distance < best) {
            best = distance;
            found = i;
        }
    }
    return static_cast<std::uint8_t>(found);
}

std::uint8_t ColorMatcher::Match(const NativePixel& argb)
{
    const std::uint32_t key = 0xFF000000u | static_cast<std::uint32_t>(argb[1]) << 16 |
                              static_cast<std::uint32_t>(argb[2]) << 8 | argb[3];
    Slot& slot = fSlots[key * 2654435761u >> 20];  // multiplicative hash to 12 bits
    if (slot.key != key)
        slot = {key, NearestEntry(fTable, argb)};
    return slot.entry;
}

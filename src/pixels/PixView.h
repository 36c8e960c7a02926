// What a copy needs to know of its two ends: a pixel map with the table and colours that belong to
// it. Borrows everything; made from a port or from a bare map where one is asked for.
#pragma once
#include "pixels/Port.h"

#include <vector>

struct PixView {
    PixMap map;
    const ColorTable* colorTable = nullptr;  // null: the system's table of the format
    RGBColor foreColor = kColorBlack;        // what mode `Paint` paints with
    std::int32_t horzResolution = 72 << 16, vertResolution = 72 << 16;

    // Both convert on purpose: whoever copies names a port or a map.
    PixView(const PixMap& pixMap) : map(pixMap) {}
    PixView(const Port& port)
        : map(port.Map()),
          colorTable(port.colorTable.fEntries.empty() ? nullptr : &port.colorTable),
          foreColor(port.foreColor),
          horzResolution(port.horzResolution),
          vertResolution(port.vertResolution)
    {
    }
};

// First byte of row `v` of the map's own coordinates.
[[nodiscard]] inline std::uint8_t* RowAddress(const PixMap& map, int v)
{
    return map.baseAddr + std::ptrdiff_t{v - map.bounds.top} * map.rowBytes;
}

// The table of an indexed view, never empty for one; an empty table for others. Lives as long as
// the view's own table, or for ever.
[[nodiscard]] const ColorTable& TableOf(const PixView& view);

// Where a copy may write: rectangles in the target's coordinates that don't overlap.
struct ClipRegion {
    std::vector<Rect> rects;
};

enum class CopyMode : std::int16_t {  // stored by callers: do not renumber
    Replace = 0,
    Paint = 1,  // black source pixels paint the foreground colour, others leave the target
    ReplaceInverted = 4,  // the target's pixel values are turned over, alpha excepted
    Dither = 64,          // replace; a target of few colours is dithered
};

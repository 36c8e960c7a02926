// A port: a block of pixels with its description, its colour table and the two colours of drawing.
// It is a `PixMap` with more to it, so a map of it is a plain copy of that part. Rows run top-down;
// gray of 8 bits (format 40) has 0 for white, 'b16g' is big-endian with 0 for black.
#pragma once
#include "pixels/RGBColor.h"
#include "util/ColorTable.h"
#include "util/PixMap.h"
#include "util/StatusCodes.h"

#include <cstdlib>
#include <memory>

struct PixelBlockFree {
    void operator()(std::uint8_t* block) const noexcept { std::free(block); }
};
using PixelBlock = std::unique_ptr<std::uint8_t[], PixelBlockFree>;  // 64-byte aligned

struct Port : PixMap {
    std::int32_t horzResolution = 72 << 16;  // 16.16 dots an inch
    std::int32_t vertResolution = 72 << 16;
    ColorTable colorTable;  // 2^pixelSize entries for indexed pixels, else none
    RGBColor foreColor = kColorBlack, backColor = kColorWhite;
    PixelBlock pixels;  // none for a partial port: its pixels are another's

    [[nodiscard]] PixMap Map() const { return *this; }
};

// A port of `width` by `height` pixels at 0, 0, filled with white.
//   format  PixelFormat.h; 24 stays 24
//   table   of indexed pixels, cut or filled up with black to 2^pixelSize entries; null or empty
//           for the system's table of the format
// kQvxBadArgument for an unknown format or a side outside 1 to 32767, kQvxNoMemory when there is
// no such block. A block of many megabytes that the machine's free memory can't hold is refused
// too, rather than granted and paid for by every other program.
[[nodiscard]] QvxStatus NewPort(std::uint32_t format, int width, int height,
                                const ColorTable* table, std::unique_ptr<Port>* port);

// The whole port in `color`, or the colour of its table that comes nearest. kQvxBadArgument
// without pixels. Alpha becomes 255.
[[nodiscard]] QvxStatus FillPort(Port* port, RGBColor color);

// Every byte of every row becomes 0, or 255 for any other `value`. A partial port's rows end with
// its own pixels.
[[nodiscard]] QvxStatus SetQTGWorldBits(Port* port, int value);

// Marks the pixels as in use as long as it lives.
class PortLock {
public:
    explicit PortLock(Port& port) : fPort(port), fWasLocked(port.locked) { port.locked = true; }
    ~PortLock() { fPort.locked = fWasLocked; }
    PortLock(const PortLock&) = delete;
    PortLock& operator=(const PortLock&) = delete;

private:
    Port& fPort;
    bool fWasLocked;
};

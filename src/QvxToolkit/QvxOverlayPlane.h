// The bits of one overlay over one frame (PS3.3 C.9.2, PS3.5 8.1.2): which overlays a frame has,
// how their bits lie in the file, and how they become a plane.
#pragma once
#include "util/PixMap.h"

#include "QvxToolkit/QvxFrameRecord.h"
#include <cstdint>
#include <span>
#include <vector>

// Where a plane's bits begin and how far one is from the next, counted in bits from the lowest bit
// of the first byte on. Packed overlays have a stride of 1.
struct QvxOverlayBits {
    std::uint64_t fFirstBit = 0;
    std::uint32_t fStride = 1;
    bool fWordsSwapped = false;    // bytes of 16-bit words stand in the big-endian order
    std::uint32_t fCellBytes = 0;  // big-endian cells of more than 2 bytes: bytes of one; else 0
};

struct QvxOverlay {
    std::uint16_t fGroup = 0;
    std::uint16_t fRows = 0, fColumns = 0;  // above 0
    std::int32_t fTop = 0, fLeft = 0;       // of its first bit, in pixels of the frame, from 0
    std::uint32_t fOffset = 0, fSize = 0;   // bytes for ReadData that hold its bits
    QvxOverlayBits fBits;
};

// The overlays of frame `frame` (from 1), by their groups. Those with an Image Frame Origin lie on
// as many frames as they have; one without origin and number of frames lies on every frame. An
// overlay whose size or bits can't be found is left out. May throw nothing; kQvxNoMemory.
[[nodiscard]] QvxStatus QvxOverlaysOfFrame(QvxParserRec* reader, const QvxFrameRecord& record,
                                           std::uint32_t frame, std::vector<QvxOverlay>* overlays);

// Writes a plane of the map's size from the overlay's bytes; bits beyond them are 0. A set bit
// becomes a set bit of the map, whose format is 1 (the first pixel in the highest bit).
void QvxFillOverlayPlane(const QvxOverlayBits& bits, std::span<const std::uint8_t> bytes,
                         const PixMap& map);

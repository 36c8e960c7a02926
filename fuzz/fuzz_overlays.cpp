// The overlays that a file's header promises, each made a plane.
#include "FuzzInput.h"

#include "QvxToolkit/QvxOverlayPlane.h"
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QvxReaderPtr reader = OpenFuzzInput(data, size);
    QvxFrameRecord record;
    if (!reader || QvxMakeFrameRecord(reader.get(), &record) != kQvxOK)
        return 0;
    std::vector<QvxOverlay> overlays;
    for (std::uint32_t frame = 1; frame <= record.fFrames && frame <= 4; ++frame) {
        if (QvxOverlaysOfFrame(reader.get(), record, frame, &overlays) != kQvxOK)
            return 0;
        for (const QvxOverlay& overlay : overlays) {
            if (overlay.fRows > 2000 || overlay.fColumns > 2000 || overlay.fSize > size)
                continue;
            std::vector<std::uint8_t> bytes(overlay.fSize);
            if (Qvx2Reader_ReadData(reader.get(), bytes.data(), overlay.fOffset, overlay.fSize) !=
                kQvxOK)
                std::abort();  // the header was to vouch for them
            PixMap map;
            map.rowBytes = (overlay.fColumns + 7) / 8;
            std::vector<std::uint8_t> pixels(static_cast<std::size_t>(map.rowBytes) *
                                             overlay.fRows);
            map.baseAddr = pixels.data();
            map.bounds = {0, 0, static_cast<std::int16_t>(overlay.fRows),
                          static_cast<std::int16_t>(overlay.fColumns)};
            map.pixelFormat = 1;
            QvxFillOverlayPlane(overlay.fBits, bytes, map);
        }
    }
    return 0;
}

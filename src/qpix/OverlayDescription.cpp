#include "qpix/OverlayDescription.h"

#include "util/ByteOrder.h"

#include <new>

namespace {

constexpr std::size_t kPayload = 20;  // bytes

}  // namespace

QvxStatus MakeOverlayDescription(const QvxOverlay& overlay, ImageDescription* description)
{
    try {
        ImageDescription made;
        made.fCodecType = kCodecTypeOverlay;
        made.fWidth = static_cast<std::int16_t>(overlay.fColumns);
        made.fHeight = static_cast<std::int16_t>(overlay.fRows);
        made.fDepth = 1;
        made.fDataSize = overlay.fSize;
        ImageDescriptionExtension bits{kExtensionOverlayBits, std::vector<std::uint8_t>(kPayload)};
        StoreBE(bits.fData.data(), overlay.fBits.fFirstBit);
        StoreBE(bits.fData.data() + 8, overlay.fBits.fStride);
        StoreBE(bits.fData.data() + 12, std::uint32_t{overlay.fBits.fWordsSwapped});
        StoreBE(bits.fData.data() + 16, overlay.fBits.fCellBytes);
        made.fExtensions.push_back(std::move(bits));
        *description = std::move(made);
        return kQvxOK;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

QvxStatus DecompressOverlay(const ImageDescription& description,
                            std::span<const std::uint8_t> bytes, const PixMap& map)
{
    const ImageDescriptionExtension* bits = FindExtension(description, kExtensionOverlayBits);
    const bool fits = map.baseAddr && map.pixelFormat == 1 &&
                      map.bounds.right - map.bounds.left == description.fWidth &&
                      map.bounds.bottom - map.bounds.top == description.fHeight;
    if (description.fCodecType != kCodecTypeOverlay || !bits || bits->fData.size() < kPayload ||
        !fits)
        return kQvxBadArgument;
    const std::uint8_t* at = bits->fData.data();
    QvxFillOverlayPlane({LoadBE<std::uint64_t>(at), LoadBE<std::uint32_t>(at + 8),
                         LoadBE<std::uint32_t>(at + 12) != 0, LoadBE<std::uint32_t>(at + 16)},
                        bytes, map);
    return kQvxOK;
}

#include "QvxToolkit/QvxOverlayPlane.h"

#include "Qvx2Parser/QvxOverlays.h"
#include "QvxToolkit/QvxHeaderValue.h"
#include <algorithm>
#include <cstring>
#include <new>
#include <optional>

namespace {

constexpr auto kBytesVR = static_cast<QvxVR>(FourCC("VROB"));
constexpr std::uint16_t kFramesInOverlay = 0x0015, kFrameOrigin = 0x0051, kBitsAllocated = 0x0100,
                        kBitPosition = 0x0102, kOverlayData = 0x3000;

// Which of the overlay's own frames lies on the image's frame, from 0.
std::optional<std::uint32_t> OverlayFrameOn(QvxParserRec* reader, std::uint16_t group,
                                            std::uint32_t frame)
{
    const auto origin = QvxHeaderCount(reader, {group, kFrameOrigin});
    const auto count = QvxHeaderCount(reader, {group, kFramesInOverlay});
    if (!origin && count.value_or(1) <= 1)
        return 0;  // one plane for every frame
    const std::uint64_t first = std::max(origin.value_or(1), 1U);
    if (frame < first || frame - first >= std::max(count.value_or(1), 1U))
        return std::nullopt;
    return static_cast<std::uint32_t>(frame - first);
}

// Bits of its own, frame after frame without a gap.
bool PlaceOwnBits(QvxParserRec* reader, const QvxFrameRecord& record, QvxElementRef data,
                  std::uint32_t ownFrame, QvxOverlay* overlay)
{
    QvxElementDataInfo info;
    if (Qvx2Reader_GetElementDataInfo(reader, data, &info) || info.fDataSize == 0 ||
        info.fDataSize == kUndefinedLength)
        return false;
    const std::uint64_t bits = std::uint64_t{overlay->fRows} * overlay->fColumns;
    const std::uint64_t first = ownFrame * bits;
    overlay->fBits.fWordsSwapped = record.fByteOrder == 1 && info.fVR != kBytesVR;
    const std::uint64_t begin = first / 16 * 2;  // whole words, whose bytes may be swapped
    if (begin >= info.fDataSize)
        return false;
    overlay->fOffset = info.fValueOffset + static_cast<std::uint32_t>(begin);
    const std::uint64_t bytes =
        std::min<std::uint64_t>((first % 16 + bits + 15) / 16 * 2, info.fDataSize - begin);
    overlay->fSize = static_cast<std::uint32_t>(bytes);
    overlay->fBits.fFirstBit = first % 16;
    return true;
}

// A bit of each cell of the frame's own pixels, which must be of the frame's size and not
// compressed.
bool PlaceInPixels(QvxParserRec* reader, const QvxFrameRecord& record, std::uint32_t frame,
                   QvxOverlay* overlay)
{
    const std::uint32_t cell = record.fBitsAllocated;
    const auto position = QvxHeaderCount(reader, {overlay->fGroup, kBitPosition}, cell - 1);
    const auto allocated = QvxHeaderCount(reader, {overlay->fGroup, kBitsAllocated});
    const bool unused = position && (*position > record.fHighBit ||
                                     *position + record.fBitsStored <= record.fHighBit);
    if (record.fEncapsulated || !record.IsGray() || !unused || allocated.value_or(cell) != cell ||
        overlay->fRows != record.fRows || overlay->fColumns != record.fColumns ||
        record.fForm != QvxSampleForm::Integer || frame > record.fFrames || cell % 8 != 0)
        return false;
    const std::uint64_t begin = (frame - 1) * (record.fFrameStride / 8);
    if (begin >= record.fPixelBytes)
        return false;
    overlay->fOffset = static_cast<std::uint32_t>(record.fPixelOffset + begin);
    overlay->fSize = static_cast<std::uint32_t>(
        std::min<std::uint64_t>(record.fFrameBytes, record.fPixelBytes - begin));
    overlay->fBits.fFirstBit = *position;
    overlay->fBits.fStride = cell;
    overlay->fBits.fWordsSwapped = record.fWordSwapped || (record.fByteOrder == 1 && cell == 16);
    overlay->fBits.fCellBytes = record.fByteOrder == 1 && cell > 16 ? cell / 8 : 0;
    return true;
}

bool MakeOverlay(QvxParserRec* reader, const QvxFrameRecord& record, std::uint16_t group,
                 std::uint32_t frame, QvxOverlay* overlay)
{
    const auto ownFrame = OverlayFrameOn(reader, group, frame);
    if (!ownFrame)
        return false;
    overlay->fGroup = group;
    if (Qvx2_ParserOverlayGetDimensionsFromOverlayGroup(reader, group, &overlay->fColumns,
                                                        &overlay->fRows) ||
        overlay->fColumns == 0 || overlay->fRows == 0)
        return false;
    std::int16_t top = 0, left = 0;  // a file without an origin means the first pixel
    if (ParserOverlayGetOriginFromOverlayGroup(reader, group, &top, &left) == kQvxOK) {
        overlay->fTop = top;
        overlay->fLeft = left;
    }
    QvxElementRef data{};
    if (Qvx2Reader_FindElement(reader, QvxElementRef::None, {group, kOverlayData}, &data) == kQvxOK)
        return PlaceOwnBits(reader, record, data, *ownFrame, overlay);
    return PlaceInPixels(reader, record, frame, overlay);
}

// Whole rows of packed bits: the first pixel moves from the lowest bit to the highest.
std::uint8_t Reversed(std::uint8_t byte)
{
    byte = static_cast<std::uint8_t>((byte & 0xF0) >> 4 | (byte & 0x0F) << 4);
    byte = static_cast<std::uint8_t>((byte & 0xCC) >> 2 | (byte & 0x33) << 2);
    return static_cast<std::uint8_t>((byte & 0xAA) >> 1 | (byte & 0x55) << 1);
}

class BitReader {
public:
    BitReader(const QvxOverlayBits& bits, std::span<const std::uint8_t> bytes)
        : fBits(bits), fBytes(bytes)
    {
    }
    [[nodiscard]] std::uint8_t Byte(std::uint64_t index) const
    {
        if (fBits.fCellBytes > 0)
            index = index / fBits.fCellBytes * fBits.fCellBytes + fBits.fCellBytes - 1 -
                    index % fBits.fCellBytes;
        else if (fBits.fWordsSwapped)
            index ^= 1;
        return index < fBytes.size() ? fBytes[index] : 0;
    }
    [[nodiscard]] bool Bit(std::uint64_t pixel) const
    {
        const std::uint64_t at = fBits.fFirstBit + pixel * fBits.fStride;
        return (Byte(at / 8) >> (at % 8) & 1) != 0;
    }

private:
    const QvxOverlayBits& fBits;
    std::span<const std::uint8_t> fBytes;
};

}  // namespace

QvxStatus QvxOverlaysOfFrame(QvxParserRec* reader, const QvxFrameRecord& record,
                             std::uint32_t frame, std::vector<QvxOverlay>* overlays)
{
    if (!reader || !overlays || frame < 1)
        return kQvxBadArgument;
    try {
        const QvxReaderUse use(reader);
        std::vector<QvxOverlay> found;
        std::uint16_t group = 0;
        if (const QvxStatus status = ParserOverlayGetFirstGroup(reader, &group))
            return status;
        while (group != 0) {
            QvxOverlay overlay;
            if (MakeOverlay(reader, record, group, frame, &overlay))
                found.push_back(overlay);
            if (const QvxStatus status = ParserOverlayGetNextGroup(reader, &group))
                return status;
        }
        *overlays = std::move(found);
        return kQvxOK;
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

void QvxFillOverlayPlane(const QvxOverlayBits& bits, std::span<const std::uint8_t> bytes,
                         const PixMap& map)
{
    const BitReader reader(bits, bytes);
    const auto width = static_cast<std::uint64_t>(map.bounds.right - map.bounds.left);
    const int height = map.bounds.bottom - map.bounds.top;
    const bool packed = bits.fStride == 1;
    for (int v = 0; v < height; ++v) {
        std::uint8_t* row = map.baseAddr + std::ptrdiff_t{v} * map.rowBytes;
        const std::uint64_t first = static_cast<std::uint64_t>(v) * width;
        std::memset(row, 0, (width + 7) / 8);
        std::uint64_t h = 0;
        if (packed && (bits.fFirstBit + first) % 8 == 0) {
            const std::uint64_t byte = (bits.fFirstBit + first) / 8;
            for (; h + 8 <= width; h += 8)
                row[h / 8] = Reversed(reader.Byte(byte + h / 8));
        }
        for (; h < width; ++h) {
            if (reader.Bit(first + h))
                row[h / 8] = static_cast<std::uint8_t>(row[h / 8] | 0x80 >> (h % 8));
        }
    }
}

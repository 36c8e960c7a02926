#include "qpix/DicomCodec.h"

#include "util/ByteOrder.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

struct DisplayRange {
    std::int32_t fMinimum = INT32_MAX, fMaximum = INT32_MIN;
};

// Display values of one format, read and written at an address.
struct Gray8Pixel {
    static constexpr std::ptrdiff_t kBytes = 1;
    static constexpr std::int32_t kMost = 255;
    static std::int32_t Load(const std::uint8_t* at) { return kMost - *at; }
    static void Store(std::uint8_t* at, std::int32_t value)
    {
        *at = static_cast<std::uint8_t>(kMost - value);
    }
};
struct Gray16Pixel {
    static constexpr std::ptrdiff_t kBytes = 2;
    static constexpr std::int32_t kMost = 65535;
    static std::int32_t Load(const std::uint8_t* at) { return LoadBE<std::uint16_t>(at); }
    static void Store(std::uint8_t* at, std::int32_t value)
    {
        StoreBE(at, static_cast<std::uint16_t>(value));
    }
};

template <typename Pixel>
DisplayRange Subtract(const PixMap& mask, int dh, int dv, const PixMap& map)
{
    DisplayRange range;
    const int width = map.bounds.right - map.bounds.left;
    const int height = map.bounds.bottom - map.bounds.top;
    for (int v = 0; v < height; ++v) {
        std::uint8_t* row = map.baseAddr + std::ptrdiff_t{v} * map.rowBytes;
        const bool covered = v - dv >= 0 && v - dv < height;
        const std::uint8_t* from =
            covered ? mask.baseAddr + std::ptrdiff_t{v - dv} * mask.rowBytes : nullptr;
        for (int h = 0; h < width; ++h) {
            std::uint8_t* at = row + h * Pixel::kBytes;
            const bool there = from && h - dh >= 0 && h - dh < width;
            const std::int32_t less = there ? Pixel::Load(from + (h - dh) * Pixel::kBytes) : 0;
            const std::int32_t middle = (Pixel::kMost + 1) / 2;
            const std::int32_t value =
                std::clamp(Pixel::Load(at) - less + (there ? middle : 0), 0, Pixel::kMost);
            Pixel::Store(at, value);
            range.fMinimum = std::min(range.fMinimum, value);
            range.fMaximum = std::max(range.fMaximum, value);
        }
    }
    return range;
}

// A displacement in whole pixels, within what a frame can be moved by.
int WholePixels(float by)
{
    constexpr float kMost = 65535;
    return std::isfinite(by) ? static_cast<int>(std::lround(std::clamp(by, -kMost, kMost))) : 0;
}

}  // namespace

QvxStatus DicomCodec::Decode(QvxParserRec* reader, const QvxFrameRecord& record,
                             std::uint32_t frame, const PixMap& map, std::string* why)
{
    const bool masked = std::exchange(fMasking, false) && fMask.baseAddr;
    fRecord.reset();
    QvxFrameRecord own;  // rescale may be the frame's own
    if (const QvxStatus status = QvxRecordOfFrame(reader, record, frame, &own))
        return status;
    if (const QvxStatus status = DecodeFrame(reader, own, frame, &fStored, why))
        return status;
    if (const QvxStatus status =
            QvxCodecFillPixels(reader, own, fStored, map, &fPixelMinimum, &fPixelMaximum))
        return status;
    fRecord = std::move(own);
    if (masked && fMask.pixelFormat == map.pixelFormat && fMask.bounds == map.bounds)
        SubtractMask(map);
    return kQvxOK;
}

void DicomCodec::SubtractMask(const PixMap& map)
{
    const int dh = WholePixels(fDisplacement.fHorizontal);
    const int dv = WholePixels(fDisplacement.fVertical);
    DisplayRange range;
    if (map.pixelFormat == kPixelFormatGray8)
        range = Subtract<Gray8Pixel>(fMask, dh, dv, map);
    else if (map.pixelFormat == kPixelFormatGray16)
        range = Subtract<Gray16Pixel>(fMask, dh, dv, map);
    else
        return;
    fPixelMinimum = range.fMinimum;
    fPixelMaximum = range.fMaximum;
}

QvxStatus DicomCodec::VOIBlitterInit(std::uint32_t format) const
{
    return fRecord && QvxCodecPixelFormat(*fRecord) == format ? kQvxOK : kQvxBadArgument;
}

QvxStatus DicomCodec::GetPixelInfo(QvxPixelInfo* info) const
{
    if (!fRecord || !info)
        return kQvxBadArgument;
    *info = QvxCodecPixelInfo(*fRecord, &fStored);
    return kQvxOK;
}

QvxStatus DicomCodec::GetDisplayVOILimits(QvxVOILimits* limits) const
{
    if (!fRecord || !limits)
        return kQvxBadArgument;
    *limits = QvxCodecGetDisplayVOILimits(*fRecord, &fStored);
    return kQvxOK;
}

QvxStatus DicomCodec::GetPixelRange(std::int32_t* minimum, std::int32_t* maximum) const
{
    if (!fRecord || !minimum || !maximum || QvxCodecPixelFormat(*fRecord) == kPixelFormatARGB32)
        return kQvxBadArgument;
    *minimum = fPixelMinimum;
    *maximum = fPixelMaximum;
    return kQvxOK;
}

QvxStatus DicomCodec::GetPixelFormat(std::uint32_t* format) const
{
    if (!fRecord || !format)
        return kQvxBadArgument;
    *format = QvxCodecPixelFormat(*fRecord);
    return kQvxOK;
}

const DecodedFrame* DicomCodec::StoredValues() const { return fRecord ? &fStored : nullptr; }

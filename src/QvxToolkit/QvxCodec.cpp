#include "QvxToolkit/QvxCodec.h"

#include "QvxToolkit/QvxDisplayScale.h"
#include "QvxToolkit/QvxHeaderValue.h"
#include <algorithm>
#include <cmath>
#include <new>

namespace {

constexpr QvxElementTag kTagWindowCenter{0x0028, 0x1050};
constexpr QvxElementTag kTagWindowWidth{0x0028, 0x1051};
constexpr std::int32_t kMostWindows = 256;  // no list is longer, whatever the file says

QvxDefaultWindow FirstWindow(QvxParserRec* reader, const QvxFrameRecord& record)
{
    const QvxReaderUse use(reader);
    const bool isFloat = record.fForm != QvxSampleForm::Integer;
    const double leastWidth = isFloat ? 0 : std::min(1.0, QvxCodecPixelInfo(record).fFactor);
    for (std::int32_t i = 1; i <= kMostWindows; ++i) {
        const auto level = QvxHeaderNumber(reader, QvxElementRef::None, kTagWindowCenter, i);
        const auto width = QvxHeaderNumber(reader, QvxElementRef::None, kTagWindowWidth, i);
        if (!level && !width && i > 1)
            break;
        if (!level || !width || *width < leastWidth || *width <= 0)
            continue;
        const QvxDefaultWindow window{true, static_cast<float>(*width), static_cast<float>(*level)};
        if (std::isfinite(window.fWidth) && std::isfinite(window.fLevel) && window.fWidth > 0)
            return window;
    }
    return {};
}

}  // namespace

bool QvxCodecScaleIsPerFrame(const QvxFrameRecord& record)
{
    return record.IsGray() && (record.fForm != QvxSampleForm::Integer || record.fBitsStored > 16);
}

std::uint32_t QvxCodecPixelFormat(const QvxFrameRecord& record)
{
    if (!record.IsGray() || record.fPhotometric == QvxPhotometric::Palette)
        return kPixelFormatARGB32;
    if (record.fForm != QvxSampleForm::Integer || record.fBitsStored > 8)
        return kPixelFormatGray16;
    return QvxMakeDisplayScale(record, nullptr).fMaximum <= 255 ? kPixelFormatGray8
                                                                : kPixelFormatGray16;
}

QvxPixelInfo QvxCodecPixelInfo(const QvxFrameRecord& record, const DecodedFrame* frame)
{
    return QvxMakeDisplayScale(record, frame).fInfo;
}

QvxVOILimits QvxCodecGetDisplayVOILimits(const QvxFrameRecord& record, const DecodedFrame* frame)
{
    QvxVOILimits limits;
    limits.fMaxLevel = QvxMakeDisplayScale(record, frame).fMaximum;
    limits.fMaxWidth = static_cast<std::uint32_t>(limits.fMaxLevel) + 1;
    return limits;
}

QvxDefaultWindow QvxCodecDefaultWindow(QvxParserRec* reader, const QvxFrameRecord& record)
{
    if (!reader)
        return {};
    try {
        return FirstWindow(reader, record);
    } catch (const std::bad_alloc&) {
        return {};
    }
}

#include "QvxToolkit/QvxCodec.h"

#include "QvxToolkit/QvxDisplayScale.h"

bool QvxCodecScaleIsPerFrame(const QvxFrameRecord& record)
{
    return record.IsGray() && !record.fModality &&
           (record.fForm != QvxSampleForm::Integer || record.fBitsStored > 16);
}

std::uint32_t QvxCodecPixelFormat(const QvxFrameRecord& record)
{
    if (!record.IsGray() || record.fPhotometric == QvxPhotometric::Palette)
        return kPixelFormatARGB32;
    if (record.fForm != QvxSampleForm::Integer || record.fBitsStored > 8 || record.fFramesDiffer)
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

QvxStatus QvxCodecGetPixelInfo(const QvxPixelInfo& info, std::int32_t pixelMin,
                               std::int32_t pixelMax, std::uint32_t selector,
                               QvxPixelInfoReply* reply)
{
    if (!reply)
        return kQvxBadArgument;
    switch (selector) {
        case kPixelInfoPhotometric:
            *reply = {info.fPhotometric};
            return kQvxOK;
        case kPixelInfoExtra:
            *reply = {0, info.fPixelExtra};
            return kQvxOK;
        case kPixelInfoShift:
            *reply = {info.fPixelShift};
            return kQvxOK;
        case kPixelInfoRange:
            *reply = {info.fPixelRange};
            return kQvxOK;
        case kPixelInfoMinMax:
            *reply = {pixelMin, pixelMax};
            return kQvxOK;
        default:
            return kQvxUnsupported;
    }
}

#include "qpix/DicomCodec.h"

QvxStatus DicomCodec::Decode(QvxParserRec* reader, const QvxFrameRecord& record,
                             std::uint32_t frame, const PixMap& map)
{
    fRecord.reset();
    if (const QvxStatus status = DecodeFrame(reader, record, frame, &fStored))
        return status;
    if (const QvxStatus status =
            QvxCodecFillPixels(reader, record, fStored, map, &fPixelMinimum, &fPixelMaximum))
        return status;
    fRecord = record;
    return kQvxOK;
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

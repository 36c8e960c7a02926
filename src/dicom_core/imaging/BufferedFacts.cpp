#include "dicom_core/imaging/BufferedFacts.h"

#include "qpix/DicomCodec.h"
#include "qpix/OffscreenForFrame.h"

QvxStatus FactsFromCodec(const DicomCodec& codec, std::uint32_t properties, zelDPIFRecord* facts)
{
    const std::uint32_t format = (properties & kFrameIsSixteenBit) != 0 ? kPixelFormatGray16
                                 : (properties & kFrameIsGray) != 0     ? kPixelFormatGray8
                                                                        : 0;
    if (format == 0 || !facts)
        return kQvxBadArgument;
    QvxPixelInfo info;
    QvxVOILimits limits;
    zelDPIFRecord made;
    if (const QvxStatus status = codec.VOIBlitterInit(format))
        return status;
    if (const QvxStatus status = codec.GetPixelInfo(&info))
        return status;
    if (const QvxStatus status = codec.GetPixelRange(&made.pixelMinimum, &made.pixelMaximum))
        return status;
    if (const QvxStatus status = codec.GetDisplayVOILimits(&limits))
        return status;
    made.voiInfo.photometric = info.fPhotometric;
    made.voiInfo.pixelExtra = info.fPixelExtra;
    made.voiInfo.pixelRange = info.fPixelRange;
    made.voiInfo.pixelShift = info.fPixelShift;
    made.voiInfo.pixelFormat = format;
    made.voiInfo.pixelFactor = info.fFactor;
    made.voiInfo.pixelOffset = info.fOffset;
    made.limits = {limits.fMinWidth, limits.fMinLevel, limits.fMaxWidth, limits.fMaxLevel};
    *facts = made;
    return kQvxOK;
}

bool FindBufferedFacts(const zel_ImageBuffer* buffer, std::int32_t primary, std::int32_t secondary,
                       zelDPIFRecord* facts)
{
    zelDPIFBytes bytes{};
    return buffer &&
           buffer->GetImageAuxInfoByID(primary, secondary, kTagDPIF, bytes.data(), bytes.size()) &&
           UnpackDPIFRecord(bytes, facts) == kQvxOK;
}

QvxStatus StoreBufferedFacts(zel_ImageBuffer* buffer, std::int32_t primary, std::int32_t secondary,
                             const zelDPIFRecord& facts)
{
    const zelDPIFBytes bytes = PackDPIFRecord(facts);
    return buffer->SetImageAuxInfoByID(primary, secondary, kTagDPIF, bytes.data(), bytes.size());
}

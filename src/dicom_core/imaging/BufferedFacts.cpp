#include "dicom_core/imaging/BufferedFacts.h"

#include "qpix/DicomCodec.h"
#include "qpix/OffscreenForFrame.h"

namespace {

// As it lies in the buffer.
struct DPIFRecord {
    std::uint32_t photometric;
    std::int32_t pixelExtra, pixelRange;
    std::uint32_t pixelFormat;
    std::int32_t pixelShift;
    std::int32_t pixelMinimum, pixelMaximum, unread, reserved;
    std::uint32_t minWidth, maxWidth;
    std::int32_t minLevel, maxLevel;
};
static_assert(sizeof(DPIFRecord) == 52);

struct DPIFBlock {
    DPIFRecord record;
    std::uint32_t padding;
    double pixelFactor, pixelOffset;
};

}  // namespace

QvxStatus FactsFromCodec(const DicomCodec& codec, std::uint32_t properties, zelFrameFacts* facts)
{
    const std::uint32_t format = (properties & kFrameIsSixteenBit) != 0 ? kPixelFormatGray16
                                 : (properties & kFrameIsGray) != 0     ? kPixelFormatGray8
                                                                        : 0;
    if (format == 0 || !facts)
        return kQvxBadArgument;
    QvxPixelInfo info;
    QvxVOILimits limits;
    zelFrameFacts made;
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
                       zelFrameFacts* facts)
{
    DPIFBlock block{};
    if (!buffer || !buffer->GetImageAuxInfoByID(primary, secondary, kTagDPIF, &block, sizeof block))
        return false;
    const DPIFRecord& known = block.record;
    facts->voiInfo = {static_cast<QvxPhotometricInterpretation>(known.photometric),
                      known.pixelExtra,
                      known.pixelRange,
                      known.pixelFormat,
                      known.pixelShift,
                      block.pixelFactor,
                      block.pixelOffset};
    facts->pixelMinimum = known.pixelMinimum;
    facts->pixelMaximum = known.pixelMaximum;
    facts->limits = {known.minWidth, known.minLevel, known.maxWidth, known.maxLevel};
    return true;
}

QvxStatus StoreBufferedFacts(zel_ImageBuffer* buffer, std::int32_t primary, std::int32_t secondary,
                             const zelFrameFacts& facts)
{
    DPIFBlock block{};
    block.record = {static_cast<std::uint32_t>(facts.voiInfo.photometric),
                    facts.voiInfo.pixelExtra,
                    facts.voiInfo.pixelRange,
                    facts.voiInfo.pixelFormat,
                    facts.voiInfo.pixelShift,
                    facts.pixelMinimum,
                    facts.pixelMaximum,
                    0,
                    0,
                    facts.limits.minWidth,
                    facts.limits.maxWidth,
                    facts.limits.minLevel,
                    facts.limits.maxLevel};
    block.pixelFactor = facts.voiInfo.pixelFactor;
    block.pixelOffset = facts.voiInfo.pixelOffset;
    return buffer->SetImageAuxInfoByID(primary, secondary, kTagDPIF, &block, sizeof block);
}

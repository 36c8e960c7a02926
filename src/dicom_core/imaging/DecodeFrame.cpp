#include "dicom_core/imaging/DecodeFrame.h"

#include "dicom_core/imaging/BufferedFacts.h"
#include "dicom_core/look/LocationMaths.h"
#include "pixels/COffscreenUtils.h"

#include "qpix/CImporterPlus.h"
#include "qpix/OffscreenForFrame.h"
#include <tuple>

namespace {

QvxStatus DecodeThroughCodec(CImporterPlus* importer, DicomCodec* codec, zel_Offscreen* offscreen)
{
    const ImageDescription* described = nullptr;
    if (const QvxStatus status = importer->GetImageDesc(&described))
        return status;
    const ImageDescription description = *described;  // the importer's own may be dropped meanwhile
    codec->SetHints(kCodecHintsFrame);
    const int dw = offscreen->Width() - description.fWidth;
    const int dh = offscreen->Height() - description.fHeight;
    if ((dw < 0 && dh <= 0) || (dh < 0 && dw <= 0))
        return kQvxBadArgument;
    MatrixRecord before;
    if (const QvxStatus status = importer->GetMatrix(&before))
        return status;
    const bool fits = (dw > 0 && dh >= 0) || (dh > 0 && dw >= 0);
    if (fits) {
        const Rect image{0, 0, description.fHeight, description.fWidth};
        const Rect place = FitRectScaledProp(image, offscreen->GetGWorldPtr()->bounds, true);
        if (const QvxStatus status = SetQTGWorldBits(offscreen->GetGWorldPtr(), 0))
            return status;
        if (const QvxStatus status = importer->SetBounds(place))
            return status;
    }
    const QvxStatus status = importer->DecompressOnOffscreenEx(
        *offscreen, &description, kQualityFrame, 0, codec, nullptr, nullptr);
    if (fits)
        std::ignore = importer->SetMatrix(before);
    return status;
}

ImageInsertionParams ParamsOf(std::int32_t primary, std::int32_t secondary,
                              std::uint32_t storePriority, std::uint32_t insertLimit)
{
    ImageInsertionParams params;
    params.primaryID = primary;
    params.secondaryID = secondary;
    params.storagePriority = storePriority;
    params.makeRoomLimit = insertLimit;
    return params;
}

}  // namespace

bool IsDicomGrayFrame(std::uint32_t properties)
{
    return (properties & (kFrameIsDicom | kFrameIsGray)) == (kFrameIsDicom | kFrameIsGray);
}

QvxStatus DecodeFrame(CImporterPlus* importer, std::uint32_t properties, DicomCodec* codec,
                      zel_Offscreen* offscreen)
{
    if (!IsDicomGrayFrame(properties))
        return importer->DrawOnOffscreen(*offscreen, kQualityFrame, 0, kColorBlack);
    return codec ? DecodeThroughCodec(importer, codec, offscreen) : kQvxBadArgument;
}

QvxStatus StoreDecodedFrame(zel_ImageBuffer* buffer, zel_Offscreen* offscreen, std::int32_t primary,
                            std::int32_t secondary, std::uint32_t storePriority,
                            std::uint32_t insertLimit, const zelDPIFRecord* facts)
{
    ImageInsertionParams params = ParamsOf(primary, secondary, storePriority, insertLimit);
    params.source = offscreen->GetGWorldPtr();
    if (const QvxStatus status = buffer->UpdateImage(params))
        return status;
    return facts ? StoreBufferedFacts(buffer, primary, secondary, *facts) : kQvxOK;
}

QvxStatus StoreWrittenFrame(zel_ImageBuffer* buffer, WrittenPixels pixels, std::int32_t primary,
                            std::int32_t secondary, std::uint32_t storePriority,
                            std::uint32_t insertLimit, const zelDPIFRecord* facts)
{
    if (const QvxStatus status = buffer->TakeImage(
            std::move(pixels), ParamsOf(primary, secondary, storePriority, insertLimit)))
        return status;
    return facts ? StoreBufferedFacts(buffer, primary, secondary, *facts) : kQvxOK;
}

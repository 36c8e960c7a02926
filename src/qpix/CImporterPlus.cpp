#include "qpix/CImporterPlus.h"

#include "pixels/OffscreenFactory.h"
#include "pixels/PixelFormat.h"
#include "pixels/PortDescription.h"

#include <algorithm>

QvxStatus CImporterPlus::CountImages(std::int32_t* count)
{
    if (const QvxStatus status = CImporter::CountImages(count))
        return status;
    if (HoldsRenderings())
        *count = std::min(*count, 1);
    return kQvxOK;
}

QvxStatus CImporterPlus::SetCurrentImage(std::int32_t index)
{
    if (!Instance())
        return kQvxNoImporter;
    if (!HoldsRenderings())
        return CImporter::SetCurrentImage(index);
    if (index != 1)
        return kQvxBadArgument;
    std::int32_t dominant = 0;
    if (const QvxStatus status = GetDominantFrame(&dominant))
        return status;
    return CImporter::SetCurrentImage(dominant);
}

QvxStatus CImporterPlus::GetCurrentImage(std::int32_t* index)
{
    return HoldsRenderings() ? CountImages(index) : CImporter::GetCurrentImage(index);
}

bool CImporterPlus::IsDICOMImporter() const { return GetImporterBaseType() == kImporterDicom; }

std::uint32_t CImporterPlus::GetImporterBaseType() const
{
    return Instance() ? Instance()->BaseSubtype() : 0;
}

bool CImporterPlus::HoldsRenderings() const
{
    const std::uint32_t type = GetImporterBaseType();
    return type == FourCC("8BPS") || type == FourCC("FPix") || type == FourCC("JPEG");
}

QvxStatus CImporterPlus::GetDominantFrame(std::int32_t* frame)
{
    std::int32_t count = 0;
    if (const QvxStatus status = CImporter::CountImages(&count))
        return status;
    if (!frame)
        return kQvxBadArgument;
    *frame = count > 0 && HoldsRenderings() ? 1 : 0;
    return kQvxOK;
}

bool CImporterPlus::SupportsLayers() const
{
    const std::uint32_t type = GetImporterBaseType();
    return type == FourCC("8BPS") || type == FourCC("TIFF");
}

bool CImporterPlus::SupportsMultipleResolution() const
{
    return GetImporterBaseType() == FourCC("FPix");
}

QvxStatus CImporterPlus::GetVOIChoices(std::vector<QvxVOIChoice>* choices)
{
    return Instance() ? Instance()->GetVOIChoices(choices) : kQvxNoImporter;
}

QvxStatus CImporterPlus::GetDefaultWindow(QvxDefaultWindow* window)
{
    return Instance() ? Instance()->GetDefaultWindow(window) : kQvxNoImporter;
}

QvxStatus CImporterPlus::GetImageDataInfo(std::uint32_t selector, std::uint32_t* code)
{
    return Instance() ? Instance()->GetImageDataInfo(selector, code) : kQvxNoImporter;
}

QvxStatus CImporterPlus::DecompressOnOffscreenEx(COffscreen& offscreen,
                                                 const ImageDescription* description,
                                                 std::int32_t quality, std::int16_t mode,
                                                 DicomCodec* codec, zel_Offscreen* mask,
                                                 const QvxMaskDisplacementRec* displacement)
{
    if (!mask || !codec || !mask->GetGWorldPtr())
        return DecompressOnOffscreen(offscreen, description, quality, mode, codec);
    const PortLock lock(*mask->GetGWorldPtr());
    const std::uint32_t hints = codec->Hints();
    codec->SetMaskPixels(mask->GetGWorldPtr()->Map());
    codec->SetMasking(true);
    codec->SetMaskDisplacement(displacement ? *displacement : QvxMaskDisplacementRec{});
    codec->SetHints(hints | kCodecHintMasked);
    const QvxStatus status = DecompressOnOffscreen(offscreen, description, quality, mode, codec);
    codec->SetHints(hints);
    codec->SetMasking(false);
    return status;
}

QvxStatus CImporterPlus::GetMaskOffscreen(std::unique_ptr<zel_Offscreen>* mask)
{
    if (!mask)
        return kQvxBadArgument;
    mask->reset();
    const ImageDescription* described = nullptr;
    if (const QvxStatus status = GetImageDesc(&described))
        return status;
    const std::uint32_t format = GetPixelFormatFromImageDescription(*described);
    if (!IsDICOMImporter() || (format != kPixelFormatGray8 && format != kPixelFormatGray16))
        return kQvxOK;
    const ImageDescription description = *described;
    std::unique_ptr<zel_Offscreen> made;
    if (const QvxStatus status = zel_OffscreenFactory::NewCOffscreen(
            description, description.fWidth, description.fHeight, true, &made))
        return status;
    DicomCodec codec;
    codec.SetHints(kCodecHintsMask);
    if (const QvxStatus status =
            DecompressOnOffscreen(*made, &description, kQualityFrame, 0, &codec))
        return status;
    *mask = std::move(made);
    return kQvxOK;
}

QvxStatus CImporterPlus::GetQTFrameInfo(QTFrameInfo* info)
{
    const ImageDescription* description = nullptr;
    if (const QvxStatus status = GetImageDesc(&description))
        return status;
    if (!info)
        return kQvxBadArgument;
    const std::int32_t depth = COffscreenUtils::GetImageDepth(*description);
    const std::uint32_t stated = ColorSpaceOf(*description);
    *info = {description->fWidth, description->fHeight, depth,
             stated ? stated : static_cast<std::uint32_t>(depth)};
    return kQvxOK;
}

QvxStatus CImporterPlus::GetImageInfo(ImageInfo* info)
{
    QTFrameInfo frame;
    if (const QvxStatus status = GetQTFrameInfo(&frame))
        return status;
    if (!info)
        return kQvxBadArgument;
    const std::int32_t size = GetRealPixelSize(frame.colorSpace);
    *info = {frame.width, frame.height, ColorTypeOf(frame.colorSpace, frame.depth),
             size ? size : GetRealPixelSize(static_cast<std::uint32_t>(frame.depth))};
    return kQvxOK;
}

ColorType ColorTypeOf(std::uint32_t colorSpace, std::int32_t depth)
{
    if (colorSpace == kPixelFormatGray16)
        return ColorType::Gray;
    switch (depth) {
        case 40:
        case 34:
        case 36:
            return ColorType::Gray;
        case 33:
        case 1:
            return ColorType::BlackAndWhite;
        case 32:
        case 24:
        case 16:
        case 8:
        case 4:
        case 2:
            return ColorType::Color;
        default:
            return ColorType::Unknown;
    }
}

std::int32_t GetRealPixelSize(std::uint32_t format)
{
    const auto layout = LayoutOfPixelFormat(format);
    return layout ? layout->pixelSize : 0;
}

#include "qpix/CImporterPlus.h"

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

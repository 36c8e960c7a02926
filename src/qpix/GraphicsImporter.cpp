#include "qpix/GraphicsImporter.h"

QvxStatus GraphicsImporter::SetImageIndex(std::int32_t index)
{
    std::int32_t count = 0;
    if (const QvxStatus status = GetImageCount(&count))
        return status;
    if (index < 1 || index > count)
        return kQvxBadArgument;
    fImageIndex = index;
    return kQvxOK;
}

QvxStatus GraphicsImporter::GetImageDataInfo(std::uint32_t, std::uint32_t*)
{
    return kQvxUnsupported;
}

QvxStatus GraphicsImporter::GetVOIChoices(std::vector<QvxVOIChoice>*) { return kQvxUnsupported; }

QvxStatus GraphicsImporter::GetDefaultWindow(QvxDefaultWindow*) { return kQvxUnsupported; }

QvxStatus GraphicsImporter::GetOverlayCount(std::int32_t* count)
{
    if (!count)
        return kQvxBadArgument;
    *count = 0;
    return kQvxOK;
}

QvxStatus GraphicsImporter::SetOverlayIndex(std::int32_t) { return kQvxBadArgument; }

QvxStatus GraphicsImporter::GetOverlayBounds(Rect*) { return kQvxBadArgument; }

QvxStatus GraphicsImporter::GetOverlayImageDescription(ImageDescription*)
{
    return kQvxBadArgument;
}

QvxStatus GraphicsImporter::GetOverlayDataOffsetAndSize(std::uint32_t*, std::uint32_t*)
{
    return kQvxBadArgument;
}

void GraphicsImporter::BindFile(const FileRef& file)
{
    fFile = file;
    fImageIndex = 1;
    fMatrix = {};
    fSourceRect = {};
}

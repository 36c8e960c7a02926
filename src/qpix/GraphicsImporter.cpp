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

void GraphicsImporter::BindFile(const FileRef& file)
{
    fFile = file;
    fImageIndex = 1;
    fMatrix = {};
    fSourceRect = {};
}

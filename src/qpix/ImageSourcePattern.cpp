#include "qpix/ImageSourcePattern.h"

std::int32_t GetImageSourcePattern(zelImageSource& source, ImageSourcePattern* pattern)
{
    if (!source.IsValid())
        return kPatternSourceInvalid;
    CImporterPlus* const importer = source.GetImporter();
    if (!importer || !source.IsDICOM())
        return kPatternNotDicom;
    std::int32_t frames = 0;
    if (source.GetFrameCount(&frames))
        return kPatternNoFrameCount;
    QTFrameInfo info;
    if (importer->GetQTFrameInfo(&info))
        return kPatternNoFrameInfo;
    *pattern = {frames > 1, info.width, info.height, info.depth, info.colorSpace};
    return 0;
}

std::int32_t CompareImageSourcePatterns(const ImageSourcePattern& a, const ImageSourcePattern& b)
{
    std::int32_t differs = 0;
    if (a.fHasFrames != b.fHasFrames)
        differs += kPatternFramesDiffer;
    if (a.fWidth != b.fWidth || a.fHeight != b.fHeight)
        differs += kPatternSizeDiffers;
    if (a.fDepth != b.fDepth || a.fColorSpace != b.fColorSpace)
        differs += kPatternPixelsDiffer;
    return differs;
}

#include "dicom_core/tree/dk_ImageFrameInfo.h"

#include "dicom_core/tree/dk_ImageFile.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::int32_t kFixedOne = 0x10000;

bool IsQuarterTurn(std::int16_t rotation) { return rotation == 90 || rotation == 270; }

std::int16_t PinnedSide(std::int64_t side)
{
    return static_cast<std::int16_t>(std::clamp<std::int64_t>(side, 0, INT16_MAX));
}

}  // namespace

QvxStatus dk_ImageFrameInfo::GetFrameSize(Point* size)
{
    if (fFrameSize.v <= 0 || fFrameSize.h <= 0) {
        CImporterPlus* importer = fSource && fSource->IsValid() ? fSource->GetImporter() : nullptr;
        if (!importer)
            return kQvxBadArgument;
        std::int32_t before = 0;
        Rect bounds;
        QvxStatus status = importer->GetCurrentImage(&before);
        if (!status)
            status = importer->SetCurrentImage(fFrameInFile);
        if (!status)
            status = importer->GetNaturalBounds(&bounds);
        if (before > 0 && before != fFrameInFile)
            static_cast<void>(importer->SetCurrentImage(before));
        if (status)
            return status;
        fFrameSize.v = PinnedSide(bounds.bottom - bounds.top);
        fFrameSize.h = PinnedSide(bounds.right - bounds.left);
    }
    *size = fFrameSize;
    return kQvxOK;
}

std::int32_t dk_ImageFrameInfo::GetPixelAspectRatio()
{
    std::int32_t vertical = 0, horizontal = 0;
    if (fImageFile)
        fImageFile->GetAspectRatio(&vertical, &horizontal);
    if (vertical <= 0 || horizontal <= 0)
        return 0;
    const std::int64_t ratio = (std::int64_t{vertical} << 16) / horizontal;
    return static_cast<std::int32_t>(std::min<std::int64_t>(ratio, INT32_MAX));
}

std::int32_t dk_ImageFrameInfo::GetDisplayedPixelAspectRatio()
{
    const std::int32_t ratio = GetPixelAspectRatio();
    if (ratio == 0 || !IsQuarterTurn(fTransform.rotation))
        return ratio;
    const std::int64_t inverse = (std::int64_t{1} << 32) / ratio;
    return static_cast<std::int32_t>(std::min<std::int64_t>(inverse, INT32_MAX));
}

QvxStatus dk_ImageFrameInfo::GetEffectiveFrameSize(Point* size, bool applyAspect,
                                                   bool applyRotation)
{
    Point effective;
    if (const QvxStatus status = GetFrameSize(&effective))
        return status;
    if (const std::int32_t ratio = applyAspect ? GetPixelAspectRatio() : 0; ratio > kFixedOne)
        effective.v = PinnedSide((std::int64_t{effective.v} * ratio) >> 16);
    else if (ratio != 0 && ratio < kFixedOne)
        effective.h = PinnedSide((std::int64_t{effective.h} << 16) / ratio);
    if (applyRotation && IsQuarterTurn(fTransform.rotation))
        std::swap(effective.v, effective.h);
    *size = effective;
    return kQvxOK;
}

QvxStatus dk_ImageFrameInfo::GetFrameSizeWithAspectRatio(Point* size)
{
    return GetEffectiveFrameSize(size, true, false);
}

QvxStatus dk_ImageFrameInfo::GetImageVisibleRect(LongRect* rect)
{
    Point size;
    if (const QvxStatus status = GetEffectiveFrameSize(&size, false, true))
        return status;
    *rect = LongRect{0, 0, size.v, size.h};
    return kQvxOK;
}

QvxStatus dk_ImageFrameInfo::SetPixelVOILimits(std::uint32_t minU, std::int32_t minS,
                                               std::uint32_t maxU, std::int32_t maxS)
{
    if (maxU < minU || maxS < minS)
        return kQvxBadArgument;
    fPixelMinU = minU;
    fPixelMaxU = maxU;
    fPixelMinS = minS;
    fPixelMaxS = maxS;
    return kQvxOK;
}

void dk_ImageFrameInfo::GetPixelVOILimits(std::uint32_t* minU, std::int32_t* minS,
                                          std::uint32_t* maxU, std::int32_t* maxS) const
{
    *minU = fPixelMinU;
    *minS = fPixelMinS;
    *maxU = fPixelMaxU;
    *maxS = fPixelMaxS;
}

void dk_ImageFrameInfo::SetActualPixelValuesRange(std::int32_t minimum, std::int32_t maximum)
{
    if (fActualMax < fActualMin)
        return;
    fActualMin = minimum;
    fActualMax = maximum;
}

void dk_ImageFrameInfo::GetActualPixelValuesRange(std::int32_t* minimum,
                                                  std::int32_t* maximum) const
{
    *minimum = fActualMin;
    *maximum = fActualMax;
}

void dk_ImageFrameInfo::CopySettingsTo(dk_ImageFrameInfo* other) const
{
    dk_ImageFrameInfo copy = *this;
    copy.fImageFile = other->fImageFile;
    copy.fSource = other->fSource;
    copy.fFrameInFile = other->fFrameInFile;
    *other = copy;
}

void dk_ImageFrameInfo::RevertAllTransformations()
{
    fColorTable = 0;
    fTransform.SetToVoid();
}

void dk_ImageFrameInfo::AddToFrameHealth(std::uint32_t bits)
{
    if (fFrameHealth == UINT32_MAX)  // not set yet
        fFrameHealth = 0;
    fFrameHealth |= bits;
}

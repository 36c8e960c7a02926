#include "dicom_core/look/ImageTransformer.h"

#include "pixels/Flips.h"
#include "pixels/PixelFilters.h"

#include <algorithm>
#include <new>

namespace {

constexpr std::int32_t kMostPercent = 100;

QvxStatus Turn(const zel_TransformRec& record, Port* source, Port* target)
{
    const bool inPlace = source == target;
    switch (record.rotation) {
        case 0:
            return inPlace ? kQvxOK : kQvxBadArgument;
        case 180:
            return inPlace ? FlipOffscreenBoth(target) : kQvxBadArgument;
        case 90:
        case 270:
            if (inPlace)
                return kQvxBadArgument;
            if (const QvxStatus status = RotateOffscreen90(*source, target))
                return status;
            return record.rotation == 270 ? FlipOffscreenBoth(target) : kQvxOK;
        default:
            return kQvxBadArgument;
    }
}

}  // namespace

QvxStatus ApplyGeometricTransformations(const zel_TransformRec& record, Port* source, Port* target)
{
    if (!source || !target)
        return kQvxBadArgument;
    QvxStatus status = Turn(record, source, target);
    if (!status && record.vertFlip)
        status = FlipOffscreenVert(target);
    if (!status && record.horzFlip)
        status = FlipOffscreenHorz(target);
    return status;
}

QvxStatus ImageTransformer::ApplyAll(COffscreen* source, COffscreen* target) const
{
    if (const QvxStatus status = ApplyGeometric(source, target))
        return status;
    if (const QvxStatus status =
            ApplyBnC(target->GetGWorldPtr(), fRecord.brightness, fRecord.contrast))
        return status;
    return fRecord.invert ? ApplyInvert(target) : kQvxOK;
}

QvxStatus ImageTransformer::ApplyGeometric(COffscreen* source, COffscreen* target) const
{
    if (!source || !target)
        return kQvxBadArgument;
    return ApplyGeometricTransformations(fRecord, source->GetGWorldPtr(), target->GetGWorldPtr());
}

QvxStatus ImageTransformer::ApplyBnC(Port* target, std::int32_t brightness,
                                     std::int32_t contrast) const
{
    if (!target)
        return kQvxBadArgument;
    if (brightness == 0 && contrast == 0)
        return kQvxOK;
    try {
        FilterParameters parameters;
        parameters.Set(kFilterWhat, static_cast<std::int32_t>(kFilterBrightnessContrast));
        parameters.Set(kFilterBrightness, std::clamp(brightness, -kMostPercent, kMostPercent));
        parameters.Set(kFilterContrast, std::clamp(contrast, -kMostPercent, kMostPercent));
        return FilterGWorldToGWorld(parameters, *target, target);
    } catch (const std::bad_alloc&) {
        return kQvxNoMemory;
    }
}

QvxStatus ImageTransformer::ApplyInvert(COffscreen* target) const
{
    return target ? target->Invert() : kQvxBadArgument;
}

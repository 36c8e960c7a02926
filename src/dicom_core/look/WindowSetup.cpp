#include "dicom_core/look/WindowSetup.h"

#include <algorithm>
#include <cmath>

namespace {

// The middle of the level limits, on a step of the display scale.
float MiddleLevel(const zel_TransformRec& record)
{
    const double middle = (record.voiLevelMin + record.voiLevelMax) * 0.5;
    const zelVOIBlitterInfo& info = record.voiInfo;
    if (info.IsPlain())
        return static_cast<float>(std::round(middle));
    const double steps = std::round((middle - info.pixelOffset) / info.pixelFactor);
    return static_cast<float>(steps * info.pixelFactor + info.pixelOffset);
}

}  // namespace

QvxStatus WindowSetup_Limits(const zelWindowFacts& facts, zelWindowSetup* setup)
{
    if (!setup)
        return kQvxBadArgument;
    const std::int64_t n = std::int64_t{facts.pixelMaximum} - facts.pixelMinimum + 1;
    const std::int64_t m = n == 0 ? 1 : n;
    const std::int64_t widening = n > 1 ? m >> 1 : 0;
    const std::int64_t minimum = facts.pixelMinimum - widening;
    const std::int64_t maximum = facts.pixelMaximum + widening;
    if (maximum < minimum)
        return kQvxBadArgument;
    zelWindowSetup made{PinnedToInt32(minimum), PinnedToInt32(maximum), facts.codecLimits};
    if (!facts.hasDefault) {
        const auto most = static_cast<std::uint32_t>(std::min<std::int64_t>(m, UINT32_MAX));
        made.limits = {1, made.widenedMinimum, most, made.widenedMaximum};
    }
    *setup = made;
    return kQvxOK;
}

QvxStatus WindowSetup_RecordLimits(const zelDisplayVOILimits& limits, zel_TransformRec* record)
{
    if (!record)
        return kQvxBadArgument;
    const CVOIBlitter blitter;
    float a = 0, b = 0;
    if (const QvxStatus status = blitter.DisplayToUser(*record, limits.minLevel, &a))
        return status;
    if (const QvxStatus status = blitter.DisplayToUser(*record, limits.maxLevel, &b))
        return status;
    const double factor = record->voiInfo.pixelFactor;
    record->SetVOIWidthLimits(static_cast<float>(limits.minWidth * factor),
                              static_cast<float>(limits.maxWidth * factor));
    record->SetVOILevelLimits(std::min(a, b), std::max(a, b));
    return kQvxOK;
}

void WindowSetup_RecordOriginals(const zelWindowFacts& facts, zel_TransformRec* record)
{
    const bool follows = record->IsVOIAtOriginals();
    // Written as "not both 0", so that a NaN counts as a number that is there.
    const bool stated = facts.hasDefault && !(facts.defaultWidth == 0 && facts.defaultLevel == 0);
    if (stated)
        record->SetVOIOriginals(facts.defaultWidth, facts.defaultLevel, facts.defaultTable);
    else
        record->SetVOIOriginals(record->voiWidthMax, MiddleLevel(*record));
    record->voiFunction = facts.function;
    if (follows)
        record->RecordVOI(record->voiWidthOriginal, record->voiLevelOriginal);
}

QvxStatus SetupWindow(const zelWindowFacts& facts, zel_TransformRec* record, zelWindowSetup* setup)
{
    if (!record || !setup)
        return kQvxBadArgument;
    zelWindowSetup made;
    if (const QvxStatus status = WindowSetup_Limits(facts, &made))
        return status;
    if (const QvxStatus status = WindowSetup_RecordLimits(made.limits, record))
        return status;
    WindowSetup_RecordOriginals(facts, record);
    *setup = made;
    return kQvxOK;
}

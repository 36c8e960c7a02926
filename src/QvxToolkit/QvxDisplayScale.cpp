#include "QvxToolkit/QvxDisplayScale.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// Beyond this, shift and range are no longer safe to add to in 32 bits.
constexpr double kGreatestShift = 0x3FFFFFFF;
// Floats at the ends of their range would give a scale that is no number.
constexpr double kLeastFactor = 1e-300, kGreatestNumber = std::numeric_limits<double>::max();

struct Range {
    std::int64_t fLow, fHigh;
};

Range StorableRange(const QvxFrameRecord& record)
{
    const std::int64_t span = std::int64_t{1} << record.fBitsStored;
    return record.fSigned ? Range{-span / 2, span / 2 - 1} : Range{0, span - 1};
}

// The values of a frame that are image, be they all or none.
template <typename T>
class ImageValues {
public:
    ImageValues(const QvxFrameRecord& record, SampleView<T> samples, bool withPadding)
    {
        for (std::size_t i = 0; i < samples.fCount; ++i) {
            const auto value = static_cast<double>(samples[i]);
            const bool padding =
                record.fHasPadding && value >= record.fPaddingLow && value <= record.fPaddingHigh;
            if (!std::isfinite(value) || (padding && !withPadding))
                continue;
            fLow = fAny ? std::min(fLow, value) : value;
            fHigh = fAny ? std::max(fHigh, value) : value;
            fAny = true;
            fWhole = fWhole && value == std::floor(value);
        }
    }
    bool fAny = false, fWhole = true;
    double fLow = 0, fHigh = 0;
};

template <typename T>
ImageValues<T> ValuesOf(const QvxFrameRecord& record, SampleView<T> samples)
{
    const ImageValues<T> image(record, samples, false);
    return image.fAny ? image : ImageValues<T>(record, samples, true);
}

QvxQuantum QuantumOf(const QvxFrameRecord& record, SampleView<double> samples)
{
    const auto values = ValuesOf(record, samples);
    const double low = values.fLow, high = values.fHigh;
    // Divided before subtracted: the span of two doubles may be infinite.
    const double step = high / kGray16Maximum - low / kGray16Maximum;
    if (!values.fAny || !(step > 0))
        return {low, 1, 0};
    if (values.fWhole && high - low <= kGray16Maximum)
        return {low, 1, static_cast<std::int64_t>(high - low)};
    return {low, step, kGray16Maximum};
}

Range RangeOf(const QvxFrameRecord& record, const DecodedFrame& frame)
{
    return VisitSamples(frame, [&](auto samples) {
        const auto values = ValuesOf(record, samples);
        return Range{static_cast<std::int64_t>(values.fLow),
                     static_cast<std::int64_t>(values.fHigh)};
    });
}

// Splits `position` (what display 0 means, in factors) and the intercept into shift and offset.
void PlaceZero(double position, double intercept, QvxPixelInfo* info)
{
    const double folded = std::round(intercept / info->fFactor);
    const double shift = position + folded;
    if (std::isfinite(shift) && std::abs(shift) <= kGreatestShift) {
        info->fPixelShift = static_cast<std::int32_t>(shift);
        info->fOffset = intercept - folded * info->fFactor;
    } else {
        info->fPixelShift = 0;
        info->fOffset = intercept + position * info->fFactor;
    }
}

QvxDisplayScale ScaleOf(Range stored, double slope, double intercept)
{
    QvxDisplayScale scale;
    while ((stored.fHigh >> scale.fDrop) - (stored.fLow >> scale.fDrop) > kGray16Maximum)
        ++scale.fDrop;
    const std::int64_t low = stored.fLow >> scale.fDrop, high = stored.fHigh >> scale.fDrop;
    const double size = std::clamp(std::abs(slope), kLeastFactor, kGreatestNumber);
    const bool wholeUnits = scale.fDrop == 0 && size >= 1 && size == std::floor(size) &&
                            size * static_cast<double>(high - low) <= kGray16Maximum;
    const std::int64_t times = wholeUnits ? static_cast<std::int64_t>(size) : 1;
    scale.fTimes = slope < 0 ? -times : times;
    scale.fBase = slope < 0 ? high * times : -low * times;
    scale.fMaximum = static_cast<std::int32_t>((high - low) * times);
    scale.fInfo.fFactor = wholeUnits ? 1 : std::ldexp(size, scale.fDrop);
    PlaceZero(-static_cast<double>(scale.fBase),
              std::clamp(intercept, -kGreatestNumber, kGreatestNumber), &scale.fInfo);
    scale.fInfo.fPixelRange = scale.fMaximum + scale.fInfo.fPixelShift;
    return scale;
}

void Invert(QvxDisplayScale* scale)
{
    scale->fInfo.fPhotometric = 0;
    scale->fInfo.fPixelShift = 0;
    scale->fBase = scale->fMaximum - scale->fBase;
    scale->fTimes = -scale->fTimes;
}

}  // namespace

QvxDisplayScale QvxMakeDisplayScale(const QvxFrameRecord& record, const DecodedFrame* frame)
{
    QvxDisplayScale scale;
    if (record.fForm != QvxSampleForm::Integer) {
        QvxQuantum quantum{0, 1, kGray16Maximum};
        if (frame && frame->fForm == DecodedForm::Float64)
            quantum = QuantumOf(record, {frame->fBytes.data(), frame->Count()});
        scale = ScaleOf({0, quantum.fMost}, record.fSlope * quantum.fStep,
                        record.fIntercept + record.fSlope * quantum.fLow);
        scale.fQuantum = quantum;
    } else if (record.fModality) {
        scale = ScaleOf({0, record.fModality->Greatest()}, 1, 0);
        scale.fTable = record.fModality.get();
    } else {
        const bool own = frame && QvxCodecScaleIsPerFrame(record);
        scale = ScaleOf(own ? RangeOf(record, *frame) : StorableRange(record), record.fSlope,
                        record.fIntercept);
    }
    if (record.fInverted)
        Invert(&scale);
    return scale;
}

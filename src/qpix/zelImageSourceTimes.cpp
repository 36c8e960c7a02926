// How long the frames of a source show.
#include "dicom_core/values/ParserTiming.h"

#include "qpix/zelImageSource.h"
#include <algorithm>
#include <bit>
#include <cmath>
#include <numeric>

static_assert(std::bit_cast<std::uint32_t>(kDefaultFrameDuration_ms) == 0x42855555);

namespace {

// Also for a NaN, which is no time.
float Sensible(float time)
{
    return time >= kShortestFrameDuration_ms && std::isfinite(time) ? time
                                                                    : kDefaultFrameDuration_ms;
}

}  // namespace

QvxStatus zelImageSource::LoadFrameTimes()
{
    if (fFrameTimeKind != kTimesUnknown)
        return kQvxOK;
    if (fMore && fMore->fFrameTimeStatus)
        return fMore->fFrameTimeStatus;
    std::int32_t frames = 0;
    if (const QvxStatus status = GetFrameCount(&frames))
        return status;
    const QvxStatus status = ReadFrameTimes(frames);
    if (status)
        More().fFrameTimeStatus = status;
    return status;
}

QvxStatus zelImageSource::ReadFrameTimes(std::int32_t frames)
{
    zelFrameTimes times;
    const zelParserVisit visit(frames != 1 && fIsDICOM ? this : nullptr);
    if (!visit.Parser() || Parser_GetFrameTimes(visit.Parser(), &times) || times.fCount == 0) {
        fFrameTimeKind = kTimesDefault;
        return kQvxOK;
    }
    if (times.fCount == 1 && times.fSingle >= 0) {
        More().fSingleFrameTime = Sensible(times.fSingle);
        fFrameTimeKind = kTimesSingle;
        return kQvxOK;
    }
    if (times.fCount != frames || times.fVector.empty())
        return kQvxBadArgument;
    std::vector<float>& kept = More().fFrameTimes = std::move(times.fVector);
    std::ranges::transform(kept, kept.begin(), Sensible);
    fFrameTimeKind = frames;
    return kQvxOK;
}

QvxStatus zelImageSource::CheckFrame(std::int32_t frame)
{
    if (const QvxStatus status = LoadFrameTimes())
        return status;
    return frame >= 1 && frame <= fFrameCount ? kQvxOK : kQvxBadArgument;
}

// Of the first `frames`.
double zelImageSource::SumOfTimes(std::int32_t frames) const
{
    if (fFrameTimeKind == kTimesDefault)
        return frames * double{kDefaultFrameDuration_ms};
    if (fFrameTimeKind == kTimesSingle)
        return frames * double{fMore->fSingleFrameTime};
    return std::accumulate(fMore->fFrameTimes.begin(), fMore->fFrameTimes.begin() + frames, 0.0);
}

QvxStatus zelImageSource::GetFrameDuration(std::int32_t frame, double* duration)
{
    if (!duration)
        return kQvxBadArgument;
    if (const QvxStatus status = CheckFrame(frame))
        return status;
    if (fFrameTimeKind == kTimesDefault)
        *duration = double{kDefaultFrameDuration_ms};
    else if (fFrameTimeKind == kTimesSingle)
        *duration = double{fMore->fSingleFrameTime};
    else
        *duration = double{fMore->fFrameTimes[static_cast<std::size_t>(frame) - 1]};
    return kQvxOK;
}

QvxStatus zelImageSource::GetTotalSourceDuration(double* duration)
{
    if (!duration)
        return kQvxBadArgument;
    if (const QvxStatus status = LoadFrameTimes())
        return status;
    *duration = SumOfTimes(fFrameCount);
    return kQvxOK;
}

QvxStatus zelImageSource::GetTimePosOfFrame(std::int32_t frame, double* time)
{
    if (!time)
        return kQvxBadArgument;
    if (const QvxStatus status = CheckFrame(frame))
        return status;
    *time = SumOfTimes(frame - 1);
    return kQvxOK;
}

QvxStatus zelImageSource::GetFrameForTimePos(double time, std::int32_t* frame)
{
    double total = 0;
    if (const QvxStatus status = GetTotalSourceDuration(&total))
        return status;
    if (!frame || !(time >= 0 && time < total))
        return kQvxBadArgument;
    if (fFrameTimeKind == kTimesDefault || fFrameTimeKind == kTimesSingle) {
        const double each = fFrameTimeKind == kTimesDefault ? double{kDefaultFrameDuration_ms}
                                                            : double{fMore->fSingleFrameTime};
        // A time just below the total can divide to the whole count.
        *frame = std::min(static_cast<std::int32_t>(time / each + 1.0), fFrameCount);
        return kQvxOK;
    }
    double sum = 0;
    std::int32_t at = 0;
    while (at < fFrameCount - 1 &&
           (sum += double{fMore->fFrameTimes[static_cast<std::size_t>(at)]}) <= time)
        ++at;
    *frame = at + 1;
    return kQvxOK;
}

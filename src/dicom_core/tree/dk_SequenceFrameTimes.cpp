// How long the frames of a table show.
#include "dicom_core/tree/dk_SequenceFrameInfo.h"
#include "dicom_core/values/ParserTiming.h"
#include "util/Log.h"

#include "qpix/zelImageSource.h"
#include <algorithm>
#include <bit>
#include <cmath>

namespace {

static_assert(std::bit_cast<std::uint32_t>(kDefaultFrameDuration_ms) == 0x42855555);

constexpr float kShortestTime_ms = 1.0F;
constexpr float kPastTheEnd = 1.01F;  // of the total; from there on there is no frame

// What one file says of its frames: one time, or a vector over the sequence.
struct FileTimes {
    float fSingle = kDefaultFrameDuration_ms;
    std::vector<float> fEach;
};

FileTimes TimesOf(zelImageSource* source, std::size_t framesOfSequence)
{
    FileTimes answer;
    zelFrameTimes times;
    const zelParserVisit visit(source);
    if (!visit.Parser() || Parser_GetFrameTimes(visit.Parser(), &times) != kQvxOK)
        return answer;
    const bool each = !times.fVector.empty();
    if (times.fCount == 1 && !each && times.fSingle >= kShortestTime_ms &&
        std::isfinite(times.fSingle))
        answer.fSingle = times.fSingle;
    else if (each && static_cast<std::size_t>(times.fCount) == framesOfSequence)
        answer.fEach = std::move(times.fVector);
    return answer;
}

float TimeOfFrame(const FileTimes& times, std::size_t position)
{
    if (times.fEach.empty())
        return times.fSingle;
    if (position >= times.fEach.size()) {
        LogLine("Impossible case in the LoadFrameTimes function!");
        return 0;
    }
    const float entry = times.fEach[position];
    return entry > kShortestTime_ms && std::isfinite(entry) ? entry : kDefaultFrameDuration_ms;
}

}  // namespace

void dk_SequenceFrameInfo::LoadFrameTimes(bool singleFile)
{
    if (fFrameTimesLoaded)
        return;
    const bool untimed = fFrames.size() == 1 || !singleFile;
    FileTimes times;
    const zelImageSource* asked = nullptr;
    for (std::size_t i = 0; i < fFrames.size(); ++i) {
        if (!untimed && fFrames[i].fSource != asked) {
            asked = fFrames[i].fSource;
            times = TimesOf(fFrames[i].fSource, fFrames.size());
        }
        fFrames[i].fFrameDuration = TimeOfFrame(times, i);
    }
    fFrameTimesLoaded = true;
    fTotalDuration = -1.0F;
}

float dk_SequenceFrameInfo::GetTotalSequenceDuration(bool singleFile)
{
    if (fFrames.empty())
        return 0;
    LoadFrameTimes(singleFile);
    if (fTotalDuration < 0) {
        fFrameEnds.clear();
        fFrameEnds.reserve(fFrames.size());
        double sum = 0;  // of thousands of floats
        for (const dk_ImageFrameInfo& info : fFrames)
            fFrameEnds.push_back(sum += static_cast<double>(info.fFrameDuration));
        fTotalDuration = static_cast<float>(sum);
    }
    return fTotalDuration;
}

float dk_SequenceFrameInfo::GetFrameDuration(std::int32_t frame, bool singleFile)
{
    if (frame < 1 || static_cast<std::size_t>(frame) > fFrames.size())
        return 0;
    LoadFrameTimes(singleFile);
    return fFrames[static_cast<std::size_t>(frame) - 1].fFrameDuration;
}

float dk_SequenceFrameInfo::GetTimePosOfFrame(std::int32_t frame, bool singleFile)
{
    if (frame < 2 || static_cast<std::size_t>(frame) > fFrames.size())
        return 0;
    static_cast<void>(GetTotalSequenceDuration(singleFile));
    return static_cast<float>(fFrameEnds[static_cast<std::size_t>(frame) - 2]);
}

std::int32_t dk_SequenceFrameInfo::GetFrameForTimePos(float time, bool singleFile)
{
    const float total = GetTotalSequenceDuration(singleFile);
    // The negated form sends a NaN away, too.
    if (!(time >= 0) || fFrames.empty() || time >= total * kPastTheEnd)
        return 0;
    const auto last = static_cast<std::int32_t>(fFrames.size());
    if (time >= total)
        return last;
    const auto end = std::ranges::upper_bound(fFrameEnds, static_cast<double>(time));
    return std::min(static_cast<std::int32_t>(end - fFrameEnds.begin()) + 1, last);
}

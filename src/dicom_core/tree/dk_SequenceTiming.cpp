// Timing and sizes of a sequence, from its frame table.
#include "dicom_core/tree/dk_SequenceBase.h"
#include "prefs/Prefs.h"

#include <algorithm>

float dk_SequenceBase::GetTotalSequenceDuration()
{
    dk_SequenceFrameInfo* table = GetSequenceFrameInfo();
    return table ? table->GetTotalSequenceDuration(SingleFileTiming()) : 0;
}

float dk_SequenceBase::GetFrameDuration(std::int32_t frame)
{
    dk_SequenceFrameInfo* table = GetSequenceFrameInfo();
    return table ? table->GetFrameDuration(frame, SingleFileTiming()) : 0;
}

float dk_SequenceBase::GetTimePosOfFrame(std::int32_t frame)
{
    dk_SequenceFrameInfo* table = GetSequenceFrameInfo();
    return table ? table->GetTimePosOfFrame(frame, SingleFileTiming()) : 0;
}

std::int32_t dk_SequenceBase::GetFrameForTimePos(float time)
{
    dk_SequenceFrameInfo* table = GetSequenceFrameInfo();
    return table ? table->GetFrameForTimePos(time, SingleFileTiming()) : 0;
}

QvxStatus dk_SequenceBase::GetMinFrameSize(Point* size)
{
    dk_SequenceFrameInfo* table = GetSequenceFrameInfo();
    return table ? table->GetMinFrameSize(size, FramesOfOneFile()) : kQvxBadArgument;
}

QvxStatus dk_SequenceBase::GetMaxFrameSize(Point* size)
{
    dk_SequenceFrameInfo* table = GetSequenceFrameInfo();
    return table ? table->GetMaxFrameSize(size, FramesOfOneFile()) : kQvxBadArgument;
}

QvxStatus dk_SequenceBase::GetMaxFrameSizeFast(Point* size)
{
    if (AllParsersLoaded())
        return GetMaxFrameSize(size);
    dk_ImageFrameInfo* current = GetImageFrameInfo(dk_SequenceFrameInfo::kCurrentFrame);
    return current ? current->GetFrameSizeWithAspectRatio(size) : kQvxBadArgument;
}

QvxStatus dk_SequenceBase::GetFrameSizeEnvelop(Point* size)
{
    dk_SequenceFrameInfo* table = GetSequenceFrameInfo();
    return table ? table->GetFrameSizeEnvelop(size, FramesOfOneFile()) : kQvxBadArgument;
}

QvxStatus dk_SequenceBase::GetFrameSizeNormalEnvelop(Point* size)
{
    dk_SequenceFrameInfo* table = GetSequenceFrameInfo();
    return table ? table->GetFrameSizeNormalEnvelop(size, FramesOfOneFile()) : kQvxBadArgument;
}

float dk_SequenceBase::GetBuiltInSequenceFPS()
{
    const float total = GetTotalSequenceDuration();
    return total > 0 ? static_cast<float>(GetNumberOfFrames()) * 1000.0F / total : 0;
}

float dk_SequenceBase::GetCurrentCineSpeed()
{
    return GetBuiltInSequenceFPS() * static_cast<float>(fFrameInfo.fCineRate) /
           static_cast<float>(dk_SequenceFrameInfo::kRateOne);
}

namespace {

std::int32_t FixedRate(float rate)
{
    const double fixed = static_cast<double>(rate) * dk_SequenceFrameInfo::kRateOne;
    return static_cast<std::int32_t>(std::clamp(fixed, 1.0, static_cast<double>(INT32_MAX)));
}

}  // namespace

void dk_SequenceBase::SetCurrentCineSpeed(float fps)
{
    const float builtIn = GetBuiltInSequenceFPS();
    if (fps > 0 && builtIn > 0)
        fFrameInfo.fCineRate = FixedRate(fps / builtIn);
}

std::int32_t dk_SequenceBase::GetCurrentAdjustedCineRate()
{
    const float builtIn = GetBuiltInSequenceFPS();
    if (!prefs_HasCineEnforceSpeed() || builtIn <= 0)
        return fFrameInfo.fCineRate;
    return FixedRate(static_cast<float>(prefs_CineDefaultSpeed()) / builtIn);
}

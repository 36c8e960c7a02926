#include "dicom_core/tree/dk_SequenceFrameInfo.h"

dk_ImageFrameInfo* dk_SequenceFrameInfo::GetImageFrameInfo(std::int32_t frame)
{
    const std::int32_t wanted = frame == kCurrentFrame ? fCurrentFrame : frame;
    if (wanted < 1 || static_cast<std::size_t>(wanted) > fFrames.size())
        return nullptr;
    return &fFrames[static_cast<std::size_t>(wanted) - 1];
}

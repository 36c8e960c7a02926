#include "dicom_core/imaging/LoadFrame.h"

#include "dicom_core/imaging/zel_QTViewerDoc.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "util/Log.h"

#include <string>

QvxStatus U_LoadFrameContentToViewerDoc(dk_SequenceBase* sequence, std::int32_t frame,
                                        zel_QTViewerDoc* document, std::uint32_t storePriority,
                                        std::uint32_t insertLimit)
{
    if (!sequence || !document)
        return kQvxBadArgument;
    const std::int32_t before = sequence->GetCurrentFrameIndex();
    // What is wrong with the current frame is of no matter when another one is loaded.
    static_cast<void>(document->SetSequence(sequence));
    const bool other = frame >= 1 && frame != before;
    if (other)
        sequence->SetCurrentFrameIndex(frame);
    const bool buffered = gAppBaseBuffer && SequenceCanUseBaseBuffer(*sequence);
    document->AttachExternalBuffer(buffered ? gAppBaseBuffer : nullptr, storePriority, insertLimit);
    // A document that is asked for no frame that there is shows none.
    const bool missing = other && sequence->GetCurrentFrameIndex() != frame;
    QvxStatus status =
        missing ? document->SetCurrentImageFrame(frame) : document->LoadImageSource();
    if (missing && !status)
        status = kQvxBadArgument;
    if (status)
        LogLine("ERROR from viewerDoc->LoadImageSource: " + std::to_string(status));
    document->DetachExternalBuffer();
    sequence->SetCurrentFrameIndex(before);
    return status;
}

bool SequenceCanUseBaseBuffer(const dk_SequenceBase& sequence) { return sequence.IsDICOM(); }

bool SequenceCanUpdateBaseBuffer(const dk_SequenceBase& sequence) { return sequence.IsDICOM(); }

bool CheckIfCellInBaseBuffer(dk_SequenceBase* sequence, std::int32_t frame)
{
    std::int32_t primary = 0, secondary = 0;
    return gAppBaseBuffer && sequence && SequenceCanUseBaseBuffer(*sequence) &&
           !sequence->GetBaseBufferIDsForSequenceFrame(frame, &primary, &secondary) &&
           gAppBaseBuffer->GetImageInfoByID(primary, secondary);
}

bool AllCellsInBaseBuffer(dk_SequenceBase* sequence)
{
    const std::int32_t frames = sequence ? sequence->GetNumberOfFrames() : 0;
    for (std::int32_t frame = 1; frame <= frames; ++frame) {
        if (!CheckIfCellInBaseBuffer(sequence, frame))
            return false;
    }
    return true;
}

void ForgetBufferedFrames(dk_SequenceBase* sequence)
{
    if (!gAppBaseBuffer || !sequence)
        return;
    const std::int32_t frames = sequence->GetNumberOfFrames();
    std::int32_t last = 0;
    for (std::int32_t frame = 1; frame <= frames && gAppBaseBuffer->CountImages() > 0; ++frame) {
        std::int32_t primary = 0, secondary = 0;
        if (sequence->GetBaseBufferIDsForSequenceFrame(frame, &primary, &secondary) ||
            secondary == last)
            continue;
        gAppBaseBuffer->DisposeImagesBySecondaryID(secondary);
        last = secondary;
    }
}

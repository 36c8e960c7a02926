// Which frames of a sequence are localizers: scout images that others are planned on.
#include "dicom_core/tree/dk_DicomSequence.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "dicom_core/values/FrameGroups.h"

#include <algorithm>

namespace {

// A frame is what its file is; files are asked once while their frames follow one another.
class LocalizerTest {
public:
    bool operator()(dk_ImageFile* file)
    {
        if (file == fFile)
            return fAnswer;
        fFile = file;
        const zelParserVisit visit(file ? file->GetSource() : nullptr);
        fAnswer = visit.Parser() && Parser_ImageTypeIsLocalizer(visit.Parser());
        return fAnswer;
    }

private:
    const dk_ImageFile* fFile = nullptr;
    bool fAnswer = false;
};

// From `file` on, the first that has a frame.
dk_ImageFile* FileWithFrames(dk_DicomBaseElem* file, bool forward)
{
    while (file && static_cast<dk_ImageFile*>(file)->GetNumberOfFrames() < 1)
        file = forward ? file->GetNext() : file->GetPrev();
    return static_cast<dk_ImageFile*>(file);
}

}  // namespace

bool dk_Sequence::IsLocalizerSequence()
{
    if (!Modality_SupportsLocalizers(GetModality()))
        return false;
    LocalizerTest isLocalizer;
    for (dk_DicomBaseElem* child = GetFirstChild(); child; child = child->GetNext())
        if (auto* file = static_cast<dk_ImageFile*>(child);
            file->GetNumberOfFrames() > 0 && !isLocalizer(file))
            return false;
    return true;
}

bool dk_Sequence::HasLocalizerFrames()
{
    if (!Modality_SupportsLocalizers(GetModality()))
        return false;
    LocalizerTest isLocalizer;
    dk_ImageFile* first = FileWithFrames(GetFirstChild(), true);
    dk_ImageFile* last = FileWithFrames(GetLastChild(), false);
    return (first && isLocalizer(first)) || (last && isLocalizer(last));
}

bool dk_Sequence::HasLocalizerSpatialData()
{
    if (!Modality_SupportsLocalizers(GetModality()))
        return false;
    const dk_ImageFrameInfo* frame = GetImageFrameInfo(GetCurrentFrameIndex());
    const zelParserVisit visit(frame ? frame->fSource : nullptr);
    return visit.Parser() &&
           Parser_HasSpatialLocationFields(zelFrameGroups(visit.Parser()), frame->fFrameInFile);
}

void dk_Sequence::CountInSequenceLocalizerFrames()
{
    fFirstNormalFrame = fLastNormalFrame = 0;
    const dk_SequenceFrameInfo* table = GetSequenceFrameInfo();
    if (!table)
        return;
    LocalizerTest isLocalizer;
    const auto localizerAt = [&](std::int32_t frame) {
        return isLocalizer(table->fFrames[static_cast<std::size_t>(frame) - 1].fImageFile);
    };
    const auto count = static_cast<std::int32_t>(table->fFrames.size());
    fFirstNormalFrame = 1;
    while (fFirstNormalFrame < count && localizerAt(fFirstNormalFrame))
        ++fFirstNormalFrame;
    if (fFirstNormalFrame >= count)
        return;
    fLastNormalFrame = count;
    while (fLastNormalFrame > fFirstNormalFrame && localizerAt(fLastNormalFrame))
        --fLastNormalFrame;
}

std::int32_t dk_Sequence::CalcTotalLocalizers()
{
    CountInSequenceLocalizerFrames();
    const std::int32_t head = std::max(fFirstNormalFrame - 1, 0);
    const std::int32_t tail = fLastNormalFrame >= 1 ? GetNumberOfFrames() - fLastNormalFrame : 0;
    return head + tail;
}

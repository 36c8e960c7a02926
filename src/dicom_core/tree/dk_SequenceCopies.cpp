// Sequences out of others: appended, cloned, split.
#include "dicom_core/tree/dk_DicomSequence.h"
#include "dicom_core/tree/dk_ImageFile.h"

#include <algorithm>
#include <map>

void dk_SequenceBase::AppendSequence(dk_SequenceBase* other)
{
    const std::int32_t frames = GetNumberOfFrames() + other->GetNumberOfFrames();
    auto& own = fFrameInfo.fFrames;
    auto& added = other->fFrameInfo.fFrames;
    if (!own.empty() && !added.empty())
        own.insert(own.end(), added.begin(), added.end());
    else
        own.clear();  // one of them has none: the table is built anew when it is asked for
    added.clear();
    other->fFrameInfo.fNumFrames = 0;
    other->fFrameInfo.fCurrentFrame = 0;
    fFrameInfo.fNumFrames = frames;
    fFrameInfo.fCurrentFrame = 1;
    fFrameInfo.fFrameTimesLoaded = false;
    fFrameInfo.fTotalDuration = -1.0F;
    fCellInfo.reset();
    while (dk_DicomBaseElem* file = other->GetFirstChild())
        AddChild(other->RemoveChild(file));
    fTitleDataRead = false;
    fMarked = false;
    fRepresentativeFrame = -1;
}

void dk_Sequence::AppendSequence(dk_SequenceBase* other)
{
    dk_SequenceBase::AppendSequence(other);
    fROIData.clear();
    fROINumber = -1;
    fAllParsersLoaded = fAllFilesOnDisk = false;
}

void dk_SequenceBase::CopyBaseFieldsTo(dk_SequenceBase* other) const
{
    other->fRelPath = fRelPath;
    other->fFileName = fFileName;
    other->fHasFileSpec = fHasFileSpec;
    other->fFileSpec = fFileSpec;
    other->fIsClone = fIsClone;
    other->fMarked = fMarked;
    other->fModalityCode = fModalityCode;
    other->fHasScaleInfo = fHasScaleInfo;
    other->fHasOverlays = fHasOverlays;
    other->fTitleDataRead = false;
    other->fRepresentativeFrame = -1;
    other->fFrameInfo.fCineRate = fFrameInfo.fCineRate;
    other->fFrameInfo.fFrameTimesLoaded = fFrameInfo.fFrameTimesLoaded;
}

void dk_SequenceBase::MakeCloneSequence(dk_SequenceBase* clone)
{
    clone->fFrameInfo = {};
    clone->fIsClone = true;
    clone->ClearBaseElemLinks();
    clone->fFrameInfo.fCineRate = fFrameInfo.fCineRate;
    clone->fViewState = std::make_unique<dk_SequenceViewState>(GetModality(), *GetViewState());
    for (dk_DicomBaseElem* file = GetFirstChild(); file; file = file->GetNext())
        clone->AddChild(file->MakeClone());
    if (fFrameInfo.fFrames.empty() || clone->BuildFrameInfo() != kQvxOK)
        return;
    const std::size_t frames =
        std::min(fFrameInfo.fFrames.size(), clone->fFrameInfo.fFrames.size());
    for (std::size_t i = 0; i < frames; ++i)
        fFrameInfo.fFrames[i].CopySettingsTo(&clone->fFrameInfo.fFrames[i]);
    // The durations came along.
    clone->fFrameInfo.fFrameTimesLoaded =
        fFrameInfo.fFrameTimesLoaded && frames == clone->fFrameInfo.fFrames.size();
    clone->SetCurrentFrameIndex(fFrameInfo.fCurrentFrame);
}

std::unique_ptr<dk_DicomBaseElem> dk_Sequence::MakeClone()
{
    auto clone = std::make_unique<dk_Sequence>();
    CopyBaseFieldsTo(clone.get());
    clone->fRepresentativeFrame = fRepresentativeFrame;
    clone->fTitleDataRead = fTitleDataRead;
    clone->fFromDICOMDIR = fFromDICOMDIR;
    clone->fModalityStr = fModalityStr;
    clone->fAllParsersLoaded = fAllParsersLoaded;
    clone->fAllFilesOnDisk = fAllFilesOnDisk;
    MakeCloneSequence(clone.get());
    return clone;
}

namespace {

// Adds frames of one sequence to another, each file once.
class FrameTaker {
public:
    FrameTaker(dk_SequenceBase* target, dk_SequenceFrameInfo* table)
        : fTarget(target), fTable(table)
    {
    }
    void Take(const dk_ImageFrameInfo& frame)
    {
        dk_ImageFile*& file = fFiles[frame.fImageFile];
        if (!file) {
            auto made = frame.fImageFile->Duplicate();
            file = made.get();
            fTarget->AddChild(std::move(made));
        }
        dk_ImageFrameInfo& added = fTable->fFrames.emplace_back();
        added.fImageFile = file;
        added.fSource = file->GetSource();
        added.fFrameInFile = frame.fFrameInFile;
        frame.CopySettingsTo(&added);
    }
    void Finish()
    {
        fTable->fNumFrames = static_cast<std::int32_t>(fTable->fFrames.size());
        fTable->fCurrentFrame = fTable->fFrames.empty() ? 0 : 1;
    }

private:
    dk_SequenceBase* fTarget;
    dk_SequenceFrameInfo* fTable;
    std::map<const dk_ImageFile*, dk_ImageFile*> fFiles;
};

}  // namespace

void dk_Sequence::TakeFrames(dk_Sequence* source, bool normal)
{
    source->CopyBaseFieldsTo(this);
    fFromDICOMDIR = source->fFromDICOMDIR;
    fModalityStr = source->fModalityStr;
    fAllParsersLoaded = source->fAllParsersLoaded;
    fAllFilesOnDisk = source->fAllFilesOnDisk;
    fROIData.clear();
    fROINumber = -1;
    dk_SequenceFrameInfo* table = source->GetSequenceFrameInfo();
    if (!table)
        return;
    const auto count = static_cast<std::int32_t>(table->fFrames.size());
    const std::int32_t first = std::max(source->fFirstNormalFrame, 1);
    const std::int32_t last = source->fLastNormalFrame >= 1 ? source->fLastNormalFrame : count;
    FrameTaker taker(this, &fFrameInfo);
    for (std::int32_t frame = 1; frame <= count; ++frame)
        if ((frame >= first && frame <= last) == normal)
            taker.Take(table->fFrames[static_cast<std::size_t>(frame) - 1]);
    taker.Finish();
}

void dk_Sequence::ExtractLocalizerFrames(dk_Sequence* source) { TakeFrames(source, false); }

void dk_Sequence::ExtractNormalFrames(dk_Sequence* source) { TakeFrames(source, true); }

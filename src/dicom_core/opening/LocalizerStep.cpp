// Splits the localizers off the sequences of a tree.
#include "dicom_core/opening/BuildTree.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "prefs/Prefs.h"

#include "qpix/zelImageSource.h"
#include <memory>
#include <utility>

namespace {

// The sequence, if its localizers are to go into one of their own.
dk_Sequence* SequenceToSplit(dk_SequenceBase* sequence)
{
    auto* whole = dynamic_cast<dk_Sequence*>(sequence);
    if (!whole || !Modality_SupportsLocalizers(whole->GetModality()) || !whole->IsGood())
        return nullptr;
    // Both questions begin with the first file, which is read once for them.
    const dk_ImageFrameInfo* first = whole->GetImageFrameInfo(1);
    const zelParserVisit visit(first ? first->fSource : nullptr);
    return whole->HasLocalizerFrames() && !whole->IsLocalizerSequence() ? whole : nullptr;
}

// The normal frames stay in the series, the localizers get a series of their own behind it, which
// has no number and is titled by its place. Answers the sequence of the normal frames.
dk_Sequence* SplitOffLocalizers(dk_Sequence* whole)
{
    dk_DicomBaseElem* series = whole->GetParent();
    dk_DicomBaseElem* study = series->GetParent();
    auto normal = std::make_unique<dk_Sequence>();
    whole->CountInSequenceLocalizerFrames();
    normal->ExtractNormalFrames(whole);
    dk_Sequence* remaining = normal.get();
    series->AddChildAfter(std::move(normal), whole);
    auto localizers = std::make_unique<dk_LocalaSequence>();
    localizers->ExtractLocalizerFrames(whole);
    auto added = std::make_unique<dk_Series>();
    added->fTitleDataRead = true;  // its files tell of the other series
    added->AddChild(std::move(localizers));
    study->AddChildAfter(std::move(added), series);
    static_cast<void>(series->RemoveChild(whole));  // with its files: the others have duplicates
    return remaining;
}

}  // namespace

void PostProcessDicomTree_Localizers(ZELDcmTree* tree)
{
    if (!prefs_SeparateLocalizerFrames())
        return;
    dk_SequenceBase* sequence = tree->firstGoodSequence_DICOM();
    while (sequence) {
        if (dk_Sequence* whole = SequenceToSplit(sequence))
            sequence = SplitOffLocalizers(whole);
        sequence = tree->nextSequence_DICOMFrom(sequence);
    }
}

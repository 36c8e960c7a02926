#include "app/grid/SequenceMarks.h"

#include "app/grid/ZELSequenceProxy.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_SequenceBase.h"

#include <algorithm>

std::vector<dk_SequenceBase*> SequencesOfTree(const ZELDcmTree& tree)
{
    std::vector<dk_SequenceBase*> all;
    for (dk_SequenceBase* each = tree.firstSequence_DICOM(); each;
         each = tree.nextSequence_DICOMFrom(each))
        all.push_back(each);
    return all;
}

std::vector<dk_SequenceBase*> MarkSequences(const ZELDcmTree& tree,
                                            const std::vector<dk_SequenceBase*>& sequences,
                                            SequenceMark change)
{
    std::vector<dk_SequenceBase*> changed;
    for (dk_SequenceBase* sequence : sequences) {
        const bool marked =
            change == SequenceMark::Switch ? !sequence->fMarked : change == SequenceMark::Set;
        if (!sequence->IsGood() || sequence->fMarked == marked)
            continue;
        // Most sequences of a large tree have no proxy, and need none for this.
        if (ZELSequenceProxy* proxy = tree.sequenceFor_dkSequence(sequence))
            proxy->setUserMarked(marked);
        else
            sequence->fMarked = marked;
        changed.push_back(sequence);
    }
    return changed;
}

bool HasSequence(const std::vector<dk_SequenceBase*>& sequences, bool marked)
{
    return std::ranges::any_of(sequences, [&](dk_SequenceBase* sequence) {
        return sequence->IsGood() && sequence->fMarked == marked;
    });
}

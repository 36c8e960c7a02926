#include "app/window/SequenceMarks.h"

#include "app/grid/GridHost.h"
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

void MarkSequences(GridHost& host, const std::vector<dk_SequenceBase*>& sequences,
                   MarkChange change)
{
    for (dk_SequenceBase* sequence : sequences) {
        const bool marked =
            change == MarkChange::Switch ? !sequence->fMarked : change == MarkChange::Mark;
        if (!sequence->IsGood() || sequence->fMarked == marked)
            continue;
        // Most sequences of a large tree have no proxy, and need none for this.
        if (ZELSequenceProxy* proxy = host.tree()->sequenceFor_dkSequence(sequence))
            proxy->setUserMarked(marked);
        else
            sequence->fMarked = marked;
        host.updateNodeForSequence(sequence);
    }
}

bool HasSequence(const std::vector<dk_SequenceBase*>& sequences, bool marked)
{
    return std::ranges::any_of(sequences, [&](dk_SequenceBase* sequence) {
        return sequence->IsGood() && sequence->fMarked == marked;
    });
}

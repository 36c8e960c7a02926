// From one sequence to the next, across the whole tree.
#include "dicom_core/tree/dk_SequenceBase.h"

namespace {

// The first (or last) sequence below `elem`, which stands `depth` levels above sequences.
dk_DicomBaseElem* EndSequence(dk_DicomBaseElem* elem, int depth, bool first)
{
    if (depth == 0)
        return elem;
    dk_DicomBaseElem* child = first ? elem->GetFirstChild() : elem->GetLastChild();
    for (; child; child = first ? child->GetNext() : child->GetPrev())
        if (dk_DicomBaseElem* found = EndSequence(child, depth - 1, first))
            return found;
    return nullptr;
}

// Siblings of the sequence, of its series, of its study, of its patient: the first of them that has
// a sequence gives it.
dk_SequenceBase* Neighbour(dk_DicomBaseElem* elem, bool forward)
{
    for (int depth = 0; depth <= 3 && elem; ++depth, elem = elem->GetParent()) {
        dk_DicomBaseElem* sibling = forward ? elem->GetNext() : elem->GetPrev();
        for (; sibling; sibling = forward ? sibling->GetNext() : sibling->GetPrev())
            if (dk_DicomBaseElem* found = EndSequence(sibling, depth, forward))
                return static_cast<dk_SequenceBase*>(found);
    }
    return nullptr;
}

}  // namespace

dk_SequenceBase* dk_SequenceBase::GetNextSequence_DICOM() { return Neighbour(this, true); }

dk_SequenceBase* dk_SequenceBase::GetPrevSequence_DICOM() { return Neighbour(this, false); }

dk_SequenceBase* dk_SequenceBase::GetNextGoodSequence_DICOM()
{
    dk_SequenceBase* next = GetNextSequence_DICOM();
    while (next && !next->IsGood())
        next = next->GetNextSequence_DICOM();
    return next;
}

dk_SequenceBase* dk_SequenceBase::GetPrevGoodSequence_DICOM()
{
    dk_SequenceBase* previous = GetPrevSequence_DICOM();
    while (previous && !previous->IsGood())
        previous = previous->GetPrevSequence_DICOM();
    return previous;
}

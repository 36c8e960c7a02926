#include "dicom_core/tree/dk_PatientListRoot.h"

#include "dicom_core/tree/dk_SequenceBase.h"

#include <algorithm>

namespace {

constexpr int kFastCountEnd = 4;
constexpr std::int32_t kCineFrames = 2;
constexpr int kModeMarked = 1, kModeMarkedCines = 2;
constexpr int kLevelsAboveSequences = 3;

// `visit(dk_SequenceBase*)` for each sequence in tree order, until it answers false.
template <typename Visit>
bool ForEachSequence(dk_DicomBaseElem* elem, int levelsAbove, const Visit& visit)
{
    for (dk_DicomBaseElem* child = elem->GetFirstChild(); child; child = child->GetNext())
        if (levelsAbove == 0 ? !visit(static_cast<dk_SequenceBase*>(child))
                             : !ForEachSequence(child, levelsAbove - 1, visit))
            return false;
    return true;
}

template <typename Visit>
void ForEachSequence(dk_PatientListRoot* root, const Visit& visit)
{
    static_cast<void>(ForEachSequence(root, kLevelsAboveSequences, visit));
}

std::int32_t CountSequences(dk_PatientListRoot* root, int mode)
{
    std::int32_t count = 0;
    for (dk_DicomBaseElem* patient = root->GetFirstChild(); patient; patient = patient->GetNext())
        for (dk_DicomBaseElem* study = patient->GetFirstChild(); study; study = study->GetNext())
            count += study->GetNumGrandChildren(mode);
    return count;
}

}  // namespace

void dk_PatientListRoot::SetRootIsDICOMDIR(bool isDirectory)
{
    rootIsFolder = !isDirectory;
    rootIsDICOMDIR = isDirectory;
    rootIsRecursive = rootIsFile = rootIsImageSource = false;
}

void dk_PatientListRoot::SetRootIsFile()
{
    rootIsFile = true;
    rootIsImageSource = false;
}

void dk_PatientListRoot::SetRootIsImageSource()
{
    rootIsImageSource = true;
    rootIsFile = false;
}

std::int32_t dk_PatientListRoot::NumberOfGoodSequences()
{
    std::int32_t count = 0;
    ForEachSequence(this, [&](dk_SequenceBase* sequence) {
        count += sequence->GetNumberOfFrames() > 0 ? 1 : 0;
        return true;
    });
    return count;
}

std::int32_t dk_PatientListRoot::NumberOfGoodSequencesFast()
{
    if (fNumGoodSequencesFast < 0) {
        fNumGoodSequencesFast = 0;
        ForEachSequence(this, [&](dk_SequenceBase* sequence) {
            fNumGoodSequencesFast += sequence->GetNumberOfFrames() > 0 ? 1 : 0;
            return fNumGoodSequencesFast < kFastCountEnd;
        });
    }
    return fNumGoodSequencesFast;
}

bool dk_PatientListRoot::HasManyCineSequencesFast()
{
    int cines = 0;
    ForEachSequence(this, [&](dk_SequenceBase* sequence) {
        cines += sequence->GetNumberOfFrames() >= kCineFrames ? 1 : 0;
        return cines < 2;
    });
    return cines >= 2;
}

std::int32_t dk_PatientListRoot::GetNumMarkedSequences()
{
    return CountSequences(this, kModeMarked);
}

std::int32_t dk_PatientListRoot::GetNumMarkedCineSequences()
{
    return CountSequences(this, kModeMarkedCines);
}

void dk_PatientListRoot::MarkAll(bool marked)
{
    ForEachSequence(this, [&](dk_SequenceBase* sequence) {
        if (!marked || sequence->IsGood())
            sequence->fMarked = marked;
        return true;
    });
}

void dk_PatientListRoot::SwitchMarked()
{
    ForEachSequence(this, [&](dk_SequenceBase* sequence) {
        if (sequence->IsGood())
            sequence->fMarked = !sequence->fMarked;
        return true;
    });
}

dk_SequenceBase* dk_PatientListRoot::GetFirstSequence_DICOM()
{
    dk_DicomBaseElem* elem = this;
    for (int level = 0; elem && level <= kLevelsAboveSequences; ++level)
        elem = elem->GetFirstChild();
    return static_cast<dk_SequenceBase*>(elem);
}

dk_SequenceBase* dk_PatientListRoot::GetLastSequence_DICOM()
{
    dk_DicomBaseElem* elem = this;
    for (int level = 0; elem && level <= kLevelsAboveSequences; ++level)
        elem = elem->GetLastChild();
    return static_cast<dk_SequenceBase*>(elem);
}

dk_SequenceBase* dk_PatientListRoot::GetFirstGoodSequence_DICOM()
{
    dk_SequenceBase* sequence = GetFirstSequence_DICOM();
    return !sequence || sequence->IsGood() ? sequence : sequence->GetNextGoodSequence_DICOM();
}

dk_SequenceBase* dk_PatientListRoot::GetLastGoodSequence_DICOM()
{
    dk_SequenceBase* sequence = GetLastSequence_DICOM();
    return !sequence || sequence->IsGood() ? sequence : sequence->GetPrevGoodSequence_DICOM();
}

dk_SequenceBase* dk_PatientListRoot::GetIndexedSequence(std::int32_t n)
{
    dk_DicomBaseElem* sequence = GetFirstSequence_DICOM();
    for (std::int32_t i = 1; sequence && i < n; ++i)
        sequence = sequence->GetNextAtSameLevel();
    return static_cast<dk_SequenceBase*>(sequence);
}

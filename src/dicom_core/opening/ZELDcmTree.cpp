#include "dicom_core/opening/ZELDcmTree.h"

#include "dicom_core/opening/CacheCopy.h"
#include "dicom_core/opening/OpenObserver.h"
#include "prefs/Prefs.h"

#include <algorithm>

ZELDcmTree::ZELDcmTree() : _dicomTreeRoot(std::make_unique<dk_PatientListRoot>()) {}

ZELDcmTree::~ZELDcmTree()
{
    _dicomTreeRoot.reset();  // before the folder that its files are read from
    cleanCacheFiles();
}

std::string ZELDcmTree::fileCopiesFolder() const
{
    return _fileCopiesFolder ? _fileCopiesFolder->Path() : std::string();
}

void ZELDcmTree::setFileCopiesFolder(std::unique_ptr<PrivateFolder> folder)
{
    _fileCopiesFolder = std::move(folder);
}

void ZELDcmTree::cleanCacheFiles() { _fileCopiesFolder.reset(); }

void ZELDcmTree::LeaveOut(std::string path, std::string reason)
{
    _leftOut.push_back({std::move(path), std::move(reason)});
}

std::int32_t ZELDcmTree::numberOfPatients() const { return _dicomTreeRoot->GetNumPatients(); }
std::int32_t ZELDcmTree::numberOfSequences() const { return _dicomTreeRoot->GetNumSequences(); }
std::int32_t ZELDcmTree::numberOfGoodSequences() const
{
    return _dicomTreeRoot->NumberOfGoodSequences();
}
std::int32_t ZELDcmTree::numberOfGoodSequencesFast() const
{
    return _dicomTreeRoot->NumberOfGoodSequencesFast();
}
std::int32_t ZELDcmTree::numberOfMarkedSequences() const
{
    return _dicomTreeRoot->GetNumMarkedSequences();
}

std::int32_t ZELDcmTree::numberOfHangingSequences() const
{
    dk_Series* series = firstSeries();
    const std::int32_t inStudy = firstStudy() ? firstStudy()->GetNumChildren() : 0;
    if (series && series->SeriesIs_XAUS()) {
        if (prefs_Has_SpecialUSXAOpen())
            return 1;
        return series->GetNumChildren() == 1 ? inStudy : series->GetNumChildren();
    }
    return std::min(numberOfGoodSequencesFast(), inStudy);
}

dk_Patient* ZELDcmTree::firstPatient() const
{
    return static_cast<dk_Patient*>(_dicomTreeRoot->GetFirstChild());
}
dk_Study* ZELDcmTree::firstStudy() const
{
    return firstPatient() ? static_cast<dk_Study*>(firstPatient()->GetFirstChild()) : nullptr;
}
dk_Series* ZELDcmTree::firstSeries() const
{
    return firstStudy() ? static_cast<dk_Series*>(firstStudy()->GetFirstChild()) : nullptr;
}
dk_SequenceBase* ZELDcmTree::firstSequence_DICOM() const
{
    return _dicomTreeRoot->GetFirstSequence_DICOM();
}
dk_SequenceBase* ZELDcmTree::lastSequence_DICOM() const
{
    return _dicomTreeRoot->GetLastSequence_DICOM();
}
dk_SequenceBase* ZELDcmTree::firstGoodSequence_DICOM() const
{
    return _dicomTreeRoot->GetFirstGoodSequence_DICOM();
}
dk_SequenceBase* ZELDcmTree::lastGoodSequence_DICOM() const
{
    return _dicomTreeRoot->GetLastGoodSequence_DICOM();
}

dk_SequenceBase* ZELDcmTree::nextSequence_DICOMFrom(dk_SequenceBase* sequence) const
{
    return sequence ? sequence->GetNextSequence_DICOM() : nullptr;
}
dk_SequenceBase* ZELDcmTree::prevSequence_DICOMFrom(dk_SequenceBase* sequence) const
{
    return sequence ? sequence->GetPrevSequence_DICOM() : nullptr;
}
dk_SequenceBase* ZELDcmTree::nextGoodSequence_DICOMFrom(dk_SequenceBase* sequence) const
{
    return sequence ? sequence->GetNextGoodSequence_DICOM() : nullptr;
}
dk_SequenceBase* ZELDcmTree::prevGoodSequence_DICOMFrom(dk_SequenceBase* sequence) const
{
    return sequence ? sequence->GetPrevGoodSequence_DICOM() : nullptr;
}

bool ZELDcmTree::hasDICOMSequences() const { return firstSequence_DICOM() != nullptr; }
bool ZELDcmTree::hasGoodSequences() const { return numberOfGoodSequences() > 0; }
bool ZELDcmTree::hasSingleGoodSequence() const { return numberOfGoodSequences() == 1; }
bool ZELDcmTree::hasMoreThanOneGoodSequences() const { return numberOfGoodSequences() > 1; }
bool ZELDcmTree::hasSingleCine() const { return numberOfGoodSequencesFast() < 2; }
bool ZELDcmTree::hasMoreThanOneSequences() const { return numberOfGoodSequencesFast() > 1; }
bool ZELDcmTree::hasManyCines() const { return _dicomTreeRoot->HasManyCineSequencesFast(); }
bool ZELDcmTree::hasMarkedSequences() const { return numberOfMarkedSequences() > 0; }
bool ZELDcmTree::hasUnmarkedSequences() const
{
    return numberOfMarkedSequences() < numberOfGoodSequences();
}
bool ZELDcmTree::hasMarkedCineSequences() const
{
    return _dicomTreeRoot->GetNumMarkedCineSequences() > 0;
}

bool ZELDcmTree::hasCrops() const
{
    if (!_sequenceProxies)
        return false;
    for (dk_SequenceBase* sequence = firstSequence_DICOM(); sequence;
         sequence = sequence->GetNextSequence_DICOM())
        if (_sequenceProxies->HasCrops(sequence))
            return true;
    return false;
}

void ZELDcmTree::markAll(bool marked) { _dicomTreeRoot->MarkAll(marked); }
void ZELDcmTree::switchMarked() { _dicomTreeRoot->SwitchMarked(); }
bool ZELDcmTree::isOnSlowMedia() const { return _dicomTreeRoot->isOnSlowMedia; }
void ZELDcmTree::SetSlowMediaFlag(bool slow) { _dicomTreeRoot->isOnSlowMedia = slow; }

ZELSequenceProxy* ZELDcmTree::sequenceFor_dkSequence(dk_SequenceBase* sequence) const
{
    return _sequenceProxies && sequence ? _sequenceProxies->ProxyOf(sequence) : nullptr;
}

void ZELDcmTree::U_EnsureZELSequenceIsLoadedFor(dk_SequenceBase* sequence) const
{
    if (_sequenceProxies && sequence && !sequence->GetSequenceProxy())
        _sequenceProxies->EnsureProxyOf(sequence);
}

void ZELDcmTree::executeForAllSequencesUsingBlock(
    const std::function<void(ZELSequenceProxy*)>& block) const
{
    if (!_sequenceProxies)
        return;
    // Patient, study, series, sequence: also those behind an empty branch.
    for (auto* patient = _dicomTreeRoot->GetFirstChild(); patient; patient = patient->GetNext())
        for (auto* study = patient->GetFirstChild(); study; study = study->GetNext())
            for (auto* series = study->GetFirstChild(); series; series = series->GetNext())
                for (auto* child = series->GetFirstChild(); child; child = child->GetNext()) {
                    auto* sequence = static_cast<dk_SequenceBase*>(child);
                    U_EnsureZELSequenceIsLoadedFor(sequence);
                    if (ZELSequenceProxy* proxy = sequenceFor_dkSequence(sequence))
                        block(proxy);
                }
}

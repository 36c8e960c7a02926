#include "dicom_core/opening/BuildTree.h"

#include "dicom_core/tree/dk_DicomSequence.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "dicom_core/tree/dk_Patient.h"
#include "dicom_core/tree/dk_Series.h"
#include "dicom_core/tree/dk_Study.h"
#include "prefs/Prefs.h"

#include <memory>
#include <utility>

namespace {

// One pass over sorted files that decides where each level begins anew.
class TreeGrouping {
public:
    explicit TreeGrouping(dk_PatientListRoot* root)
        : fRoot(root),
          fMergeXA(prefs_DoMergeSingleFrameXAs()),
          fMergeUS(prefs_DoMergeSingleFrameUSs())
    {
    }
    void Take(std::unique_ptr<dk_DicomBaseElem> file, const DicomImageFileRec& record);

private:
    void EnterPatient(const DicomImageFileRec& record);
    void EnterStudy(const DicomImageFileRec& record);
    void EnterSequence(const DicomImageFileRec& record);
    [[nodiscard]] bool JoinsPatient(const DicomImageFileRec& record) const;
    [[nodiscard]] bool Merges(const DicomImageFileRec& record) const;
    [[nodiscard]] bool NeedsSequence(const DicomImageFileRec& record) const;
    void ForgetStudy();
    void ForgetSeries();

    dk_PatientListRoot* fRoot;
    const bool fMergeXA, fMergeUS;
    SharedText fName, fID, fStudyUID, fStudyDate, fSeriesUID;
    std::int32_t fSeriesNumber = 0;
    dk_Patient* fPatient = nullptr;
    dk_Study* fStudy = nullptr;
    dk_Series* fSeries = nullptr;
    dk_Sequence* fSequence = nullptr;
    bool fNewLevel = false;  // a higher level has just begun
    bool fPrevMultiFrame = false;
};

template <typename Element, typename... Arguments>
Element* AddNew(dk_DicomBaseElem* parent, const Arguments&... arguments)
{
    auto made = std::make_unique<Element>(arguments...);
    Element* element = made.get();
    parent->AddChild(std::move(made));
    return element;
}

bool IsMultiFrame(const DicomImageFileRec& record) { return record.recNumFrames > 1; }

void TreeGrouping::ForgetSeries()
{
    fSeriesUID.Clear();
    fSeriesNumber = 0;
    fSeries = nullptr;
    fSequence = nullptr;
}

void TreeGrouping::ForgetStudy()
{
    fStudyUID.Clear();
    fStudyDate.Clear();
    fStudy = nullptr;
    ForgetSeries();
}

// The ID counts only for those without a name: two patients of one name share a patient.
bool TreeGrouping::JoinsPatient(const DicomImageFileRec& record) const
{
    if (!fPatient)
        return false;
    return record.recPatientName.Empty() ? record.recPatientID == fID
                                         : record.recPatientName == fName;
}

void TreeGrouping::EnterPatient(const DicomImageFileRec& record)
{
    fNewLevel = !JoinsPatient(record);
    if (!fNewLevel)
        return;
    fPatient = AddNew<dk_Patient>(fRoot, record);
    fName = record.recPatientName;
    fID = record.recPatientID;
    ForgetStudy();
}

void TreeGrouping::EnterStudy(const DicomImageFileRec& record)
{
    const bool joins = !fNewLevel && fStudy && record.recStudyUID == fStudyUID &&
                       record.recStudyDate == fStudyDate;
    fNewLevel = !joins;
    if (joins)
        return;
    fStudy = AddNew<dk_Study>(fPatient, record);
    fStudyUID = record.recStudyUID;
    fStudyDate = record.recStudyDate;
    ForgetSeries();
}

bool TreeGrouping::Merges(const DicomImageFileRec& record) const
{
    const std::string_view modality = record.recModality.View();
    return (fMergeXA && modality == "XA") || (fMergeUS && (modality == "US" || modality == "IVUS"));
}

// In a series that the file joins.
bool TreeGrouping::NeedsSequence(const DicomImageFileRec& record) const
{
    if (Merges(record))
        return IsMultiFrame(record) || fPrevMultiFrame;
    return Modality_HasSingleFileSequences(record.recModality.View());
}

void TreeGrouping::EnterSequence(const DicomImageFileRec& record)
{
    const bool joins = !fNewLevel && fSeries && record.recSeriesUID == fSeriesUID &&
                       record.recSeriesNumber == fSeriesNumber;
    if (!joins) {
        fSeries = AddNew<dk_Series>(fStudy, record);
        fSeriesUID = record.recSeriesUID;
        fSeriesNumber = record.recSeriesNumber;
    }
    if (!joins || NeedsSequence(record))
        fSequence = AddNew<dk_Sequence>(fSeries, record, false);
}

void TreeGrouping::Take(std::unique_ptr<dk_DicomBaseElem> file, const DicomImageFileRec& record)
{
    EnterPatient(record);
    EnterStudy(record);
    EnterSequence(record);
    fPrevMultiFrame = IsMultiFrame(record);
    fSequence->AddChild(std::move(file));
}

// Joins one-frame ultrasound sequences that follow one another in one series. A clip behind the
// first of them ends that for the rest of the series.
class ClipMerging {
public:
    // False if the sequence has given its files to the candidate, and is to go.
    [[nodiscard]] bool Keep(dk_SequenceBase* sequence);

private:
    dk_SequenceBase* fCandidate = nullptr;
    const dk_DicomBaseElem* fSeries = nullptr;
};

bool ClipMerging::Keep(dk_SequenceBase* sequence)
{
    if (sequence->GetModality() != DicomUtil_ModalityFromString("US")) {
        fCandidate = nullptr;
        fSeries = nullptr;
    } else if (sequence->GetNumberOfFrames() != 1) {
        fCandidate = nullptr;
    } else if (sequence->GetParent() != fSeries) {
        fCandidate = sequence;
        fSeries = sequence->GetParent();
    } else if (fCandidate) {
        fCandidate->AppendSequence(sequence);
        return false;
    }
    return true;
}

}  // namespace

void BuildDICOMTreeFromFolder(dk_PatientListRoot* root, dk_DicomBaseElem* collection)
{
    TreeGrouping grouping(root);
    while (dk_DicomBaseElem* child = collection->GetFirstChild()) {
        const DicomImageFileRec& record = *static_cast<dk_ImageFile*>(child)->GetParserInfoData();
        grouping.Take(collection->RemoveChild(child), record);
    }
}

void PostProcessDicomTree(dk_PatientListRoot* root)
{
    if (!prefs_DoMergeSingleFrameUSs())
        return;
    ClipMerging merging;
    dk_SequenceBase* sequence = root->GetFirstSequence_DICOM();
    while (sequence) {
        dk_SequenceBase* next = sequence->GetNextSequence_DICOM();
        if (!merging.Keep(sequence))
            static_cast<void>(sequence->GetParent()->RemoveChild(sequence));
        sequence = next;
    }
}

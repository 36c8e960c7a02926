#include "app/window/TreeFrames.h"

#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_SequenceBase.h"

namespace {

constexpr std::int32_t kStudyLevel = 1;

bool HasRow(const dk_DicomBaseElem& element)
{
    return element.GetDicomTreeLevel() != kStudyLevel || element.GetParent()->GetNumChildren() > 1;
}

// `element` is a patient, study, series or sequence: four levels deep, whatever the files say.
void AddRows(dk_DicomBaseElem* element, std::vector<TreeRow>* rows)
{
    const TreeRow row{element, element->GetDicomTreeLevel()};
    if (row.IsSequence()) {
        if (row.Sequence()->IsGood())
            rows->push_back(row);
        return;
    }
    const std::size_t before = rows->size();
    if (HasRow(*element))
        rows->push_back(row);
    const std::size_t heading = rows->size();
    for (auto* child = element->GetFirstChild(); child; child = child->GetNext())
        AddRows(child, rows);
    if (rows->size() == heading)  // nothing good below it
        rows->resize(before);
}

}  // namespace

dk_SequenceBase* TreeRow::Sequence() const { return static_cast<dk_SequenceBase*>(element); }

std::vector<TreeRow> RowsOfTree(const ZELDcmTree& tree)
{
    std::vector<TreeRow> rows;
    for (auto* patient = tree.patientTreeRoot()->GetFirstChild(); patient;
         patient = patient->GetNext())
        AddRows(patient, &rows);
    return rows;
}

#include "viewer/TreeFrames.h"

#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "util/Log.h"

namespace {

constexpr std::int32_t kStudyLevel = 1;

std::string PathOf(const dk_ImageFile& file)
{
    return file.GetSource() ? file.GetSource()->GetDataPath() : file.fFileSpec.fPath;
}

void Append(dk_ImageFile* file, int first, int count, FrameList* frames)
{
    const std::string path = PathOf(*file);
    if (!frames->Append(path, {first, count, file->GetNumberOfFrames()}))
        LogLine(path + ": its frames can't be counted");
}

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

FrameList FramesOfSequence(dk_SequenceBase* sequence)
{
    FrameList frames;
    const dk_SequenceFrameInfo* table = sequence->GetSequenceFrameInfo();
    if (!table)
        return frames;
    // Frames of one file that follow one another become one part.
    dk_ImageFile* file = nullptr;
    int first = 0, count = 0;
    for (const dk_ImageFrameInfo& frame : table->fFrames) {
        if (frame.fImageFile == file && frame.fFrameInFile == first + count) {
            ++count;
            continue;
        }
        if (file)
            Append(file, first, count, &frames);
        file = frame.fImageFile;
        first = frame.fFrameInFile;
        count = 1;
    }
    if (file)
        Append(file, first, count, &frames);
    return frames;
}

// From the records of a DICOMDIR to patients, studies, series and sequences.
#include "dicom_core/opening/BuildTree.h"
#include "dicom_core/opening/DicomDir.h"
#include "dicom_core/opening/LeftOut.h"
#include "dicom_core/opening/ProgressCalls.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "dicom_core/values/ParserValues.h"

#include "Qvx2Parser/QvxDirectory.h"
#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

QvxStatus ReadDicomDirElemRecData(ParserHandle parser, QvxElementRef reference,
                                  DicomImageFileRec* record)
{
    *record = {};
    record->recRef = reference;
    return CollectRecordData(parser, reference, record);
}

namespace {

// Where the records of one level stand. A file joins the sequence in front of it, in its series.
struct DirLevel {
    DirRecordWalk* fWalk;
    dk_DicomBaseElem* fParent;
    dk_Sequence* fSequence = nullptr;
};

void LeaveOutRecord(const DirRecordWalk& walk, const DicomImageFileRec& record,
                    std::string_view reason)
{
    std::string path = record.recFileName.Empty()
                           ? walk.fSettings->openTargetPath
                           : DirFolders::PathBelow(walk.fFolder, record.recRelPath.View(),
                                                   record.recFileName.View());
    walk.fSettings->dcmDBRoot->LeaveOut(std::move(path), std::string(reason));
}

bool JoinsSequence(const DirLevel& level, const DicomImageFileRec& record)
{
    const std::string_view modality = record.recModality.View();
    return level.fSequence && (!Modality_HasSingleFileSequences(modality) ||
                               (modality == "XA" && record.recNumFrames == 1));
}

void TakeImage(DirLevel* level, DicomImageFileRec* record)
{
    auto file = std::make_unique<dk_ImageFile>(*record);
    if (record->recModality.Empty()) {
        record->recModality.Assign(static_cast<dk_Series*>(level->fParent)->fModalityStr.View());
        file->SetModality_Externally(record->recModality.View());
    }
    if (record->recModality.View() == "SR") {
        LeaveOutRecord(*level->fWalk, *record, kLeftOutReport);
        return;
    }
    if (!JoinsSequence(*level, *record)) {
        auto sequence = std::make_unique<dk_Sequence>(*record, true);
        level->fSequence = sequence.get();
        level->fParent->AddChild(std::move(sequence));
    }
    level->fSequence->AddChild(std::move(file));
    ++level->fWalk->fFileCount;
}

template <typename Element>
QvxStatus TakeLevel(DirLevel* level, const DicomImageFileRec& record)
{
    auto made = std::make_unique<Element>(record);
    Element* element = made.get();
    level->fParent->AddChild(std::move(made));
    return Parse_DicomDirTree(level->fWalk, record.recRef, element);
}

// Of a type of its own level.
QvxStatus TakeRecord(DirLevel* level, DicomImageFileRec* record)
{
    switch (record->recType) {
        case kDirRecordPatient:
            return TakeLevel<dk_Patient>(level, *record);
        case kDirRecordStudy:
            return TakeLevel<dk_Study>(level, *record);
        case kDirRecordSeries:
            return TakeLevel<dk_Series>(level, *record);
        default:
            TakeImage(level, record);
            return kQvxOK;
    }
}

bool IsTreeRecord(const DicomImageFileRec& record)
{
    return record.recType >= kDirRecordPatient && record.recType <= kDirRecordImage;
}

QvxStatus MeetRecord(DirLevel* level, QvxElementRef reference)
{
    DirRecordWalk* walk = level->fWalk;
    if (!walk->fTaken.insert(reference).second) {
        ++walk->fMetInVain;
        return kQvxOK;
    }
    DicomImageFileRec record;
    if (const QvxStatus status = ReadDicomDirElemRecData(walk->fParser, reference, &record)) {
        LeaveOutRecord(*walk, record, LeftOutReason(status));
        return kQvxOK;
    }
    if (!IsTreeRecord(record)) {
        if (!record.recFileName.Empty())
            LeaveOutRecord(*walk, record, kLeftOutNoImage);
        return kQvxOK;
    }
    // The root's level is -1, and a patient's record is 1.
    if (record.recType == level->fParent->GetDicomTreeLevel() + 2)
        return TakeRecord(level, &record);
    walk->fTaken.erase(reference);  // a stray
    ++walk->fMetInVain;
    return kQvxOK;
}

// Deleted records may stay in the file, without a link to them (PS3.3 F.3.2.2).
bool IsInUse(ParserHandle parser, QvxElementRef reference)
{
    std::int32_t flag = 0;
    return Parser_GetElementValueAsLong(parser, reference, 0x0004, 0x1410, 1, &flag) || flag != 0;
}

// In levels of its own, since nothing tells whose it is: a title finds that out from a file.
QvxStatus TakeStray(DirRecordWalk* walk, dk_DicomBaseElem* root, DicomImageFileRec* record)
{
    DicomImageFileRec unknown;
    unknown.recModality = record->recModality;
    DirLevel level{walk, root};
    for (std::int32_t above = kDirRecordPatient; above < record->recType; ++above) {
        std::unique_ptr<dk_DicomBaseElem> made;
        if (above == kDirRecordPatient)
            made = std::make_unique<dk_Patient>(unknown);
        else if (above == kDirRecordStudy)
            made = std::make_unique<dk_Study>(unknown);
        else
            made = std::make_unique<dk_Series>(unknown);
        dk_DicomBaseElem* parent = std::exchange(level.fParent, made.get());
        parent->AddChild(std::move(made));
    }
    return TakeRecord(&level, record);
}

}  // namespace

QvxStatus Parse_DicomDirTree(DirRecordWalk* walk, QvxElementRef record, dk_DicomBaseElem* parent)
{
    if (walk->fMetInVain > kMostMetInVain + walk->fTaken.size())
        return kQvxOK;
    QvxElementRefArray records;
    if (const QvxStatus status = Qvx2Reader_GetDIRElementRefs(walk->fParser, record, &records)) {
        if (!walk->fFirstFault)
            walk->fFirstFault = status;
        walk->fSettings->dcmDBRoot->LeaveOut(walk->fSettings->openTargetPath,
                                             "a level of its records: " + LeftOutReason(status));
        return kQvxOK;
    }
    DirLevel level{walk, parent};
    for (const QvxElementRef reference : QvxRefsOf(records)) {
        QvxStatus status = U_ProgressCheckForCancel(walk->fSettings);
        if (!status)
            status = MeetRecord(&level, reference);
        if (status)
            return status;
    }
    return kQvxOK;
}

// Records of higher levels first: they bring what stands below them.
QvxStatus TakeStrayDirRecords(DirRecordWalk* walk, dk_DicomBaseElem* root)
{
    QvxElementRefArray records;
    if (Qvx2Reader_GetSequenceElementRefs(walk->fParser, {0x0004, 0x1220}, &records) ||
        QvxRefsOf(records).size() == walk->fTaken.size())
        return kQvxOK;
    std::vector<std::pair<std::int32_t, QvxElementRef>> strays;
    for (const QvxElementRef reference : QvxRefsOf(records)) {
        if (const QvxStatus status = U_ProgressCheckForCancel(walk->fSettings))
            return status;
        DicomImageFileRec record;
        if (!walk->fTaken.contains(reference) &&
            !ReadDicomDirElemRecData(walk->fParser, reference, &record) && IsTreeRecord(record) &&
            IsInUse(walk->fParser, reference))
            strays.emplace_back(record.recType, reference);
    }
    std::ranges::stable_sort(strays, {}, &std::pair<std::int32_t, QvxElementRef>::first);
    for (const auto& [type, reference] : strays) {
        DicomImageFileRec record;
        QvxStatus status = U_ProgressCheckForCancel(walk->fSettings);
        if (!status && walk->fTaken.insert(reference).second &&
            !ReadDicomDirElemRecData(walk->fParser, reference, &record))
            status = TakeStray(walk, root, &record);
        if (status)
            return status;
    }
    return kQvxOK;
}

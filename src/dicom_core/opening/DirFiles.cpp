// The files that the records of a DICOMDIR name, and the whole run from directory to tree.
#include "dicom_core/opening/BuildTree.h"
#include "dicom_core/opening/Builders.h"
#include "dicom_core/opening/CacheCopy.h"
#include "dicom_core/opening/DicomDir.h"
#include "dicom_core/opening/LeftOut.h"
#include "dicom_core/opening/PathNames.h"
#include "dicom_core/opening/ProgressCalls.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "platform/Words.h"
#include "prefs/Prefs.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

bool IsCancelled(const OpenSettings* settings)
{
    return U_ProgressCheckForCancel(settings) != kQvxOK;
}

// `visit` for each sequence in tree order, until the user cancels.
template <typename Visit>
void ForEachSequence(dk_PatientListRoot* root, const OpenSettings* settings, const Visit& visit)
{
    dk_SequenceBase* sequence = root->GetFirstSequence_DICOM();
    for (; sequence && !IsCancelled(settings); sequence = sequence->GetNextSequence_DICOM())
        visit(sequence);
}

QvxStatus StepFor(const std::string& name, OpenSettings* settings)
{
    return U_StepTheOpenProgressDialog(settings, [&name] {
        return ZelWord(kWordsMain, "progrOpen_ProcessingFile").arg(DisplayName(name));
    });
}

// A directory may name itself, and is no image.
bool IsDirectoryItself(const std::string& path, const OpenSettings& settings)
{
    const std::string& directory = settings.openTargetPath;
    return path == JoinedPath(ParentFolder(directory), LastComponent(directory));
}

void LeaveOutUnfound(const dk_DicomBaseElem& file, DirFolders::Match match,
                     const DirFolders& folders, OpenSettings* settings)
{
    if (file.fFileName.Empty()) {
        settings->dcmDBRoot->LeaveOut(settings->openTargetPath, std::string(kLeftOutNoName));
        return;
    }
    const bool isEmpty = match == DirFolders::Match::Empty;
    settings->dcmDBRoot->LeaveOut(folders.PathOf(file.fRelPath.View(), file.fFileName.View()),
                                  std::string(isEmpty ? kLeftOutNoBytes : kLeftOutNotThere));
}

}  // namespace

void BulkCheckSequenceFiles(dk_SequenceBase* sequence, DirFolders* folders,
                            const std::string& cacheFolder, bool copy, OpenSettings* settings)
{
    for (dk_DicomBaseElem* child = sequence->GetFirstChild(); child && !IsCancelled(settings);
         child = child->GetNext()) {
        DirFolders::Hit hit;
        const DirFolders::Match match =
            folders->Find(child->fRelPath.View(), child->fFileName.View(), &hit);
        if (match != DirFolders::Match::Found) {
            LeaveOutUnfound(*child, match, *folders, settings);
            continue;
        }
        if (IsDirectoryItself(hit.fPath, *settings)) {
            settings->dcmDBRoot->LeaveOut(std::move(hit.fPath), std::string(kLeftOutNoPixels));
            continue;
        }
        child->fFileSpec.fPath = hit.fPath;
        child->fFileName.Assign(hit.fName);
        if (StepFor(hit.fName, settings))
            return;
        child->fHasFileSpec = !copy || CopyDICOMDIRFileToCache(static_cast<dk_ImageFile*>(child),
                                                               cacheFolder, settings);
        if (!child->fHasFileSpec)
            settings->dcmDBRoot->LeaveOut(std::move(hit.fPath), std::string(kLeftOutNotCopied));
    }
}

QvxStatus CollectDicomDirFiles(zelImageSource* directory, std::int32_t fileCount,
                               dk_PatientListRoot* root, OpenSettings* settings)
{
    if (const QvxStatus status =
            U_ProgressUpdate(settings, kProgressBeginCounted, 0, fileCount, 0, {}, {}))
        return status;
    DirFolders folders(ParentFolder(directory->GetDataPath()));
    const std::string cacheFolder = U_GetDICOMDIR_CacheFolder(settings->dcmDBRoot, directory);
    const bool copy = prefs_CopyCDFilesToDisk() && root->isOnSlowMedia;
    ForEachSequence(root, settings, [&](dk_SequenceBase* sequence) {
        BulkCheckSequenceFiles(sequence, &folders, cacheFolder, copy, settings);
    });
    return U_ProgressUpdate(settings, kProgressIndeterminate, 0, 0, 0, {}, {});
}

// ---- pruning ------------------------------------------------------------------------------------

void RemoveNonExistentFileBranches(dk_PatientListRoot* root)
{
    dk_SequenceBase* sequence = root->GetFirstSequence_DICOM();
    for (; sequence; sequence = sequence->GetNextSequence_DICOM()) {
        dk_DicomBaseElem* child = sequence->GetFirstChild();
        while (child)
            child = child->fHasFileSpec ? child->GetNext() : sequence->DeleteChildAndGetNext(child);
    }
}

namespace {

constexpr std::int32_t kLevelSeries = 2, kLevelSequence = 3;

// Bottom up; false once the user has cancelled.
bool RemoveEmptyBelow(dk_DicomBaseElem* elem, const OpenSettings* settings)
{
    if (elem->GetDicomTreeLevel() == kLevelSeries && IsCancelled(settings))
        return false;
    dk_DicomBaseElem* child = elem->GetFirstChild();
    while (child) {
        if (child->GetDicomTreeLevel() < kLevelSequence && !RemoveEmptyBelow(child, settings))
            return false;
        child = child->GetFirstChild() ? child->GetNext() : elem->DeleteChildAndGetNext(child);
    }
    return true;
}

}  // namespace

void RemoveEmptyTreeBranches(dk_PatientListRoot* root, OpenSettings* settings)
{
    static_cast<void>(RemoveEmptyBelow(root, settings));
}

// ---- sources ------------------------------------------------------------------------------------

namespace {

// Ascending by `numberOf`; equal ones stay as the directory has them.
template <typename NumberOf>
void SortChildren(dk_DicomBaseElem* elem, const NumberOf& numberOf)
{
    if (elem->GetNumChildren() < 2)
        return;
    std::vector<std::pair<std::int32_t, dk_DicomBaseElem*>> numbered;
    for (dk_DicomBaseElem* child = elem->GetFirstChild(); child; child = child->GetNext())
        numbered.emplace_back(numberOf(child), child);
    std::ranges::stable_sort(numbered, {}, &std::pair<std::int32_t, dk_DicomBaseElem*>::first);
    std::vector<dk_DicomBaseElem*> sorted;
    for (const auto& [number, child] : numbered)
        sorted.push_back(child);
    elem->OrderChildren(sorted);
}

// Without a source there is nothing but the record to ask.
std::int32_t NumberOfFile(dk_DicomBaseElem* file)
{
    return file ? static_cast<dk_ImageFile*>(file)->GetInstanceNumber() : 0;
}

void GiveSources(dk_SequenceBase* sequence)
{
    for (dk_DicomBaseElem* child = sequence->GetFirstChild(); child; child = child->GetNext())
        if (child->fHasFileSpec)
            static_cast<void>(static_cast<dk_ImageFile*>(child)->SetSourceFile(
                child->fFileSpec, kImportDeferNoCheck));
}

}  // namespace

void SortSequenceImageFiles(dk_SequenceBase* sequence) { SortChildren(sequence, NumberOfFile); }

void SortSeriesImageFiles(dk_Series* series)
{
    SortChildren(
        series, [](dk_DicomBaseElem* sequence) { return NumberOfFile(sequence->GetFirstChild()); });
}

void LoadFilesInDicomDir(dk_PatientListRoot* root, OpenSettings* settings)
{
    const dk_DicomBaseElem* sorted = nullptr;
    dk_SequenceBase* sequence = root->GetFirstSequence_DICOM();
    while (sequence && !IsCancelled(settings)) {
        auto* series = static_cast<dk_Series*>(sequence->GetParent());
        if (!Modality_HasSingleFileSequences(series->fModalityStr.View())) {
            SortSequenceImageFiles(sequence);
        } else if (series != sorted) {
            SortSeriesImageFiles(series);
            sorted = series;
            sequence = static_cast<dk_SequenceBase*>(series->GetFirstChild());
        }
        GiveSources(sequence);
        sequence = sequence->GetNextSequence_DICOM();
    }
}

// ---- the run ------------------------------------------------------------------------------------

namespace {

void Say(OpenSettings* settings, const char* key)
{
    static_cast<void>(
        U_ProgressUpdate(settings, kProgressLabelThrottled, 0, 0, 0, ZelWord(kWordsMain, key), {}));
}

QvxStatus ReadRecords(zelImageSource* directory, dk_PatientListRoot* root, OpenSettings* settings,
                      std::int32_t* fileCount)
{
    Say(settings, "progrOpen_ParsingDicomDir");
    const zelParserVisit visit(directory);
    DirRecordWalk walk;
    walk.fSettings = settings;
    walk.fParser = visit.Parser();  // without records at all, as with none that leads to a file
    walk.fFolder = ParentFolder(directory->GetDataPath());
    QvxStatus status = Parse_DicomDirTree(&walk, QvxElementRef::None, root);
    if (!status)
        status = TakeStrayDirRecords(&walk, root);
    *fileCount = walk.fFileCount;
    return status || walk.fFileCount > 0 ? status : walk.fFirstFault;
}

// From the records to files, and what has none away.
QvxStatus FindFiles(zelImageSource* directory, std::int32_t fileCount, dk_PatientListRoot* root,
                    OpenSettings* settings)
{
    Say(settings, "progrOpen_RemoveEmptyTreeBranches");
    RemoveEmptyTreeBranches(root, settings);
    Say(settings, "progrOpen_CollectingImageFiles");
    if (const QvxStatus status = CollectDicomDirFiles(directory, fileCount, root, settings))
        return status;
    Say(settings, "progrOpen_DicomDirFinishing");
    RemoveNonExistentFileBranches(root);
    RemoveEmptyTreeBranches(root, settings);
    return U_ProgressCheckForCancel(settings);
}

QvxStatus ImportDirectory(zelImageSource* directory, const OpenSettings& settings)
{
    if (const QvxStatus status = directory->ImportFromFSSpec({settings.openTargetPath}, kImportAny))
        return status;
    return directory->IsValid() && directory->IsDICOM() ? kQvxOK : kQvxNotOfKind;
}

}  // namespace

QvxStatus ReadPatientListFromDicomDirFile(OpenSettings* settings)
{
    dk_PatientListRoot* root = settings->dcmDBRoot->patientTreeRoot();
    zelImageSource directory;
    QvxStatus status = ImportDirectory(&directory, *settings);
    if (status)
        return status;
    root->SetRootIsDICOMDIR(true);
    std::int32_t fileCount = 0;
    status = ReadRecords(&directory, root, settings, &fileCount);
    if (!status)
        status = FindFiles(&directory, fileCount, root, settings);
    directory.Reset();
    if (status || !root->GetFirstSequence_DICOM())
        return status;
    Say(settings, "progrOpen_DicomDirFinishing");
    LoadFilesInDicomDir(root, settings);
    if (const QvxStatus cancelled = U_ProgressCheckForCancel(settings))
        return cancelled;
    PostProcessDicomTree(root);
    RemoveEmptyTreeBranches(root, settings);
    return kQvxOK;
}

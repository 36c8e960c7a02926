// The tree of a DICOMDIR: from its records first, then each file that they name is looked up in one
// listing of its folder, and only then do images get their sources, which open nothing yet.
#pragma once
#include "dicom_core/opening/DirFolders.h"
#include "dicom_core/tree/dk_PatientListRoot.h"

#include "Qvx2Parser/Qvx2Reader.h"
#include <string>
#include <unordered_set>

class dk_SequenceBase;
class dk_Series;
class zelImageSource;
struct OpenSettings;

// What is known while the records are read.
struct DirRecordWalk {
    OpenSettings* fSettings = nullptr;
    ParserHandle fParser = nullptr;
    std::string fFolder;                       // that holds the directory
    std::unordered_set<QvxElementRef> fTaken;  // no record twice: links can go round in circles
    std::int32_t fFileCount = 0;
    // References to records that were taken already, or stood at a wrong level: levels that name
    // each other in a circle have many.
    std::size_t fMetInVain = 0;
    QvxStatus fFirstFault = kQvxOK;  // of a level that could not be listed
};

// Adds the records below `record` (None: the root's) to `parent`: patients to the root, studies to
// patients, series to studies, images to series, and there into sequences. Records of other kinds
// are left out; one of these kinds at a wrong level is passed over, a stray. A level that can't be
// listed is left out, and its code kept. Once more than kMostMetInVain references, and half of all,
// were met in vain, no further level is listed: what stands there is a stray. 0 or
// kQvxUserCanceled.
inline constexpr std::size_t kMostMetInVain = 1000;
[[nodiscard]] QvxStatus Parse_DicomDirTree(DirRecordWalk* walk, QvxElementRef record,
                                           dk_DicomBaseElem* parent);
// Then those records in use that no link has led to, or to a wrong level. 0 or kQvxUserCanceled.
[[nodiscard]] QvxStatus TakeStrayDirRecords(DirRecordWalk* walk, dk_DicomBaseElem* root);
// The code is that of the last of the elements that are read: a record is bad whose end is.
[[nodiscard]] QvxStatus ReadDicomDirElemRecData(ParserHandle parser, QvxElementRef reference,
                                                DicomImageFileRec* record);

// Finds the files of all sequences, and copies them if they are to be. What isn't found or copied
// is noted in the tree. 0, or kQvxUserCanceled.
[[nodiscard]] QvxStatus CollectDicomDirFiles(zelImageSource* directory, std::int32_t fileCount,
                                             dk_PatientListRoot* root, OpenSettings* settings);
void BulkCheckSequenceFiles(dk_SequenceBase* sequence, DirFolders* folders,
                            const std::string& cacheFolder, bool copy, OpenSettings* settings);

// Files that were not found, or not copied, go.
void RemoveNonExistentFileBranches(dk_PatientListRoot* root);
// Sequences, series, studies and patients without children go.
void RemoveEmptyTreeBranches(dk_PatientListRoot* root, OpenSettings* settings);

// Sorts by instance number, and gives each file a source.
void LoadFilesInDicomDir(dk_PatientListRoot* root, OpenSettings* settings);
void SortSequenceImageFiles(dk_SequenceBase* sequence);
void SortSeriesImageFiles(dk_Series* series);

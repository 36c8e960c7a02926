// From a flat collection of files, each with its record, to patients, studies, series, sequences.
#pragma once
#include "dicom_core/tree/dk_PatientListRoot.h"

#include "Qvx2Parser/Qvx2Reader.h"

class ZELDcmTree;
struct OpenSettings;

// Fills what the elements of the header give; the rest stays as it is. `recType` is the caller's.
// Texts that `like` holds too are shared with it, which must then belong to this thread.
void File_CollectDicomData(ParserHandle parser, DicomImageFileRec* record,
                           const DicomImageFileRec* like = nullptr);
// The same for a directory record. The code is that of the last of the elements that are read, so a
// record whose end is damaged is bad; an empty element is no fault.
[[nodiscard]] QvxStatus CollectRecordData(ParserHandle parser, QvxElementRef reference,
                                          DicomImageFileRec* record);

// Fills the records of the children; those that fail are deleted. 0 or kQvxUserCanceled.
[[nodiscard]] QvxStatus ParseCollectionAndReadFileData(dk_DicomBaseElem* collection,
                                                       const std::string& cacheFolder, bool copy,
                                                       OpenSettings* settings);
void SortImageFilesForPatientList(dk_DicomBaseElem* collection);
// Copies of a file (equal instance UID and series number) are left out but for the first.
void FindIdenticalImageFilesInList(dk_DicomBaseElem* collection, ZELDcmTree* tree);
void BuildDICOMTreeFromFolder(dk_PatientListRoot* root, dk_DicomBaseElem* collection);
void PostProcessDicomTree(dk_PatientListRoot* root);
void PostProcessDicomTree_Localizers(ZELDcmTree* tree);

// The roads from a file, and from a folder, to a filled tree.
#include "dicom_core/opening/BuildTree.h"
#include "dicom_core/opening/Builders.h"
#include "dicom_core/opening/CacheCopy.h"
#include "dicom_core/opening/FolderScan.h"
#include "dicom_core/opening/ProgressCalls.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "prefs/Prefs.h"

namespace {

QvxStatus ReadHeadersOf(dk_DicomBaseElem* collection, OpenSettings* settings)
{
    ZELDcmTree* tree = settings->dcmDBRoot;
    const std::string cacheFolder = U_Folder_CacheFolder(tree);
    const bool copy = prefs_CopyCDFilesToDisk() && tree->isOnSlowMedia();
    return ParseCollectionAndReadFileData(collection, cacheFolder, copy, settings);
}

// With a hundred thousand files each step takes a while.
void GroupFiles(dk_DicomBaseElem* collection, OpenSettings* settings)
{
    SortImageFilesForPatientList(collection);
    if (U_ProgressCheckForCancel(settings))
        return;
    FindIdenticalImageFilesInList(collection, settings->dcmDBRoot);
    if (!U_ProgressCheckForCancel(settings))
        BuildDICOMTreeFromFolder(settings->dcmDBRoot->patientTreeRoot(), collection);
}

// Steps from a collection to the tree; what is asked at the end is whether the user has cancelled.
QvxStatus BuildFromFolder(dk_DicomBaseElem* collection, OpenSettings* settings)
{
    const QvxStatus begun = U_ProgressUpdate(settings, kProgressBeginCounted, 0,
                                             collection->GetNumChildren(), 0, {}, {});
    if (!begun && !ReadHeadersOf(collection, settings) && collection->GetNumChildren() > 0)
        GroupFiles(collection, settings);
    return U_ProgressUpdate(settings, kProgressIndeterminate, 0, 0, 0, {}, {});
}

}  // namespace

QvxStatus CreatePatientListWithFile(OpenSettings* settings)
{
    dk_PatientListRoot* root = settings->dcmDBRoot->patientTreeRoot();
    root->SetRootIsFile();
    dk_DicomBaseElem collection;
    if (!settings->progressIsON)
        CreateTheOpenProgressDialog(settings);
    const QvxStatus added = AddFileToCollection(settings->openTargetPath, &collection, settings);
    if (added && added != kQvxNotOfKind)  // what isn't DICOM at all is no error: it has no patient
        return added;
    if (collection.GetNumChildren() < 1)
        return kQvxOK;
    if (const QvxStatus status = ReadHeadersOf(&collection, settings))
        return status;
    if (collection.GetNumChildren() == 1) {
        SortImageFilesForPatientList(&collection);
        BuildDICOMTreeFromFolder(root, &collection);
    }
    return kQvxOK;
}

QvxStatus CreatePatientListWithFolder(OpenSettings* settings)
{
    const bool recursive = settings->actionFlavor == kOpenFlavorFolderRecursive;
    dk_PatientListRoot* root = settings->dcmDBRoot->patientTreeRoot();
    root->SetRootIsDICOMDIR(false);
    root->rootIsRecursive = recursive;
    dk_DicomBaseElem collection;
    if (const QvxStatus status =
            ScanDirectoryContents(settings->openTargetPath, recursive, &collection, settings))
        return status;
    if (collection.GetNumChildren() < 1)
        return kZelNoPatientInFolder;
    return BuildFromFolder(&collection, settings);
}

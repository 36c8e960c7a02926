// What the worker of a request does.
#include "dicom_core/opening/Builders.h"
#include "dicom_core/opening/CacheCopy.h"
#include "dicom_core/opening/Classify.h"
#include "dicom_core/opening/OpenRun.h"
#include "dicom_core/opening/PathNames.h"
#include "dicom_core/opening/ProgressCalls.h"
#include "dicom_core/opening/ZELDcmTree.h"

#include <new>

namespace {

void EnsureProgressDialog(OpenSettings* settings)
{
    if (!settings->progressIsON)
        CreateTheOpenProgressDialog(settings);
}

bool NamesDirectory(std::int32_t flavor)
{
    return flavor == kOpenFlavorFolderDICOMDIR || flavor == kOpenFlavorCDDICOMDIR ||
           flavor == kOpenFlavorDICOMDIRFile;
}

void TakeTarget(OpenSettings* settings)
{
    settings->dcmDBRoot->SetSlowMediaFlag(U_IsOnSlowVolume(settings->openTargetPath));
    settings->dcmDBRoot->setSourceFilePath(settings->openTargetPath);
}

QvxStatus CodeOfEmptyTree(const dk_PatientListRoot& root)
{
    if (root.rootIsFile)
        return kZelNoPatientInFile;
    return root.rootIsDICOMDIR ? kZelNoPatientInDirectory : kZelNoPatientInFolder;
}

}  // namespace

void U_CreateDicomTree(OpenSettings* settings)
{
    TakeTarget(settings);
    QvxStatus status = kQvxOK;
    switch (settings->actionFlavor) {
        case kOpenFlavorFile:
            status = CreatePatientListWithFile(settings);
            break;
        case kOpenFlavorFolder:
        case kOpenFlavorFolderRecursive:
            status = CreatePatientListWithFolder(settings);
            break;
        case kOpenFlavorFolderDICOMDIR:
        case kOpenFlavorDICOMDIRFile:
            EnsureProgressDialog(settings);
            status = ReadPatientListFromDicomDirFile(settings);
            break;
        default:  // builds nothing
            break;
    }
    if (status == kQvxOK && settings->dcmDBRoot->numberOfPatients() < 1)
        status = CodeOfEmptyTree(*settings->dcmDBRoot->patientTreeRoot());
    *settings->openError = status;
}

void U_OpenRecentDocWithPath(OpenSettings* settings)
{
    EnsureProgressDialog(settings);
    TakeTarget(settings);
    settings->openResult = 0;
    QvxStatus status = kQvxOK;
    if (NamesDirectory(settings->actionFlavor))
        status = ReadPatientListFromDicomDirFile(settings);
    else if (settings->actionFlavor == kOpenFlavorFile)
        status = CreatePatientListWithFile(settings);
    else
        status = CreatePatientListWithFolder(settings);
    if (status == kQvxOK && settings->dcmDBRoot->numberOfPatients() > 0)
        settings->openResult = 1;
    else if (status != kQvxUserCanceled)
        status = kZelRecentFailed;
    *settings->openError = status;
}

void U_OpenCDDICOMDIR(OpenSettings* settings)
{
    settings->dcmDBRoot->SetSlowMediaFlag(true);
    settings->dcmDBRoot->setSourceFilePath(ParentFolder(settings->openTargetPath));
    EnsureProgressDialog(settings);
    const QvxStatus status = ReadPatientListFromDicomDirFile(settings);
    if (status == kQvxOK && settings->dcmDBRoot->numberOfPatients() > 0)
        gOpenFileCalled = true;
    else
        *settings->openError = kZelDiscOpenFailed;
}

void blockOpenProc(OpenSettings* settings)
{
    try {
        switch (settings->actionType) {
            case kOpenActionPlain:
                U_CreateDicomTree(settings);
                break;
            case kOpenActionRecent:
                U_OpenRecentDocWithPath(settings);
                break;
            case kOpenActionCD:
                U_OpenCDDICOMDIR(settings);
                break;
            default:
                break;
        }
    } catch (const std::bad_alloc&) {
        *settings->openError = kQvxNoMemory;
    }
}

#include "dicom_core/opening/OpenController.h"

#include "dicom_core/opening/BuildTree.h"
#include "dicom_core/opening/OpenRun.h"
#include "dicom_core/opening/PathNames.h"
#include "dicom_core/opening/ZELDcmTree.h"
#include "platform/FileCatalog.h"
#include "platform/Volumes.h"
#include "prefs/Prefs.h"

namespace {

constexpr int kModalOpening = 1;  // the Open dialog, or a recent document
constexpr double kDiscsAfter_s = 0.1;

bool IsDirectoryInFolder(std::int32_t flavor)
{
    return flavor == kOpenFlavorFolderDICOMDIR || flavor == kOpenFlavorDICOMDIRFile;
}

}  // namespace

ZELOpenController::ZELOpenController(OpenObserver* observer, OpenHost* host,
                                     ProgressWindow* progressWindow, ZELRecentDocuments* recents)
    : _observer(observer), _host(host), _recents(recents), _progress(progressWindow)
{
}

std::unique_ptr<OpenSettings> ZELOpenController::NewRequest(OpenActionType action,
                                                            std::int32_t flavor,
                                                            const std::string& target,
                                                            ZELDcmTree* tree, std::int32_t* error)
{
    auto request = std::make_unique<OpenSettings>();
    request->actionType = action;
    request->actionFlavor = flavor;
    request->openTargetPath = target;
    request->dcmDBRoot = tree;
    request->openError = error;
    return request;
}

std::int8_t ZELOpenController::Run(std::unique_ptr<OpenSettings> request)
{
    return threadedOpenWithParams(std::move(request), &_progress, _host->eventServer());
}

bool ZELOpenController::shouldOpenTarget(const std::string& path, std::int32_t type)
{
    const ZELRecentDocument document{type, path, {}};
    if (!_observer->docIsAlreadyOpen(document))
        return false;
    _observer->bringDocWindowToFront(document);
    return true;
}

bool ZELOpenController::basic_openFile(const std::string& path)
{
    std::int32_t flavor = kOpenFlavorNone;
    std::string target;
    U_ShouldWeOpenFileWithPath(path, false, &flavor, &target);
    gOpenFileCalled = true;  // only now: the first classification of a run still sees 0
    if (flavor == kOpenFlavorNone)
        return false;
    if (shouldOpenTarget(target, flavor))
        return true;
    auto tree = std::make_unique<ZELDcmTree>();
    std::int32_t error = kQvxOK;
    const std::int8_t result =
        Run(NewRequest(kOpenActionPlain, flavor, target, tree.get(), &error));
    if (error == kQvxUserCanceled)
        return result != 0;
    if (error != kQvxOK) {
        _observer->ShowAlertForError(
            error, LastComponent(IsDirectoryInFolder(flavor) ? ParentFolder(target) : target));
        return result != 0;
    }
    addZELRecentItemForPath(target, flavor);
    U_OpenWindowForPatientTree(std::move(tree), target, {flavor, target, {}});
    return true;
}

void ZELOpenController::doOpenMenuCommand()
{
    _qtModalMode = kModalOpening;
    const auto picked = _host->runOpenPanel(prefs_OpenTargetDirectory());
    gOpenFileCalled = true;  // also on Cancel
    if (picked) {
        prefs_Set_OpenTargetDirectory(picked->folder);
        for (const std::string& path : picked->paths)
            basic_openFile(path);
    }
    LeaveModalMode();
}

void ZELOpenController::LeaveModalMode()
{
    _qtModalMode = 0;
    _host->callLater(kDiscsAfter_s, [this] { handleDeferredCDCheck(); });
}

void ZELOpenController::openZELRecentDoc(std::size_t index)
{
    if (!_recents || index >= _recents->list().size())
        return;
    const ZELRecentDocument document = _recents->list()[index];
    _qtModalMode = kModalOpening;
    if (!openRecentDocWithPath(document.docPath, document.docType))
        _recents->remove(document);
    LeaveModalMode();
}

bool ZELOpenController::openRecentDocWithPath(const std::string& path, std::int32_t type)
{
    std::string target = path;
    if (std::string resolved; ResolveAlias(path, &resolved))
        target = resolved;
    gOpenFileCalled = true;
    if (shouldOpenTarget(target, type))
        return true;
    const std::string rootFile = type == kOpenFlavorCDDICOMDIR ? ParentFolder(target) : target;
    auto tree = std::make_unique<ZELDcmTree>();
    std::int32_t error = kQvxOK;
    const std::int8_t result = Run(NewRequest(kOpenActionRecent, type, target, tree.get(), &error));
    if (error == kQvxUserCanceled)
        return true;
    if (error != kQvxOK) {
        _observer->ShowAlertForError(error, LastComponent(rootFile));
        return result != 0;
    }
    addZELRecentItemForPath(target, type);
    U_OpenWindowForPatientTree(std::move(tree), rootFile, {type, target, {}});
    return true;
}

void ZELOpenController::delayedOpenFile()
{
    if (!_host->mainWindowIsViewer() && !gOpenFileCalled)
        doOpenMenuCommand();
}

void ZELOpenController::addZELRecentItemForPath(const std::string& path, std::int32_t type)
{
    if (_recents)
        _recents->U_AddZELRecentItem({type, path, {}});
}

void ZELOpenController::U_OpenWindowForPatientTree(std::unique_ptr<ZELDcmTree> tree,
                                                   const std::string& rootFile,
                                                   const ZELRecentDocument& document)
{
    PostProcessDicomTree_Localizers(tree.get());
    const std::string represented =
        IsDirectoryInFolder(document.docType) ? ParentFolder(rootFile) : rootFile;
    _observer->treeIsReady(std::move(tree), represented, document);
    _progress.orderOut();
}

void ZELOpenController::deviceDidMount(const std::string& mountPoint)
{
    if (!prefs_DoAutoOpenDICOMCDs())
        return;
    if (inQTModalMode())
        _deferredDiscs.push_back(mountPoint);
    else
        U_CheckAndOpenRemovableDeviceAtPath(mountPoint);
}

void ZELOpenController::handleDeferredCDCheck()
{
    while (!inQTModalMode() && !_deferredDiscs.empty()) {
        const std::string mountPoint = _deferredDiscs.front();
        _deferredDiscs.pop_front();
        U_CheckAndOpenRemovableDeviceAtPath(mountPoint);
    }
}

void ZELOpenController::openMountedCDsOnStartup()
{
    for (const VolumeFacts& volume : MountedRemovableMedia())
        U_CheckAndOpenRemovableDeviceAtPath(volume.fMountPoint);
}

void ZELOpenController::U_CheckAndOpenRemovableDeviceAtPath(const std::string& mountPoint)
{
    VolumeFacts volume;
    if (!VolumeOfPath(mountPoint, &volume) || !(volume.fIsOptical || volume.fIsEjectable))
        return;
    const std::string target = DirectoryFileIn(mountPoint);
    if (target.empty() || !IsDicomDirFile(target, false))
        return;
    auto tree = std::make_unique<ZELDcmTree>();
    std::int32_t error = kQvxOK;
    Run(NewRequest(kOpenActionCD, kOpenFlavorCDDICOMDIR, target, tree.get(), &error));
    if (error != kQvxOK)
        return;  // a disc fails silently
    gOpenFileCalled = true;
    addZELRecentItemForPath(target, kOpenFlavorCDDICOMDIR);
    U_OpenWindowForPatientTree(std::move(tree), mountPoint, {kOpenFlavorCDDICOMDIR, target, {}});
}

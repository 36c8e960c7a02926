// Every way in: the Open dialog, a path from the desktop, a recent document, a disc. Classifies,
// runs the request, and hands the tree over. Main thread only.
#pragma once
#include "dicom_core/opening/Classify.h"
#include "dicom_core/opening/OpenObserver.h"
#include "dicom_core/progress/ZELOpenProgressWindowController.h"

#include <deque>

class ZELOpenController {
public:
    // None of them is owned. Without `recents` no list is kept.
    ZELOpenController(OpenObserver* observer, OpenHost* host, ProgressWindow* progressWindow,
                      ZELRecentDocuments* recents);

    // True when the path is open now, or was before.
    bool basic_openFile(const std::string& path);
    void doOpenMenuCommand();
    // A recent entry of the menu; one that can't be opened leaves the list.
    void openZELRecentDoc(std::size_t index);
    // False tells that the entry should go.
    bool openRecentDocWithPath(const std::string& path, std::int32_t type);
    void delayedOpenFile();  // at start: the dialog, if nothing was opened
    // What the Cancel button does: the request that runs ends soon.
    void cancelOpen() { _progress.cancelProcessing(); }

    // Discs.
    void deviceDidMount(const std::string& mountPoint);
    void handleDeferredCDCheck();
    void openMountedCDsOnStartup();
    void U_CheckAndOpenRemovableDeviceAtPath(const std::string& mountPoint);

    // Non-zero while something modal runs that no new window may interrupt.
    void setQtModalMode(int mode) { _qtModalMode = mode; }
    [[nodiscard]] bool inQTModalMode() const { return _qtModalMode != 0; }

private:
    // True when the document is open already; its window is in front then.
    [[nodiscard]] bool shouldOpenTarget(const std::string& path, std::int32_t type);
    [[nodiscard]] std::unique_ptr<OpenSettings> NewRequest(OpenActionType action,
                                                           std::int32_t flavor,
                                                           const std::string& target,
                                                           ZELDcmTree* tree, std::int32_t* error);
    std::int8_t Run(std::unique_ptr<OpenSettings> request);
    void addZELRecentItemForPath(const std::string& path, std::int32_t type);
    void U_OpenWindowForPatientTree(std::unique_ptr<ZELDcmTree> tree, const std::string& rootFile,
                                    const ZELRecentDocument& document);
    void LeaveModalMode();

    OpenObserver* _observer;
    OpenHost* _host;
    ZELRecentDocuments* _recents;
    ZELOpenProgressWindowController _progress;
    std::deque<std::string> _deferredDiscs;
    int _qtModalMode = 0;
};

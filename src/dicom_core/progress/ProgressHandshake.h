// Between a worker and the main thread while one run lasts: the worker says a message and waits
// until it has been handled; the main thread serves until the worker is done.
#pragma once
#include "dicom_core/progress/ZELOpenProgressWindowController.h"
#include "platform/MainThreadCalls.h"

#include <functional>

class ProgressHandshake {
public:
    // Neither is owned. `serveHost` lets other events of the program in, at every turn; it may be
    // empty. With a host that has nothing to serve, the loop only waits for the worker.
    explicit ProgressHandshake(ZELOpenProgressWindowController* controller,
                               std::function<void()> serveHost = nullptr)
        : fController(controller), fServeHost(std::move(serveHost))
    {
    }

    // Worker: the settings' message is handled by the main thread when this returns.
    void Send(ExportLevelSettings* settings);
    // Worker: begins the modal session.
    void Begin(ExportLevelSettings* settings);
    // Worker, as its last deed: clears `exportIsWorking` and posts the stop message.
    void Finish(ExportLevelSettings* settings);

    // Main: serves until the worker has finished, and ends the session. An answer of the session
    // that isn't "go on" sets `userCancelled`.
    void Serve(ExportLevelSettings* settings);

private:
    ZELOpenProgressWindowController* fController;
    std::function<void()> fServeHost;
    MainThreadCalls fCalls;
};

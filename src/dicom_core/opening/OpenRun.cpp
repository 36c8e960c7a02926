#include "dicom_core/opening/OpenRun.h"

#include "dicom_core/progress/ProgressHandshake.h"
#include "util/SignalStack.h"

#include <system_error>
#include <thread>

std::int8_t threadedOpenWithParams(std::unique_ptr<OpenSettings> settings,
                                   ZELOpenProgressWindowController* progress,
                                   const std::function<void()>& serveHost)
{
    ProgressHandshake handshake(progress, serveHost);
    settings->handshake = &handshake;
    settings->userCancelled = false;
    settings->exportIsWorking = true;
    std::thread worker;
    try {
        worker = std::thread([&] {
            const SignalStack stack;
            blockOpenProc(settings.get());
            handshake.Finish(settings.get());
        });
    } catch (const std::system_error& none) {  // no thread to be had
        *settings->openError = none.code().value();
        return settings->openResult;
    }
    handshake.Serve(settings.get());
    worker.join();
    if (settings->userCancelled || *settings->openError)
        progress->orderOut();
    return settings->openResult;
}

#include "dicom_core/progress/ProgressHandshake.h"

namespace {

// How long the user's events may wait for the next turn. The worker's calls never wait.
constexpr std::chrono::milliseconds kSlice{5};
constexpr std::chrono::milliseconds kIdleSlice{1000};  // nobody has events

}  // namespace

void ProgressHandshake::Send(ExportLevelSettings* settings)
{
    fCalls.CallAndWait([&] { fController->processMessage(settings->progressMessage, settings); });
}

void ProgressHandshake::Begin(ExportLevelSettings* settings)
{
    fCalls.CallAndWait([&] { fController->initOpenProgress(settings); });
}

void ProgressHandshake::Finish(ExportLevelSettings* settings)
{
    // Posted: the main thread may have left its loop before it gets to the message.
    fCalls.Post([this, settings] {
        settings->exportIsWorking = false;
        fController->processMessage(kProgressStop, settings);
    });
}

void ProgressHandshake::Serve(ExportLevelSettings* settings)
{
    while (settings->exportIsWorking) {
        if (settings->progressSession && !settings->progressSession->runModalSession(settings))
            settings->userCancelled = true;
        if (fServeHost)
            fServeHost();
        fCalls.Service(fServeHost ? kSlice : kIdleSlice);
    }
    fCalls.Close();
    if (settings->progressSession)
        settings->progressSession->endModalSession(settings);
    settings->progressIsON = false;
}

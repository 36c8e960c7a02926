// One request from its begin to its end, across the main thread and one worker.
#pragma once
#include "dicom_core/opening/OpenSettings.h"
#include "dicom_core/progress/ZELOpenProgressWindowController.h"

#include <functional>
#include <memory>

// Main thread: runs the request's worker and serves it until it is done; answers `openResult`. The
// worker's code is in `*openError`. `serveHost` lets the program's other events in, or is empty.
std::int8_t threadedOpenWithParams(std::unique_ptr<OpenSettings> settings,
                                   ZELOpenProgressWindowController* progress,
                                   const std::function<void()>& serveHost);

// The worker's body: what the action type says; afterwards the code is in `*openError`.
void blockOpenProc(OpenSettings* settings);
void U_CreateDicomTree(OpenSettings* settings);
void U_OpenRecentDocWithPath(OpenSettings* settings);
// Writes `*openError` only on failure, sets gOpenFileCalled on success.
void U_OpenCDDICOMDIR(OpenSettings* settings);

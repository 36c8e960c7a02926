// What one long run was asked to do, and the fields by which its worker and the main thread talk.
// The worker writes the progress fields and then waits for the main thread to have handled them, so
// they are never read while they change; what both touch freely is atomic.
#pragma once
#include "util/FileRef.h"

#include <QString>
#include <atomic>
#include <cstdint>
#include <string>

class ZELDcmTree;
class ZELSequenceProxy;
class ProgressHandshake;
class ZELOpenProgressWindowController;

// What a progress message does in the window.
enum ZELProgressMessageID : std::int32_t {
    kProgressNone = 0,
    kProgressInit = 1,
    kProgressStop = 2,
    kProgressBeginCounted = 3,  // determinate, limits, value
    kProgressSetLimits = 4,
    kProgressSetLimitsAndValue = 5,
    kProgressIndeterminate = 6,
    kProgressSubLabel = 7,
    kProgressLabelThrottled = 8,  // main label, at most once per 351 ms
    kProgressRedraw = 9,
    kProgressStep = 10,
    kProgressRedraw2 = 11,
    kProgressLabelAndStep = 12,
};

struct ExportLevelBaseSettings {
    virtual ~ExportLevelBaseSettings() = default;
    std::int32_t exportLevel = 0;                // 1 the current frame … 9 a folder
    ZELSequenceProxy* exportSequence = nullptr;  // not owned
    ZELDcmTree* srcDCMTree = nullptr;            // not owned
    std::string saveFilePath, saveTargetPath;    // bytes
    FileRef fileSpec;                            // the target
    std::string fFNameExtension;                 // with its leading ".", at most 15 bytes
    void* hostingWindow = nullptr;               // not owned
};

struct ExportLevelSettings : ExportLevelBaseSettings {
    std::atomic<bool> userCancelled{false};    // set by the main thread, polled by the worker
    std::atomic<bool> exportIsWorking{false};  // the worker runs
    std::atomic<bool> progressIsON{false};     // the progress window was created
    // Served by the main thread; null where nobody watches, and then nothing is said. Not owned.
    ProgressHandshake* handshake = nullptr;
    ZELOpenProgressWindowController* progressSession = nullptr;  // while it is modal; not owned
    ZELProgressMessageID progressMessage = kProgressNone;
    QString messageStr, subMessageStr;
    std::int32_t mainMin = 0, mainMax = 0, mainValue = 0;
    std::int32_t auxMin = 0, auxMax = 0, auxValue = 0;
    std::int32_t steps = 1;  // how many steps a step message stands for
};

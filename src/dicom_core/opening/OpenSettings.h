// One request to open something, from the entry point that made it to its end.
#pragma once
#include "dicom_core/progress/ExportLevelSettings.h"

#include <chrono>

enum OpenActionType : std::int32_t {
    kOpenActionCD = 5,
    kOpenActionRecent = 6,
    kOpenActionPlain = 7,
};

// What is opened; also the type of a recent document, so the numbers are stored.
enum OpenActionFlavor : std::int32_t {
    kOpenFlavorNone = 0,
    kOpenFlavorFile = 1,
    kOpenFlavorFolder = 2,  // top level only
    kOpenFlavorFolderRecursive = 3,
    kOpenFlavorFolderDICOMDIR = 4,  // the directory file found in a chosen folder
    kOpenFlavorCDDICOMDIR = 5,      // the one at the root of a removable volume
    kOpenFlavorDICOMDIRFile = 15,   // one chosen directly
};

struct OpenSettings final : ExportLevelSettings {
    std::int32_t actionType = 0;
    std::int32_t actionFlavor = 0;
    std::string openTargetPath;         // bytes
    std::int8_t openResult = 0;         // set by the recent-document road only
    ZELDcmTree* dcmDBRoot = nullptr;    // the tree to fill; not owned
    std::int32_t* openError = nullptr;  // where the worker writes the final code
    // Of the worker's progress calls: steps not handed over yet, and when the last ones were.
    std::int32_t heldSteps = 0;
    std::chrono::steady_clock::time_point lastStepSent{};
};

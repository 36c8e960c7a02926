// The roads from a target to a filled tree. All run on the open worker; each answers 0,
// kQvxUserCanceled, or the code of the step that failed. Files that can't be taken are left out and
// noted in the tree.
#pragma once
#include "util/StatusCodes.h"

struct OpenSettings;

[[nodiscard]] QvxStatus CreatePatientListWithFile(OpenSettings* settings);        // flavor 1
[[nodiscard]] QvxStatus CreatePatientListWithFolder(OpenSettings* settings);      // 2, 3
[[nodiscard]] QvxStatus ReadPatientListFromDicomDirFile(OpenSettings* settings);  // 4, 5, 15

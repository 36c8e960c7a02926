// `zelora demo FOLDER`: a study made by arithmetic, to have something to look at without a
// patient. All of it shows one phantom: a CT volume of 60 slices (CT/), its coronal localizer
// (LOCALIZER/), a chest radiograph (DX/) and a colour chart as secondary capture (SC/).
#pragma once
#include "util/StatusCodes.h"

#include <string>

// Makes `folder` (its parent must be there) and writes the files, the same bytes each time. Files
// of the same names are replaced. Each is written under a temporary name and renamed when it is
// whole. On failure `failure` says which file or folder, and why; complete files before it stay.
// Answers an errno, kQvxDiskFull or kQvxNoMemory.
[[nodiscard]] QvxStatus WriteDemoStudy(const std::string& folder, std::string* failure);
